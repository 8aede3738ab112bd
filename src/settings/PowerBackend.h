#pragma once

#include <QObject>

// Shutting the terminal down and restarting it.
class PowerBackend : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    Q_INVOKABLE static void shutdown();
    Q_INVOKABLE static void reboot();
};
