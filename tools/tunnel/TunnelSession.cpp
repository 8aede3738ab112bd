#include "TunnelSession.h"

#include "TunnelHandshake.h"

#include <openssl/err.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tunnel {

namespace {

using Clock = std::chrono::steady_clock;

void say(const char* format, ...)
{
    char line[1024];
    va_list list;
    va_start(list, format);
    std::vsnprintf(line, sizeof line, format, list);
    va_end(list);
    std::fprintf(stderr, "tunnel: %s\n", line);
}

std::string sslErrors()
{
    std::string text;
    while (unsigned long code = ERR_get_error()) {
        char buffer[256];
        ERR_error_string_n(code, buffer, sizeof buffer);
        if (!text.empty())
            text += "; ";
        text += buffer;
    }
    return text.empty() ? std::string("no details") : text;
}

std::string describe(const Endpoint& endpoint)
{
    const bool v6 = endpoint.host.find(':') != std::string::npos;
    return (v6 ? "[" + endpoint.host + "]" : endpoint.host) + ":" + std::to_string(endpoint.port);
}

// Milliseconds left until the deadline, 0 when it has passed.
int remaining(Clock::time_point deadline)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

// true when the socket is ready for `events` before the deadline.
bool waitFor(int fd, short events, Clock::time_point deadline)
{
    for (;;) {
        pollfd entry{fd, events, 0};
        const int ready = ::poll(&entry, 1, remaining(deadline));
        if (ready > 0)
            return true;
        if (ready == 0)
            return false;
        if (errno != EINTR)
            return false;
    }
}

struct Socket {
    int fd = -1;
    Socket() = default;
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    ~Socket()
    {
        if (fd >= 0)
            ::close(fd);
    }
};

enum class ConnectResult { Connected, Unreachable, TimedOut };

// A non-blocking TCP connection to the first address of the endpoint that takes it.
ConnectResult connectTo(const Endpoint& endpoint, int timeoutMs, Socket* socket, std::string* why)
{
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_NUMERICSERV;
    addrinfo* found = nullptr;
    const std::string port = std::to_string(endpoint.port);
    const int status = ::getaddrinfo(endpoint.host.c_str(), port.c_str(), &hints, &found);
    if (status != 0) {
        *why = std::string("cannot resolve ") + endpoint.host + ": " + gai_strerror(status);
        return ConnectResult::Unreachable;
    }
    std::unique_ptr<addrinfo, void (*)(addrinfo*)> addresses(found, ::freeaddrinfo);
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
    bool timedOut = false;
    for (addrinfo* address = found; address; address = address->ai_next) {
        Socket candidate;
        candidate.fd = ::socket(address->ai_family, address->ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, address->ai_protocol);
        if (candidate.fd < 0) {
            *why = std::strerror(errno);
            continue;
        }
        if (::connect(candidate.fd, address->ai_addr, address->ai_addrlen) != 0 && errno != EINPROGRESS) {
            *why = std::strerror(errno);
            continue;
        }
        if (!waitFor(candidate.fd, POLLOUT, deadline)) {
            *why = "no answer within " + std::to_string(timeoutMs) + " ms";
            timedOut = true;
            break; // the time is spent: later addresses get none
        }
        int error = 0;
        socklen_t length = sizeof error;
        ::getsockopt(candidate.fd, SOL_SOCKET, SO_ERROR, &error, &length);
        if (error != 0) {
            *why = std::strerror(error);
            continue;
        }
        const int on = 1;
        ::setsockopt(candidate.fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on); // VNC is interactive
        socket->fd = candidate.fd;
        candidate.fd = -1;
        return ConnectResult::Connected;
    }
    return timedOut ? ConnectResult::TimedOut : ConnectResult::Unreachable;
}

bool isIpAddress(const std::string& host)
{
    unsigned char buffer[sizeof(in6_addr)];
    return ::inet_pton(AF_INET, host.c_str(), buffer) == 1 || ::inet_pton(AF_INET6, host.c_str(), buffer) == 1;
}

struct TlsContext {
    SSL_CTX* ctx = nullptr;
    ~TlsContext() { SSL_CTX_free(ctx); }
};

struct Tls {
    SSL* ssl = nullptr;
    ~Tls() { SSL_free(ssl); }
};

// Waits for what the last TLS call asked for; false at the deadline.
bool waitForTls(SSL* ssl, int fd, int result, Clock::time_point deadline, int* sslError)
{
    *sslError = SSL_get_error(ssl, result);
    if (*sslError == SSL_ERROR_WANT_READ)
        return waitFor(fd, POLLIN, deadline);
    if (*sslError == SSL_ERROR_WANT_WRITE)
        return waitFor(fd, POLLOUT, deadline);
    return true; // not a wait: the caller looks at sslError
}

bool isWait(int sslError)
{
    return sslError == SSL_ERROR_WANT_READ || sslError == SSL_ERROR_WANT_WRITE;
}

// Both directions of the session. Each buffer is filled by one read and emptied by writes before
// the next read, so nothing that was read is dropped when a side closes.
class Relay {
public:
    Relay(SSL* ssl, int serverFd, int localFd) : m_ssl(ssl), m_serverFd(serverFd), m_localFd(localFd) {}

    ExitCode run()
    {
        for (;;) {
            m_serverEvents = 0;
            bool progress = false;
            if (!serverToLocal(&progress) || !localToServer(&progress))
                return kRelayFailed;
            if (m_serverEnded && m_localEnded && m_downLength == 0 && m_upLength == 0 && m_notifySent) {
                say("relay ended: %llu bytes to the server, %llu bytes to the local VNC server",
                    static_cast<unsigned long long>(m_bytesUp), static_cast<unsigned long long>(m_bytesDown));
                return kRelayEnded;
            }
            if (progress)
                continue;
            pollfd entries[2] = {{m_serverFd, m_serverEvents, 0}, {m_localFd, 0, 0}};
            if (!m_localEnded && m_upLength == 0)
                entries[1].events |= POLLIN;
            if (m_downLength > 0)
                entries[1].events |= POLLOUT;
            if (::poll(entries, 2, -1) < 0 && errno != EINTR) {
                say("relay failed: poll: %s", std::strerror(errno));
                return kRelayFailed;
            }
        }
    }

private:
    bool serverToLocal(bool* progress)
    {
        if (!m_serverEnded && m_downLength == 0) {
            ERR_clear_error();
            const int n = SSL_read(m_ssl, m_down, sizeof m_down);
            if (n > 0) {
                m_downLength = static_cast<std::size_t>(n);
                m_downOffset = 0;
                *progress = true;
            } else {
                const int error = SSL_get_error(m_ssl, n);
                if (error == SSL_ERROR_WANT_READ) {
                    m_serverEvents |= POLLIN;
                } else if (error == SSL_ERROR_WANT_WRITE) {
                    m_serverEvents |= POLLOUT;
                } else if (error == SSL_ERROR_ZERO_RETURN) {
                    say("the server ended the session");
                    m_serverEnded = true;
                    *progress = true;
                } else {
                    say("relay failed: reading from the server: %s",
                        error == SSL_ERROR_SYSCALL ? std::strerror(errno) : sslErrors().c_str());
                    return false;
                }
            }
        }
        if (m_downLength > 0) {
            const ssize_t n = ::send(m_localFd, m_down + m_downOffset, m_downLength - m_downOffset, MSG_NOSIGNAL);
            if (n > 0) {
                m_downOffset += static_cast<std::size_t>(n);
                m_bytesDown += static_cast<std::uint64_t>(n);
                if (m_downOffset == m_downLength)
                    m_downLength = m_downOffset = 0;
                *progress = true;
            } else if (n < 0 && errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR) {
                say("relay failed: writing to the local VNC server: %s", std::strerror(errno));
                return false;
            }
        }
        if (m_serverEnded && m_downLength == 0 && !m_localShut) {
            // Passed on as a half-close: the VNC server may still have something to say.
            ::shutdown(m_localFd, SHUT_WR);
            m_localShut = true;
            *progress = true;
        }
        return true;
    }

    bool localToServer(bool* progress)
    {
        if (!m_localEnded && m_upLength == 0) {
            const ssize_t n = ::recv(m_localFd, m_up, sizeof m_up, 0);
            if (n > 0) {
                m_upLength = static_cast<std::size_t>(n);
                m_upOffset = 0;
                *progress = true;
            } else if (n == 0) {
                say("the local VNC server ended the session");
                m_localEnded = true;
                *progress = true;
            } else if (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR) {
                say("relay failed: reading from the local VNC server: %s", std::strerror(errno));
                return false;
            }
        }
        if (m_upLength > 0) {
            ERR_clear_error();
            const int n = SSL_write(m_ssl, m_up + m_upOffset, static_cast<int>(m_upLength - m_upOffset));
            if (n > 0) {
                m_upOffset += static_cast<std::size_t>(n);
                m_bytesUp += static_cast<std::uint64_t>(n);
                if (m_upOffset == m_upLength)
                    m_upLength = m_upOffset = 0;
                *progress = true;
            } else {
                const int error = SSL_get_error(m_ssl, n);
                if (error == SSL_ERROR_WANT_READ) {
                    m_serverEvents |= POLLIN;
                } else if (error == SSL_ERROR_WANT_WRITE) {
                    m_serverEvents |= POLLOUT;
                } else {
                    say("relay failed: writing to the server: %s",
                        error == SSL_ERROR_SYSCALL ? std::strerror(errno) : sslErrors().c_str());
                    return false;
                }
            }
        }
        if (m_localEnded && m_upLength == 0 && !m_notifySent) {
            // close_notify tells the server that nothing more comes; its data is still read.
            ERR_clear_error();
            const int n = SSL_shutdown(m_ssl);
            if (n >= 0) {
                m_notifySent = true;
                *progress = true;
            } else {
                const int error = SSL_get_error(m_ssl, n);
                if (error == SSL_ERROR_WANT_WRITE) {
                    m_serverEvents |= POLLOUT;
                } else if (error == SSL_ERROR_WANT_READ) {
                    m_serverEvents |= POLLIN;
                } else {
                    // The server is gone already: there is nobody left to tell.
                    m_notifySent = true;
                    *progress = true;
                }
            }
        }
        return true;
    }

    SSL* m_ssl;
    int m_serverFd;
    int m_localFd;
    short m_serverEvents = 0;
    char m_down[65536]; // server -> local VNC server
    std::size_t m_downLength = 0, m_downOffset = 0;
    char m_up[65536]; // local VNC server -> server
    std::size_t m_upLength = 0, m_upOffset = 0;
    bool m_serverEnded = false, m_localEnded = false, m_localShut = false, m_notifySent = false;
    std::uint64_t m_bytesUp = 0, m_bytesDown = 0;
};

} // namespace

ExitCode runTunnel(const Options& options)
{
    const std::string server = describe(options.server);

    TlsContext context;
    context.ctx = SSL_CTX_new(TLS_client_method());
    if (!context.ctx) {
        say("cannot set up TLS: %s", sslErrors().c_str());
        return kTlsFailed;
    }
    SSL_CTX_set_min_proto_version(context.ctx, TLS1_2_VERSION);
    SSL_CTX_set_verify(context.ctx, SSL_VERIFY_PEER, nullptr);
    SSL_CTX_set_mode(context.ctx, SSL_MODE_ENABLE_PARTIAL_WRITE | SSL_MODE_ACCEPT_MOVING_WRITE_BUFFER);
    // A server that ends its side with a plain TCP half-close (no close_notify) has ended its
    // direction, not the session: without this OpenSSL fails every later write.
    SSL_CTX_set_options(context.ctx, SSL_OP_IGNORE_UNEXPECTED_EOF);
    if (!options.caFile.empty()) {
        if (SSL_CTX_load_verify_locations(context.ctx, options.caFile.c_str(), nullptr) != 1) {
            say("cannot read CA certificates from %s: %s", options.caFile.c_str(), sslErrors().c_str());
            return kUsage;
        }
    } else if (SSL_CTX_set_default_verify_paths(context.ctx) != 1) {
        // The system store is where the certificates screen and the server's uploads land.
        say("cannot read the system's CA certificates: %s", sslErrors().c_str());
    }

    say("connecting to %s", server.c_str());
    Socket serverSocket;
    std::string why;
    switch (connectTo(options.server, options.timeoutMs, &serverSocket, &why)) {
    case ConnectResult::Connected:
        break;
    case ConnectResult::TimedOut:
        say("server %s did not answer: %s", server.c_str(), why.c_str());
        return kServerTimeout;
    case ConnectResult::Unreachable:
        say("cannot reach server %s: %s", server.c_str(), why.c_str());
        return kServerUnreachable;
    }

    Tls tls;
    tls.ssl = SSL_new(context.ctx);
    SSL_set_fd(tls.ssl, serverSocket.fd);
    if (isIpAddress(options.server.host)) {
        X509_VERIFY_PARAM_set1_ip_asc(SSL_get0_param(tls.ssl), options.server.host.c_str());
    } else {
        SSL_set_tlsext_host_name(tls.ssl, options.server.host.c_str());
        SSL_set1_host(tls.ssl, options.server.host.c_str());
    }

    Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(options.timeoutMs);
    for (;;) {
        ERR_clear_error();
        const int result = SSL_connect(tls.ssl);
        if (result == 1)
            break;
        int error = 0;
        if (!waitForTls(tls.ssl, serverSocket.fd, result, deadline, &error)) {
            say("server %s did not finish the TLS handshake within %d ms", server.c_str(), options.timeoutMs);
            return kServerTimeout;
        }
        if (isWait(error))
            continue;
        const long verify = SSL_get_verify_result(tls.ssl);
        if (verify != X509_V_OK) {
            say("server %s is not trusted: %s", server.c_str(), X509_verify_cert_error_string(verify));
        } else {
            say("TLS handshake with %s failed: %s", server.c_str(),
                error == SSL_ERROR_SYSCALL && errno != 0 ? std::strerror(errno) : sslErrors().c_str());
        }
        return kTlsFailed;
    }
    say("TLS to %s established (%s)", server.c_str(), SSL_get_version(tls.ssl));

    // The token, then one answer line read byte by byte: what follows it belongs to the relay.
    deadline = Clock::now() + std::chrono::milliseconds(options.timeoutMs);
    const std::string hello = helloLine(options.token);
    std::size_t written = 0;
    while (written < hello.size()) {
        ERR_clear_error();
        const int n = SSL_write(tls.ssl, hello.data() + written, static_cast<int>(hello.size() - written));
        if (n > 0) {
            written += static_cast<std::size_t>(n);
            continue;
        }
        int error = 0;
        if (!waitForTls(tls.ssl, serverSocket.fd, n, deadline, &error)) {
            say("server %s did not take the token within %d ms", server.c_str(), options.timeoutMs);
            return kServerTimeout;
        }
        if (!isWait(error)) {
            say("server %s dropped the connection before the token: %s", server.c_str(), sslErrors().c_str());
            return kProtocolError;
        }
    }
    std::string line;
    for (;;) {
        char c = 0;
        ERR_clear_error();
        const int n = SSL_read(tls.ssl, &c, 1);
        if (n == 1) {
            if (c == '\n')
                break;
            if (line.size() >= kMaxAnswerLength) {
                say("server %s answered with an overlong line", server.c_str());
                return kProtocolError;
            }
            line += c;
            continue;
        }
        int error = 0;
        if (!waitForTls(tls.ssl, serverSocket.fd, n, deadline, &error)) {
            say("server %s did not answer the token within %d ms", server.c_str(), options.timeoutMs);
            return kServerTimeout;
        }
        if (!isWait(error)) {
            say("server %s closed the connection without answering the token", server.c_str());
            return kProtocolError;
        }
    }
    const Answer answer = parseAnswer(line);
    if (answer.kind == Answer::Refused) {
        say("server %s refused the token: %s", server.c_str(), answer.reason.c_str());
        return kTokenRefused;
    }
    if (answer.kind == Answer::Malformed) {
        say("server %s answered the token with %s", server.c_str(), answer.reason.c_str());
        return kProtocolError;
    }
    say("token accepted");

    const std::string local = describe(options.local);
    Socket localSocket;
    switch (connectTo(options.local, options.timeoutMs, &localSocket, &why)) {
    case ConnectResult::Connected:
        break;
    case ConnectResult::TimedOut:
    case ConnectResult::Unreachable:
        say("cannot reach the local VNC server %s: %s", local.c_str(), why.c_str());
        return kLocalUnreachable;
    }
    say("relaying between %s and %s", server.c_str(), local.c_str());
    return Relay(tls.ssl, serverSocket.fd, localSocket.fd).run();
}

} // namespace tunnel
