#include "TunnelHandshake.h"

namespace tunnel {

std::string helloLine(const std::string& token)
{
    return "NORBIX-TUNNEL 1 " + token + "\n";
}

Answer parseAnswer(const std::string& text)
{
    std::string line = text;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    Answer answer;
    if (line == "OK") {
        answer.kind = Answer::Accepted;
        return answer;
    }
    if (line == "REFUSED" || line.rfind("REFUSED ", 0) == 0) {
        answer.kind = Answer::Refused;
        answer.reason = line.size() > 8 ? line.substr(8) : std::string("no reason given");
        for (char& c : answer.reason)
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
                c = '?'; // the reason goes to the log as one line
        return answer;
    }
    answer.reason = line.empty() ? "an empty line" : "an unexpected line";
    return answer;
}

} // namespace tunnel
