#pragma once

#include <QObject>
#include <QString>

class QQmlEngine;
class QJSEngine;

// The on-screen keyboard and the high-contrast theme, kept in /data/norbix/accessibility.ini
// ("OnScreenKeyboard", "HighContrast"). One object for the whole shell: the root window and the
// theme follow its properties.
class AccessibilityBackend : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool onScreenKeyboard READ onScreenKeyboard WRITE setOnScreenKeyboard NOTIFY onScreenKeyboardChanged)
    Q_PROPERTY(bool highContrast READ highContrast WRITE setHighContrast NOTIFY highContrastChanged)
    // The on-screen keyboard's layout, following the display language.
    Q_PROPERTY(QString keyboardLocale READ keyboardLocale NOTIFY keyboardLocaleChanged)
    // The virtual keyboard is the input method of this process (it can only show then).
    Q_PROPERTY(bool inputMethodReady READ inputMethodReady CONSTANT)
public:
    explicit AccessibilityBackend(QObject* parent = nullptr);

    static AccessibilityBackend* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    // Picks the virtual keyboard as input method unless the environment already names one. Must
    // run before the application object exists; the keyboard only shows while the switch is on.
    static void prepareInputMethod();

    // The keyboard layout for a display language code ("fr" -> "fr_FR"); English for the rest.
    static QString localeForLanguage(const QString& languageCode);
    static bool inputMethodReady();
    QString keyboardLocale() const;

    bool onScreenKeyboard() const;
    void setOnScreenKeyboard(bool on);
    bool highContrast() const;
    void setHighContrast(bool on);

signals:
    void onScreenKeyboardChanged();
    void highContrastChanged();
    void keyboardLocaleChanged();

private:
    bool read(const QString& key) const;
    bool write(const QString& key, bool value);
};
