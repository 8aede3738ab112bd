#include "PrinterParsers.h"

#include <QObject>
#include <QRegularExpression>

namespace PrinterParsers {

QStringList parseDirectDevices(const QByteArray& output)
{
    QStringList uris;
    for (const QString& line : QString::fromUtf8(output).split(QLatin1Char('\n'))) {
        const QStringList fields = line.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (fields.size() >= 2 && fields.at(0) == QLatin1String("direct"))
            uris << fields.at(1);
    }
    return uris;
}

QStringList parseDrivers(const QByteArray& output)
{
    QStringList drivers;
    for (const QString& line : QString::fromUtf8(output).split(QLatin1Char('\n'))) {
        const QString driver = line.simplified().section(QLatin1Char(' '), 0, 0);
        if (!driver.isEmpty())
            drivers << driver;
    }
    return drivers;
}

QString parseDefaultPrinter(const QByteArray& output)
{
    const QString first = QString::fromLocal8Bit(output).section(QLatin1Char('\n'), 0, 0);
    const int colon = first.indexOf(QLatin1Char(':'));
    if (colon < 0)
        return {};
    return first.mid(colon + 1).trimmed();
}

QString nameProblem(const QString& name)
{
    if (name.isEmpty())
        return QObject::tr("Enter a printer name.");
    if (name.size() > 127)
        return QObject::tr("A printer name has at most 127 characters.");
    static const QRegularExpression allowed(QStringLiteral("^[A-Za-z0-9_.@+-]+$"));
    if (!allowed.match(name).hasMatch())
        return QObject::tr("A printer name may only contain letters, digits and _ . - + @ (no spaces, \"/\" or \"#\").");
    return {};
}

QString hostProblem(const QString& host)
{
    static const QRegularExpression valid(QStringLiteral("^(\\[[0-9A-Fa-f:.]+\\]|[A-Za-z0-9]([A-Za-z0-9.-]*[A-Za-z0-9])?)(:\\d{1,5})?$"));
    if (host.isEmpty())
        return QObject::tr("Enter the printer's host name or address.");
    if (!valid.match(host).hasMatch())
        return QObject::tr("\"%1\" is not a host name or address.").arg(host);
    return {};
}

QString networkPrinterUri(const QString& host)
{
    return QStringLiteral("ipp://%1/ipp/print").arg(host);
}

} // namespace PrinterParsers
