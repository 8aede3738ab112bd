#include "BrowserConnector.h"

#include "CommandRunner.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QFile>

QString BrowserConnector::siteAddress(const QString& address)
{
    return address.startsWith(QLatin1String("http")) ? address : QStringLiteral("http://") + address;
}

void BrowserConnector::connect(const Connection& connection)
{
    qInfo().noquote() << QStringLiteral("browser connect to ") + connection.getAddress();
    const QString address = siteAddress(connection.getAddress());
    const bool privateWindow = connection.getBool(QStringLiteral("clearCache"));
    const bool kiosk = connection.getBool(QStringLiteral("kiosk"));
    CommandRunner& runner = CommandRunner::instance();

    if (QFile::exists(SystemPaths::resolve(QStringLiteral("/opt/firefox/firefox")))) {
        QStringList args{address};
        if (privateWindow)
            args << QStringLiteral("--private-window");
        if (kiosk)
            args << QStringLiteral("--kiosk");
        runner.startDetached(QStringLiteral("firefox"), args);
        return;
    }
    // A Chromium that was switched off at the wall leaves its singleton lock behind and refuses to start.
    qInfo() << "Remove chrome singleton";
    runner.startDetachedCommandLine(QStringLiteral("rm /home/norbix/snap/chromium/common/chromium/Singleton*"));
    qWarning() << "Firefox not found, using chrome";
    runner.startDetached(QStringLiteral("chromium-browser"),
                         {privateWindow ? QStringLiteral("-incognito") : QString(), address,
                          kiosk ? QStringLiteral("--kiosk") : QString()});
}
