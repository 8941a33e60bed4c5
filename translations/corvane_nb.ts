<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Passordet må ha minst 8 tegn.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>Passordet må inneholde minst én liten bokstav.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>Passordet må inneholde minst én stor bokstav.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>Passordet må inneholde minst ett siffer.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Stasjon</translation>
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
        <translation>Ø&amp;k</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Reduser</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Merk alt</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Endret</translation>
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
        <translation>&amp;Lukk</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Angre</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Gjør om</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Klipp &amp;ut</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Lim inn</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Merk alt</translation>
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
        <translation>Lukk</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nei</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Rull hit</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Venstre kant</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Øverst</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Høyre kant</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Nederst</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Side mot venstre</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Side opp</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Side mot høyre</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Side ned</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Rull mot venstre</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Rull opp</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Rull mot høyre</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Rull ned</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopier</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Merk alt</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopier &amp;lenkeadresse</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Automatisk pålogging mislyktes</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Automatisk registrering mislyktes</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Kunne ikke opprette økten</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Kunne ikke bekrefte håndtrykket</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Kunne ikke fullføre oppretting av økten</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Kunne ikke avslutte økten</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Endre øktpassord</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Nytt passord (minst 8 tegn, stor + liten bokstav + siffer):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Ugyldig passord</translation>
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
        <translation>Meldinger</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Skriv en melding…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Send</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Meg</translation>
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
        <translation>KOBLE TIL PARTNER</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>Partner-ID  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Legg til i favoritter</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Koble til</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritter</translation>
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
        <translation>Corvane - Koble til</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Logg på</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrer</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Brukernavn:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passord:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Passord (minst 8 tegn)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Enhetsnavn:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Min PC</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Fyll ut alle feltene.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Skriv inn brukernavn og passord.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Passordet må ha minst 8 tegn.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Tilkoblingsinformasjon</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Økt</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>Økt-ID:</translation>
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
        <translation>Master (viser)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Mål (deler)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Transport:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Tilkoblingskvalitet</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Forsinkelse:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Båndbredde:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Sendt:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Mottatt:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Tapte bilder:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Varighet:</translation>
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
        <translation>FPS: %1 | Forsinkelse: %2 ms | Båndbr.: %3 | Varighet: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>DIN ID</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>PASSORD</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Kopier ID</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Kopier passord</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Endre passord</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ikke tilkoblet</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Filbehandling</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Last ned</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Last ned merkede filer fra den eksterne datamaskinen</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Last opp</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Last opp merkede lokale filer til den eksterne datamaskinen</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Laster inn ekstern mappe...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementer: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Velg én eller flere eksterne filer som skal lastes ned.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Ingen filer er valgt (mapper hoppes over).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Disse filene finnes allerede lokalt og vil bli overskrevet:
%1

Vil du fortsette?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Velg én eller flere lokale filer som skal lastes opp.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Disse filene finnes allerede på den eksterne datamaskinen og vil bli overskrevet:
%1

Vil du fortsette?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Overskrive?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Feil: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>Økten er avsluttet.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>Forespørselen kunne ikke sendes: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>En annen opplasting pågår fortsatt: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Kan ikke åpne den lokale filen: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Nedlasting av ekstern fil mislyktes</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Kan ikke skrive til den lokale filen: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Tilkoblingen ble brutt under sending: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Kan ikke lese den lokale filen: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>PARINGSKODE</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Administrasjon</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Kopier paringskode</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Legg til denne enheten på %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>På et Wayland-skrivebord kan partnere verken se eller styre denne skjermen; chat og filer virker, og det gjør også tilkobling til andre. Logg inn i en X11-økt for å dele skjermen.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Ikke en HTTP- eller HTTPS-adresse: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Serveren sender mer enn %1 byte.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Serveren har ingenting å laste ned der.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Serveren omdirigerer for mange ganger.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Serveren omdirigerer til en usikker adresse: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Lokal datamaskin&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Lokale filer</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Skriv inn en partner-ID.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Klar. ID-en din: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>Partner-ID-en må bestå av nøyaktig 9 sifre.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Skriv inn passordet til partneren.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>Enheten %1 vil koble seg til.
Formål: %2

Vil du godta?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>ekstern tilgang</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Innkommende tilkobling</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Innkommende tilkobling fra %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Økten mislyktes.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Øktfeil</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Kunne ikke koble til. Prøv igjen.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Partneren er ikke tilgjengelig eller er frakoblet.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Ugyldig øktpassord.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Tilkoblingsfeil</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Programmet er minimert til systemstatusfeltet.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Ekstern økt aktiv – skjermen din deles.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Koblet til %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Dårlig</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>God</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Middels</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Tilkobling: God</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Gå opp én mappe</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Eksterne filer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ekstern datamaskin&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Ekstern: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Kunne ikke starte skjermdelingen.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Kan ikke starte økten: en annen pågår allerede</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Serveren returnerte ugyldige øktdata</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Målets offentlige ECDH-nøkkel mangler</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>Utledning av ECDH-nøkkel mislyktes</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Kan ikke godta økten: en annen pågår allerede</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Transportfeil: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Kryptografifeil: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Krypteringsfeil: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Start ved pålogging</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Start Corvane automatisk når du logger på.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Start med Windows</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Start Corvane automatisk når du logger på Windows.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visning</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Nettverk</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avansert</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Programmets språk. Krever omstart for å tre i kraft.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Kvalitet: 24 FPS, skarpt bilde, høyere båndbredde.
Hastighet: 10 FPS, lavere båndbredde og CPU-bruk.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Optimaliser kvalitet</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Optimaliser hastighet</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Jevn bevegelse</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Jevnhet: 30 FPS, opptil 60 mens du arbeider; høyere båndbredde og CPU-bruk.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Velg hvilken skjerm som skal deles når noen kobler seg til denne enheten.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Skjerm %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, primær</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Synkroniser innholdet på utklippstavlen mellom den lokale og den eksterne datamaskinen.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Del utklippstavlen</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Språk:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Visningsmodus:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Delt skjerm:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Prøv automatisk å gjenopprette tilkoblingen etter et uventet brudd.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Koble til på nytt automatisk ved brudd</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Maksimalt antall tilkoblingsforsøk på rad før programmet gir opp.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Maks. antall tilkoblingsforsøk:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Installer CorvaneService.exe som en Windows-tjeneste som kjører ved oppstart,
også når ingen bruker er pålogget. Krever administratorrettigheter.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Kjør som Windows-tjeneste (uten tilsyn)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>La programmet kjøre i systemstatusfeltet når vinduet lukkes.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Minimer til systemstatusfeltet ved lukking</translation>
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
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Språket er endret</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Start programmet på nytt for å ta i bruk det nye språket.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Endringene tas i bruk...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Spør systemet...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Autentiseringen ble avvist av serveren</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>På nett (klar)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Kobler til på nytt...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Serveren er utilgjengelig – prøver igjen...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Frakoblet</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Starter økt...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Utveksler nøkler...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Oppretter transport...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Tilkoblet</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Kobler fra...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Økten mislyktes</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Ekstern tilgang</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Status: Frakoblet</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Innkommende tilkobling</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>Enheten %1 ber om en ekstern tilkobling.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Alle nedlastinger er fullført.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Alle opplastinger er fullført.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Laster opp %1 av %2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Lastet ned: %1 – %2 gjenstår</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Laster ned %1 av %2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Overføringsfremdrift</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% – %1/s, %2 igjen</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Oppdatering tilgjengelig: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Oppdater nå</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Oppdatering</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Installasjonsprogrammet kunne ikke startes.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Kan ikke skrive til den midlertidige mappen.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Den nedlastede filen er for liten – oppdateringen ble avbrutt.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Kunne ikke pakke ut installasjonsprogrammet fra ZIP-filen.</translation>
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
        <translation>Chat  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Skaleringsmodus  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Bytt skjerm</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Fullskjerm  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Koble fra  (Ctrl+Shift+D)</translation>
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
        <translation>Tilpass til vinduet</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Strekk til vinduet</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Opprinnelig størrelse</translation>
    </message>
    <message>
        <source>Monitor %1</source>
        <translation>Skjerm %1</translation>
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
        <translation>Skriv inn MAC-adressen til denne partneren (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Ugyldig MAC-adresse.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>Wake-on-LAN-pakken kunne ikke sendes.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Wake-on-LAN-pakken er sendt til %1</translation>
    </message>
</context>
</TS>
