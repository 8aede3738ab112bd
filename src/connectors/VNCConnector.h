#pragma once

#include "Connection.h"
#include "RemoteConnectionInterface.h"
#include "VncEncodingPolicy.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QImage>
#include <QRect>
#include <QSocketNotifier>

#include <memory>

class QQmlEngine;
class QJSEngine;
class RunningProcess;
struct VncClientLibrary;
struct _rfbClient;

// The built-in VNC viewer's session on libvncclient: one session at a time, run on the main thread
// by the viewer window.
class VNCConnector : public RemoteConnectionInterface {
    Q_OBJECT
public:
    static VNCConnector* getInstance();
    static QObject* qmlInstance(QQmlEngine* engine, QJSEngine* scriptEngine);

    // Opens the session and the viewer window; returns when the window is closed (true), or at
    // once with false when the server cannot be reached or refuses us.
    bool initConnection(const Connection& connection);

    bool isConnected() override { return !m_terminate; }
    void handleEvent() override;
    void cursorEvent(CursorEvent event) override;
    void sendKey(KeyEvent event) override;
    void terminate() override;
    void resize() override {}

    // Emits imageReady. A frame from the session shares the framebuffer the library writes into:
    // it shows the latest complete frame and is not a snapshot (copy it to keep one).
    void emitImageReady(const QImage& image);

    Q_INVOKABLE void test();
    Q_INVOKABLE void test1() {}
    Q_INVOKABLE void setImageSize(int width, int height)
    {
        m_width = width;
        m_height = height;
    }

    // Whether "host[:port]" answers (the port scan; in the simulated terminal a TCP connection).
    static bool resolveHost(const QString& address);
    // Seconds the library waits for a connection, or for the rest of a message from a server that
    // went quiet (a half-open connection); without a limit such a server would hang the shell.
    static void setNetworkTimeout(unsigned seconds) { m_networkTimeout = seconds; }

    // The part of the framebuffer changed since the last frame was shown; while imageReady is
    // being delivered, the part that frame changed.
    QRect pendingDamage() const override { return m_damage; }

    // The encodings asked of the server now, and the link as measured so far.
    VncEncodingChoice encodingChoice() const { return m_choice; }
    VncLinkClass linkClass() const { return m_verdict.linkClass; }

signals:
    // imageReady(QImage) comes from the interface.
    void resize(int width, int height);

private:
    VNCConnector() = default;

    static char* getPassword(_rfbClient* client);
    static signed char mallocFrameBuffer(_rfbClient* client);
    static void gotFrameBufferUpdate(_rfbClient* client, int x, int y, int w, int h);
    static void finishedFrameBufferUpdate(_rfbClient* client);
    // The continuous-updates and fence messages the library does not know (see VncFlow).
    static signed char handleFlowMessage(_rfbClient* client, uint8_t type);
    static void registerFlowMessages();
    // Bytes of the server's stream taken in by the library so far.
    qint64 bytesTaken() const;
    // When the first byte waiting in the socket arrived, on m_clock's scale (µs); `now` if unknown.
    qint64 arrivalOfWaitingData(qint64 now) const;
    // Whether the message waiting (in the library's buffer or the socket) is a framebuffer update.
    bool nextMessageIsUpdate() const;
    // After each update: the link measured, and the encodings changed when it calls for others.
    void followLink(qint64 now);
    void applyChoice(const VncEncodingChoice& choice);
    // Continuous updates asked for or stopped as the link class calls for.
    void followContinuous();

    static VNCConnector* m_instance;
    bool m_terminate = false;
    bool m_serverGone = false;
    _rfbClient* cl = nullptr;
    const VncClientLibrary* m_vnc = nullptr; // set with cl
    static QByteArray m_password;
    static unsigned m_networkTimeout;
    static QImage m_image;
    int m_width = 0;
    int m_height = 0;
    std::unique_ptr<RunningProcess> m_process;
    std::unique_ptr<QSocketNotifier> m_socketNotifier;
    QRect m_damage;

    VncEncodingChoice m_choice;
    VncLinkVerdict m_verdict;
    bool m_automatic = true; // false when the record names its own encodings
    VncLinkMeter m_meter;
    bool m_measured = false; // the meter's first figures since the last change have been logged
    QElapsedTimer m_clock;
    qint64 m_messageStart = -1;     // µs: when the first byte of the message being handled arrived
    qint64 m_messageBytes = 0;      // bytesTaken() then
    qint64 m_openRequest = -1;      // µs: the first request sent since the last update started
    qint64 m_answeredRequest = -1;  // µs: the request the update being handled answers
    bool m_overlapRequests = false; // one request more than the library's is kept open
    bool m_overlapStarted = false;
    bool m_continuousOffered = false; // the server can send updates without requests
    bool m_continuousOn = false;      // and has been asked to
    qint64 m_lastUpdateEnd = 0;     // µs
};
