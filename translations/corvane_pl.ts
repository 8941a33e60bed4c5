<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Hasło musi mieć co najmniej 8 znaków.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>Hasło musi zawierać co najmniej jedną małą literę.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>Hasło musi zawierać co najmniej jedną wielką literę.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>Hasło musi zawierać co najmniej jedną cyfrę.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Plik %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>Z&amp;większ</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Z&amp;mniejsz</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>Zaznacz &amp;wszystko</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data modyfikacji</translation>
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
        <translation>&amp;Anuluj</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Zamknij</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Wy&amp;tnij</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Wklej</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
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
        <translation>Przewiń tutaj</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Lewa krawędź</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Prawa krawędź</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Strona w lewo</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Strona w górę</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Strona w prawo</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Strona w dół</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Przewiń w lewo</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Przewiń w górę</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Przewiń w prawo</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Przewiń w dół</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Kopiuj adres &amp;odnośnika</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Automatyczne logowanie nie powiodło się</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Automatyczna rejestracja nie powiodła się</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Nie udało się utworzyć sesji</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Nie udało się potwierdzić uzgadniania</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Nie udało się zestawić sesji</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Nie udało się zamknąć sesji</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Zmień hasło sesji</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Nowe hasło (min. 8 znaków, wielka + mała litera + cyfra):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Nieprawidłowe hasło</translation>
    </message>
</context>
<context>
    <name>corvane::ChatDialog</name>
    <message>
        <source>Chat</source>
        <translation>Czat</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>Wiadomości</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Wpisz wiadomość…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Wiadomość</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Wyślij</translation>
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
        <translation>POŁĄCZ Z PARTNEREM</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>ID partnera  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Dodaj do ulubionych</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Rozłącz</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Ulubione</translation>
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
        <translation>Corvane - Połącz</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Serwer:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Zarejestruj się</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Hasło (min. 8 znaków)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Nazwa urządzenia:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Mój komputer</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Wypełnij wszystkie pola.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Podaj nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Hasło musi mieć co najmniej 8 znaków.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Informacje o połączeniu</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesja</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>ID sesji:</translation>
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
        <translation>Sterujący (podgląd)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Cel (udostępnianie)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Transport:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Jakość połączenia</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Opóźnienie:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Przepustowość:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Wysłano:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Odebrano:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Utracone klatki:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Czas połączenia:</translation>
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
        <translation>FPS: %1 | Opóźn.: %2 ms | Przepust.: %3 | Czas: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>TWOJE ID</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>HASŁO</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Kopiuj ID</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Kopiuj hasło</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Zmień hasło</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Brak połączenia</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Menedżer plików</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Pobierz zaznaczone pliki zdalne na ten komputer</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Wyślij</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Wyślij zaznaczone pliki lokalne na komputer zdalny</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Wczytywanie folderu zdalnego...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementy: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Zaznacz co najmniej jeden plik zdalny do pobrania.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Nie zaznaczono żadnych plików (foldery są pomijane).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Te pliki już istnieją na tym komputerze i zostaną zastąpione:
%1

Kontynuować?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Zaznacz co najmniej jeden plik lokalny do wysłania.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Te pliki już istnieją na komputerze zdalnym i zostaną zastąpione:
%1

Kontynuować?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Zastąpić?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Błąd: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>Sesja została zakończona.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>Nie udało się wysłać żądania: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Trwa jeszcze inne wysyłanie: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Nie można otworzyć pliku lokalnego: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Nie udało się pobrać pliku zdalnego</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Nie można zapisać pliku lokalnego: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Połączenie zostało przerwane podczas wysyłania: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Nie można odczytać pliku lokalnego: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>KOD PAROWANIA</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Panel administracyjny</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Kopiuj kod parowania</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Dodaj to urządzenie na stronie %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>Na pulpicie Wayland partnerzy nie mogą widzieć tego ekranu ani nim sterować; czat i pliki działają, podobnie jak łączenie się z innymi. Aby udostępnić ekran, zaloguj się do sesji X11.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>To nie jest adres HTTP ani HTTPS: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Serwer wysyła więcej niż %1 bajtów.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Serwer nie ma tam nic do pobrania.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Serwer przekierowuje zbyt wiele razy.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Serwer przekierowuje na adres, który nie jest bezpieczny: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Komputer lokalny&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Pliki lokalne</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Podaj ID partnera.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Gotowy. Twoje ID: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>ID partnera musi składać się dokładnie z 9 cyfr.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Podaj hasło partnera.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>Urządzenie %1 chce nawiązać połączenie.
Cel: %2

Zaakceptować?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>dostęp zdalny</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Połączenie przychodzące</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Połączenie przychodzące od %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Sesja nie powiodła się.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Błąd sesji</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Nie udało się połączyć. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Partner jest niedostępny lub offline.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Nieprawidłowe hasło sesji.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Błąd połączenia</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>Aplikacja została zminimalizowana do zasobnika systemowego.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Sesja zdalna aktywna – Twój ekran jest udostępniany.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Połączono z %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Słabe</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Dobre</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Średnie</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Połączenie: Dobre</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Folder nadrzędny</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Pliki zdalne</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Komputer zdalny&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Folder zdalny: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Nie udało się uruchomić udostępniania ekranu.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Nie można rozpocząć sesji: trwa już inna</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Serwer zwrócił nieprawidłowe dane sesji</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Brak klucza publicznego ECDH celu</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>Nie udało się wyprowadzić klucza ECDH</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Nie można zaakceptować sesji: trwa już inna</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Błąd transportu: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Błąd kryptograficzny: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Błąd szyfrowania: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Uruchamiaj przy logowaniu</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Automatycznie uruchamiaj Corvane po zalogowaniu.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Uruchamiaj z systemem Windows</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Automatycznie uruchamiaj Corvane po zalogowaniu do systemu Windows.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Sieć</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Język aplikacji. Zmiana wymaga ponownego uruchomienia.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Domyślny systemowy</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Jakość: 24 FPS, ostry obraz, większe zużycie łącza.
Szybkość: 10 FPS, mniejsze zużycie łącza i procesora.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Optymalizuj jakość</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Optymalizuj szybkość</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Płynny ruch</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Płynność: 30 FPS, podczas pracy do 60; większe zużycie łącza i procesora.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Wybierz monitor, który będzie udostępniany, gdy ktoś połączy się z tym urządzeniem.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Monitor %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, główny</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Synchronizuj zawartość schowka między komputerem lokalnym a zdalnym.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Włącz udostępnianie schowka</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Tryb wyświetlania:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Udostępniany monitor:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Automatycznie próbuj przywrócić połączenie po nieoczekiwanym rozłączeniu.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Automatycznie łącz ponownie po rozłączeniu</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Maksymalna liczba kolejnych prób ponownego połączenia.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Maks. liczba prób połączenia:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Zainstaluj CorvaneService.exe jako usługę systemu Windows działającą od startu komputera,
nawet gdy żaden użytkownik nie jest zalogowany. Wymaga uprawnień administratora.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Uruchamiaj jako usługę Windows (bez nadzoru)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Pozostaw aplikację działającą w zasobniku systemowym po zamknięciu okna.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Minimalizuj do zasobnika przy zamykaniu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Zmieniono język</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Uruchom aplikację ponownie, aby zastosować nowy język.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Stosowanie zmian...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Odpytywanie systemu...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Serwer odrzucił uwierzytelnienie</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Gotowy</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>Online (gotowy)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Ponowne łączenie...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Serwer niedostępny – ponawianie próby...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Rozłączono</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Rozpoczynanie sesji...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Wymiana kluczy...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Zestawianie transportu...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Rozłączanie...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Sesja nie powiodła się</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Dostęp zdalny</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Stan: Rozłączono</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Rozłącz</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Połączenie przychodzące</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>Urządzenie %1 prosi o połączenie zdalne.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Wszystkie pliki zostały pobrane.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Wszystkie pliki zostały wysłane.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Wysyłanie %1 z %2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Pobrano: %1 – pozostało: %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Pobieranie %1 z %2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Postęp przesyłania</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% – %1/s, pozostało %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Dostępna aktualizacja: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Aktualizuj teraz</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Nie udało się uruchomić instalatora.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Nie można zapisywać w folderze tymczasowym.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Pobrany plik jest za mały – aktualizacja przerwana.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Nie udało się wyodrębnić instalatora z archiwum ZIP.</translation>
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
        <translation>Informacje  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>Pliki  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Czat  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Tryb skalowania  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Przełącz monitor</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Pełny ekran  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Rozłącz  (Ctrl+Shift+D)</translation>
    </message>
    <message>
        <source>Chat (!)</source>
        <translation>Czat (!)</translation>
    </message>
    <message>
        <source>Chat</source>
        <translation>Czat</translation>
    </message>
    <message>
        <source>Fit to Window</source>
        <translation>Dopasuj do okna</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Rozciągnij do okna</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Oryginalny rozmiar</translation>
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
        <translation>Podaj adres MAC tego partnera (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Nieprawidłowy adres MAC.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>Nie udało się wysłać pakietu Wake-on-LAN.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Pakiet Wake-on-LAN wysłano na adres %1</translation>
    </message>
</context>
</TS>
