#include "RDPWorker.h"

#include "CommandRunner.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEventLoop>

QString RDPWorker::clientProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/xfreerdp");
}

QStringList RDPWorker::splitArguments(const QString& args)
{
    return args.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void RDPWorker::run()
{
    qInfo().noquote() << m_host;
    std::unique_ptr<RunningProcess> process = CommandRunner::instance().createProcess();
    QEventLoop loop;
    QByteArray pending;
    connect(process.get(), &RunningProcess::readyReadStandardOutput, this, [&] {
        pending += process->readAllStandardOutput();
        int end;
        while ((end = pending.indexOf('\n')) >= 0) {
            qDebug().noquote() << QString::fromLocal8Bit(pending.left(end));
            pending.remove(0, end + 1);
        }
    });
    connect(process.get(), &RunningProcess::finished, this, [&](int code) {
        emit exitCodeReady(code);
        qInfo() << "RDP exit code" << code;
        loop.quit();
    });
    process->start(clientProgram(), splitArguments(m_host));
    process->waitForStarted(CommandRunner::kStartTimeoutMs);
    // A client that never started never finishes: the session's thread then waits for ever,
    // and nothing is reported.
    loop.exec();
    emit finished();
}
