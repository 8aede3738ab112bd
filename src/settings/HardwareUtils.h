#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

// What the hardware inventory tells about the terminal.
struct HardwareInventory {
    QString mac; // hardware address of the network adapter, lower case; empty when none was found
    QString cpu; // processor identifier
    QString cpuVendor;
    QString networkProduct;
};

// The terminal's hardware inventory (lshw), read once per run.
class HardwareUtils : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    static const HardwareInventory& inventory();
    // lshw -json output in, facts out. Wired adapters win over wireless ones, and among equals the
    // lowest interface name wins, so the choice does not depend on the order lshw lists them in.
    static HardwareInventory parseInventory(const QByteArray& lshwJson);
    // Name-based (version 3) UUID over MAC + CPU, "00000000" standing in for a missing adapter.
    static QString deviceIdentity(const HardwareInventory& inventory);

    Q_INVOKABLE QString getMac() const { return inventory().mac; }
    Q_INVOKABLE QString getCpu() const { return inventory().cpu; }
    Q_INVOKABLE QString getIdentity() const { return deviceIdentity(inventory()); }
};
