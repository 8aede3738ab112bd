#include "PrintersBackend.h"

#include "CommandRunner.h"
#include "PrinterParsers.h"
#include "SettingsChange.h"
#include "SoundParsers.h"
#include "SystemPaths.h"

#include <QDebug>
#include <QSettings>

namespace {

CommandResult sudo(const QStringList& arguments)
{
    return CommandRunner::instance().run(QStringLiteral("sudo"), arguments);
}

} // namespace

bool PrintersBackend::isPrinterEnabled()
{
    return QSettings(SystemPaths::dataFile(QStringLiteral("printers.ini")), QSettings::IniFormat)
        .value(QStringLiteral("Enabled"), false)
        .toBool();
}

void PrintersBackend::setPrinterEnabled(bool enabled)
{
    qInfo().nospace().noquote() << "Set printer enabled " << enabled;
    QSettings(SystemPaths::dataFile(QStringLiteral("printers.ini")), QSettings::IniFormat)
        .setValue(QStringLiteral("Enabled"), enabled);
    SettingsChange::report();
}

QString PrintersBackend::getDefaultPrinter()
{
    return parseDefaultPrinter(
        CommandRunner::instance().run(QStringLiteral("bash"), {QStringLiteral("-c"), QStringLiteral("lpstat -d")}).standardOutput);
}

QString PrintersBackend::parseDefaultPrinter(const QByteArray& lpstatOutput)
{
    return PrinterParsers::parseDefaultPrinter(lpstatOutput);
}

QStringList PrintersBackend::listPrinters()
{
    return SoundParsers::parseLines(CommandRunner::instance()
                                        .run(QStringLiteral("bash"), {QStringLiteral("-c"), QStringLiteral("lpstat -l -e | awk '{print $1}'")})
                                        .standardOutput);
}

QString PrintersBackend::printerNameProblem(const QString& name)
{
    return PrinterParsers::nameProblem(name);
}

QString PrintersBackend::printerHostProblem(const QString& host)
{
    return PrinterParsers::hostProblem(host);
}

bool PrintersBackend::runLpadmin(const QStringList& arguments)
{
    qInfo().nospace().noquote() << "Adding printer " << arguments.join(QLatin1Char(' '));
    const CommandResult result = sudo(QStringList{QStringLiteral("lpadmin")} + arguments);
    qInfo().nospace().noquote() << "Adding printer result: " << QString::fromLocal8Bit(result.standardOutput).trimmed();
    qInfo().nospace().noquote() << "Adding printer error: " << QString::fromLocal8Bit(result.standardError).trimmed();
    if (!result.started || result.exitCode != 0) {
        const QString error = QString::fromLocal8Bit(result.standardError).trimmed();
        m_lastError = error.isEmpty() ? tr("The printer could not be added.") : error;
        return false;
    }
    emit printersChanged();
    SettingsChange::report();
    return true;
}

bool PrintersBackend::addPrinter(const QString& name, const QString& host)
{
    m_lastError = PrinterParsers::nameProblem(name);
    if (m_lastError.isEmpty())
        m_lastError = PrinterParsers::hostProblem(host);
    if (!m_lastError.isEmpty()) {
        qWarning() << "Refusing printer" << name << host << ":" << m_lastError;
        return false;
    }
    return runLpadmin({QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                       PrinterParsers::networkPrinterUri(host), QStringLiteral("-m"), QStringLiteral("everywhere")});
}

bool PrintersBackend::addUSBPrinter(const QString& name, const QString& uri, const QString& driver)
{
    m_lastError = PrinterParsers::nameProblem(name);
    if (m_lastError.isEmpty() && (uri.isEmpty() || uri.contains(QLatin1Char(' '))))
        m_lastError = tr("Choose the printer's device.");
    if (m_lastError.isEmpty() && (driver.isEmpty() || driver.contains(QLatin1Char(' '))))
        m_lastError = tr("Choose a driver.");
    if (!m_lastError.isEmpty()) {
        qWarning() << "Refusing printer" << name << uri << driver << ":" << m_lastError;
        return false;
    }
    return runLpadmin({QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"), uri,
                       QStringLiteral("-m"), driver});
}

QStringList PrintersBackend::listUSBPrinters()
{
    return PrinterParsers::parseDirectDevices(sudo({QStringLiteral("lpinfo"), QStringLiteral("-v")}).standardOutput);
}

QStringList PrintersBackend::listUSBPrinterDrivers()
{
    return PrinterParsers::parseDrivers(sudo({QStringLiteral("lpinfo"), QStringLiteral("-m")}).standardOutput);
}

void PrintersBackend::setCurrentPrinter(const QString& name)
{
    if (!PrinterParsers::nameProblem(name).isEmpty()) {
        qWarning() << "Refusing default printer" << name;
        return;
    }
    sudo({QStringLiteral("lpadmin"), QStringLiteral("-d"), name});
    qInfo().nospace().noquote() << "Set printer " << name;
    emit printersChanged();
    SettingsChange::report();
}

void PrintersBackend::deletePrinter(const QString& name)
{
    if (!PrinterParsers::nameProblem(name).isEmpty()) {
        qWarning() << "Refusing to delete printer" << name;
        return;
    }
    sudo({QStringLiteral("lpadmin"), QStringLiteral("-x"), name});
    qInfo() << "Deleted printer" << name;
    emit printersChanged();
    SettingsChange::report();
}
