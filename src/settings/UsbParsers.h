#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace UsbParsers {

struct UsbDevice {
    QString descriptor; // vendor:product, e.g. "046d:c077"
    QString name;       // what follows the ID field, may be empty
};

// `lsusb`: "Bus 001 Device 002: ID 046d:c077 Logitech, Inc. M105 Optical Mouse".
QList<UsbDevice> parseLsusb(const QByteArray& output);

} // namespace UsbParsers
