#include "HeartbeatWorker.h"

#include <QDebug>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QThread>
#include <QUrl>

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
    while (!QThread::currentThread()->isInterruptionRequested()) {
        QNetworkRequest request(QUrl(m_serviceUrl + QStringLiteral("health")));
        QNetworkReply* reply = m_networkAccessManager->get(request);
        QEventLoop loop;
        connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        if (!reply->isFinished())
            loop.exec();
        // Freed here rather than kept until the worker ends: a shell runs for weeks.
        delete reply;
        ++m_rounds;
        QThread::msleep(m_pauseMs);
    }
    // Asked to stop: let the thread end too.
    QThread::currentThread()->quit();
}
