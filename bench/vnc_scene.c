/*
 * A desktop in use, drawn on the X server a VNC server serves: a wallpaper picture, a terminal whose
 * text scrolls (copies, as xterm scrolls), a window dragged around (window moves), a video-like
 * picture, and a frame stamp the benchmark's probe reads on the viewer's screen.
 *
 * The stamp at (16,16): a magenta and a cyan block (the probe finds the stamp by them), 24 blocks
 * holding the frame number in binary (white = 1), then a marker block that turns from yellow to
 * blue and back on every key press, drawn at once (input-to-screen latency).
 *
 * Usage: vnc_scene [--rate HZ] [--static]. With --static nothing but the marker changes.
 * Prints "ready" once the first frame is drawn.
 */
#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <math.h>
#include <poll.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#define BLOCK 16
#define STAMP_X 16
#define STAMP_Y 16
#define COUNTER_BITS 24
#define VIDEO_W 480
#define VIDEO_H 270

static double now(void)
{
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (double)ts.tv_sec + ts.tv_nsec / 1e9;
}

static uint32_t rng = 12345;
static uint32_t nextRandom(void)
{
    rng = rng * 1103515245u + 12345u;
    return rng >> 8;
}

static XImage* makeImage(Display* display, int width, int height)
{
    char* data = malloc((size_t)width * height * 4);
    return XCreateImage(display, DefaultVisual(display, DefaultScreen(display)), 24, ZPixmap, 0, data, width, height, 32, 0);
}

// A photograph-like picture: smooth gradients, soft shapes and a little grain.
static void paintPicture(XImage* image, double phase, int grain)
{
    for (int y = 0; y < image->height; ++y) {
        uint32_t* row = (uint32_t*)(image->data + (size_t)y * image->bytes_per_line);
        for (int x = 0; x < image->width; ++x) {
            const double u = (double)x / image->width, v = (double)y / image->height;
            double r = 120 + 90 * sin(6.0 * u + phase) * cos(4.0 * v - 0.7 * phase);
            double g = 110 + 80 * sin(5.0 * v + 1.3 * phase + 3.0 * u);
            double b = 140 + 90 * cos(7.0 * (u - v) - phase);
            if (grain) {
                const int noise = (int)(nextRandom() % (2 * grain + 1)) - grain;
                r += noise;
                g += noise;
                b += noise;
            }
            const int ri = r < 0 ? 0 : r > 255 ? 255 : (int)r, gi = g < 0 ? 0 : g > 255 ? 255 : (int)g, bi = b < 0 ? 0 : b > 255 ? 255 : (int)b;
            row[x] = (uint32_t)(ri << 16 | gi << 8 | bi);
        }
    }
}

static const char* const words[] = {"make[2]:", "Building", "CXX", "object", "src/connectors/VNCConnector.cpp.o", "Linking",
                                    "warning:", "unused", "variable", "ok", "PASS", "tst_vnc", "0.42s", "[ 37%]", "-O2", "-Wall",
                                    "ninja:", "Entering", "directory", "/work/build", "libnorbix.a", "done"};

int main(int argc, char** argv)
{
    double rate = 60;
    int still = 0;
    for (int i = 1; i < argc; ++i) {
        if (!strcmp(argv[i], "--rate") && i + 1 < argc)
            rate = atof(argv[++i]);
        else if (!strcmp(argv[i], "--static"))
            still = 1;
    }
    Display* display = XOpenDisplay(NULL);
    if (!display) {
        fprintf(stderr, "vnc_scene: cannot open display\n");
        return 1;
    }
    const int screen = DefaultScreen(display);
    const int width = DisplayWidth(display, screen), height = DisplayHeight(display, screen);
    const Window root = RootWindow(display, screen);
    GC gc = XCreateGC(display, root, 0, NULL);

    // The wallpaper is the desktop window's background: the server repaints what a moved window
    // uncovers by itself, as on a real desktop.
    XImage* wallpaper = makeImage(display, width, height);
    paintPicture(wallpaper, 0.3, 6);
    Pixmap wallpaperPixmap = XCreatePixmap(display, root, width, height, 24);
    XPutImage(display, wallpaperPixmap, gc, wallpaper, 0, 0, 0, 0, width, height);
    XSetWindowAttributes attributes;
    attributes.background_pixmap = wallpaperPixmap;
    attributes.override_redirect = True;
    attributes.event_mask = KeyPressMask | ExposureMask;
    Window desktop = XCreateWindow(display, root, 0, 0, width, height, 0, 24, InputOutput, CopyFromParent,
                                   CWBackPixmap | CWOverrideRedirect | CWEventMask, &attributes);
    XMapWindow(display, desktop);

    // The terminal.
    const int termW = 900, termH = 540, lineH = 15;
    Window terminal = XCreateSimpleWindow(display, desktop, 80, 120, termW, termH, 1, 0x404040, 0xFFFFFF);
    XMapWindow(display, terminal);

    // The dragged window, with a picture and some text of its own.
    const int dragW = 480, dragH = 360;
    Pixmap dragPixmap = XCreatePixmap(display, root, dragW, dragH, 24);
    XImage* dragImage = makeImage(display, dragW, dragH);
    paintPicture(dragImage, 2.1, 0);
    XPutImage(display, dragPixmap, gc, dragImage, 0, 0, 0, 0, dragW, dragH);
    XSetForeground(display, gc, 0xF0F0F0);
    XFillRectangle(display, dragPixmap, gc, 0, 0, dragW, 24);
    XSetForeground(display, gc, 0x202020);
    XDrawString(display, dragPixmap, gc, 8, 16, "Pictures - Holiday 2026", 23);
    attributes.background_pixmap = dragPixmap;
    Window dragged = XCreateWindow(display, desktop, 1100, 120, dragW, dragH, 1, 24, InputOutput, CopyFromParent, CWBackPixmap, &attributes);
    XMapWindow(display, dragged);

    XImage* video = makeImage(display, VIDEO_W, VIDEO_H);
    XSetInputFocus(display, desktop, RevertToParent, CurrentTime);
    XSync(display, False);

    unsigned long frame = 0;
    int marker = 0;
    int textLine = 0;
    const double period = 1.0 / rate;
    double next = now();
    int announced = 0;
    struct pollfd fd = {ConnectionNumber(display), POLLIN, 0};
    for (;;) {
        while (XPending(display)) {
            XEvent event;
            XNextEvent(display, &event);
            if (event.type == KeyPress) {
                marker = !marker;
                XSetForeground(display, gc, marker ? 0x0000FF : 0xFFFF00);
                XFillRectangle(display, desktop, gc, STAMP_X + (2 + COUNTER_BITS) * BLOCK, STAMP_Y, 2 * BLOCK, BLOCK);
                XFlush(display);
            }
        }
        const double t = now();
        if (t >= next) {
            next += period;
            if (next < t)
                next = t + period; // fell behind: no burst to catch up
            if (still && frame > 0)
                goto wait;
            {
                ++frame;
                // Terminal: a new line every third frame, the rest scrolled up by a copy.
                if (frame % 3 == 0 || frame == 1) {
                    XCopyArea(display, terminal, terminal, gc, 0, lineH, termW, termH - lineH, 0, 0);
                    XSetForeground(display, gc, 0xFFFFFF);
                    XFillRectangle(display, terminal, gc, 0, termH - lineH, termW, lineH);
                    XSetForeground(display, gc, 0x101010);
                    char line[160];
                    int length = snprintf(line, sizeof line, "%06d ", textLine++);
                    for (int w = 0; w < 10 && length < (int)sizeof line - 40; ++w)
                        length += snprintf(line + length, sizeof line - length, "%s ", words[nextRandom() % (sizeof words / sizeof *words)]);
                    XDrawString(display, terminal, gc, 4, termH - 4, line, length);
                }
                // The dragged window follows an ellipse over the right half.
                const double angle = frame * 0.02;
                XMoveWindow(display, dragged, 1150 + (int)(250 * cos(angle)), 250 + (int)(120 * sin(angle)));
                // The video.
                paintPicture(video, frame * 0.08, 10);
                XPutImage(display, desktop, gc, video, 0, 0, width - VIDEO_W - 80, height - VIDEO_H - 60, VIDEO_W, VIDEO_H);
            }
            // The stamp, drawn last so that a viewer showing it has the rest of the frame too.
            XSetForeground(display, gc, 0xFF00FF);
            XFillRectangle(display, desktop, gc, STAMP_X, STAMP_Y, BLOCK, BLOCK);
            XSetForeground(display, gc, 0x00FFFF);
            XFillRectangle(display, desktop, gc, STAMP_X + BLOCK, STAMP_Y, BLOCK, BLOCK);
            for (int bit = 0; bit < COUNTER_BITS; ++bit) {
                XSetForeground(display, gc, (frame >> bit) & 1 ? 0xFFFFFF : 0x000000);
                XFillRectangle(display, desktop, gc, STAMP_X + (2 + bit) * BLOCK, STAMP_Y, BLOCK, BLOCK);
            }
            XSetForeground(display, gc, marker ? 0x0000FF : 0xFFFF00);
            XFillRectangle(display, desktop, gc, STAMP_X + (2 + COUNTER_BITS) * BLOCK, STAMP_Y, 2 * BLOCK, BLOCK);
            XFlush(display);
            if (!announced) {
                XSync(display, False);
                printf("ready\n");
                fflush(stdout);
                announced = 1;
            }
        }
    wait:;
        const int timeout = (int)((next - now()) * 1000);
        poll(&fd, 1, timeout < 0 ? 0 : timeout);
    }
}
