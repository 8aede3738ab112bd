#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

// What the viewer asks the server for: encodings in order of preference (libvncclient's names)
// and the levels of the two pseudo-encodings (compression 0-9, JPEG quality 0-9; -1 leaves the
// quality out, which turns JPEG off).
struct VncEncodingChoice {
    QByteArray encodings;
    int compressLevel = -1;
    int qualityLevel = -1;

    bool operator==(const VncEncodingChoice& other) const
    {
        return encodings == other.encodings && compressLevel == other.compressLevel && qualityLevel == other.qualityLevel;
    }
    bool operator!=(const VncEncodingChoice& other) const { return !(*this == other); }
};

// How the link to the server looks from the viewer, as far as the encodings go.
enum class VncLinkClass {
    Unmeasured, // nothing measured yet: compact, as on a slow link, until the first updates tell
    Slow,       // a WAN or a thin pipe: every byte counts, JPEG at a modest quality
    Medium,     // an office network: compact still pays, the picture may be sharper
    Fast,       // a LAN with room to spare: the cheapest encodings to decode win
};

// Where the viewer stands: the class of its link and, once a fast-class encoding has shown the link
// too slow for it, the throughput it measured then.
struct VncLinkVerdict {
    VncLinkClass linkClass = VncLinkClass::Unmeasured;
    double fastRefusedKbps = 0;

    bool operator==(const VncLinkVerdict& other) const
    {
        return linkClass == other.linkClass && fastRefusedKbps == other.fastRefusedKbps;
    }
};

// What the viewer measured of its link (see VncLinkMeter).
struct VncLinkFigures {
    // Bytes per second of taking updates in, from the arrival of their data to their end,
    // decoding included (as TigerVNC measures): with compact encodings bounded by the server's
    // encoder and the viewer's decoder as much as by the link, with plain pixels the link's own.
    double kbitPerSecond = 0;
    // The shortest recent time from a request to the start of its answer (ms).
    double latencyMs = 0;
};

// The encoding choice, a pure function of measured throughput and latency. The qualities follow
// TigerVNC's automatic selection (JPEG quality 6 on a slow link, 8 on a faster one); a fast class
// is added for a LAN, where decoding, not the wire, limits the frame rate. The slow/medium border
// is higher than TigerVNC's 16 Mbit/s: the figure measured here reads above the link's rate (the
// kernel stamps a buffer with the arrival of the last segment merged into it), a 20 Mbit/s link
// measures some 30-40 Mbit/s, and on such a link the compact settings carry half the bytes per
// frame, for half the delay to the next input.
//
// Compact encodings cannot tell a fast link from a very fast one (their figures are bounded by
// the codecs), so a link with a short round trip that is not slow is tried with the fast class's
// encodings. They stay while the link carries them at kStayFastKbps; otherwise the viewer goes
// back to compact ones, remembers what the link carried, and tries again only once compact
// encodings measure twice that, and twice kStayFastKbps at least.
namespace VncEncodingPolicy {

// Below this a link is slow (kbit/s, as measured).
constexpr double kMediumKbps = 50000;
// The fast class is tried from this throughput on (kbit/s), with a round trip of at most
// kFastLatencyMs ...
constexpr double kTryFastKbps = 50000;
constexpr double kFastLatencyMs = 10;
// ... and kept while plain pixels arrive at this rate (a full-HD desktop in use sends about
// 1 MB per frame that way: below this the frame rate drops under the compact encodings').
constexpr double kStayFastKbps = 200000;
// Margin (a factor) a figure must be beyond a border before the class changes back: an estimate
// that wanders around a threshold must not make the viewer switch to and fro.
constexpr double kHysteresis = 1.25;
// A fast class refused once is tried again only at this factor over what the link carried then.
constexpr double kRetryFactor = 2;

// The next verdict for what was measured.
VncLinkVerdict judge(const VncLinkVerdict& current, const VncLinkFigures& figures);

VncEncodingChoice choiceFor(VncLinkClass linkClass);

// A user's own choice from the connection record ("encodings", "compressLevel", "qualityLevel"):
// the encodings are checked against libvncclient's names; levels outside 0-9 fall back to the
// defaults. Empty when the record names no encodings or only unknown ones.
std::optional<VncEncodingChoice> explicitChoice(const QString& encodings, int compressLevel, int qualityLevel);

const char* name(VncLinkClass linkClass);

} // namespace VncEncodingPolicy

// Measures a session's link from its updates: each update's bytes and the time from the arrival
// of its data to its end, and the time from a request to the start of the answer. Time is passed
// in, so the class can be driven by a test.
class VncLinkMeter {
public:
    void addUpdate(qint64 bytes, qint64 sinceArrivalUs);
    // The time between sending an update request and the start of the next update.
    void addRoundTrip(qint64 elapsedUs);
    // Throughput measured afresh (after a change of encodings); the round trips are kept.
    void restartThroughput();

    // Enough has been seen to judge the link: at least kMinUpdates updates with kMinBytes in all.
    bool ready() const;
    VncLinkFigures figures() const;

    static constexpr int kMinUpdates = 3;
    static constexpr qint64 kMinBytes = 64 * 1024;
    static constexpr int kRoundTripWindow = 16;
    // After the first updates an update moves a figure in proportion to its duration against this
    // window, at most by kMaxWeight: many small updates do not drown a large one.
    static constexpr double kWindowUs = 1000000;
    static constexpr double kMaxWeight = 0.2;

private:
    double m_kbitPerSecond = 0;
    int m_updates = 0;
    qint64 m_bytes = 0;
    qint64 m_us = 0;
    QVector<qint64> m_roundTrips;
};
