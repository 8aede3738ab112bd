#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// CUPS command output and the rules for what the shell hands to lpadmin.
namespace PrinterParsers {

// `lpinfo -v`: the URIs of the "direct" devices (USB and the like), in order.
QStringList parseDirectDevices(const QByteArray& output);

// `lpinfo -m`: the driver names (first field of each line).
QStringList parseDrivers(const QByteArray& output);

// `lpstat -d`: "system default destination: NAME" -> NAME, empty when there is none.
QString parseDefaultPrinter(const QByteArray& output);

// Why a queue name cannot be used, empty when it can. CUPS allows up to 127 printable characters
// without blanks, "/", "#" or "\"; the shell also refuses shell metacharacters.
QString nameProblem(const QString& name);

// Why a network printer's host cannot be used, empty when it can (a host name or address with an
// optional port).
QString hostProblem(const QString& host);

// The IPP Everywhere queue of a network printer.
QString networkPrinterUri(const QString& host);

} // namespace PrinterParsers
