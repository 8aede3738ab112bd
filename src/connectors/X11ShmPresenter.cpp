#include "X11ShmPresenter.h"

#include <QDebug>
#include <QGuiApplication>

#include <xcb/shm.h>
#include <xcb/xcb.h>

#include <sys/ipc.h>
#include <sys/shm.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>

bool X11ShmPresenter::s_enabled = true;

namespace {
struct FreeDeleter {
    void operator()(void* p) const { std::free(p); }
};
template <typename T>
using Reply = std::unique_ptr<T, FreeDeleter>;

// The visual of a window, looked up in the server's setup.
const xcb_visualtype_t* findVisual(const xcb_setup_t* setup, xcb_visualid_t id)
{
    for (auto screens = xcb_setup_roots_iterator(setup); screens.rem; xcb_screen_next(&screens))
        for (auto depths = xcb_screen_allowed_depths_iterator(screens.data); depths.rem; xcb_depth_next(&depths))
            for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem; xcb_visualtype_next(&visuals))
                if (visuals.data->visual_id == id)
                    return visuals.data;
    return nullptr;
}
} // namespace

X11ShmPresenter& X11ShmPresenter::instance()
{
    static auto* presenter = new X11ShmPresenter; // never destroyed: frames may be released at exit
    return *presenter;
}

bool X11ShmPresenter::connected()
{
    if (m_tried)
        return m_connection != nullptr;
    m_tried = true;
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return false;
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection)) {
        xcb_disconnect(connection);
        return false;
    }
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const bool ourByteOrder = setup->image_byte_order
        == (Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST);
    uint8_t depth24Bpp = 0; // bits per pixel the server uses for depth 24
    for (auto formats = xcb_setup_pixmap_formats_iterator(setup); formats.rem; xcb_format_next(&formats))
        if (formats.data->depth == 24)
            depth24Bpp = formats.data->bits_per_pixel;
    Reply<xcb_shm_query_version_reply_t> shm(xcb_shm_query_version_reply(connection, xcb_shm_query_version(connection), nullptr));
    if (!shm || !ourByteOrder || depth24Bpp != 32) {
        qInfo() << "VNC frames are painted by the toolkit (no shared memory with this X server)";
        xcb_disconnect(connection);
        return false;
    }
    m_connection = connection;
    return true;
}

QImage X11ShmPresenter::allocateFrame(const QSize& size)
{
    const auto plainFrame = [&size] {
        QImage plain(size, QImage::Format_RGB32);
        plain.fill(Qt::black);
        return plain;
    };
    if (!s_enabled || size.isEmpty() || !m_attachOk || !connected())
        return plainFrame();
    const int stride = size.width() * 4;
    const int id = shmget(IPC_PRIVATE, size_t(stride) * size_t(size.height()), IPC_CREAT | 0600);
    void* address = id < 0 ? reinterpret_cast<void*>(-1) : shmat(id, nullptr, 0);
    if (address == reinterpret_cast<void*>(-1)) {
        if (id >= 0)
            shmctl(id, IPC_RMID, nullptr);
        qWarning() << "no shared memory for a" << size << "frame";
        s_enabled = false;
        return plainFrame();
    }
    auto* segment = new Segment;
    segment->id = xcb_generate_id(m_connection);
    segment->bits = static_cast<const uchar*>(address);
    Reply<xcb_generic_error_t> error(xcb_request_check(m_connection, xcb_shm_attach_checked(m_connection, segment->id, uint32_t(id), 0)));
    // Marked for removal now: the memory goes away when both sides have let go of it, even if
    // the process is killed.
    shmctl(id, IPC_RMID, nullptr);
    if (error) {
        // A server on another machine cannot attach our memory.
        qInfo() << "VNC frames are painted by the toolkit (the X server cannot attach shared memory)";
        shmdt(address);
        delete segment;
        m_attachOk = false;
        return plainFrame();
    }
    if (!m_probed && !sharesMemory(segment->id, static_cast<uint32_t*>(address))) {
        // The server attached something, but not our memory (it runs in another IPC namespace).
        qInfo() << "VNC frames are painted by the toolkit (the X server does not see our shared memory)";
        release(segment);
        m_attachOk = false;
        return plainFrame();
    }
    m_probed = true;
    m_segments.push_back(segment);
    return QImage(static_cast<uchar*>(address), size.width(), size.height(), stride, QImage::Format_RGB32, &X11ShmPresenter::release, segment);
}

bool X11ShmPresenter::sharesMemory(uint32_t segment, uint32_t* pixels)
{
    // One marked pixel through the segment into a pixmap, and back the ordinary way.
    const uint32_t marker = 0x00a5c3e1;
    pixels[0] = marker;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const xcb_pixmap_t pixmap = xcb_generate_id(m_connection);
    Reply<xcb_generic_error_t> error(xcb_request_check(m_connection, xcb_create_pixmap_checked(m_connection, 24, pixmap, screen->root, 1, 1)));
    if (error)
        return false;
    const xcb_gcontext_t gc = xcb_generate_id(m_connection);
    xcb_create_gc(m_connection, gc, pixmap, 0, nullptr);
    xcb_shm_put_image(m_connection, pixmap, gc, 1, 1, 0, 0, 1, 1, 0, 0, 24, XCB_IMAGE_FORMAT_Z_PIXMAP, 0, segment, 0);
    Reply<xcb_get_image_reply_t> image(
        xcb_get_image_reply(m_connection, xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, 0, 0, 1, 1, 0xffffffff), nullptr));
    xcb_free_gc(m_connection, gc);
    xcb_free_pixmap(m_connection, pixmap);
    pixels[0] = 0;
    uint32_t seen = 0;
    if (!image || xcb_get_image_data_length(image.get()) < int(sizeof seen))
        return false;
    std::memcpy(&seen, xcb_get_image_data(image.get()), sizeof seen);
    return (seen & 0xffffff) == marker;
}

void X11ShmPresenter::release(void* info)
{
    auto* segment = static_cast<Segment*>(info);
    X11ShmPresenter& self = instance();
    self.m_segments.erase(std::remove(self.m_segments.begin(), self.m_segments.end(), segment), self.m_segments.end());
    xcb_shm_detach(self.m_connection, segment->id);
    xcb_flush(self.m_connection);
    shmdt(segment->bits);
    delete segment;
}

const X11ShmPresenter::Segment* X11ShmPresenter::segmentFor(const QImage& frame) const
{
    if (frame.format() != QImage::Format_RGB32 || frame.bytesPerLine() != frame.width() * 4)
        return nullptr;
    const uchar* bits = frame.constBits();
    for (const Segment* segment : m_segments)
        if (segment->bits == bits)
            return segment;
    return nullptr;
}

bool X11ShmPresenter::checkWindow(WId window)
{
    if (m_target.window == window)
        return m_target.usable;
    if (m_target.gc)
        xcb_free_gc(m_connection, m_target.gc);
    m_target = Target{window, 0, false};
    const auto id = xcb_window_t(window);
    Reply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, id), nullptr));
    Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(m_connection, xcb_get_window_attributes(m_connection, id), nullptr));
    if (!geometry || !attributes || geometry->depth != 24)
        return false;
    // The frame's pixels are 0x00RRGGBB words; the window must read them the same way.
    const xcb_visualtype_t* visual = findVisual(xcb_get_setup(m_connection), attributes->visual);
    if (!visual || visual->_class != XCB_VISUAL_CLASS_TRUE_COLOR || visual->red_mask != 0xff0000
        || visual->green_mask != 0xff00 || visual->blue_mask != 0xff)
        return false;
    m_target.gc = xcb_generate_id(m_connection);
    const uint32_t noExposures = 0;
    xcb_create_gc(m_connection, m_target.gc, id, XCB_GC_GRAPHICS_EXPOSURES, &noExposures);
    m_target.usable = true;
    return true;
}

bool X11ShmPresenter::present(WId window, const QImage& frame, const QRect& source, const QPoint& target)
{
    const Segment* segment = m_connection ? segmentFor(frame) : nullptr;
    if (!segment || !window || !checkWindow(window))
        return false;
    const QRect area = source & frame.rect();
    if (area.isEmpty())
        return true;
    const xcb_void_cookie_t put = xcb_shm_put_image_checked(m_connection, xcb_drawable_t(window), m_target.gc,
        uint16_t(frame.width()), uint16_t(frame.height()), uint16_t(area.x()), uint16_t(area.y()),
        uint16_t(area.width()), uint16_t(area.height()), int16_t(target.x() + area.x() - source.x()),
        int16_t(target.y() + area.y() - source.y()), 24, XCB_IMAGE_FORMAT_Z_PIXMAP, 0, segment->id, 0);
    // The reply to the check comes after the server has copied the pixels out of the segment.
    Reply<xcb_generic_error_t> error(xcb_request_check(m_connection, put));
    if (error) {
        m_target.usable = false; // the window went away, or never could take these pixels
        return false;
    }
    return true;
}
