<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sk">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Heslo musí mať aspoň 8 znakov.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>Heslo musí obsahovať aspoň jedno malé písmeno.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>Heslo musí obsahovať aspoň jedno veľké písmeno.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>Heslo musí obsahovať aspoň jednu číslicu.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Priečinok</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Súbor %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Súbor</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>Z&amp;výšiť</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Znížiť</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Vybrať všetko</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Názov</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Veľkosť</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Dátum zmeny</translation>
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
        <translation>&amp;Zrušiť</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Z&amp;avrieť</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Späť</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Znova</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Vys&amp;trihnúť</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovať</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Prilepiť</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstrániť</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrať všetko</translation>
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
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavrieť</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použiť</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>Án&amp;o</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Posunúť sem</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Ľavý okraj</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Začiatok</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Pravý okraj</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>O stranu doľava</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>O stranu nahor</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>O stranu doprava</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>O stranu nadol</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Posunúť doľava</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Posunúť nahor</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Posunúť doprava</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Posunúť nadol</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovať</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrať všetko</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopírovať adresu &amp;odkazu</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Automatické prihlásenie zlyhalo</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Automatická registrácia zlyhala</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Reláciu sa nepodarilo vytvoriť</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Potvrdenie nadviazania spojenia zlyhalo</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Reláciu sa nepodarilo nadviazať</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Reláciu sa nepodarilo ukončiť</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Zmeniť heslo relácie</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Nové heslo (min. 8 znakov, veľké + malé písmeno + číslica):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Neplatné heslo</translation>
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
        <translation>Správy</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Napíšte správu…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Správa</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Odoslať</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Ja</translation>
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
        <translation>PRIPOJIŤ SA K PARTNEROVI</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>ID partnera  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Pridať k obľúbeným</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Pripojiť</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Odpojiť</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Obľúbené</translation>
    </message>
    <message>
        <source>Partner ID</source>
        <translation>ID partnera</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionDialog</name>
    <message>
        <source>Corvane - Connect</source>
        <translation>Corvane - Pripojiť</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Prihlásiť sa</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrovať sa</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Používateľské meno:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Používateľské meno</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Heslo (min. 8 znakov)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Názov zariadenia:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Môj počítač</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Vyplňte všetky polia.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Zadajte používateľské meno a heslo.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Heslo musí mať aspoň 8 znakov.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Informácie o pripojení</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Relácia</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>ID relácie:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>ID partnera:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Rola:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Riadiaci (zobrazuje)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Cieľ (zdieľa)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Prenos:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Kvalita pripojenia</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Odozva:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Šírka pásma:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Odoslané:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Prijaté:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Zahodené snímky:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Čas pripojenia:</translation>
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
        <translation>FPS: %1 | Odozva: %2 ms | Pásmo: %3 | Čas: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>VAŠE ID</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>HESLO</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Pripájanie...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Kopírovať ID</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Kopírovať heslo</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Zmeniť heslo</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nepripojené</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Správca súborov</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Stiahnuť</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Stiahnuť vybrané vzdialené súbory do tohto počítača</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Nahrať</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Nahrať vybrané miestne súbory do vzdialeného počítača</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Načítava sa vzdialený priečinok...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Položky: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Vyberte jeden alebo viac vzdialených súborov na stiahnutie.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Nie sú vybrané žiadne súbory (priečinky sa preskakujú).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Tieto súbory už v tomto počítači existujú a budú prepísané:
%1

Pokračovať?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Vyberte jeden alebo viac miestnych súborov na nahratie.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Tieto súbory už vo vzdialenom počítači existujú a budú prepísané:
%1

Pokračovať?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Prepísať?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Chyba: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>Relácia bola ukončená.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>Požiadavku sa nepodarilo odoslať: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Stále prebieha iné nahrávanie: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Miestny súbor sa nedá otvoriť: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Vzdialený súbor sa nepodarilo stiahnuť</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Do miestneho súboru sa nedá zapisovať: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Pripojenie sa počas odosielania prerušilo: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Miestny súbor sa nedá prečítať: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>PÁROVACÍ KÓD</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Správa zariadení</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Kopírovať párovací kód</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Pridajte toto zariadenie na %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>Na ploche Wayland partneri túto obrazovku nevidia ani nemôžu ovládať; chat a súbory fungujú a k ostatným sa pripojiť dá. Ak chcete obrazovku zdieľať, prihláste sa do relácie X11.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Nie je adresa HTTP ani HTTPS: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Server odosiela viac ako %1 bajtov.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Server tam nemá nič na stiahnutie.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Server presmerúva príliš často.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Server presmerúva na adresu, ktorá nie je bezpečná: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Miestny počítač&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Miestne súbory</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Zadajte ID partnera.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Pripravené. Vaše ID: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>ID partnera musí mať presne 9 číslic.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Zadajte heslo partnera.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>Zariadenie %1 sa chce pripojiť.
Účel: %2

Prijať?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>vzdialený prístup</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Prichádzajúce pripojenie</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Prichádzajúce pripojenie od %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Relácia zlyhala.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Chyba relácie</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Pripojenie zlyhalo. Skúste to znova.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Partner nie je dostupný alebo je offline.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Neplatné heslo relácie.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Chyba pripojenia</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Aplikácia bola minimalizovaná do oblasti oznámení.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Vzdialená relácia je aktívna – vaša obrazovka sa zdieľa.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Pripojené k %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Zlé</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Dobré</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Priemerné</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Pripojenie: Dobré</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Priečinok</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Súbor</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>O priečinok vyššie</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Vzdialené súbory</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Názov</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Veľkosť</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Vzdialený počítač&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Vzdialený priečinok: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Zdieľanie obrazovky sa nepodarilo spustiť.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Reláciu nemožno spustiť: iná už prebieha</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Server vrátil neplatné údaje relácie</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Chýba verejný kľúč ECDH cieľa</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>Odvodenie kľúča ECDH zlyhalo</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Reláciu nemožno prijať: iná už prebieha</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Prenos zlyhal: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Kryptografická chyba: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Chyba šifrovania: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Spustiť pri prihlásení</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Automaticky spustiť Corvane pri prihlásení.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Spustiť s Windows</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Automaticky spustiť Corvane pri prihlásení do Windows.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavenia</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zobrazenie</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieť</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Rozšírené</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Jazyk aplikácie. Prejaví sa až po reštarte.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predvolené nastavenie systému</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Kvalita: 24 FPS, ostrý obraz, väčšia šírka pásma.
Rýchlosť: 10 FPS, menšia šírka pásma a zaťaženie procesora.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Optimalizovať kvalitu</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Optimalizovať rýchlosť</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Plynulý pohyb</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Plynulosť: 30 FPS, pri práci až 60; väčšia šírka pásma a zaťaženie procesora.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Vyberte monitor, ktorý sa bude zdieľať, keď sa niekto pripojí k tomuto zariadeniu.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Monitor %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, hlavný</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Synchronizovať obsah schránky medzi miestnym a vzdialeným počítačom.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Povoliť zdieľanie schránky</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Jazyk:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Režim zobrazenia:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Zdieľaný monitor:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Po neočakávanom odpojení sa automaticky pokúsiť obnoviť pripojenie.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Po odpojení automaticky obnoviť pripojenie</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Maximálny počet po sebe idúcich pokusov o obnovenie pripojenia.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Max. počet pokusov o pripojenie:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Nainštalovať CorvaneService.exe ako službu systému Windows, ktorá beží od štartu počítača,
aj keď nie je prihlásený žiadny používateľ. Vyžaduje oprávnenia správcu.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Spustiť ako službu Windows (bez obsluhy)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Po zatvorení okna ponechať aplikáciu spustenú v oblasti oznámení.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Pri zatvorení minimalizovať do oblasti oznámení</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušiť</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použiť</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Jazyk bol zmenený</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Nový jazyk sa použije po reštartovaní aplikácie.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Vykonávajú sa zmeny...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Zisťuje sa stav systému...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Server odmietol overenie</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Pripravené</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>Online (pripravené)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Obnovuje sa pripojenie...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Server nie je dostupný – prebieha nový pokus...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Odpojené</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Spúšťa sa relácia...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Vymieňajú sa kľúče...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Nadväzuje sa prenos...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Pripojené</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Odpája sa...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Relácia zlyhala</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Vzdialený prístup</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zobraziť</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Stav: Odpojené</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Odpojiť</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončiť</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Prichádzajúce pripojenie</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>Zariadenie %1 žiada o vzdialené pripojenie.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Všetky súbory boli stiahnuté.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Všetky súbory boli nahrané.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Nahráva sa %1 z %2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Stiahnuté: %1 – zostáva %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Sťahuje sa %1 z %2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Priebeh prenosu</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% – %1/s, zostáva %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Dostupná aktualizácia: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Sťahuje sa...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Aktualizovať</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Aktualizácia</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Inštalačný program sa nepodarilo spustiť.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Do dočasného priečinka sa nedá zapisovať.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Stiahnutý súbor je príliš malý – aktualizácia prerušená.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Inštalačný program sa nepodarilo rozbaliť z archívu ZIP.</translation>
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
        <translation>Informácie  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>Súbory  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Chat  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Režim mierky  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Prepnúť monitor</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Celá obrazovka  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Odpojiť  (Ctrl+Shift+D)</translation>
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
        <translation>Prispôsobiť oknu</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Roztiahnuť na celé okno</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Pôvodná veľkosť</translation>
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
        <translation>Zadajte adresu MAC tohto partnera (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Neplatná adresa MAC.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>Paket Wake-on-LAN sa nepodarilo odoslať.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Paket Wake-on-LAN odoslaný na %1</translation>
    </message>
</context>
</TS>
