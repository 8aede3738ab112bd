#include "ConnectionWire.h"

#include <QDebug>

namespace {

struct KeyPair {
    const char* wire;
    const char* record;
};

// "Type" is mapped on its own: its value changes form too.
constexpr KeyPair kKeys[] = {
    {"Address", "address"},
    {"Name", "name"},
    {"AccountUsername", "username"},
    {"AccountPassword", "password"},
    {"AccountDomain", "domain"},
    {"AutoConnect", "auto_connect"},
    {"Enabled", "enabled"},
    {"Extra", "Extra"},
    {"Gateway", "gateway"},
    {"GatewayUsername", "gateway_user"},
    {"GatewayPassword", "gateway_password"},
    {"GatewayDomain", "gateway_domain"},
    {"ForwardUSB", "ForwardUSB"},
    {"Multimon", "multimon"},
    {"ForwardPrinter", "printer"},
    {"Fullscreen", "fullscreen"},
    {"Resource", "resource"},
    {"Shrink", "shrink"},
    {"Percentage", "percentage"},
    {"SmartCard", "smartcard"},
    {"Desktop", "desktop"},
    {"Protocol", "protocol"},
    {"Performance", "performance"},
    {"ClearCache", "clearCache"},
    {"Kiosk", "kiosk"},
};

constexpr const char* kTypeNames[] = {"VMWare", "VNC", "Citrix", "RDP", "Browser", "Teams", "PuTTY"};
constexpr int kTypeCount = int(sizeof(kTypeNames) / sizeof(kTypeNames[0]));

// Copies the keys of the table from one naming to the other; absent and null values stay out.
QJsonObject copyKeys(const QJsonObject& from, bool toWire)
{
    QJsonObject to;
    for (const KeyPair& pair : kKeys) {
        const QString source = QLatin1String(toWire ? pair.record : pair.wire);
        const QJsonValue value = from.value(source);
        if (value.isUndefined() || value.isNull())
            continue;
        to.insert(QLatin1String(toWire ? pair.wire : pair.record), value);
    }
    return to;
}

} // namespace

QString ConnectionWire::typeName(int type)
{
    return type >= 0 && type < kTypeCount ? QLatin1String(kTypeNames[type]) : QString();
}

int ConnectionWire::typeValue(const QString& name)
{
    for (int i = 0; i < kTypeCount; ++i) {
        if (name == QLatin1String(kTypeNames[i]))
            return i;
    }
    return -1;
}

QJsonObject ConnectionWire::toWire(const QJsonObject& record)
{
    QJsonObject wire = copyKeys(record, true);
    const QJsonValue type = record.value(QLatin1String("type"));
    if (type.isDouble()) {
        const QString name = typeName(type.toInt(-1));
        if (!name.isEmpty())
            wire.insert(QLatin1String("Type"), name);
    }
    return wire;
}

QJsonObject ConnectionWire::fromWire(const QJsonObject& wire, bool* ok)
{
    const int type = typeValue(wire.value(QLatin1String("Type")).toString());
    if (ok)
        *ok = type >= 0;
    if (type < 0)
        return {};
    QJsonObject record = copyKeys(wire, false);
    record.insert(QLatin1String("type"), type);
    return record;
}

QJsonArray ConnectionWire::listToWire(const QList<Connection>& connections)
{
    QJsonArray array;
    for (const Connection& connection : connections)
        array.append(toWire(connection.getData()));
    return array;
}

QList<Connection> ConnectionWire::listFromWire(const QJsonArray& array)
{
    QList<Connection> list;
    for (const QJsonValue& element : array) {
        bool ok = false;
        const QJsonObject record = fromWire(element.toObject(), &ok);
        if (!ok) {
            qWarning() << "Skipping a connection without a known type";
            continue;
        }
        list << Connection(record);
    }
    return list;
}
