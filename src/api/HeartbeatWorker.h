#pragma once

#include <QObject>
#include <QString>

#include <atomic>

class QNetworkAccessManager;

// Tells the local update service that the shell is alive: GET "health" about every two seconds,
// for as long as the thread runs. The answer does not matter; the request is the signal.
class HeartbeatWorker : public QObject {
    Q_OBJECT
public:
    static constexpr const char* kServiceUrl = "http://127.0.0.1:12547/";
    // How often a pause or a pending request looks whether the thread is to stop.
    static constexpr int kStopCheckMs = 50;

    explicit HeartbeatWorker(const QString& serviceUrl = QLatin1String(kServiceUrl), int pauseMs = 2000);
    ~HeartbeatWorker() override;

    // Replies still held by the network access manager (each is freed once finished).
    int heldReplies() const;
    int rounds() const { return m_rounds; }

public slots:
    // The loop; ends when the thread's interruption is requested.
    void run();

private:
    QNetworkAccessManager* m_networkAccessManager = nullptr;
    QString m_serviceUrl;
    int m_pauseMs;
    std::atomic<int> m_rounds{0};
};
