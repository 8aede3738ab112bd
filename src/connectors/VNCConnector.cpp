#include "VNCConnector.h"

#include "CommandRunner.h"
#include "QmlSingleton.h"
#include "ViewDialog.h"
#include "VncClientLibrary.h"
#include "VncFlow.h"
#include "VncInput.h"
#include "X11ShmPresenter.h"

#include <QCoreApplication>
#include <QDebug>
#include <QGuiApplication>
#include <QJsonObject>
#include <QScreen>
#include <QSocketNotifier>
#include <QThread>

#include <rfb/rfbclient.h>

#include <algorithm>
#include <cstring>

#include <linux/sockios.h>
#include <linux/tcp.h> // tcp_info with the received byte count
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <time.h>

VNCConnector* VNCConnector::m_instance = nullptr;
QByteArray VNCConnector::m_password;
QImage VNCConnector::m_image;
unsigned VNCConnector::m_networkTimeout = 30;

VNCConnector* VNCConnector::getInstance()
{
    if (!m_instance)
        m_instance = new VNCConnector;
    return m_instance;
}

QObject* VNCConnector::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<VNCConnector>();
}

bool VNCConnector::resolveHost(const QString& address)
{
    const VncInput::HostPort target = VncInput::splitAddress(address);
    if (target.host.isEmpty())
        return false;
    const QString command = VncInput::reachabilityCommand(target);
    qInfo().noquote() << command;
    const CommandResult result = CommandRunner::instance().runCommandLine(command);
    return result.standardOutput.contains("open");
}

namespace {
void ignoreCutText(rfbClient*, const char*, int) {}
void ignoreLedState(rfbClient*, int, int) {}
void ignoreTextChat(rfbClient*, int, char*) {}
} // namespace

void VNCConnector::registerFlowMessages()
{
    // The library keeps one list of extensions for every client; this one is added once.
    static int encodings[] = {VncFlow::kPseudoEncodingFence, VncFlow::kPseudoEncodingContinuousUpdates, 0};
    static rfbClientProtocolExtension extension = [] {
        rfbClientProtocolExtension e{};
        e.encodings = encodings;
        e.handleMessage = [](rfbClient* client, rfbServerToClientMsg* message) {
            return VNCConnector::handleFlowMessage(client, message->type);
        };
        return e;
    }();
    static const bool registered = (VncClientLibrary::get()->registerExtension(&extension), true);
    Q_UNUSED(registered);
}

rfbBool VNCConnector::handleFlowMessage(rfbClient* client, uint8_t type)
{
    VNCConnector* self = getInstance();
    if (type == VncFlow::kContinuousUpdatesMessage) {
        // Sent once to say the server has them, and again whenever it stops sending them: they
        // are asked for (again) after the next update (see followLink).
        if (!self->m_continuousOffered)
            qInfo() << "VNC server offers continuous updates";
        self->m_continuousOffered = true;
        self->m_continuousOn = false;
        return TRUE;
    }
    if (type != VncFlow::kFenceMessage)
        return FALSE;
    const VncClientLibrary& vnc = *VncClientLibrary::get();
    QByteArray header(VncFlow::kFenceHeaderSize, '\0');
    if (!vnc.read(client, header.data(), header.size()))
        return FALSE;
    const std::optional<VncFlow::FenceHeader> fence = VncFlow::parseFenceHeader(header);
    if (!fence) {
        qWarning() << "VNC server sent a fence longer than the protocol allows";
        return FALSE;
    }
    QByteArray payload(fence->payloadLength, '\0');
    if (!payload.isEmpty() && !vnc.read(client, payload.data(), payload.size()))
        return FALSE;
    // Messages are handled in the order they come, so what the fence waits for is already done.
    if (fence->flags & VncFlow::kFenceRequest) {
        const QByteArray answer = VncFlow::fenceAnswer(fence->flags, payload);
        return vnc.write(client, answer.constData(), answer.size());
    }
    return TRUE; // the answer to a fence of ours: this viewer sends none
}

char* VNCConnector::getPassword(rfbClient*)
{
    // The library frees what it gets.
    return strdup(m_password.constData());
}

rfbBool VNCConnector::mallocFrameBuffer(rfbClient* client)
{
    qInfo() << "Resize to" << client->width << client->height;
    m_image = X11ShmPresenter::instance().allocateFrame(QSize(client->width, client->height));
    client->frameBuffer = m_image.bits();
    getInstance()->m_damage = m_image.rect();
    getInstance()->m_continuousOn = false; // asked for again over the new size
    return TRUE;
}

void VNCConnector::gotFrameBufferUpdate(rfbClient*, int x, int y, int w, int h)
{
    // Rectangles of one update are gathered and shown together when the update is complete.
    getInstance()->m_damage |= QRect(x, y, w, h);
}

void VNCConnector::finishedFrameBufferUpdate(rfbClient* client)
{
    VNCConnector* self = getInstance();
    self->followLink(self->m_clock.nsecsElapsed() / 1000);
    if (self->m_damage.isEmpty())
        return;
    // The library writes into m_image: hand it on as it is (shared, not copied). Between server
    // messages it always holds a complete frame, which is all the window ever paints.
    QImage frame = m_image;
    if (frame.isNull() || client->frameBuffer != frame.constBits()) {
        frame = QImage(client->frameBuffer, client->width, client->height, QImage::Format_RGB32);
        if (frame.isNull())
            qWarning() << "image not loaded" << frame.depth();
        frame = frame.copy();
    }
    self->emitImageReady(frame);
    self->m_damage = QRect();
}

qint64 VNCConnector::bytesTaken() const
{
    // What the kernel received, less what still waits in the socket and in the library's buffer.
    tcp_info info{};
    socklen_t length = sizeof info;
    int queued = 0;
    if (!cl || getsockopt(cl->sock, IPPROTO_TCP, TCP_INFO, &info, &length) != 0 || ioctl(cl->sock, SIOCINQ, &queued) != 0)
        return -1;
    return static_cast<qint64>(info.tcpi_bytes_received) - queued - cl->buffered;
}

qint64 VNCConnector::arrivalOfWaitingData(qint64 now) const
{
    // The kernel stamps what it receives (SO_TIMESTAMPNS); a peek reads the stamp of the first
    // waiting byte. Part of the message may already sit in the library's buffer: then it is now.
    if (!cl || cl->buffered > 0)
        return now;
    char byte = 0;
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(timespec))];
    iovec data{&byte, 1};
    msghdr message{};
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    if (recvmsg(cl->sock, &message, MSG_PEEK | MSG_DONTWAIT) != 1)
        return now;
    for (cmsghdr* header = CMSG_FIRSTHDR(&message); header; header = CMSG_NXTHDR(&message, header)) {
        if (header->cmsg_level != SOL_SOCKET || header->cmsg_type != SCM_TIMESTAMPNS)
            continue;
        timespec arrival{};
        std::memcpy(&arrival, CMSG_DATA(header), sizeof arrival);
        timespec wall{};
        clock_gettime(CLOCK_REALTIME, &wall);
        const qint64 ago = (wall.tv_sec - arrival.tv_sec) * 1000000LL + (wall.tv_nsec - arrival.tv_nsec) / 1000;
        return ago >= 0 && ago <= now ? now - ago : now;
    }
    return now;
}

bool VNCConnector::nextMessageIsUpdate() const
{
    char type = -1;
    if (cl->buffered > 0)
        type = *cl->bufoutptr;
    else if (recv(cl->sock, &type, 1, MSG_PEEK | MSG_DONTWAIT) != 1)
        return false;
    return type == rfbFramebufferUpdate;
}

void VNCConnector::followLink(qint64 now)
{
    if (m_messageStart >= 0) {
        const qint64 bytes = bytesTaken();
        if (bytes >= 0 && m_messageBytes >= 0)
            m_meter.addUpdate(bytes - m_messageBytes, now - m_messageStart);
        // With overlapping requests the wait no longer shows the round trip.
        if (!m_overlapRequests)
            m_meter.addRoundTrip(m_messageStart - m_answeredRequest);
    }
    m_messageStart = -1;
    m_lastUpdateEnd = now;
    // The library has just sent the next request.
    if (m_openRequest < 0)
        m_openRequest = now;
    if (!m_meter.ready())
        return;
    // The round trip has been measured: from now on one request more than the library's is kept
    // open (see handleEvent), so a long round trip does not idle the link between frames.
    m_overlapRequests = true;
    followContinuous();
    if (!m_automatic)
        return;
    const VncLinkFigures figures = m_meter.figures();
    if (!m_measured) {
        m_measured = true;
        qInfo().noquote() << QStringLiteral("VNC link measured %1 kbit/s, %2 ms with the %3 encodings")
                                 .arg(qRound64(figures.kbitPerSecond))
                                 .arg(figures.latencyMs, 0, 'f', 1)
                                 .arg(QLatin1String(VncEncodingPolicy::name(m_verdict.linkClass)));
    }
    const VncLinkVerdict verdict = VncEncodingPolicy::judge(m_verdict, figures);
    if (verdict.linkClass == m_verdict.linkClass)
        return;
    const VncEncodingChoice choice = VncEncodingPolicy::choiceFor(verdict.linkClass);
    qInfo().noquote() << QStringLiteral("VNC link %1 kbit/s, %2 ms: %3, encodings \"%4\" compression %5 quality %6")
                             .arg(qRound64(figures.kbitPerSecond))
                             .arg(figures.latencyMs, 0, 'f', 1)
                             .arg(QLatin1String(VncEncodingPolicy::name(verdict.linkClass)), QString::fromLatin1(choice.encodings))
                             .arg(choice.compressLevel)
                             .arg(choice.qualityLevel);
    m_verdict = verdict;
    // The throughput so far belongs to the encodings left behind: measure the new ones afresh.
    m_meter.restartThroughput();
    m_measured = false;
    applyChoice(choice);
    followContinuous();
}

void VNCConnector::followContinuous()
{
    // Over a network the server sends what changes as it changes, paced by its fences, and the
    // library's requests after each update are then ignored. On a LAN fast enough for plain pixels
    // request and answer cost next to nothing, and they keep the link measurable: updates that
    // stream in as the server makes them would show its speed, not the link's.
    const bool wanted = m_continuousOffered && (!m_automatic || m_verdict.linkClass == VncLinkClass::Slow
                                                || m_verdict.linkClass == VncLinkClass::Medium);
    if (!cl || wanted == m_continuousOn)
        return;
    const QByteArray message = VncFlow::enableContinuousUpdates(wanted, QRect(0, 0, cl->width, cl->height));
    if (!m_vnc->write(cl, message.constData(), message.size()))
        return;
    m_continuousOn = wanted;
    qInfo() << (wanted ? "VNC continuous updates on" : "VNC continuous updates off");
}

void VNCConnector::applyChoice(const VncEncodingChoice& choice)
{
    const bool connected = cl && cl->sock >= 0; // before that rfbInitClient sends them
    m_choice = choice;
    if (!cl)
        return;
    // The library keeps the pointer: it stays valid as long as m_choice holds this choice.
    cl->appData.encodingsString = m_choice.encodings.constData();
    cl->appData.compressLevel = m_choice.compressLevel;
    cl->appData.qualityLevel = m_choice.qualityLevel;
    cl->appData.enableJPEG = m_choice.qualityLevel >= 0 ? TRUE : FALSE;
    if (connected && !m_vnc->setFormatAndEncodings(cl))
        qWarning() << "VNC encodings could not be sent";
}

void VNCConnector::emitImageReady(const QImage& image)
{
    qDebug() << "new image available" << image.size();
    emit imageReady(image);
}

bool VNCConnector::initConnection(const Connection& connection)
{
    m_terminate = false;
    m_serverGone = false;
    if (!resolveHost(connection.getAddress()))
        return false;
    m_password = connection.get(QStringLiteral("password")).toLocal8Bit();
    m_vnc = VncClientLibrary::get();
    if (!m_vnc)
        return false;

    cl = m_vnc->getClient(8, 3, 4);
    const VncInput::PixelFormat format = VncInput::pixelFormatFor(QImage(1, 1, QImage::Format_RGB32).depth());
    cl->format.depth = format.depth;
    cl->format.bitsPerPixel = format.bitsPerPixel;
    cl->format.redShift = format.redShift;
    cl->format.greenShift = format.greenShift;
    cl->format.blueShift = format.blueShift;
    cl->format.redMax = format.redMax;
    cl->format.greenMax = format.greenMax;
    cl->format.blueMax = format.blueMax;

    // The record's own encodings win; otherwise compact ones until the first updates have shown
    // what the link carries (see followLink).
    const QJsonObject record = connection.getData();
    const std::optional<VncEncodingChoice> own = VncEncodingPolicy::explicitChoice(
        record.value(QStringLiteral("encodings")).toString(), record.value(QStringLiteral("compressLevel")).toInt(-1),
        record.value(QStringLiteral("qualityLevel")).toInt(-1));
    m_automatic = !own;
    m_verdict = VncLinkVerdict();
    m_meter = VncLinkMeter();
    m_measured = false;
    m_messageStart = -1;
    m_openRequest = m_answeredRequest = -1;
    m_lastUpdateEnd = 0;
    m_overlapRequests = false;
    m_overlapStarted = false;
    m_continuousOffered = m_continuousOn = false;
    m_choice = VncEncodingChoice();
    applyChoice(own ? *own : VncEncodingPolicy::choiceFor(VncLinkClass::Unmeasured));
    qInfo().noquote() << QStringLiteral("VNC encodings \"%1\" compression %2 quality %3%4")
                             .arg(QString::fromLatin1(m_choice.encodings))
                             .arg(m_choice.compressLevel)
                             .arg(m_choice.qualityLevel)
                             .arg(own ? QStringLiteral(" (the connection's own)") : QStringLiteral(", until the link is measured"));

    registerFlowMessages();
    cl->MallocFrameBuffer = &VNCConnector::mallocFrameBuffer;
    cl->GotFrameBufferUpdate = &VNCConnector::gotFrameBufferUpdate;
    cl->FinishedFrameBufferUpdate = &VNCConnector::finishedFrameBufferUpdate;
    cl->GotXCutText = ignoreCutText;
    cl->HandleKeyboardLedState = ignoreLedState;
    cl->HandleTextChat = ignoreTextChat;
    cl->GetPassword = &VNCConnector::getPassword;
    cl->canHandleNewFBSize = TRUE;
    cl->connectTimeout = m_networkTimeout;
    cl->readTimeout = m_networkTimeout;

    QByteArray program = QCoreApplication::applicationDirPath().toLocal8Bit();
    QByteArray server = connection.getAddress().toLocal8Bit();
    int argc = 2;
    char* argv[] = {program.data(), server.data(), nullptr};
    if (!m_vnc->initClient(cl, &argc, argv)) {
        cl = nullptr; // freed by the library
        return false;
    }
    // rfbInitClient has asked for the first update.
    m_clock.start();
    m_openRequest = 0;
    // Wakes the session loop when the server sends something (it is read in handleEvent).
    m_socketNotifier = std::make_unique<QSocketNotifier>(cl->sock, QSocketNotifier::Read);
    const int on = 1;
    if (setsockopt(cl->sock, SOL_SOCKET, SO_TIMESTAMPNS, &on, sizeof on) != 0)
        qWarning() << "VNC: no arrival times from the socket; the link is measured from when data is read";

    auto* view = new ViewDialog; // one window per session
    if (connection.getBool(QStringLiteral("shrink")))
        view->setShrink(true);
    if (connection.getBool(QStringLiteral("fullscreen")))
        view->showFullScreen();
    else
        view->show();
    const QScreen* screen = QGuiApplication::primaryScreen();
    view->setGeometry(VncInput::windowGeometry(screen ? screen->size() : QSize(), connection.getInt(QStringLiteral("percentage"))));
    view->connectView(this);
    // The session loop has ended: the window is closed. Without this every session would keep its
    // window and last frame for the rest of the shell's life.
    view->deleteLater();
    return true;
}

void VNCConnector::handleEvent()
{
    if (!cl || m_serverGone) {
        // The window stays open with its last frame; the loop keeps its 10 ms pace.
        QThread::msleep(10);
        return;
    }
    // Data the library has already buffered does not wake a wait on the socket.
    int ready = cl->buffered > 0 ? 1 : m_vnc->waitForMessage(cl, 0);
    if (ready == 0 && m_socketNotifier) {
        // Nothing from the server: sleep in the toolkit's loop, which the socket wakes too, so a
        // key or a click goes out at once rather than after a wait on the socket alone.
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (!cl || m_serverGone)
            return;
        ready = cl->buffered > 0 ? 1 : m_vnc->waitForMessage(cl, 0);
    } else if (ready == 0) {
        ready = m_vnc->waitForMessage(cl, 10000); // µs
    }
    // Only updates are measured: a fence or another small message would take the open request
    // and make the update behind it look like an answer without a round trip.
    if (ready > 0 && m_messageStart < 0 && nextMessageIsUpdate()) {
        // Measured from the arrival of its first byte, not from when the loop came to it.
        const qint64 now = m_clock.nsecsElapsed() / 1000;
        m_messageStart = arrivalOfWaitingData(now);
        m_messageBytes = bytesTaken();
        m_answeredRequest = m_openRequest >= 0 ? m_openRequest : m_messageStart;
        m_openRequest = -1;
        // One request more keeps one frame in flight behind this one. It is sent again only after
        // a pause of a round trip or more (the server held the requests and answered them with
        // one update): with updates back to back the count stays, and the server cannot run
        // ahead of the link and queue frames in front of the next input.
        const bool paused = m_messageStart - m_lastUpdateEnd > qint64(m_meter.figures().latencyMs * 1000);
        if (m_overlapRequests && !m_continuousOn && (paused || !m_overlapStarted) && m_vnc->sendIncrementalUpdateRequest(cl)) {
            m_openRequest = now;
            m_overlapStarted = true;
        }
    }
    if (ready < 0 || (ready > 0 && !m_vnc->handleServerMessage(cl))) {
        qWarning() << "VNC server closed the connection";
        m_serverGone = true;
        m_socketNotifier.reset(); // a closed socket stays readable
    }
    m_messageStart = -1; // an update has been measured in followLink; other messages are not
}

void VNCConnector::cursorEvent(CursorEvent event)
{
    if (cl)
        m_vnc->sendPointerEvent(cl, event.pos.x(), event.pos.y(), event.mask);
}

void VNCConnector::sendKey(KeyEvent event)
{
    qDebug() << "Send key" << event.key;
    if (cl)
        m_vnc->sendKeyEvent(cl, VncInput::keysymForQtKey(event.key), event.pressed ? TRUE : FALSE);
}

void VNCConnector::terminate()
{
    m_socketNotifier.reset(); // before the library closes its socket
    if (cl) {
        // This libvncclient (0.9.14) makes a JPEG decoder for the first Tight JPEG rectangle and
        // does not free it in its cleanup; a later one that does finds it already gone.
        if (cl->tjhnd) {
            m_vnc->tjDestroy(cl->tjhnd);
            cl->tjhnd = nullptr;
        }
        m_vnc->cleanup(cl);
    }
    cl = nullptr; // input that arrives after the window closed must not reach a freed client
}

void VNCConnector::test()
{
    qInfo() << "test from VNCConnector";
    while (!m_terminate) {
        handleEvent();
        QCoreApplication::processEvents();
    }
}
