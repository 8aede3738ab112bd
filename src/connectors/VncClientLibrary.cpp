#include "VncClientLibrary.h"

#include <QDebug>
#include <QStringList>

#include <dlfcn.h>

namespace {

template <typename Function>
void resolve(void* handle, const char* name, Function& function, QStringList& missing)
{
    function = reinterpret_cast<Function>(dlsym(handle, name));
    if (!function)
        missing << QString::fromLatin1(name);
}

} // namespace

std::unique_ptr<VncClientLibrary> VncClientLibrary::load(const QByteArray& file, QString* error)
{
    void* handle = dlopen(file.constData(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        *error = QString::fromLocal8Bit(dlerror());
        return nullptr;
    }
    auto library = std::make_unique<VncClientLibrary>();
    QStringList missing;
    resolve(handle, "rfbGetClient", library->getClient, missing);
    resolve(handle, "rfbInitClient", library->initClient, missing);
    resolve(handle, "rfbClientCleanup", library->cleanup, missing);
    resolve(handle, "rfbClientRegisterExtension", library->registerExtension, missing);
    resolve(handle, "SetFormatAndEncodings", library->setFormatAndEncodings, missing);
    resolve(handle, "WaitForMessage", library->waitForMessage, missing);
    resolve(handle, "HandleRFBServerMessage", library->handleServerMessage, missing);
    resolve(handle, "SendIncrementalFramebufferUpdateRequest", library->sendIncrementalUpdateRequest, missing);
    resolve(handle, "SendPointerEvent", library->sendPointerEvent, missing);
    resolve(handle, "SendKeyEvent", library->sendKeyEvent, missing);
    resolve(handle, "ReadFromRFBServer", library->read, missing);
    resolve(handle, "WriteToRFBServer", library->write, missing);
    resolve(handle, "tjDestroy", library->tjDestroy, missing);
    if (!missing.isEmpty()) {
        *error = QStringLiteral("%1 lacks %2").arg(QString::fromLocal8Bit(file), missing.join(QStringLiteral(", ")));
        dlclose(handle);
        return nullptr;
    }
    return library;
}

const VncClientLibrary* VncClientLibrary::get()
{
    // Kept to the end (sessions may still run at exit); made once, whichever thread asks first.
    static const VncClientLibrary* const library = [] {
        QString error;
        const VncClientLibrary* loaded = load(kFileName, &error).release();
        if (!loaded)
            qWarning().noquote() << "VNC client library unavailable:" << error;
        return loaded;
    }();
    return library;
}
