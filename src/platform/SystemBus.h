#pragma once

#include <QJsonValue>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <optional>

// A connection profile as NetworkManager hands it over the bus (a{sa{sv}}): setting name to its
// key/value map. Values keep the types the bus gave them, so a map that was read can be written back.
using SettingsMap = QMap<QString, QVariantMap>;
Q_DECLARE_METATYPE(SettingsMap)

// One method call on the system bus.
struct BusCall {
    QString service;
    QString path;
    QString interface;
    QString method;
    QVariantList arguments;
};

// The one way the shell talks to system services over D-Bus. On a terminal it is the real system
// bus; under NORBIX_SIMULATE=1 the simulated terminal answers and no bus is touched; tests inject
// their own. Every call is appended to $NORBIX_COMMAND_LOG as one JSON line
// {"service", "path", "interface", "method", "args"}.
class SystemBus {
public:
    static constexpr int kCallTimeoutMs = 25000;

    virtual ~SystemBus() = default;

    // The reply's arguments (an a{sa{sv}} comes back as a SettingsMap), or nothing when the call
    // failed: no bus, no such service or object, an error reply, a timeout.
    std::optional<QVariantList> call(const BusCall& call);

    static SystemBus& instance();
    // Replaces the process-wide bus (tests). Ownership stays with the caller; nullptr restores the
    // environment's choice.
    static void setInstance(SystemBus* bus);

    // A bus value as plain JSON, for the command log (byte arrays as text, NUL bytes kept).
    static QJsonValue toJson(const QVariant& value);

protected:
    virtual std::optional<QVariantList> execute(const BusCall& call) = 0;
};

// Bus calls answered by a function: the simulated terminal and tests.
class FunctionBus : public SystemBus {
public:
    using Handler = std::function<std::optional<QVariantList>(const BusCall&)>;
    explicit FunctionBus(Handler handler) : m_handler(std::move(handler)) {}

protected:
    std::optional<QVariantList> execute(const BusCall& call) override { return m_handler(call); }

private:
    Handler m_handler;
};
