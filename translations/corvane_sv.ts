<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Lösenordet måste innehålla minst 8 tecken.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>Lösenordet måste innehålla minst en liten bokstav.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>Lösenordet måste innehålla minst en stor bokstav.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>Lösenordet måste innehålla minst en siffra.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-fil</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>Ö&amp;ka</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Minska</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Markera alla</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ändrad</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Avbryt</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Stäng</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>Ån&amp;gra</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Gör &amp;om</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp &amp;ut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Klistra &amp;in</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera allt</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rulla hit</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Vänsterkant</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Överkant</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Högerkant</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Nederkant</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sida åt vänster</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sida upp</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sida åt höger</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sida ned</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rulla åt vänster</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rulla uppåt</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rulla åt höger</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rulla nedåt</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiera</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Markera allt</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiera &amp;länkadress</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Automatisk inloggning misslyckades</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Automatisk registrering misslyckades</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Det gick inte att skapa sessionen</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Handskakningen kunde inte bekräftas</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Sessionen kunde inte upprättas</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Det gick inte att avsluta sessionen</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Byt sessionslösenord</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Nytt lösenord (minst 8 tecken, stor + liten bokstav + siffra):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Ogiltigt lösenord</translation>
    </message>
</context>
<context>
    <name>corvane::ChatDialog</name>
    <message>
        <source>Chat</source>
        <translation>Chatt</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Meddelanden</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Skriv ett meddelande…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meddelande</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Skicka</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Jag</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Partner</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectCard</name>
    <message>
        <source>CONNECT TO PARTNER</source>
        <translation>ANSLUT TILL PARTNER</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>Partner-ID  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Lägg till i favoriter</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Anslut</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriter</translation>
    </message>
    <message>
        <source>Partner ID</source>
        <translation>Partner-ID</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionDialog</name>
    <message>
        <source>Corvane - Connect</source>
        <translation>Corvane - Anslut</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Logga in</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrera</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Användarnamn:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lösenord:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Lösenord (minst 8 tecken)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Enhetsnamn:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Min dator</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Fyll i alla fält.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Ange användarnamn och lösenord.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Lösenordet måste innehålla minst 8 tecken.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Anslutningsinformation</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>Sessions-ID:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>Partner-ID:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Roll:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Master (visar)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Mål (delar)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Transport:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Anslutningskvalitet</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Latens:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Bandbredd:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Skickat:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Mottaget:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Tappade bilder:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Anslutningstid:</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1 Mbps</source>
        <translation>%1 Mbps</translation>
    </message>
    <message>
        <source>%1 Kbps</source>
        <translation>%1 Kbps</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionQualityMonitor</name>
    <message>
        <source>%1 Mbps</source>
        <translation>%1 Mbps</translation>
    </message>
    <message>
        <source>%1 kbps</source>
        <translation>%1 kbps</translation>
    </message>
    <message>
        <source>FPS: %1 | Latency: %2ms | BW: %3 | Uptime: %4</source>
        <translation>FPS: %1 | Latens: %2 ms | Bandbredd: %3 | Tid: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>DITT ID</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>LÖSENORD</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Kopiera ID</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Kopiera lösenord</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Byt lösenord</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ej ansluten</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Filhanterare</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Ladda ned</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Ladda ned markerade fjärrfiler till den här datorn</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Ladda upp</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Ladda upp markerade lokala filer till fjärrdatorn</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Läser in fjärrmappen...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 objekt</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Markera en eller flera fjärrfiler att ladda ned.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Inga filer har markerats (mappar hoppas över).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>De här filerna finns redan lokalt och kommer att skrivas över:
%1

Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Markera en eller flera lokala filer att ladda upp.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>De här filerna finns redan på fjärrdatorn och kommer att skrivas över:
%1

Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Skriva över?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fel: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>Sessionen har avslutats.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>Begäran kunde inte skickas: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>En annan uppladdning pågår fortfarande: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Det går inte att öppna den lokala filen: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Fjärrfilen kunde inte laddas ned</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Det går inte att skriva till den lokala filen: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Anslutningen bröts under överföringen: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Det går inte att läsa den lokala filen: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>PARKOPPLINGSKOD</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Administration</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Kopiera parkopplingskod</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Lägg till den här enheten på %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>På ett Wayland-skrivbord kan partner varken se eller styra den här skärmen; chatt och filer fungerar, och det gör även anslutning till andra. Logga in i en X11-session för att dela skärmen.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Inte en HTTP- eller HTTPS-adress: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Servern skickar mer än %1 byte.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Servern har inget att ladda ned där.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Servern omdirigerar för många gånger.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Servern omdirigerar till en osäker adress: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Lokal dator&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Lokala filer</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Ange ett partner-ID.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Redo. Ditt ID: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>Partner-ID:t måste bestå av exakt 9 siffror.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Ange partnerns lösenord.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>Enheten %1 vill ansluta.
Syfte: %2

Vill du godkänna?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>fjärråtkomst</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Inkommande anslutning</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Inkommande anslutning från %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Sessionen misslyckades.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Sessionsfel</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Det gick inte att ansluta. Försök igen.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Partnern är inte tillgänglig eller är offline.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Ogiltigt sessionslösenord.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Anslutningsfel</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Programmet har minimerats till meddelandefältet.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Fjärrsession aktiv – din skärm delas.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Ansluten till %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Dålig</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bra</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Hyfsad</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Anslutning: Bra</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Gå upp en mapp</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Fjärrfiler</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Fjärrdator&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Fjärrdator: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Det gick inte att starta skärmdelningen.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Sessionen kan inte startas: en annan pågår redan</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Servern returnerade ogiltiga sessionsdata</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Målets offentliga ECDH-nyckel saknas</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>ECDH-nyckeln kunde inte härledas</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Sessionen kan inte godkännas: en annan pågår redan</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Transportfel: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Kryptofel: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Krypteringsfel: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Starta vid inloggning</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Starta Corvane automatiskt när du loggar in.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Starta med Windows</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Starta Corvane automatiskt när du loggar in i Windows.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visning</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Nätverk</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Programmets språk. Träder i kraft efter omstart.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemets standard</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Kvalitet: 24 FPS, skarp bild, högre bandbredd.
Hastighet: 10 FPS, lägre bandbredd och CPU-användning.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Optimera kvaliteten</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Optimera hastigheten</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Jämn rörelse</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Jämnhet: 30 FPS, upp till 60 när du arbetar; högre bandbredd och CPU-användning.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Välj vilken bildskärm som ska delas när någon ansluter till den här enheten.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Bildskärm %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, primär</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Synkronisera innehållet i urklipp mellan den lokala datorn och fjärrdatorn.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Dela urklipp</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Språk:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Visningsläge:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Delad bildskärm:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Försök automatiskt återupprätta anslutningen efter ett oväntat avbrott.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Återanslut automatiskt vid avbrott</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Högsta antal återanslutningsförsök i följd innan programmet ger upp.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Max. antal återanslutningsförsök:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Installera CorvaneService.exe som en Windows-tjänst som körs vid systemstart,
även när ingen användare är inloggad. Kräver administratörsbehörighet.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Kör som Windows-tjänst (obevakad)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Låt programmet köras i meddelandefältet när fönstret stängs.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Minimera till meddelandefältet vid stängning</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Språket har ändrats</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Starta om programmet för att använda det nya språket.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Verkställer...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Frågar systemet...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Autentiseringen avvisades av servern</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>Online (redo)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Återansluter...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Servern är inte tillgänglig – försöker igen...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Frånkopplad</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Startar session...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Utbyter nycklar...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Upprättar transport...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ansluten</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Kopplar från...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Sessionen misslyckades</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Fjärråtkomst</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Visa</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Status: Frånkopplad</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Inkommande anslutning</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>Enheten %1 begär en fjärranslutning.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Alla nedladdningar är klara.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Alla uppladdningar är klara.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Laddar upp %1 av %2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Nedladdad: %1 – %2 återstår</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Laddar ned %1 av %2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Överföringsförlopp</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% – %1/s, %2 kvar</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Uppdatering tillgänglig: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Uppdatera nu</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Uppdatering</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Installationsprogrammet kunde inte startas.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Det går inte att skriva till den tillfälliga mappen.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Den nedladdade filen är för liten – uppdateringen avbröts.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Installationsprogrammet kunde inte packas upp ur ZIP-filen.</translation>
    </message>
</context>
<context>
    <name>corvane::ValueFormats</name>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
</context>
<context>
    <name>corvane::ViewerToolBar</name>
    <message>
        <source>Info  (Ctrl+Shift+I)</source>
        <translation>Info  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>Filer  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Chatt  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Skalningsläge  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Byt bildskärm</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Helskärm  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Koppla från  (Ctrl+Shift+D)</translation>
    </message>
    <message>
        <source>Chat (!)</source>
        <translation>Chatt (!)</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Chatt</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Anpassa till fönstret</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Sträck ut till fönstret</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Originalstorlek</translation>
    </message>
    <message>
        <source>Monitor %1</source>
        <translation>Bildskärm %1</translation>
    </message>
</context>
<context>
    <name>corvane::WakeOnLanAction</name>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Enter MAC address for this partner (XX:XX:XX:XX:XX:XX):</source>
        <translation>Ange MAC-adressen för den här partnern (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Ogiltig MAC-adress.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>Wake-on-LAN-paketet kunde inte skickas.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Wake-on-LAN-paketet har skickats till %1</translation>
    </message>
</context>
</TS>
