#pragma once

#include <QByteArray>
#include <QRect>

#include <cstdint>
#include <optional>

// Continuous updates and fences, the two protocol extensions with which a server sends updates as
// the screen changes instead of one per request. The request/answer cycle costs a round trip per
// update, and a server that cuts a changing screen into several small updates then merges what
// changed while the next request was on its way: frames are lost. Servers that have continuous
// updates (TigerVNC's and its descendants) also want fences, which they use to measure the link
// and keep their queue short; each fence they ask for is answered at once.
namespace VncFlow {

// Pseudo-encodings the viewer lists to say it understands them.
constexpr int32_t kPseudoEncodingFence = -312;
constexpr int32_t kPseudoEncodingContinuousUpdates = -313;

// Message types, the same number in both directions.
constexpr uint8_t kContinuousUpdatesMessage = 150; // server: EndOfContinuousUpdates; viewer: Enable...
constexpr uint8_t kFenceMessage = 248;

constexpr uint32_t kFenceBlockBefore = 1;
constexpr uint32_t kFenceBlockAfter = 2;
constexpr uint32_t kFenceSyncNext = 4;
constexpr uint32_t kFenceRequest = 0x80000000u;
constexpr int kMaxFencePayload = 64;

// EnableContinuousUpdates for `area` (the whole screen), or switching them off.
QByteArray enableContinuousUpdates(bool enable, const QRect& area);

// A fence as it follows its type byte: 3 bytes of padding, the flags, the payload's length.
constexpr int kFenceHeaderSize = 8;
struct FenceHeader {
    uint32_t flags = 0;
    int payloadLength = 0;
};
// nullopt when the header is short or the payload longer than the protocol allows.
std::optional<FenceHeader> parseFenceHeader(const QByteArray& header);

// The answer to a fence the server asked for: its flags less the request bit (this viewer handles
// every message in order, so it honours all three), the same payload.
QByteArray fenceAnswer(uint32_t flags, const QByteArray& payload);

} // namespace VncFlow
