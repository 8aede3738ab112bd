#include "PingManager.h"

#include "CommandRunner.h"

#include <QDebug>

PingManager::PingManager(QObject* parent) : QObject(parent) {}

PingManager::~PingManager()
{
    if (m_process && m_process->isRunning()) {
        m_process->kill();
        m_process->waitForFinished(1000);
    }
}

QStringList PingManager::arguments(const QString& host, int count, int size)
{
    QStringList args{QStringLiteral("-s"), QString::number(size)};
    if (count > 0)
        args << QStringLiteral("-c%1").arg(count);
    args << host;
    return args;
}

void PingManager::start(const QString& host, int count, int size)
{
    qInfo().noquote() << "Count to ping " + QString::number(count);
    if (m_process && m_process->isRunning()) {
        // The old run ends unheard: its end must not read as the end of the new one.
        m_process->disconnect(this);
        m_process->kill();
        m_process->waitForFinished(1000);
    }
    // A fresh process per run: a late signal of the previous one cannot reach this run's view.
    m_process = CommandRunner::instance().createProcess();
    RunningProcess* process = m_process.get();
    connect(process, &RunningProcess::readyReadStandardOutput, this,
            [this, process] { emit newDataAvailable(QString::fromLocal8Bit(process->readAllStandardOutput())); });
    connect(process, &RunningProcess::finished, this, [this, process] {
        const QByteArray errors = process->readAllStandardError();
        if (!errors.isEmpty())
            emit newDataAvailable(QString::fromLocal8Bit(errors));
        emit finished();
    });
    process->start(QStringLiteral("ping"), arguments(host, count, size));
}

void PingManager::stop()
{
    if (m_process && m_process->isRunning())
        m_process->terminate();
}

bool PingManager::isRunning() const
{
    return m_process && m_process->isRunning();
}
