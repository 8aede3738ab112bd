#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTest>

// tools/mgmt-peer as a child process: lines to its standard input are frames to the terminal,
// its "RECV <frame>" lines are what the terminal sent.
class MgmtPeer {
public:
    ~MgmtPeer() { stop(); }

    static bool available()
    {
        return QProcess::execute(QStringLiteral("/usr/bin/python3"), {"-c", "import websockets"}) == 0;
    }

    bool start(quint16 port = 0, const QStringList& extraArguments = {})
    {
        m_lines.clear();
        m_seen = 0;
        m_process.setProgram(QStringLiteral("/usr/bin/python3"));
        m_process.setArguments(QStringList{QStringLiteral(NORBIX_SOURCE_DIR "/tools/mgmt-peer"), "--port", QString::number(port)}
                               + extraArguments);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start();
        const QString listening = waitFor(QStringLiteral("LISTENING "));
        m_port = listening.mid(10).toUShort();
        return m_port != 0;
    }

    void stop()
    {
        if (m_process.state() == QProcess::NotRunning)
            return;
        m_process.kill();
        m_process.waitForFinished();
    }

    quint16 port() const { return m_port; }
    QString url() const { return QStringLiteral("ws://127.0.0.1:%1/api/v1/ws").arg(m_port); }

    void send(const QString& line) { m_process.write(line.toUtf8() + '\n'); }
    void send(const QJsonObject& frame) { send(QString::fromUtf8(QJsonDocument(frame).toJson(QJsonDocument::Compact))); }

    // The next unseen line starting with `prefix` (lines before it are skipped); empty on timeout.
    QString waitFor(const QString& prefix, int timeoutMs = 20000)
    {
        QString found;
        (void)QTest::qWaitFor([&] {
            read();
            while (m_seen < m_lines.size()) {
                const QString line = m_lines.at(m_seen++);
                if (line.startsWith(prefix)) {
                    found = line;
                    return true;
                }
            }
            return false;
        }, timeoutMs);
        return found;
    }

    // The next frame the terminal sent, as an object.
    QJsonObject received(int timeoutMs = 20000)
    {
        const QString line = waitFor(QStringLiteral("RECV "), timeoutMs);
        return QJsonDocument::fromJson(line.mid(5).toUtf8()).object();
    }

    // Every line so far that starts with `prefix`, seen or not.
    QStringList linesStartingWith(const QString& prefix)
    {
        read();
        QStringList result;
        for (const QString& line : qAsConst(m_lines))
            if (line.startsWith(prefix))
                result << line;
        return result;
    }

private:
    void read()
    {
        m_process.waitForReadyRead(10);
        while (m_process.canReadLine())
            m_lines << QString::fromUtf8(m_process.readLine()).trimmed();
    }

    QProcess m_process;
    QStringList m_lines;
    int m_seen = 0;
    quint16 m_port = 0;
};
