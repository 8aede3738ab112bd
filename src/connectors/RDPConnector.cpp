#include "RDPConnector.h"

#include "PrintersBackend.h"
#include "RDPWorker.h"
#include "USBManager.h"

#include <QDebug>
#include "QmlSingleton.h"
#include <QThread>

RDPConnector* RDPConnector::m_connection = nullptr;

RDPConnector* RDPConnector::getInstance()
{
    if (!m_connection)
        m_connection = new RDPConnector;
    return m_connection;
}

QObject* RDPConnector::qmlInstance(QQmlEngine*, QJSEngine*)
{
    return qmlSingleton<RDPConnector>();
}

QString RDPConnector::createConnectionString(const Connection& connection)
{
    auto text = [&](const char* key) { return connection.get(QLatin1String(key)); };
    auto flag = [&](const char* key) { return connection.getBool(QLatin1String(key)); };

    QString args = QStringLiteral("/v:") + text("address");
    args += QStringLiteral(" /u:") + text("username");
    args += QStringLiteral(" /p:") + text("password");
    if (!text("domain").isEmpty())
        args += QStringLiteral(" /d:") + text("domain");
    if (flag("fullscreen"))
        args += QStringLiteral(" /f");
    if (flag("multimon"))
        args += QStringLiteral(" /multimon");
    if (!text("gateway").isEmpty()) {
        QString gateway = QStringLiteral("/gateway:g:") + text("gateway");
        if (!text("gateway_user").isEmpty())
            gateway += QStringLiteral(",u:") + text("gateway_user");
        if (!text("gateway_domain").isEmpty())
            gateway += QStringLiteral(",d:") + text("gateway_domain");
        if (!text("gateway_password").isEmpty())
            gateway += QStringLiteral(",p:") + text("gateway_password");
        args += QLatin1Char(' ') + gateway;
    }
    if (flag("usb") && USBManager::isUsbEnabled())
        args += QStringLiteral(" /usb:auto");
    if (flag("printer") && PrintersBackend::isPrinterEnabled()) {
        const QString printer = PrintersBackend::getDefaultPrinter();
        if (!printer.isEmpty())
            args += QStringLiteral(" /printer:") + printer;
    }
    // Not a number counts as 0, the best quality.
    if (text("performance").toInt() < 1)
        args += QStringLiteral(" +wallpaper +fonts");
    else
        args += QStringLiteral(" -wallpaper -aero -fonts -themes");
    if (flag("smartcard"))
        args += QStringLiteral(" /smartcard-logon /sec:nla ");
    args += QStringLiteral(" /network:auto -window-drag -menu-anims +drives /cert:ignore /tls:seclevel:0 /microphone /sound /timeout:80000");
    return args;
}

bool RDPConnector::initConnection(const QString& args)
{
    auto* worker = new RDPWorker(args);
    auto* thread = new QThread;
    worker->moveToThread(thread);
    connect(thread, &QThread::finished, [] { qInfo() << "RDP Thread finished"; });
    connect(thread, &QThread::started, worker, &RDPWorker::run);
    connect(worker, &RDPWorker::finished, thread, &QThread::quit);
    connect(worker, &RDPWorker::finished, worker, &QObject::deleteLater);
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    connect(worker, &RDPWorker::exitCodeReady, this, &RDPConnector::exitCode);
    thread->start();
    return true;
}

QString RDPConnector::messageForExitCode(int code)
{
    switch (code) {
    case 0:
    case 1:
    case 12:
        return {};
    case 132:
    case 134:
        return tr("Failed to authorize user");
    case 140:
        return tr("Invalid IP");
    case 141:
        return tr("Failed to connect");
    case 147:
        return tr("Host not found");
    default:
        return tr("Error: ") + QString::number(code);
    }
}

void RDPConnector::emitImageReady(const QImage& image)
{
    emit imageReady(image.copy());
}
