#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The command line of the remote-assistance tunnel, read without touching the network.
namespace tunnel {

// What the exit status tells the shell (and the README and --help say the same).
enum ExitCode : int {
    kRelayEnded = 0,        // the relay ran and one side ended it (or SIGTERM/SIGINT)
    kUsage = 2,             // bad or missing arguments, unreadable --ca file; nothing was connected
    kServerUnreachable = 3, // name not resolved, connection refused or network unreachable
    kTlsFailed = 4,         // TLS handshake failed, or the server's certificate was not trusted
    kTokenRefused = 5,      // the server answered the token with a refusal
    kLocalUnreachable = 6,  // the local VNC server (--dst) did not take the connection
    kServerTimeout = 7,     // the server did not connect, finish the handshake or answer in time
    kProtocolError = 8,     // the server's answer was not a line of this protocol
    kRelayFailed = 9,       // a socket failed while relaying
};

struct Endpoint {
    std::string host; // a name, an IPv4 address or an IPv6 address (without brackets)
    std::uint16_t port = 0;
};

struct Options {
    Endpoint server; // --src
    Endpoint local;  // --dst
    std::string token;
    std::string caFile;     // --ca: trust only this PEM file instead of the system store
    int timeoutMs = 15000;  // --timeout, for each of connect, handshake and the token's answer
    bool help = false;
};

struct ParseResult {
    std::optional<Options> options; // set when the arguments are usable
    std::string error;              // why not, otherwise
};

// "HOST:PORT" or "[IPV6]:PORT"; port 1-65535. Empty optional and `error` set when malformed.
std::optional<Endpoint> parseEndpoint(const std::string& text, std::string* error);

// The arguments after the program name.
ParseResult parseArguments(const std::vector<std::string>& arguments);

// The text --help prints and a usage error ends with.
std::string usage();

} // namespace tunnel
