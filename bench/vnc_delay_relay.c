/*
 * A TCP relay that holds every byte for a fixed time in each direction: the delay of a modelled
 * link (the kernel here has no netem; the bandwidth is shaped with tc). Counts the bytes it passes.
 *
 * Usage: vnc_delay_relay LISTEN_ADDR LISTEN_PORT TARGET_ADDR TARGET_PORT DELAY_US [QUEUE_BYTES]
 * Prints "ready", then every 100 ms "relay down=<bytes to clients> up=<bytes to the target>
 * connections=<n>" (totals since start). QUEUE_BYTES (256 KiB) bounds what waits in each
 * direction: beyond it the relay stops reading, so the sender feels the link.
 */
#define _GNU_SOURCE
#include <arpa/inet.h>
#include <errno.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <time.h>
#include <unistd.h>

#define MAX_PAIRS 8
#define CHUNK 65536

struct chunk {
    struct chunk* next;
    long long due; // µs
    size_t length, offset;
    char data[];
};

struct direction {
    int from, to;
    struct chunk *head, *tail;
    size_t queued;
    int eof;
    long long* counter;
};

struct pair {
    int used;
    struct direction d[2];
};

static long long nowUs(void)
{
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return (long long)ts.tv_sec * 1000000 + ts.tv_nsec / 1000;
}

static void noDelay(int fd)
{
    const int one = 1;
    setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
}

static void closePair(struct pair* pair)
{
    for (int i = 0; i < 2; ++i) {
        while (pair->d[i].head) {
            struct chunk* next = pair->d[i].head->next;
            free(pair->d[i].head);
            pair->d[i].head = next;
        }
    }
    close(pair->d[0].from);
    close(pair->d[0].to);
    pair->used = 0;
}

int main(int argc, char** argv)
{
    if (argc < 6) {
        fprintf(stderr, "usage: %s LISTEN_ADDR LISTEN_PORT TARGET_ADDR TARGET_PORT DELAY_US [QUEUE_BYTES]\n", argv[0]);
        return 2;
    }
    signal(SIGPIPE, SIG_IGN);
    const long long delay = atoll(argv[5]);
    const size_t cap = argc > 6 ? (size_t)atoll(argv[6]) : 256 * 1024;
    struct sockaddr_in listenAddress = {0}, target = {0};
    listenAddress.sin_family = target.sin_family = AF_INET;
    listenAddress.sin_port = htons(atoi(argv[2]));
    target.sin_port = htons(atoi(argv[4]));
    if (inet_pton(AF_INET, argv[1], &listenAddress.sin_addr) != 1 || inet_pton(AF_INET, argv[3], &target.sin_addr) != 1) {
        fprintf(stderr, "vnc_delay_relay: bad address\n");
        return 2;
    }
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    const int one = 1;
    setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &one, sizeof one);
    if (bind(listener, (struct sockaddr*)&listenAddress, sizeof listenAddress) != 0 || listen(listener, 8) != 0) {
        perror("vnc_delay_relay: listen");
        return 1;
    }
    printf("ready\n");
    fflush(stdout);

    long long down = 0, up = 0;
    struct pair pairs[MAX_PAIRS] = {0};
    long long nextStatus = nowUs();
    for (;;) {
        struct pollfd fds[1 + MAX_PAIRS * 4];
        struct direction* owners[1 + MAX_PAIRS * 4];
        int events = 0;
        fds[events] = (struct pollfd){listener, POLLIN, 0};
        owners[events++] = NULL;
        const long long now = nowUs();
        long long wake = nextStatus;
        for (int p = 0; p < MAX_PAIRS; ++p) {
            if (!pairs[p].used)
                continue;
            for (int i = 0; i < 2; ++i) {
                struct direction* d = &pairs[p].d[i];
                if (!d->eof && d->queued < cap) {
                    fds[events] = (struct pollfd){d->from, POLLIN, 0};
                    owners[events++] = d;
                }
                if (d->head) {
                    if (d->head->due <= now) {
                        fds[events] = (struct pollfd){d->to, POLLOUT, 0};
                        owners[events++] = d;
                    } else if (d->head->due < wake) {
                        wake = d->head->due;
                    }
                }
            }
        }
        // Microseconds: a delay of a quarter millisecond must not become a whole one.
        const long long timeout = wake > now ? wake - now : 0;
        const struct timespec wait = {timeout / 1000000, (timeout % 1000000) * 1000};
        ppoll(fds, events, &wait, NULL);

        if (fds[0].revents & POLLIN) {
            const int client = accept(listener, NULL, NULL);
            int slot = -1;
            for (int p = 0; p < MAX_PAIRS && slot < 0; ++p)
                if (!pairs[p].used)
                    slot = p;
            const int server = client >= 0 && slot >= 0 ? socket(AF_INET, SOCK_STREAM, 0) : -1;
            if (server >= 0 && connect(server, (struct sockaddr*)&target, sizeof target) == 0) {
                noDelay(client);
                noDelay(server);
                // What the link holds is the delay line and the shaper's queue, not a deep socket
                // buffer in front of them (the kernel doubles the figure).
                const int sendBuffer = 32 * 1024;
                setsockopt(client, SOL_SOCKET, SO_SNDBUF, &sendBuffer, sizeof sendBuffer);
                struct pair* pair = &pairs[slot];
                memset(pair, 0, sizeof *pair);
                pair->used = 1;
                pair->d[0] = (struct direction){server, client, NULL, NULL, 0, 0, &down};
                pair->d[1] = (struct direction){client, server, NULL, NULL, 0, 0, &up};
            } else {
                if (server >= 0)
                    close(server);
                if (client >= 0)
                    close(client);
            }
        }
        for (int e = 1; e < events; ++e) {
            struct direction* d = owners[e];
            if (!fds[e].revents)
                continue;
            if (fds[e].fd == d->from && !d->eof) {
                struct chunk* chunk = malloc(sizeof *chunk + CHUNK);
                const ssize_t got = read(d->from, chunk->data, CHUNK);
                if (got <= 0) {
                    free(chunk);
                    if (got == 0 || (errno != EAGAIN && errno != EINTR))
                        d->eof = 1;
                    continue;
                }
                chunk->next = NULL;
                chunk->due = nowUs() + delay;
                chunk->length = (size_t)got;
                chunk->offset = 0;
                if (d->tail)
                    d->tail->next = chunk;
                else
                    d->head = chunk;
                d->tail = chunk;
                d->queued += (size_t)got;
            } else if (fds[e].fd == d->to && d->head) {
                struct chunk* chunk = d->head;
                const ssize_t sent = send(d->to, chunk->data + chunk->offset, chunk->length - chunk->offset, MSG_DONTWAIT);
                if (sent < 0) {
                    if (errno != EAGAIN && errno != EINTR)
                        d->eof = 1, d->queued = 0;
                    continue;
                }
                chunk->offset += (size_t)sent;
                d->queued -= (size_t)sent;
                *d->counter += sent;
                if (chunk->offset == chunk->length) {
                    d->head = chunk->next;
                    if (!d->head)
                        d->tail = NULL;
                    free(chunk);
                }
            }
        }
        // A direction that ended and has nothing left to pass ends the connection.
        for (int p = 0; p < MAX_PAIRS; ++p)
            if (pairs[p].used && ((pairs[p].d[0].eof && !pairs[p].d[0].head) || (pairs[p].d[1].eof && !pairs[p].d[1].head)))
                closePair(&pairs[p]);
        if (nowUs() >= nextStatus) {
            int connections = 0;
            for (int p = 0; p < MAX_PAIRS; ++p)
                connections += pairs[p].used;
            printf("relay down=%lld up=%lld connections=%d\n", down, up, connections);
            fflush(stdout);
            nextStatus = nowUs() + 100000;
        }
    }
}
