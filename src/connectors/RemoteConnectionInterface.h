#pragma once

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QRect>

struct KeyEvent {
    int key = 0;       // toolkit key code
    bool pressed = false;
};

struct CursorEvent {
    QPoint pos;        // in remote-framebuffer pixels
    int mask = 0;      // buttons held
    bool pressed = false;
};

// What the viewer window needs from a connector whose frames and input pass through the shell.
class RemoteConnectionInterface : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    virtual bool isConnected() = 0;
    virtual void handleEvent() = 0;
    virtual void cursorEvent(CursorEvent event) = 0;
    virtual void sendKey(KeyEvent event) = 0;
    virtual void terminate() = 0;
    virtual void resize() = 0;
    // The part of the frame changed since the last one shown; empty when not known, and then the
    // whole frame is repainted.
    virtual QRect pendingDamage() const { return {}; }

signals:
    void imageReady(QImage image);
};
