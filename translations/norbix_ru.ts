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
        <source>High contrast takes effect at once.</source>
        <translation>Высокая контрастность включается сразу.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>On-screen keyboard</source>
        <translation>Экранная клавиатура</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The on-screen keyboard appears after the next start of the terminal.</source>
        <translation>Экранная клавиатура появится после следующего запуска терминала.</translation>
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
        <location line="+19"/>
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
    <name>AddLayoutDialog</name>
    <message>
        <location filename="../qml/vorplex/AddLayoutDialog.qml" line="+16"/>
        <source>Add keyboard layouts</source>
        <translation>Добавить раскладки клавиатуры</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Language or country</source>
        <translation>Язык или страна</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Loading info...</source>
        <translation>Загрузка сведений...</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The list of keyboard layouts could not be read.</source>
        <translation>Не удалось прочитать список раскладок клавиатуры.</translation>
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
        <location line="+11"/>
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
        <location line="+19"/>
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
        <location line="+20"/>
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
    <name>AssistanceBanner</name>
    <message>
        <location filename="../qml/vorplex/AssistanceBanner.qml" line="+35"/>
        <source>Remote assistance active</source>
        <translation>Удалённая помощь активна</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>End assistance</source>
        <translation>Завершить помощь</translation>
    </message>
</context>
<context>
    <name>CertificateCountBadge</name>
    <message numerus="yes">
        <location filename="../qml/vorplex/CertificateCountBadge.qml" line="+16"/>
        <source>%n certificate(s) expired or expiring soon</source>
        <translation>
            <numerusform>%n сертификат истёк или скоро истечёт</numerusform>
            <numerusform>%n сертификата истекли или скоро истекут</numerusform>
            <numerusform>%n сертификатов истекли или скоро истекут</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CertificateExpiry</name>
    <message>
        <location filename="../src/maintenance/CertificateExpiry.cpp" line="+44"/>
        <source>Expired on %1</source>
        <translation>Истёк %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expires on %1</source>
        <translation>Истекает %1</translation>
    </message>
</context>
<context>
    <name>CertificatesModel</name>
    <message>
        <location filename="../src/maintenance/CertificatesModel.cpp" line="+7"/>
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
        <location line="+46"/>
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
    <name>ConnectionCheck</name>
    <message>
        <location filename="../src/connectors/ConnectionCheck.cpp" line="+215"/>
        <source>Reading the address</source>
        <translation>Проверка адреса</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Finding the server</source>
        <translation>Поиск сервера</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Connecting to port %1</source>
        <translation>Подключение к порту %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Secure handshake</source>
        <translation>Защищённое соединение</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Enter the server&apos;s address first</source>
        <translation>Сначала введите адрес сервера</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The address must not contain spaces</source>
        <translation>Адрес не должен содержать пробелов</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enter the server&apos;s name or address without &quot;%1&quot; in front</source>
        <translation>Введите имя или адрес сервера без «%1» в начале</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Only https:// and http:// addresses can be checked, not &quot;%1&quot;</source>
        <translation>Можно проверить только адреса https:// и http://, но не «%1»</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The port must be a number from 1 to 65535</source>
        <translation>Порт должен быть числом от 1 до 65535</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a valid server name or address</source>
        <translation>«%1» не является допустимым именем или адресом сервера</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a valid IPv6 address; write it in brackets to add a port, like [2001:db8::1]:3389</source>
        <translation>«%1» не является допустимым адресом IPv6; чтобы указать порт, заключите адрес в квадратные скобки, например [2001:db8::1]:3389</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>This kind of connection cannot be checked</source>
        <translation>Подключение этого типа нельзя проверить</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server name cannot be found</source>
        <translation>Имя сервера не найдено</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nothing answers on port %1</source>
        <translation>На порту %1 ничего не отвечает</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server does not answer on port %1</source>
        <translation>Сервер не отвечает на порту %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server cannot be reached: %1</source>
        <translation>Сервер недоступен: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers on port %1 but the secure handshake failed: %2</source>
        <translation>Сервер отвечает на порту %1, но установить защищённое соединение не удалось: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers but its certificate expired on %1</source>
        <translation>Сервер отвечает, но срок действия его сертификата истёк %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers but its certificate is only valid from %1</source>
        <translation>Сервер отвечает, но его сертификат действителен только с %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The server answers but its certificate is self-signed and not trusted by this terminal</source>
        <translation>Сервер отвечает, но его сертификат самоподписанный, и этот терминал ему не доверяет</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The server answers but its certificate is not trusted by this terminal</source>
        <translation>Сервер отвечает, но этот терминал не доверяет его сертификату</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The check was cancelled</source>
        <translation>Проверка отменена</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The server answers and its certificate is valid until %1</source>
        <translation>Сервер отвечает, его сертификат действителен до %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The server answers on port %1</source>
        <translation>Сервер отвечает на порту %1</translation>
    </message>
    <message>
        <location line="+144"/>
        <source>no answer</source>
        <translation>нет ответа</translation>
    </message>
</context>
<context>
    <name>ConnectionCheckDialog</name>
    <message>
        <location filename="../qml/vorplex/ConnectionCheckDialog.qml" line="+25"/>
        <source>Test connection</source>
        <translation>Проверить подключение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Checking whether “%1” can be reached.</source>
        <translation>Проверяется доступность «%1».</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel check</source>
        <translation>Отменить проверку</translation>
    </message>
    <message>
        <location line="+59"/>
        <source>Step that failed: %1</source>
        <translation>Неудачный шаг: %1</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Certificate issued to</source>
        <translation>Кому выдан сертификат</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Issued by</source>
        <translation>Кем выдан</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Valid until</source>
        <translation>Действителен до</translation>
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
        <location filename="../qml/vorplex/ConnectionTile.qml" line="+69"/>
        <source>More actions for %1</source>
        <translation>Другие действия для %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Test connection</source>
        <translation>Проверить подключение</translation>
    </message>
    <message>
        <location line="+17"/>
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
    <name>DateTimePage</name>
    <message>
        <location filename="../qml/vorplex/DateTimePage.qml" line="+68"/>
        <source>Enter a host name or address such as pool.ntp.org.</source>
        <translation>Введите имя узла или адрес, например pool.ntp.org.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Choose a time zone.</source>
        <translation>Выберите часовой пояс.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Date and time settings applied.</source>
        <translation>Настройки даты и времени применены.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Date and time</source>
        <translation>Дата и время</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Without a time server the clock keeps the date and time set here.</source>
        <translation>Без сервера времени часы сохраняют установленные здесь дату и время.</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Previous month</source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Next month</source>
        <translation>Следующий месяц</translation>
    </message>
    <message>
        <location line="+86"/>
        <source>Clock format</source>
        <translation>Формат времени</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>12-hour</source>
        <translation>12-часовой</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>24-hour</source>
        <translation>24-часовой</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Hour</source>
        <translation>Час</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Minute</source>
        <translation>Минута</translation>
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
        <translation>Часовой пояс</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose a time zone</source>
        <translation>Выберите часовой пояс</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Time server (NTP)</source>
        <translation>Сервер времени (NTP)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Leave empty to set the clock by hand.</source>
        <translation>Оставьте пустым, чтобы установить время вручную.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>APPLY</source>
        <translation>ПРИМЕНИТЬ</translation>
    </message>
</context>
<context>
    <name>DiagnosisPage</name>
    <message>
        <location filename="../qml/vorplex/DiagnosisPage.qml" line="+18"/>
        <source>Enter a host name or address.</source>
        <translation>Введите имя узла или адрес.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Enter a number of packages from 1.</source>
        <translation>Введите число пакетов от 1.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Enter a length from 0 to 65507 bytes.</source>
        <translation>Введите длину от 0 до 65507 байт.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Ping</source>
        <translation>Ping</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sends echo requests to a host and shows its answers.</source>
        <translation>Отправляет эхо-запросы узлу и показывает его ответы.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Host</source>
        <translation>Узел</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Keep sending packages:</source>
        <translation>Отправлять непрерывно:</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Send only:</source>
        <translation>Отправить только:</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Number of packages</source>
        <translation>Число пакетов</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Packet length (bytes)</source>
        <translation>Размер пакета (байт)</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Start</source>
        <translation>Начать</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stop</source>
        <translation>Остановить</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Output</source>
        <translation>Вывод</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>The answers appear here.</source>
        <translation>Здесь появятся ответы.</translation>
    </message>
</context>
<context>
    <name>DisplaysPage</name>
    <message>
        <location filename="../qml/vorplex/DisplaysPage.qml" line="+12"/>
        <source>Landscape</source>
        <translation>Альбомная</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Inverted Landscape</source>
        <translation>Альбомная (перевёрнутая)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Left Portrait</source>
        <translation>Книжная (влево)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Right Portrait</source>
        <translation>Книжная (вправо)</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Choose a resolution and a refresh rate first.</source>
        <translation>Сначала выберите разрешение и частоту обновления.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>The previous display settings are back.</source>
        <translation>Прежние настройки дисплеев восстановлены.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Display settings kept.</source>
        <translation>Настройки дисплеев сохранены.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Arrangement</source>
        <translation>Расположение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Displays from left to right. Select one to change its settings.</source>
        <translation>Дисплеи слева направо. Выберите дисплей, чтобы изменить его настройки.</translation>
    </message>
    <message>
        <location line="+74"/>
        <source>Primary</source>
        <translation>Основной</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>No display found</source>
        <translation>Дисплеи не найдены</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Move left</source>
        <translation>Сдвинуть влево</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Move right</source>
        <translation>Сдвинуть вправо</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Make primary</source>
        <translation>Сделать основным</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>IDENTIFY SCREENS</source>
        <translation>ОПРЕДЕЛИТЬ ДИСПЛЕИ</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Several displays</source>
        <translation>Несколько дисплеев</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Extend the desktop across the displays, or show the same picture on each.</source>
        <translation>Расширить рабочий стол на все дисплеи или показывать на каждом одно и то же.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Extend</source>
        <translation>Расширить</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Mirror</source>
        <translation>Дублировать</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Display</source>
        <translation>Дисплей</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resolutions are listed from the smallest to the largest.</source>
        <translation>Разрешения перечислены от меньшего к большему.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Refresh rate (Hz)</source>
        <translation>Частота обновления (Гц)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Orientation</source>
        <translation>Ориентация</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>APPLY</source>
        <translation>ПРИМЕНИТЬ</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Reset</source>
        <translation>Сбросить</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Displays reset to their default size.</source>
        <translation>Для дисплеев восстановлен размер по умолчанию.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Keep these settings?</source>
        <translation>Сохранить эти настройки?</translation>
    </message>
    <message numerus="yes">
        <location line="+1"/>
        <source>The previous settings come back in %n second(s).</source>
        <translation>
            <numerusform>Прежние настройки вернутся через %n секунду.</numerusform>
            <numerusform>Прежние настройки вернутся через %n секунды.</numerusform>
            <numerusform>Прежние настройки вернутся через %n секунд.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Keep settings</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Revert</source>
        <translation>Вернуть</translation>
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
        <translation>Туннелированный TLS</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Protected EAP (PEAP)</source>
        <translation>Защищённый EAP (PEAP)</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+14"/>
        <location line="+10"/>
        <location line="+11"/>
        <location line="+11"/>
        <source>Username</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <location line="-45"/>
        <location line="+14"/>
        <location line="+10"/>
        <location line="+11"/>
        <location line="+11"/>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <location line="-43"/>
        <source>Identity</source>
        <translation>Идентификатор</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+24"/>
        <location line="+11"/>
        <source>Domain</source>
        <translation>Домен</translation>
    </message>
    <message>
        <location line="-34"/>
        <location line="+24"/>
        <location line="+11"/>
        <source>CA certificate</source>
        <translation>Сертификат ЦС</translation>
    </message>
    <message>
        <location line="-34"/>
        <location line="+24"/>
        <source>CA certificate password</source>
        <translation>Пароль сертификата ЦС</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>User certificate</source>
        <translation>Сертификат пользователя</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User certificate password</source>
        <translation>Пароль сертификата пользователя</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User private key</source>
        <translation>Закрытый ключ пользователя</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>User key password</source>
        <translation>Пароль ключа пользователя</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+10"/>
        <location line="+11"/>
        <source>Anonymous identity</source>
        <translation>Анонимный идентификатор</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>PAC provisioning</source>
        <translation>Выдача PAC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Anonymous</source>
        <translation>Анонимная</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Authenticated</source>
        <translation>С проверкой подлинности</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Both</source>
        <translation>Обе</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PAC file</source>
        <translation>Файл PAC</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <location line="+12"/>
        <source>Inner authentication</source>
        <translation>Внутренняя аутентификация</translation>
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
        <translation>MSCHAPv2 (без EAP)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CHAP</source>
        <translation>CHAP</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>PEAP version</source>
        <translation>Версия PEAP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version 0</source>
        <translation>Версия 0</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version 1</source>
        <translation>Версия 1</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Writing the 802.1X settings…</source>
        <translation>Запись настроек 802.1X…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switching 802.1X off…</source>
        <translation>Отключение 802.1X…</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>802.1X is on with %1.</source>
        <translation>802.1X включён, метод: %1.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>802.1X is off.</source>
        <translation>802.1X выключен.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>802.1X authentication</source>
        <translation>Аутентификация 802.1X</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The wired connection authenticates before it is let onto the network.</source>
        <translation>Проводное подключение проходит аутентификацию до допуска в сеть.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Off: the wired connection does not authenticate.</source>
        <translation>Выкл.: проводное подключение не проходит аутентификацию.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Method</source>
        <translation>Метод</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ask your network administrator which method and certificates your network uses.</source>
        <translation>Узнайте у сетевого администратора, какой метод и какие сертификаты используются в вашей сети.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Authentication</source>
        <translation>Аутентификация</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>No file chosen</source>
        <translation>Файл не выбран</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Browse…</source>
        <translation>Обзор…</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Clear</source>
        <translation>Очистить</translation>
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
    <name>HostnamePage</name>
    <message>
        <location filename="../qml/vorplex/HostnamePage.qml" line="+22"/>
        <source>Use 1 to 63 letters, digits and hyphens, not starting or ending with a hyphen.</source>
        <translation>Используйте от 1 до 63 букв, цифр и дефисов; дефис не может стоять в начале или в конце.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Setting the computer name…</source>
        <translation>Установка имени компьютера…</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Computer name set to %1.</source>
        <translation>Имя компьютера изменено на %1.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Computer name: </source>
        <translation>Имя компьютера: </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The name of this terminal on the network and on the management server. Leave the field empty to use the name made from the network adapter.</source>
        <translation>Имя этого терминала в сети и на сервере управления. Оставьте поле пустым, чтобы использовать имя, созданное по сетевому адаптеру.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Computer name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Apply</source>
        <translation>Применить</translation>
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
    <name>KeyboardPage</name>
    <message>
        <location filename="../qml/vorplex/KeyboardPage.qml" line="+25"/>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Current layout</source>
        <translation>Текущая раскладка</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Switching layouts</source>
        <translation>Переключение раскладок</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Press Alt+Shift to switch to the next layout.</source>
        <translation>Нажмите Alt+Shift, чтобы переключиться на следующую раскладку.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Layouts</source>
        <translation>Раскладки</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The preferred layout is active after power-on.</source>
        <translation>После включения действует предпочитаемая раскладка.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Add layouts</source>
        <translation>Добавить раскладки</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Preferred</source>
        <translation>Предпочитаемая</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Make preferred</source>
        <translation>Сделать предпочитаемой</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>No layouts chosen</source>
        <translation>Раскладки не выбраны</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The keyboard uses the system&apos;s layout. Add the layouts you type with.</source>
        <translation>Клавиатура использует системную раскладку. Добавьте раскладки, на которых вы печатаете.</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <location filename="../qml/vorplex/LanguagePage.qml" line="+20"/>
        <source>Display language</source>
        <translation>Язык интерфейса</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The language of this terminal&apos;s screens. Sessions keep their own language.</source>
        <translation>Язык экранов этого терминала. Сеансы сохраняют собственный язык.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Language changed.</source>
        <translation>Язык изменён.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The %1 translation could not be loaded; the language was not changed.</source>
        <translation>Не удалось загрузить перевод «%1»; язык не изменён.</translation>
    </message>
</context>
<context>
    <name>LocalUpdaterBackend</name>
    <message>
        <location filename="../src/maintenance/LocalUpdaterBackend.cpp" line="+147"/>
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
        <location filename="../qml/vorplex/Main.qml" line="+77"/>
        <source>This terminal has no network connection. Check the network cable or the Wi-Fi, then try again.</source>
        <translation>У этого терминала нет подключения к сети. Проверьте сетевой кабель или Wi-Fi и повторите попытку.</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+233"/>
        <location line="+34"/>
        <source>Failed to connect</source>
        <translation>Не удалось подключиться</translation>
    </message>
    <message>
        <location line="-257"/>
        <source>This connection is incomplete and can&apos;t be started. An administrator can complete it in Settings → Connections.</source>
        <translation>Это подключение заполнено не полностью и не может быть запущено. Администратор может дополнить его в разделе Настройки → Подключения.</translation>
    </message>
    <message>
        <location line="+40"/>
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
        <location line="+128"/>
        <source>Your request for help has been sent.</source>
        <translation>Ваш запрос о помощи отправлен.</translation>
    </message>
    <message>
        <location line="+56"/>
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
        <location filename="../qml/vorplex/MainView.qml" line="+133"/>
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
        <location line="+16"/>
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
    <name>MousePage</name>
    <message>
        <location filename="../qml/vorplex/MousePage.qml" line="+29"/>
        <source>Pointer speed</source>
        <translation>Скорость указателя</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>How far the pointer moves for a movement of the mouse or touchpad.</source>
        <translation>Насколько далеко перемещается указатель при движении мыши или сенсорной панели.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No mouse or touchpad with an adjustable speed is connected.</source>
        <translation>Не подключены мышь или сенсорная панель с настраиваемой скоростью.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>SLOW</source>
        <translation>МЕДЛЕННО</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>FAST</source>
        <translation>БЫСТРО</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Primary button</source>
        <translation>Основная кнопка</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The button that selects and opens; the other one opens menus.</source>
        <translation>Кнопка для выбора и открытия; другая открывает меню.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Left button (right-handed)</source>
        <translation>Левая кнопка (для правши)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Right button (left-handed)</source>
        <translation>Правая кнопка (для левши)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Double-click time</source>
        <translation>Интервал двойного щелчка</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The longest pause between the two clicks of a double-click.</source>
        <translation>Наибольшая пауза между двумя щелчками двойного щелчка.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
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
    <name>NetworkManager</name>
    <message>
        <location filename="../src/settings/NetworkManager.cpp" line="+304"/>
        <source>Browse certificate</source>
        <translation>Выбор сертификата</translation>
    </message>
</context>
<context>
    <name>NetworkStatus</name>
    <message>
        <location filename="../src/settings/NetworkStatus.cpp" line="+71"/>
        <source>Wired network</source>
        <translation>Проводная сеть</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Wi-Fi: %1</source>
        <translation>Wi-Fi: %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>No network</source>
        <translation>Нет сети</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Network state unknown</source>
        <translation>Состояние сети неизвестно</translation>
    </message>
</context>
<context>
    <name>NetworkStatusBadge</name>
    <message>
        <location filename="../qml/vorplex/NetworkStatusBadge.qml" line="+46"/>
        <source>Management server reached</source>
        <translation>Сервер управления доступен</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Management server not reached</source>
        <translation>Сервер управления недоступен</translation>
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
    <name>PowerActionsPage</name>
    <message>
        <location filename="../qml/vorplex/PowerActionsPage.qml" line="+20"/>
        <location line="+4"/>
        <location line="+20"/>
        <location line="+2"/>
        <source>Shut down</source>
        <translation>Выключить</translation>
    </message>
    <message>
        <location line="-25"/>
        <source>Ends every session and switches the terminal off.</source>
        <translation>Завершает все сеансы и выключает терминал.</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+4"/>
        <location line="+19"/>
        <location line="+2"/>
        <source>Restart</source>
        <translation>Перезагрузить</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>Ends every session and starts the terminal again.</source>
        <translation>Завершает все сеансы и перезапускает терминал.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Shut the terminal down now? Open sessions end and unsaved work in them is lost.</source>
        <translation>Выключить терминал сейчас? Открытые сеансы будут завершены, несохранённые в них данные будут потеряны.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Restart the terminal now? Open sessions end and unsaved work in them is lost.</source>
        <translation>Перезагрузить терминал сейчас? Открытые сеансы будут завершены, несохранённые в них данные будут потеряны.</translation>
    </message>
</context>
<context>
    <name>PowerPage</name>
    <message>
        <location filename="../qml/vorplex/PowerPage.qml" line="+19"/>
        <source>Power saving settings applied.</source>
        <translation>Настройки энергосбережения применены.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Power saving</source>
        <translation>Энергосбережение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Without keyboard or mouse input, the screen turns off and later the terminal goes to sleep.</source>
        <translation>Если клавиатура и мышь не используются, экран выключается, а затем терминал переходит в спящий режим.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Turn off the screen after</source>
        <translation>Выключать экран через</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No turn off</source>
        <translation>Никогда</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>1 minute</source>
        <translation>1 минуту</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+7"/>
        <source>5 minutes</source>
        <translation>5 минут</translation>
    </message>
    <message>
        <location line="-7"/>
        <location line="+7"/>
        <source>30 minutes</source>
        <translation>30 минут</translation>
    </message>
    <message>
        <location line="-7"/>
        <location line="+7"/>
        <source>1 hour</source>
        <translation>1 час</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Put the terminal to sleep after</source>
        <translation>Переводить терминал в спящий режим через</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No sleep</source>
        <translation>Никогда</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>6 hours</source>
        <translation>6 часов</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>APPLY</source>
        <translation>ПРИМЕНИТЬ</translation>
    </message>
</context>
<context>
    <name>PrintersBackend</name>
    <message>
        <location filename="../src/settings/PrintersBackend.cpp" line="+72"/>
        <source>The printer could not be added.</source>
        <translation>Не удалось добавить принтер.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Choose the printer&apos;s device.</source>
        <translation>Выберите устройство принтера.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choose a driver.</source>
        <translation>Выберите драйвер.</translation>
    </message>
</context>
<context>
    <name>PrintersPage</name>
    <message>
        <location filename="../qml/vorplex/PrintersPage.qml" line="+35"/>
        <location line="+14"/>
        <source>Printer %1 added.</source>
        <translation>Принтер %1 добавлен.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Printing in sessions</source>
        <translation>Печать в сеансах</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote sessions can print on this terminal&apos;s printers.</source>
        <translation>Удалённые сеансы могут печатать на принтерах этого терминала.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Printers</source>
        <translation>Принтеры</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The default printer is the one sessions print to unless told otherwise.</source>
        <translation>Принтер по умолчанию — тот, на котором печатают сеансы, если не указан другой.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Default</source>
        <translation>По умолчанию</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Make default</source>
        <translation>Использовать по умолчанию</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+114"/>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <location line="-99"/>
        <source>No printers</source>
        <translation>Нет принтеров</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add a network printer by its address, or a printer connected by USB.</source>
        <translation>Добавьте сетевой принтер по его адресу или принтер, подключённый по USB.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Add a network printer</source>
        <translation>Добавить сетевой принтер</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Printers that support IPP Everywhere (most printers made since 2012) need no driver.</source>
        <translation>Принтерам с поддержкой IPP Everywhere (большинство выпущенных с 2012 года) драйвер не нужен.</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+66"/>
        <source>Printer name</source>
        <translation>Имя принтера</translation>
    </message>
    <message>
        <location line="-65"/>
        <source>For example Office_2nd_floor</source>
        <translation>Например, Office_2nd_floor</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+65"/>
        <source>Letters, digits, _ . - + @; no spaces.</source>
        <translation>Буквы, цифры, _ . - + @; без пробелов.</translation>
    </message>
    <message>
        <location line="-57"/>
        <source>Host name or address</source>
        <translation>Имя узла или адрес</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+55"/>
        <source>Add printer</source>
        <translation>Добавить принтер</translation>
    </message>
    <message>
        <location line="-48"/>
        <source>Add a USB printer</source>
        <translation>Добавить USB-принтер</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connect the printer, then look for it and choose its driver.</source>
        <translation>Подключите принтер, затем найдите его и выберите драйвер.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Look for USB printers</source>
        <translation>Найти USB-принтеры</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Printer</source>
        <translation>Принтер</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No USB printer found</source>
        <translation>USB-принтеры не найдены</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Look again</source>
        <translation>Искать снова</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Driver</source>
        <translation>Драйвер</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No drivers found</source>
        <translation>Драйверы не найдены</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Delete printer</source>
        <translation>Удалить принтер</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Delete the printer %1? Sessions can no longer print to it.</source>
        <translation>Удалить принтер %1? Сеансы больше не смогут на нём печатать.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <location filename="../src/settings/PrinterParsers.cpp" line="+42"/>
        <source>Enter a printer name.</source>
        <translation>Введите имя принтера.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>A printer name has at most 127 characters.</source>
        <translation>Имя принтера может содержать не более 127 символов.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A printer name may only contain letters, digits and _ . - + @ (no spaces, &quot;/&quot; or &quot;#&quot;).</source>
        <translation>Имя принтера может содержать только буквы, цифры и _ . - + @ (без пробелов, «/» и «#»).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Enter the printer&apos;s host name or address.</source>
        <translation>Введите имя узла или адрес принтера.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&quot;%1&quot; is not a host name or address.</source>
        <translation>«%1» не является именем узла или адресом.</translation>
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
    <name>ScreenListModel</name>
    <message>
        <location filename="../src/settings/ScreenListModel.cpp" line="+76"/>
        <source>Display %1</source>
        <translation>Дисплей %1</translation>
    </message>
</context>
<context>
    <name>ScreensBackend</name>
    <message>
        <location filename="../src/settings/ScreensBackend.cpp" line="+139"/>
        <location line="+5"/>
        <source>Display %1</source>
        <translation>Дисплей %1</translation>
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
        <source>Ethernet addressing and DNS servers.</source>
        <translation>Адресация Ethernet и DNS-серверы.</translation>
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
        <location line="+1"/>
        <source>Network diagnosis</source>
        <translation>Диагностика сети</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Check that a host answers over the network.</source>
        <translation>Проверить, отвечает ли узел по сети.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Wi-Fi networks</source>
        <translation>Сети Wi-Fi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Join a wireless network approved by your administrator.</source>
        <translation>Подключиться к беспроводной сети, одобренной администратором.</translation>
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
        <location line="+1"/>
        <source>Shut down &amp; restart</source>
        <translation>Выключение и перезагрузка</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Switch the terminal off or start it again.</source>
        <translation>Выключить или перезагрузить терминал.</translation>
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
        <location line="+161"/>
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
    <name>SoundPage</name>
    <message>
        <location filename="../qml/vorplex/SoundPage.qml" line="+23"/>
        <source>Output</source>
        <translation>Вывод</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Where the terminal and its sessions play sound.</source>
        <translation>Где терминал и его сеансы воспроизводят звук.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Output device</source>
        <translation>Устройство вывода</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>No output device found</source>
        <translation>Устройства вывода не найдены</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Volume</source>
        <translation>Громкость</translation>
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
        <translation>Проверить звук</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Microphone</source>
        <translation>Микрофон</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The recording level of the microphone.</source>
        <translation>Уровень записи микрофона.</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Test microphone</source>
        <translation>Проверить микрофон</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Recording for three seconds, then playing it back...</source>
        <translation>Запись в течение трёх секунд, затем воспроизведение...</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Done. Did you hear yourself?</source>
        <translation>Готово. Вы себя услышали?</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Speak after pressing: three seconds are recorded and played back.</source>
        <translation>Говорите после нажатия: три секунды записываются и воспроизводятся.</translation>
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
    <name>TestConnectionButton</name>
    <message>
        <location filename="../qml/vorplex/TestConnectionButton.qml" line="+13"/>
        <source>Test connection</source>
        <translation>Проверить подключение</translation>
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
    <name>UsbStoragePage</name>
    <message>
        <location filename="../qml/vorplex/UsbStoragePage.qml" line="+32"/>
        <source>USB storage</source>
        <translation>USB-накопители</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB drives plugged into this terminal are opened and can be used in sessions.</source>
        <translation>USB-накопители, подключённые к этому терминалу, открываются и доступны в сеансах.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>USB storage is on.</source>
        <translation>USB-накопители включены.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>USB storage is off.</source>
        <translation>USB-накопители выключены.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>USB devices</source>
        <translation>USB-устройства</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Everything connected to this terminal&apos;s USB ports.</source>
        <translation>Всё, что подключено к USB-портам этого терминала.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Unnamed device</source>
        <translation>Безымянное устройство</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No USB devices found</source>
        <translation>USB-устройства не найдены</translation>
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
        <location line="+19"/>
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
    <name>VNCPasswordDialog</name>
    <message>
        <location filename="../qml/vorplex/VNCPasswordDialog.qml" line="+30"/>
        <source>VNC password</source>
        <translation>Пароль VNC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the VNC password for “%1”.</source>
        <translation>Введите пароль VNC для «%1».</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the VNC password to start the session.</source>
        <translation>Введите пароль VNC, чтобы начать сеанс.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Password can&apos;t be empty</source>
        <translation>Пароль не может быть пустым</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
</context>
<context>
    <name>WallpaperPage</name>
    <message>
        <location filename="../qml/vorplex/WallpaperPage.qml" line="+26"/>
        <source>Wallpaper set to %1.</source>
        <translation>Установлены обои %1.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Current background</source>
        <translation>Текущий фон</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The built-in background</source>
        <translation>Встроенный фон</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Use the built-in background</source>
        <translation>Использовать встроенный фон</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Pictures on USB drives</source>
        <translation>Изображения на USB-накопителях</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PNG and JPEG images on the drives connected to this terminal. The picture is copied to the terminal.</source>
        <translation>Изображения PNG и JPEG на накопителях, подключённых к этому терминалу. Изображение копируется на терминал.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>%1 (not an image)</source>
        <translation>%1 (не изображение)</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>No pictures found</source>
        <translation>Изображения не найдены</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Insert a USB drive with PNG or JPEG pictures, then refresh.</source>
        <translation>Подключите USB-накопитель с изображениями PNG или JPEG и нажмите «Обновить».</translation>
    </message>
</context>
<context>
    <name>WallpapersManager</name>
    <message>
        <location filename="../src/settings/WallpapersManager.cpp" line="+78"/>
        <source>The file %1 cannot be read.</source>
        <translation>Не удаётся прочитать файл %1.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 is not a PNG or JPEG image.</source>
        <translation>%1 не является изображением PNG или JPEG.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The image could not be copied to the terminal.</source>
        <translation>Не удалось скопировать изображение на терминал.</translation>
    </message>
</context>
<context>
    <name>WifiPage</name>
    <message>
        <location filename="../qml/vorplex/WifiPage.qml" line="+29"/>
        <location line="+214"/>
        <source>Connecting to %1…</source>
        <translation>Подключение к %1…</translation>
    </message>
    <message>
        <location line="-179"/>
        <source>Wi-Fi</source>
        <translation>Wi-Fi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The radio is on.</source>
        <translation>Радиомодуль включён.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The radio is off.</source>
        <translation>Радиомодуль выключен.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This terminal has no Wi-Fi adapter.</source>
        <translation>У этого терминала нет адаптера Wi-Fi.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Switching the radio on…</source>
        <translation>Включение радиомодуля…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switching the radio off…</source>
        <translation>Выключение радиомодуля…</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Networks in range</source>
        <translation>Сети в зоне действия</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hidden networks are listed under the address of their access point.</source>
        <translation>Скрытые сети отображаются по адресу их точки доступа.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>No networks found</source>
        <translation>Сети не найдены</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Wi-Fi is off</source>
        <translation>Wi-Fi выключен</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The list is refreshed every few seconds.</source>
        <translation>Список обновляется каждые несколько секунд.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Switch the radio on to see networks in range.</source>
        <translation>Включите радиомодуль, чтобы увидеть сети в зоне действия.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Signal %1 %</source>
        <translation>Сигнал %1&#xa0;%</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Secured</source>
        <translation>Защищённая</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Open</source>
        <translation>Открытая</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+115"/>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <location line="-110"/>
        <source>Disconnect</source>
        <translation>Отключиться</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Disconnecting from %1…</source>
        <translation>Отключение от %1…</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Saved networks</source>
        <translation>Сохранённые сети</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks shown for users appear on the user&apos;s Wi-Fi list; one network can connect by itself at start.</source>
        <translation>Сети, показанные пользователям, появляются в их списке Wi-Fi; одна сеть может подключаться сама при запуске.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>AUTO CONNECT</source>
        <translation>АВТОПОДКЛЮЧЕНИЕ</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>SHOW FOR USER</source>
        <translation>ДЛЯ ПОЛЬЗОВАТЕЛЯ</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>OPTIONS</source>
        <translation>ПАРАМЕТРЫ</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>No saved networks</source>
        <translation>Нет сохранённых сетей</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks this terminal has joined are kept here.</source>
        <translation>Здесь хранятся сети, к которым подключался этот терминал.</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Connect to %1 at start</source>
        <translation>Подключаться к %1 при запуске</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Show %1 for users</source>
        <translation>Показывать %1 пользователям</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Forget %1</source>
        <translation>Забыть %1</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Connect to %1</source>
        <translation>Подключение к %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter the password of the network %1.</source>
        <translation>Введите пароль сети %1.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Forget network</source>
        <translation>Забыть сеть</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Forget %1? The terminal will need the password again to join it.</source>
        <translation>Забыть %1? Для подключения к ней терминалу снова понадобится пароль.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Forget</source>
        <translation>Забыть</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Forgetting %1…</source>
        <translation>Удаление %1…</translation>
    </message>
</context>
<context>
    <name>WifiUserPage</name>
    <message>
        <location filename="../qml/vorplex/WifiUserPage.qml" line="+32"/>
        <source>Available networks</source>
        <translation>Доступные сети</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Networks approved by your administrator that are in range.</source>
        <translation>Одобренные администратором сети в зоне действия.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>No approved network in range</source>
        <translation>Нет одобренных сетей в зоне действия</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ask your administrator to approve a network for users.</source>
        <translation>Попросите администратора одобрить сеть для пользователей.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Not connected</source>
        <translation>Не подключено</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Disconnect</source>
        <translation>Отключиться</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Disconnecting from %1…</source>
        <translation>Отключение от %1…</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Connecting to %1…</source>
        <translation>Подключение к %1…</translation>
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
        <translation>Нет</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Enter an address such as 192.168.1.20.</source>
        <translation>Введите адрес, например 192.168.1.20.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enter a mask such as 255.255.255.0.</source>
        <translation>Введите маску, например 255.255.255.0.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Enter an address, or leave it empty.</source>
        <translation>Введите адрес или оставьте поле пустым.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Applying the settings of %1…</source>
        <translation>Применение настроек %1…</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Settings applied. The interface now reports the values shown.</source>
        <translation>Настройки применены. Интерфейс теперь сообщает показанные значения.</translation>
    </message>
    <message>
        <location line="+12"/>
        <location line="+14"/>
        <source>Interface</source>
        <translation>Интерфейс</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>The network adapter to configure and what it reports now.</source>
        <translation>Настраиваемый сетевой адаптер и его текущие данные.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>No network interface found</source>
        <translation>Сетевые интерфейсы не найдены</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+26"/>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <location line="-25"/>
        <location line="+26"/>
        <source>Subnet mask</source>
        <translation>Маска подсети</translation>
    </message>
    <message>
        <location line="-25"/>
        <location line="+26"/>
        <source>Gateway</source>
        <translation>Шлюз</translation>
    </message>
    <message>
        <location line="-25"/>
        <source>DNS servers</source>
        <translation>DNS-серверы</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>IPv4 addressing</source>
        <translation>Адресация IPv4</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic takes address, gateway and DNS from the network&apos;s DHCP server.</source>
        <translation>В автоматическом режиме адрес, шлюз и DNS берутся от DHCP-сервера сети.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Automatic (DHCP)</source>
        <translation>Автоматически (DHCP)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manual</source>
        <translation>Вручную</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>DNS server 1</source>
        <translation>DNS-сервер 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DNS server 2</source>
        <translation>DNS-сервер 2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DNS server 3</source>
        <translation>DNS-сервер 3</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Apply</source>
        <translation>Применить</translation>
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
