#include "VncEncodingPolicy.h"

#include <QStringList>

#include <algorithm>

namespace VncEncodingPolicy {

namespace {
// Every encoding libvncclient 0.9 can decode, by the name its encodingsString takes.
const QStringList& knownEncodings()
{
    static const QStringList names{QStringLiteral("raw"),     QStringLiteral("copyrect"), QStringLiteral("tight"),
                                   QStringLiteral("zrle"),    QStringLiteral("zywrle"),   QStringLiteral("ultra"),
                                   QStringLiteral("zlib"),    QStringLiteral("zlibhex"),  QStringLiteral("hextile"),
                                   QStringLiteral("corre"),   QStringLiteral("rre"),      QStringLiteral("trle")};
    return names;
}

bool fastEnough(double kbitPerSecond, double latencyMs, double factor)
{
    return kbitPerSecond >= kFastKbps * factor && latencyMs <= kFastLatencyMs / factor;
}
} // namespace

VncLinkClass classify(double kbitPerSecond, double latencyMs, VncLinkClass current)
{
    // Moving up takes figures a margin beyond the border, moving down a margin below it.
    const double up = kHysteresis, down = 1 / kHysteresis;
    switch (current) {
    case VncLinkClass::Fast:
        if (fastEnough(kbitPerSecond, latencyMs, down))
            return VncLinkClass::Fast;
        return kbitPerSecond >= kMediumKbps ? VncLinkClass::Medium : VncLinkClass::Slow;
    case VncLinkClass::Medium:
        if (fastEnough(kbitPerSecond, latencyMs, up))
            return VncLinkClass::Fast;
        return kbitPerSecond >= kMediumKbps * down ? VncLinkClass::Medium : VncLinkClass::Slow;
    case VncLinkClass::Slow:
        if (fastEnough(kbitPerSecond, latencyMs, up))
            return VncLinkClass::Fast;
        return kbitPerSecond >= kMediumKbps * up ? VncLinkClass::Medium : VncLinkClass::Slow;
    case VncLinkClass::Unmeasured:
        break;
    }
    if (fastEnough(kbitPerSecond, latencyMs, 1))
        return VncLinkClass::Fast;
    return kbitPerSecond >= kMediumKbps ? VncLinkClass::Medium : VncLinkClass::Slow;
}

VncEncodingChoice choiceFor(VncLinkClass linkClass)
{
    switch (linkClass) {
    case VncLinkClass::Fast:
        // Copies and plain pixels cost the least to decode; hextile where the server has no raw
        // preference of its own. No JPEG: it is the most expensive decoder of all.
        return {"copyrect raw hextile zlib", 1, -1};
    case VncLinkClass::Medium:
        return {"copyrect tight zrle ultra zlib hextile corre rre raw", 2, 8};
    case VncLinkClass::Slow:
    case VncLinkClass::Unmeasured:
        break;
    }
    return {"copyrect tight zrle ultra zlib hextile corre rre raw", 6, 6};
}

std::optional<VncEncodingChoice> explicitChoice(const QString& encodings, int compressLevel, int qualityLevel)
{
    QStringList names;
    for (const QString& word : encodings.simplified().toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts))
        if (knownEncodings().contains(word) && !names.contains(word))
            names << word;
    if (names.isEmpty())
        return std::nullopt;
    const VncEncodingChoice defaults = choiceFor(VncLinkClass::Unmeasured);
    VncEncodingChoice choice;
    choice.encodings = names.join(QLatin1Char(' ')).toLatin1();
    choice.compressLevel = compressLevel >= 0 && compressLevel <= 9 ? compressLevel : defaults.compressLevel;
    choice.qualityLevel = qualityLevel >= 0 && qualityLevel <= 9 ? qualityLevel : defaults.qualityLevel;
    return choice;
}

const char* name(VncLinkClass linkClass)
{
    switch (linkClass) {
    case VncLinkClass::Unmeasured:
        return "unmeasured";
    case VncLinkClass::Slow:
        return "slow";
    case VncLinkClass::Medium:
        return "medium";
    case VncLinkClass::Fast:
        return "fast";
    }
    return "?";
}

} // namespace VncEncodingPolicy

void VncLinkMeter::addUpdate(qint64 bytes, qint64 elapsedUs)
{
    if (bytes <= 0 || elapsedUs < 0)
        return;
    elapsedUs = std::max<qint64>(elapsedUs, 1);
    ++m_updates;
    m_bytes += bytes;
    m_measuredUs += elapsedUs;
    const double kbps = bytes * 8.0 * 1000.0 / elapsedUs;
    if (!ready() || m_updates == kMinUpdates) {
        // The first updates: their throughput as a whole, each counting by its duration.
        m_kbitPerSecond = m_bytes * 8.0 * 1000.0 / m_measuredUs;
        return;
    }
    // Then a moving figure: a long update moves it further than a short one.
    const double weight = std::min(elapsedUs / kWindowUs, kMaxWeight);
    m_kbitPerSecond = m_kbitPerSecond * (1 - weight) + kbps * weight;
}

void VncLinkMeter::addRoundTrip(qint64 elapsedUs)
{
    if (elapsedUs < 0)
        return;
    m_roundTrips.append(elapsedUs);
    if (m_roundTrips.size() > kRoundTripWindow)
        m_roundTrips.removeFirst();
}

bool VncLinkMeter::ready() const
{
    return m_updates >= kMinUpdates && m_bytes >= kMinBytes && !m_roundTrips.isEmpty();
}

double VncLinkMeter::latencyMs() const
{
    if (m_roundTrips.isEmpty())
        return 0;
    return *std::min_element(m_roundTrips.cbegin(), m_roundTrips.cend()) / 1000.0;
}
