#include "RemoteAssistanceBackend.h"

#include "APIManager.h"

RemoteAssistanceBackend::RemoteAssistanceBackend(bool connectToAgent, QObject* parent) : QObject(parent)
{
    m_timer.setInterval(1000);
    connect(&m_timer, &QTimer::timeout, this, &RemoteAssistanceBackend::tick);
    if (!connectToAgent)
        return;
    APIManager* agent = APIManager::getInstance();
    connect(this, &RemoteAssistanceBackend::accepted, agent, &APIManager::acceptConnection);
    connect(this, &RemoteAssistanceBackend::rejected, agent, &APIManager::rejectConnection);
    connect(this, &RemoteAssistanceBackend::timedOut, agent, &APIManager::timeoutConnection);
}

void RemoteAssistanceBackend::showPopup(int messageId, int type, const QString& title, const QString& text, int timeout,
                                        const QString& token, const QString& port)
{
    m_queue.append({m_nextSerial++, messageId, type, title, text, timeout, token, port});
    if (!m_active)
        showNext();
}

void RemoteAssistanceBackend::showNext()
{
    if (m_queue.isEmpty()) {
        m_active = false;
        m_current = {};
        m_secondsLeft = 0;
        emit currentChanged();
        emit secondsLeftChanged();
        return;
    }
    m_current = m_queue.takeFirst();
    m_active = true;
    m_secondsLeft = qMax(0, m_current.timeout);
    emit currentChanged();
    emit secondsLeftChanged();
    if (m_secondsLeft == 0)
        tick(); // nothing to wait for
    else
        m_timer.start();
}

void RemoteAssistanceBackend::finish()
{
    m_timer.stop();
    m_active = false;
    showNext();
}

void RemoteAssistanceBackend::accept()
{
    if (!m_active)
        return;
    const Request request = m_current;
    finish();
    emit accepted(request.messageId, request.token, request.port);
}

void RemoteAssistanceBackend::reject()
{
    if (!m_active)
        return;
    const int messageId = m_current.messageId;
    finish();
    emit rejected(messageId);
}

void RemoteAssistanceBackend::dismiss(int serial)
{
    if (m_active && serial == m_current.serial)
        reject();
}

void RemoteAssistanceBackend::tick()
{
    if (!m_active)
        return;
    if (m_secondsLeft > 0) {
        --m_secondsLeft;
        emit secondsLeftChanged();
    }
    if (m_secondsLeft > 0)
        return;
    if (m_current.type == AskAcceptOnTimeout) {
        accept();
        return;
    }
    const int messageId = m_current.messageId;
    finish();
    emit timedOut(messageId);
}
