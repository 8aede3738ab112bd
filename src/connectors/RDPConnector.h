#pragma once

#include "Connection.h"
#include "RemoteConnectionInterface.h"

class QQmlEngine;
class QJSEngine;

// Starts RDP sessions in the FreeRDP client beside the shell's executable, one worker thread per
// session, and reports each client's exit code.
class RDPConnector : public RemoteConnectionInterface {
    Q_OBJECT
public:
    static RDPConnector* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    // The client's whole argument text, blank-separated and unquoted.
    static QString createConnectionString(const Connection& connection);
    // Starts a session with that argument text; always true.
    Q_INVOKABLE bool initConnection(const QString& args);

    // What the user is told when a session ended with this exit code (empty: nothing to tell).
    Q_INVOKABLE static QString messageForExitCode(int code);

    // A session draws in its own window: no frames or input pass through the shell.
    bool isConnected() override { return true; }
    void handleEvent() override {}
    void cursorEvent(CursorEvent) override {}
    void sendKey(KeyEvent) override {}
    void terminate() override {}
    void resize() override {}

    void emitImageReady(const QImage& image);

signals:
    // imageReady(QImage) comes from the interface.
    void resize(int width, int height);
    void exitCode(int code);

private:
    RDPConnector() = default;
    static RDPConnector* m_connection;
};
