<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AccessibilityPage</name>
    <message>
        <location filename="../qml/vorplex/AccessibilityPage.qml" line="+12"/>
        <source>Touch and reading</source>
        <translation>Tactile et lisibilité</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High contrast takes effect at once.</source>
        <translation>Le contraste élevé s&apos;applique immédiatement.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>On-screen keyboard</source>
        <translation>Clavier virtuel</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The on-screen keyboard appears after the next start of the terminal.</source>
        <translation>Le clavier virtuel apparaîtra au prochain démarrage du terminal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A keyboard appears on the screen whenever a text field is chosen. Its layout follows the display language.</source>
        <translation>Un clavier s&apos;affiche à l&apos;écran dès qu&apos;un champ de texte est sélectionné. Sa disposition suit la langue d&apos;affichage.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Black text on white, strong outlines and a clearly marked focus.</source>
        <translation>Texte noir sur blanc, contours marqués et focus bien visible.</translation>
    </message>
</context>
<context>
    <name>AddBrowserConnection</name>
    <message>
        <location filename="../qml/vorplex/AddBrowserConnection.qml" line="+26"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Le nom de la connexion ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>L&apos;adresse du serveur ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit Browser Connection</source>
        <translation>Modifier la connexion navigateur</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add Browser Connection</source>
        <translation>Ajouter une connexion navigateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A web site or web application in the browser.</source>
        <translation>Un site web ou une application web dans le navigateur.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Ajouter une connexion</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connection name</source>
        <translation>Nom de la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Affiché sur l&apos;écran d&apos;accueil</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>e.g. https://intranet.example.com</source>
        <translation>p. ex. https://intranet.example.com</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Browser</source>
        <translation>Navigateur</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Kiosk mode</source>
        <translation>Mode kiosque</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Full screen, without address bar, tabs or menus.</source>
        <translation>Plein écran, sans barre d&apos;adresse, onglets ni menus.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Private window</source>
        <translation>Fenêtre privée</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nothing from earlier visits is kept: no history, cookies or cache.</source>
        <translation>Rien n&apos;est conservé des visites précédentes&#xa0;: ni historique, ni cookies, ni cache.</translation>
    </message>
</context>
<context>
    <name>AddCitrixConnection</name>
    <message>
        <location filename="../qml/vorplex/AddCitrixConnection.qml" line="+29"/>
        <source>Server address can&apos;t be empty</source>
        <translation>L&apos;adresse du serveur ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Le nom de la connexion ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Edit Citrix Connection</source>
        <translation>Modifier la connexion Citrix</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add Citrix Connection</source>
        <translation>Ajouter une connexion Citrix</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A published desktop or application from a Citrix store.</source>
        <translation>Un bureau ou une application publiés par un magasin Citrix.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Ajouter une connexion</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Connection name</source>
        <translation>Nom de la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Affiché sur l&apos;écran d&apos;accueil</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Store address, e.g. https://citrix.example.com</source>
        <translation>Magasin, p. ex. https://citrix.example.com</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Credentials</source>
        <translation>Identifiants</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Mémoriser les identifiants</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>User name and password are saved with the connection.</source>
        <translation>Le nom d&apos;utilisateur et le mot de passe sont enregistrés avec la connexion.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are only used to browse resources and are not saved.</source>
        <translation>Le nom d&apos;utilisateur et le mot de passe servent uniquement à parcourir les ressources et ne sont pas enregistrés.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+14"/>
        <source>Resource</source>
        <translation>Ressource</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>The desktop or application this connection opens.</source>
        <translation>Le bureau ou l&apos;application qu&apos;ouvre cette connexion.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional</source>
        <translation>Facultatif</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Name as the store lists it</source>
        <translation>Nom tel qu&apos;il figure dans le magasin</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Browse resources</source>
        <translation>Parcourir les ressources</translation>
    </message>
</context>
<context>
    <name>AddLayoutDialog</name>
    <message>
        <location filename="../qml/vorplex/AddLayoutDialog.qml" line="+16"/>
        <source>Add keyboard layouts</source>
        <translation>Ajouter des dispositions de clavier</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language or country</source>
        <translation>Langue ou pays</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Loading info...</source>
        <translation>Chargement des informations...</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The list of keyboard layouts could not be read.</source>
        <translation>Impossible de lire la liste des dispositions de clavier.</translation>
    </message>
</context>
<context>
    <name>AddPuttyConnection</name>
    <message>
        <location filename="../qml/vorplex/AddPuttyConnection.qml" line="+26"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Le nom de la connexion ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Edit PuTTY Connection</source>
        <translation>Modifier la connexion PuTTY</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add PuTTY Connection</source>
        <translation>Ajouter une connexion PuTTY</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A terminal session to a server or network device.</source>
        <translation>Une session de terminal vers un serveur ou un équipement réseau.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Ajouter une connexion</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Connection name</source>
        <translation>Nom de la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Affiché sur l&apos;écran d&apos;accueil</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Host name or IP address</source>
        <translation>Nom d&apos;hôte ou adresse IP</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+11"/>
        <source>Optional</source>
        <translation>Facultatif</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>User name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
</context>
<context>
    <name>AddRDPConnection</name>
    <message>
        <location filename="../qml/vorplex/AddRDPConnection.qml" line="+38"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Le nom de la connexion ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>L&apos;adresse du serveur ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit RDP Connection</source>
        <translation>Modifier la connexion RDP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add RDP Connection</source>
        <translation>Ajouter une connexion RDP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A Windows desktop or server reached over Remote Desktop.</source>
        <translation>Un bureau ou un serveur Windows accessible par Bureau à distance.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Ajouter une connexion</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Connection name</source>
        <translation>Nom de la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Affiché sur l&apos;écran d&apos;accueil</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+131"/>
        <source>Host name or IP address</source>
        <translation>Nom d&apos;hôte ou adresse IP</translation>
    </message>
    <message>
        <location line="-121"/>
        <source>Credentials</source>
        <translation>Identifiants</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Mémoriser les identifiants</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The session starts without asking for a password.</source>
        <translation>La session démarre sans demander de mot de passe.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are asked for each time the session starts.</source>
        <translation>Le nom d&apos;utilisateur et le mot de passe sont demandés à chaque ouverture de session.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Domain</source>
        <translation>Domaine</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+95"/>
        <source>Optional</source>
        <translation>Facultatif</translation>
    </message>
    <message>
        <location line="-87"/>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The session fills the whole screen.</source>
        <translation>La session occupe tout l&apos;écran.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Multi-monitor</source>
        <translation>Multi-écran</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The session spans every connected display.</source>
        <translation>La session s&apos;étend sur tous les écrans connectés.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Smart card</source>
        <translation>Carte à puce</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sign in to the session with a smart card in this terminal&apos;s reader.</source>
        <translation>Connexion à la session avec une carte à puce insérée dans le lecteur de ce terminal.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>USB redirection</source>
        <translation>Redirection USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB devices plugged into this terminal appear in the session.</source>
        <translation>Les périphériques USB branchés sur ce terminal apparaissent dans la session.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Printers set up on this terminal can be used from the session.</source>
        <translation>Les imprimantes configurées sur ce terminal sont utilisables depuis la session.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Gateway</source>
        <translation>Passerelle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Only needed when the server is reached through a Remote Desktop Gateway.</source>
        <translation>Nécessaire uniquement si le serveur est joint via une passerelle Bureau à distance.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Gateway host</source>
        <translation>Hôte de la passerelle</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Gateway user name</source>
        <translation>Utilisateur de la passerelle</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Gateway domain</source>
        <translation>Domaine de la passerelle</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Gateway password</source>
        <translation>Mot de passe de la passerelle</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Performance</source>
        <translation>Performances</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Best quality suits fast networks; Fastest lowers colour depth and effects for slow links.</source>
        <translation>«&#xa0;Meilleure qualité&#xa0;» convient aux réseaux rapides&#x202f;; «&#xa0;Plus rapide&#xa0;» réduit la profondeur de couleur et les effets pour les liaisons lentes.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Best quality</source>
        <translation>Meilleure qualité</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Fastest</source>
        <translation>Plus rapide</translation>
    </message>
</context>
<context>
    <name>AddVNCConnection</name>
    <message>
        <location filename="../qml/vorplex/AddVNCConnection.qml" line="+32"/>
        <source>Server address can&apos;t be empty</source>
        <translation>L&apos;adresse du serveur ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter a host name or IP address, optionally followed by a colon and a port</source>
        <translation>Saisissez un nom d&apos;hôte ou une adresse IP, suivi éventuellement de deux-points et d&apos;un port</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The port must be a number from 1 to 65535</source>
        <translation>Le port doit être un nombre entre 1 et 65535</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Le nom de la connexion ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Edit VNC Connection</source>
        <translation>Modifier la connexion VNC</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add VNC Connection</source>
        <translation>Ajouter une connexion VNC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A remote screen shown in this terminal&apos;s own VNC viewer.</source>
        <translation>Un écran distant affiché dans la visionneuse VNC de ce terminal.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Ajouter une connexion</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Connection name</source>
        <translation>Nom de la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Affiché sur l&apos;écran d&apos;accueil</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>host or host:port</source>
        <translation>hôte ou hôte:port</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Port 5900 when none is given</source>
        <translation>Port 5900 si aucun n&apos;est indiqué</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+22"/>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Remember password</source>
        <translation>Mémoriser le mot de passe</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The password is stored encrypted on this terminal.</source>
        <translation>Le mot de passe est stocké chiffré sur ce terminal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The password is not stored; servers that ask for one refuse the session.</source>
        <translation>Le mot de passe n&apos;est pas stocké&#x202f;; les serveurs qui en exigent un refusent la session.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Viewer window</source>
        <translation>Fenêtre de la visionneuse</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The remote screen fills the whole display.</source>
        <translation>L&apos;écran distant occupe tout l&apos;affichage.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Shrink to fit</source>
        <translation>Réduire pour ajuster</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Large remote screens are scaled down to the window instead of scrolled.</source>
        <translation>Les grands écrans distants sont réduits à la taille de la fenêtre au lieu de défiler.</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+19"/>
        <source>Window size</source>
        <translation>Taille de la fenêtre</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Share of this terminal&apos;s screen taken by the viewer window, from its top left corner.</source>
        <translation>Part de l&apos;écran de ce terminal occupée par la fenêtre de la visionneuse, depuis le coin supérieur gauche.</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>AdminConnectionPopup</name>
    <message>
        <location filename="../qml/vorplex/AdminConnectionPopup.qml" line="+19"/>
        <source>Allow remote connection</source>
        <translation>Autoriser la connexion à distance</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Accept</source>
        <translation>Accepter</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reject</source>
        <translation>Refuser</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Request will be accepted automatically in %1 seconds</source>
        <translation>La demande sera acceptée automatiquement dans %1 secondes</translation>
    </message>
</context>
<context>
    <name>AdminLoginDialog</name>
    <message>
        <location filename="../qml/vorplex/AdminLoginDialog.qml" line="+11"/>
        <source>Administrator access</source>
        <translation>Accès administrateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Advanced settings are protected. Enter the administrator password to unlock them.</source>
        <translation>Les paramètres avancés sont protégés. Saisissez le mot de passe administrateur pour les déverrouiller.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Wrong password. Please try again.</source>
        <translation>Mot de passe incorrect. Veuillez réessayer.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Administrator password</source>
        <translation>Mot de passe administrateur</translation>
    </message>
</context>
<context>
    <name>AdminPasswordPage</name>
    <message>
        <location filename="../qml/vorplex/AdminPasswordPage.qml" line="+16"/>
        <source>The current password is not correct.</source>
        <translation>Le mot de passe actuel est incorrect.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Enter a new password.</source>
        <translation>Saisissez un nouveau mot de passe.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The passwords do not match.</source>
        <translation>Les mots de passe ne correspondent pas.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Administrator password changed.</source>
        <translation>Mot de passe administrateur modifié.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Change administrator password</source>
        <translation>Modifier le mot de passe administrateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Anyone who knows this password can change the advanced settings of this terminal.</source>
        <translation>Toute personne qui connaît ce mot de passe peut modifier les paramètres avancés de ce terminal.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Current password</source>
        <translation>Mot de passe actuel</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>New password</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Repeat new password</source>
        <translation>Confirmer le nouveau mot de passe</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Change password</source>
        <translation>Modifier le mot de passe</translation>
    </message>
</context>
<context>
    <name>AssistanceBanner</name>
    <message>
        <location filename="../qml/vorplex/AssistanceBanner.qml" line="+35"/>
        <source>Remote assistance active</source>
        <translation>Assistance à distance active</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>End assistance</source>
        <translation>Terminer l&apos;assistance</translation>
    </message>
</context>
<context>
    <name>CertificateCountBadge</name>
    <message numerus="yes">
        <location filename="../qml/vorplex/CertificateCountBadge.qml" line="+16"/>
        <source>%n certificate(s) expired or expiring soon</source>
        <translation>
            <numerusform>%n certificat expiré ou bientôt expiré</numerusform>
            <numerusform>%n certificats expirés ou bientôt expirés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CertificateExpiry</name>
    <message>
        <location filename="../src/maintenance/CertificateExpiry.cpp" line="+44"/>
        <source>Expired on %1</source>
        <translation>Expiré le %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expires on %1</source>
        <translation>Expire le %1</translation>
    </message>
</context>
<context>
    <name>CertificatesModel</name>
    <message>
        <location filename="../src/maintenance/CertificatesModel.cpp" line="+7"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not before</source>
        <translation>Valide à partir du</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not after</source>
        <translation>Valide jusqu&apos;au</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
</context>
<context>
    <name>CertificatesPage</name>
    <message>
        <location filename="../qml/vorplex/CertificatesPage.qml" line="+42"/>
        <source>Enter the password of the certificate file.</source>
        <translation>Saisissez le mot de passe du fichier de certificat.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Certificate added</source>
        <translation>Certificat ajouté</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Import a certificate</source>
        <translation>Importer un certificat</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Certificate files (.crt, .cer, .der, .pfx) on a USB drive. The certificate is trusted by this terminal and its sessions.</source>
        <translation>Fichiers de certificat (.crt, .cer, .der, .pfx) sur une clé USB. Ce terminal et ses sessions font confiance au certificat.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Certificate file</source>
        <translation>Fichier de certificat</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No certificate files found</source>
        <translation>Aucun fichier de certificat trouvé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with certificate files, then refresh the list.</source>
        <translation>Insérez une clé USB contenant des fichiers de certificat, puis actualisez la liste.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Refresh file list</source>
        <translation>Actualiser la liste des fichiers</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password of the certificate file</source>
        <translation>Mot de passe du fichier de certificat</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Installed certificates</source>
        <translation>Certificats installés</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Authorities this terminal trusts in addition to the system&apos;s own.</source>
        <translation>Autorités auxquelles ce terminal fait confiance en plus de celles du système.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Show all certificates</source>
        <translation>Afficher tous les certificats</translation>
    </message>
    <message>
        <location line="+64"/>
        <source>System certificate</source>
        <translation>Certificat système</translation>
    </message>
    <message>
        <location line="+46"/>
        <location line="+26"/>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>No certificates installed</source>
        <translation>Aucun certificat installé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import a certificate from a USB drive, or show the system&apos;s certificates too.</source>
        <translation>Importez un certificat depuis une clé USB, ou affichez aussi les certificats du système.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Remove certificate</source>
        <translation>Supprimer le certificat</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove %1? This terminal and its sessions will no longer trust the servers it vouches for.</source>
        <translation>Supprimer %1&#x202f;? Ce terminal et ses sessions ne feront plus confiance aux serveurs qu&apos;il garantit.</translation>
    </message>
</context>
<context>
    <name>CertificatesStorage</name>
    <message>
        <location filename="../src/maintenance/CertificatesStorage.cpp" line="+204"/>
        <source>The file name %1 has no name before its extension.</source>
        <translation>Le nom de fichier %1 n&apos;a pas de nom avant son extension.</translation>
    </message>
</context>
<context>
    <name>CitrixProgressPopup</name>
    <message>
        <location filename="../qml/vorplex/CitrixProgressPopup.qml" line="+55"/>
        <source>Citrix resources</source>
        <translation>Ressources Citrix</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Citrix</source>
        <translation>Citrix</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Use resource</source>
        <translation>Utiliser la ressource</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>The store offers no resources for this account.</source>
        <translation>Le magasin ne propose aucune ressource pour ce compte.</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>Contacting the Citrix store…</source>
        <translation>Connexion au magasin Citrix…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Starting the Citrix session…</source>
        <translation>Démarrage de la session Citrix…</translation>
    </message>
</context>
<context>
    <name>ConnectionCheck</name>
    <message>
        <location filename="../src/connectors/ConnectionCheck.cpp" line="+215"/>
        <source>Reading the address</source>
        <translation>Lecture de l&apos;adresse</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Finding the server</source>
        <translation>Recherche du serveur</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connecting to port %1</source>
        <translation>Connexion au port %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Secure handshake</source>
        <translation>Négociation sécurisée</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Enter the server&apos;s address first</source>
        <translation>Saisissez d&apos;abord l&apos;adresse du serveur</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The address must not contain spaces</source>
        <translation>L&apos;adresse ne doit pas contenir d&apos;espaces</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter the server&apos;s name or address without &quot;%1&quot; in front</source>
        <translation>Saisissez le nom ou l&apos;adresse du serveur sans « %1 » devant</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Only https:// and http:// addresses can be checked, not &quot;%1&quot;</source>
        <translation>Seules les adresses https:// et http:// peuvent être testées, pas « %1 »</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The port must be a number from 1 to 65535</source>
        <translation>Le port doit être un nombre de 1 à 65535</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a valid server name or address</source>
        <translation>« %1 » n&apos;est pas un nom ou une adresse de serveur valide</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a valid IPv6 address; write it in brackets to add a port, like [2001:db8::1]:3389</source>
        <translation>« %1 » n&apos;est pas une adresse IPv6 valide ; mettez-la entre crochets pour ajouter un port, par exemple [2001:db8::1]:3389</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>This kind of connection cannot be checked</source>
        <translation>Ce type de connexion ne peut pas être testé</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server name cannot be found</source>
        <translation>Le nom du serveur est introuvable</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nothing answers on port %1</source>
        <translation>Rien ne répond sur le port %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server does not answer on port %1</source>
        <translation>Le serveur ne répond pas sur le port %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server cannot be reached: %1</source>
        <translation>Le serveur est injoignable : %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers on port %1 but the secure handshake failed: %2</source>
        <translation>Le serveur répond sur le port %1, mais la négociation sécurisée a échoué : %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers but its certificate expired on %1</source>
        <translation>Le serveur répond, mais son certificat a expiré le %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers but its certificate is only valid from %1</source>
        <translation>Le serveur répond, mais son certificat n&apos;est valable qu&apos;à partir du %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The server answers but its certificate is self-signed and not trusted by this terminal</source>
        <translation>Le serveur répond, mais son certificat est auto-signé et ce terminal ne lui fait pas confiance</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The server answers but its certificate is not trusted by this terminal</source>
        <translation>Le serveur répond, mais ce terminal ne fait pas confiance à son certificat</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The check was cancelled</source>
        <translation>Le test a été annulé</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers and its certificate is valid until %1</source>
        <translation>Le serveur répond et son certificat est valable jusqu&apos;au %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The server answers on port %1</source>
        <translation>Le serveur répond sur le port %1</translation>
    </message>
    <message>
        <location line="+144"/>
        <source>no answer</source>
        <translation>pas de réponse</translation>
    </message>
</context>
<context>
    <name>ConnectionCheckDialog</name>
    <message>
        <location filename="../qml/vorplex/ConnectionCheckDialog.qml" line="+25"/>
        <source>Test connection</source>
        <translation>Tester la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Checking whether “%1” can be reached.</source>
        <translation>Vérification que « %1 » est joignable.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel check</source>
        <translation>Annuler le test</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Step that failed: %1</source>
        <translation>Étape en échec : %1</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Certificate issued to</source>
        <translation>Certificat délivré à</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Issued by</source>
        <translation>Délivré par</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valid until</source>
        <translation>Valable jusqu&apos;au</translation>
    </message>
</context>
<context>
    <name>ConnectionKinds</name>
    <message>
        <location filename="../qml/vorplex/ConnectionKinds.qml" line="+15"/>
        <source>VMware Horizon</source>
        <translation>VMware Horizon</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>VNC</source>
        <translation>VNC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Citrix</source>
        <translation>Citrix</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote Desktop</source>
        <translation>Bureau à distance</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Browser</source>
        <translation>Navigateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Microsoft Teams</source>
        <translation>Microsoft Teams</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PuTTY</source>
        <translation>PuTTY</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
</context>
<context>
    <name>ConnectionTableModel</name>
    <message>
        <location filename="../src/connections/ConnectionTableModel.cpp" line="+22"/>
        <source>Browser</source>
        <translation>Navigateur</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server Address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto Connect</source>
        <translation>Connexion auto</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Action</source>
        <translation>Action</translation>
    </message>
</context>
<context>
    <name>ConnectionTile</name>
    <message>
        <location filename="../qml/vorplex/ConnectionTile.qml" line="+69"/>
        <source>More actions for %1</source>
        <translation>Autres actions pour %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Test connection</source>
        <translation>Tester la connexion</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
</context>
<context>
    <name>ConnectionsPage</name>
    <message>
        <location filename="../qml/vorplex/ConnectionsPage.qml" line="+12"/>
        <source>Connections</source>
        <translation>Connexions</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>RDP</source>
        <translation>RDP</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+151"/>
        <source>Citrix</source>
        <translation>Citrix</translation>
    </message>
    <message>
        <location line="-150"/>
        <location line="+157"/>
        <source>VMware Horizon</source>
        <translation>VMware Horizon</translation>
    </message>
    <message>
        <location line="-156"/>
        <location line="+163"/>
        <source>Browser</source>
        <translation>Navigateur</translation>
    </message>
    <message>
        <location line="-162"/>
        <location line="+169"/>
        <source>PuTTY</source>
        <translation>PuTTY</translation>
    </message>
    <message>
        <location line="-168"/>
        <source>Microsoft Teams</source>
        <translation>Microsoft Teams</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+174"/>
        <source>VNC</source>
        <translation>VNC</translation>
    </message>
    <message>
        <location line="-135"/>
        <source>“%1” added.</source>
        <translation>Connexion «&#xa0;%1&#xa0;» ajoutée.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Changes to “%1” saved.</source>
        <translation>Modifications de «&#xa0;%1&#xa0;» enregistrées.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Microsoft Teams added.</source>
        <translation>Microsoft Teams ajouté.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Microsoft Teams is already in the list.</source>
        <translation>Microsoft Teams figure déjà dans la liste.</translation>
    </message>
    <message>
        <location line="+66"/>
        <location line="+314"/>
        <source>Add connection</source>
        <translation>Ajouter une connexion</translation>
    </message>
    <message>
        <location line="-298"/>
        <source>Remote Desktop (RDP)</source>
        <translation>Bureau à distance (RDP)</translation>
    </message>
    <message>
        <location line="+52"/>
        <source>Add Microsoft Teams</source>
        <translation>Ajouter Microsoft Teams</translation>
    </message>
    <message>
        <location line="+199"/>
        <source>Start automatically</source>
        <translation>Démarrer automatiquement</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Nothing to edit for this kind</source>
        <translation>Rien à modifier pour ce type</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+71"/>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <location line="-56"/>
        <source>No connections yet</source>
        <translation>Aucune connexion pour l&apos;instant</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add a remote desktop, a web site or an application. Each connection appears as a tile on the home screen.</source>
        <translation>Ajoutez un bureau à distance, un site web ou une application. Chaque connexion apparaît sous forme de vignette sur l&apos;écran d&apos;accueil.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Kinds of connection that can be added on this terminal.</source>
        <translation>Types de connexion pouvant être ajoutés sur ce terminal.</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Remove connection?</source>
        <translation>Supprimer la connexion&#x202f;?</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>“%1” will be removed from this terminal, and its tile from the home screen.</source>
        <translation>La connexion «&#xa0;%1&#xa0;» sera supprimée de ce terminal, et sa vignette de l&apos;écran d&apos;accueil.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>“%1” removed.</source>
        <translation>Connexion «&#xa0;%1&#xa0;» supprimée.</translation>
    </message>
</context>
<context>
    <name>DateTimePage</name>
    <message>
        <location filename="../qml/vorplex/DateTimePage.qml" line="+68"/>
        <source>Enter a host name or address such as pool.ntp.org.</source>
        <translation>Saisissez un nom d&apos;hôte ou une adresse, par exemple pool.ntp.org.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Choose a time zone.</source>
        <translation>Choisissez un fuseau horaire.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Date and time settings applied.</source>
        <translation>Paramètres de date et d&apos;heure appliqués.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Without a time server the clock keeps the date and time set here.</source>
        <translation>Sans serveur de temps, l&apos;horloge conserve la date et l&apos;heure réglées ici.</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Previous month</source>
        <translation>Mois précédent</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Next month</source>
        <translation>Mois suivant</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>Clock format</source>
        <translation>Format de l&apos;heure</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>12-hour</source>
        <translation>12 heures</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>24-hour</source>
        <translation>24 heures</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PM</source>
        <translation>PM</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Time zone</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose a time zone</source>
        <translation>Choisir un fuseau horaire</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Time server (NTP)</source>
        <translation>Serveur de temps (NTP)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Leave empty to set the clock by hand.</source>
        <translation>Laissez vide pour régler l&apos;horloge manuellement.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>APPLY</source>
        <translation>APPLIQUER</translation>
    </message>
</context>
<context>
    <name>DiagnosisPage</name>
    <message>
        <location filename="../qml/vorplex/DiagnosisPage.qml" line="+18"/>
        <source>Enter a host name or address.</source>
        <translation>Saisissez un nom d&apos;hôte ou une adresse.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Enter a number of packages from 1.</source>
        <translation>Saisissez un nombre de paquets à partir de 1.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Enter a length from 0 to 65507 bytes.</source>
        <translation>Saisissez une longueur de 0 à 65507 octets.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Ping</source>
        <translation>Ping</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sends echo requests to a host and shows its answers.</source>
        <translation>Envoie des requêtes d&apos;écho à un hôte et affiche ses réponses.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Host</source>
        <translation>Hôte</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Keep sending packages:</source>
        <translation>Envoyer en continu&#xa0;:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Send only:</source>
        <translation>Envoyer seulement&#xa0;:</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Number of packages</source>
        <translation>Nombre de paquets</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Packet length (bytes)</source>
        <translation>Taille des paquets (octets)</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>The answers appear here.</source>
        <translation>Les réponses s&apos;affichent ici.</translation>
    </message>
</context>
<context>
    <name>DisplaysPage</name>
    <message>
        <location filename="../qml/vorplex/DisplaysPage.qml" line="+12"/>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Inverted Landscape</source>
        <translation>Paysage (retourné)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Left Portrait</source>
        <translation>Portrait (gauche)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Right Portrait</source>
        <translation>Portrait (droite)</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Choose a resolution and a refresh rate first.</source>
        <translation>Choisissez d&apos;abord une résolution et une fréquence de rafraîchissement.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>The previous display settings are back.</source>
        <translation>Les paramètres d&apos;affichage précédents sont rétablis.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Display settings kept.</source>
        <translation>Paramètres d&apos;affichage conservés.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Arrangement</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Displays from left to right. Select one to change its settings.</source>
        <translation>Écrans de gauche à droite. Sélectionnez-en un pour modifier ses paramètres.</translation>
    </message>
    <message>
        <location line="+74"/>
        <source>Primary</source>
        <translation>Principal</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>No display found</source>
        <translation>Aucun écran détecté</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Move left</source>
        <translation>Vers la gauche</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Move right</source>
        <translation>Vers la droite</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Make primary</source>
        <translation>Définir comme principal</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>IDENTIFY SCREENS</source>
        <translation>IDENTIFIER LES ÉCRANS</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Several displays</source>
        <translation>Plusieurs écrans</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Extend the desktop across the displays, or show the same picture on each.</source>
        <translation>Étendre le bureau sur les écrans ou afficher la même image sur chacun.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Extend</source>
        <translation>Étendre</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Mirror</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Display</source>
        <translation>Écran</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resolutions are listed from the smallest to the largest.</source>
        <translation>Les résolutions sont classées de la plus petite à la plus grande.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Refresh rate (Hz)</source>
        <translation>Fréquence de rafraîchissement (Hz)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>APPLY</source>
        <translation>APPLIQUER</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Displays reset to their default size.</source>
        <translation>Écrans remis à leur taille par défaut.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Keep these settings?</source>
        <translation>Conserver ces paramètres&#x202f;?</translation>
    </message>
    <message numerus="yes">
        <location line="+1"/>
        <source>The previous settings come back in %n second(s).</source>
        <translation>
            <numerusform>Les paramètres précédents seront rétablis dans %n seconde.</numerusform>
            <numerusform>Les paramètres précédents seront rétablis dans %n secondes.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keep settings</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Revert</source>
        <translation>Rétablir</translation>
    </message>
</context>
<context>
    <name>Dot1xPage</name>
    <message>
        <location filename="../qml/vorplex/Dot1xPage.qml" line="+11"/>
        <location line="+39"/>
        <location line="+12"/>
        <source>MD5</source>
        <translation>MD5</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>PWD</source>
        <translation>PWD</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>FAST</source>
        <translation>FAST</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Tunneled TLS</source>
        <translation>TLS tunnelé</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Protected EAP (PEAP)</source>
        <translation>EAP protégé (PEAP)</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+14"/>
        <location line="+10"/>
        <location line="+11"/>
        <location line="+11"/>
        <source>Username</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <location line="-45"/>
        <location line="+14"/>
        <location line="+10"/>
        <location line="+11"/>
        <location line="+11"/>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <location line="-43"/>
        <source>Identity</source>
        <translation>Identité</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+24"/>
        <location line="+11"/>
        <source>Domain</source>
        <translation>Domaine</translation>
    </message>
    <message>
        <location line="-34"/>
        <location line="+24"/>
        <location line="+11"/>
        <source>CA certificate</source>
        <translation>Certificat de l&apos;AC</translation>
    </message>
    <message>
        <location line="-34"/>
        <location line="+24"/>
        <source>CA certificate password</source>
        <translation>Mot de passe du certificat de l&apos;AC</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>User certificate</source>
        <translation>Certificat utilisateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User certificate password</source>
        <translation>Mot de passe du certificat utilisateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User private key</source>
        <translation>Clé privée de l&apos;utilisateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User key password</source>
        <translation>Mot de passe de la clé utilisateur</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+10"/>
        <location line="+11"/>
        <source>Anonymous identity</source>
        <translation>Identité anonyme</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>PAC provisioning</source>
        <translation>Provisionnement PAC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Anonymous</source>
        <translation>Anonyme</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Authenticated</source>
        <translation>Authentifié</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Both</source>
        <translation>Les deux</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PAC file</source>
        <translation>Fichier PAC</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <location line="+12"/>
        <source>Inner authentication</source>
        <translation>Authentification interne</translation>
    </message>
    <message>
        <location line="-21"/>
        <location line="+10"/>
        <location line="+12"/>
        <source>GTC</source>
        <translation>GTC</translation>
    </message>
    <message>
        <location line="-22"/>
        <location line="+10"/>
        <location line="+12"/>
        <source>MSCHAPv2</source>
        <translation>MSCHAPv2</translation>
    </message>
    <message>
        <location line="-12"/>
        <source>PAP</source>
        <translation>PAP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MSCHAP</source>
        <translation>MSCHAP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MSCHAPv2 (no EAP)</source>
        <translation>MSCHAPv2 (sans EAP)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CHAP</source>
        <translation>CHAP</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>PEAP version</source>
        <translation>Version de PEAP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version 0</source>
        <translation>Version 0</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version 1</source>
        <translation>Version 1</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Writing the 802.1X settings…</source>
        <translation>Enregistrement des paramètres 802.1X…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switching 802.1X off…</source>
        <translation>Désactivation de 802.1X…</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>802.1X is on with %1.</source>
        <translation>802.1X est activé avec %1.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>802.1X is off.</source>
        <translation>802.1X est désactivé.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>802.1X authentication</source>
        <translation>Authentification 802.1X</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The wired connection authenticates before it is let onto the network.</source>
        <translation>La connexion filaire s&apos;authentifie avant d&apos;être admise sur le réseau.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Off: the wired connection does not authenticate.</source>
        <translation>Désactivé&#xa0;: la connexion filaire ne s&apos;authentifie pas.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ask your network administrator which method and certificates your network uses.</source>
        <translation>Demandez à votre administrateur réseau quelle méthode et quels certificats votre réseau utilise.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Authentication</source>
        <translation>Authentification</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>No file chosen</source>
        <translation>Aucun fichier choisi</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Browse…</source>
        <translation>Parcourir…</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>ExportSettingsPage</name>
    <message>
        <location filename="../qml/vorplex/ExportSettingsPage.qml" line="+33"/>
        <source>The settings could not be saved: the drive cannot be written to.</source>
        <translation>Impossible d&apos;enregistrer les paramètres&#xa0;: le support n&apos;est pas accessible en écriture.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nothing was copied: the chosen settings do not exist on this terminal yet.</source>
        <translation>Rien n&apos;a été copié&#xa0;: les paramètres choisis n&apos;existent pas encore sur ce terminal.</translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>%n group(s) of settings saved to %1.</source>
        <translation>
            <numerusform>%n groupe de paramètres enregistré dans %1.</numerusform>
            <numerusform>%n groupes de paramètres enregistrés dans %1.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Choose what to copy to the USB drive.</source>
        <translation>Choisissez ce qui sera copié sur la clé USB.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A new folder named after this terminal and the current time is created on the drive.</source>
        <translation>Un nouveau dossier, nommé d&apos;après ce terminal et l&apos;heure actuelle, est créé sur le support.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to export settings</source>
        <translation>Choisir le dossier d&apos;exportation</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No removable drive found</source>
        <translation>Aucun support amovible trouvé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Insérez une clé USB, puis actualisez la liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Actualiser la liste des supports</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
</context>
<context>
    <name>FormPage</name>
    <message>
        <location filename="../qml/custom/NorbixUi/FormPage.qml" line="+15"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>HostnamePage</name>
    <message>
        <location filename="../qml/vorplex/HostnamePage.qml" line="+22"/>
        <source>Use 1 to 63 letters, digits and hyphens, not starting or ending with a hyphen.</source>
        <translation>Utilisez de 1 à 63 lettres, chiffres et tirets, sans tiret au début ni à la fin.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Setting the computer name…</source>
        <translation>Définition du nom de l&apos;ordinateur…</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Computer name set to %1.</source>
        <translation>Nom de l&apos;ordinateur défini sur %1.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Computer name: </source>
        <translation>Nom de l&apos;ordinateur&#xa0;: </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name of this terminal on the network and on the management server. Leave the field empty to use the name made from the network adapter.</source>
        <translation>Le nom de ce terminal sur le réseau et sur le serveur de gestion. Laissez le champ vide pour utiliser le nom formé à partir de la carte réseau.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Computer name</source>
        <translation>Nom de l&apos;ordinateur</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>ImportSettingsPage</name>
    <message numerus="yes">
        <location filename="../qml/vorplex/ImportSettingsPage.qml" line="+33"/>
        <source>%n group(s) of settings loaded.</source>
        <translation>
            <numerusform>%n groupe de paramètres chargé.</numerusform>
            <numerusform>%n groupes de paramètres chargés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>%n group(s) of settings loaded. Not in the saved set, so reset to their defaults: %1.</source>
        <translation>
            <numerusform>%n groupe de paramètres chargé. Absents de la sauvegarde, donc remis à leurs valeurs par défaut&#xa0;: %1.</numerusform>
            <numerusform>%n groupes de paramètres chargés. Absents de la sauvegarde, donc remis à leurs valeurs par défaut&#xa0;: %1.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Choose what to load. A chosen group that the saved set lacks is reset to its defaults.</source>
        <translation>Choisissez ce qui sera chargé. Un groupe choisi absent de la sauvegarde est remis à ses valeurs par défaut.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Saved settings are folders named after the terminal they came from and the time they were saved.</source>
        <translation>Les paramètres sauvegardés sont des dossiers nommés d&apos;après leur terminal d&apos;origine et l&apos;heure de la sauvegarde.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to import settings</source>
        <translation>Choisir le dossier d&apos;importation</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No saved settings found</source>
        <translation>Aucun paramètre sauvegardé trouvé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with exported settings, then refresh the list.</source>
        <translation>Insérez une clé USB contenant des paramètres exportés, puis actualisez la liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh folder list</source>
        <translation>Actualiser la liste des dossiers</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+16"/>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Import settings</source>
        <translation>Importer les paramètres</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The chosen settings of this terminal are replaced by the saved ones.</source>
        <translation>Les paramètres choisis de ce terminal sont remplacés par ceux de la sauvegarde.</translation>
    </message>
</context>
<context>
    <name>KeyboardPage</name>
    <message>
        <location filename="../qml/vorplex/KeyboardPage.qml" line="+25"/>
        <source>Unknown</source>
        <translation>Inconnue</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Current layout</source>
        <translation>Disposition actuelle</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Switching layouts</source>
        <translation>Changer de disposition</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Press Alt+Shift to switch to the next layout.</source>
        <translation>Appuyez sur Alt+Maj pour passer à la disposition suivante.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Layouts</source>
        <translation>Dispositions</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The preferred layout is active after power-on.</source>
        <translation>La disposition préférée est active après la mise sous tension.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Add layouts</source>
        <translation>Ajouter des dispositions</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Preferred</source>
        <translation>Préférée</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Make preferred</source>
        <translation>Définir comme préférée</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>No layouts chosen</source>
        <translation>Aucune disposition choisie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The keyboard uses the system&apos;s layout. Add the layouts you type with.</source>
        <translation>Le clavier utilise la disposition du système. Ajoutez les dispositions avec lesquelles vous tapez.</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <location filename="../qml/vorplex/LanguagePage.qml" line="+20"/>
        <source>Display language</source>
        <translation>Langue d&apos;affichage</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The language of this terminal&apos;s screens. Sessions keep their own language.</source>
        <translation>La langue des écrans de ce terminal. Les sessions conservent leur propre langue.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Language changed.</source>
        <translation>Langue modifiée.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The %1 translation could not be loaded; the language was not changed.</source>
        <translation>Impossible de charger la traduction %1&#x202f;; la langue n&apos;a pas été modifiée.</translation>
    </message>
</context>
<context>
    <name>LocalUpdaterBackend</name>
    <message>
        <location filename="../src/maintenance/LocalUpdaterBackend.cpp" line="+147"/>
        <location line="+39"/>
        <location line="+15"/>
        <source>The update service sent an answer that cannot be read.</source>
        <translation>Le service de mise à jour a envoyé une réponse illisible.</translation>
    </message>
    <message>
        <location line="-37"/>
        <source>The update service refused the request (HTTP %1).</source>
        <translation>Le service de mise à jour a refusé la demande (HTTP %1).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service did not answer in time.</source>
        <translation>Le service de mise à jour n&apos;a pas répondu à temps.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service is not running.</source>
        <translation>Le service de mise à jour n&apos;est pas démarré.</translation>
    </message>
</context>
<context>
    <name>LockedPage</name>
    <message>
        <location filename="../qml/vorplex/LockedPage.qml" line="+19"/>
        <source>Administrator access required</source>
        <translation>Accès administrateur requis</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This section changes how the terminal works for everyone who uses it. Unlock the advanced settings with the administrator password to continue.</source>
        <translation>Cette section modifie le fonctionnement du terminal pour tous ses utilisateurs. Déverrouillez les paramètres avancés avec le mot de passe administrateur pour continuer.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <location filename="../qml/vorplex/LogsPage.qml" line="+27"/>
        <source>Export finished.</source>
        <translation>Exportation terminée.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Debug logging</source>
        <translation>Journalisation de débogage</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Records detailed messages for troubleshooting. Logs grow faster while it is on.</source>
        <translation>Enregistre des messages détaillés pour le dépannage. Les journaux grossissent plus vite tant qu&apos;elle est active.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Export logs</source>
        <translation>Exporter les journaux</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save the logs to a USB drive, for example to pass them on to support.</source>
        <translation>Enregistrez les journaux sur une clé USB, par exemple pour les transmettre au support.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to export logs</source>
        <translation>Choisir le dossier d&apos;exportation des journaux</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No removable drive found</source>
        <translation>Aucun support amovible trouvé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Insérez une clé USB, puis actualisez la liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Actualiser la liste des supports</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Export all logs</source>
        <translation>Exporter tous les journaux</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Current session</source>
        <translation>Session en cours</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Messages logged since the shell was started.</source>
        <translation>Messages journalisés depuis le démarrage du shell.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>No messages logged yet.</source>
        <translation>Aucun message journalisé pour l&apos;instant.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <location filename="../qml/vorplex/Main.qml" line="+77"/>
        <source>This terminal has no network connection. Check the network cable or the Wi-Fi, then try again.</source>
        <translation>Ce terminal n&apos;a pas de connexion réseau. Vérifiez le câble réseau ou le Wi-Fi, puis réessayez.</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+233"/>
        <location line="+34"/>
        <source>Failed to connect</source>
        <translation>Échec de la connexion</translation>
    </message>
    <message>
        <location line="-257"/>
        <source>This connection is incomplete and can&apos;t be started. An administrator can complete it in Settings → Connections.</source>
        <translation>Cette connexion est incomplète et ne peut pas être démarrée. Un administrateur peut la compléter dans Paramètres → Connexions.</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Connecting to the Citrix store…</source>
        <translation>Connexion au magasin Citrix…</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Support desk</source>
        <translation>Service d&apos;assistance</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alex from IT support would like to see your screen to help with your ticket.</source>
        <translation>Alex, du support informatique, souhaite voir votre écran pour traiter votre ticket.</translation>
    </message>
    <message>
        <location line="+128"/>
        <source>Your request for help has been sent.</source>
        <translation>Votre demande d&apos;aide a été envoyée.</translation>
    </message>
    <message>
        <location line="+56"/>
        <source>“%1” added.</source>
        <translation>Connexion «&#xa0;%1&#xa0;» ajoutée.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Changes to “%1” saved.</source>
        <translation>Modifications de «&#xa0;%1&#xa0;» enregistrées.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Connection error</source>
        <translation>Erreur de connexion</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <location filename="../qml/vorplex/MainView.qml" line="+133"/>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connections</source>
        <translation>Connexions</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Show less</source>
        <translation>Afficher moins</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show all (%1)</source>
        <translation>Tout afficher (%1)</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>No connections yet</source>
        <translation>Aucune connexion pour l&apos;instant</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote desktops and applications will appear here as tiles. An administrator adds them in Settings → Connections.</source>
        <translation>Les bureaux à distance et les applications apparaîtront ici sous forme de vignettes. Un administrateur les ajoute dans Paramètres → Connexions.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Open connection settings</source>
        <translation>Ouvrir les paramètres de connexion</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>An administrator has seen your request for help and will contact you.</source>
        <translation>Un administrateur a pris connaissance de votre demande d&apos;aide et va vous contacter.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Norbix %1</source>
        <translation>Norbix %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Thin client terminal</source>
        <translation>Terminal client léger</translation>
    </message>
</context>
<context>
    <name>ManagementPage</name>
    <message>
        <location filename="../qml/vorplex/ManagementPage.qml" line="+20"/>
        <source>Enter an address such as wss://server.example.com/api/v1/ws.</source>
        <translation>Saisissez une adresse comme wss://server.example.com/api/v1/ws.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Server settings saved.</source>
        <translation>Paramètres du serveur enregistrés.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use letters, digits and hyphens only (at most 63).</source>
        <translation>Lettres, chiffres et traits d&apos;union uniquement (63 au maximum).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Computer name set to %1.</source>
        <translation>Nom de l&apos;ordinateur défini sur %1.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Use at least 6 characters.</source>
        <translation>Utilisez au moins 6 caractères.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remote assistance password set.</source>
        <translation>Mot de passe d&apos;assistance à distance défini.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Managed by a server</source>
        <translation>Géré par un serveur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The management server can change settings, connections and certificates, and update or restart this terminal.</source>
        <translation>Le serveur de gestion peut modifier les paramètres, les connexions et les certificats, et mettre à jour ou redémarrer ce terminal.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not managed</source>
        <translation>Non géré</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connected to the management server</source>
        <translation>Connecté au serveur de gestion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not connected; the terminal keeps trying</source>
        <translation>Non connecté&#x202f;; le terminal continue d&apos;essayer</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Where the terminal registers and which account it belongs to.</source>
        <translation>Où le terminal s&apos;enregistre et à quel compte il appartient.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Organisation account on the server</source>
        <translation>Compte de l&apos;organisation sur le serveur</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Save server settings</source>
        <translation>Enregistrer les paramètres du serveur</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Computer name</source>
        <translation>Nom de l&apos;ordinateur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name of this terminal on the server and on the network. Leave it empty to use the name made from the network adapter.</source>
        <translation>Le nom de ce terminal sur le serveur et sur le réseau. Laissez vide pour utiliser le nom dérivé de la carte réseau.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Set name</source>
        <translation>Définir le nom</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Remote assistance</source>
        <translation>Assistance à distance</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Password of this terminal&apos;s screen sharing, used when an administrator connects for support.</source>
        <translation>Mot de passe du partage d&apos;écran de ce terminal, utilisé quand un administrateur s&apos;y connecte pour l&apos;assistance.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>New password</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Set password</source>
        <translation>Définir le mot de passe</translation>
    </message>
</context>
<context>
    <name>ModalDialog</name>
    <message>
        <location filename="../qml/custom/NorbixUi/ModalDialog.qml" line="+11"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MousePage</name>
    <message>
        <location filename="../qml/vorplex/MousePage.qml" line="+29"/>
        <source>Pointer speed</source>
        <translation>Vitesse du pointeur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>How far the pointer moves for a movement of the mouse or touchpad.</source>
        <translation>La distance parcourue par le pointeur pour un mouvement de la souris ou du pavé tactile.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No mouse or touchpad with an adjustable speed is connected.</source>
        <translation>Aucune souris ni pavé tactile à vitesse réglable n&apos;est connecté.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>SLOW</source>
        <translation>LENT</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>FAST</source>
        <translation>RAPIDE</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Primary button</source>
        <translation>Bouton principal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The button that selects and opens; the other one opens menus.</source>
        <translation>Le bouton qui sélectionne et ouvre&#x202f;; l&apos;autre ouvre les menus.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Left button (right-handed)</source>
        <translation>Bouton gauche (droitier)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Right button (left-handed)</source>
        <translation>Bouton droit (gaucher)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Double-click time</source>
        <translation>Délai du double-clic</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The longest pause between the two clicks of a double-click.</source>
        <translation>La pause la plus longue entre les deux clics d&apos;un double-clic.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>NavItem</name>
    <message>
        <location filename="../qml/custom/NorbixUi/NavItem.qml" line="+21"/>
        <source>%1 (locked)</source>
        <translation>%1 (verrouillé)</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <location filename="../src/settings/NetworkManager.cpp" line="+304"/>
        <source>Browse certificate</source>
        <translation>Choisir un certificat</translation>
    </message>
</context>
<context>
    <name>NetworkStatus</name>
    <message>
        <location filename="../src/settings/NetworkStatus.cpp" line="+71"/>
        <source>Wired network</source>
        <translation>Réseau filaire</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Wi-Fi: %1</source>
        <translation>Wi-Fi : %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No network</source>
        <translation>Aucun réseau</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Network state unknown</source>
        <translation>État du réseau inconnu</translation>
    </message>
</context>
<context>
    <name>NetworkStatusBadge</name>
    <message>
        <location filename="../qml/vorplex/NetworkStatusBadge.qml" line="+46"/>
        <source>Management server reached</source>
        <translation>Serveur de gestion joignable</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Management server not reached</source>
        <translation>Serveur de gestion injoignable</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <location filename="../qml/custom/NorbixUi/PasswordField.qml" line="+58"/>
        <source>Hide password</source>
        <translation>Masquer le mot de passe</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
</context>
<context>
    <name>PlaceholderCard</name>
    <message>
        <location filename="../qml/custom/NorbixUi/PlaceholderCard.qml" line="+8"/>
        <source>Not available on this terminal yet</source>
        <translation>Pas encore disponible sur ce terminal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>These settings arrive with a later software update. Until then the terminal keeps its current configuration, and nothing here needs your attention.</source>
        <translation>Ces paramètres arriveront avec une prochaine mise à jour logicielle. D&apos;ici là, le terminal conserve sa configuration actuelle et rien ici ne demande votre attention.</translation>
    </message>
</context>
<context>
    <name>PowerActionsPage</name>
    <message>
        <location filename="../qml/vorplex/PowerActionsPage.qml" line="+20"/>
        <location line="+4"/>
        <location line="+20"/>
        <location line="+2"/>
        <source>Shut down</source>
        <translation>Éteindre</translation>
    </message>
    <message>
        <location line="-25"/>
        <source>Ends every session and switches the terminal off.</source>
        <translation>Ferme toutes les sessions et éteint le terminal.</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+4"/>
        <location line="+19"/>
        <location line="+2"/>
        <source>Restart</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>Ends every session and starts the terminal again.</source>
        <translation>Ferme toutes les sessions et redémarre le terminal.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Shut the terminal down now? Open sessions end and unsaved work in them is lost.</source>
        <translation>Éteindre le terminal maintenant&#x202f;? Les sessions ouvertes sont fermées et le travail non enregistré qu&apos;elles contiennent est perdu.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Restart the terminal now? Open sessions end and unsaved work in them is lost.</source>
        <translation>Redémarrer le terminal maintenant&#x202f;? Les sessions ouvertes sont fermées et le travail non enregistré qu&apos;elles contiennent est perdu.</translation>
    </message>
</context>
<context>
    <name>PowerPage</name>
    <message>
        <location filename="../qml/vorplex/PowerPage.qml" line="+19"/>
        <source>Power saving settings applied.</source>
        <translation>Paramètres d&apos;économie d&apos;énergie appliqués.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Power saving</source>
        <translation>Économie d&apos;énergie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Without keyboard or mouse input, the screen turns off and later the terminal goes to sleep.</source>
        <translation>Sans action sur le clavier ou la souris, l&apos;écran s&apos;éteint, puis le terminal se met en veille.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Turn off the screen after</source>
        <translation>Éteindre l&apos;écran après</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No turn off</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>1 minute</source>
        <translation>1 minute</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+7"/>
        <source>5 minutes</source>
        <translation>5 minutes</translation>
    </message>
    <message>
        <location line="-7"/>
        <location line="+7"/>
        <source>30 minutes</source>
        <translation>30 minutes</translation>
    </message>
    <message>
        <location line="-7"/>
        <location line="+7"/>
        <source>1 hour</source>
        <translation>1 heure</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Put the terminal to sleep after</source>
        <translation>Mettre le terminal en veille après</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No sleep</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>6 hours</source>
        <translation>6 heures</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>APPLY</source>
        <translation>APPLIQUER</translation>
    </message>
</context>
<context>
    <name>PrintersBackend</name>
    <message>
        <location filename="../src/settings/PrintersBackend.cpp" line="+72"/>
        <source>The printer could not be added.</source>
        <translation>Impossible d&apos;ajouter l&apos;imprimante.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Choose the printer&apos;s device.</source>
        <translation>Choisissez le périphérique de l&apos;imprimante.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choose a driver.</source>
        <translation>Choisissez un pilote.</translation>
    </message>
</context>
<context>
    <name>PrintersPage</name>
    <message>
        <location filename="../qml/vorplex/PrintersPage.qml" line="+35"/>
        <location line="+14"/>
        <source>Printer %1 added.</source>
        <translation>Imprimante %1 ajoutée.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Printing in sessions</source>
        <translation>Impression dans les sessions</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote sessions can print on this terminal&apos;s printers.</source>
        <translation>Les sessions distantes peuvent imprimer sur les imprimantes de ce terminal.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The default printer is the one sessions print to unless told otherwise.</source>
        <translation>L&apos;imprimante par défaut est celle sur laquelle les sessions impriment, sauf indication contraire.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Make default</source>
        <translation>Définir par défaut</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+114"/>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <location line="-99"/>
        <source>No printers</source>
        <translation>Aucune imprimante</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add a network printer by its address, or a printer connected by USB.</source>
        <translation>Ajoutez une imprimante réseau par son adresse, ou une imprimante connectée en USB.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Add a network printer</source>
        <translation>Ajouter une imprimante réseau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Printers that support IPP Everywhere (most printers made since 2012) need no driver.</source>
        <translation>Les imprimantes compatibles IPP Everywhere (la plupart de celles fabriquées depuis 2012) n&apos;ont pas besoin de pilote.</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+66"/>
        <source>Printer name</source>
        <translation>Nom de l&apos;imprimante</translation>
    </message>
    <message>
        <location line="-65"/>
        <source>For example Office_2nd_floor</source>
        <translation>Par exemple Bureau_2e_etage</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+65"/>
        <source>Letters, digits, _ . - + @; no spaces.</source>
        <translation>Lettres, chiffres, _ . - + @&#x202f;; sans espaces.</translation>
    </message>
    <message>
        <location line="-57"/>
        <source>Host name or address</source>
        <translation>Nom d&apos;hôte ou adresse</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+55"/>
        <source>Add printer</source>
        <translation>Ajouter l&apos;imprimante</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>Add a USB printer</source>
        <translation>Ajouter une imprimante USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connect the printer, then look for it and choose its driver.</source>
        <translation>Branchez l&apos;imprimante, puis recherchez-la et choisissez son pilote.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Look for USB printers</source>
        <translation>Rechercher les imprimantes USB</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No USB printer found</source>
        <translation>Aucune imprimante USB trouvée</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Look again</source>
        <translation>Rechercher à nouveau</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Driver</source>
        <translation>Pilote</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No drivers found</source>
        <translation>Aucun pilote trouvé</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Delete printer</source>
        <translation>Supprimer l&apos;imprimante</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delete the printer %1? Sessions can no longer print to it.</source>
        <translation>Supprimer l&apos;imprimante %1&#x202f;? Les sessions ne pourront plus imprimer dessus.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/settings/PrinterParsers.cpp" line="+42"/>
        <source>Enter a printer name.</source>
        <translation>Saisissez un nom d&apos;imprimante.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A printer name has at most 127 characters.</source>
        <translation>Un nom d&apos;imprimante comporte au plus 127 caractères.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A printer name may only contain letters, digits and _ . - + @ (no spaces, &quot;/&quot; or &quot;#&quot;).</source>
        <translation>Un nom d&apos;imprimante ne peut contenir que des lettres, des chiffres et _ . - + @ (ni espaces, ni «&#xa0;/&#xa0;», ni «&#xa0;#&#xa0;»).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Enter the printer&apos;s host name or address.</source>
        <translation>Saisissez le nom d&apos;hôte ou l&apos;adresse de l&apos;imprimante.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a host name or address.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est ni un nom d&apos;hôte ni une adresse.</translation>
    </message>
</context>
<context>
    <name>RDPConnector</name>
    <message>
        <location filename="../src/connectors/RDPConnector.cpp" line="+91"/>
        <source>Failed to authorize user</source>
        <translation>Échec de l&apos;autorisation de l&apos;utilisateur</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invalid IP</source>
        <translation>Adresse IP non valide</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Failed to connect</source>
        <translation>Échec de la connexion</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Host not found</source>
        <translation>Hôte introuvable</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Error: </source>
        <translation>Erreur&#xa0;: </translation>
    </message>
</context>
<context>
    <name>RDPLoginDialog</name>
    <message>
        <location filename="../qml/vorplex/RDPLoginDialog.qml" line="+32"/>
        <source>Sign in</source>
        <translation>Identification</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter your user name and password to start the session.</source>
        <translation>Saisissez votre nom d&apos;utilisateur et votre mot de passe pour démarrer la session.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter your user name and password for “%1”.</source>
        <translation>Saisissez votre nom d&apos;utilisateur et votre mot de passe pour «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter your user name and password for “%1” on %2.</source>
        <translation>Saisissez votre nom d&apos;utilisateur et votre mot de passe pour «&#xa0;%1&#xa0;» sur %2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connect</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>User name can&apos;t be empty</source>
        <translation>Le nom d&apos;utilisateur ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>User name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
</context>
<context>
    <name>ScreenListModel</name>
    <message>
        <location filename="../src/settings/ScreenListModel.cpp" line="+76"/>
        <source>Display %1</source>
        <translation>Écran %1</translation>
    </message>
</context>
<context>
    <name>ScreensBackend</name>
    <message>
        <location filename="../src/settings/ScreensBackend.cpp" line="+139"/>
        <location line="+5"/>
        <source>Display %1</source>
        <translation>Écran %1</translation>
    </message>
</context>
<context>
    <name>SectionCatalog</name>
    <message>
        <location filename="../qml/vorplex/SectionCatalog.qml" line="+9"/>
        <source>Connectivity</source>
        <translation>Connectivité</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connections</source>
        <translation>Connexions</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote sessions that appear as tiles on the home screen.</source>
        <translation>Sessions distantes affichées sous forme de vignettes sur l&apos;écran d&apos;accueil.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wired network</source>
        <translation>Réseau filaire</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ethernet addressing and DNS servers.</source>
        <translation>Adressage Ethernet et serveurs DNS.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wireless networks and saved credentials.</source>
        <translation>Réseaux sans fil et identifiants enregistrés.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>802.1X authentication</source>
        <translation>Authentification 802.1X</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Port-based network access control for wired and wireless networks.</source>
        <translation>Contrôle d&apos;accès réseau par port pour les réseaux filaires et sans fil.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Host name</source>
        <translation>Nom d&apos;hôte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name this terminal uses on the network.</source>
        <translation>Le nom de ce terminal sur le réseau.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Network diagnosis</source>
        <translation>Diagnostic réseau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Check that a host answers over the network.</source>
        <translation>Vérifier qu&apos;un hôte répond sur le réseau.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wi-Fi networks</source>
        <translation>Réseaux Wi-Fi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Join a wireless network approved by your administrator.</source>
        <translation>Rejoindre un réseau sans fil approuvé par votre administrateur.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Displays</source>
        <translation>Écrans</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resolution, arrangement and orientation of connected monitors.</source>
        <translation>Résolution, disposition et orientation des moniteurs connectés.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Power saving</source>
        <translation>Économie d&apos;énergie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Screen blanking and standby timing.</source>
        <translation>Extinction de l&apos;écran et délais de mise en veille.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date &amp; time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time zone, clock format and time servers.</source>
        <translation>Fuseau horaire, format de l&apos;horloge et serveurs de temps.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output and input devices and volume.</source>
        <translation>Périphériques de sortie et d&apos;entrée, volume.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard layout and key repeat.</source>
        <translation>Disposition du clavier et répétition des touches.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Mouse</source>
        <translation>Souris</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pointer speed, button order and double-click timing.</source>
        <translation>Vitesse du pointeur, ordre des boutons et délai du double-clic.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Display language and regional formats.</source>
        <translation>Langue d&apos;affichage et formats régionaux.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wallpaper</source>
        <translation>Fond d&apos;écran</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Background image of the home screen.</source>
        <translation>Image d&apos;arrière-plan de l&apos;écran d&apos;accueil.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>On-screen keyboard and high contrast.</source>
        <translation>Clavier virtuel et contraste élevé.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Devices</source>
        <translation>Périphériques</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Local and network printers available to sessions.</source>
        <translation>Imprimantes locales et réseau disponibles pour les sessions.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB storage</source>
        <translation>Stockage USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Access to USB drives on this terminal and in sessions.</source>
        <translation>Accès aux clés USB sur ce terminal et dans les sessions.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shut down &amp; restart</source>
        <translation>Arrêt et redémarrage</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Switch the terminal off or start it again.</source>
        <translation>Éteindre ou redémarrer le terminal.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Certificates</source>
        <translation>Certificats</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trusted certificate authorities and client certificates.</source>
        <translation>Autorités de certification de confiance et certificats clients.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Administrator password</source>
        <translation>Mot de passe administrateur</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The password that protects the advanced settings.</source>
        <translation>Le mot de passe qui protège les paramètres avancés.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Management</source>
        <translation>Gestion</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Management server</source>
        <translation>Serveur de gestion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Central management of this terminal.</source>
        <translation>Gestion centralisée de ce terminal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Software updates for this terminal.</source>
        <translation>Mises à jour logicielles de ce terminal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export settings</source>
        <translation>Exporter les paramètres</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save this terminal&apos;s configuration to a USB drive.</source>
        <translation>Enregistrer la configuration de ce terminal sur une clé USB.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import settings</source>
        <translation>Importer les paramètres</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Load a configuration from a USB drive.</source>
        <translation>Charger une configuration depuis une clé USB.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Support</source>
        <translation>Assistance</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Diagnostic messages of this session and export for support.</source>
        <translation>Messages de diagnostic de cette session et exportation pour le support.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>System information</source>
        <translation>Informations système</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hardware, software version and network details.</source>
        <translation>Matériel, version du logiciel et détails du réseau.</translation>
    </message>
</context>
<context>
    <name>SettingsGroupsCard</name>
    <message>
        <location filename="../qml/vorplex/SettingsGroupsCard.qml" line="+10"/>
        <source>Display settings</source>
        <translation>Paramètres d&apos;affichage</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard and Mouse</source>
        <translation>Clavier et souris</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language settings</source>
        <translation>Paramètres de langue</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connections</source>
        <translation>Connexions</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time settings</source>
        <translation>Paramètres de l&apos;heure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>API settings</source>
        <translation>Paramètres de l&apos;API</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Admin password</source>
        <translation>Mot de passe admin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wallpapers</source>
        <translation>Fonds d&apos;écran</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clear all</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <location filename="../qml/vorplex/SettingsView.qml" line="+109"/>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Back to home</source>
        <translation>Retour à l&apos;accueil</translation>
    </message>
    <message>
        <location line="+161"/>
        <source>Advanced settings</source>
        <translation>Mode avancé</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Unlocked</source>
        <translation>Déverrouillé</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Locked</source>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Lock</source>
        <translation>Verrouiller</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unlock</source>
        <translation>Déverrouiller</translation>
    </message>
</context>
<context>
    <name>SoundPage</name>
    <message>
        <location filename="../qml/vorplex/SoundPage.qml" line="+23"/>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Where the terminal and its sessions play sound.</source>
        <translation>Où le terminal et ses sessions diffusent le son.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Output device</source>
        <translation>Périphérique de sortie</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No output device found</source>
        <translation>Aucun périphérique de sortie trouvé</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <location line="+24"/>
        <location line="+38"/>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <location line="-28"/>
        <source>Test sound</source>
        <translation>Tester le son</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The recording level of the microphone.</source>
        <translation>Le niveau d&apos;enregistrement du microphone.</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Test microphone</source>
        <translation>Tester le microphone</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Recording for three seconds, then playing it back...</source>
        <translation>Enregistrement de trois secondes, puis lecture...</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Done. Did you hear yourself?</source>
        <translation>Terminé. Vous êtes-vous entendu&#x202f;?</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Speak after pressing: three seconds are recorded and played back.</source>
        <translation>Parlez après avoir appuyé&#xa0;: trois secondes sont enregistrées puis rejouées.</translation>
    </message>
</context>
<context>
    <name>SystemInfoModel</name>
    <message>
        <location filename="../src/settings/SystemInfoModel.cpp" line="+150"/>
        <source>Processor</source>
        <translation>Processeur</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Disks</source>
        <translation>Disques</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Disk %1</source>
        <translation>Disque %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Network adapters</source>
        <translation>Cartes réseau</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Network adapter %1</source>
        <translation>Carte réseau %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Displays</source>
        <translation>Écrans</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Display %1</source>
        <translation>Écran %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Shell version</source>
        <translation>Version du shell</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Kernel</source>
        <translation>Noyau</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Operating system</source>
        <translation>Système d&apos;exploitation</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>not installed</source>
        <translation>non installé</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: %2, %3 free</source>
        <translation>%1 : %2, %3 libres</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>system information</source>
        <translation>informations système</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+19"/>
        <source>Hardware</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <location line="-19"/>
        <location line="+19"/>
        <source>Software</source>
        <translation>Logiciels</translation>
    </message>
</context>
<context>
    <name>SystemInfoPage</name>
    <message>
        <location filename="../qml/vorplex/SystemInfoPage.qml" line="+27"/>
        <source>The system information is on the clipboard.</source>
        <translation>Les informations système sont dans le presse-papiers.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Saved as %1.</source>
        <translation>Enregistré sous %1.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The file could not be written to the drive.</source>
        <translation>Le fichier n&apos;a pas pu être écrit sur le support.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Reading system information…</source>
        <translation>Lecture des informations système…</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Hardware</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Software</source>
        <translation>Logiciels</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Send to support</source>
        <translation>Envoyer au support</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copy these facts, or save them as a text file on a USB drive.</source>
        <translation>Copiez ces informations ou enregistrez-les dans un fichier texte sur une clé USB.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Copy to clipboard</source>
        <translation>Copier dans le presse-papiers</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Drive</source>
        <translation>Support</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No removable drive found</source>
        <translation>Aucun support amovible trouvé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Insérez une clé USB, puis actualisez la liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Actualiser la liste des supports</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Save to drive</source>
        <translation>Enregistrer sur le support</translation>
    </message>
</context>
<context>
    <name>TeamsPopup</name>
    <message>
        <location filename="../qml/vorplex/TeamsPopup.qml" line="+33"/>
        <source>Microsoft Teams</source>
        <translation>Microsoft Teams</translation>
    </message>
</context>
<context>
    <name>TestConnectionButton</name>
    <message>
        <location filename="../qml/vorplex/TestConnectionButton.qml" line="+13"/>
        <source>Test connection</source>
        <translation>Tester la connexion</translation>
    </message>
</context>
<context>
    <name>Toast</name>
    <message>
        <location filename="../qml/custom/NorbixUi/Toast.qml" line="+76"/>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <location filename="../qml/vorplex/UpdatesPage.qml" line="+11"/>
        <source>Contacting the update service…</source>
        <translation>Connexion au service de mise à jour…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update service unavailable</source>
        <translation>Service de mise à jour indisponible</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Checking for updates</source>
        <translation>Recherche de mises à jour</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Downloading update</source>
        <translation>Téléchargement de la mise à jour</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installing update</source>
        <translation>Installation de la mise à jour</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update installed</source>
        <translation>Mise à jour installée</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update failed</source>
        <translation>Échec de la mise à jour</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>The terminal is being reset to its factory settings.</source>
        <translation>Le terminal est en cours de réinitialisation aux paramètres d&apos;usine.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service is installing the package.</source>
        <translation>Le service de mise à jour installe le paquet.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Check now</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Installed version: %1</source>
        <translation>Version installée&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Available updates</source>
        <translation>Mises à jour disponibles</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Versions the update service offers for this terminal.</source>
        <translation>Versions proposées par le service de mise à jour pour ce terminal.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>System %1</source>
        <translation>Système %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Shell %1</source>
        <translation>Shell %1</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>No updates available</source>
        <translation>Aucune mise à jour disponible</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No information about updates</source>
        <translation>Aucune information sur les mises à jour</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This terminal runs the newest software the update service knows of.</source>
        <translation>Ce terminal exécute la version la plus récente connue du service de mise à jour.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Available versions appear here while the update service is running.</source>
        <translation>Les versions disponibles apparaissent ici lorsque le service de mise à jour est actif.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Install updates automatically</source>
        <translation>Installer les mises à jour automatiquement</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A newer version of the shell is installed as soon as the update service offers it.</source>
        <translation>Une version plus récente du shell est installée dès que le service de mise à jour la propose.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Install from a USB drive</source>
        <translation>Installer depuis une clé USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>An update package (.deb) for terminals without access to the update server.</source>
        <translation>Un paquet de mise à jour (.deb) pour les terminaux sans accès au serveur de mises à jour.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Update package</source>
        <translation>Paquet de mise à jour</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No update packages found</source>
        <translation>Aucun paquet de mise à jour trouvé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with an update package, then refresh the list.</source>
        <translation>Insérez une clé USB contenant un paquet de mise à jour, puis actualisez la liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh package list</source>
        <translation>Actualiser la liste des paquets</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Install package</source>
        <translation>Installer le paquet</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+14"/>
        <source>Factory reset</source>
        <translation>Réinitialisation d&apos;usine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Every setting and connection of this terminal is erased and the terminal restarts with its factory settings.</source>
        <translation>Tous les paramètres et connexions de ce terminal sont effacés, puis le terminal redémarre avec ses paramètres d&apos;usine.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
</context>
<context>
    <name>UsbStoragePage</name>
    <message>
        <location filename="../qml/vorplex/UsbStoragePage.qml" line="+32"/>
        <source>USB storage</source>
        <translation>Stockage USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB drives plugged into this terminal are opened and can be used in sessions.</source>
        <translation>Les clés USB branchées sur ce terminal sont ouvertes et utilisables dans les sessions.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>USB storage is on.</source>
        <translation>Le stockage USB est activé.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>USB storage is off.</source>
        <translation>Le stockage USB est désactivé.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>USB devices</source>
        <translation>Périphériques USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Everything connected to this terminal&apos;s USB ports.</source>
        <translation>Tout ce qui est branché sur les ports USB de ce terminal.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Unnamed device</source>
        <translation>Périphérique sans nom</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No USB devices found</source>
        <translation>Aucun périphérique USB trouvé</translation>
    </message>
</context>
<context>
    <name>VMWareConnectDialog</name>
    <message>
        <location filename="../qml/vorplex/VMWareConnectDialog.qml" line="+33"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Le nom de la connexion ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>L&apos;adresse du serveur ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit VMWare Horizon Connection</source>
        <translation>Modifier la connexion VMware Horizon</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add VMWare Horizon Connection</source>
        <translation>Ajouter une connexion VMware Horizon</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A virtual desktop from a VMware Horizon connection server.</source>
        <translation>Un bureau virtuel fourni par un serveur de connexion VMware Horizon.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Ajouter une connexion</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Connection name</source>
        <translation>Nom de la connexion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Affiché sur l&apos;écran d&apos;accueil</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connection server, e.g. horizon.example.com</source>
        <translation>Serveur, p. ex. horizon.example.com</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Protocol</source>
        <translation>Protocole</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Display protocol of the desktop session.</source>
        <translation>Protocole d&apos;affichage de la session de bureau.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Credentials</source>
        <translation>Identifiants</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Mémoriser les identifiants</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>User name and password are saved with the connection.</source>
        <translation>Le nom d&apos;utilisateur et le mot de passe sont enregistrés avec la connexion.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are not saved with the connection.</source>
        <translation>Le nom d&apos;utilisateur et le mot de passe ne sont pas enregistrés avec la connexion.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Domain</source>
        <translation>Domaine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional</source>
        <translation>Facultatif</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional: the desktop pool to open</source>
        <translation>Facultatif&#xa0;: pool de bureaux à ouvrir</translation>
    </message>
</context>
<context>
    <name>VNCPasswordDialog</name>
    <message>
        <location filename="../qml/vorplex/VNCPasswordDialog.qml" line="+30"/>
        <source>VNC password</source>
        <translation>Mot de passe VNC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the VNC password for “%1”.</source>
        <translation>Saisissez le mot de passe VNC de « %1 ».</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the VNC password to start the session.</source>
        <translation>Saisissez le mot de passe VNC pour démarrer la session.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connect</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Password can&apos;t be empty</source>
        <translation>Le mot de passe ne peut pas être vide</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
</context>
<context>
    <name>WallpaperPage</name>
    <message>
        <location filename="../qml/vorplex/WallpaperPage.qml" line="+26"/>
        <source>Wallpaper set to %1.</source>
        <translation>Fond d&apos;écran défini sur %1.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Current background</source>
        <translation>Arrière-plan actuel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The built-in background</source>
        <translation>L&apos;arrière-plan intégré</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Use the built-in background</source>
        <translation>Utiliser l&apos;arrière-plan intégré</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Pictures on USB drives</source>
        <translation>Images sur les clés USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PNG and JPEG images on the drives connected to this terminal. The picture is copied to the terminal.</source>
        <translation>Images PNG et JPEG des clés branchées sur ce terminal. L&apos;image est copiée sur le terminal.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>%1 (not an image)</source>
        <translation>%1 (pas une image)</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>No pictures found</source>
        <translation>Aucune image trouvée</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with PNG or JPEG pictures, then refresh.</source>
        <translation>Insérez une clé USB contenant des images PNG ou JPEG, puis actualisez.</translation>
    </message>
</context>
<context>
    <name>WallpapersManager</name>
    <message>
        <location filename="../src/settings/WallpapersManager.cpp" line="+78"/>
        <source>The file %1 cannot be read.</source>
        <translation>Impossible de lire le fichier %1.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 is not a PNG or JPEG image.</source>
        <translation>%1 n&apos;est pas une image PNG ou JPEG.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The image could not be copied to the terminal.</source>
        <translation>Impossible de copier l&apos;image sur le terminal.</translation>
    </message>
</context>
<context>
    <name>WifiPage</name>
    <message>
        <location filename="../qml/vorplex/WifiPage.qml" line="+29"/>
        <location line="+214"/>
        <source>Connecting to %1…</source>
        <translation>Connexion à %1…</translation>
    </message>
    <message>
        <location line="-179"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The radio is on.</source>
        <translation>La radio est activée.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The radio is off.</source>
        <translation>La radio est désactivée.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This terminal has no Wi-Fi adapter.</source>
        <translation>Ce terminal n&apos;a pas d&apos;adaptateur Wi-Fi.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Switching the radio on…</source>
        <translation>Activation de la radio…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switching the radio off…</source>
        <translation>Désactivation de la radio…</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Networks in range</source>
        <translation>Réseaux à portée</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hidden networks are listed under the address of their access point.</source>
        <translation>Les réseaux masqués sont listés sous l&apos;adresse de leur point d&apos;accès.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>No networks found</source>
        <translation>Aucun réseau trouvé</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Wi-Fi is off</source>
        <translation>Le Wi-Fi est désactivé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The list is refreshed every few seconds.</source>
        <translation>La liste est actualisée toutes les quelques secondes.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switch the radio on to see networks in range.</source>
        <translation>Activez la radio pour voir les réseaux à portée.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Signal %1 %</source>
        <translation>Signal %1&#xa0;%</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Secured</source>
        <translation>Sécurisé</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Open</source>
        <translation>Ouvert</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+115"/>
        <source>Connect</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <location line="-110"/>
        <source>Disconnect</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Disconnecting from %1…</source>
        <translation>Déconnexion de %1…</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Saved networks</source>
        <translation>Réseaux enregistrés</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks shown for users appear on the user&apos;s Wi-Fi list; one network can connect by itself at start.</source>
        <translation>Les réseaux affichés pour les utilisateurs apparaissent dans leur liste Wi-Fi&#x202f;; un réseau peut se connecter seul au démarrage.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>AUTO CONNECT</source>
        <translation>CONNEXION AUTO</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>SHOW FOR USER</source>
        <translation>VISIBLE UTILISATEUR</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>OPTIONS</source>
        <translation>OPTIONS</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>No saved networks</source>
        <translation>Aucun réseau enregistré</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks this terminal has joined are kept here.</source>
        <translation>Les réseaux rejoints par ce terminal sont conservés ici.</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connect to %1 at start</source>
        <translation>Se connecter à %1 au démarrage</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Show %1 for users</source>
        <translation>Afficher %1 pour les utilisateurs</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Forget %1</source>
        <translation>Oublier %1</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connect to %1</source>
        <translation>Se connecter à %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the password of the network %1.</source>
        <translation>Saisissez le mot de passe du réseau %1.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Forget network</source>
        <translation>Oublier le réseau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Forget %1? The terminal will need the password again to join it.</source>
        <translation>Oublier %1&#x202f;? Le terminal aura de nouveau besoin du mot de passe pour s&apos;y connecter.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Forgetting %1…</source>
        <translation>Oubli de %1…</translation>
    </message>
</context>
<context>
    <name>WifiUserPage</name>
    <message>
        <location filename="../qml/vorplex/WifiUserPage.qml" line="+32"/>
        <source>Available networks</source>
        <translation>Réseaux disponibles</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks approved by your administrator that are in range.</source>
        <translation>Réseaux approuvés par votre administrateur et à portée.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>No approved network in range</source>
        <translation>Aucun réseau approuvé à portée</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ask your administrator to approve a network for users.</source>
        <translation>Demandez à votre administrateur d&apos;approuver un réseau pour les utilisateurs.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Disconnect</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Connect</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Disconnecting from %1…</source>
        <translation>Déconnexion de %1…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Connecting to %1…</source>
        <translation>Connexion à %1…</translation>
    </message>
</context>
<context>
    <name>WiredNetworkPage</name>
    <message>
        <location filename="../qml/vorplex/WiredNetworkPage.qml" line="+27"/>
        <location line="+1"/>
        <location line="+1"/>
        <location line="+2"/>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Enter an address such as 192.168.1.20.</source>
        <translation>Saisissez une adresse telle que 192.168.1.20.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter a mask such as 255.255.255.0.</source>
        <translation>Saisissez un masque tel que 255.255.255.0.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Enter an address, or leave it empty.</source>
        <translation>Saisissez une adresse ou laissez le champ vide.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Applying the settings of %1…</source>
        <translation>Application des paramètres de %1…</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Settings applied. The interface now reports the values shown.</source>
        <translation>Paramètres appliqués. L&apos;interface indique maintenant les valeurs affichées.</translation>
    </message>
    <message>
        <location line="+12"/>
        <location line="+14"/>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>The network adapter to configure and what it reports now.</source>
        <translation>La carte réseau à configurer et ce qu&apos;elle indique actuellement.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>No network interface found</source>
        <translation>Aucune interface réseau trouvée</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+26"/>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <location line="-25"/>
        <location line="+26"/>
        <source>Subnet mask</source>
        <translation>Masque de sous-réseau</translation>
    </message>
    <message>
        <location line="-25"/>
        <location line="+26"/>
        <source>Gateway</source>
        <translation>Passerelle</translation>
    </message>
    <message>
        <location line="-25"/>
        <source>DNS servers</source>
        <translation>Serveurs DNS</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>IPv4 addressing</source>
        <translation>Adressage IPv4</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic takes address, gateway and DNS from the network&apos;s DHCP server.</source>
        <translation>En automatique, l&apos;adresse, la passerelle et le DNS viennent du serveur DHCP du réseau.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Automatic (DHCP)</source>
        <translation>Automatique (DHCP)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>DNS server 1</source>
        <translation>Serveur DNS 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DNS server 2</source>
        <translation>Serveur DNS 2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DNS server 3</source>
        <translation>Serveur DNS 3</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>WizardNetworkPage</name>
    <message>
        <location filename="../qml/vorplex/WizardNetworkPage.qml" line="+26"/>
        <source>Wired network</source>
        <translation>Réseau filaire</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A network cable brings this terminal online without further settings.</source>
        <translation>Un câble réseau suffit pour connecter ce terminal, sans autre réglage.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Address %1</source>
        <translation>Adresse %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Plug in a network cable, or join a Wi-Fi network below.</source>
        <translation>Branchez un câble réseau ou rejoignez un réseau Wi-Fi ci-dessous.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Join a wireless network when there is no cable.</source>
        <translation>Rejoignez un réseau sans fil en l&apos;absence de câble.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Choose a Wi-Fi network…</source>
        <translation>Choisir un réseau Wi-Fi…</translation>
    </message>
</context>
<context>
    <name>WizardView</name>
    <message>
        <location filename="../qml/vorplex/WizardView.qml" line="+18"/>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the language of this terminal&apos;s screens.</source>
        <translation>Choisissez la langue des écrans de ce terminal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the keyboard layouts you type with.</source>
        <translation>Choisissez les dispositions de clavier que vous utilisez.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Bring this terminal online.</source>
        <translation>Connectez ce terminal au réseau.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date &amp; time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set the time zone and the clock.</source>
        <translation>Réglez le fuseau horaire et l&apos;horloge.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Management server</source>
        <translation>Serveur de gestion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional: let a management server look after this terminal.</source>
        <translation>Facultatif : confiez la gestion de ce terminal à un serveur de gestion.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+64"/>
        <source>Welcome to your terminal</source>
        <translation>Bienvenue sur votre terminal</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
</context>
</TS>
