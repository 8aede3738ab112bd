/*
 * Watches a VNC viewer's screen for the stamp bench_vnc_scene draws on the remote desktop: counts
 * the distinct frame numbers that reach the screen, and measures input-to-screen latency by
 * typing a key (XTest) and timing the marker's change on screen.
 *
 * Usage: vnc_probe [--keys-every MS]   (0: no keys)
 *        vnc_probe --dump FILE.ppm       (the screen as it is, then exit)
 * Prints "ready", "found X Y" when the stamp is on screen, "latency ms=<ms>" per key, and every
 * 100 ms "probe t=<s> frames=<n> found=<0|1> keys=<n> lost=<n>" (totals since start).
 */
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>
#include <X11/keysym.h>

#include <poll.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#define BLOCK 16
#define COUNTER_BITS 24
#define STAMP_W ((2 + COUNTER_BITS + 2) * BLOCK)

static double now(void)
{
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (double)ts.tv_sec + ts.tv_nsec / 1e9;
}

static int ignoreErrors(Display* display, XErrorEvent* error)
{
    (void)display;
    (void)error;
    return 0;
}

static void rgb(XImage* image, int x, int y, int* r, int* g, int* b)
{
    const unsigned long pixel = XGetPixel(image, x, y);
    *r = (pixel >> 16) & 0xFF;
    *g = (pixel >> 8) & 0xFF;
    *b = pixel & 0xFF;
}

static int isMagenta(XImage* image, int x, int y)
{
    int r, g, b;
    rgb(image, x, y, &r, &g, &b);
    return r > 180 && g < 90 && b > 180;
}

static int isCyan(XImage* image, int x, int y)
{
    int r, g, b;
    rgb(image, x, y, &r, &g, &b);
    return r < 90 && g > 180 && b > 180;
}

// The stamp's top-left corner on the screen, or 0.
static int findStamp(Display* display, Window root, int width, int height, int* foundX, int* foundY)
{
    XImage* image = XGetImage(display, root, 0, 0, width, height, AllPlanes, ZPixmap);
    if (!image)
        return 0;
    int found = 0;
    for (int y = 0; y + BLOCK < height && !found; ++y)
        for (int x = 0; x + STAMP_W < width && !found; ++x)
            if (isMagenta(image, x, y) && isMagenta(image, x + BLOCK / 2, y + BLOCK / 2) && isCyan(image, x + BLOCK + BLOCK / 2, y + BLOCK / 2)) {
                *foundX = x;
                *foundY = y;
                found = 1;
            }
    XDestroyImage(image);
    return found;
}

// The whole screen as a PPM file, to see what a viewer showed when the stamp was not found.
static int dumpScreen(Display* display, const char* path)
{
    const int screen = DefaultScreen(display);
    const int width = DisplayWidth(display, screen), height = DisplayHeight(display, screen);
    XImage* image = XGetImage(display, RootWindow(display, screen), 0, 0, width, height, AllPlanes, ZPixmap);
    FILE* file = fopen(path, "wb");
    if (!image || !file)
        return 1;
    fprintf(file, "P6\n%d %d\n255\n", width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            int r, g, b;
            rgb(image, x, y, &r, &g, &b);
            fputc(r, file);
            fputc(g, file);
            fputc(b, file);
        }
    fclose(file);
    XDestroyImage(image);
    return 0;
}

int main(int argc, char** argv)
{
    double keysEvery = 0;
    if (argc == 3 && !strcmp(argv[1], "--keys-every"))
        keysEvery = atof(argv[2]) / 1000.0;
    Display* display = XOpenDisplay(NULL);
    if (!display) {
        fprintf(stderr, "vnc_probe: cannot open display\n");
        return 1;
    }
    if (argc == 3 && !strcmp(argv[1], "--dump"))
        return dumpScreen(display, argv[2]);
    XSetErrorHandler(ignoreErrors);
    int eventBase = 0, errorBase = 0, major, minor, xtestEvent, xtestError;
    if (!XDamageQueryExtension(display, &eventBase, &errorBase) || !XTestQueryExtension(display, &xtestEvent, &xtestError, &major, &minor)) {
        fprintf(stderr, "vnc_probe: DAMAGE or XTEST missing\n");
        return 1;
    }
    const int screen = DefaultScreen(display);
    const Window root = RootWindow(display, screen);
    const int width = DisplayWidth(display, screen), height = DisplayHeight(display, screen);
    Damage damage = XDamageCreate(display, root, XDamageReportNonEmpty);
    const KeyCode key = XKeysymToKeycode(display, XK_a);
    XFlush(display);
    printf("ready\n");
    fflush(stdout);

    int found = 0, stampX = 0, stampY = 0;
    long frames = 0, keys = 0, lost = 0;
    unsigned long lastCounter = ~0ul;
    int marker = -1, expected = -1;
    double sentAt = 0, lastSearch = 0, lastSeen = 0, nextKey = 0;
    const double start = now();
    double nextStatus = start;
    int dirty = 1;
    struct pollfd fd = {ConnectionNumber(display), POLLIN, 0};
    for (;;) {
        while (XPending(display)) {
            XEvent event;
            XNextEvent(display, &event);
            if (event.type == eventBase + XDamageNotify)
                dirty = 1;
        }
        double t = now();
        if (!found && t - lastSearch > 0.25) {
            lastSearch = t;
            if (findStamp(display, root, width, height, &stampX, &stampY)) {
                found = 1;
                lastSeen = t;
                printf("found %d %d\n", stampX, stampY);
                // No window manager gives the viewer the keyboard: the pointer goes over its
                // window, and the window under it gets the focus.
                XTestFakeMotionEvent(display, screen, stampX + 400, stampY + 300, 0);
                XSync(display, False);
                Window rootReturn, child = None;
                int rx, ry, wx, wy;
                unsigned int mask;
                XQueryPointer(display, root, &rootReturn, &child, &rx, &ry, &wx, &wy, &mask);
                if (child != None)
                    XSetInputFocus(display, child, RevertToPointerRoot, CurrentTime);
                XFlush(display);
                nextKey = t + 1.0;
                dirty = 1;
            }
        }
        if (found && dirty) {
            dirty = 0;
            XDamageSubtract(display, damage, None, None);
            XImage* strip = XGetImage(display, root, stampX, stampY, STAMP_W, BLOCK, AllPlanes, ZPixmap);
            t = now();
            if (strip && isMagenta(strip, BLOCK / 2, BLOCK / 2) && isCyan(strip, BLOCK + BLOCK / 2, BLOCK / 2)) {
                lastSeen = t;
                unsigned long counter = 0;
                for (int bit = 0; bit < COUNTER_BITS; ++bit) {
                    int r, g, b;
                    rgb(strip, (2 + bit) * BLOCK + BLOCK / 2, BLOCK / 2, &r, &g, &b);
                    if (r + g + b > 3 * 128)
                        counter |= 1ul << bit;
                }
                if (counter != lastCounter) {
                    ++frames;
                    lastCounter = counter;
                }
                int r, g, b;
                rgb(strip, (2 + COUNTER_BITS) * BLOCK + BLOCK, BLOCK / 2, &r, &g, &b);
                marker = r > 128 && g > 128 && b < 128 ? 0 : (b > 128 && r < 128 ? 1 : marker);
                if (expected >= 0 && marker == expected) {
                    printf("latency ms=%.2f\n", 1000.0 * (t - sentAt));
                    fflush(stdout);
                    expected = -1;
                }
            }
            if (strip)
                XDestroyImage(strip);
        }
        if (found && t - lastSeen > 2.0) {
            found = 0; // the window moved or went: look again
            expected = -1;
        }
        if (found && keysEvery > 0 && marker >= 0 && t >= nextKey) {
            if (expected >= 0) {
                ++lost;
                expected = -1;
            }
            expected = !marker;
            sentAt = now();
            XTestFakeKeyEvent(display, key, True, 0);
            XTestFakeKeyEvent(display, key, False, 0);
            XFlush(display);
            ++keys;
            nextKey = t + keysEvery;
        }
        if (t >= nextStatus) {
            printf("probe t=%.3f frames=%ld found=%d keys=%ld lost=%ld\n", t - start, frames, found, keys, lost);
            fflush(stdout);
            nextStatus = t + 0.1;
        }
        poll(&fd, 1, 5);
    }
}
