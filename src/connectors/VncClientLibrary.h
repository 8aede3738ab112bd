#pragma once

#include <rfb/rfbclient.h>

#include <QByteArray>
#include <QString>

#include <memory>

// libvncclient, opened when the first VNC session starts rather than with the shell: it brings
// GnuTLS, SASL, libjpeg and a dozen more libraries, and every library loaded at start makes the
// start and each later symbol lookup (the GL driver's above all) slower.
struct VncClientLibrary {
    decltype(&::rfbGetClient) getClient = nullptr;
    decltype(&::rfbInitClient) initClient = nullptr;
    decltype(&::rfbClientCleanup) cleanup = nullptr;
    decltype(&::rfbClientRegisterExtension) registerExtension = nullptr;
    decltype(&::SetFormatAndEncodings) setFormatAndEncodings = nullptr;
    decltype(&::WaitForMessage) waitForMessage = nullptr;
    decltype(&::HandleRFBServerMessage) handleServerMessage = nullptr;
    decltype(&::SendIncrementalFramebufferUpdateRequest) sendIncrementalUpdateRequest = nullptr;
    decltype(&::SendPointerEvent) sendPointerEvent = nullptr;
    decltype(&::SendKeyEvent) sendKeyEvent = nullptr;
    decltype(&::ReadFromRFBServer) read = nullptr;
    decltype(&::WriteToRFBServer) write = nullptr;
    // The TurboJPEG decoder the library carries and exports (no header of its own is installed).
    int (*tjDestroy)(void* handle) = nullptr;

    static constexpr const char* kFileName = "libvncclient.so.1";

    // Opens `file` and finds every function above. Null when it cannot, with `error` saying why.
    // A library that was opened stays open: clients and registered extensions point into it.
    static std::unique_ptr<VncClientLibrary> load(const QByteArray& file, QString* error);
    // The shell's, loaded on first use; null (and said once in the log) when it cannot be.
    static const VncClientLibrary* get();
};
