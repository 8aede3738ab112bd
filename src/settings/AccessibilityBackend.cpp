#include "AccessibilityBackend.h"

#include "LanguageBackend.h"
#include "QmlSingleton.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QSettings>

namespace {

const QString kOnScreenKeyboard = QStringLiteral("OnScreenKeyboard");
const QString kHighContrast = QStringLiteral("HighContrast");

QString iniPath()
{
    return SystemPaths::dataFile(QStringLiteral("accessibility.ini"));
}

} // namespace

AccessibilityBackend::AccessibilityBackend(QObject* parent) : QObject(parent)
{
    connect(LanguageBackend::getInstance(), &LanguageBackend::languageChanged, this,
            &AccessibilityBackend::keyboardLocaleChanged);
}

AccessibilityBackend* AccessibilityBackend::getInstance()
{
    static AccessibilityBackend* instance = new AccessibilityBackend();
    return instance;
}

QObject* AccessibilityBackend::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<AccessibilityBackend>();
}

void AccessibilityBackend::prepareInputMethod()
{
    // Only for a terminal that uses the on-screen keyboard: as the input method it replaces the
    // X compose handling, so dead keys of a physical keyboard (^ then e) would stop composing.
    if (qEnvironmentVariableIsSet("QT_IM_MODULE")
        || !QSettings(iniPath(), QSettings::IniFormat).value(kOnScreenKeyboard, false).toBool())
        return;
    qputenv("QT_IM_MODULE", QByteArrayLiteral("qtvirtualkeyboard"));
}

bool AccessibilityBackend::inputMethodReady()
{
    return qgetenv("QT_IM_MODULE") == "qtvirtualkeyboard";
}

QString AccessibilityBackend::localeForLanguage(const QString& languageCode)
{
    if (languageCode == QLatin1String("fr"))
        return QStringLiteral("fr_FR");
    if (languageCode == QLatin1String("de"))
        return QStringLiteral("de_DE");
    if (languageCode == QLatin1String("ru"))
        return QStringLiteral("ru_RU");
    return QStringLiteral("en_US");
}

QString AccessibilityBackend::keyboardLocale() const
{
    return localeForLanguage(LanguageBackend::getInstance()->getCurrentLanguage());
}

bool AccessibilityBackend::read(const QString& key) const
{
    return QSettings(iniPath(), QSettings::IniFormat).value(key, false).toBool();
}

bool AccessibilityBackend::write(const QString& key, bool value)
{
    if (read(key) == value)
        return false;
    QSettings settings(iniPath(), QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    if (settings.status() != QSettings::NoError) {
        qWarning().noquote() << "Cannot write " + iniPath();
        return false;
    }
    qInfo().noquote() << "Set " + key + " to " + (value ? QStringLiteral("on") : QStringLiteral("off"));
    return true;
}

bool AccessibilityBackend::onScreenKeyboard() const
{
    return read(kOnScreenKeyboard);
}

void AccessibilityBackend::setOnScreenKeyboard(bool on)
{
    if (write(kOnScreenKeyboard, on))
        emit onScreenKeyboardChanged();
}

bool AccessibilityBackend::highContrast() const
{
    return read(kHighContrast);
}

void AccessibilityBackend::setHighContrast(bool on)
{
    if (write(kHighContrast, on))
        emit highContrastChanged();
}
