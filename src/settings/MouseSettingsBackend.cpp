#include "MouseSettingsBackend.h"

#include "CommandRunner.h"
#include "InputParsers.h"
#include "LanguageBackend.h"
#include "SettingsChange.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QSettings>

namespace {

const QString kRcXml = QStringLiteral("/etc/X11/openbox/rc.xml");

QString keyboardIni()
{
    return SystemPaths::dataFile(QStringLiteral("keyboard.ini"));
}

QVariant stored(const QString& key, const QVariant& fallback = {})
{
    return QSettings(keyboardIni(), QSettings::IniFormat).value(key, fallback);
}

// "us,de" written by hand (without quotes) reads back as a list.
QStringList storedList(const QString& key)
{
    const QVariant value = stored(key);
    return InputParsers::splitLayouts(value.type() == QVariant::StringList ? value.toStringList().join(QLatin1Char(','))
                                                                          : value.toString());
}

void store(const QString& key, const QVariant& value)
{
    QSettings(keyboardIni(), QSettings::IniFormat).setValue(key, value);
}

CommandResult bash(const QString& script)
{
    return CommandRunner::instance().run(QStringLiteral("bash"), {QStringLiteral("-c"), script});
}

CommandResult xinput(const QStringList& arguments)
{
    return CommandRunner::instance().run(QStringLiteral("xinput"), arguments);
}

void reconfigureWindowManager()
{
    CommandRunner::instance().run(QStringLiteral("openbox"), {QStringLiteral("--reconfigure")});
}

// Codes that can go on the setxkbmap line; unknown ones are dropped when the catalogue is known.
QStringList usableLayouts(const QStringList& codes)
{
    const QStringList known = LanguageBackend::getInstance()->listLocalesInternal();
    QStringList usable;
    for (const QString& code : codes) {
        if (!InputParsers::isLayoutCode(code) || (!known.isEmpty() && !known.contains(code))) {
            qWarning() << "Skipping unknown keyboard layout" << code;
            continue;
        }
        usable << code;
    }
    return usable;
}

} // namespace

MouseSettingsBackend::MouseSettingsBackend(QObject* parent)
    : QObject(parent)
{
    m_timer.setInterval(kRetryIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &MouseSettingsBackend::retryLayouts);
}

void MouseSettingsBackend::getMouseNames()
{
    const CommandResult list = xinput({QStringLiteral("--list"), QStringLiteral("--short")});
    QStringList names;
    QStringList ids;
    for (const InputParsers::XinputDevice& device : InputParsers::parseDeviceList(list.standardOutput)) {
        const CommandResult props = xinput({QStringLiteral("--list-props"), device.id});
        if (!InputParsers::parseAccelSpeed(props.standardOutput))
            continue;
        names << device.name;
        ids << device.id;
    }
    qInfo() << "Pointers with acceleration:" << names << ids;
    store(QStringLiteral("Mouse"), names.join(QLatin1Char(',')));
    store(QStringLiteral("Ids"), ids.join(QLatin1Char(',')));
}

QStringList MouseSettingsBackend::ids() const
{
    return storedList(QStringLiteral("Ids"));
}

float MouseSettingsBackend::getMouseSensetivity()
{
    const QStringList pointers = ids();
    qInfo().nospace().noquote() << "Checking mouse " << pointers.value(0);
    if (pointers.isEmpty())
        return 0;
    const CommandResult props = xinput({QStringLiteral("--list-props"), pointers.first()});
    const std::optional<double> speed = InputParsers::parseAccelSpeed(props.standardOutput);
    if (!speed) {
        qWarning() << "Pointer" << pointers.first() << "reports no acceleration (gone?)";
        return 0;
    }
    return float(*speed);
}

void MouseSettingsBackend::setMouseSensetivity(float value)
{
    const std::optional<double> speed = InputParsers::parseSensitivity(QString::number(double(value)));
    if (!speed) {
        qWarning() << "Refusing pointer speed outside -1..1:" << value;
        return;
    }
    qInfo().nospace().noquote() << "Set mouse sensetivity to " << value;
    for (const QString& id : ids()) {
        const CommandResult result = xinput({QStringLiteral("--set-prop"), id, QStringLiteral("libinput Accel Speed"),
                                             QString::number(*speed)});
        if (result.exitCode != 0)
            qWarning() << "Pointer" << id << "did not take the speed:" << result.standardError.trimmed();
    }
    store(QStringLiteral("Sensetivity"), *speed);
}

int MouseSettingsBackend::getDoubleClickSpeed()
{
    const CommandResult result = bash(
        QStringLiteral("grep -oP '(?<=<doubleClickTime>).*?(?=</doubleClickTime>)' ") + kRcXml);
    const std::optional<int> value = InputParsers::parseDoubleClickTime(result.standardOutput);
    if (!value) {
        qWarning() << "No double-click time in" << kRcXml;
        return 0;
    }
    return *value;
}

void MouseSettingsBackend::setDoubleClickSpeed(int milliseconds)
{
    if (milliseconds <= 0) {
        qWarning() << "Refusing double-click time" << milliseconds;
        return;
    }
    bash(QStringLiteral("sudo sed -i -e 's|<doubleClickTime>[0-9]\\{1,\\}</doubleClickTime>|<doubleClickTime>")
         + QString::number(milliseconds) + QStringLiteral("</doubleClickTime>|g' ") + kRcXml);
    reconfigureWindowManager();
    qInfo().nospace().noquote() << "Set mouse double click speed to " << milliseconds;
    SettingsChange::report();
}

int MouseSettingsBackend::getPrimaryButton()
{
    const QStringList pointers = ids();
    if (pointers.isEmpty())
        return 0;
    return InputParsers::parsePrimaryButton(
        xinput({QStringLiteral("get-button-map"), pointers.first()}).standardOutput);
}

void MouseSettingsBackend::setPrimaryButton(int button)
{
    if (button != 0 && button != 1) {
        qWarning() << "Refusing primary button" << button;
        return;
    }
    qInfo().nospace().noquote() << "Set primary button to " << button;
    const QStringList map = button == 1
        ? QStringList{QStringLiteral("3"), QStringLiteral("2"), QStringLiteral("1")}
        : QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")};
    for (const QString& id : ids()) {
        const CommandResult result = xinput(QStringList{QStringLiteral("set-button-map"), id} + map);
        if (result.exitCode != 0)
            qWarning() << "Pointer" << id << "did not take the button map:" << result.standardError.trimmed();
    }
    store(QStringLiteral("Primary"), button);
    SettingsChange::report();
}

QString MouseSettingsBackend::getKeyboardLayout()
{
    const CommandResult result = CommandRunner::instance().runCommandLine(
        QStringLiteral("/opt/norbix/xkblayout-state print \"%s\""));
    const QString layout = QString::fromUtf8(result.standardOutput).trimmed();
    return layout.isEmpty() ? QStringLiteral("Unknown") : layout;
}

bool MouseSettingsBackend::applyLayouts(const QStringList& codes)
{
    const QStringList usable = usableLayouts(codes);
    if (usable.isEmpty()) {
        qWarning() << "No usable keyboard layouts stored; keeping the current ones";
        return true; // nothing to retry
    }
    const CommandResult result = bash(QStringLiteral("setxkbmap -layout ") + usable.join(QLatin1Char(','))
                                      + QStringLiteral(" -option grp:alt_shift_toggle"));
    reconfigureWindowManager();
    if (result.exitCode != 0)
        qWarning() << "setxkbmap failed:" << result.standardError.trimmed();
    return result.finished && result.exitCode == 0;
}

bool MouseSettingsBackend::initLayouts()
{
    const QStringList ordered = InputParsers::orderLayouts(listLayoutsEnabled(), getPreferredLayoutRaw());
    qInfo().nospace().noquote() << "init layouts to " << ordered.join(QLatin1Char(','));
    const bool applied = applyLayouts(ordered);
    const QString current = getKeyboardLayout();
    qInfo().nospace().noquote() << "Current locale " << current;
    if (current != QLatin1String("Unknown"))
        store(QStringLiteral("CurrentLayout"), current);
    return applied;
}

QString MouseSettingsBackend::layoutDisplayName(const QString& code)
{
    LanguageBackend* catalogue = LanguageBackend::getInstance();
    const int at = catalogue->listLocalesInternal().indexOf(code);
    return at >= 0 ? catalogue->listLocalesDisplay().value(at, code) : code;
}

QStringList MouseSettingsBackend::listActiveLayoutNames()
{
    QStringList names;
    for (const QString& code : listLayoutsEnabled())
        names << layoutDisplayName(code);
    return names;
}

QString MouseSettingsBackend::getPreferredLayout()
{
    const QString code = getPreferredLayoutRaw();
    return code.isEmpty() ? QString() : layoutDisplayName(code);
}

QString MouseSettingsBackend::getPreferredLayoutRaw()
{
    return stored(QStringLiteral("PreferredLayout")).toString();
}

void MouseSettingsBackend::setPreferredLayout(const QString& name)
{
    // The screens pass what they show; accept a display name or a code.
    LanguageBackend* catalogue = LanguageBackend::getInstance();
    const int at = catalogue->listLocalesDisplay().indexOf(name);
    setPreferredLayoutRaw(at >= 0 ? catalogue->listLocalesInternal().value(at) : name);
}

void MouseSettingsBackend::setPreferredLayoutRaw(const QString& code)
{
    if (!InputParsers::isLayoutCode(code)) {
        qWarning() << "Refusing preferred layout" << code;
        return;
    }
    qInfo().nospace().noquote() << "Set preferred layout to " << code;
    store(QStringLiteral("PreferredLayout"), code);
}

QStringList MouseSettingsBackend::listLayoutsEnabled()
{
    return storedList(QStringLiteral("Layouts"));
}

void MouseSettingsBackend::setLayouts(const QStringList& codes)
{
    QStringList valid;
    for (const QString& code : codes) {
        if (InputParsers::isLayoutCode(code) && !valid.contains(code))
            valid << code;
        else
            qWarning() << "Skipping keyboard layout" << code;
    }
    store(QStringLiteral("Layouts"), valid.join(QLatin1Char(',')));
}

void MouseSettingsBackend::startTimer()
{
    setAttempts = 0;
    m_timer.start();
}

void MouseSettingsBackend::retryLayouts()
{
    if (m_layoutSet || setAttempts >= kMaxAttempts) {
        if (!m_layoutSet)
            qWarning() << "Keyboard layouts not applied after" << setAttempts << "attempts";
        m_timer.stop();
        return;
    }
    ++setAttempts;
    m_layoutSet = initLayouts();
    if (m_layoutSet)
        m_timer.stop();
}

void MouseSettingsBackend::applyStartSettings()
{
    qInfo() << "Apply start mouse settings ";
    QSettings settings(keyboardIni(), QSettings::IniFormat);
    const QStringList pointers = ids();
    if (settings.contains(QStringLiteral("Sensetivity"))) {
        const QString text = settings.value(QStringLiteral("Sensetivity")).toString();
        const std::optional<double> speed = InputParsers::parseSensitivity(text);
        if (!speed) {
            qWarning() << "Ignoring stored Sensetivity" << text << "(not a number between -1 and 1)";
        } else {
            for (const QString& id : pointers)
                xinput({QStringLiteral("--set-prop"), id, QStringLiteral("libinput Accel Speed"), QString::number(*speed)});
        }
    }
    if (settings.contains(QStringLiteral("Primary"))) {
        bool ok = false;
        const int primary = settings.value(QStringLiteral("Primary")).toInt(&ok);
        if (!ok || (primary != 0 && primary != 1)) {
            qWarning() << "Ignoring stored Primary" << settings.value(QStringLiteral("Primary")).toString();
        } else {
            const QString map = primary == 1 ? QStringLiteral("3 2 1") : QStringLiteral("1 2 3");
            for (const QString& id : pointers)
                xinput(QStringList{QStringLiteral("set-button-map"), id} + map.split(QLatin1Char(' ')));
        }
    }
    m_layoutSet = initLayouts();
    if (m_layoutSet)
        m_timer.stop();
}
