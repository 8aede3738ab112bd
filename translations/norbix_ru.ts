<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AccessibilityPage</name>
    <message>
        <location filename="../qml/vorplex/AccessibilityPage.qml" line="+12"/>
        <source>Touch and reading</source>
        <translation>Сенсорный ввод и читаемость</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Both take effect at once.</source>
        <translation>Оба параметра применяются сразу.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>On-screen keyboard</source>
        <translation>Экранная клавиатура</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A keyboard appears on the screen whenever a text field is chosen. Its layout follows the display language.</source>
        <translation>При выборе текстового поля на экране появляется клавиатура. Её раскладка соответствует языку интерфейса.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>High contrast</source>
        <translation>Высокая контрастность</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Black text on white, strong outlines and a clearly marked focus.</source>
        <translation>Чёрный текст на белом фоне, чёткие контуры и хорошо заметный фокус.</translation>
    </message>
</context>
<context>
    <name>AddBrowserConnection</name>
    <message>
        <location filename="../qml/vorplex/AddBrowserConnection.qml" line="+26"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Имя подключения не может быть пустым</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Адрес сервера не может быть пустым</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit Browser Connection</source>
        <translation>Изменить подключение браузера</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add Browser Connection</source>
        <translation>Добавить подключение браузера</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A web site or web application in the browser.</source>
        <translation>Веб-сайт или веб-приложение в браузере.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Добавить подключение</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connection name</source>
        <translation>Имя подключения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Отображается на главном экране</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Site</source>
        <translation>Сайт</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>e.g. https://intranet.example.com</source>
        <translation>например, https://intranet.example.com</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Browser</source>
        <translation>Браузер</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Kiosk mode</source>
        <translation>Режим киоска</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Full screen, without address bar, tabs or menus.</source>
        <translation>Во весь экран, без адресной строки, вкладок и меню.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Private window</source>
        <translation>Приватное окно</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nothing from earlier visits is kept: no history, cookies or cache.</source>
        <translation>От прошлых посещений ничего не сохраняется: ни истории, ни cookie, ни кэша.</translation>
    </message>
</context>
<context>
    <name>AddCitrixConnection</name>
    <message>
        <location filename="../qml/vorplex/AddCitrixConnection.qml" line="+29"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Адрес сервера не может быть пустым</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Имя подключения не может быть пустым</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Edit Citrix Connection</source>
        <translation>Изменить подключение Citrix</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add Citrix Connection</source>
        <translation>Добавить подключение Citrix</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A published desktop or application from a Citrix store.</source>
        <translation>Опубликованный рабочий стол или приложение из магазина Citrix.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Добавить подключение</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connection name</source>
        <translation>Имя подключения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Отображается на главном экране</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Store address, e.g. https://citrix.example.com</source>
        <translation>Магазин, напр. https://citrix.example.com</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Credentials</source>
        <translation>Учётные данные</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Запомнить учётные данные</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>User name and password are saved with the connection.</source>
        <translation>Имя пользователя и пароль сохраняются вместе с подключением.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are only used to browse resources and are not saved.</source>
        <translation>Имя пользователя и пароль используются только для просмотра ресурсов и не сохраняются.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+14"/>
        <source>Resource</source>
        <translation>Ресурс</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>The desktop or application this connection opens.</source>
        <translation>Рабочий стол или приложение, которое открывает это подключение.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Desktop</source>
        <translation>Рабочий стол</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional</source>
        <translation>Необязательно</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Name as the store lists it</source>
        <translation>Имя, как оно указано в магазине</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Browse resources</source>
        <translation>Просмотреть ресурсы</translation>
    </message>
</context>
<context>
    <name>AddPuttyConnection</name>
    <message>
        <location filename="../qml/vorplex/AddPuttyConnection.qml" line="+26"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Имя подключения не может быть пустым</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Edit PuTTY Connection</source>
        <translation>Изменить подключение PuTTY</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add PuTTY Connection</source>
        <translation>Добавить подключение PuTTY</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A terminal session to a server or network device.</source>
        <translation>Терминальный сеанс с сервером или сетевым устройством.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Добавить подключение</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Connection name</source>
        <translation>Имя подключения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Отображается на главном экране</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Host</source>
        <translation>Узел</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Host name or IP address</source>
        <translation>Имя узла или IP-адрес</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+11"/>
        <source>Optional</source>
        <translation>Необязательно</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
</context>
<context>
    <name>AddRDPConnection</name>
    <message>
        <location filename="../qml/vorplex/AddRDPConnection.qml" line="+38"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Имя подключения не может быть пустым</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Адрес сервера не может быть пустым</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit RDP Connection</source>
        <translation>Изменить подключение RDP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add RDP Connection</source>
        <translation>Добавить подключение RDP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A Windows desktop or server reached over Remote Desktop.</source>
        <translation>Рабочий стол или сервер Windows, доступный через удалённый рабочий стол.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Добавить подключение</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connection name</source>
        <translation>Имя подключения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Отображается на главном экране</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+131"/>
        <source>Host name or IP address</source>
        <translation>Имя узла или IP-адрес</translation>
    </message>
    <message>
        <location line="-121"/>
        <source>Credentials</source>
        <translation>Учётные данные</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Запомнить учётные данные</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The session starts without asking for a password.</source>
        <translation>Сеанс запускается без запроса пароля.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are asked for each time the session starts.</source>
        <translation>Имя пользователя и пароль запрашиваются при каждом запуске сеанса.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Domain</source>
        <translation>Домен</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+95"/>
        <source>Optional</source>
        <translation>Необязательно</translation>
    </message>
    <message>
        <location line="-87"/>
        <source>Session</source>
        <translation>Сеанс</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Full screen</source>
        <translation>Во весь экран</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The session fills the whole screen.</source>
        <translation>Сеанс занимает весь экран.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Multi-monitor</source>
        <translation>Несколько мониторов</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The session spans every connected display.</source>
        <translation>Сеанс растягивается на все подключённые мониторы.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Smart card</source>
        <translation>Смарт-карта</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sign in to the session with a smart card in this terminal&apos;s reader.</source>
        <translation>Вход в сеанс по смарт-карте в считывателе этого терминала.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>USB redirection</source>
        <translation>Перенаправление USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB devices plugged into this terminal appear in the session.</source>
        <translation>USB-устройства, подключённые к этому терминалу, доступны в сеансе.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Printer</source>
        <translation>Принтер</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Printers set up on this terminal can be used from the session.</source>
        <translation>Принтеры, настроенные на этом терминале, доступны из сеанса.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Gateway</source>
        <translation>Шлюз</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Only needed when the server is reached through a Remote Desktop Gateway.</source>
        <translation>Нужно, только если сервер доступен через шлюз удалённых рабочих столов.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Gateway host</source>
        <translation>Узел шлюза</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Gateway user name</source>
        <translation>Имя пользователя шлюза</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Gateway domain</source>
        <translation>Домен шлюза</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Gateway password</source>
        <translation>Пароль шлюза</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Performance</source>
        <translation>Производительность</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Best quality suits fast networks; Fastest lowers colour depth and effects for slow links.</source>
        <translation>«Наилучшее качество» подходит для быстрых сетей; «Максимальная скорость» снижает глубину цвета и отключает эффекты на медленных каналах.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Best quality</source>
        <translation>Наилучшее качество</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Fastest</source>
        <translation>Максимальная скорость</translation>
    </message>
</context>
<context>
    <name>AddVNCConnection</name>
    <message>
        <location filename="../qml/vorplex/AddVNCConnection.qml" line="+32"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Адрес сервера не может быть пустым</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter a host name or IP address, optionally followed by a colon and a port</source>
        <translation>Введите имя узла или IP-адрес, при необходимости с двоеточием и номером порта</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The port must be a number from 1 to 65535</source>
        <translation>Порт должен быть числом от 1 до 65535</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Имя подключения не может быть пустым</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Edit VNC Connection</source>
        <translation>Изменить подключение VNC</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add VNC Connection</source>
        <translation>Добавить подключение VNC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A remote screen shown in this terminal&apos;s own VNC viewer.</source>
        <translation>Удалённый экран во встроенном средстве просмотра VNC этого терминала.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Добавить подключение</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Connection name</source>
        <translation>Имя подключения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Отображается на главном экране</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>host or host:port</source>
        <translation>узел или узел:порт</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Port 5900 when none is given</source>
        <translation>Порт 5900, если не указан</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+22"/>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Remember password</source>
        <translation>Запомнить пароль</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The password is stored encrypted on this terminal.</source>
        <translation>Пароль хранится на этом терминале в зашифрованном виде.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The password is not stored; servers that ask for one refuse the session.</source>
        <translation>Пароль не сохраняется; серверы, которые его требуют, отклонят сеанс.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Viewer window</source>
        <translation>Окно просмотра</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Full screen</source>
        <translation>Во весь экран</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The remote screen fills the whole display.</source>
        <translation>Удалённый экран занимает весь дисплей.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Shrink to fit</source>
        <translation>Уменьшать по размеру</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Large remote screens are scaled down to the window instead of scrolled.</source>
        <translation>Большие удалённые экраны уменьшаются до размера окна вместо прокрутки.</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+19"/>
        <source>Window size</source>
        <translation>Размер окна</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Share of this terminal&apos;s screen taken by the viewer window, from its top left corner.</source>
        <translation>Доля экрана этого терминала, которую занимает окно просмотра, от левого верхнего угла.</translation>
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
        <translation>Разрешить удалённое подключение</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Accept</source>
        <translation>Принять</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reject</source>
        <translation>Отклонить</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Request will be accepted automatically in %1 seconds</source>
        <translation>Запрос будет автоматически принят через %1 с</translation>
    </message>
</context>
<context>
    <name>AdminLoginDialog</name>
    <message>
        <location filename="../qml/vorplex/AdminLoginDialog.qml" line="+11"/>
        <source>Administrator access</source>
        <translation>Доступ администратора</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Advanced settings are protected. Enter the administrator password to unlock them.</source>
        <translation>Дополнительные настройки защищены. Введите пароль администратора, чтобы разблокировать их.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unlock</source>
        <translation>Разблокировать</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Wrong password. Please try again.</source>
        <translation>Неверный пароль. Попробуйте ещё раз.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Administrator password</source>
        <translation>Пароль администратора</translation>
    </message>
</context>
<context>
    <name>AdminPasswordPage</name>
    <message>
        <location filename="../qml/vorplex/AdminPasswordPage.qml" line="+16"/>
        <source>The current password is not correct.</source>
        <translation>Текущий пароль неверен.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Enter a new password.</source>
        <translation>Введите новый пароль.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The passwords do not match.</source>
        <translation>Пароли не совпадают.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Administrator password changed.</source>
        <translation>Пароль администратора изменён.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Change administrator password</source>
        <translation>Изменить пароль администратора</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Anyone who knows this password can change the advanced settings of this terminal.</source>
        <translation>Любой, кто знает этот пароль, может изменить дополнительные настройки этого терминала.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Current password</source>
        <translation>Текущий пароль</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>New password</source>
        <translation>Новый пароль</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Repeat new password</source>
        <translation>Повторите новый пароль</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Change password</source>
        <translation>Изменить пароль</translation>
    </message>
</context>
<context>
    <name>CertificatesModel</name>
    <message>
        <location filename="../src/maintenance/CertificatesModel.cpp" line="+6"/>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not before</source>
        <translation>Действует с</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not after</source>
        <translation>Действует до</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
</context>
<context>
    <name>CertificatesPage</name>
    <message>
        <location filename="../qml/vorplex/CertificatesPage.qml" line="+42"/>
        <source>Enter the password of the certificate file.</source>
        <translation>Введите пароль файла сертификата.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Certificate added</source>
        <translation>Сертификат добавлен</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Import a certificate</source>
        <translation>Импорт сертификата</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Certificate files (.crt, .cer, .der, .pfx) on a USB drive. The certificate is trusted by this terminal and its sessions.</source>
        <translation>Файлы сертификатов (.crt, .cer, .der, .pfx) на USB-накопителе. Этот терминал и его сеансы будут доверять сертификату.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Certificate file</source>
        <translation>Файл сертификата</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No certificate files found</source>
        <translation>Файлы сертификатов не найдены</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with certificate files, then refresh the list.</source>
        <translation>Вставьте USB-накопитель с файлами сертификатов и обновите список.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Refresh file list</source>
        <translation>Обновить список файлов</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password of the certificate file</source>
        <translation>Пароль файла сертификата</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Installed certificates</source>
        <translation>Установленные сертификаты</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Authorities this terminal trusts in addition to the system&apos;s own.</source>
        <translation>Центры сертификации, которым этот терминал доверяет в дополнение к системным.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Show all certificates</source>
        <translation>Показать все сертификаты</translation>
    </message>
    <message>
        <location line="+64"/>
        <source>System certificate</source>
        <translation>Системный сертификат</translation>
    </message>
    <message>
        <location line="+31"/>
        <location line="+26"/>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>No certificates installed</source>
        <translation>Сертификаты не установлены</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import a certificate from a USB drive, or show the system&apos;s certificates too.</source>
        <translation>Импортируйте сертификат с USB-накопителя или включите показ системных сертификатов.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Remove certificate</source>
        <translation>Удалить сертификат</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove %1? This terminal and its sessions will no longer trust the servers it vouches for.</source>
        <translation>Удалить %1? Этот терминал и его сеансы перестанут доверять серверам, которые он удостоверяет.</translation>
    </message>
</context>
<context>
    <name>CertificatesStorage</name>
    <message>
        <location filename="../src/maintenance/CertificatesStorage.cpp" line="+204"/>
        <source>The file name %1 has no name before its extension.</source>
        <translation>В имени файла %1 нет имени перед расширением.</translation>
    </message>
</context>
<context>
    <name>CitrixProgressPopup</name>
    <message>
        <location filename="../qml/vorplex/CitrixProgressPopup.qml" line="+55"/>
        <source>Citrix resources</source>
        <translation>Ресурсы Citrix</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Citrix</source>
        <translation>Citrix</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Use resource</source>
        <translation>Использовать ресурс</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <location line="+46"/>
        <source>The store offers no resources for this account.</source>
        <translation>Магазин не предлагает ресурсов для этой учётной записи.</translation>
    </message>
    <message>
        <location line="+63"/>
        <source>Contacting the Citrix store…</source>
        <translation>Подключение к магазину Citrix…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Starting the Citrix session…</source>
        <translation>Запуск сеанса Citrix…</translation>
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
        <translation>Удалённый рабочий стол</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Browser</source>
        <translation>Браузер</translation>
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
        <translation>Подключение</translation>
    </message>
</context>
<context>
    <name>ConnectionTableModel</name>
    <message>
        <location filename="../src/connections/ConnectionTableModel.cpp" line="+22"/>
        <source>Browser</source>
        <translation>Браузер</translation>
    </message>
    <message>
        <location line="+69"/>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server Address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto Connect</source>
        <translation>Автозапуск</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
</context>
<context>
    <name>ConnectionTile</name>
    <message>
        <location filename="../qml/vorplex/ConnectionTile.qml" line="+70"/>
        <source>Auto</source>
        <translation>Авто</translation>
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
        <translation>Подключения</translation>
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
        <translation>Браузер</translation>
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
        <translation>Подключение «%1» добавлено.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Changes to “%1” saved.</source>
        <translation>Изменения в «%1» сохранены.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Microsoft Teams added.</source>
        <translation>Microsoft Teams добавлен.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Microsoft Teams is already in the list.</source>
        <translation>Microsoft Teams уже есть в списке.</translation>
    </message>
    <message>
        <location line="+66"/>
        <location line="+314"/>
        <source>Add connection</source>
        <translation>Добавить подключение</translation>
    </message>
    <message>
        <location line="-298"/>
        <source>Remote Desktop (RDP)</source>
        <translation>Удалённый рабочий стол (RDP)</translation>
    </message>
    <message>
        <location line="+52"/>
        <source>Add Microsoft Teams</source>
        <translation>Добавить Microsoft Teams</translation>
    </message>
    <message>
        <location line="+199"/>
        <source>Start automatically</source>
        <translation>Запускать автоматически</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Nothing to edit for this kind</source>
        <translation>Для этого типа нечего изменять</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+71"/>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <location line="-56"/>
        <source>No connections yet</source>
        <translation>Подключений пока нет</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add a remote desktop, a web site or an application. Each connection appears as a tile on the home screen.</source>
        <translation>Добавьте удалённый рабочий стол, веб-сайт или приложение. Каждое подключение появится плиткой на главном экране.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Applications</source>
        <translation>Приложения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Kinds of connection that can be added on this terminal.</source>
        <translation>Типы подключений, которые можно добавить на этом терминале.</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Remove connection?</source>
        <translation>Удалить подключение?</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>“%1” will be removed from this terminal, and its tile from the home screen.</source>
        <translation>Подключение «%1» будет удалено с этого терминала, а его плитка — с главного экрана.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>“%1” removed.</source>
        <translation>Подключение «%1» удалено.</translation>
    </message>
</context>
<context>
    <name>ExportSettingsPage</name>
    <message>
        <location filename="../qml/vorplex/ExportSettingsPage.qml" line="+33"/>
        <source>The settings could not be saved: the drive cannot be written to.</source>
        <translation>Не удалось сохранить настройки: запись на накопитель невозможна.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nothing was copied: the chosen settings do not exist on this terminal yet.</source>
        <translation>Ничего не скопировано: выбранных настроек на этом терминале пока нет.</translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>%n group(s) of settings saved to %1.</source>
        <translation>
            <numerusform>%n группа настроек сохранена в %1.</numerusform>
            <numerusform>%n группы настроек сохранены в %1.</numerusform>
            <numerusform>%n групп настроек сохранено в %1.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Choose what to copy to the USB drive.</source>
        <translation>Выберите, что скопировать на USB-накопитель.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A new folder named after this terminal and the current time is created on the drive.</source>
        <translation>На накопителе создаётся новая папка с именем этого терминала и текущим временем.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to export settings</source>
        <translation>Выберите папку для экспорта</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No removable drive found</source>
        <translation>Съёмный накопитель не найден</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Вставьте USB-накопитель и обновите список.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Обновить список накопителей</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
</context>
<context>
    <name>FormPage</name>
    <message>
        <location filename="../qml/custom/NorbixUi/FormPage.qml" line="+15"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>ImportSettingsPage</name>
    <message numerus="yes">
        <location filename="../qml/vorplex/ImportSettingsPage.qml" line="+33"/>
        <source>%n group(s) of settings loaded.</source>
        <translation>
            <numerusform>Загружена %n группа настроек.</numerusform>
            <numerusform>Загружены %n группы настроек.</numerusform>
            <numerusform>Загружено %n групп настроек.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>%n group(s) of settings loaded. Not in the saved set, so reset to their defaults: %1.</source>
        <translation>
            <numerusform>Загружена %n группа настроек. Отсутствуют в сохранённом наборе и поэтому сброшены к значениям по умолчанию: %1.</numerusform>
            <numerusform>Загружены %n группы настроек. Отсутствуют в сохранённом наборе и поэтому сброшены к значениям по умолчанию: %1.</numerusform>
            <numerusform>Загружено %n групп настроек. Отсутствуют в сохранённом наборе и поэтому сброшены к значениям по умолчанию: %1.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Choose what to load. A chosen group that the saved set lacks is reset to its defaults.</source>
        <translation>Выберите, что загрузить. Выбранная группа, которой нет в сохранённом наборе, сбрасывается к значениям по умолчанию.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Saved settings are folders named after the terminal they came from and the time they were saved.</source>
        <translation>Сохранённые настройки — это папки с именем исходного терминала и временем сохранения.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to import settings</source>
        <translation>Выберите папку для импорта</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No saved settings found</source>
        <translation>Сохранённые настройки не найдены</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with exported settings, then refresh the list.</source>
        <translation>Вставьте USB-накопитель с экспортированными настройками и обновите список.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh folder list</source>
        <translation>Обновить список папок</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+16"/>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Import settings</source>
        <translation>Импорт настроек</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The chosen settings of this terminal are replaced by the saved ones.</source>
        <translation>Выбранные настройки этого терминала будут заменены сохранёнными.</translation>
    </message>
</context>
<context>
    <name>LocalUpdaterBackend</name>
    <message>
        <location filename="../src/maintenance/LocalUpdaterBackend.cpp" line="+146"/>
        <location line="+39"/>
        <location line="+15"/>
        <source>The update service sent an answer that cannot be read.</source>
        <translation>Служба обновления прислала нечитаемый ответ.</translation>
    </message>
    <message>
        <location line="-37"/>
        <source>The update service refused the request (HTTP %1).</source>
        <translation>Служба обновления отклонила запрос (HTTP %1).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service did not answer in time.</source>
        <translation>Служба обновления не ответила вовремя.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service is not running.</source>
        <translation>Служба обновления не запущена.</translation>
    </message>
</context>
<context>
    <name>LockedPage</name>
    <message>
        <location filename="../qml/vorplex/LockedPage.qml" line="+19"/>
        <source>Administrator access required</source>
        <translation>Требуется доступ администратора</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This section changes how the terminal works for everyone who uses it. Unlock the advanced settings with the administrator password to continue.</source>
        <translation>Этот раздел меняет работу терминала для всех его пользователей. Чтобы продолжить, разблокируйте дополнительные настройки паролем администратора.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Unlock</source>
        <translation>Разблокировать</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <location filename="../qml/vorplex/LogsPage.qml" line="+27"/>
        <source>Export finished.</source>
        <translation>Экспорт завершён.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Debug logging</source>
        <translation>Отладочный журнал</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Records detailed messages for troubleshooting. Logs grow faster while it is on.</source>
        <translation>Записывает подробные сообщения для диагностики неполадок. Пока он включён, журналы растут быстрее.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Export logs</source>
        <translation>Экспорт журналов</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save the logs to a USB drive, for example to pass them on to support.</source>
        <translation>Сохраните журналы на USB-накопитель, например, чтобы передать их в службу поддержки.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Choose folder to export logs</source>
        <translation>Выберите папку для экспорта журналов</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No removable drive found</source>
        <translation>Съёмный накопитель не найден</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Вставьте USB-накопитель и обновите список.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Обновить список накопителей</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Export all logs</source>
        <translation>Экспортировать все журналы</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Current session</source>
        <translation>Текущий сеанс</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Messages logged since the shell was started.</source>
        <translation>Сообщения, записанные с момента запуска оболочки.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>No messages logged yet.</source>
        <translation>Сообщений пока нет.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <location filename="../qml/vorplex/Main.qml" line="+63"/>
        <location line="+156"/>
        <source>Failed to connect</source>
        <translation>Не удалось подключиться</translation>
    </message>
    <message>
        <location line="-146"/>
        <source>This connection is incomplete and can&apos;t be started. An administrator can complete it in Settings → Connections.</source>
        <translation>Это подключение заполнено не полностью и не может быть запущено. Администратор может дополнить его в разделе Настройки → Подключения.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Connecting to the Citrix store…</source>
        <translation>Подключение к магазину Citrix…</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Support desk</source>
        <translation>Служба поддержки</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alex from IT support would like to see your screen to help with your ticket.</source>
        <translation>Алекс из ИТ-поддержки хочет увидеть ваш экран, чтобы помочь с вашей заявкой.</translation>
    </message>
    <message>
        <location line="+65"/>
        <source>Your request for help has been sent.</source>
        <translation>Ваш запрос о помощи отправлен.</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>“%1” added.</source>
        <translation>Подключение «%1» добавлено.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Changes to “%1” saved.</source>
        <translation>Изменения в «%1» сохранены.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Connection error</source>
        <translation>Ошибка подключения</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <location filename="../qml/vorplex/MainView.qml" line="+130"/>
        <source>Help</source>
        <translation>Помощь</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connections</source>
        <translation>Подключения</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Show less</source>
        <translation>Свернуть</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show all (%1)</source>
        <translation>Показать все (%1)</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>No connections yet</source>
        <translation>Подключений пока нет</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote desktops and applications will appear here as tiles. An administrator adds them in Settings → Connections.</source>
        <translation>Здесь в виде плиток появятся удалённые рабочие столы и приложения. Администратор добавляет их в разделе Настройки → Подключения.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Open connection settings</source>
        <translation>Открыть настройки подключений</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>An administrator has seen your request for help and will contact you.</source>
        <translation>Администратор получил ваш запрос о помощи и свяжется с вами.</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Norbix %1</source>
        <translation>Norbix %1</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Thin client terminal</source>
        <translation>Терминал тонкого клиента</translation>
    </message>
</context>
<context>
    <name>ManagementPage</name>
    <message>
        <location filename="../qml/vorplex/ManagementPage.qml" line="+20"/>
        <source>Enter an address such as wss://server.example.com/api/v1/ws.</source>
        <translation>Введите адрес вида wss://server.example.com/api/v1/ws.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Server settings saved.</source>
        <translation>Настройки сервера сохранены.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use letters, digits and hyphens only (at most 63).</source>
        <translation>Только буквы, цифры и дефисы (не более 63).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Computer name set to %1.</source>
        <translation>Задано имя компьютера %1.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Use at least 6 characters.</source>
        <translation>Используйте не менее 6 символов.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remote assistance password set.</source>
        <translation>Пароль удалённой помощи задан.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Managed by a server</source>
        <translation>Управляется сервером</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The management server can change settings, connections and certificates, and update or restart this terminal.</source>
        <translation>Сервер управления может изменять настройки, подключения и сертификаты, а также обновлять и перезапускать этот терминал.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not managed</source>
        <translation>Не управляется</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connected to the management server</source>
        <translation>Подключено к серверу управления</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not connected; the terminal keeps trying</source>
        <translation>Нет подключения; терминал продолжает попытки</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Server</source>
        <translation>Сервер</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Where the terminal registers and which account it belongs to.</source>
        <translation>Где регистрируется терминал и к какой учётной записи он относится.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Account</source>
        <translation>Учётная запись</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Organisation account on the server</source>
        <translation>Учётная запись организации на сервере</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Save server settings</source>
        <translation>Сохранить настройки сервера</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Computer name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name of this terminal on the server and on the network. Leave it empty to use the name made from the network adapter.</source>
        <translation>Имя этого терминала на сервере и в сети. Оставьте пустым, чтобы использовать имя, образованное от сетевого адаптера.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Set name</source>
        <translation>Задать имя</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Remote assistance</source>
        <translation>Удалённая помощь</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Password of this terminal&apos;s screen sharing, used when an administrator connects for support.</source>
        <translation>Пароль общего доступа к экрану этого терминала; используется, когда администратор подключается для поддержки.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>New password</source>
        <translation>Новый пароль</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Set password</source>
        <translation>Задать пароль</translation>
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
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>NavItem</name>
    <message>
        <location filename="../qml/custom/NorbixUi/NavItem.qml" line="+21"/>
        <source>%1 (locked)</source>
        <translation>%1 (заблокировано)</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <location filename="../qml/custom/NorbixUi/PasswordField.qml" line="+58"/>
        <source>Hide password</source>
        <translation>Скрыть пароль</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show password</source>
        <translation>Показать пароль</translation>
    </message>
</context>
<context>
    <name>PlaceholderCard</name>
    <message>
        <location filename="../qml/custom/NorbixUi/PlaceholderCard.qml" line="+8"/>
        <source>Not available on this terminal yet</source>
        <translation>Пока недоступно на этом терминале</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>These settings arrive with a later software update. Until then the terminal keeps its current configuration, and nothing here needs your attention.</source>
        <translation>Эти настройки появятся в одном из следующих обновлений. До тех пор терминал сохраняет текущую конфигурацию, и здесь ничего не требует вашего внимания.</translation>
    </message>
</context>
<context>
    <name>RDPConnector</name>
    <message>
        <location filename="../src/connectors/RDPConnector.cpp" line="+91"/>
        <source>Failed to authorize user</source>
        <translation>Не удалось авторизовать пользователя</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invalid IP</source>
        <translation>Неверный IP-адрес</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Failed to connect</source>
        <translation>Не удалось подключиться</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Host not found</source>
        <translation>Узел не найден</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Error: </source>
        <translation>Ошибка: </translation>
    </message>
</context>
<context>
    <name>RDPLoginDialog</name>
    <message>
        <location filename="../qml/vorplex/RDPLoginDialog.qml" line="+32"/>
        <source>Sign in</source>
        <translation>Вход</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Enter your user name and password to start the session.</source>
        <translation>Введите имя пользователя и пароль, чтобы начать сеанс.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter your user name and password for “%1”.</source>
        <translation>Введите имя пользователя и пароль для «%1».</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter your user name and password for “%1” on %2.</source>
        <translation>Введите имя пользователя и пароль для «%1» на %2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>User name can&apos;t be empty</source>
        <translation>Имя пользователя не может быть пустым</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
</context>
<context>
    <name>SectionCatalog</name>
    <message>
        <location filename="../qml/vorplex/SectionCatalog.qml" line="+9"/>
        <source>Connectivity</source>
        <translation>Связь</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connections</source>
        <translation>Подключения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote sessions that appear as tiles on the home screen.</source>
        <translation>Удалённые сеансы, которые отображаются плитками на главном экране.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wired network</source>
        <translation>Проводная сеть</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ethernet addressing, DNS and proxy.</source>
        <translation>Адресация Ethernet, DNS и прокси.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wireless networks and saved credentials.</source>
        <translation>Беспроводные сети и сохранённые учётные данные.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>802.1X authentication</source>
        <translation>Аутентификация 802.1X</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Port-based network access control for wired and wireless networks.</source>
        <translation>Контроль доступа к сети на основе портов для проводных и беспроводных сетей.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Host name</source>
        <translation>Имя узла</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name this terminal uses on the network.</source>
        <translation>Имя этого терминала в сети.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Preferences</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Displays</source>
        <translation>Дисплеи</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resolution, arrangement and orientation of connected monitors.</source>
        <translation>Разрешение, расположение и ориентация подключённых мониторов.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Power saving</source>
        <translation>Энергосбережение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Screen blanking and standby timing.</source>
        <translation>Отключение экрана и переход в режим ожидания.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date &amp; time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time zone, clock format and time servers.</source>
        <translation>Часовой пояс, формат часов и серверы времени.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sound</source>
        <translation>Звук</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output and input devices and volume.</source>
        <translation>Устройства вывода и ввода, громкость.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard</source>
        <translation>Клавиатура</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard layout and key repeat.</source>
        <translation>Раскладка клавиатуры и повтор клавиш.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Mouse</source>
        <translation>Мышь</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pointer speed, button order and double-click timing.</source>
        <translation>Скорость указателя, порядок кнопок и интервал двойного щелчка.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Display language and regional formats.</source>
        <translation>Язык интерфейса и региональные форматы.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wallpaper</source>
        <translation>Обои</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Background image of the home screen.</source>
        <translation>Фоновое изображение главного экрана.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Accessibility</source>
        <translation>Специальные возможности</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>On-screen keyboard and high contrast.</source>
        <translation>Экранная клавиатура и высокая контрастность.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Devices</source>
        <translation>Устройства</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Printers</source>
        <translation>Принтеры</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Local and network printers available to sessions.</source>
        <translation>Локальные и сетевые принтеры, доступные в сеансах.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB storage</source>
        <translation>USB-накопители</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Access to USB drives on this terminal and in sessions.</source>
        <translation>Доступ к USB-накопителям на этом терминале и в сеансах.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Security</source>
        <translation>Безопасность</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Certificates</source>
        <translation>Сертификаты</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trusted certificate authorities and client certificates.</source>
        <translation>Доверенные центры сертификации и сертификаты клиента.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Administrator password</source>
        <translation>Пароль администратора</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The password that protects the advanced settings.</source>
        <translation>Пароль, защищающий дополнительные настройки.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Management</source>
        <translation>Управление</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Management server</source>
        <translation>Сервер управления</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Central management of this terminal.</source>
        <translation>Централизованное управление этим терминалом.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Updates</source>
        <translation>Обновления</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Software updates for this terminal.</source>
        <translation>Обновления программного обеспечения этого терминала.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export settings</source>
        <translation>Экспорт настроек</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save this terminal&apos;s configuration to a USB drive.</source>
        <translation>Сохранение конфигурации этого терминала на USB-накопитель.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import settings</source>
        <translation>Импорт настроек</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Load a configuration from a USB drive.</source>
        <translation>Загрузка конфигурации с USB-накопителя.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Support</source>
        <translation>Поддержка</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Logs</source>
        <translation>Журналы</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Diagnostic messages of this session and export for support.</source>
        <translation>Диагностические сообщения этого сеанса и их экспорт для поддержки.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>System information</source>
        <translation>Сведения о системе</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hardware, software version and network details.</source>
        <translation>Оборудование, версия ПО и параметры сети.</translation>
    </message>
</context>
<context>
    <name>SettingsGroupsCard</name>
    <message>
        <location filename="../qml/vorplex/SettingsGroupsCard.qml" line="+10"/>
        <source>Display settings</source>
        <translation>Настройки дисплея</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard and Mouse</source>
        <translation>Клавиатура и мышь</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language settings</source>
        <translation>Настройки языка</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connections</source>
        <translation>Подключения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Time settings</source>
        <translation>Настройки времени</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>API settings</source>
        <translation>Настройки API</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Admin password</source>
        <translation>Пароль администратора</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wallpapers</source>
        <translation>Обои</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clear all</source>
        <translation>Снять все</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Select all</source>
        <translation>Выбрать все</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <location filename="../qml/vorplex/SettingsView.qml" line="+109"/>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Home</source>
        <translation>Главная</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Back to home</source>
        <translation>На главный экран</translation>
    </message>
    <message>
        <location line="+153"/>
        <source>Advanced settings</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Unlocked</source>
        <translation>Разблокировано</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Locked</source>
        <translation>Заблокировано</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Lock</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unlock</source>
        <translation>Войти</translation>
    </message>
</context>
<context>
    <name>SystemInfoModel</name>
    <message>
        <location filename="../src/settings/SystemInfoModel.cpp" line="+150"/>
        <source>Processor</source>
        <translation>Процессор</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Memory</source>
        <translation>Память</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Disks</source>
        <translation>Диски</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Disk %1</source>
        <translation>Диск %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Network adapters</source>
        <translation>Сетевые адаптеры</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Network adapter %1</source>
        <translation>Сетевой адаптер %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Displays</source>
        <translation>Мониторы</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Display %1</source>
        <translation>Монитор %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Shell version</source>
        <translation>Версия оболочки</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Kernel</source>
        <translation>Ядро</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Operating system</source>
        <translation>Операционная система</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>not installed</source>
        <translation>не установлено</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1: %2, %3 free</source>
        <translation>%1: %2, свободно %3</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>system information</source>
        <translation>сведения о системе</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+19"/>
        <source>Hardware</source>
        <translation>Оборудование</translation>
    </message>
    <message>
        <location line="-19"/>
        <location line="+19"/>
        <source>Software</source>
        <translation>Программное обеспечение</translation>
    </message>
</context>
<context>
    <name>SystemInfoPage</name>
    <message>
        <location filename="../qml/vorplex/SystemInfoPage.qml" line="+27"/>
        <source>The system information is on the clipboard.</source>
        <translation>Сведения о системе скопированы в буфер обмена.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Saved as %1.</source>
        <translation>Сохранено как %1.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The file could not be written to the drive.</source>
        <translation>Не удалось записать файл на накопитель.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Reading system information…</source>
        <translation>Чтение сведений о системе…</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Hardware</source>
        <translation>Оборудование</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Software</source>
        <translation>Программное обеспечение</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Send to support</source>
        <translation>Отправить в поддержку</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copy these facts, or save them as a text file on a USB drive.</source>
        <translation>Скопируйте эти сведения или сохраните их в текстовый файл на USB-накопителе.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Copy to clipboard</source>
        <translation>Копировать в буфер обмена</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Drive</source>
        <translation>Накопитель</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No removable drive found</source>
        <translation>Съёмный накопитель не найден</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive, then refresh the list.</source>
        <translation>Подключите USB-накопитель и обновите список.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh drive list</source>
        <translation>Обновить список накопителей</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Save to drive</source>
        <translation>Сохранить на накопитель</translation>
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
    <name>Toast</name>
    <message>
        <location filename="../qml/custom/NorbixUi/Toast.qml" line="+76"/>
        <source>Dismiss</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <location filename="../qml/vorplex/UpdatesPage.qml" line="+11"/>
        <source>Contacting the update service…</source>
        <translation>Подключение к службе обновления…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update service unavailable</source>
        <translation>Служба обновления недоступна</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ready</source>
        <translation>Готово</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Checking for updates</source>
        <translation>Проверка обновлений</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Downloading update</source>
        <translation>Загрузка обновления</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installing update</source>
        <translation>Установка обновления</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update installed</source>
        <translation>Обновление установлено</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update failed</source>
        <translation>Ошибка обновления</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>The terminal is being reset to its factory settings.</source>
        <translation>Терминал сбрасывается к заводским настройкам.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update service is installing the package.</source>
        <translation>Служба обновления устанавливает пакет.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Check now</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Installed version: %1</source>
        <translation>Установленная версия: %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Available updates</source>
        <translation>Доступные обновления</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Versions the update service offers for this terminal.</source>
        <translation>Версии, которые служба обновления предлагает для этого терминала.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>System %1</source>
        <translation>Система %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Shell %1</source>
        <translation>Оболочка %1</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Install</source>
        <translation>Установить</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>No updates available</source>
        <translation>Нет доступных обновлений</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No information about updates</source>
        <translation>Нет сведений об обновлениях</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This terminal runs the newest software the update service knows of.</source>
        <translation>На этом терминале установлена новейшая версия, известная службе обновления.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Available versions appear here while the update service is running.</source>
        <translation>Доступные версии отображаются здесь, пока работает служба обновления.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Install updates automatically</source>
        <translation>Устанавливать обновления автоматически</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A newer version of the shell is installed as soon as the update service offers it.</source>
        <translation>Новая версия оболочки устанавливается, как только служба обновления её предложит.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Install from a USB drive</source>
        <translation>Установка с USB-накопителя</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>An update package (.deb) for terminals without access to the update server.</source>
        <translation>Пакет обновления (.deb) для терминалов без доступа к серверу обновлений.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Update package</source>
        <translation>Пакет обновления</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No update packages found</source>
        <translation>Пакеты обновлений не найдены</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with an update package, then refresh the list.</source>
        <translation>Вставьте USB-накопитель с пакетом обновления и обновите список.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh package list</source>
        <translation>Обновить список пакетов</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Install package</source>
        <translation>Установить пакет</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+14"/>
        <source>Factory reset</source>
        <translation>Сброс к заводским настройкам</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Every setting and connection of this terminal is erased and the terminal restarts with its factory settings.</source>
        <translation>Все настройки и подключения этого терминала будут стёрты, и терминал перезапустится с заводскими настройками.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
</context>
<context>
    <name>VMWareConnectDialog</name>
    <message>
        <location filename="../qml/vorplex/VMWareConnectDialog.qml" line="+33"/>
        <source>Connection name can&apos;t be empty</source>
        <translation>Имя подключения не может быть пустым</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Server address can&apos;t be empty</source>
        <translation>Адрес сервера не может быть пустым</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Edit VMWare Horizon Connection</source>
        <translation>Изменить подключение VMware Horizon</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add VMWare Horizon Connection</source>
        <translation>Добавить подключение VMware Horizon</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A virtual desktop from a VMware Horizon connection server.</source>
        <translation>Виртуальный рабочий стол с сервера подключений VMware Horizon.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Add connection</source>
        <translation>Добавить подключение</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connection name</source>
        <translation>Имя подключения</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shown on the home screen</source>
        <translation>Отображается на главном экране</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connection server, e.g. horizon.example.com</source>
        <translation>Сервер, напр. horizon.example.com</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Protocol</source>
        <translation>Протокол</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Display protocol of the desktop session.</source>
        <translation>Протокол отображения сеанса рабочего стола.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Credentials</source>
        <translation>Учётные данные</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remember credentials</source>
        <translation>Запомнить учётные данные</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>User name and password are saved with the connection.</source>
        <translation>Имя пользователя и пароль сохраняются вместе с подключением.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User name and password are not saved with the connection.</source>
        <translation>Имя пользователя и пароль не сохраняются вместе с подключением.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Domain</source>
        <translation>Домен</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional</source>
        <translation>Необязательно</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Desktop</source>
        <translation>Рабочий стол</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional: the desktop pool to open</source>
        <translation>Необязательно: пул рабочих столов</translation>
    </message>
</context>
<context>
    <name>WizardNetworkPage</name>
    <message>
        <location filename="../qml/vorplex/WizardNetworkPage.qml" line="+26"/>
        <source>Wired network</source>
        <translation>Проводная сеть</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A network cable brings this terminal online without further settings.</source>
        <translation>Сетевой кабель подключает этот терминал без дополнительных настроек.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not connected</source>
        <translation>Не подключено</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Address %1</source>
        <translation>Адрес %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Plug in a network cable, or join a Wi-Fi network below.</source>
        <translation>Подключите сетевой кабель или выберите сеть Wi-Fi ниже.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Join a wireless network when there is no cable.</source>
        <translation>Подключитесь к беспроводной сети, если кабеля нет.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Choose a Wi-Fi network…</source>
        <translation>Выбрать сеть Wi-Fi…</translation>
    </message>
</context>
<context>
    <name>WizardView</name>
    <message>
        <location filename="../qml/vorplex/WizardView.qml" line="+18"/>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the language of this terminal&apos;s screens.</source>
        <translation>Выберите язык интерфейса этого терминала.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keyboard</source>
        <translation>Клавиатура</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the keyboard layouts you type with.</source>
        <translation>Выберите раскладки клавиатуры, которыми вы пользуетесь.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Network</source>
        <translation>Сеть</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Bring this terminal online.</source>
        <translation>Подключите этот терминал к сети.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date &amp; time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set the time zone and the clock.</source>
        <translation>Настройте часовой пояс и часы.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Management server</source>
        <translation>Сервер управления</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Optional: let a management server look after this terminal.</source>
        <translation>Необязательно: передайте управление этим терминалом серверу управления.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+64"/>
        <source>Welcome to your terminal</source>
        <translation>Добро пожаловать</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Step %1 of %2</source>
        <translation>Шаг %1 из %2</translation>
    </message>
    <message>
        <location line="+53"/>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Skip</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
</context>
</TS>
