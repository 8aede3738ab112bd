/*
 * Counts what is painted on an X screen: X DAMAGE on the root window, raw rectangles.
 * Prints every 100 ms "damage t=<s> events=<n> pixels=<n>" (totals since start); runs until
 * killed or for --seconds S.
 */
#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>

#include <poll.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static double now(void)
{
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (double)ts.tv_sec + ts.tv_nsec / 1e9;
}

int main(int argc, char** argv)
{
    double seconds = 3600.0;
    if (argc == 3 && !strcmp(argv[1], "--seconds"))
        seconds = atof(argv[2]);
    Display* display = XOpenDisplay(NULL);
    if (!display) {
        fprintf(stderr, "cannot open display\n");
        return 1;
    }
    int eventBase = 0, errorBase = 0;
    if (!XDamageQueryExtension(display, &eventBase, &errorBase)) {
        fprintf(stderr, "no DAMAGE extension\n");
        return 1;
    }
    XDamageCreate(display, DefaultRootWindow(display), XDamageReportRawRectangles);
    XFlush(display);
    printf("ready\n");
    fflush(stdout);

    long events = 0;
    long long pixels = 0;
    const double start = now();
    double nextStatus = start;
    struct pollfd fd = {ConnectionNumber(display), POLLIN, 0};
    while (now() - start < seconds) {
        while (XPending(display)) {
            XEvent event;
            XNextEvent(display, &event);
            if (event.type == eventBase + XDamageNotify) {
                const XDamageNotifyEvent* damage = (const XDamageNotifyEvent*)&event;
                ++events;
                pixels += (long long)damage->area.width * damage->area.height;
            }
        }
        const double t = now();
        if (t >= nextStatus) {
            printf("damage t=%.3f events=%ld pixels=%lld\n", t - start, events, pixels);
            fflush(stdout);
            nextStatus = t + 0.1;
        }
        poll(&fd, 1, 20);
    }
    XCloseDisplay(display);
    return 0;
}
