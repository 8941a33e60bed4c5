<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>La password deve contenere almeno 8 caratteri.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>La password deve contenere almeno una lettera minuscola.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>La password deve contenere almeno una lettera maiuscola.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>La password deve contenere almeno una cifra.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unità</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>File %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumenta</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuisci</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleziona tutto</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ultima modifica</translation>
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
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Taglia</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Incolla</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Scorri fin qui</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bordo sinistro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bordo destro</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Pagina a sinistra</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Pagina in su</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Pagina a destra</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Pagina in giù</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Scorri a sinistra</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scorri in su</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Scorri a destra</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scorri in giù</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copia l&apos;indirizzo del co&amp;llegamento</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Accesso automatico non riuscito</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Registrazione automatica non riuscita</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Creazione della sessione non riuscita</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Conferma dell&apos;handshake non riuscita</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Avvio della sessione non completato</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Chiusura della sessione non riuscita</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Cambia password di sessione</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Nuova password (min. 8 caratteri, maiuscola + minuscola + cifra):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Password non valida</translation>
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
        <translation>Messaggi</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Scrivi un messaggio…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Messaggio</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Invia</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Io</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Interlocutore</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectCard</name>
    <message>
        <source>CONNECT TO PARTNER</source>
        <translation>CONNESSIONE A UN COMPUTER REMOTO</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>ID remoto  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Aggiungi ai preferiti</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>Partner ID</source>
        <translation>ID remoto</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionDialog</name>
    <message>
        <source>Corvane - Connect</source>
        <translation>Corvane - Connetti</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Server:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrati</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Password (min. 8 caratteri)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Nome dispositivo:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Il mio PC</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Compila tutti i campi.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Inserisci nome utente e password.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>La password deve contenere almeno 8 caratteri.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Informazioni sulla connessione</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sessione</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>ID sessione:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>ID remoto:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Ruolo:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Master (visualizzazione)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Destinazione (condivisione)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Trasporto:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Qualità della connessione</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Latenza:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Larghezza di banda:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Inviati:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Ricevuti:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Fotogrammi persi:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Durata:</translation>
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
        <translation>FPS: %1 | Latenza: %2 ms | Banda: %3 | Durata: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>IL TUO ID</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>PASSWORD</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Copia ID</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Copia password</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Cambia password</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Gestione file</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Scarica i file remoti selezionati su questo computer</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Carica</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Carica i file locali selezionati sul computer remoto</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Caricamento della cartella remota...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Seleziona uno o più file remoti da scaricare.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Nessun file selezionato (le cartelle vengono ignorate).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Questi file esistono già su questo computer e verranno sovrascritti:
%1

Continuare?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Seleziona uno o più file locali da caricare.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Questi file esistono già sul computer remoto e verranno sovrascritti:
%1

Continuare?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Sovrascrivere?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Errore: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>La sessione è terminata.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>Impossibile inviare la richiesta: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Un altro caricamento è ancora in corso: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Impossibile aprire il file locale: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Download del file remoto non riuscito</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Impossibile scrivere il file locale: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Connessione interrotta durante l&apos;invio: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Impossibile leggere il file locale: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>CODICE DI ASSOCIAZIONE</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Pannello di amministrazione</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Copia codice di associazione</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Aggiungi questo dispositivo su %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>Su un desktop Wayland gli interlocutori non possono né vedere né controllare questo schermo; la chat e i file funzionano, così come la connessione ad altri. Per condividere lo schermo, accedere a una sessione X11.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Non è un indirizzo HTTP o HTTPS: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Il server invia più di %1 byte.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Il server non ha nulla da scaricare a questo indirizzo.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Il server reindirizza troppe volte.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Il server reindirizza a un indirizzo non sicuro: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Computer locale&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>File locali</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Inserisci un ID remoto.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Pronto. Il tuo ID: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>L&apos;ID remoto deve essere composto esattamente da 9 cifre.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Inserisci la password del computer remoto.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>Il dispositivo %1 vuole connettersi.
Motivo: %2

Accettare?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>accesso remoto</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Connessione in entrata</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Connessione in entrata da %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Sessione non riuscita.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Errore di sessione</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Connessione non riuscita. Riprova.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Il computer remoto non è disponibile o è offline.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Password di sessione non valida.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Errore di connessione</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Applicazione ridotta a icona nell&apos;area di notifica.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Sessione remota attiva — lo schermo è condiviso.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Connesso a %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Scarsa</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buona</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Discreta</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Connessione: Buona</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Cartella superiore</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>File remoti</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Computer remoto&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Remoto: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Impossibile avviare la cattura dello schermo.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Impossibile avviare la sessione: un&apos;altra è già in corso</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Il server ha restituito dati di sessione non validi</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Chiave pubblica ECDH della destinazione mancante</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>Derivazione della chiave ECDH non riuscita</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Impossibile accettare la sessione: un&apos;altra è già in corso</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Trasporto non riuscito: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Errore crittografico: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Errore di cifratura: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Avvia all&apos;accesso</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Avvia automaticamente Corvane quando accedi al sistema.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Avvia con Windows</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Avvia automaticamente Corvane quando accedi a Windows.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Schermo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rete</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Lingua dell&apos;applicazione. Per applicarla occorre un riavvio.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predefinita del sistema</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Qualità: 24 FPS, immagine nitida, più larghezza di banda.
Velocità: 10 FPS, meno larghezza di banda e uso della CPU.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Ottimizza qualità</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Ottimizza velocità</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Movimento fluido</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Fluidità: 30 FPS, fino a 60 durante il lavoro; più larghezza di banda e uso della CPU.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Scegli il monitor da condividere quando qualcuno si connette a questo dispositivo.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Monitor %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, principale</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Sincronizza il contenuto degli appunti tra il computer locale e quello remoto.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Condividi gli appunti</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Modalità schermo:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Monitor condiviso:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Tenta automaticamente di ristabilire la connessione dopo un&apos;interruzione imprevista.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Riconnetti automaticamente in caso di interruzione</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Numero massimo di tentativi di riconnessione consecutivi prima di rinunciare.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Tentativi di riconnessione max.:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Installa CorvaneService.exe come servizio di Windows eseguito all&apos;avvio,
anche se nessun utente ha effettuato l&apos;accesso. Richiede privilegi di amministratore.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Esegui come servizio di Windows (non presidiato)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Mantieni l&apos;applicazione attiva nell&apos;area di notifica quando la finestra viene chiusa.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Riduci nell&apos;area di notifica alla chiusura</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Lingua modificata</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Riavvia l&apos;applicazione per applicare la nuova lingua.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Applicazione in corso...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Interrogazione del sistema...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Autenticazione rifiutata dal server</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>Online (pronto)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Riconnessione...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Server non disponibile — nuovo tentativo...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Disconnesso</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Avvio della sessione...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Scambio delle chiavi...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Attivazione del trasporto...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Disconnessione...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Sessione non riuscita</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Accesso remoto</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Stato: Disconnesso</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Connessione in entrata</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>Il dispositivo %1 richiede una connessione remota.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Tutti i download sono stati completati.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Tutti i caricamenti sono stati completati.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Caricamento %1 di %2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Scaricato: %1 — rimanenti: %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Download %1 di %2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Avanzamento del trasferimento</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% — %1/s, ancora %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Aggiornamento disponibile: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Aggiorna ora</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Impossibile avviare il programma di installazione.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Impossibile scrivere nella cartella temporanea.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Il file scaricato è troppo piccolo — aggiornamento annullato.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Impossibile estrarre il programma di installazione dal file ZIP.</translation>
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
        <translation>Informazioni  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>File  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Chat  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Ridimensionamento  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Cambia monitor</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Schermo intero  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Disconnetti  (Ctrl+Shift+D)</translation>
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
        <translation>Adatta alla finestra</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Estendi a tutta la finestra</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Dimensioni originali</translation>
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
        <translation>Inserisci l&apos;indirizzo MAC di questo computer remoto (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Indirizzo MAC non valido.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>Impossibile inviare il pacchetto Wake-on-LAN.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Pacchetto Wake-on-LAN inviato a %1</translation>
    </message>
</context>
</TS>
