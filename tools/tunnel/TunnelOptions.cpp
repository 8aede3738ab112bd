#include "TunnelOptions.h"

#include <cstdlib>
#include <map>

namespace tunnel {

namespace {

constexpr std::size_t kMaxTokenLength = 512;
constexpr double kMaxTimeoutSeconds = 600;

bool isHostChar(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '_';
}

bool isIpv6Char(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F') || c == ':' || c == '.';
}

bool fail(std::string* error, const std::string& why)
{
    if (error)
        *error = why;
    return false;
}

bool parsePort(const std::string& text, std::uint16_t* port, std::string* error)
{
    if (text.empty())
        return fail(error, "no port");
    if (text.size() > 5 || text.find_first_not_of("0123456789") != std::string::npos)
        return fail(error, "port \"" + text + "\" is not a number from 1 to 65535");
    const long value = std::strtol(text.c_str(), nullptr, 10);
    if (value < 1 || value > 65535)
        return fail(error, "port " + text + " is out of range (1-65535)");
    *port = static_cast<std::uint16_t>(value);
    return true;
}

} // namespace

std::optional<Endpoint> parseEndpoint(const std::string& text, std::string* error)
{
    Endpoint endpoint;
    std::string portText;
    if (!text.empty() && text.front() == '[') {
        const std::size_t close = text.find(']');
        if (close == std::string::npos)
            return fail(error, "\"" + text + "\": no closing bracket"), std::nullopt;
        endpoint.host = text.substr(1, close - 1);
        if (endpoint.host.find(':') == std::string::npos)
            return fail(error, "\"" + text + "\": brackets are for IPv6 addresses"), std::nullopt;
        for (char c : endpoint.host)
            if (!isIpv6Char(c))
                return fail(error, "\"" + text + "\": not an IPv6 address"), std::nullopt;
        if (close + 1 >= text.size() || text[close + 1] != ':')
            return fail(error, "\"" + text + "\": no port"), std::nullopt;
        portText = text.substr(close + 2);
    } else {
        const std::size_t colon = text.rfind(':');
        if (colon == std::string::npos)
            return fail(error, "\"" + text + "\": no port (HOST:PORT)"), std::nullopt;
        endpoint.host = text.substr(0, colon);
        portText = text.substr(colon + 1);
        if (endpoint.host.find(':') != std::string::npos)
            return fail(error, "\"" + text + "\": an IPv6 address goes in brackets, [ADDRESS]:PORT"), std::nullopt;
        if (endpoint.host.empty())
            return fail(error, "\"" + text + "\": no host"), std::nullopt;
        for (char c : endpoint.host)
            if (!isHostChar(c))
                return fail(error, "\"" + text + "\": not a host name or address"), std::nullopt;
    }
    std::string portError;
    if (!parsePort(portText, &endpoint.port, &portError))
        return fail(error, "\"" + text + "\": " + portError), std::nullopt;
    return endpoint;
}

ParseResult parseArguments(const std::vector<std::string>& arguments)
{
    ParseResult result;
    std::map<std::string, std::string> values;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        std::string name = arguments[i];
        if (name == "--help" || name == "-h") {
            result.options = Options{};
            result.options->help = true;
            return result;
        }
        if (name.rfind("--", 0) != 0) {
            result.error = "unexpected argument \"" + name + "\"";
            return result;
        }
        std::string value;
        bool hasValue = false;
        const std::size_t equals = name.find('=');
        if (equals != std::string::npos) {
            value = name.substr(equals + 1);
            name = name.substr(0, equals);
            hasValue = true;
        }
        if (name != "--src" && name != "--dst" && name != "--token" && name != "--ca" && name != "--timeout") {
            result.error = "unknown option " + name;
            return result;
        }
        if (!hasValue) {
            if (i + 1 >= arguments.size()) {
                result.error = name + " needs a value";
                return result;
            }
            value = arguments[++i];
        }
        if (values.count(name)) {
            result.error = name + " given twice";
            return result;
        }
        values[name] = value;
    }

    Options options;
    for (const char* required : {"--src", "--dst", "--token"}) {
        if (!values.count(required)) {
            result.error = std::string("missing ") + required;
            return result;
        }
    }
    std::string error;
    const std::optional<Endpoint> server = parseEndpoint(values["--src"], &error);
    if (!server) {
        result.error = "--src " + error;
        return result;
    }
    const std::optional<Endpoint> local = parseEndpoint(values["--dst"], &error);
    if (!local) {
        result.error = "--dst " + error;
        return result;
    }
    options.server = *server;
    options.local = *local;

    options.token = values["--token"];
    if (options.token.empty()) {
        result.error = "--token is empty";
        return result;
    }
    if (options.token.size() > kMaxTokenLength) {
        result.error = "--token is longer than " + std::to_string(kMaxTokenLength) + " characters";
        return result;
    }
    // The token travels in one text line: printable ASCII without blanks.
    for (char c : options.token) {
        if (c < 0x21 || c > 0x7e) {
            result.error = "--token may only hold printable ASCII characters without blanks";
            return result;
        }
    }

    if (values.count("--ca")) {
        options.caFile = values["--ca"];
        if (options.caFile.empty()) {
            result.error = "--ca is empty";
            return result;
        }
    }
    if (values.count("--timeout")) {
        const std::string& text = values["--timeout"];
        char* end = nullptr;
        const double seconds = text.empty() ? 0 : std::strtod(text.c_str(), &end);
        if (text.empty() || *end != '\0' || !(seconds > 0) || seconds > kMaxTimeoutSeconds) {
            result.error = "--timeout \"" + text + "\" is not a number of seconds above 0 and up to 600";
            return result;
        }
        options.timeoutMs = static_cast<int>(seconds * 1000 + 0.5);
        if (options.timeoutMs < 1)
            options.timeoutMs = 1;
    }
    result.options = options;
    return result;
}

std::string usage()
{
    return "Usage: tunnel --src HOST:PORT --dst HOST:PORT --token TOKEN [--ca FILE] [--timeout SECONDS]\n"
           "\n"
           "Carries the terminal's VNC server to the management server for remote assistance:\n"
           "connects to --src over TLS, presents the token, then relays bytes both ways between\n"
           "the server and the local VNC server at --dst until either side ends.\n"
           "\n"
           "  --src HOST:PORT    the management server's assistance port ([ADDRESS]:PORT for IPv6)\n"
           "  --dst HOST:PORT    the local VNC server, e.g. 127.0.0.1:5900\n"
           "  --token TOKEN      the token of the server's request (printable ASCII, no blanks)\n"
           "  --ca FILE          trust only the CA certificates in FILE (PEM); without it the system\n"
           "                     store is used (SSL_CERT_FILE / SSL_CERT_DIR, else /etc/ssl/certs)\n"
           "  --timeout SECONDS  limit for connecting, the TLS handshake and the token's answer,\n"
           "                     each (default 15)\n"
           "\n"
           "Exit status:\n"
           "  0  the relay ran and ended (either side closed, or SIGTERM)\n"
           "  2  usage error: nothing was connected\n"
           "  3  the server cannot be reached (name, refused, unreachable)\n"
           "  4  TLS failed: handshake error or the server's certificate is not trusted\n"
           "  5  the server refused the token\n"
           "  6  the local VNC server (--dst) cannot be reached\n"
           "  7  the server did not connect, finish the handshake or answer in time\n"
           "  8  the server's answer is not part of the protocol\n"
           "  9  a connection failed while relaying\n";
}

} // namespace tunnel
