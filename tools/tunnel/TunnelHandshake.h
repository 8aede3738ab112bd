#pragma once

#include <string>

// The one exchange before the relay starts, inside TLS:
//   terminal -> server   "NORBIX-TUNNEL 1 <token>\n"
//   server -> terminal   "OK\n"  or  "REFUSED [reason]\n"
// and from then on the bytes of the VNC session, both ways.
namespace tunnel {

inline constexpr std::size_t kMaxAnswerLength = 256; // the answer line without its newline

std::string helloLine(const std::string& token);

struct Answer {
    enum Kind { Accepted, Refused, Malformed };
    Kind kind = Malformed;
    std::string reason; // the server's words for a refusal; what was wrong for a malformed line
};

// One answer line without its "\n" (a trailing "\r" is tolerated).
Answer parseAnswer(const std::string& line);

} // namespace tunnel
