<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>La contraseña debe tener al menos 8 caracteres.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>La contraseña debe contener al menos una letra minúscula.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>La contraseña debe contener al menos una letra mayúscula.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>La contraseña debe contener al menos un número.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Archivo %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Fecha de modificación</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>C&amp;errar</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
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
        <translation>Desplazar hasta aquí</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Principio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borde derecho</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página a la izquierda</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página arriba</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página a la derecha</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página abajo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Desplazar a la izquierda</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Desplazar a la derecha</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Desplazar hacia abajo</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar la dirección del en&amp;lace</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Error en el inicio de sesión automático</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Error en el registro automático</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>No se pudo crear la sesión</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>No se pudo confirmar la negociación</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>No se pudo completar el inicio de la sesión</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>No se pudo cerrar la sesión</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Cambiar contraseña de sesión</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Nueva contraseña (mín. 8 caracteres, mayúscula + minúscula + número):</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Contraseña no válida</translation>
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
        <translation>Mensajes</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Escriba un mensaje…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Yo</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Interlocutor</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectCard</name>
    <message>
        <source>CONNECT TO PARTNER</source>
        <translation>CONECTAR A UN EQUIPO REMOTO</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>ID remoto  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritos</translation>
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
        <translation>Corvane - Conectar</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Servidor:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registrarse</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Contraseña (mín. 8 caracteres)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Nombre del equipo:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Mi PC</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Rellene todos los campos.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Introduzca el usuario y la contraseña.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>La contraseña debe tener al menos 8 caracteres.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Información de la conexión</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>ID de sesión:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>ID remoto:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Función:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Maestro (visor)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Destino (compartiendo)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Transporte:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Calidad de la conexión</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Latencia:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Ancho de banda:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Enviado:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Recibido:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Fotogramas perdidos:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Duración:</translation>
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
        <translation>FPS: %1 | Latencia: %2 ms | Banda: %3 | Duración: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>SU ID</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>CONTRASEÑA</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Copiar ID</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Copiar contraseña</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Administrador de archivos</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Descargar los archivos remotos seleccionados en este equipo</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Enviar los archivos locales seleccionados al equipo remoto</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Cargando carpeta remota...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Elementos: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Seleccione uno o varios archivos remotos para descargar.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>No se ha seleccionado ningún archivo (las carpetas se omiten).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Estos archivos ya existen en este equipo y se sobrescribirán:
%1

¿Continuar?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Seleccione uno o varios archivos locales para enviar.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Estos archivos ya existen en el equipo remoto y se sobrescribirán:
%1

¿Continuar?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>¿Sobrescribir?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Error: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>La sesión ha finalizado.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>No se pudo enviar la solicitud: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Aún hay otro envío en curso: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>No se puede abrir el archivo local: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>No se pudo descargar el archivo remoto</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>No se puede escribir en el archivo local: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>Se perdió la conexión durante el envío: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>No se puede leer el archivo local: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>CÓDIGO DE EMPAREJAMIENTO</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Panel de administración</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Copiar código de emparejamiento</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Añada este equipo en %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>En un escritorio Wayland, los interlocutores no pueden ver ni controlar esta pantalla; el chat y los archivos funcionan, y también conectarse a otros. Para compartir la pantalla, inicie una sesión X11.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>No es una dirección HTTP ni HTTPS: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>El servidor envía más de %1 bytes.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>El servidor no ofrece ninguna descarga en esa dirección.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>El servidor redirige demasiadas veces.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>El servidor redirige a una dirección que no es segura: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Equipo local&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Archivos locales</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Introduzca un ID remoto.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Listo. Su ID: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>El ID remoto debe tener exactamente 9 dígitos.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Introduzca la contraseña del equipo remoto.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>El equipo %1 quiere conectarse.
Motivo: %2

¿Aceptar?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>acceso remoto</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Conexión entrante</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Conexión entrante de %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>Se ha producido un error en la sesión.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Error de sesión</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>No se pudo conectar. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>El equipo remoto no está disponible o está desconectado.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Contraseña de sesión incorrecta.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Error de conexión</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>La aplicación se ha minimizado en la bandeja del sistema.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Sesión remota activa — compartiendo su pantalla.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Conectado a %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Mala</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Buena</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Regular</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Conexión: Buena</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Subir una carpeta</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Archivos remotos</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Equipo remoto&lt;/b&gt;</translation>
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
        <translation>No se pudo iniciar la captura de pantalla.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>No se puede iniciar la sesión: ya hay otra en curso</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>El servidor devolvió datos de sesión no válidos</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Falta la clave pública ECDH del destino</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>Error al derivar la clave ECDH</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>No se puede aceptar la sesión: ya hay otra en curso</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Error de transporte: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Error criptográfico: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Error de cifrado: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Iniciar al entrar en el sistema</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Iniciar Corvane automáticamente al entrar en el sistema.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Iniciar con Windows</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Iniciar Corvane automáticamente al iniciar sesión en Windows.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Idioma de la aplicación. Requiere reiniciarla para surtir efecto.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Calidad: 24 FPS, imagen nítida, mayor ancho de banda.
Velocidad: 10 FPS, menor ancho de banda y uso de CPU.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Optimizar calidad</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Optimizar velocidad</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Movimiento fluido</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Fluidez: 30 FPS, hasta 60 al trabajar; mayor ancho de banda y uso de CPU.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Elija el monitor que se compartirá cuando alguien se conecte a este equipo.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Monitor %1: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, principal</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Sincronizar el contenido del portapapeles entre el equipo local y el remoto.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Compartir el portapapeles</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Modo de pantalla:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Monitor compartido:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Intentar restablecer la conexión automáticamente tras una desconexión inesperada.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Reconectar automáticamente si se pierde la conexión</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Número máximo de intentos de reconexión consecutivos antes de desistir.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Máx. intentos de reconexión:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Instalar CorvaneService.exe como servicio de Windows que se ejecuta al arrancar,
aunque ningún usuario haya iniciado sesión. Requiere permisos de administrador.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Ejecutar como servicio de Windows (desatendido)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Mantener la aplicación en la bandeja del sistema al cerrar la ventana.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Minimizar a la bandeja al cerrar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma cambiado</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Reinicie la aplicación para aplicar el nuevo idioma.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Aplicando...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Consultando al sistema...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>El servidor rechazó la autenticación</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>En línea (listo)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Reconectando...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Servidor no disponible — reintentando...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Desconectado</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Iniciando sesión remota...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Intercambiando claves...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Estableciendo transporte...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Desconectando...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Error en la sesión</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Acceso remoto</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>Estado: Desconectado</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Conexión entrante</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>El equipo %1 solicita una conexión remota.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Todas las descargas han finalizado.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Todos los envíos han finalizado.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Enviando %1 de %2: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Descargado: %1 — pendientes: %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Descargando %1 de %2: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Progreso de la transferencia</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% — %1/s, quedan %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Actualización disponible: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Actualizar ahora</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>No se pudo iniciar el instalador.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>No se puede escribir en la carpeta temporal.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>El archivo descargado es demasiado pequeño — actualización cancelada.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>No se pudo extraer el instalador del archivo ZIP.</translation>
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
        <translation>Información  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>Archivos  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Chat  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Modo de escala  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Cambiar de monitor</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Pantalla completa  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Desconectar  (Ctrl+Shift+D)</translation>
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
        <translation>Ajustar a la ventana</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Estirar a toda la ventana</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Tamaño original</translation>
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
        <translation>Introduzca la dirección MAC de este equipo remoto (XX:XX:XX:XX:XX:XX):</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Dirección MAC no válida.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>No se pudo enviar el paquete Wake-on-LAN.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Paquete Wake-on-LAN enviado a %1</translation>
    </message>
</context>
</TS>
