/*
 * The library reference for the VNC viewer benchmark: a bare libvncclient loop that copies each
 * complete frame once and shows nothing.
 *
 * Usage: bench_vnc_bare_client HOST:PORT [--password P] [--seconds S]
 */
#include <rfb/rfbclient.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static const char* password = "";
static unsigned char* copy = NULL;
static long frames = 0;

static char* givePassword(rfbClient* client)
{
    (void)client;
    return strdup(password);
}

static void frameDone(rfbClient* client)
{
    const size_t size = (size_t)client->width * client->height * 4;
    copy = realloc(copy, size);
    memcpy(copy, client->frameBuffer, size);
    ++frames;
}

static void quiet(const char* format, ...)
{
    (void)format;
}

static double now(void)
{
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (double)ts.tv_sec + ts.tv_nsec / 1e9;
}

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    double seconds = 3600.0;
    for (int i = 2; i < argc; ++i) {
        if (!strcmp(argv[i], "--password") && i + 1 < argc)
            password = argv[++i];
        else if (!strcmp(argv[i], "--seconds") && i + 1 < argc)
            seconds = atof(argv[++i]);
    }
    rfbClientLog = rfbClientErr = quiet;
    rfbClient* client = rfbGetClient(8, 3, 4);
    client->format.redShift = 16;
    client->format.greenShift = 8;
    client->format.blueShift = 0;
    client->GetPassword = givePassword;
    client->FinishedFrameBufferUpdate = frameDone;
    int clientArgc = 2;
    char* clientArgv[] = {argv[0], argv[1], NULL};
    if (!rfbInitClient(client, &clientArgc, clientArgv))
        return 1;
    const double start = now();
    while (now() - start < seconds) {
        const int ready = client->buffered > 0 ? 1 : WaitForMessage(client, 10000);
        if (ready < 0 || (ready > 0 && !HandleRFBServerMessage(client)))
            break;
    }
    printf("frames=%ld\n", frames);
    rfbClientCleanup(client);
    free(copy);
    return 0;
}
