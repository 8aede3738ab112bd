#include "PrintersBackend.h"

#include "CommandRunner.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QSettings>


bool PrintersBackend::isPrinterEnabled()
{
    return QSettings(SystemPaths::dataFile(QStringLiteral("printers.ini")), QSettings::IniFormat)
        .value(QStringLiteral("Enabled"), false)
        .toBool();
}

void PrintersBackend::setPrinterEnabled(bool enabled)
{
    qInfo() << "Set printer enabled" << enabled;
    QSettings(SystemPaths::dataFile(QStringLiteral("printers.ini")), QSettings::IniFormat)
        .setValue(QStringLiteral("Enabled"), enabled);
}

QString PrintersBackend::getDefaultPrinter()
{
    return parseDefaultPrinter(
        CommandRunner::instance().run(QStringLiteral("bash"), {QStringLiteral("-c"), QStringLiteral("lpstat -d")}).standardOutput);
}

QString PrintersBackend::parseDefaultPrinter(const QByteArray& lpstatOutput)
{
    const QString text = QString::fromLocal8Bit(lpstatOutput);
    const int colon = text.indexOf(QLatin1Char(':'));
    if (colon < 0)
        return {};
    return text.mid(colon + 1).section(QLatin1Char('\n'), 0, 0).trimmed();
}
