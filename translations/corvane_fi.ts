<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Salasanassa on oltava vähintään 8 merkkiä.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>Salasanassa on oltava vähintään yksi pieni kirjain.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>Salasanassa on oltava vähintään yksi iso kirjain.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>Salasanassa on oltava vähintään yksi numero.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Kansio</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Asema</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>%1-tiedosto</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Suurenna</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Pienennä</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Valitse kaikki</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Koko</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tyyppi</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Muokattu</translation>
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
        <translation>&amp;Peruuta</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Sulje</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Kumoa</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Tee uudelleen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Leikkaa</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opioi</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>L&amp;iitä</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Valitse kaikki</translation>
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
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sulje</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Käytä</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Kyllä</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ei</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Vieritä tähän</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Vasen reuna</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Alkuun</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Oikea reuna</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Loppuun</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sivu vasemmalle</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Sivu ylös</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sivu oikealle</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Sivu alas</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Vieritä vasemmalle</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Vieritä ylös</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Vieritä oikealle</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Vieritä alas</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>K&amp;opioi</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Valitse kaikki</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopioi &amp;linkin osoite</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Automaattinen kirjautuminen epäonnistui</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Automaattinen rekisteröinti epäonnistui</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Istunnon luominen epäonnistui</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Kättelyn vahvistaminen epäonnistui</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Istunnon muodostaminen epäonnistui</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Istunnon sulkeminen epäonnistui</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Vaihda istunnon salasana</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Uusi salasana (väh. 8 merkkiä, iso + pieni kirjain + numero):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Virheellinen salasana</translation>
    </message>
</context>
<context>
    <name>corvane::ChatDialog</name>
    <message>
        <source>Chat</source>
        <translation>Keskustelu</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Viestit</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Kirjoita viesti…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Viesti</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Lähetä</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Minä</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Kumppani</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectCard</name>
    <message>
        <source>CONNECT TO PARTNER</source>
        <translation>YHDISTÄ KUMPPANIIN</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Salasana</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>Tunnus  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Lisää suosikkeihin</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Yhdistä</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Katkaise</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Suosikit</translation>
    </message>
    <message>
        <source>Partner ID</source>
        <translation>Kumppanin tunnus</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionDialog</name>
    <message>
        <source>Corvane - Connect</source>
        <translation>Corvane - Yhdistä</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Palvelin:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Kirjaudu</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Rekisteröidy</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Käyttäjänimi:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Käyttäjänimi</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Salasana:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Salasana</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Salasana (väh. 8 merkkiä)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Laitteen nimi:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Oma tietokone</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Virhe</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Täytä kaikki kentät.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Anna käyttäjänimi ja salasana.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Salasanassa on oltava vähintään 8 merkkiä.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Yhteyden tiedot</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Istunto</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>Istunnon tunnus:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>Kumppanin tunnus:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Rooli:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Ohjaaja (katselee)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Kohde (jakaa)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Siirtotapa:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Yhteyden laatu</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Viive:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Kaistanleveys:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Lähetetty:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Vastaanotettu:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Pudotetut kuvat:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Kesto:</translation>
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
        <translation>FPS: %1 | Viive: %2 ms | Kaista: %3 | Kesto: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>OMA TUNNUS</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>SALASANA</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Yhdistetään...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Kopioi tunnus</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Kopioi salasana</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Vaihda salasana</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ei yhteyttä</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Tiedostonhallinta</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Lataa</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Lataa valitut etätiedostot tähän tietokoneeseen</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Lähetä</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Lähetä valitut paikalliset tiedostot etätietokoneeseen</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Ladataan etäkansiota...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Kohteita: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Valitse vähintään yksi ladattava etätiedosto.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Tiedostoja ei ole valittu (kansiot ohitetaan).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Nämä tiedostot ovat jo tällä tietokoneella, ja ne korvataan:
%1

Jatketaanko?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Valitse vähintään yksi lähetettävä paikallinen tiedosto.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Nämä tiedostot ovat jo etätietokoneella, ja ne korvataan:
%1

Jatketaanko?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Korvataanko?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Virhe: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>Istunto on päättynyt.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>Pyyntöä ei voitu lähettää: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Toinen lähetys on vielä kesken: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Paikallista tiedostoa ei voi avata: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Etätiedoston lataaminen epäonnistui</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Paikalliseen tiedostoon ei voi kirjoittaa: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Yhteys katkesi lähetyksen aikana: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Paikallista tiedostoa ei voi lukea: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>PARILIITOSKOODI</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Hallintapaneeli</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Kopioi pariliitoskoodi</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Lisää tämä laite osoitteessa %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>Wayland-työpöydällä kumppanit eivät voi nähdä eivätkä ohjata tätä näyttöä; keskustelu ja tiedostot toimivat, samoin yhteyden ottaminen muihin. Jos haluat jakaa näytön, kirjaudu X11-istuntoon.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Ei ole HTTP- tai HTTPS-osoite: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Palvelin lähettää yli %1 tavua.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Palvelimella ei ole siellä mitään ladattavaa.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Palvelin ohjaa uudelleen liian monta kertaa.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Palvelin ohjaa osoitteeseen, joka ei ole turvallinen: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Paikallinen tietokone&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Paikalliset tiedostot</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Virhe</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Anna kumppanin tunnus.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Valmis. Oma tunnus: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>Kumppanin tunnuksessa on oltava tasan 9 numeroa.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Anna kumppanin salasana.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>Laite %1 haluaa muodostaa yhteyden.
Tarkoitus: %2

Hyväksytäänkö?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>etäkäyttö</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Saapuva yhteys</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Saapuva yhteys: %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Istunto epäonnistui.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Istuntovirhe</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Yhdistäminen epäonnistui. Yritä uudelleen.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Kumppani ei ole tavoitettavissa tai on offline-tilassa.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Virheellinen istunnon salasana.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Yhteysvirhe</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Sovellus pienennettiin ilmaisinalueelle.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Etäistunto käynnissä – näyttösi jaetaan.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Yhdistetty: %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Huono</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Hyvä</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Kohtalainen</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Yhteys: Hyvä</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Kansio</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Siirry yläkansioon</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Etätiedostot</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nimi</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Koko</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tyyppi</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Etätietokone&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Etäkansio: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Näytön jakamista ei voitu aloittaa.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Istuntoa ei voi aloittaa: toinen on jo käynnissä</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Palvelin palautti virheelliset istuntotiedot</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Kohteen julkinen ECDH-avain puuttuu</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>ECDH-avaimen johtaminen epäonnistui</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Istuntoa ei voi hyväksyä: toinen on jo käynnissä</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Siirtoyhteys epäonnistui: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Kryptografiavirhe: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Salausvirhe: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Käynnistä kirjauduttaessa</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Käynnistä Corvane automaattisesti, kun kirjaudut sisään.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Käynnistä Windowsin mukana</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Käynnistä Corvane automaattisesti, kun kirjaudut Windowsiin.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Näyttö</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Verkko</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Lisäasetukset</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Sovelluksen kieli. Vaatii uudelleenkäynnistyksen.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Järjestelmän oletus</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Laatu: 24 FPS, terävä kuva, suurempi kaistanleveys.
Nopeus: 10 FPS, pienempi kaistanleveys ja suorittimen käyttö.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Optimoi laatu</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Optimoi nopeus</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Sulava liike</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Sulavuus: 30 FPS, työskennellessä jopa 60; suurempi kaistanleveys ja suorittimen käyttö.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Valitse näyttö, joka jaetaan, kun joku muodostaa yhteyden tähän laitteeseen.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Näyttö %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, ensisijainen</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Synkronoi leikepöydän sisältö paikallisen ja etätietokoneen välillä.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Jaa leikepöytä</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Kieli:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Näyttötila:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Jaettava näyttö:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Yritä automaattisesti palauttaa yhteys odottamattoman katkoksen jälkeen.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Yhdistä automaattisesti uudelleen katkoksen jälkeen</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Peräkkäisten yhdistämisyritysten enimmäismäärä ennen luovuttamista.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Yhdistämisyrityksiä enintään:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Asenna CorvaneService.exe Windows-palveluksi, joka toimii käynnistyksestä alkaen,
vaikka kukaan ei olisi kirjautunut sisään. Vaatii järjestelmänvalvojan oikeudet.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Suorita Windows-palveluna (valvomaton)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Pidä sovellus käynnissä ilmaisinalueella, kun ikkuna suljetaan.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Pienennä ilmaisinalueelle suljettaessa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Käytä</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Kieli vaihdettu</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Ota uusi kieli käyttöön käynnistämällä sovellus uudelleen.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Otetaan käyttöön...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Kysytään järjestelmältä...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Palvelin hylkäsi todennuksen</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Valmis</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>Verkossa (valmis)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Yhdistetään uudelleen...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Palvelin ei vastaa – yritetään uudelleen...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Yhteys katkaistu</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Aloitetaan istuntoa...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Vaihdetaan avaimia...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Muodostetaan siirtoyhteyttä...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Yhdistetty</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Katkaistaan yhteyttä...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Istunto epäonnistui</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Etäkäyttö</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Näytä</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Tila: Yhteys katkaistu</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Katkaise</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Lopeta</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Saapuva yhteys</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>Laite %1 pyytää etäyhteyttä.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Kaikki lataukset ovat valmiita.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Kaikki lähetykset ovat valmiita.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Lähetetään %1/%2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Ladattu: %1 – jäljellä %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Ladataan %1/%2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Siirron edistyminen</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% – %1/s, jäljellä %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Päivitys saatavilla: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Ladataan...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Päivitä nyt</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Päivitys</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Asennusohjelmaa ei voitu käynnistää.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Väliaikaiskansioon ei voi kirjoittaa.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Ladattu tiedosto on liian pieni – päivitys keskeytettiin.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Asennusohjelman purkaminen ZIP-tiedostosta epäonnistui.</translation>
    </message>
</context>
<context>
    <name>corvane::ValueFormats</name>
    <message>
        <source>%1 B</source>
        <translation>%1 t</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 kt</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mt</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Gt</translation>
    </message>
</context>
<context>
    <name>corvane::ViewerToolBar</name>
    <message>
        <source>Info  (Ctrl+Shift+I)</source>
        <translation>Tiedot  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>Tiedostot  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Keskustelu  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Skaalaustila  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Vaihda näyttöä</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Koko näyttö  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Katkaise yhteys  (Ctrl+Shift+D)</translation>
    </message>
    <message>
        <source>Chat (!)</source>
        <translation>Keskustelu (!)</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Keskustelu</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Sovita ikkunaan</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Venytä ikkunan kokoiseksi</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Alkuperäinen koko</translation>
    </message>
    <message>
        <source>Monitor %1</source>
        <translation>Näyttö %1</translation>
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
        <translation>Anna tämän kumppanin MAC-osoite (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Virheellinen MAC-osoite.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>Wake-on-LAN-pakettia ei voitu lähettää.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Wake-on-LAN-paketti lähetetty: %1</translation>
    </message>
</context>
</TS>
