<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Das Passwort muss mindestens 8 Zeichen lang sein.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>Das Passwort muss mindestens einen Kleinbuchstaben enthalten.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>Das Passwort muss mindestens einen Großbuchstaben enthalten.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>Das Passwort muss mindestens eine Ziffer enthalten.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Erhöhen</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Verringern</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>Alles &amp;auswählen</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Änderungsdatum</translation>
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
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Hierher scrollen</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Eine Seite nach links</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Eine Seite nach oben</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Eine Seite nach rechts</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Eine Seite nach unten</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Nach links scrollen</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben scrollen</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Nach rechts scrollen</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten scrollen</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Linkadresse kopieren</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Automatische Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Automatische Registrierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Sitzung konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Bestätigung des Handshakes fehlgeschlagen</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Sitzungsaufbau konnte nicht abgeschlossen werden</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Sitzung konnte nicht beendet werden</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Sitzungspasswort ändern</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Neues Passwort (mind. 8 Zeichen, Groß- und Kleinbuchstaben sowie Ziffern):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Ungültiges Passwort</translation>
    </message>
</context>
<context>
    <name>corvane::ChatDialog</name>
    <message>
        <source>Chat</source>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Nachrichten</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Nachricht eingeben…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Ich</translation>
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
        <translation>MIT PARTNER VERBINDEN</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>Partner-ID  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Zu Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
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
        <translation>Corvane - Verbinden</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrieren</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Passwort (mind. 8 Zeichen)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Gerätename:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Mein PC</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Bitte füllen Sie alle Felder aus.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Bitte geben Sie Benutzername und Passwort ein.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Das Passwort muss mindestens 8 Zeichen lang sein.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Verbindungsinformationen</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>Sitzungs-ID:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>Partner-ID:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Rolle:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Master (Betrachter)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Ziel (Freigabe)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Übertragungsweg:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Verbindungsqualität</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Latenz:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Bandbreite:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Gesendet:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Empfangen:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Verworfene Bilder:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Dauer:</translation>
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
        <translation>FPS: %1 | Latenz: %2 ms | Bandbr.: %3 | Dauer: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>IHRE ID</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>PASSWORT</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinden...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>ID kopieren</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Passwort kopieren</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Dateimanager</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Ausgewählte Dateien vom entfernten auf den lokalen Computer herunterladen</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Hochladen</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Ausgewählte lokale Dateien auf den entfernten Computer hochladen</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Entfernter Ordner wird geladen...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elemente: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Wählen Sie entfernte Dateien zum Herunterladen aus.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Keine Dateien ausgewählt (Ordner werden übersprungen).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Diese Dateien sind lokal bereits vorhanden und werden überschrieben:
%1

Fortfahren?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Wählen Sie lokale Dateien zum Hochladen aus.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Diese Dateien sind auf dem entfernten Computer bereits vorhanden und werden überschrieben:
%1

Fortfahren?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Überschreiben?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>Die Sitzung wurde beendet.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>Die Anfrage konnte nicht gesendet werden: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Ein anderer Upload läuft noch: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Lokale Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Herunterladen der entfernten Datei fehlgeschlagen</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Lokale Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Die Verbindung wurde während des Sendens unterbrochen: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Lokale Datei kann nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>KOPPLUNGSCODE</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Verwaltung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Kopplungscode kopieren</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Dieses Gerät hinzufügen unter %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>Auf einem Wayland-Desktop können Partner diesen Bildschirm weder sehen noch steuern; Chat und Dateien funktionieren, ebenso das Verbinden mit anderen. Melden Sie sich in einer X11-Sitzung an, um den Bildschirm freizugeben.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Keine HTTP- oder HTTPS-Adresse: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Der Server sendet mehr als %1 Bytes.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Der Server stellt dort nichts zum Herunterladen bereit.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Der Server leitet zu oft weiter.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Der Server leitet auf eine unsichere Adresse weiter: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Lokaler Computer&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Lokale Dateien</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Bitte geben Sie eine Partner-ID ein.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Bereit. Ihre ID: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>Die Partner-ID muss aus genau 9 Ziffern bestehen.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Bitte geben Sie das Passwort des Partners ein.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>Das Gerät %1 möchte eine Verbindung herstellen.
Zweck: %2

Annehmen?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>Fernzugriff</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Eingehende Verbindung</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Eingehende Verbindung von %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Die Sitzung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Sitzungsfehler</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Verbindung fehlgeschlagen. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Der Partner ist nicht verfügbar oder offline.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Ungültiges Sitzungspasswort.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Verbindungsfehler</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Die Anwendung läuft im Infobereich weiter.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Fernsitzung aktiv – Ihr Bildschirm wird freigegeben.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Verbunden mit %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Schlecht</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Verbindung: Gut</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Einen Ordner nach oben</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Entfernte Dateien</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Entfernter Computer&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Entfernt: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Die Bildschirmübertragung konnte nicht gestartet werden.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Sitzung kann nicht gestartet werden: Es läuft bereits eine andere</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Der Server hat ungültige Sitzungsdaten gesendet</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Öffentlicher ECDH-Schlüssel des Ziels fehlt</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>ECDH-Schlüsselableitung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Sitzung kann nicht angenommen werden: Es läuft bereits eine andere</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Übertragung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Kryptografiefehler: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Verschlüsselungsfehler: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Corvane automatisch starten, wenn Sie sich anmelden.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Mit Windows starten</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Corvane automatisch starten, wenn Sie sich bei Windows anmelden.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Sprache der Anwendung. Wird erst nach einem Neustart wirksam.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Qualität: 24 FPS, scharfes Bild, höhere Bandbreite.
Geschwindigkeit: 10 FPS, geringere Bandbreite und CPU-Last.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Qualität optimieren</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Geschwindigkeit optimieren</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Flüssige Bewegung</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Flüssig: 30 FPS, bei der Arbeit bis 60; höhere Bandbreite und CPU-Last.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Wählen Sie den Monitor, der freigegeben wird, wenn sich jemand mit diesem Gerät verbindet.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Monitor %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, primär</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Inhalt der Zwischenablage zwischen dem lokalen und dem entfernten Computer synchronisieren.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Zwischenablage gemeinsam nutzen</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Anzeigemodus:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Freigegebener Monitor:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Nach einer unerwarteten Trennung automatisch versuchen, die Verbindung wiederherzustellen.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Bei Trennung automatisch neu verbinden</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Höchstzahl aufeinanderfolgender Verbindungsversuche, bevor aufgegeben wird.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Max. Verbindungsversuche:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>CorvaneService.exe als Windows-Dienst installieren, der ab dem Systemstart läuft,
auch wenn kein Benutzer angemeldet ist. Erfordert Administratorrechte.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Als Windows-Dienst ausführen (unbeaufsichtigt)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Anwendung im Infobereich weiterlaufen lassen, wenn das Fenster geschlossen wird.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Beim Schließen in den Infobereich minimieren</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Sprache geändert</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Bitte starten Sie die Anwendung neu, um die neue Sprache zu übernehmen.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Wird übernommen...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>System wird abgefragt...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Anmeldung vom Server abgelehnt</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>Online (bereit)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Verbindung wird wiederhergestellt...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Server nicht erreichbar – neuer Versuch...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Getrennt</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Sitzung wird gestartet...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Schlüssel werden ausgetauscht...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Übertragungsweg wird aufgebaut...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Verbindung wird getrennt...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Sitzung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Fernzugriff</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Status: Getrennt</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Eingehende Verbindung</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>Das Gerät %1 fordert eine Fernverbindung an.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Alle Downloads abgeschlossen.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Alle Uploads abgeschlossen.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Datei %1 von %2 wird hochgeladen: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Heruntergeladen: %1 – noch %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Datei %1 von %2 wird heruntergeladen: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Übertragungsfortschritt</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% – %1/s, noch %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Update verfügbar: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Herunterladen...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Jetzt aktualisieren</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Das Installationsprogramm konnte nicht gestartet werden.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Temporärer Ordner ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Die heruntergeladene Datei ist zu klein – Update abgebrochen.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Das Installationsprogramm konnte nicht aus dem ZIP-Archiv entpackt werden.</translation>
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
        <translation>%1 KB</translation>
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
        <translation>Dateien  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Chat  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Skalierung  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Monitor wechseln</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Vollbild  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Trennen  (Ctrl+Shift+D)</translation>
    </message>
    <message>
        <source>Chat (!)</source>
        <translation>Chat (!)</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Chat</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Auf Fenster strecken</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Monitor %1</source>
        <translation>Monitor %1</translation>
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
        <translation>MAC-Adresse dieses Partners eingeben (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Ungültige MAC-Adresse.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>Das Wake-on-LAN-Paket konnte nicht gesendet werden.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Wake-on-LAN-Paket an %1 gesendet</translation>
    </message>
</context>
</TS>
