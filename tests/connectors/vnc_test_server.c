/*
 * A small VNC server for the viewer's tests, on libvncserver.
 *
 *   vnc_test_server [--port N] [--password PW] [--size WxH]
 *
 * Listens on 127.0.0.1 (port N, else the first free one from 5900 up) and prints "port N" once it
 * does. The
 * framebuffer holds a known pattern: four quadrants, red, green, blue and white from the top left,
 * clockwise (blue at the bottom right). Every key and pointer event received is printed:
 *   key <1|0> 0x<keysym>
 *   pointer <x> <y> <mask>
 * and "client connected" / "client gone" around a session. Commands, one per line on stdin:
 *   invert          swap the pattern for its inverse and send it
 *   resize W H      change the framebuffer size mid-session (the pattern, at the new size)
 *   close           drop every client
 *   quit            exit
 */
#include <rfb/rfb.h>

#include <poll.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static int g_inverted = 0;

static void emit_line(const char* text)
{
    fputs(text, stdout);
    fputc('\n', stdout);
    fflush(stdout);
}

static uint32_t pixel(const rfbPixelFormat* format, unsigned r, unsigned g, unsigned b)
{
    if (g_inverted) {
        r = 255 - r;
        g = 255 - g;
        b = 255 - b;
    }
    return (r << format->redShift) | (g << format->greenShift) | (b << format->blueShift);
}

static void paint(rfbScreenInfoPtr screen)
{
    uint32_t* bits = (uint32_t*)screen->frameBuffer;
    const int w = screen->width, h = screen->height;
    const uint32_t red = pixel(&screen->serverFormat, 255, 0, 0);
    const uint32_t green = pixel(&screen->serverFormat, 0, 255, 0);
    const uint32_t blue = pixel(&screen->serverFormat, 0, 0, 255);
    const uint32_t white = pixel(&screen->serverFormat, 255, 255, 255);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int right = x >= w / 2, bottom = y >= h / 2;
            bits[y * w + x] = !bottom ? (right ? green : red) : (right ? blue : white);
        }
}

static void on_key(rfbBool down, rfbKeySym key, rfbClientPtr client)
{
    (void)client;
    char line[64];
    snprintf(line, sizeof line, "key %d 0x%x", down ? 1 : 0, (unsigned)key);
    emit_line(line);
}

static void on_pointer(int mask, int x, int y, rfbClientPtr client)
{
    (void)client;
    char line[64];
    snprintf(line, sizeof line, "pointer %d %d %d", x, y, mask);
    emit_line(line);
}

static void on_client_gone(rfbClientPtr client)
{
    (void)client;
    emit_line("client gone");
}

static enum rfbNewClientAction on_new_client(rfbClientPtr client)
{
    client->clientGoneHook = on_client_gone;
    emit_line("client connected");
    return RFB_CLIENT_ACCEPT;
}

static void drop_clients(rfbScreenInfoPtr screen)
{
    rfbClientIteratorPtr it = rfbGetClientIterator(screen);
    rfbClientPtr client;
    while ((client = rfbClientIteratorNext(it)))
        rfbCloseClient(client);
    rfbReleaseClientIterator(it);
}

/* Returns 0 when the server is to stop. */
static int run_command(rfbScreenInfoPtr screen, char* line)
{
    int w, h;
    if (strncmp(line, "quit", 4) == 0)
        return 0;
    if (strncmp(line, "invert", 6) == 0) {
        g_inverted = !g_inverted;
        paint(screen);
        rfbMarkRectAsModified(screen, 0, 0, screen->width, screen->height);
    } else if (sscanf(line, "resize %d %d", &w, &h) == 2 && w > 0 && h > 0) {
        char* old = screen->frameBuffer;
        rfbNewFramebuffer(screen, malloc((size_t)w * h * 4), w, h, 8, 3, 4);
        free(old);
        paint(screen);
        rfbMarkRectAsModified(screen, 0, 0, w, h);
    } else if (strncmp(line, "close", 5) == 0) {
        drop_clients(screen);
    }
    return 1;
}

int main(int argc, char** argv)
{
    static char* passwords[2] = {NULL, NULL};
    int width = 640, height = 480, port = 0;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (strcmp(argv[i], "--password") == 0)
            passwords[0] = argv[i + 1];
        else if (strcmp(argv[i], "--port") == 0)
            port = atoi(argv[i + 1]);
        else if (strcmp(argv[i], "--size") == 0)
            sscanf(argv[i + 1], "%dx%d", &width, &height);
    }

    int noArgs = 1;
    rfbScreenInfoPtr screen = rfbGetScreen(&noArgs, argv, width, height, 8, 3, 4);
    screen->frameBuffer = malloc((size_t)width * height * 4);
    screen->autoPort = port == 0;
    screen->port = port;
    screen->ipv6port = 0;
    screen->listenInterface = htonl(INADDR_LOOPBACK);
    screen->alwaysShared = TRUE;
    screen->cursor = NULL; /* no pointer drawn into the frame: the pattern stays exact */
    screen->kbdAddEvent = on_key;
    screen->ptrAddEvent = on_pointer;
    screen->newClientHook = on_new_client;
    if (passwords[0]) {
        screen->authPasswdData = passwords;
        screen->passwordCheck = rfbCheckPasswordByList;
    }
    paint(screen);
    rfbInitServer(screen);
    if (screen->listenSock == RFB_INVALID_SOCKET) {
        emit_line("no port");
        return 1;
    }
    char line[256];
    snprintf(line, sizeof line, "port %d", screen->port);
    emit_line(line);

    struct pollfd input = {STDIN_FILENO, POLLIN, 0};
    char command[256];
    size_t used = 0;
    for (;;) {
        rfbProcessEvents(screen, 10000);
        if (poll(&input, 1, 0) <= 0)
            continue;
        const ssize_t got = read(STDIN_FILENO, command + used, sizeof command - 1 - used);
        if (got <= 0)
            break; /* the test went away */
        used += (size_t)got;
        command[used] = '\0';
        char* end;
        while ((end = strchr(command, '\n'))) {
            *end = '\0';
            if (!run_command(screen, command))
                goto done;
            used -= (size_t)(end + 1 - command);
            memmove(command, end + 1, used + 1);
        }
        if (used == sizeof command - 1)
            used = 0; /* an overlong line is dropped */
    }
done:
    rfbShutdownServer(screen, TRUE);
    free(screen->frameBuffer);
    rfbScreenCleanup(screen);
    return 0;
}
