<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::ChatDialog</name>
    <message>
        <source>Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Me</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::ConnectCard</name>
    <message>
        <source>CONNECT TO PARTNER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionDialog</name>
    <message>
        <source>Corvane - Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Register</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Username</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>My PC</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Role:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Kbps</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionQualityMonitor</name>
    <message>
        <source>%1 Mbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FPS: %1 | Latency: %2ms | BW: %3 | Uptime: %4</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add this device at </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Local files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remote access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Session Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::ValueFormats</name>
    <message>
        <source>%1 B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::ViewerToolBar</name>
    <message>
        <source>Info  (Ctrl+Shift+I)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chat (!)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monitor %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>corvane::WakeOnLanAction</name>
    <message>
        <source>Wake-on-LAN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter MAC address for this partner (XX:XX:XX:XX:XX:XX):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WoL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
