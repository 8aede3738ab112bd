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

// The encoding choice, a pure function of measured throughput and latency (the viewer measures,
// see VncLinkMeter). The thresholds follow TigerVNC's automatic selection (16 Mbit/s between a
// slow and a fast picture quality) and add a LAN class where the decoding, not the wire, limits
// the frame rate.
namespace VncEncodingPolicy {

// Below this a link is slow (kbit/s).
constexpr double kMediumKbps = 16000;
// From this on, with a short round trip, a link is fast (kbit/s, ms).
constexpr double kFastKbps = 200000;
constexpr double kFastLatencyMs = 10;
// A class is left only when the figures are this far (as a factor) beyond its border: an estimate
// that wanders around a threshold must not make the viewer switch back and forth.
constexpr double kHysteresis = 1.25;

// The class for a measured throughput (kbit/s) and round trip (ms), given the class in use.
VncLinkClass classify(double kbitPerSecond, double latencyMs, VncLinkClass current);

VncEncodingChoice choiceFor(VncLinkClass linkClass);

// A user's own choice from the connection record ("encodings", "compressLevel", "qualityLevel"):
// the encodings are checked against libvncclient's names; levels outside 0-9 fall back to the
// defaults. Empty when the record names no encodings or only unknown ones.
std::optional<VncEncodingChoice> explicitChoice(const QString& encodings, int compressLevel, int qualityLevel);

const char* name(VncLinkClass linkClass);

} // namespace VncEncodingPolicy

// Throughput and latency of a session, from what the viewer sees of its updates: each update's
// bytes and the time from its first to its last byte being taken in (decoding included, as
// TigerVNC measures), and the time from an update request to the start of the answer. Time is
// passed in, so the class can be driven by a test.
class VncLinkMeter {
public:
    // An update of `bytes` taken in over `elapsedUs`.
    void addUpdate(qint64 bytes, qint64 elapsedUs);
    // The time between sending an update request and the start of the next update.
    void addRoundTrip(qint64 elapsedUs);

    // Enough has been seen to judge the link: at least kMinUpdates updates with kMinBytes in all.
    bool ready() const;
    double kbitPerSecond() const { return m_kbitPerSecond; }
    // The shortest recent round trip: a server with nothing to send holds a request back, the
    // shortest wait is the one closest to the link's own delay.
    double latencyMs() const;

    static constexpr int kMinUpdates = 3;
    static constexpr qint64 kMinBytes = 64 * 1024;
    static constexpr int kRoundTripWindow = 16;
    // An update counts in proportion to its duration against this window, at most kMaxWeight.
    static constexpr double kWindowUs = 1000000;
    static constexpr double kMaxWeight = 0.2;

private:
    double m_kbitPerSecond = 0;
    int m_updates = 0;
    qint64 m_bytes = 0;
    qint64 m_measuredUs = 0;
    QVector<qint64> m_roundTrips;
};
