#include "SystemBus.h"

#include "CommandLog.h"

#include "CommandRunner.h"
#include "SimulatedNetwork.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusSignature>
#include <QDBusVariant>
#include <QDebug>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QMutexLocker>

#include <atomic>

namespace {

std::atomic<SystemBus*> g_override{nullptr};

void registerTypes()
{
    static const bool done = [] {
        qDBusRegisterMetaType<SettingsMap>();
        return true;
    }();
    Q_UNUSED(done)
}

QJsonValue argumentToJson(const QDBusArgument& argument);

// Certificate blobs end in a NUL byte; the sized overload keeps it (the other stops there).
QJsonValue bytesToJson(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes.constData(), bytes.size());
}

QJsonValue basicToJson(const QVariant& value)
{
    switch (static_cast<int>(value.type())) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::UChar:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QByteArray:
        return bytesToJson(value.toByteArray());
    default:
        break;
    }
    if (value.userType() == qMetaTypeId<QDBusObjectPath>())
        return value.value<QDBusObjectPath>().path();
    if (value.userType() == qMetaTypeId<QDBusSignature>())
        return value.value<QDBusSignature>().signature();
    return value.toString();
}

QJsonValue argumentToJson(const QDBusArgument& argument)
{
    switch (argument.currentType()) {
    case QDBusArgument::BasicType:
        return basicToJson(argument.asVariant());
    case QDBusArgument::VariantType: {
        QDBusVariant inner;
        argument >> inner;
        return SystemBus::toJson(inner.variant());
    }
    case QDBusArgument::ArrayType: {
        if (argument.currentSignature() == QLatin1String("ay")) {
            QByteArray bytes;
            argument >> bytes;
            return bytesToJson(bytes);
        }
        QJsonArray list;
        argument.beginArray();
        while (!argument.atEnd())
            list.append(argumentToJson(argument));
        argument.endArray();
        return list;
    }
    case QDBusArgument::MapType: {
        QJsonObject map;
        argument.beginMap();
        while (!argument.atEnd()) {
            argument.beginMapEntry();
            const QJsonValue key = argumentToJson(argument);
            const QJsonValue value = argumentToJson(argument);
            argument.endMapEntry();
            map.insert(key.isString() ? key.toString() : QString::number(key.toDouble()), value);
        }
        argument.endMap();
        return map;
    }
    case QDBusArgument::StructureType: {
        QJsonArray fields;
        argument.beginStructure();
        while (!argument.atEnd())
            fields.append(argumentToJson(argument));
        argument.endStructure();
        return fields;
    }
    default:
        return QJsonValue();
    }
}

void logCall(const BusCall& call)
{
    const QString path = qEnvironmentVariable("NORBIX_COMMAND_LOG");
    if (path.isEmpty())
        return;
    QJsonArray args;
    for (const QVariant& argument : call.arguments)
        args.append(SystemBus::toJson(argument));
    QJsonObject line;
    line.insert(QStringLiteral("service"), call.service);
    line.insert(QStringLiteral("path"), call.path);
    line.insert(QStringLiteral("interface"), call.interface);
    line.insert(QStringLiteral("method"), call.method);
    line.insert(QStringLiteral("args"), args);
    CommandLog::append(line);
}

// The real system bus. A connection profile map is sent as a{sa{sv}}; one received as such comes
// back as a SettingsMap whose values keep the bus types (nested containers stay QDBusArgument).
class DBusSystemBus : public SystemBus {
protected:
    std::optional<QVariantList> execute(const BusCall& call) override
    {
        registerTypes();
        QDBusConnection bus = QDBusConnection::systemBus();
        // No bus or no service is the normal state of a machine without NetworkManager: the
        // callers carry on with an empty answer, so it is not worth a warning.
        if (!bus.isConnected()) {
            qInfo().noquote() << "System bus unavailable:" << bus.lastError().message();
            return std::nullopt;
        }
        QDBusMessage message = QDBusMessage::createMethodCall(call.service, call.path, call.interface, call.method);
        message.setArguments(call.arguments);
        const QDBusMessage reply = bus.call(message, QDBus::Block, kCallTimeoutMs);
        if (reply.type() != QDBusMessage::ReplyMessage) {
            const bool absent = reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.ServiceUnknown")
                || reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.UnknownObject")
                || reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.UnknownMethod");
            (absent ? qInfo() : qWarning()).noquote() << "D-Bus call" << call.method << "on" << call.path << "failed:"
                                                      << reply.errorName() << reply.errorMessage();
            return std::nullopt;
        }
        QVariantList arguments = reply.arguments();
        for (QVariant& argument : arguments) {
            if (argument.userType() != qMetaTypeId<QDBusArgument>())
                continue;
            const QDBusArgument wrapped = argument.value<QDBusArgument>();
            if (wrapped.currentSignature() == QLatin1String("a{sa{sv}}")) {
                SettingsMap map;
                wrapped >> map;
                argument = QVariant::fromValue(map);
            }
        }
        return arguments;
    }
};

} // namespace

QJsonValue SystemBus::toJson(const QVariant& value)
{
    if (value.userType() == qMetaTypeId<SettingsMap>()) {
        QJsonObject object;
        const SettingsMap map = value.value<SettingsMap>();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            object.insert(it.key(), toJson(it.value()));
        return object;
    }
    if (value.userType() == qMetaTypeId<QDBusArgument>())
        return argumentToJson(value.value<QDBusArgument>());
    if (value.userType() == qMetaTypeId<QDBusVariant>())
        return toJson(value.value<QDBusVariant>().variant());
    switch (static_cast<int>(value.type())) {
    case QMetaType::QVariantMap: {
        QJsonObject object;
        const QVariantMap map = value.toMap();
        for (auto it = map.cbegin(); it != map.cend(); ++it)
            object.insert(it.key(), toJson(it.value()));
        return object;
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
        QJsonArray list;
        for (const QVariant& item : value.toList())
            list.append(toJson(item));
        return list;
    }
    default:
        return basicToJson(value);
    }
}

std::optional<QVariantList> SystemBus::call(const BusCall& call)
{
    logCall(call);
    return execute(call);
}

SystemBus& SystemBus::instance()
{
    if (SystemBus* injected = g_override.load())
        return *injected;
    static SystemBus* const fromEnvironment = CommandRunner::simulating()
        ? static_cast<SystemBus*>(new FunctionBus(&SimulatedNetwork::busAnswer))
        : static_cast<SystemBus*>(new DBusSystemBus);
    return *fromEnvironment;
}

void SystemBus::setInstance(SystemBus* bus)
{
    g_override.store(bus);
}
