#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <qwindowdefs.h>

#include <cstdint>
#include <vector>

struct xcb_connection_t;

// Puts the VNC viewer's frames on the X screen straight from the memory the library decodes into.
//
// The framebuffer lives in a MIT-SHM segment the X server has attached, so a changed rectangle
// reaches the window with one request and without a copy on our side (painted through the
// toolkit, every update is first copied into its backing store and then again by the X server).
// Whatever this cannot serve - another platform, a remote X server without shared memory, a
// window that is not 24-bit TrueColor - is left to the toolkit, which shows the same pixels.
//
// Main thread only. The presenter has its own X connection and lives until the process exits:
// frames may outlive any object that could own it.
class X11ShmPresenter {
public:
    static X11ShmPresenter& instance();

    // Off: frames are plain images and present() declines (for comparisons and tests).
    static void setEnabled(bool enabled) { s_enabled = enabled; }

    // An RGB32 image of `size` (zero-filled), in memory the X server reads when it can.
    QImage allocateFrame(const QSize& size);
    bool isShared(const QImage& frame) const { return segmentFor(frame) != nullptr; }

    // Copies `source` (frame coordinates) of a shared frame to `target` in `window` and returns
    // once the X server has read it, so the library may write the next update into the same
    // memory. False when this cannot be done; the caller then paints the frame itself.
    bool present(WId window, const QImage& frame, const QRect& source, const QPoint& target);

private:
    struct Segment {
        uint32_t id = 0;
        const uchar* bits = nullptr;
    };
    struct Target {
        WId window = 0;
        uint32_t gc = 0;
        bool usable = false;
    };

    X11ShmPresenter() = default;
    bool connected();
    bool checkWindow(WId window);
    const Segment* segmentFor(const QImage& frame) const;
    bool sharesMemory(uint32_t segment, uint32_t* pixels);
    static void release(void* segment); // also the frame image's cleanup function

    static bool s_enabled;
    xcb_connection_t* m_connection = nullptr;
    bool m_tried = false;    // connecting is attempted once
    bool m_attachOk = true;  // false once the server could not attach our memory (a remote server)
    bool m_probed = false;   // the server was seen reading the memory we wrote
    std::vector<Segment*> m_segments;
    Target m_target;
};
