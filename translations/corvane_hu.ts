<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>A jelszónak legalább 8 karakterből kell állnia.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>A jelszónak legalább egy kisbetűt tartalmaznia kell.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>A jelszónak legalább egy nagybetűt tartalmaznia kell.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>A jelszónak legalább egy számjegyet tartalmaznia kell.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Meghajtó</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1 fájl</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Növelés</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Csökkentés</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>Az összes &amp;kijelölése</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Módosítás dátuma</translation>
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
        <translation>&amp;Mégse</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Bezárás</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Visszavonás</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>I&amp;smét</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Kivágás</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Másolás</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Beillesztés</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Összes kijelölése</translation>
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
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Igen</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nem</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Görgetés ide</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bal szél</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Teteje</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Jobb szél</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Alja</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Lapozás balra</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Lapozás felfelé</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Lapozás jobbra</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Lapozás lefelé</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Görgetés balra</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Görgetés felfelé</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Görgetés jobbra</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Görgetés lefelé</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Másolás</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Összes kijelölése</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>&amp;Hivatkozás címének másolása</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Az automatikus bejelentkezés sikertelen</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Az automatikus regisztráció sikertelen</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>A munkamenet létrehozása sikertelen</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>A kézfogás megerősítése sikertelen</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>A munkamenet felépítése sikertelen</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>A munkamenet lezárása sikertelen</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Munkamenet jelszavának módosítása</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Új jelszó (min. 8 karakter, nagybetű + kisbetű + számjegy):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Érvénytelen jelszó</translation>
    </message>
</context>
<context>
    <name>corvane::ChatDialog</name>
    <message>
        <source>Chat</source>
        <translation>Csevegés</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Üzenetek</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Írjon üzenetet…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Üzenet</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Küldés</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Én</translation>
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
        <translation>CSATLAKOZÁS PARTNERHEZ</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>Azonosító  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Hozzáadás a kedvencekhez</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Csatlakozás</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Bontás</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Kedvencek</translation>
    </message>
    <message>
        <source>Partner ID</source>
        <translation>Partnerazonosító</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionDialog</name>
    <message>
        <source>Corvane - Connect</source>
        <translation>Corvane - Csatlakozás</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Kiszolgáló:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Bejelentkezés</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Regisztráció</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Felhasználónév:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Jelszó:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Jelszó (min. 8 karakter)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Eszköz neve:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Saját gép</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Töltsön ki minden mezőt.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Adja meg a felhasználónevet és a jelszót.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>A jelszónak legalább 8 karakterből kell állnia.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Kapcsolat adatai</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Munkamenet</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>Munkamenet-azonosító:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>Partnerazonosító:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Szerep:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Vezérlő (megtekintés)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Cél (megosztás)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Átvitel:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Kapcsolat minősége</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Késleltetés:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Sávszélesség:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Elküldve:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Fogadva:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Eldobott képkockák:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Időtartam:</translation>
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
        <translation>FPS: %1 | Késl.: %2 ms | Sávszél.: %3 | Idő: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>SAJÁT AZONOSÍTÓ</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>JELSZÓ</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Csatlakozás...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Azonosító másolása</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Jelszó másolása</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Jelszó módosítása</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nincs kapcsolat</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Fájlkezelő</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>A kijelölt távoli fájlok letöltése erre a számítógépre</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Feltöltés</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>A kijelölt helyi fájlok feltöltése a távoli számítógépre</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Távoli mappa betöltése...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Jelöljön ki egy vagy több letöltendő távoli fájlt.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Nincs kijelölt fájl (a mappák kimaradnak).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Ezek a fájlok már léteznek ezen a számítógépen, és felül lesznek írva:
%1

Folytatja?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Jelöljön ki egy vagy több feltöltendő helyi fájlt.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Ezek a fájlok már léteznek a távoli számítógépen, és felül lesznek írva:
%1

Folytatja?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Felülírja?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Hiba: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>A munkamenet véget ért.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>A kérést nem sikerült elküldeni: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Még folyamatban van egy másik feltöltés: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>A helyi fájl nem nyitható meg: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>A távoli fájl letöltése sikertelen</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>A helyi fájl nem írható: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>A kapcsolat megszakadt küldés közben: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>A helyi fájl nem olvasható: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>PÁROSÍTÓ KÓD</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Adminisztráció</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Párosító kód másolása</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Az eszköz hozzáadása itt: %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>Wayland asztalon a partnerek nem láthatják és nem vezérelhetik ezt a képernyőt; a csevegés és a fájlok működnek, és a csatlakozás másokhoz is. A képernyő megosztásához jelentkezzen be egy X11-munkamenetbe.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Nem HTTP- vagy HTTPS-cím: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>A kiszolgáló több mint %1 bájtot küld.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>A kiszolgálón ott nincs mit letölteni.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>A kiszolgáló túl sokszor irányít át.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>A kiszolgáló nem biztonságos címre irányít át: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Helyi számítógép&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Helyi fájlok</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Adjon meg egy partnerazonosítót.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Készen áll. Saját azonosító: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>A partnerazonosítónak pontosan 9 számjegyből kell állnia.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Adja meg a partner jelszavát.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>A(z) %1 eszköz csatlakozni szeretne.
Cél: %2

Elfogadja?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>távoli hozzáférés</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Bejövő kapcsolat</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Bejövő kapcsolat: %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>A munkamenet sikertelen.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Munkamenethiba</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>A csatlakozás sikertelen. Próbálja újra.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>A partner nem elérhető vagy offline.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Érvénytelen munkamenet-jelszó.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Kapcsolódási hiba</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Az alkalmazás az értesítési területre került.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Távoli munkamenet aktív – a képernyője meg van osztva.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Csatlakozva: %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Gyenge</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Jó</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Közepes</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Kapcsolat: Jó</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Egy mappával feljebb</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Távoli fájlok</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Távoli számítógép&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Távoli mappa: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>A képernyőmegosztást nem sikerült elindítani.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>A munkamenet nem indítható: már folyamatban van egy másik</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>A kiszolgáló érvénytelen munkamenet-adatokat küldött</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Hiányzik a cél nyilvános ECDH-kulcsa</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>Az ECDH-kulcs származtatása sikertelen</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>A munkamenet nem fogadható: már folyamatban van egy másik</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Átviteli hiba: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Kriptográfiai hiba: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Titkosítási hiba: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Indítás bejelentkezéskor</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>A Corvane automatikus indítása bejelentkezéskor.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Indítás a Windows rendszerrel</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>A Corvane automatikus indítása a Windowsba való bejelentkezéskor.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Megjelenítés</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Hálózat</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Speciális</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Az alkalmazás nyelve. Újraindítás után lép érvénybe.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Minőség: 24 FPS, éles kép, nagyobb sávszélesség.
Sebesség: 10 FPS, kisebb sávszélesség és processzorterhelés.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Minőség optimalizálása</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Sebesség optimalizálása</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Folyamatos mozgás</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Folyamatosság: 30 FPS, munka közben akár 60; nagyobb sávszélesség és processzorterhelés.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Válassza ki, melyik monitort ossza meg, amikor valaki ehhez az eszközhöz csatlakozik.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>%1. monitor: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, elsődleges</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>A vágólap tartalmának szinkronizálása a helyi és a távoli számítógép között.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Vágólap megosztása</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Nyelv:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Megjelenítési mód:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Megosztott monitor:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Váratlan megszakadás után automatikus kísérlet a kapcsolat helyreállítására.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Automatikus újracsatlakozás megszakadáskor</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Az egymást követő újracsatlakozási kísérletek legnagyobb száma.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Újracsatlakozási kísérletek max.:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>A CorvaneService.exe telepítése Windows-szolgáltatásként, amely a rendszerindítástól fut,
akkor is, ha nincs bejelentkezett felhasználó. Rendszergazdai jogosultság szükséges.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Futtatás Windows-szolgáltatásként (felügyelet nélkül)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Az ablak bezárása után az alkalmazás az értesítési területen fut tovább.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Bezáráskor az értesítési területre kerül</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>A nyelv megváltozott</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Az új nyelv alkalmazásához indítsa újra az alkalmazást.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Alkalmazás...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Rendszer lekérdezése...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>A kiszolgáló elutasította a hitelesítést</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Készen áll</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>Online (készen áll)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Újracsatlakozás...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>A kiszolgáló nem érhető el – újrapróbálkozás...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Kapcsolat bontva</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Munkamenet indítása...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Kulcsok cseréje...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Átvitel létrehozása...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Csatlakozva</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Kapcsolat bontása...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>A munkamenet sikertelen</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Távoli hozzáférés</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Megjelenítés</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Állapot: Kapcsolat bontva</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Bontás</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Bejövő kapcsolat</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>A(z) %1 eszköz távoli kapcsolatot kér.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Minden letöltés befejeződött.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Minden feltöltés befejeződött.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Feltöltés %1/%2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Letöltve: %1 – hátravan: %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Letöltés %1/%2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Átvitel állapota</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% – %1/s, hátravan: %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Elérhető frissítés: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Frissítés most</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>A telepítőt nem sikerült elindítani.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Az ideiglenes mappa nem írható.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>A letöltött fájl túl kicsi – a frissítés megszakadt.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>A telepítőt nem sikerült kicsomagolni a ZIP-fájlból.</translation>
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
        <translation>Információ  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>Fájlok  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Csevegés  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Méretezési mód  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Monitorváltás</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Teljes képernyő  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Kapcsolat bontása  (Ctrl+Shift+D)</translation>
    </message>
    <message>
        <source>Chat (!)</source>
        <translation>Csevegés (!)</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Csevegés</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Ablakhoz igazítás</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Nyújtás az ablak méretére</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Eredeti méret</translation>
    </message>
    <message>
        <source>Monitor %1</source>
        <translation>%1. monitor</translation>
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
        <translation>Adja meg ennek a partnernek a MAC-címét (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Érvénytelen MAC-cím.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>A Wake-on-LAN csomagot nem sikerült elküldeni.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Wake-on-LAN csomag elküldve ide: %1</translation>
    </message>
</context>
</TS>
