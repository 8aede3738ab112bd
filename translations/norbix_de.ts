<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AccessibilityPage</name>
    <message>
        <location filename="../qml/vorplex/AccessibilityPage.qml" line="+12"/>
        <source>Touch and reading</source>
        <translation>Touch und Lesbarkeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High contrast takes effect at once.</source>
        <translation>Der hohe Kontrast wirkt sofort.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>On-screen keyboard</source>
        <translation>Bildschirmtastatur</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The on-screen keyboard appears after the next start of the terminal.</source>
        <translation>Die Bildschirmtastatur erscheint nach dem nächsten Start des Terminals.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A keyboard appears on the screen whenever a text field is chosen. Its layout follows the display language.</source>
        <translation>Sobald ein Textfeld gewählt wird, erscheint eine Tastatur auf dem Bildschirm. Ihr Layout folgt der Anzeigesprache.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Black text on white, strong outlines and a clearly marked focus.</source>
        <translation>Schwarzer Text auf Weiß, kräftige Umrisse und deutlich markierter Fokus.</translation>
    </message>
</context>
<context>
    <name>AddBrowserConnection</name>
    <message>
        <location filename="../qml/vorplex/AddBrowserConnection.qml" line="+26"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Der Verbindungsname darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Die Serveradresse darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit Browser Connection</source>
        <translation>Browser-Verbindung bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add Browser Connection</source>
        <translation>Browser-Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A web site or web application in the browser.</source>
        <translation>Eine Website oder Webanwendung im Browser.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connection name</source>
        <translation>Verbindungsname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Wird auf dem Startbildschirm angezeigt</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Site</source>
        <translation>Website</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>e.g. https://intranet.example.com</source>
        <translation>z. B. https://intranet.example.com</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Kiosk mode</source>
        <translation>Kioskmodus</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Full screen, without address bar, tabs or menus.</source>
        <translation>Vollbild ohne Adressleiste, Tabs oder Menüs.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Private window</source>
        <translation>Privates Fenster</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nothing from earlier visits is kept: no history, cookies or cache.</source>
        <translation>Von früheren Besuchen bleibt nichts erhalten: kein Verlauf, keine Cookies, kein Cache.</translation>
    </message>
</context>
<context>
    <name>AddCitrixConnection</name>
    <message>
        <location filename="../qml/vorplex/AddCitrixConnection.qml" line="+29"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Die Serveradresse darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Der Verbindungsname darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Edit Citrix Connection</source>
        <translation>Citrix-Verbindung bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add Citrix Connection</source>
        <translation>Citrix-Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A published desktop or application from a Citrix store.</source>
        <translation>Ein veröffentlichter Desktop oder eine Anwendung aus einem Citrix-Store.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Connection name</source>
        <translation>Verbindungsname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Wird auf dem Startbildschirm angezeigt</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Store address, e.g. https://citrix.example.com</source>
        <translation>Store-Adresse, z. B. https://citrix.example.com</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Credentials</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Anmeldedaten speichern</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>User name and password are saved with the connection.</source>
        <translation>Benutzername und Passwort werden mit der Verbindung gespeichert.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are only used to browse resources and are not saved.</source>
        <translation>Benutzername und Passwort dienen nur zum Durchsuchen der Ressourcen und werden nicht gespeichert.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Passwort</translation>
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
        <translation>Der Desktop oder die Anwendung, die diese Verbindung öffnet.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Name as the store lists it</source>
        <translation>Name, wie er im Store aufgeführt ist</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Browse resources</source>
        <translation>Ressourcen durchsuchen</translation>
    </message>
</context>
<context>
    <name>AddLayoutDialog</name>
    <message>
        <location filename="../qml/vorplex/AddLayoutDialog.qml" line="+16"/>
        <source>Add keyboard layouts</source>
        <translation>Tastaturbelegungen hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language or country</source>
        <translation>Sprache oder Land</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Loading info...</source>
        <translation>Informationen werden geladen...</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The list of keyboard layouts could not be read.</source>
        <translation>Die Liste der Tastaturbelegungen konnte nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>AddPuttyConnection</name>
    <message>
        <location filename="../qml/vorplex/AddPuttyConnection.qml" line="+26"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Der Verbindungsname darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Edit PuTTY Connection</source>
        <translation>PuTTY-Verbindung bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add PuTTY Connection</source>
        <translation>PuTTY-Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A terminal session to a server or network device.</source>
        <translation>Eine Terminalsitzung zu einem Server oder Netzwerkgerät.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Connection name</source>
        <translation>Verbindungsname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Wird auf dem Startbildschirm angezeigt</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Host name or IP address</source>
        <translation>Hostname oder IP-Adresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+11"/>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
</context>
<context>
    <name>AddRDPConnection</name>
    <message>
        <location filename="../qml/vorplex/AddRDPConnection.qml" line="+38"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Der Verbindungsname darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Die Serveradresse darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit RDP Connection</source>
        <translation>RDP-Verbindung bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add RDP Connection</source>
        <translation>RDP-Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A Windows desktop or server reached over Remote Desktop.</source>
        <translation>Ein Windows-Desktop oder -Server, der über Remotedesktop erreicht wird.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Connection name</source>
        <translation>Verbindungsname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Wird auf dem Startbildschirm angezeigt</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+131"/>
        <source>Host name or IP address</source>
        <translation>Hostname oder IP-Adresse</translation>
    </message>
    <message>
        <location line="-121"/>
        <source>Credentials</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Anmeldedaten speichern</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The session starts without asking for a password.</source>
        <translation>Die Sitzung startet ohne Passwortabfrage.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are asked for each time the session starts.</source>
        <translation>Benutzername und Passwort werden bei jedem Sitzungsstart abgefragt.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+95"/>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <location line="-87"/>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The session fills the whole screen.</source>
        <translation>Die Sitzung füllt den ganzen Bildschirm.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Multi-monitor</source>
        <translation>Mehrere Bildschirme</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The session spans every connected display.</source>
        <translation>Die Sitzung erstreckt sich über alle angeschlossenen Bildschirme.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Smart card</source>
        <translation>Smartcard</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sign in to the session with a smart card in this terminal&apos;s reader.</source>
        <translation>Anmeldung an der Sitzung mit einer Smartcard im Kartenleser dieses Terminals.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>USB redirection</source>
        <translation>USB-Umleitung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB devices plugged into this terminal appear in the session.</source>
        <translation>An dieses Terminal angeschlossene USB-Geräte erscheinen in der Sitzung.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Printers set up on this terminal can be used from the session.</source>
        <translation>Auf diesem Terminal eingerichtete Drucker sind in der Sitzung nutzbar.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Only needed when the server is reached through a Remote Desktop Gateway.</source>
        <translation>Nur nötig, wenn der Server über ein Remotedesktop-Gateway erreicht wird.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Gateway host</source>
        <translation>Gateway-Host</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Gateway user name</source>
        <translation>Gateway-Benutzername</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Gateway domain</source>
        <translation>Gateway-Domäne</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Gateway password</source>
        <translation>Gateway-Passwort</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Performance</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Best quality suits fast networks; Fastest lowers colour depth and effects for slow links.</source>
        <translation>„Beste Qualität“ eignet sich für schnelle Netzwerke; „Am schnellsten“ verringert Farbtiefe und Effekte für langsame Verbindungen.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Best quality</source>
        <translation>Beste Qualität</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Fastest</source>
        <translation>Am schnellsten</translation>
    </message>
</context>
<context>
    <name>AddVNCConnection</name>
    <message>
        <location filename="../qml/vorplex/AddVNCConnection.qml" line="+32"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Die Serveradresse darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter a host name or IP address, optionally followed by a colon and a port</source>
        <translation>Geben Sie einen Hostnamen oder eine IP-Adresse ein, optional gefolgt von einem Doppelpunkt und einem Port</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The port must be a number from 1 to 65535</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Der Verbindungsname darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Edit VNC Connection</source>
        <translation>VNC-Verbindung bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add VNC Connection</source>
        <translation>VNC-Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A remote screen shown in this terminal&apos;s own VNC viewer.</source>
        <translation>Ein entfernter Bildschirm im VNC-Viewer dieses Terminals.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Connection name</source>
        <translation>Verbindungsname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Wird auf dem Startbildschirm angezeigt</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>host or host:port</source>
        <translation>Host oder Host:Port</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Port 5900 when none is given</source>
        <translation>Port 5900, wenn keiner angegeben ist</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+22"/>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Remember password</source>
        <translation>Passwort speichern</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The password is stored encrypted on this terminal.</source>
        <translation>Das Passwort wird verschlüsselt auf diesem Terminal gespeichert.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The password is not stored; servers that ask for one refuse the session.</source>
        <translation>Das Passwort wird nicht gespeichert; Server, die eines verlangen, lehnen die Sitzung ab.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Viewer window</source>
        <translation>Viewer-Fenster</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Full screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The remote screen fills the whole display.</source>
        <translation>Der entfernte Bildschirm füllt die ganze Anzeige.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Shrink to fit</source>
        <translation>Verkleinern und einpassen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Large remote screens are scaled down to the window instead of scrolled.</source>
        <translation>Große entfernte Bildschirme werden auf das Fenster verkleinert statt gescrollt.</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+19"/>
        <source>Window size</source>
        <translation>Fenstergröße</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Share of this terminal&apos;s screen taken by the viewer window, from its top left corner.</source>
        <translation>Anteil des Bildschirms, den das Viewer-Fenster von der linken oberen Ecke aus einnimmt.</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>AdminConnectionPopup</name>
    <message>
        <location filename="../qml/vorplex/AdminConnectionPopup.qml" line="+19"/>
        <source>Allow remote connection</source>
        <translation>Fernverbindung erlauben</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Accept</source>
        <translation>Annehmen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reject</source>
        <translation>Ablehnen</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Request will be accepted automatically in %1 seconds</source>
        <translation>Die Anfrage wird in %1 Sekunden automatisch angenommen</translation>
    </message>
</context>
<context>
    <name>AdminLoginDialog</name>
    <message>
        <location filename="../qml/vorplex/AdminLoginDialog.qml" line="+11"/>
        <source>Administrator access</source>
        <translation>Administratorzugriff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Advanced settings are protected. Enter the administrator password to unlock them.</source>
        <translation>Die erweiterten Einstellungen sind geschützt. Geben Sie das Administratorpasswort ein, um sie zu entsperren.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Wrong password. Please try again.</source>
        <translation>Falsches Passwort. Bitte erneut versuchen.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Administrator password</source>
        <translation>Administratorpasswort</translation>
    </message>
</context>
<context>
    <name>AdminPasswordPage</name>
    <message>
        <location filename="../qml/vorplex/AdminPasswordPage.qml" line="+16"/>
        <source>The current password is not correct.</source>
        <translation>Das aktuelle Passwort ist nicht korrekt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Enter a new password.</source>
        <translation>Geben Sie ein neues Passwort ein.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The passwords do not match.</source>
        <translation>Die Passwörter stimmen nicht überein.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Administrator password changed.</source>
        <translation>Administratorpasswort geändert.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Change administrator password</source>
        <translation>Administratorpasswort ändern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Anyone who knows this password can change the advanced settings of this terminal.</source>
        <translation>Wer dieses Passwort kennt, kann die erweiterten Einstellungen dieses Terminals ändern.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Current password</source>
        <translation>Aktuelles Passwort</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>New password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Repeat new password</source>
        <translation>Neues Passwort wiederholen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Change password</source>
        <translation>Passwort ändern</translation>
    </message>
</context>
<context>
    <name>AssistanceBanner</name>
    <message>
        <location filename="../qml/vorplex/AssistanceBanner.qml" line="+35"/>
        <source>Remote assistance active</source>
        <translation>Fernwartung aktiv</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>End assistance</source>
        <translation>Fernwartung beenden</translation>
    </message>
</context>
<context>
    <name>CertificateCountBadge</name>
    <message numerus="yes">
        <location filename="../qml/vorplex/CertificateCountBadge.qml" line="+16"/>
        <source>%n certificate(s) expired or expiring soon</source>
        <translation>
            <numerusform>%n Zertifikat abgelaufen oder läuft bald ab</numerusform>
            <numerusform>%n Zertifikate abgelaufen oder laufen bald ab</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CertificateExpiry</name>
    <message>
        <location filename="../src/maintenance/CertificateExpiry.cpp" line="+44"/>
        <source>Expired on %1</source>
        <translation>Abgelaufen am %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expires on %1</source>
        <translation>Läuft am %1 ab</translation>
    </message>
</context>
<context>
    <name>CertificatesModel</name>
    <message>
        <location filename="../src/maintenance/CertificatesModel.cpp" line="+7"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not before</source>
        <translation>Gültig ab</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not after</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
</context>
<context>
    <name>CertificatesPage</name>
    <message>
        <location filename="../qml/vorplex/CertificatesPage.qml" line="+42"/>
        <source>Enter the password of the certificate file.</source>
        <translation>Geben Sie das Passwort der Zertifikatsdatei ein.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Certificate added</source>
        <translation>Zertifikat hinzugefügt</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Import a certificate</source>
        <translation>Zertifikat importieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Certificate files (.crt, .cer, .der, .pfx) on a USB drive. The certificate is trusted by this terminal and its sessions.</source>
        <translation>Zertifikatsdateien (.crt, .cer, .der, .pfx) auf einem USB-Laufwerk. Dieses Terminal und seine Sitzungen vertrauen dem Zertifikat.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Certificate file</source>
        <translation>Zertifikatsdatei</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No certificate files found</source>
        <translation>Keine Zertifikatsdateien gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with certificate files, then refresh the list.</source>
        <translation>Stecken Sie ein USB-Laufwerk mit Zertifikatsdateien ein und aktualisieren Sie die Liste.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Refresh file list</source>
        <translation>Dateiliste aktualisieren</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password of the certificate file</source>
        <translation>Passwort der Zertifikatsdatei</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Installed certificates</source>
        <translation>Installierte Zertifikate</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Authorities this terminal trusts in addition to the system&apos;s own.</source>
        <translation>Zertifizierungsstellen, denen dieses Terminal zusätzlich zu denen des Systems vertraut.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Show all certificates</source>
        <translation>Alle Zertifikate anzeigen</translation>
    </message>
    <message>
        <location line="+64"/>
        <source>System certificate</source>
        <translation>Systemzertifikat</translation>
    </message>
    <message>
        <location line="+46"/>
        <location line="+26"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>No certificates installed</source>
        <translation>Keine Zertifikate installiert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import a certificate from a USB drive, or show the system&apos;s certificates too.</source>
        <translation>Importieren Sie ein Zertifikat von einem USB-Laufwerk, oder lassen Sie auch die Systemzertifikate anzeigen.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Remove certificate</source>
        <translation>Zertifikat entfernen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove %1? This terminal and its sessions will no longer trust the servers it vouches for.</source>
        <translation>%1 entfernen? Dieses Terminal und seine Sitzungen vertrauen den damit beglaubigten Servern dann nicht mehr.</translation>
    </message>
</context>
<context>
    <name>CertificatesStorage</name>
    <message>
        <location filename="../src/maintenance/CertificatesStorage.cpp" line="+204"/>
        <source>The file name %1 has no name before its extension.</source>
        <translation>Der Dateiname %1 enthält vor der Dateiendung keinen Namen.</translation>
    </message>
</context>
<context>
    <name>CitrixProgressPopup</name>
    <message>
        <location filename="../qml/vorplex/CitrixProgressPopup.qml" line="+55"/>
        <source>Citrix resources</source>
        <translation>Citrix-Ressourcen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Citrix</source>
        <translation>Citrix</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Use resource</source>
        <translation>Ressource verwenden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>The store offers no resources for this account.</source>
        <translation>Der Store bietet für dieses Konto keine Ressourcen an.</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>Contacting the Citrix store…</source>
        <translation>Verbindung zum Citrix-Store wird hergestellt…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Starting the Citrix session…</source>
        <translation>Citrix-Sitzung wird gestartet…</translation>
    </message>
</context>
<context>
    <name>ConnectionCheck</name>
    <message>
        <location filename="../src/connectors/ConnectionCheck.cpp" line="+215"/>
        <source>Reading the address</source>
        <translation>Adresse wird gelesen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Finding the server</source>
        <translation>Server wird gesucht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connecting to port %1</source>
        <translation>Verbindung mit Port %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Secure handshake</source>
        <translation>Sicherer Verbindungsaufbau</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Enter the server&apos;s address first</source>
        <translation>Geben Sie zuerst die Adresse des Servers ein</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The address must not contain spaces</source>
        <translation>Die Adresse darf keine Leerzeichen enthalten</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter the server&apos;s name or address without &quot;%1&quot; in front</source>
        <translation>Geben Sie den Namen oder die Adresse des Servers ohne „%1“ davor ein</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Only https:// and http:// addresses can be checked, not &quot;%1&quot;</source>
        <translation>Nur https://- und http://-Adressen können geprüft werden, nicht „%1“</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The port must be a number from 1 to 65535</source>
        <translation>Der Port muss eine Zahl von 1 bis 65535 sein</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a valid server name or address</source>
        <translation>„%1“ ist kein gültiger Servername und keine gültige Adresse</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a valid IPv6 address; write it in brackets to add a port, like [2001:db8::1]:3389</source>
        <translation>„%1“ ist keine gültige IPv6-Adresse; setzen Sie sie in eckige Klammern, um einen Port anzugeben, z. B. [2001:db8::1]:3389</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>This kind of connection cannot be checked</source>
        <translation>Diese Art von Verbindung kann nicht geprüft werden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server name cannot be found</source>
        <translation>Der Servername wurde nicht gefunden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nothing answers on port %1</source>
        <translation>Auf Port %1 antwortet nichts</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server does not answer on port %1</source>
        <translation>Der Server antwortet nicht auf Port %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server cannot be reached: %1</source>
        <translation>Der Server ist nicht erreichbar: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers on port %1 but the secure handshake failed: %2</source>
        <translation>Der Server antwortet auf Port %1, aber der sichere Verbindungsaufbau ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers but its certificate expired on %1</source>
        <translation>Der Server antwortet, aber sein Zertifikat ist am %1 abgelaufen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers but its certificate is only valid from %1</source>
        <translation>Der Server antwortet, aber sein Zertifikat ist erst ab %1 gültig</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The server answers but its certificate is self-signed and not trusted by this terminal</source>
        <translation>Der Server antwortet, aber sein Zertifikat ist selbst signiert und wird von diesem Terminal nicht als vertrauenswürdig eingestuft</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The server answers but its certificate is not trusted by this terminal</source>
        <translation>Der Server antwortet, aber dieses Terminal vertraut seinem Zertifikat nicht</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The check was cancelled</source>
        <translation>Die Prüfung wurde abgebrochen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers and its certificate is valid until %1</source>
        <translation>Der Server antwortet und sein Zertifikat ist bis %1 gültig</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The server answers on port %1</source>
        <translation>Der Server antwortet auf Port %1</translation>
    </message>
    <message>
        <location line="+144"/>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
</context>
<context>
    <name>ConnectionCheckDialog</name>
    <message>
        <location filename="../qml/vorplex/ConnectionCheckDialog.qml" line="+25"/>
        <source>Test connection</source>
        <translation>Verbindung testen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Checking whether “%1” can be reached.</source>
        <translation>Es wird geprüft, ob „%1“ erreichbar ist.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel check</source>
        <translation>Prüfung abbrechen</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Step that failed: %1</source>
        <translation>Fehlgeschlagener Schritt: %1</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Certificate issued to</source>
        <translation>Zertifikat ausgestellt für</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Issued by</source>
        <translation>Ausgestellt von</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valid until</source>
        <translation>Gültig bis</translation>
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
        <translation>Remotedesktop</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Browser</source>
        <translation>Browser</translation>
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
        <translation>Verbindung</translation>
    </message>
</context>
<context>
    <name>ConnectionTableModel</name>
    <message>
        <location filename="../src/connections/ConnectionTableModel.cpp" line="+22"/>
        <source>Browser</source>
        <translation>Browser</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server Address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto Connect</source>
        <translation>Autostart</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
</context>
<context>
    <name>ConnectionTile</name>
    <message>
        <location filename="../qml/vorplex/ConnectionTile.qml" line="+69"/>
        <source>More actions for %1</source>
        <translation>Weitere Aktionen für %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Test connection</source>
        <translation>Verbindung testen</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Auto</source>
        <translation>Autostart</translation>
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
        <translation>Verbindungen</translation>
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
        <translation>Browser</translation>
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
        <translation>„%1“ hinzugefügt.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Changes to “%1” saved.</source>
        <translation>Änderungen an „%1“ gespeichert.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Microsoft Teams added.</source>
        <translation>Microsoft Teams hinzugefügt.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Microsoft Teams is already in the list.</source>
        <translation>Microsoft Teams ist bereits in der Liste.</translation>
    </message>
    <message>
        <location line="+66"/>
        <location line="+314"/>
        <source>Add connection</source>
        <translation>Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="-298"/>
        <source>Remote Desktop (RDP)</source>
        <translation>Remotedesktop (RDP)</translation>
    </message>
    <message>
        <location line="+52"/>
        <source>Add Microsoft Teams</source>
        <translation>Microsoft Teams hinzufügen</translation>
    </message>
    <message>
        <location line="+199"/>
        <source>Start automatically</source>
        <translation>Automatisch starten</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Nothing to edit for this kind</source>
        <translation>Für diesen Typ gibt es nichts zu bearbeiten</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+71"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location line="-56"/>
        <source>No connections yet</source>
        <translation>Noch keine Verbindungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add a remote desktop, a web site or an application. Each connection appears as a tile on the home screen.</source>
        <translation>Fügen Sie einen entfernten Desktop, eine Website oder eine Anwendung hinzu. Jede Verbindung erscheint als Kachel auf dem Startbildschirm.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Kinds of connection that can be added on this terminal.</source>
        <translation>Verbindungstypen, die auf diesem Terminal hinzugefügt werden können.</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Remove connection?</source>
        <translation>Verbindung entfernen?</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>“%1” will be removed from this terminal, and its tile from the home screen.</source>
        <translation>„%1“ wird von diesem Terminal entfernt, die zugehörige Kachel vom Startbildschirm.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>“%1” removed.</source>
        <translation>„%1“ entfernt.</translation>
    </message>
</context>
<context>
    <name>DateTimePage</name>
    <message>
        <location filename="../qml/vorplex/DateTimePage.qml" line="+68"/>
        <source>Enter a host name or address such as pool.ntp.org.</source>
        <translation>Geben Sie einen Hostnamen oder eine Adresse ein, z. B. pool.ntp.org.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Choose a time zone.</source>
        <translation>Wählen Sie eine Zeitzone.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Date and time settings applied.</source>
        <translation>Datum und Uhrzeit übernommen.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Without a time server the clock keeps the date and time set here.</source>
        <translation>Ohne Zeitserver behält die Uhr das hier eingestellte Datum und die Uhrzeit.</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>Clock format</source>
        <translation>Uhrzeitformat</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>12-hour</source>
        <translation>12 Stunden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>24-hour</source>
        <translation>24 Stunden</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Hour</source>
        <translation>Stunde</translation>
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
        <translation>Zeitzone</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose a time zone</source>
        <translation>Zeitzone wählen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Time server (NTP)</source>
        <translation>Zeitserver (NTP)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Leave empty to set the clock by hand.</source>
        <translation>Leer lassen, um die Uhr von Hand zu stellen.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>APPLY</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
</context>
<context>
    <name>DiagnosisPage</name>
    <message>
        <location filename="../qml/vorplex/DiagnosisPage.qml" line="+18"/>
        <source>Enter a host name or address.</source>
        <translation>Geben Sie einen Hostnamen oder eine Adresse ein.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Enter a number of packages from 1.</source>
        <translation>Geben Sie eine Paketanzahl ab 1 ein.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Enter a length from 0 to 65507 bytes.</source>
        <translation>Geben Sie eine Länge von 0 bis 65507 Byte ein.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Ping</source>
        <translation>Ping</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sends echo requests to a host and shows its answers.</source>
        <translation>Sendet Echo-Anfragen an einen Host und zeigt seine Antworten.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Host</source>
        <translation>Host</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Keep sending packages:</source>
        <translation>Pakete fortlaufend senden:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Send only:</source>
        <translation>Nur senden:</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Number of packages</source>
        <translation>Anzahl der Pakete</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Packet length (bytes)</source>
        <translation>Paketgröße (Byte)</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>The answers appear here.</source>
        <translation>Die Antworten erscheinen hier.</translation>
    </message>
</context>
<context>
    <name>DisplaysPage</name>
    <message>
        <location filename="../qml/vorplex/DisplaysPage.qml" line="+12"/>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Inverted Landscape</source>
        <translation>Querformat (gedreht)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Left Portrait</source>
        <translation>Hochformat links</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Right Portrait</source>
        <translation>Hochformat rechts</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Choose a resolution and a refresh rate first.</source>
        <translation>Wählen Sie zuerst eine Auflösung und eine Bildwiederholrate.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>The previous display settings are back.</source>
        <translation>Die vorherigen Anzeigeeinstellungen sind wiederhergestellt.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Display settings kept.</source>
        <translation>Anzeigeeinstellungen beibehalten.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Arrangement</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Displays from left to right. Select one to change its settings.</source>
        <translation>Bildschirme von links nach rechts. Wählen Sie einen aus, um seine Einstellungen zu ändern.</translation>
    </message>
    <message>
        <location line="+74"/>
        <source>Primary</source>
        <translation>Primär</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>No display found</source>
        <translation>Kein Bildschirm gefunden</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Move left</source>
        <translation>Nach links</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Move right</source>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Make primary</source>
        <translation>Als primär festlegen</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>IDENTIFY SCREENS</source>
        <translation>BILDSCHIRME IDENTIFIZIEREN</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Several displays</source>
        <translation>Mehrere Bildschirme</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Extend the desktop across the displays, or show the same picture on each.</source>
        <translation>Die Arbeitsfläche über die Bildschirme erweitern oder auf jedem dasselbe Bild zeigen.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Extend</source>
        <translation>Erweitern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Display</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resolutions are listed from the smallest to the largest.</source>
        <translation>Die Auflösungen sind von der kleinsten zur größten aufgeführt.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Refresh rate (Hz)</source>
        <translation>Bildwiederholrate (Hz)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>APPLY</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Displays reset to their default size.</source>
        <translation>Bildschirme auf ihre Standardgröße zurückgesetzt.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Keep these settings?</source>
        <translation>Diese Einstellungen beibehalten?</translation>
    </message>
    <message numerus="yes">
        <location line="+1"/>
        <source>The previous settings come back in %n second(s).</source>
        <translation>
            <numerusform>Die vorherigen Einstellungen werden in %n Sekunde wiederhergestellt.</numerusform>
            <numerusform>Die vorherigen Einstellungen werden in %n Sekunden wiederhergestellt.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keep settings</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Revert</source>
        <translation>Zurücknehmen</translation>
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
        <translation>Getunneltes TLS</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Protected EAP (PEAP)</source>
        <translation>Geschütztes EAP (PEAP)</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+14"/>
        <location line="+10"/>
        <location line="+11"/>
        <location line="+11"/>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <location line="-45"/>
        <location line="+14"/>
        <location line="+10"/>
        <location line="+11"/>
        <location line="+11"/>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <location line="-43"/>
        <source>Identity</source>
        <translation>Identität</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+24"/>
        <location line="+11"/>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <location line="-34"/>
        <location line="+24"/>
        <location line="+11"/>
        <source>CA certificate</source>
        <translation>CA-Zertifikat</translation>
    </message>
    <message>
        <location line="-34"/>
        <location line="+24"/>
        <source>CA certificate password</source>
        <translation>Passwort des CA-Zertifikats</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>User certificate</source>
        <translation>Benutzerzertifikat</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User certificate password</source>
        <translation>Passwort des Benutzerzertifikats</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User private key</source>
        <translation>Privater Schlüssel des Benutzers</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User key password</source>
        <translation>Passwort des Benutzerschlüssels</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+10"/>
        <location line="+11"/>
        <source>Anonymous identity</source>
        <translation>Anonyme Identität</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>PAC provisioning</source>
        <translation>PAC-Bereitstellung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Anonymous</source>
        <translation>Anonym</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Authenticated</source>
        <translation>Authentifiziert</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PAC file</source>
        <translation>PAC-Datei</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <location line="+12"/>
        <source>Inner authentication</source>
        <translation>Innere Authentifizierung</translation>
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
        <translation>MSCHAPv2 (ohne EAP)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CHAP</source>
        <translation>CHAP</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>PEAP version</source>
        <translation>PEAP-Version</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic</source>
        <translation>Automatisch</translation>
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
        <translation>802.1X-Einstellungen werden geschrieben…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switching 802.1X off…</source>
        <translation>802.1X wird ausgeschaltet…</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>802.1X is on with %1.</source>
        <translation>802.1X ist mit %1 aktiv.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>802.1X is off.</source>
        <translation>802.1X ist aus.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>802.1X authentication</source>
        <translation>802.1X-Authentifizierung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The wired connection authenticates before it is let onto the network.</source>
        <translation>Die kabelgebundene Verbindung authentifiziert sich, bevor sie ins Netzwerk gelassen wird.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Off: the wired connection does not authenticate.</source>
        <translation>Aus: Die kabelgebundene Verbindung authentifiziert sich nicht.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ask your network administrator which method and certificates your network uses.</source>
        <translation>Fragen Sie Ihren Netzwerkadministrator, welche Methode und welche Zertifikate Ihr Netzwerk verwendet.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Authentication</source>
        <translation>Authentifizierung</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>No file chosen</source>
        <translation>Keine Datei gewählt</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Browse…</source>
        <translation>Durchsuchen…</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>ExportSettingsPage</name>
    <message>
        <location filename="../qml/vorplex/ExportSettingsPage.qml" line="+33"/>
        <source>The settings could not be saved: the drive cannot be written to.</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden: Das Laufwerk ist nicht beschreibbar.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nothing was copied: the chosen settings do not exist on this terminal yet.</source>
        <translation>Nichts wurde kopiert: Die gewählten Einstellungen gibt es auf diesem Terminal noch nicht.</translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>%n group(s) of settings saved to %1.</source>
        <translation>
            <numerusform>%n Einstellungsgruppe in %1 gespeichert.</numerusform>
            <numerusform>%n Einstellungsgruppen in %1 gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Choose what to copy to the USB drive.</source>
        <translation>Wählen Sie, was auf das USB-Laufwerk kopiert wird.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A new folder named after this terminal and the current time is created on the drive.</source>
        <translation>Auf dem Laufwerk wird ein neuer Ordner mit dem Namen dieses Terminals und der aktuellen Uhrzeit angelegt.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to export settings</source>
        <translation>Ordner für den Export wählen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No removable drive found</source>
        <translation>Kein Wechseldatenträger gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Stecken Sie ein USB-Laufwerk ein und aktualisieren Sie die Liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Laufwerksliste aktualisieren</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
</context>
<context>
    <name>FormPage</name>
    <message>
        <location filename="../qml/custom/NorbixUi/FormPage.qml" line="+15"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>HostnamePage</name>
    <message>
        <location filename="../qml/vorplex/HostnamePage.qml" line="+22"/>
        <source>Use 1 to 63 letters, digits and hyphens, not starting or ending with a hyphen.</source>
        <translation>Verwenden Sie 1 bis 63 Buchstaben, Ziffern und Bindestriche, nicht am Anfang oder Ende ein Bindestrich.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Setting the computer name…</source>
        <translation>Computername wird festgelegt…</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Computer name set to %1.</source>
        <translation>Computername auf %1 gesetzt.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Computer name: </source>
        <translation>Computername: </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name of this terminal on the network and on the management server. Leave the field empty to use the name made from the network adapter.</source>
        <translation>Der Name dieses Terminals im Netzwerk und auf dem Verwaltungsserver. Lassen Sie das Feld leer, um den aus dem Netzwerkadapter gebildeten Namen zu verwenden.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Computer name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>ImportSettingsPage</name>
    <message numerus="yes">
        <location filename="../qml/vorplex/ImportSettingsPage.qml" line="+33"/>
        <source>%n group(s) of settings loaded.</source>
        <translation>
            <numerusform>%n Einstellungsgruppe geladen.</numerusform>
            <numerusform>%n Einstellungsgruppen geladen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>%n group(s) of settings loaded. Not in the saved set, so reset to their defaults: %1.</source>
        <translation>
            <numerusform>%n Einstellungsgruppe geladen. Nicht im gespeicherten Satz enthalten und daher auf die Standardwerte zurückgesetzt: %1.</numerusform>
            <numerusform>%n Einstellungsgruppen geladen. Nicht im gespeicherten Satz enthalten und daher auf die Standardwerte zurückgesetzt: %1.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Choose what to load. A chosen group that the saved set lacks is reset to its defaults.</source>
        <translation>Wählen Sie, was geladen wird. Eine gewählte Gruppe, die im gespeicherten Satz fehlt, wird auf die Standardwerte zurückgesetzt.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Saved settings are folders named after the terminal they came from and the time they were saved.</source>
        <translation>Gespeicherte Einstellungen sind Ordner, benannt nach ihrem Terminal und dem Zeitpunkt der Speicherung.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to import settings</source>
        <translation>Ordner für den Import wählen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No saved settings found</source>
        <translation>Keine gespeicherten Einstellungen gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with exported settings, then refresh the list.</source>
        <translation>Stecken Sie ein USB-Laufwerk mit exportierten Einstellungen ein und aktualisieren Sie die Liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh folder list</source>
        <translation>Ordnerliste aktualisieren</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+16"/>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Import settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The chosen settings of this terminal are replaced by the saved ones.</source>
        <translation>Die gewählten Einstellungen dieses Terminals werden durch die gespeicherten ersetzt.</translation>
    </message>
</context>
<context>
    <name>KeyboardPage</name>
    <message>
        <location filename="../qml/vorplex/KeyboardPage.qml" line="+25"/>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Current layout</source>
        <translation>Aktuelle Belegung</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Switching layouts</source>
        <translation>Belegung wechseln</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Press Alt+Shift to switch to the next layout.</source>
        <translation>Drücken Sie Alt+Umschalt, um zur nächsten Belegung zu wechseln.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Layouts</source>
        <translation>Belegungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The preferred layout is active after power-on.</source>
        <translation>Die bevorzugte Belegung ist nach dem Einschalten aktiv.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Add layouts</source>
        <translation>Belegungen hinzufügen</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Preferred</source>
        <translation>Bevorzugt</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Make preferred</source>
        <translation>Als bevorzugt festlegen</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>No layouts chosen</source>
        <translation>Keine Belegungen gewählt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The keyboard uses the system&apos;s layout. Add the layouts you type with.</source>
        <translation>Die Tastatur verwendet die Belegung des Systems. Fügen Sie die Belegungen hinzu, mit denen Sie schreiben.</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <location filename="../qml/vorplex/LanguagePage.qml" line="+20"/>
        <source>Display language</source>
        <translation>Anzeigesprache</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The language of this terminal&apos;s screens. Sessions keep their own language.</source>
        <translation>Die Sprache der Bildschirme dieses Terminals. Sitzungen behalten ihre eigene Sprache.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Language changed.</source>
        <translation>Sprache geändert.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The %1 translation could not be loaded; the language was not changed.</source>
        <translation>Die Übersetzung %1 konnte nicht geladen werden; die Sprache wurde nicht geändert.</translation>
    </message>
</context>
<context>
    <name>LocalUpdaterBackend</name>
    <message>
        <location filename="../src/maintenance/LocalUpdaterBackend.cpp" line="+147"/>
        <location line="+39"/>
        <location line="+15"/>
        <source>The update service sent an answer that cannot be read.</source>
        <translation>Der Update-Dienst hat eine unlesbare Antwort gesendet.</translation>
    </message>
    <message>
        <location line="-37"/>
        <source>The update service refused the request (HTTP %1).</source>
        <translation>Der Update-Dienst hat die Anfrage abgelehnt (HTTP %1).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service did not answer in time.</source>
        <translation>Der Update-Dienst hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service is not running.</source>
        <translation>Der Update-Dienst läuft nicht.</translation>
    </message>
</context>
<context>
    <name>LockedPage</name>
    <message>
        <location filename="../qml/vorplex/LockedPage.qml" line="+19"/>
        <source>Administrator access required</source>
        <translation>Administratorzugriff erforderlich</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This section changes how the terminal works for everyone who uses it. Unlock the advanced settings with the administrator password to continue.</source>
        <translation>Dieser Bereich ändert das Verhalten des Terminals für alle, die es benutzen. Entsperren Sie die erweiterten Einstellungen mit dem Administratorpasswort, um fortzufahren.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <location filename="../qml/vorplex/LogsPage.qml" line="+27"/>
        <source>Export finished.</source>
        <translation>Export abgeschlossen.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Debug logging</source>
        <translation>Debug-Protokollierung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Records detailed messages for troubleshooting. Logs grow faster while it is on.</source>
        <translation>Zeichnet ausführliche Meldungen zur Fehlersuche auf. Die Protokolle wachsen dann schneller.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Export logs</source>
        <translation>Protokolle exportieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save the logs to a USB drive, for example to pass them on to support.</source>
        <translation>Speichern Sie die Protokolle auf einem USB-Laufwerk, etwa um sie an den Support weiterzugeben.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to export logs</source>
        <translation>Ordner für den Protokollexport wählen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No removable drive found</source>
        <translation>Kein Wechseldatenträger gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Stecken Sie ein USB-Laufwerk ein und aktualisieren Sie die Liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Laufwerksliste aktualisieren</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Export all logs</source>
        <translation>Alle Protokolle exportieren</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Current session</source>
        <translation>Aktuelle Sitzung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Messages logged since the shell was started.</source>
        <translation>Seit dem Start der Shell protokollierte Meldungen.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>No messages logged yet.</source>
        <translation>Noch keine Meldungen protokolliert.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <location filename="../qml/vorplex/Main.qml" line="+77"/>
        <source>This terminal has no network connection. Check the network cable or the Wi-Fi, then try again.</source>
        <translation>Dieses Terminal hat keine Netzwerkverbindung. Prüfen Sie das Netzwerkkabel oder das WLAN und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+233"/>
        <location line="+34"/>
        <source>Failed to connect</source>
        <translation>Verbindung fehlgeschlagen</translation>
    </message>
    <message>
        <location line="-257"/>
        <source>This connection is incomplete and can&apos;t be started. An administrator can complete it in Settings → Connections.</source>
        <translation>Diese Verbindung ist unvollständig und kann nicht gestartet werden. Ein Administrator kann sie unter Einstellungen → Verbindungen vervollständigen.</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Connecting to the Citrix store…</source>
        <translation>Verbindung zum Citrix-Store wird hergestellt…</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Support desk</source>
        <translation>Helpdesk</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alex from IT support would like to see your screen to help with your ticket.</source>
        <translation>Alex vom IT-Support möchte Ihren Bildschirm sehen, um Ihnen bei Ihrem Ticket zu helfen.</translation>
    </message>
    <message>
        <location line="+128"/>
        <source>Your request for help has been sent.</source>
        <translation>Ihre Bitte um Hilfe wurde gesendet.</translation>
    </message>
    <message>
        <location line="+56"/>
        <source>“%1” added.</source>
        <translation>„%1“ hinzugefügt.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Changes to “%1” saved.</source>
        <translation>Änderungen an „%1“ gespeichert.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Connection error</source>
        <translation>Verbindungsfehler</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <location filename="../qml/vorplex/MainView.qml" line="+133"/>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Show less</source>
        <translation>Weniger anzeigen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show all (%1)</source>
        <translation>Alle anzeigen (%1)</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>No connections yet</source>
        <translation>Noch keine Verbindungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote desktops and applications will appear here as tiles. An administrator adds them in Settings → Connections.</source>
        <translation>Entfernte Desktops und Anwendungen erscheinen hier als Kacheln. Ein Administrator fügt sie unter Einstellungen → Verbindungen hinzu.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Open connection settings</source>
        <translation>Verbindungseinstellungen öffnen</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>An administrator has seen your request for help and will contact you.</source>
        <translation>Ein Administrator hat Ihre Bitte um Hilfe gesehen und meldet sich bei Ihnen.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Norbix %1</source>
        <translation>Norbix %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Thin client terminal</source>
        <translation>Thin-Client-Terminal</translation>
    </message>
</context>
<context>
    <name>ManagementPage</name>
    <message>
        <location filename="../qml/vorplex/ManagementPage.qml" line="+20"/>
        <source>Enter an address such as wss://server.example.com/api/v1/ws.</source>
        <translation>Geben Sie eine Adresse wie wss://server.example.com/api/v1/ws ein.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Server settings saved.</source>
        <translation>Servereinstellungen gespeichert.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use letters, digits and hyphens only (at most 63).</source>
        <translation>Nur Buchstaben, Ziffern und Bindestriche (höchstens 63).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Computer name set to %1.</source>
        <translation>Computername auf %1 gesetzt.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Use at least 6 characters.</source>
        <translation>Mindestens 6 Zeichen verwenden.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remote assistance password set.</source>
        <translation>Passwort für die Fernwartung gesetzt.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Managed by a server</source>
        <translation>Von einem Server verwaltet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The management server can change settings, connections and certificates, and update or restart this terminal.</source>
        <translation>Der Verwaltungsserver kann Einstellungen, Verbindungen und Zertifikate ändern sowie dieses Terminal aktualisieren oder neu starten.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not managed</source>
        <translation>Nicht verwaltet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connected to the management server</source>
        <translation>Mit dem Verwaltungsserver verbunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not connected; the terminal keeps trying</source>
        <translation>Nicht verbunden; das Terminal versucht es weiter</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Where the terminal registers and which account it belongs to.</source>
        <translation>Wo sich das Terminal anmeldet und zu welchem Konto es gehört.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Organisation account on the server</source>
        <translation>Organisationskonto auf dem Server</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Save server settings</source>
        <translation>Servereinstellungen speichern</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Computer name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name of this terminal on the server and on the network. Leave it empty to use the name made from the network adapter.</source>
        <translation>Der Name dieses Terminals auf dem Server und im Netzwerk. Leer lassen, um den aus dem Netzwerkadapter gebildeten Namen zu verwenden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Set name</source>
        <translation>Name setzen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Remote assistance</source>
        <translation>Fernwartung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Password of this terminal&apos;s screen sharing, used when an administrator connects for support.</source>
        <translation>Passwort der Bildschirmfreigabe dieses Terminals, wenn sich ein Administrator zur Unterstützung verbindet.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>New password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Set password</source>
        <translation>Passwort setzen</translation>
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
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MousePage</name>
    <message>
        <location filename="../qml/vorplex/MousePage.qml" line="+29"/>
        <source>Pointer speed</source>
        <translation>Zeigergeschwindigkeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>How far the pointer moves for a movement of the mouse or touchpad.</source>
        <translation>Wie weit sich der Zeiger bei einer Bewegung der Maus oder des Touchpads bewegt.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No mouse or touchpad with an adjustable speed is connected.</source>
        <translation>Keine Maus und kein Touchpad mit einstellbarer Geschwindigkeit angeschlossen.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>SLOW</source>
        <translation>LANGSAM</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>FAST</source>
        <translation>SCHNELL</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Primary button</source>
        <translation>Primäre Taste</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The button that selects and opens; the other one opens menus.</source>
        <translation>Die Taste zum Auswählen und Öffnen; die andere öffnet Menüs.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Left button (right-handed)</source>
        <translation>Linke Taste (Rechtshänder)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Right button (left-handed)</source>
        <translation>Rechte Taste (Linkshänder)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Double-click time</source>
        <translation>Doppelklick-Zeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The longest pause between the two clicks of a double-click.</source>
        <translation>Die längste Pause zwischen den beiden Klicks eines Doppelklicks.</translation>
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
        <translation>%1 (gesperrt)</translation>
    </message>
</context>
<context>
    <name>NetworkManager</name>
    <message>
        <location filename="../src/settings/NetworkManager.cpp" line="+304"/>
        <source>Browse certificate</source>
        <translation>Zertifikat auswählen</translation>
    </message>
</context>
<context>
    <name>NetworkStatus</name>
    <message>
        <location filename="../src/settings/NetworkStatus.cpp" line="+71"/>
        <source>Wired network</source>
        <translation>Kabelnetzwerk</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Wi-Fi: %1</source>
        <translation>WLAN: %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No network</source>
        <translation>Kein Netzwerk</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Network state unknown</source>
        <translation>Netzwerkstatus unbekannt</translation>
    </message>
</context>
<context>
    <name>NetworkStatusBadge</name>
    <message>
        <location filename="../qml/vorplex/NetworkStatusBadge.qml" line="+46"/>
        <source>Management server reached</source>
        <translation>Verwaltungsserver erreichbar</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Management server not reached</source>
        <translation>Verwaltungsserver nicht erreichbar</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <location filename="../qml/custom/NorbixUi/PasswordField.qml" line="+58"/>
        <source>Hide password</source>
        <translation>Passwort ausblenden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show password</source>
        <translation>Passwort anzeigen</translation>
    </message>
</context>
<context>
    <name>PlaceholderCard</name>
    <message>
        <location filename="../qml/custom/NorbixUi/PlaceholderCard.qml" line="+8"/>
        <source>Not available on this terminal yet</source>
        <translation>Auf diesem Terminal noch nicht verfügbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>These settings arrive with a later software update. Until then the terminal keeps its current configuration, and nothing here needs your attention.</source>
        <translation>Diese Einstellungen kommen mit einem späteren Software-Update. Bis dahin behält das Terminal seine aktuelle Konfiguration, und hier ist nichts zu tun.</translation>
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
        <translation>Herunterfahren</translation>
    </message>
    <message>
        <location line="-25"/>
        <source>Ends every session and switches the terminal off.</source>
        <translation>Beendet alle Sitzungen und schaltet das Terminal aus.</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+4"/>
        <location line="+19"/>
        <location line="+2"/>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>Ends every session and starts the terminal again.</source>
        <translation>Beendet alle Sitzungen und startet das Terminal neu.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Shut the terminal down now? Open sessions end and unsaved work in them is lost.</source>
        <translation>Das Terminal jetzt herunterfahren? Offene Sitzungen werden beendet und nicht gespeicherte Arbeit darin geht verloren.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Restart the terminal now? Open sessions end and unsaved work in them is lost.</source>
        <translation>Das Terminal jetzt neu starten? Offene Sitzungen werden beendet und nicht gespeicherte Arbeit darin geht verloren.</translation>
    </message>
</context>
<context>
    <name>PowerPage</name>
    <message>
        <location filename="../qml/vorplex/PowerPage.qml" line="+19"/>
        <source>Power saving settings applied.</source>
        <translation>Energiespareinstellungen übernommen.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Power saving</source>
        <translation>Energiesparen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Without keyboard or mouse input, the screen turns off and later the terminal goes to sleep.</source>
        <translation>Ohne Eingaben über Tastatur oder Maus schaltet sich der Bildschirm aus und später geht das Terminal in den Ruhezustand.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Turn off the screen after</source>
        <translation>Bildschirm ausschalten nach</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No turn off</source>
        <translation>Nie ausschalten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>1 minute</source>
        <translation>1 Minute</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+7"/>
        <source>5 minutes</source>
        <translation>5 Minuten</translation>
    </message>
    <message>
        <location line="-7"/>
        <location line="+7"/>
        <source>30 minutes</source>
        <translation>30 Minuten</translation>
    </message>
    <message>
        <location line="-7"/>
        <location line="+7"/>
        <source>1 hour</source>
        <translation>1 Stunde</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Put the terminal to sleep after</source>
        <translation>Terminal in Ruhezustand versetzen nach</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No sleep</source>
        <translation>Kein Ruhezustand</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>6 hours</source>
        <translation>6 Stunden</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>APPLY</source>
        <translation>ÜBERNEHMEN</translation>
    </message>
</context>
<context>
    <name>PrintersBackend</name>
    <message>
        <location filename="../src/settings/PrintersBackend.cpp" line="+72"/>
        <source>The printer could not be added.</source>
        <translation>Der Drucker konnte nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Choose the printer&apos;s device.</source>
        <translation>Wählen Sie das Gerät des Druckers.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choose a driver.</source>
        <translation>Wählen Sie einen Treiber.</translation>
    </message>
</context>
<context>
    <name>PrintersPage</name>
    <message>
        <location filename="../qml/vorplex/PrintersPage.qml" line="+35"/>
        <location line="+14"/>
        <source>Printer %1 added.</source>
        <translation>Drucker %1 hinzugefügt.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Printing in sessions</source>
        <translation>Drucken in Sitzungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote sessions can print on this terminal&apos;s printers.</source>
        <translation>Entfernte Sitzungen können auf den Druckern dieses Terminals drucken.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The default printer is the one sessions print to unless told otherwise.</source>
        <translation>Der Standarddrucker ist der, auf dem Sitzungen drucken, sofern nichts anderes angegeben ist.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Make default</source>
        <translation>Als Standard festlegen</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+114"/>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location line="-99"/>
        <source>No printers</source>
        <translation>Keine Drucker</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add a network printer by its address, or a printer connected by USB.</source>
        <translation>Fügen Sie einen Netzwerkdrucker über seine Adresse oder einen per USB angeschlossenen Drucker hinzu.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Add a network printer</source>
        <translation>Netzwerkdrucker hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Printers that support IPP Everywhere (most printers made since 2012) need no driver.</source>
        <translation>Drucker, die IPP Everywhere unterstützen (die meisten Drucker seit 2012), brauchen keinen Treiber.</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+66"/>
        <source>Printer name</source>
        <translation>Druckername</translation>
    </message>
    <message>
        <location line="-65"/>
        <source>For example Office_2nd_floor</source>
        <translation>Zum Beispiel Buero_2_Stock</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+65"/>
        <source>Letters, digits, _ . - + @; no spaces.</source>
        <translation>Buchstaben, Ziffern, _ . - + @; keine Leerzeichen.</translation>
    </message>
    <message>
        <location line="-57"/>
        <source>Host name or address</source>
        <translation>Hostname oder Adresse</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+55"/>
        <source>Add printer</source>
        <translation>Drucker hinzufügen</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>Add a USB printer</source>
        <translation>USB-Drucker hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connect the printer, then look for it and choose its driver.</source>
        <translation>Schließen Sie den Drucker an, suchen Sie ihn dann und wählen Sie seinen Treiber.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Look for USB printers</source>
        <translation>Nach USB-Druckern suchen</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No USB printer found</source>
        <translation>Kein USB-Drucker gefunden</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Look again</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Driver</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No drivers found</source>
        <translation>Keine Treiber gefunden</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Delete printer</source>
        <translation>Drucker löschen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delete the printer %1? Sessions can no longer print to it.</source>
        <translation>Den Drucker %1 löschen? Sitzungen können dann nicht mehr darauf drucken.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/settings/PrinterParsers.cpp" line="+42"/>
        <source>Enter a printer name.</source>
        <translation>Geben Sie einen Druckernamen ein.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A printer name has at most 127 characters.</source>
        <translation>Ein Druckername hat höchstens 127 Zeichen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A printer name may only contain letters, digits and _ . - + @ (no spaces, &quot;/&quot; or &quot;#&quot;).</source>
        <translation>Ein Druckername darf nur Buchstaben, Ziffern und _ . - + @ enthalten (keine Leerzeichen, kein „/“ oder „#“).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Enter the printer&apos;s host name or address.</source>
        <translation>Geben Sie den Hostnamen oder die Adresse des Druckers ein.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a host name or address.</source>
        <translation>„%1“ ist kein Hostname und keine Adresse.</translation>
    </message>
</context>
<context>
    <name>RDPConnector</name>
    <message>
        <location filename="../src/connectors/RDPConnector.cpp" line="+91"/>
        <source>Failed to authorize user</source>
        <translation>Benutzer konnte nicht angemeldet werden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invalid IP</source>
        <translation>Ungültige IP-Adresse</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Failed to connect</source>
        <translation>Verbindung fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Host not found</source>
        <translation>Host nicht gefunden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Error: </source>
        <translation>Fehler: </translation>
    </message>
</context>
<context>
    <name>RDPLoginDialog</name>
    <message>
        <location filename="../qml/vorplex/RDPLoginDialog.qml" line="+32"/>
        <source>Sign in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter your user name and password to start the session.</source>
        <translation>Geben Sie Benutzername und Passwort ein, um die Sitzung zu starten.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter your user name and password for “%1”.</source>
        <translation>Geben Sie Benutzername und Passwort für „%1“ ein.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter your user name and password for “%1” on %2.</source>
        <translation>Geben Sie Benutzername und Passwort für „%1“ auf %2 ein.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>User name can&apos;t be empty</source>
        <translation>Der Benutzername darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
</context>
<context>
    <name>ScreenListModel</name>
    <message>
        <location filename="../src/settings/ScreenListModel.cpp" line="+76"/>
        <source>Display %1</source>
        <translation>Bildschirm %1</translation>
    </message>
</context>
<context>
    <name>ScreensBackend</name>
    <message>
        <location filename="../src/settings/ScreensBackend.cpp" line="+139"/>
        <location line="+5"/>
        <source>Display %1</source>
        <translation>Bildschirm %1</translation>
    </message>
</context>
<context>
    <name>SectionCatalog</name>
    <message>
        <location filename="../qml/vorplex/SectionCatalog.qml" line="+9"/>
        <source>Connectivity</source>
        <translation>Konnektivität</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote sessions that appear as tiles on the home screen.</source>
        <translation>Entfernte Sitzungen, die als Kacheln auf dem Startbildschirm erscheinen.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wired network</source>
        <translation>Kabelgebundenes Netzwerk</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ethernet addressing and DNS servers.</source>
        <translation>Ethernet-Adressierung und DNS-Server.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wireless networks and saved credentials.</source>
        <translation>Drahtlose Netzwerke und gespeicherte Zugangsdaten.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>802.1X authentication</source>
        <translation>802.1X-Authentifizierung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Port-based network access control for wired and wireless networks.</source>
        <translation>Portbasierte Zugangskontrolle für kabelgebundene und drahtlose Netzwerke.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Host name</source>
        <translation>Hostname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name this terminal uses on the network.</source>
        <translation>Der Name, den dieses Terminal im Netzwerk verwendet.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Network diagnosis</source>
        <translation>Netzwerkdiagnose</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Check that a host answers over the network.</source>
        <translation>Prüfen, ob ein Host über das Netzwerk antwortet.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wi-Fi networks</source>
        <translation>WLAN-Netzwerke</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Join a wireless network approved by your administrator.</source>
        <translation>Mit einem vom Administrator freigegebenen Funknetzwerk verbinden.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Displays</source>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resolution, arrangement and orientation of connected monitors.</source>
        <translation>Auflösung, Anordnung und Ausrichtung der angeschlossenen Monitore.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Power saving</source>
        <translation>Energiesparen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Screen blanking and standby timing.</source>
        <translation>Bildschirmabschaltung und Standby-Zeiten.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date &amp; time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time zone, clock format and time servers.</source>
        <translation>Zeitzone, Uhrzeitformat und Zeitserver.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output and input devices and volume.</source>
        <translation>Aus- und Eingabegeräte und Lautstärke.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard layout and key repeat.</source>
        <translation>Tastaturlayout und Tastenwiederholung.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Mouse</source>
        <translation>Maus</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pointer speed, button order and double-click timing.</source>
        <translation>Zeigergeschwindigkeit, Tastenbelegung und Doppelklickgeschwindigkeit.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Display language and regional formats.</source>
        <translation>Anzeigesprache und regionale Formate.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wallpaper</source>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Background image of the home screen.</source>
        <translation>Hintergrundbild des Startbildschirms.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Accessibility</source>
        <translation>Barrierefreiheit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>On-screen keyboard and high contrast.</source>
        <translation>Bildschirmtastatur und hoher Kontrast.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Local and network printers available to sessions.</source>
        <translation>Lokale und Netzwerkdrucker für die Sitzungen.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB storage</source>
        <translation>USB-Speicher</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Access to USB drives on this terminal and in sessions.</source>
        <translation>Zugriff auf USB-Laufwerke an diesem Terminal und in Sitzungen.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shut down &amp; restart</source>
        <translation>Herunterfahren &amp; Neustart</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Switch the terminal off or start it again.</source>
        <translation>Das Terminal ausschalten oder neu starten.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Certificates</source>
        <translation>Zertifikate</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trusted certificate authorities and client certificates.</source>
        <translation>Vertrauenswürdige Zertifizierungsstellen und Client-Zertifikate.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Administrator password</source>
        <translation>Administratorpasswort</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The password that protects the advanced settings.</source>
        <translation>Das Passwort, das die erweiterten Einstellungen schützt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Management</source>
        <translation>Verwaltung</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Management server</source>
        <translation>Verwaltungsserver</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Central management of this terminal.</source>
        <translation>Zentrale Verwaltung dieses Terminals.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Software updates for this terminal.</source>
        <translation>Software-Updates für dieses Terminal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save this terminal&apos;s configuration to a USB drive.</source>
        <translation>Die Konfiguration dieses Terminals auf einem USB-Laufwerk speichern.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Load a configuration from a USB drive.</source>
        <translation>Eine Konfiguration von einem USB-Laufwerk laden.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Diagnostic messages of this session and export for support.</source>
        <translation>Diagnosemeldungen dieser Sitzung und Export für den Support.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>System information</source>
        <translation>Systeminformationen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hardware, software version and network details.</source>
        <translation>Hardware, Softwareversion und Netzwerkdetails.</translation>
    </message>
</context>
<context>
    <name>SettingsGroupsCard</name>
    <message>
        <location filename="../qml/vorplex/SettingsGroupsCard.qml" line="+10"/>
        <source>Display settings</source>
        <translation>Anzeigeeinstellungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard and Mouse</source>
        <translation>Tastatur und Maus</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language settings</source>
        <translation>Spracheinstellungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connections</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time settings</source>
        <translation>Zeiteinstellungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>API settings</source>
        <translation>API-Einstellungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Admin password</source>
        <translation>Administratorpasswort</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wallpapers</source>
        <translation>Hintergrundbilder</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clear all</source>
        <translation>Alle abwählen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <location filename="../qml/vorplex/SettingsView.qml" line="+109"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Back to home</source>
        <translation>Zurück zum Startbildschirm</translation>
    </message>
    <message>
        <location line="+161"/>
        <source>Advanced settings</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Unlocked</source>
        <translation>Entsperrt</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
</context>
<context>
    <name>SoundPage</name>
    <message>
        <location filename="../qml/vorplex/SoundPage.qml" line="+23"/>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Where the terminal and its sessions play sound.</source>
        <translation>Wo das Terminal und seine Sitzungen Ton wiedergeben.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Output device</source>
        <translation>Ausgabegerät</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No output device found</source>
        <translation>Kein Ausgabegerät gefunden</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Volume</source>
        <translation>Lautstärke</translation>
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
        <translation>Ton testen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The recording level of the microphone.</source>
        <translation>Der Aufnahmepegel des Mikrofons.</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Test microphone</source>
        <translation>Mikrofon testen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Recording for three seconds, then playing it back...</source>
        <translation>Drei Sekunden werden aufgenommen und dann wiedergegeben...</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Done. Did you hear yourself?</source>
        <translation>Fertig. Haben Sie sich gehört?</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Speak after pressing: three seconds are recorded and played back.</source>
        <translation>Sprechen Sie nach dem Drücken: Drei Sekunden werden aufgenommen und wiedergegeben.</translation>
    </message>
</context>
<context>
    <name>SystemInfoModel</name>
    <message>
        <location filename="../src/settings/SystemInfoModel.cpp" line="+150"/>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Disks</source>
        <translation>Laufwerke</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Disk %1</source>
        <translation>Laufwerk %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Network adapters</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Network adapter %1</source>
        <translation>Netzwerkadapter %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Displays</source>
        <translation>Bildschirme</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Display %1</source>
        <translation>Bildschirm %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Shell version</source>
        <translation>Shell-Version</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Kernel</source>
        <translation>Kernel</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Operating system</source>
        <translation>Betriebssystem</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>not installed</source>
        <translation>nicht installiert</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: %2, %3 free</source>
        <translation>%1: %2, %3 frei</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>system information</source>
        <translation>Systeminformationen</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+19"/>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <location line="-19"/>
        <location line="+19"/>
        <source>Software</source>
        <translation>Software</translation>
    </message>
</context>
<context>
    <name>SystemInfoPage</name>
    <message>
        <location filename="../qml/vorplex/SystemInfoPage.qml" line="+27"/>
        <source>The system information is on the clipboard.</source>
        <translation>Die Systeminformationen sind in der Zwischenablage.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The file could not be written to the drive.</source>
        <translation>Die Datei konnte nicht auf das Laufwerk geschrieben werden.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Reading system information…</source>
        <translation>Systeminformationen werden gelesen…</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Send to support</source>
        <translation>An den Support senden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copy these facts, or save them as a text file on a USB drive.</source>
        <translation>Diese Angaben kopieren oder als Textdatei auf einem USB-Laufwerk speichern.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No removable drive found</source>
        <translation>Kein Wechseldatenträger gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Stecken Sie ein USB-Laufwerk ein und aktualisieren Sie dann die Liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Laufwerksliste aktualisieren</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Save to drive</source>
        <translation>Auf Laufwerk speichern</translation>
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
        <translation>Verbindung testen</translation>
    </message>
</context>
<context>
    <name>Toast</name>
    <message>
        <location filename="../qml/custom/NorbixUi/Toast.qml" line="+76"/>
        <source>Dismiss</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <location filename="../qml/vorplex/UpdatesPage.qml" line="+11"/>
        <source>Contacting the update service…</source>
        <translation>Verbindung zum Update-Dienst wird hergestellt…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update service unavailable</source>
        <translation>Update-Dienst nicht verfügbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Checking for updates</source>
        <translation>Suche nach Updates</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Downloading update</source>
        <translation>Update wird heruntergeladen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installing update</source>
        <translation>Update wird installiert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update installed</source>
        <translation>Update installiert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update failed</source>
        <translation>Update fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>The terminal is being reset to its factory settings.</source>
        <translation>Das Terminal wird auf die Werkseinstellungen zurückgesetzt.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service is installing the package.</source>
        <translation>Der Update-Dienst installiert das Paket.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Check now</source>
        <translation>Jetzt prüfen</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Installed version: %1</source>
        <translation>Installierte Version: %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Available updates</source>
        <translation>Verfügbare Updates</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Versions the update service offers for this terminal.</source>
        <translation>Versionen, die der Update-Dienst für dieses Terminal anbietet.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>System %1</source>
        <translation>System %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Shell %1</source>
        <translation>Shell %1</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>No updates available</source>
        <translation>Keine Updates verfügbar</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No information about updates</source>
        <translation>Keine Informationen zu Updates</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This terminal runs the newest software the update service knows of.</source>
        <translation>Auf diesem Terminal läuft die neueste Software, die der Update-Dienst kennt.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Available versions appear here while the update service is running.</source>
        <translation>Verfügbare Versionen erscheinen hier, solange der Update-Dienst läuft.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Install updates automatically</source>
        <translation>Updates automatisch installieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A newer version of the shell is installed as soon as the update service offers it.</source>
        <translation>Eine neuere Version der Shell wird installiert, sobald der Update-Dienst sie anbietet.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Install from a USB drive</source>
        <translation>Von einem USB-Laufwerk installieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>An update package (.deb) for terminals without access to the update server.</source>
        <translation>Ein Update-Paket (.deb) für Terminals ohne Zugang zum Update-Server.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Update package</source>
        <translation>Update-Paket</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No update packages found</source>
        <translation>Keine Update-Pakete gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with an update package, then refresh the list.</source>
        <translation>Stecken Sie ein USB-Laufwerk mit einem Update-Paket ein und aktualisieren Sie die Liste.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh package list</source>
        <translation>Paketliste aktualisieren</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Install package</source>
        <translation>Paket installieren</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+14"/>
        <source>Factory reset</source>
        <translation>Auf Werkseinstellungen zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Every setting and connection of this terminal is erased and the terminal restarts with its factory settings.</source>
        <translation>Alle Einstellungen und Verbindungen dieses Terminals werden gelöscht, und das Terminal startet mit den Werkseinstellungen neu.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>UsbStoragePage</name>
    <message>
        <location filename="../qml/vorplex/UsbStoragePage.qml" line="+32"/>
        <source>USB storage</source>
        <translation>USB-Speicher</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB drives plugged into this terminal are opened and can be used in sessions.</source>
        <translation>An dieses Terminal angeschlossene USB-Laufwerke werden geöffnet und können in Sitzungen verwendet werden.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>USB storage is on.</source>
        <translation>USB-Speicher ist eingeschaltet.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>USB storage is off.</source>
        <translation>USB-Speicher ist ausgeschaltet.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>USB devices</source>
        <translation>USB-Geräte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Everything connected to this terminal&apos;s USB ports.</source>
        <translation>Alles, was an die USB-Anschlüsse dieses Terminals angeschlossen ist.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Unnamed device</source>
        <translation>Unbenanntes Gerät</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No USB devices found</source>
        <translation>Keine USB-Geräte gefunden</translation>
    </message>
</context>
<context>
    <name>VMWareConnectDialog</name>
    <message>
        <location filename="../qml/vorplex/VMWareConnectDialog.qml" line="+33"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Der Verbindungsname darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Die Serveradresse darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit VMWare Horizon Connection</source>
        <translation>VMware-Horizon-Verbindung bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add VMWare Horizon Connection</source>
        <translation>VMware-Horizon-Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A virtual desktop from a VMware Horizon connection server.</source>
        <translation>Ein virtueller Desktop von einem VMware-Horizon-Verbindungsserver.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Verbindung hinzufügen</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Connection name</source>
        <translation>Verbindungsname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Wird auf dem Startbildschirm angezeigt</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connection server, e.g. horizon.example.com</source>
        <translation>Verbindungsserver, z. B. horizon.example.com</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Protocol</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Display protocol of the desktop session.</source>
        <translation>Anzeigeprotokoll der Desktopsitzung.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Credentials</source>
        <translation>Anmeldedaten</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Anmeldedaten speichern</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>User name and password are saved with the connection.</source>
        <translation>Benutzername und Passwort werden mit der Verbindung gespeichert.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are not saved with the connection.</source>
        <translation>Benutzername und Passwort werden nicht mit der Verbindung gespeichert.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional: the desktop pool to open</source>
        <translation>Optional: der zu öffnende Desktop-Pool</translation>
    </message>
</context>
<context>
    <name>VNCPasswordDialog</name>
    <message>
        <location filename="../qml/vorplex/VNCPasswordDialog.qml" line="+30"/>
        <source>VNC password</source>
        <translation>VNC-Passwort</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the VNC password for “%1”.</source>
        <translation>Geben Sie das VNC-Passwort für „%1“ ein.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the VNC password to start the session.</source>
        <translation>Geben Sie das VNC-Passwort ein, um die Sitzung zu starten.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Password can&apos;t be empty</source>
        <translation>Das Passwort darf nicht leer sein</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
</context>
<context>
    <name>WallpaperPage</name>
    <message>
        <location filename="../qml/vorplex/WallpaperPage.qml" line="+26"/>
        <source>Wallpaper set to %1.</source>
        <translation>Hintergrundbild auf %1 gesetzt.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Current background</source>
        <translation>Aktueller Hintergrund</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The built-in background</source>
        <translation>Der eingebaute Hintergrund</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Use the built-in background</source>
        <translation>Eingebauten Hintergrund verwenden</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Pictures on USB drives</source>
        <translation>Bilder auf USB-Laufwerken</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PNG and JPEG images on the drives connected to this terminal. The picture is copied to the terminal.</source>
        <translation>PNG- und JPEG-Bilder auf den an dieses Terminal angeschlossenen Laufwerken. Das Bild wird auf das Terminal kopiert.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>%1 (not an image)</source>
        <translation>%1 (kein Bild)</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>No pictures found</source>
        <translation>Keine Bilder gefunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with PNG or JPEG pictures, then refresh.</source>
        <translation>Schließen Sie ein USB-Laufwerk mit PNG- oder JPEG-Bildern an und aktualisieren Sie dann.</translation>
    </message>
</context>
<context>
    <name>WallpapersManager</name>
    <message>
        <location filename="../src/settings/WallpapersManager.cpp" line="+78"/>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 is not a PNG or JPEG image.</source>
        <translation>%1 ist kein PNG- oder JPEG-Bild.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The image could not be copied to the terminal.</source>
        <translation>Das Bild konnte nicht auf das Terminal kopiert werden.</translation>
    </message>
</context>
<context>
    <name>WifiPage</name>
    <message>
        <location filename="../qml/vorplex/WifiPage.qml" line="+29"/>
        <location line="+214"/>
        <source>Connecting to %1…</source>
        <translation>Verbindung mit %1 wird hergestellt…</translation>
    </message>
    <message>
        <location line="-179"/>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The radio is on.</source>
        <translation>Das Funkmodul ist eingeschaltet.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The radio is off.</source>
        <translation>Das Funkmodul ist ausgeschaltet.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This terminal has no Wi-Fi adapter.</source>
        <translation>Dieses Terminal hat keinen WLAN-Adapter.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Switching the radio on…</source>
        <translation>Funkmodul wird eingeschaltet…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switching the radio off…</source>
        <translation>Funkmodul wird ausgeschaltet…</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Networks in range</source>
        <translation>Netzwerke in Reichweite</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hidden networks are listed under the address of their access point.</source>
        <translation>Verborgene Netzwerke werden unter der Adresse ihres Zugangspunkts aufgeführt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>No networks found</source>
        <translation>Keine Netzwerke gefunden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Wi-Fi is off</source>
        <translation>WLAN ist aus</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The list is refreshed every few seconds.</source>
        <translation>Die Liste wird alle paar Sekunden aktualisiert.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switch the radio on to see networks in range.</source>
        <translation>Schalten Sie das Funkmodul ein, um Netzwerke in Reichweite zu sehen.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Signal %1 %</source>
        <translation>Signal %1&#xa0;%</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Secured</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+115"/>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <location line="-110"/>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Disconnecting from %1…</source>
        <translation>Verbindung zu %1 wird getrennt…</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Saved networks</source>
        <translation>Gespeicherte Netzwerke</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks shown for users appear on the user&apos;s Wi-Fi list; one network can connect by itself at start.</source>
        <translation>Für Benutzer angezeigte Netzwerke erscheinen in der WLAN-Liste des Benutzers; ein Netzwerk kann sich beim Start selbst verbinden.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>NAME</source>
        <translation>NAME</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>AUTO CONNECT</source>
        <translation>AUTOM. VERBINDEN</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>SHOW FOR USER</source>
        <translation>FÜR BENUTZER</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>OPTIONS</source>
        <translation>OPTIONEN</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>No saved networks</source>
        <translation>Keine gespeicherten Netzwerke</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks this terminal has joined are kept here.</source>
        <translation>Netzwerke, denen dieses Terminal beigetreten ist, werden hier gespeichert.</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connect to %1 at start</source>
        <translation>Beim Start mit %1 verbinden</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Show %1 for users</source>
        <translation>%1 für Benutzer anzeigen</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Forget %1</source>
        <translation>%1 vergessen</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connect to %1</source>
        <translation>Mit %1 verbinden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the password of the network %1.</source>
        <translation>Geben Sie das Passwort des Netzwerks %1 ein.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Forget network</source>
        <translation>Netzwerk vergessen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Forget %1? The terminal will need the password again to join it.</source>
        <translation>%1 vergessen? Das Terminal braucht dann erneut das Passwort, um sich zu verbinden.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Forget</source>
        <translation>Vergessen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Forgetting %1…</source>
        <translation>%1 wird vergessen…</translation>
    </message>
</context>
<context>
    <name>WifiUserPage</name>
    <message>
        <location filename="../qml/vorplex/WifiUserPage.qml" line="+32"/>
        <source>Available networks</source>
        <translation>Verfügbare Netzwerke</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks approved by your administrator that are in range.</source>
        <translation>Vom Administrator freigegebene Netzwerke in Reichweite.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>No approved network in range</source>
        <translation>Kein freigegebenes Netzwerk in Reichweite</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ask your administrator to approve a network for users.</source>
        <translation>Bitten Sie Ihren Administrator, ein Netzwerk für Benutzer freizugeben.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Disconnecting from %1…</source>
        <translation>Verbindung zu %1 wird getrennt…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Connecting to %1…</source>
        <translation>Verbindung mit %1 wird hergestellt…</translation>
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
        <translation>Keine</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Enter an address such as 192.168.1.20.</source>
        <translation>Geben Sie eine Adresse wie 192.168.1.20 ein.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter a mask such as 255.255.255.0.</source>
        <translation>Geben Sie eine Maske wie 255.255.255.0 ein.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Enter an address, or leave it empty.</source>
        <translation>Geben Sie eine Adresse ein oder lassen Sie das Feld leer.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Applying the settings of %1…</source>
        <translation>Einstellungen von %1 werden übernommen…</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Settings applied. The interface now reports the values shown.</source>
        <translation>Einstellungen übernommen. Die Schnittstelle meldet jetzt die angezeigten Werte.</translation>
    </message>
    <message>
        <location line="+12"/>
        <location line="+14"/>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>The network adapter to configure and what it reports now.</source>
        <translation>Der zu konfigurierende Netzwerkadapter und was er derzeit meldet.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>No network interface found</source>
        <translation>Keine Netzwerkschnittstelle gefunden</translation>
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
        <translation>Subnetzmaske</translation>
    </message>
    <message>
        <location line="-25"/>
        <location line="+26"/>
        <source>Gateway</source>
        <translation>Gateway</translation>
    </message>
    <message>
        <location line="-25"/>
        <source>DNS servers</source>
        <translation>DNS-Server</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>IPv4 addressing</source>
        <translation>IPv4-Adressierung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic takes address, gateway and DNS from the network&apos;s DHCP server.</source>
        <translation>„Automatisch“ bezieht Adresse, Gateway und DNS vom DHCP-Server des Netzwerks.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Automatic (DHCP)</source>
        <translation>Automatisch (DHCP)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>DNS server 1</source>
        <translation>DNS-Server 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DNS server 2</source>
        <translation>DNS-Server 2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DNS server 3</source>
        <translation>DNS-Server 3</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>WizardNetworkPage</name>
    <message>
        <location filename="../qml/vorplex/WizardNetworkPage.qml" line="+26"/>
        <source>Wired network</source>
        <translation>Kabelnetzwerk</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A network cable brings this terminal online without further settings.</source>
        <translation>Mit einem Netzwerkkabel ist dieses Terminal ohne weitere Einstellungen online.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Address %1</source>
        <translation>Adresse %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Plug in a network cable, or join a Wi-Fi network below.</source>
        <translation>Schließen Sie ein Netzwerkkabel an oder verbinden Sie sich unten mit einem WLAN.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Join a wireless network when there is no cable.</source>
        <translation>Ohne Kabel mit einem Drahtlosnetzwerk verbinden.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Choose a Wi-Fi network…</source>
        <translation>WLAN auswählen…</translation>
    </message>
</context>
<context>
    <name>WizardView</name>
    <message>
        <location filename="../qml/vorplex/WizardView.qml" line="+18"/>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the language of this terminal&apos;s screens.</source>
        <translation>Wählen Sie die Sprache der Bildschirme dieses Terminals.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the keyboard layouts you type with.</source>
        <translation>Wählen Sie die Tastaturlayouts, mit denen Sie schreiben.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Bring this terminal online.</source>
        <translation>Bringen Sie dieses Terminal online.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date &amp; time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set the time zone and the clock.</source>
        <translation>Stellen Sie Zeitzone und Uhrzeit ein.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Management server</source>
        <translation>Verwaltungsserver</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional: let a management server look after this terminal.</source>
        <translation>Optional: Dieses Terminal von einem Verwaltungsserver betreuen lassen.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Wi-Fi</source>
        <translation>WLAN</translation>
    </message>
    <message>
        <location line="+64"/>
        <source>Welcome to your terminal</source>
        <translation>Willkommen an Ihrem Terminal</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Finish</source>
        <translation>Fertigstellen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
</TS>
