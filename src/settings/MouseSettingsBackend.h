#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

// Pointer speed, primary button and double-click time, and the enabled keyboard layouts, all kept
// in keyboard.ini and applied with xinput, setxkbmap and the window manager's configuration.
class MouseSettingsBackend : public QObject {
    Q_OBJECT
public:
    // How often and how many times start-up retries the layouts while X is not ready.
    static constexpr int kRetryIntervalMs = 2000;
    static constexpr int kMaxAttempts = 15;

    explicit MouseSettingsBackend(QObject* parent = nullptr);

    // Finds the pointers that take an acceleration and stores their names and ids.
    Q_INVOKABLE void getMouseNames();
    // Whether getMouseNames() found a pointer whose speed can be set.
    Q_INVOKABLE bool hasPointers() const { return !ids().isEmpty(); }
    Q_INVOKABLE float getMouseSensetivity();
    Q_INVOKABLE void setMouseSensetivity(float value);
    Q_INVOKABLE int getDoubleClickSpeed();
    Q_INVOKABLE void setDoubleClickSpeed(int milliseconds);
    Q_INVOKABLE int getPrimaryButton();
    Q_INVOKABLE void setPrimaryButton(int button);

    // The active layout as the layout tool names it, "Unknown" when it says nothing.
    Q_INVOKABLE static QString getKeyboardLayout();
    // Applies the enabled layouts, preferred first; true when setxkbmap reached the X server.
    Q_INVOKABLE static bool initLayouts();
    Q_INVOKABLE static QStringList listActiveLayoutNames();
    Q_INVOKABLE static QString getPreferredLayout();
    Q_INVOKABLE static QString getPreferredLayoutRaw();
    Q_INVOKABLE static void setPreferredLayout(const QString& name);
    Q_INVOKABLE static void setPreferredLayoutRaw(const QString& code);
    Q_INVOKABLE static QStringList listLayoutsEnabled();
    Q_INVOKABLE static void setLayouts(const QStringList& codes);

    // Start-up: retries the layouts until they are set (or the attempts run out).
    Q_INVOKABLE void startTimer();
    Q_INVOKABLE void applyStartSettings();

    // Runs setxkbmap with these codes (in this order) and reconfigures the window manager.
    static bool applyLayouts(const QStringList& codes);
    // The display name of a layout code, the code itself when the catalogue does not know it.
    Q_INVOKABLE static QString layoutDisplayName(const QString& code);

    int attempts() const { return setAttempts; }
    void setRetryInterval(int milliseconds) { m_timer.setInterval(milliseconds); }
    bool layoutSet() const { return m_layoutSet; }

signals:
    void layoutsChanged();

private:
    QStringList ids() const;
    void retryLayouts();

    QTimer m_timer;
    int setAttempts = 0;
    bool m_layoutSet = false;
};
