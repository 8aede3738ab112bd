#pragma once

#include <QObject>
#include <QString>

// One RDP session: starts the client on its own thread and waits for it to end.
class RDPWorker : public QObject {
    Q_OBJECT
public:
    explicit RDPWorker(const QString& args) : m_host(args) {}

    // The client's program: xfreerdp beside the shell's executable.
    static QString clientProgram();
    // The argument text cut at single blanks, empty parts dropped.
    static QStringList splitArguments(const QString& args);

public slots:
    void run();

signals:
    void finished();
    void exitCodeReady(int code);

private:
    QString m_host; // the whole argument text, not only the host
};
