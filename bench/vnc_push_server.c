/*
 * VNC push server for the viewer benchmark.
 *
 * Serves a 1920x1080 32-bit framebuffer whose content changes entirely between any two updates
 * (a few noise frames made at start, the framebuffer pointer swapped per update, so producing a
 * frame costs nothing) and answers every update request with a full-screen update. In static
 * mode the screen never changes after the first update (idle measurement).
 *
 * Usage: bench_vnc_push_server [--port N] [--static] [--encoding raw|client] [--password P]
 *                              [--passwd-file FILE] [--seconds S]
 * Prints "ready port=N" once listening, then every 100 ms a status line
 *   "status t=<s> updates=<n> clients=<n> translated=<0|1> encoding=<n> bpp=<n> depth=<n>"
 * where updates counts full-screen updates sent, translated tells whether any update needed
 * pixel translation, encoding is the last encoding used, bpp and depth the viewer's pixel format.
 */
#include <rfb/rfb.h>

#include <signal.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

enum { kWidth = 1920, kHeight = 1080, kFrames = 4 };

static char* frames[kFrames];
static int nextFrame = 0;
static int pushMode = 1;
static int forceRaw = 1;
static long updates = 0;
static int translated = 0;
static int lastEncoding = -1;
static int clientBpp = 0;
static int clientDepth = 0;
static volatile sig_atomic_t stopRequested = 0;

static double now(void)
{
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (double)ts.tv_sec + ts.tv_nsec / 1e9;
}

static void makeFrames(void)
{
    uint64_t state = 0x9E3779B97F4A7C15ull;
    for (int f = 0; f < kFrames; ++f) {
        frames[f] = malloc((size_t)kWidth * kHeight * 4);
        uint32_t* pixel = (uint32_t*)frames[f];
        for (size_t i = 0; i < (size_t)kWidth * kHeight; ++i) {
            state ^= state << 13;
            state ^= state >> 7;
            state ^= state << 17;
            pixel[i] = (uint32_t)state & 0x00FFFFFFu;
        }
    }
}

/* Same bytes on the wire: the depth field alone differs (a viewer asking for depth 32 with 8-bit
 * channels at 16/8/0 gets exactly the server's pixels). */
static int sameLayout(const rfbPixelFormat* a, const rfbPixelFormat* b)
{
    return a->bitsPerPixel == b->bitsPerPixel && a->trueColour && b->trueColour
        && a->bigEndian == b->bigEndian && a->redMax == b->redMax && a->greenMax == b->greenMax
        && a->blueMax == b->blueMax && a->redShift == b->redShift && a->greenShift == b->greenShift
        && a->blueShift == b->blueShift;
}

static void beforeUpdate(rfbClientPtr cl)
{
    if (forceRaw)
        cl->preferredEncoding = rfbEncodingRaw;
    if (cl->translateFn != rfbTranslateNone) {
        if (sameLayout(&cl->format, &cl->screen->serverFormat))
            cl->translateFn = rfbTranslateNone;
        else
            translated = 1;
    }
    lastEncoding = cl->preferredEncoding;
    clientBpp = cl->format.bitsPerPixel;
    clientDepth = cl->format.depth;
    if (pushMode) {
        nextFrame = (nextFrame + 1) % kFrames;
        cl->screen->frameBuffer = frames[nextFrame];
    }
}

static void afterUpdate(rfbClientPtr cl, int result)
{
    if (!result)
        return;
    ++updates;
    if (pushMode)
        rfbMarkRectAsModified(cl->screen, 0, 0, kWidth, kHeight);
}

static void onSignal(int sig)
{
    (void)sig;
    stopRequested = 1;
}

int main(int argc, char** argv)
{
    int port = 5950;
    double seconds = 600.0;
    const char* password = NULL;
    const char* passwdFile = NULL;
    for (int i = 1; i < argc; ++i) {
        if (!strcmp(argv[i], "--port") && i + 1 < argc)
            port = atoi(argv[++i]);
        else if (!strcmp(argv[i], "--static"))
            pushMode = 0;
        else if (!strcmp(argv[i], "--encoding") && i + 1 < argc)
            forceRaw = !strcmp(argv[++i], "raw");
        else if (!strcmp(argv[i], "--password") && i + 1 < argc)
            password = argv[++i];
        else if (!strcmp(argv[i], "--passwd-file") && i + 1 < argc)
            passwdFile = argv[++i];
        else if (!strcmp(argv[i], "--seconds") && i + 1 < argc)
            seconds = atof(argv[++i]);
        else {
            fprintf(stderr, "unknown argument %s\n", argv[i]);
            return 2;
        }
    }
    signal(SIGTERM, onSignal);
    signal(SIGINT, onSignal);
    signal(SIGPIPE, SIG_IGN);
    rfbLogEnable(0);
    makeFrames();

    int noArgs = 0;
    rfbScreenInfoPtr screen = rfbGetScreen(&noArgs, NULL, kWidth, kHeight, 8, 3, 4);
    if (!screen)
        return 1;
    screen->desktopName = "bench";
    screen->frameBuffer = frames[0];
    screen->serverFormat.depth = 24;
    screen->serverFormat.redShift = 16;
    screen->serverFormat.greenShift = 8;
    screen->serverFormat.blueShift = 0;
    screen->deferUpdateTime = 0;
    screen->alwaysShared = TRUE;
    screen->cursor = NULL;
    screen->port = port;
    screen->ipv6port = 0;
    screen->listenInterface = htonl(INADDR_LOOPBACK);
    screen->displayHook = beforeUpdate;
    screen->displayFinishedHook = afterUpdate;
    const char* passwords[2] = {password, NULL};
    if (password) {
        screen->authPasswdData = (void*)passwords;
        screen->passwordCheck = rfbCheckPasswordByList;
        if (passwdFile)
            rfbEncryptAndStorePasswd((char*)password, (char*)passwdFile);
    }
    rfbInitServer(screen);
    if (screen->listenSock == RFB_INVALID_SOCKET) {
        fprintf(stderr, "cannot listen on port %d\n", port);
        return 1;
    }
    printf("ready port=%d\n", port);
    fflush(stdout);

    const double start = now();
    double nextStatus = start;
    while (!stopRequested && now() - start < seconds) {
        rfbProcessEvents(screen, 1000);
        const double t = now();
        if (t >= nextStatus) {
            int clients = 0;
            rfbClientIteratorPtr it = rfbGetClientIterator(screen);
            while (rfbClientIteratorNext(it))
                ++clients;
            rfbReleaseClientIterator(it);
            printf("status t=%.3f updates=%ld clients=%d translated=%d encoding=%d bpp=%d depth=%d\n", t - start,
                updates, clients, translated, lastEncoding, clientBpp, clientDepth);
            fflush(stdout);
            nextStatus = t + 0.1;
        }
    }
    rfbShutdownServer(screen, TRUE);
    rfbScreenCleanup(screen);
    return 0;
}
