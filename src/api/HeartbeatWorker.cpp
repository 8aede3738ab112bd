#include "HeartbeatWorker.h"

#include <QDebug>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QThread>
#include <QTimer>
#include <QUrl>

#include <algorithm>

HeartbeatWorker::HeartbeatWorker(const QString& serviceUrl, int pauseMs) : m_serviceUrl(serviceUrl), m_pauseMs(pauseMs)
{
}

HeartbeatWorker::~HeartbeatWorker()
{
    if (m_networkAccessManager)
        m_networkAccessManager->deleteLater();
}

int HeartbeatWorker::heldReplies() const
{
    return m_networkAccessManager ? m_networkAccessManager->findChildren<QNetworkReply*>().size() : 0;
}

void HeartbeatWorker::run()
{
    qInfo() << "Heartbeat started";
    m_networkAccessManager = new QNetworkAccessManager;
    QThread* thread = QThread::currentThread();
    while (!thread->isInterruptionRequested()) {
        QNetworkRequest request(QUrl(m_serviceUrl + QStringLiteral("health")));
        QNetworkReply* reply = m_networkAccessManager->get(request);
        QEventLoop loop;
        connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        // A shell that is closing must not wait for a service that does not answer.
        QTimer stopCheck;
        connect(&stopCheck, &QTimer::timeout, reply, [thread, reply] {
            if (thread->isInterruptionRequested())
                reply->abort();
        });
        stopCheck.start(kStopCheckMs);
        if (!reply->isFinished())
            loop.exec();
        // Freed here rather than kept until the worker ends: a shell runs for weeks.
        delete reply;
        ++m_rounds;
        for (int slept = 0; slept < m_pauseMs && !thread->isInterruptionRequested(); slept += kStopCheckMs)
            QThread::msleep(std::min(kStopCheckMs, m_pauseMs - slept));
    }
    // Asked to stop: let the thread end too.
    QThread::currentThread()->quit();
}
