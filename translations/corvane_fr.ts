<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>PasswordPolicy</name>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Le mot de passe doit comporter au moins 8 caractères.</translation>
    </message>
    <message>
        <source>Password must contain at least one lowercase letter.</source>
        <translation>Le mot de passe doit contenir au moins une lettre minuscule.</translation>
    </message>
    <message>
        <source>Password must contain at least one uppercase letter.</source>
        <translation>Le mot de passe doit contenir au moins une lettre majuscule.</translation>
    </message>
    <message>
        <source>Password must contain at least one digit.</source>
        <translation>Le mot de passe doit contenir au moins un chiffre.</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Fichier %1</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Augmenter</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Diminuer</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date de modification</translation>
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
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>16 &amp;AnnulerAnnuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Défiler jusqu&apos;ici</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Bord droit</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Page précédente (à gauche)</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Page suivante (à droite)</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Défiler vers la gauche</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Défiler vers la droite</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Défiler vers le bas</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copier l&apos;adresse du &amp;lien</translation>
    </message>
</context>
<context>
    <name>corvane::ApiClient</name>
    <message>
        <source>Auto-login failed</source>
        <translation>Échec de l&apos;authentification automatique</translation>
    </message>
    <message>
        <source>Auto-registration failed</source>
        <translation>Échec de l&apos;inscription automatique</translation>
    </message>
    <message>
        <source>Session creation failed</source>
        <translation>Échec de la création de la session</translation>
    </message>
    <message>
        <source>Handshake ACK failed</source>
        <translation>Échec de la confirmation de la négociation</translation>
    </message>
    <message>
        <source>Session complete failed</source>
        <translation>Échec de l&apos;établissement de la session</translation>
    </message>
    <message>
        <source>Session close failed</source>
        <translation>Échec de la fermeture de la session</translation>
    </message>
</context>
<context>
    <name>corvane::ChangePasswordPrompt</name>
    <message>
        <source>Change Session Password</source>
        <translation>Modifier le mot de passe de session</translation>
    </message>
    <message>
        <source>New password (min 8 chars, uppercase + lowercase + digit):</source>
        <translation>Nouveau mot de passe (min. 8 caractères, majuscule + minuscule + chiffre)&#xa0;:</translation>
    </message>
    <message>
        <source>Invalid Password</source>
        <translation>Mot de passe non valide</translation>
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
        <translation>Messages</translation>
    </message>
    <message>
        <source>Type a message…</source>
        <translation>Saisissez un message…</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Me</source>
        <translation>Moi</translation>
    </message>
    <message>
        <source>Remote</source>
        <translation>Partenaire</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectCard</name>
    <message>
        <source>CONNECT TO PARTNER</source>
        <translation>SE CONNECTER À UN PARTENAIRE</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Partner ID  (XXX XXX XXX)</source>
        <translation>ID partenaire  (XXX XXX XXX)</translation>
    </message>
    <message>
        <source>Add to favorites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Wake-on-LAN</source>
        <translation>Wake-on-LAN</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Partner ID</source>
        <translation>ID du partenaire</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionDialog</name>
    <message>
        <source>Corvane - Connect</source>
        <translation>Corvane - Connexion</translation>
    </message>
    <message>
        <source>Server:</source>
        <translation>Serveur&#xa0;:</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Inscription</translation>
    </message>
    <message>
        <source>Username:</source>
        <translation>Nom d&apos;utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe&#xa0;:</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Password (min 8 chars)</source>
        <translation>Mot de passe (min. 8 caractères)</translation>
    </message>
    <message>
        <source>Client Name:</source>
        <translation>Nom de l&apos;appareil&#xa0;:</translation>
    </message>
    <message>
        <source>My PC</source>
        <translation>Mon PC</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Please fill in all fields.</source>
        <translation>Veuillez remplir tous les champs.</translation>
    </message>
    <message>
        <source>Please fill in username and password.</source>
        <translation>Veuillez saisir le nom d&apos;utilisateur et le mot de passe.</translation>
    </message>
    <message>
        <source>Password must be at least 8 characters.</source>
        <translation>Le mot de passe doit comporter au moins 8 caractères.</translation>
    </message>
</context>
<context>
    <name>corvane::ConnectionInfoDialog</name>
    <message>
        <source>Connection Information</source>
        <translation>Informations de connexion</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Session ID:</source>
        <translation>ID de session&#xa0;:</translation>
    </message>
    <message>
        <source>Remote ID:</source>
        <translation>ID du partenaire&#xa0;:</translation>
    </message>
    <message>
        <source>Role:</source>
        <translation>Rôle&#xa0;:</translation>
    </message>
    <message>
        <source>Master (Viewer)</source>
        <translation>Maître (visualisation)</translation>
    </message>
    <message>
        <source>Target (Sharing)</source>
        <translation>Cible (partage)</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Transport&#xa0;:</translation>
    </message>
    <message>
        <source>Connection Quality</source>
        <translation>Qualité de la connexion</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS&#xa0;:</translation>
    </message>
    <message>
        <source>Latency:</source>
        <translation>Latence&#xa0;:</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Débit&#xa0;:</translation>
    </message>
    <message>
        <source>Sent:</source>
        <translation>Envoyé&#xa0;:</translation>
    </message>
    <message>
        <source>Received:</source>
        <translation>Reçu&#xa0;:</translation>
    </message>
    <message>
        <source>Dropped Frames:</source>
        <translation>Images perdues&#xa0;:</translation>
    </message>
    <message>
        <source>Uptime:</source>
        <translation>Durée&#xa0;:</translation>
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
        <translation>FPS&#xa0;: %1 | Latence&#xa0;: %2 ms | Débit&#xa0;: %3 | Durée&#xa0;: %4</translation>
    </message>
</context>
<context>
    <name>corvane::DeviceCard</name>
    <message>
        <source>YOUR ID</source>
        <translation>VOTRE ID</translation>
    </message>
    <message>
        <source>PASSWORD</source>
        <translation>MOT DE PASSE</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Copy ID</source>
        <translation>Copier l&apos;ID</translation>
    </message>
    <message>
        <source>Copy Password</source>
        <translation>Copier le mot de passe</translation>
    </message>
    <message>
        <source>Change Password</source>
        <translation>Modifier le mot de passe</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
</context>
<context>
    <name>corvane::FileManagerDialog</name>
    <message>
        <source>File Manager</source>
        <translation>Gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Download selected remote file to local</source>
        <translation>Télécharger les fichiers distants sélectionnés sur cet ordinateur</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Upload selected local file to remote</source>
        <translation>Envoyer les fichiers locaux sélectionnés vers l&apos;ordinateur distant</translation>
    </message>
    <message>
        <source>Loading remote directory...</source>
        <translation>Chargement du dossier distant...</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>Éléments&#xa0;: %1</translation>
    </message>
    <message>
        <source>Select one or more remote files to download.</source>
        <translation>Sélectionnez un ou plusieurs fichiers distants à télécharger.</translation>
    </message>
    <message>
        <source>No files selected (folders are skipped).</source>
        <translation>Aucun fichier sélectionné (les dossiers sont ignorés).</translation>
    </message>
    <message>
        <source>These files already exist locally and will be overwritten:
%1

Continue?</source>
        <translation>Ces fichiers existent déjà sur cet ordinateur et seront remplacés&#xa0;:
%1

Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Select one or more local files to upload.</source>
        <translation>Sélectionnez un ou plusieurs fichiers locaux à envoyer.</translation>
    </message>
    <message>
        <source>These files already exist on the remote and will be overwritten:
%1

Continue?</source>
        <translation>Ces fichiers existent déjà sur l&apos;ordinateur distant et seront remplacés&#xa0;:
%1

Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Overwrite?</source>
        <translation>Remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>The session has ended.</source>
        <translation>La session est terminée.</translation>
    </message>
</context>
<context>
    <name>corvane::FileTransferService</name>
    <message>
        <source>The request could not be sent: %1</source>
        <translation>La demande n&apos;a pas pu être envoyée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Another upload is still running: %1</source>
        <translation>Un autre envoi est encore en cours&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cannot open local file: %1</source>
        <translation>Impossible d&apos;ouvrir le fichier local&#xa0;: %1</translation>
    </message>
    <message>
        <source>Remote file download failed</source>
        <translation>Échec du téléchargement du fichier distant</translation>
    </message>
    <message>
        <source>Cannot write to local file: %1</source>
        <translation>Impossible d&apos;écrire le fichier local&#xa0;: %1</translation>
    </message>
    <message>
        <source>The connection was lost while sending: %1</source>
        <translation>La connexion a été interrompue pendant l&apos;envoi&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cannot read local file: %1</source>
        <translation>Impossible de lire le fichier local&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corvane::HomePage</name>
    <message>
        <source>PAIRING CODE</source>
        <translation>CODE D&apos;APPAIRAGE</translation>
    </message>
    <message>
        <source>Admin Panel</source>
        <translation>Administration</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Copy Pairing Code</source>
        <translation>Copier le code d&apos;appairage</translation>
    </message>
    <message>
        <source>Add this device at %1</source>
        <translation>Ajoutez cet appareil sur %1</translation>
    </message>
    <message>
        <source>On a Wayland desktop, partners can neither see nor control this screen; chat and files work, and so does connecting to others. To share the screen, log in to an X11 session.</source>
        <translation>Sur un bureau Wayland, les partenaires ne peuvent ni voir ni contrôler cet écran ; la discussion et les fichiers fonctionnent, de même que la connexion à d&apos;autres. Pour partager l&apos;écran, ouvrez une session X11.</translation>
    </message>
</context>
<context>
    <name>corvane::HttpFetch</name>
    <message>
        <source>Not an HTTP or HTTPS address: %1</source>
        <translation>Adresse non HTTP ou HTTPS&#xa0;: %1</translation>
    </message>
    <message>
        <source>The server sends more than %1 bytes.</source>
        <translation>Le serveur envoie plus de %1 octets.</translation>
    </message>
    <message>
        <source>The server has nothing to download there.</source>
        <translation>Le serveur n&apos;a rien à télécharger à cette adresse.</translation>
    </message>
    <message>
        <source>The server redirects too often.</source>
        <translation>Le serveur effectue trop de redirections.</translation>
    </message>
    <message>
        <source>The server redirects to an address that is not safe to follow: %1</source>
        <translation>Le serveur redirige vers une adresse non sécurisée&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corvane::LocalFilePane</name>
    <message>
        <source>&lt;b&gt;Local Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ordinateur local&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Local files</source>
        <translation>Fichiers locaux</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Please enter a partner Client ID.</source>
        <translation>Veuillez saisir l&apos;ID d&apos;un partenaire.</translation>
    </message>
    <message>
        <source>Ready. Your ID: %1</source>
        <translation>Prêt. Votre ID&#xa0;: %1</translation>
    </message>
    <message>
        <source>Partner ID must be exactly 9 digits.</source>
        <translation>L&apos;ID du partenaire doit comporter exactement 9 chiffres.</translation>
    </message>
    <message>
        <source>Please enter the partner&apos;s password.</source>
        <translation>Veuillez saisir le mot de passe du partenaire.</translation>
    </message>
    <message>
        <source>Client %1 wants to connect.
Purpose: %2

Accept?</source>
        <translation>L&apos;appareil %1 souhaite se connecter.
Motif&#xa0;: %2

Accepter&#xa0;?</translation>
    </message>
    <message>
        <source>remote access</source>
        <translation>accès à distance</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Connexion entrante</translation>
    </message>
    <message>
        <source>Incoming connection from %1</source>
        <translation>Connexion entrante de %1</translation>
    </message>
    <message>
        <source>Session failed.</source>
        <translation>La session a échoué.</translation>
    </message>
    <message>
        <source>Session Error</source>
        <translation>Erreur de session</translation>
    </message>
    <message>
        <source>Corvane - %1 [%2 FPS]</source>
        <translation>Corvane - %1 [%2 FPS]</translation>
    </message>
    <message>
        <source>Failed to connect. Please try again.</source>
        <translation>Échec de la connexion. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>The partner is not available or offline.</source>
        <translation>Le partenaire n&apos;est pas disponible ou est hors ligne.</translation>
    </message>
    <message>
        <source>Invalid session password.</source>
        <translation>Mot de passe de session incorrect.</translation>
    </message>
    <message>
        <source>Connection Error</source>
        <translation>Erreur de connexion</translation>
    </message>
    <message>
        <source>Application minimized to system tray.</source>
        <translation>L&apos;application a été réduite dans la zone de notification.</translation>
    </message>
    <message>
        <source>Remote session active — sharing your screen.</source>
        <translation>Session à distance active — votre écran est partagé.</translation>
    </message>
    <message>
        <source>Corvane - Connected to %1</source>
        <translation>Corvane - Connecté à %1</translation>
    </message>
</context>
<context>
    <name>corvane::QualityIndicator</name>
    <message>
        <source>Poor</source>
        <translation>Mauvaise</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Bonne</translation>
    </message>
    <message>
        <source>Fair</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>%1 (%2 FPS, %3ms)</source>
        <translation>%1 (%2 FPS, %3 ms)</translation>
    </message>
    <message>
        <source>Connection: Good</source>
        <translation>Connexion&#xa0;: bonne</translation>
    </message>
</context>
<context>
    <name>corvane::RemoteFilePane</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Go up one directory</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Remote files</source>
        <translation>Fichiers distants</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote Computer&lt;/b&gt;</source>
        <translation>&lt;b&gt;Ordinateur distant&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;Remote: &lt;/b&gt;%1</source>
        <translation>&lt;b&gt;Distant&#xa0;: &lt;/b&gt;%1</translation>
    </message>
</context>
<context>
    <name>corvane::SessionDataPlane</name>
    <message>
        <source>Failed to start screen capture.</source>
        <translation>Impossible de démarrer la capture d&apos;écran.</translation>
    </message>
</context>
<context>
    <name>corvane::SessionManager</name>
    <message>
        <source>Cannot initiate session: not idle</source>
        <translation>Impossible de démarrer la session&#xa0;: une autre est en cours</translation>
    </message>
    <message>
        <source>Server returned invalid session data</source>
        <translation>Le serveur a renvoyé des données de session non valides</translation>
    </message>
    <message>
        <source>Missing target ECDH public key</source>
        <translation>Clé publique ECDH de la cible manquante</translation>
    </message>
    <message>
        <source>ECDH key derivation failed</source>
        <translation>Échec de la dérivation de la clé ECDH</translation>
    </message>
    <message>
        <source>Cannot accept session: not idle</source>
        <translation>Impossible d&apos;accepter la session&#xa0;: une autre est en cours</translation>
    </message>
    <message>
        <source>Transport failed: %1</source>
        <translation>Échec du transport&#xa0;: %1</translation>
    </message>
    <message>
        <source>Crypto error: %1</source>
        <translation>Erreur cryptographique&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cipher error: %1</source>
        <translation>Erreur de chiffrement&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsDialog</name>
    <message>
        <source>Start at login</source>
        <translation>Lancer à l&apos;ouverture de session</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in.</source>
        <translation>Lancer automatiquement Corvane lorsque vous ouvrez une session.</translation>
    </message>
    <message>
        <source>Start with Windows</source>
        <translation>Lancer avec Windows</translation>
    </message>
    <message>
        <source>Automatically start Corvane when you log in to Windows.</source>
        <translation>Lancer automatiquement Corvane lorsque vous ouvrez une session Windows.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Application language. Requires restart to take effect.</source>
        <translation>Langue de l&apos;application. Prise en compte après un redémarrage.</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <source>Quality: 24 fps, sharp image, higher bandwidth.
Speed: 10 fps, lower bandwidth and CPU usage.</source>
        <translation>Qualité&#xa0;: 24 FPS, image nette, débit plus élevé.
Vitesse&#xa0;: 10 FPS, débit et charge du processeur réduits.</translation>
    </message>
    <message>
        <source>Optimize Quality</source>
        <translation>Optimiser la qualité</translation>
    </message>
    <message>
        <source>Optimize Speed</source>
        <translation>Optimiser la vitesse</translation>
    </message>
    <message>
        <source>Smooth motion</source>
        <translation>Mouvement fluide</translation>
    </message>
    <message>
        <source>Smooth: 30 fps, up to 60 while you work; higher bandwidth and CPU usage.</source>
        <translation>Fluidité&#xa0;: 30 FPS, jusqu&apos;à 60 pendant le travail&#xa0;; débit et charge du processeur plus élevés.</translation>
    </message>
    <message>
        <source>Select which monitor to share when someone connects to this device.</source>
        <translation>Choisissez l&apos;écran à partager lorsque quelqu&apos;un se connecte à cet appareil.</translation>
    </message>
    <message>
        <source>Monitor %1: %2 (%3x%4%5)</source>
        <translation>Écran %1&#xa0;: %2 (%3x%4%5)</translation>
    </message>
    <message>
        <source>, Primary</source>
        <translation>, principal</translation>
    </message>
    <message>
        <source>Synchronise clipboard content between the local and remote machines.</source>
        <translation>Synchroniser le contenu du presse-papiers entre l&apos;ordinateur local et l&apos;ordinateur distant.</translation>
    </message>
    <message>
        <source>Enable clipboard sharing</source>
        <translation>Activer le partage du presse-papiers</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue&#xa0;:</translation>
    </message>
    <message>
        <source>Display mode:</source>
        <translation>Mode d&apos;affichage&#xa0;:</translation>
    </message>
    <message>
        <source>Capture monitor:</source>
        <translation>Écran partagé&#xa0;:</translation>
    </message>
    <message>
        <source>Automatically attempt to re-establish the connection after an unexpected disconnect.</source>
        <translation>Tenter automatiquement de rétablir la connexion après une déconnexion inattendue.</translation>
    </message>
    <message>
        <source>Auto-reconnect on disconnect</source>
        <translation>Reconnexion automatique en cas de coupure</translation>
    </message>
    <message>
        <source>Maximum number of consecutive reconnection attempts before giving up.</source>
        <translation>Nombre maximal de tentatives de reconnexion consécutives avant l&apos;abandon.</translation>
    </message>
    <message>
        <source>Max reconnect attempts:</source>
        <translation>Tentatives de reconnexion max.&#xa0;:</translation>
    </message>
    <message>
        <source>Install CorvaneService.exe as a Windows service that runs at boot,
even when no user is logged in. Requires administrator privileges.</source>
        <translation>Installer CorvaneService.exe comme service Windows lancé au démarrage,
même si aucun utilisateur n&apos;est connecté. Nécessite des droits d&apos;administrateur.</translation>
    </message>
    <message>
        <source>Run as Windows Service (unattended)</source>
        <translation>Exécuter comme service Windows (sans surveillance)</translation>
    </message>
    <message>
        <source>Keep the application running in the system tray when the window is closed.</source>
        <translation>Laisser l&apos;application active dans la zone de notification lorsque la fenêtre est fermée.</translation>
    </message>
    <message>
        <source>Minimize to tray on close</source>
        <translation>Réduire dans la zone de notification à la fermeture</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Langue modifiée</translation>
    </message>
    <message>
        <source>Please restart the application to apply the new language.</source>
        <translation>Veuillez redémarrer l&apos;application pour appliquer la nouvelle langue.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Application en cours...</translation>
    </message>
    <message>
        <source>Asking the system...</source>
        <translation>Interrogation du système...</translation>
    </message>
</context>
<context>
    <name>corvane::SignalingClient</name>
    <message>
        <source>Authentication rejected by server</source>
        <translation>Authentification refusée par le serveur</translation>
    </message>
</context>
<context>
    <name>corvane::StatusLine</name>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Online (Ready)</source>
        <translation>En ligne (prêt)</translation>
    </message>
    <message>
        <source>Reconnecting...</source>
        <translation>Reconnexion...</translation>
    </message>
    <message>
        <source>Server unavailable — retrying...</source>
        <translation>Serveur indisponible — nouvelle tentative...</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Déconnecté</translation>
    </message>
    <message>
        <source>Initiating session...</source>
        <translation>Démarrage de la session...</translation>
    </message>
    <message>
        <source>Exchanging keys...</source>
        <translation>Échange des clés...</translation>
    </message>
    <message>
        <source>Establishing transport...</source>
        <translation>Établissement du transport...</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>Déconnexion...</translation>
    </message>
    <message>
        <source>Session failed</source>
        <translation>Échec de la session</translation>
    </message>
</context>
<context>
    <name>corvane::SystemTrayIcon</name>
    <message>
        <source>Corvane - Remote Access</source>
        <translation>Corvane - Accès à distance</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Status: Disconnected</source>
        <translation>État&#xa0;: déconnecté</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Incoming Connection</source>
        <translation>Connexion entrante</translation>
    </message>
    <message>
        <source>Client %1 is requesting a remote connection.</source>
        <translation>L&apos;appareil %1 demande une connexion à distance.</translation>
    </message>
</context>
<context>
    <name>corvane::TransferRunner</name>
    <message>
        <source>All downloads complete.</source>
        <translation>Tous les téléchargements sont terminés.</translation>
    </message>
    <message>
        <source>All uploads complete.</source>
        <translation>Tous les envois sont terminés.</translation>
    </message>
    <message>
        <source>Uploading %1 of %2: %3</source>
        <translation>Envoi du fichier %1 sur %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>Downloaded: %1 — %2 remaining</source>
        <translation>Téléchargé&#xa0;: %1 — encore %2</translation>
    </message>
    <message>
        <source>Downloading %1 of %2: %3</source>
        <translation>Téléchargement du fichier %1 sur %2&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>corvane::TransferStatus</name>
    <message>
        <source>Transfer progress</source>
        <translation>Progression du transfert</translation>
    </message>
    <message>
        <source>%p% — %1/s, %2 left</source>
        <translation>%p% — %1/s, encore %2</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateBanner</name>
    <message>
        <source>Update available: v%1</source>
        <translation>Mise à jour disponible&#xa0;: v%1</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>Update Now</source>
        <translation>Mettre à jour</translation>
    </message>
</context>
<context>
    <name>corvane::UpdatePrompt</name>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>Impossible de lancer le programme d&apos;installation.</translation>
    </message>
</context>
<context>
    <name>corvane::UpdateService</name>
    <message>
        <source>Cannot write to temp directory.</source>
        <translation>Impossible d&apos;écrire dans le dossier temporaire.</translation>
    </message>
    <message>
        <source>Downloaded file is too small — update aborted.</source>
        <translation>Le fichier téléchargé est trop petit — mise à jour annulée.</translation>
    </message>
    <message>
        <source>Failed to extract installer from zip.</source>
        <translation>Impossible d&apos;extraire le programme d&apos;installation de l&apos;archive ZIP.</translation>
    </message>
</context>
<context>
    <name>corvane::ValueFormats</name>
    <message>
        <source>%1 B</source>
        <translation>%1 o</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
</context>
<context>
    <name>corvane::ViewerToolBar</name>
    <message>
        <source>Info  (Ctrl+Shift+I)</source>
        <translation>Infos  (Ctrl+Shift+I)</translation>
    </message>
    <message>
        <source>Files  (Ctrl+Shift+F)</source>
        <translation>Fichiers  (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Chat  (Ctrl+Shift+C)</source>
        <translation>Chat  (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Scale Mode  (Ctrl+Shift+Q)</source>
        <translation>Mise à l&apos;échelle  (Ctrl+Shift+Q)</translation>
    </message>
    <message>
        <source>Switch Monitor</source>
        <translation>Changer d&apos;écran</translation>
    </message>
    <message>
        <source>Fullscreen  (F11)</source>
        <translation>Plein écran  (F11)</translation>
    </message>
    <message>
        <source>Disconnect  (Ctrl+Shift+D)</source>
        <translation>Déconnecter  (Ctrl+Shift+D)</translation>
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
        <translation>Adapter à la fenêtre</translation>
    </message>
    <message>
        <source>Stretch to Fill</source>
        <translation>Étirer pour remplir</translation>
    </message>
    <message>
        <source>Original Size</source>
        <translation>Taille d&apos;origine</translation>
    </message>
    <message>
        <source>Monitor %1</source>
        <translation>Écran %1</translation>
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
        <translation>Saisissez l&apos;adresse MAC de ce partenaire (XX:XX:XX:XX:XX:XX)&#xa0;:</translation>
    </message>
    <message>
        <source>WoL</source>
        <translation>WoL</translation>
    </message>
    <message>
        <source>Invalid MAC address.</source>
        <translation>Adresse MAC non valide.</translation>
    </message>
    <message>
        <source>The Wake-on-LAN packet could not be sent.</source>
        <translation>Le paquet Wake-on-LAN n&apos;a pas pu être envoyé.</translation>
    </message>
    <message>
        <source>Wake-on-LAN packet sent to %1</source>
        <translation>Paquet Wake-on-LAN envoyé à %1</translation>
    </message>
</context>
</TS>
