<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Heslo musí mít alespoň 8 znaků.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>Heslo musí obsahovat alespoň jedno malé písmeno.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>Heslo musí obsahovat alespoň jedno velké písmeno.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>Heslo musí obsahovat alespoň jednu číslici.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Jednotka</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Soubor %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>Z&amp;výšit</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Snížit</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Vybrat vše</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Datum změny</translation>
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
        <translation>&amp;Zrušit</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Z&amp;avřít</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Zno&amp;vu</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Vyj&amp;mout</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>V&amp;ložit</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrat vše</translation>
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
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Posunout sem</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Levý okraj</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Začátek</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Pravý okraj</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>O stránku vlevo</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>O stránku nahoru</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>O stránku vpravo</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>O stránku dolů</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Posunout vlevo</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Posunout nahoru</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Posunout vpravo</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Posunout dolů</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Vybrat vše</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopírovat adresu &amp;odkazu</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Automatické přihlášení se nezdařilo</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Automatická registrace se nezdařila</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Relaci se nepodařilo vytvořit</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Potvrzení navázání spojení se nezdařilo</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Relaci se nepodařilo navázat</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Relaci se nepodařilo ukončit</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Změnit heslo relace</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Nové heslo (min. 8 znaků, velké + malé písmeno + číslice):</translation>
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
        <translation>Zprávy</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Napište zprávu…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Zpráva</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Odeslat</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Já</translation>
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
        <translation>PŘIPOJIT SE K PARTNEROVI</translation>
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
        <translation>Přidat k oblíbeným</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Připojit</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Odpojit</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Oblíbené</translation>
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
        <translation>Corvane - Připojit</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Přihlásit</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrovat</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Uživatelské jméno</translation>
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
        <translation>Heslo (min. 8 znaků)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Název zařízení:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Můj počítač</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Vyplňte prosím všechna pole.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Zadejte prosím uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Heslo musí mít alespoň 8 znaků.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Informace o připojení</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Relace</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>ID relace:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>ID partnera:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Role:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Řídicí (zobrazuje)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Cíl (sdílí)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Přenos:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Kvalita připojení</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Odezva:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Šířka pásma:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Odesláno:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Přijato:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Zahozené snímky:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Doba připojení:</translation>
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
        <translation>FPS: %1 | Odezva: %2 ms | Pásmo: %3 | Doba: %4</translation>
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
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Kopírovat ID</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Kopírovat heslo</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Změnit heslo</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nepřipojeno</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Správce souborů</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Stáhnout</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Stáhnout vybrané vzdálené soubory do tohoto počítače</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Nahrát</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Nahrát vybrané místní soubory do vzdáleného počítače</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Načítání vzdálené složky...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Položky: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Vyberte jeden nebo více vzdálených souborů ke stažení.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Nejsou vybrány žádné soubory (složky se přeskakují).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Tyto soubory již v tomto počítači existují a budou přepsány:
%1

Pokračovat?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Vyberte jeden nebo více místních souborů k nahrání.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Tyto soubory již ve vzdáleném počítači existují a budou přepsány:
%1

Pokračovat?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Přepsat?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Chyba: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>Relace byla ukončena.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>Požadavek se nepodařilo odeslat: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Stále probíhá jiné nahrávání: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Místní soubor nelze otevřít: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Vzdálený soubor se nepodařilo stáhnout</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Do místního souboru nelze zapisovat: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Připojení bylo během odesílání přerušeno: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Místní soubor nelze přečíst: %1</translation>
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
        <translation>Správa</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Kopírovat párovací kód</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Přidejte toto zařízení na %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>Na ploše Wayland partneři tuto obrazovku nevidí ani nemohou ovládat; chat a soubory fungují a k ostatním se připojit lze. Chcete-li obrazovku sdílet, přihlaste se do relace X11.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Není adresa HTTP ani HTTPS: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Server odesílá více než %1 bajtů.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Server tam nemá nic ke stažení.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Server přesměrovává příliš často.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Server přesměrovává na adresu, která není bezpečná: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Místní počítač&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Místní soubory</translation>
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
        <translation>Zadejte prosím ID partnera.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Připraveno. Vaše ID: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>ID partnera musí mít přesně 9 číslic.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Zadejte prosím heslo partnera.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>Zařízení %1 se chce připojit.
Účel: %2

Přijmout?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>vzdálený přístup</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Příchozí připojení</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Příchozí připojení od %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Relace se nezdařila.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Chyba relace</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Připojení se nezdařilo. Zkuste to prosím znovu.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Partner není dostupný nebo je offline.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Neplatné heslo relace.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Chyba připojení</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Aplikace byla minimalizována do oznamovací oblasti.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Vzdálená relace je aktivní – vaše obrazovka je sdílena.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Připojeno k %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Špatné</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Dobré</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Průměrné</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Připojení: Dobré</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>O složku výš</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Vzdálené soubory</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Vzdálený počítač&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Vzdálená složka: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Sdílení obrazovky se nepodařilo spustit.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Relaci nelze zahájit: jiná již probíhá</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Server vrátil neplatná data relace</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Chybí veřejný klíč ECDH cíle</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>Odvození klíče ECDH se nezdařilo</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Relaci nelze přijmout: jiná již probíhá</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Přenos selhal: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Kryptografická chyba: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Chyba šifrování: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Spustit při přihlášení</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Automaticky spustit Corvane při přihlášení.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Spustit s Windows</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Automaticky spustit Corvane při přihlášení do Windows.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Zobrazení</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Síť</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Upřesnit</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Jazyk aplikace. Projeví se až po restartu.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Výchozí nastavení systému</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Kvalita: 24 FPS, ostrý obraz, větší šířka pásma.
Rychlost: 10 FPS, menší šířka pásma a zatížení procesoru.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Optimalizovat kvalitu</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Optimalizovat rychlost</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Plynulý pohyb</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Plynulost: 30 FPS, při práci až 60; větší šířka pásma a zatížení procesoru.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Vyberte monitor, který se bude sdílet, když se někdo připojí k tomuto zařízení.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Monitor %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, hlavní</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Synchronizovat obsah schránky mezi místním a vzdáleným počítačem.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Povolit sdílení schránky</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Jazyk:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Režim zobrazení:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Sdílený monitor:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Po neočekávaném odpojení se automaticky pokusit obnovit připojení.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Po odpojení automaticky obnovit připojení</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Maximální počet po sobě jdoucích pokusů o obnovení připojení.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Max. počet pokusů o připojení:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Nainstalovat CorvaneService.exe jako službu systému Windows, která běží od startu počítače,
i když není přihlášen žádný uživatel. Vyžaduje oprávnění správce.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Spustit jako službu Windows (bezobslužně)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Po zavření okna ponechat aplikaci spuštěnou v oznamovací oblasti.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Při zavření minimalizovat do oznamovací oblasti</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Jazyk byl změněn</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Nový jazyk se použije po restartování aplikace.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Provádění změn...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Zjišťuje se stav systému...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Server odmítl ověření</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Připraveno</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>Online (připraveno)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Obnovování připojení...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Server není dostupný – probíhá nový pokus...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Odpojeno</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Zahajování relace...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Výměna klíčů...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Navazování přenosu...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Připojeno</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Odpojování...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Relace se nezdařila</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Vzdálený přístup</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zobrazit</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Stav: Odpojeno</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Odpojit</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Příchozí připojení</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>Zařízení %1 žádá o vzdálené připojení.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Všechny soubory byly staženy.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Všechny soubory byly nahrány.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Nahrávání %1 z %2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Staženo: %1 – zbývá %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Stahování %1 z %2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Průběh přenosu</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% – %1/s, zbývá %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Dostupná aktualizace: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Aktualizovat</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Aktualizace</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Instalační program se nepodařilo spustit.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Do dočasné složky nelze zapisovat.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Stažený soubor je příliš malý – aktualizace přerušena.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Instalační program se nepodařilo rozbalit z archivu ZIP.</translation>
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
        <translation>Informace  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>Soubory  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Chat  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Režim měřítka  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Přepnout monitor</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Celá obrazovka  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Odpojit  (Ctrl+Shift+D)</translation>
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
        <translation>Přizpůsobit oknu</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Roztáhnout na celé okno</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Původní velikost</translation>
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
        <translation>Zadejte adresu MAC tohoto partnera (XX:XX:XX:XX:XX:XX):</translation>
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
        <translation>Paket Wake-on-LAN se nepodařilo odeslat.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Paket Wake-on-LAN odeslán na %1</translation>
    </message>
</context>
</TS>
