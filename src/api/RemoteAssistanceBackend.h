#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>

// The decisions behind the remote-assistance popup: which request is shown, its countdown, and
// that exactly one answer leaves for each request. Requests that arrive while one is shown wait.
class RemoteAssistanceBackend : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool active READ isActive NOTIFY currentChanged)
    Q_PROPERTY(int serial READ serial NOTIFY currentChanged)
    Q_PROPERTY(int type READ type NOTIFY currentChanged)
    Q_PROPERTY(QString title READ title NOTIFY currentChanged)
    Q_PROPERTY(QString text READ text NOTIFY currentChanged)
    Q_PROPERTY(bool countdownVisible READ countdownVisible NOTIFY currentChanged)
    Q_PROPERTY(int secondsLeft READ secondsLeft NOTIFY secondsLeftChanged)
public:
    enum Type { AskDenyOnTimeout = 0, AskAcceptOnTimeout = 1, AcceptAtOnce = 2 };
    Q_ENUM(Type)

    // Answers go to the management-server client unless `connectToAgent` is false (tests).
    explicit RemoteAssistanceBackend(QObject* parent = nullptr) : RemoteAssistanceBackend(true, parent) {}
    RemoteAssistanceBackend(bool connectToAgent, QObject* parent);

    Q_INVOKABLE void showPopup(int messageId, int type, const QString& title, const QString& text, int timeout,
                               const QString& token, const QString& port);
    Q_INVOKABLE void accept();
    Q_INVOKABLE void reject();
    // The popup with this serial closed by other means than its buttons: a reject, unless answered.
    Q_INVOKABLE void dismiss(int serial);
    // One second of the countdown (the timer's tick; tests call it directly).
    void tick();

    bool isActive() const { return m_active; }
    int serial() const { return m_current.serial; }
    int type() const { return m_current.type; }
    QString title() const { return m_current.title; }
    QString text() const { return m_current.text; }
    bool countdownVisible() const { return m_active && m_current.type == AskAcceptOnTimeout; }
    int secondsLeft() const { return m_secondsLeft; }
    int pending() const { return m_queue.size(); }

signals:
    void accepted(int messageId, QString token, QString port);
    void rejected(int messageId);
    void timedOut(int messageId);
    void currentChanged();
    void secondsLeftChanged();

private:
    struct Request {
        int serial = 0;
        int messageId = 0;
        int type = 0;
        QString title;
        QString text;
        int timeout = 0;
        QString token;
        QString port;
    };
    void showNext();
    void finish();

    QList<Request> m_queue;
    Request m_current;
    bool m_active = false;
    int m_secondsLeft = 0;
    int m_nextSerial = 1;
    QTimer m_timer;
};
