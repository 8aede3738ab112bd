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

} // namespace

VncLinkVerdict judge(const VncLinkVerdict& current, const VncLinkFigures& figures)
{
    VncLinkVerdict next = current;
    if (current.linkClass == VncLinkClass::Fast) {
        if (figures.kbitPerSecond >= kStayFastKbps && figures.latencyMs <= kFastLatencyMs * kHysteresis)
            return next;
        // Plain pixels measured the link itself: remember how far it got.
        next.linkClass = figures.kbitPerSecond >= kMediumKbps ? VncLinkClass::Medium : VncLinkClass::Slow;
        next.fastRefusedKbps = figures.kbitPerSecond;
        return next;
    }
    const double enterFast =
        current.fastRefusedKbps > 0 ? std::max(kStayFastKbps, current.fastRefusedKbps) * kRetryFactor : kTryFastKbps;
    if (figures.kbitPerSecond >= enterFast && figures.latencyMs <= kFastLatencyMs) {
        next.linkClass = VncLinkClass::Fast;
        return next;
    }
    double border = kMediumKbps;
    if (current.linkClass == VncLinkClass::Medium)
        border /= kHysteresis;
    else if (current.linkClass == VncLinkClass::Slow)
        border *= kHysteresis;
    next.linkClass = figures.kbitPerSecond >= border ? VncLinkClass::Medium : VncLinkClass::Slow;
    return next;
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

void VncLinkMeter::addUpdate(qint64 bytes, qint64 sinceArrivalUs)
{
    if (bytes <= 0 || sinceArrivalUs < 0)
        return;
    const qint64 elapsedUs = std::max<qint64>(sinceArrivalUs, 1);
    const bool settled = ready();
    ++m_updates;
    m_bytes += bytes;
    m_us += elapsedUs;
    if (!settled) {
        // The first updates as a whole, each counting by its duration.
        m_kbitPerSecond = m_bytes * 8.0 * 1000.0 / m_us;
        return;
    }
    // Then a moving figure: a long update moves it further than a short one.
    const double weight = std::min(elapsedUs / kWindowUs, kMaxWeight);
    m_kbitPerSecond = m_kbitPerSecond * (1 - weight) + bytes * 8.0 * 1000.0 / elapsedUs * weight;
}

void VncLinkMeter::addRoundTrip(qint64 elapsedUs)
{
    if (elapsedUs < 0)
        return;
    m_roundTrips.append(elapsedUs);
    if (m_roundTrips.size() > kRoundTripWindow)
        m_roundTrips.removeFirst();
}

void VncLinkMeter::restartThroughput()
{
    m_kbitPerSecond = 0;
    m_updates = 0;
    m_bytes = 0;
    m_us = 0;
}

bool VncLinkMeter::ready() const
{
    return m_updates >= kMinUpdates && m_bytes >= kMinBytes && !m_roundTrips.isEmpty();
}

VncLinkFigures VncLinkMeter::figures() const
{
    VncLinkFigures figures;
    figures.kbitPerSecond = m_kbitPerSecond;
    if (!m_roundTrips.isEmpty())
        figures.latencyMs = *std::min_element(m_roundTrips.cbegin(), m_roundTrips.cend()) / 1000.0;
    return figures;
}
