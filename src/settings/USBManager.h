#pragma once

#include <QObject>

// USB storage on the terminal: on while the automount udev rule is installed.
class USBManager : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE static bool isUsbEnabled();
};
