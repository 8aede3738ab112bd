#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

// The small calculations of the VNC viewer, kept pure so they can be checked one by one.
namespace VncInput {

// Qt key code -> X keysym as the viewer sends it: digits and + - = as keypad keys, Alt as right
// Alt, AltGr as left Alt. Unlisted codes go out as themselves up to 0xFF, as 0 above.
quint32 keysymForQtKey(int qtKey);

// Pointer position in remote pixels: the view shows the frame at originalSize scaled to viewSize,
// centred in a scene of sceneWidth x sceneHeight.
QPoint remotePosition(const QPointF& itemPos, const QSize& originalSize, const QSize& viewSize, const QSizeF& sceneSize);

struct HostPort {
    QString host;
    QString port;
};
// "host" -> host:5900; "host:5901" -> host:5901 (empty parts are dropped).
HostPort splitAddress(const QString& address);
// The reachability check, as handed to the process (no shell: "|", "grep" and "open" become
// arguments of nmap).
QString reachabilityCommand(const HostPort& target);

// The pixel format asked of the server, by the depth of the toolkit's 32-bit RGB image.
struct PixelFormat {
    int depth;
    int bitsPerPixel;
    int redShift, greenShift, blueShift;
    int redMax, greenMax, blueMax;
};
PixelFormat pixelFormatFor(int imageDepth);

// Window geometry: percent of the primary screen at 0,0, single precision, cut toward zero.
QRect windowGeometry(const QSize& screen, int percentage);

} // namespace VncInput
