#pragma once

#include <QList>
#include <QObject>
#include <QStringList>
#include <QTimer>

class ScreensBackend;

// "Keep these settings?": the layout from before an apply is remembered, and unless the user
// confirms within the countdown it is put back through the same backend operations an apply uses,
// so a mode the monitor cannot show never leaves the terminal without a picture.
class DisplayRevertGuard : public QObject {
    Q_OBJECT
    Q_PROPERTY(int secondsLeft READ secondsLeft NOTIFY secondsLeftChanged)
    Q_PROPERTY(bool pending READ pending NOTIFY pendingChanged)
    Q_PROPERTY(int countdownSeconds READ countdownSeconds WRITE setCountdownSeconds)
    Q_PROPERTY(int tickInterval READ tickInterval WRITE setTickInterval)
public:
    struct OutputState {
        QString name;
        QString resolution;
        QString rate;
        int orientation = 0;
    };
    struct Snapshot {
        QList<OutputState> outputs; // arrangement order
        QString primary;
        int mode = 0;
    };

    // Without a backend the guard acts on the ScreensBackend singleton.
    explicit DisplayRevertGuard(QObject* parent = nullptr);
    explicit DisplayRevertGuard(ScreensBackend* backend, QObject* parent = nullptr);

    // Remembers the layout now on screen; call before applying.
    Q_INVOKABLE void capture();
    // Starts the countdown after an apply.
    Q_INVOKABLE void start();
    // Keeps the new layout.
    Q_INVOKABLE void confirm();
    // Puts the remembered layout back now.
    Q_INVOKABLE void revert();

    int secondsLeft() const { return m_secondsLeft; }
    bool pending() const { return m_timer.isActive(); }
    int countdownSeconds() const { return m_countdown; }
    void setCountdownSeconds(int seconds) { m_countdown = seconds; }
    int tickInterval() const { return m_timer.interval(); }
    void setTickInterval(int msecs) { m_timer.setInterval(msecs); }
    const Snapshot& snapshot() const { return m_snapshot; }

signals:
    void secondsLeftChanged();
    void pendingChanged();
    void reverted();
    void confirmed();

private:
    ScreensBackend* backend() const;
    void tick();
    void stop();

    ScreensBackend* m_backend = nullptr;
    QTimer m_timer;
    Snapshot m_snapshot;
    bool m_captured = false;
    int m_countdown = 15;
    int m_secondsLeft = 0;
};
