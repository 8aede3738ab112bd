#pragma once

#include <QObject>
#include <QStringList>

// USB storage on the terminal: on while the automount udev rule is installed. Also lists the USB
// devices plugged in.
class USBManager : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE static bool isUsbEnabled();
    // Runs the enable or disable helper and waits for it.
    Q_INVOKABLE static void setUsbEnabled(bool enabled);
    Q_INVOKABLE static QStringList listUsbNames();
    Q_INVOKABLE static QStringList listUsbDescriptors();
};
