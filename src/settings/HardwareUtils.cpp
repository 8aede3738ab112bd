#include "HardwareUtils.h"

#include "CommandRunner.h"
#include "JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUuid>

namespace {

// lshw prints one object for a single node and an array for several.
void collect(const QJsonValue& value, QList<QJsonObject>& nodes)
{
    if (value.isArray()) {
        for (const QJsonValue& item : value.toArray())
            collect(item, nodes);
    } else if (value.isObject()) {
        const QJsonObject node = value.toObject();
        nodes << node;
        collect(node.value(QLatin1String("children")), nodes);
    }
}

bool isWireless(const QJsonObject& node)
{
    return node.value(QLatin1String("description")).toString().contains(QLatin1String("Wireless"), Qt::CaseInsensitive)
        || node.value(QLatin1String("configuration")).toObject().contains(QLatin1String("wireless"));
}

} // namespace

HardwareInventory HardwareUtils::parseInventory(const QByteArray& lshwJson)
{
    HardwareInventory result;
    QList<QJsonObject> nodes;
    const QJsonDocument document = JsonText::parse(lshwJson);
    collect(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()), nodes);

    const QJsonObject* best = nullptr;
    for (const QJsonObject& node : nodes) {
        const QString cls = node.value(QLatin1String("class")).toString();
        if (cls == QLatin1String("processor") && result.cpu.isEmpty()) {
            result.cpu = node.value(QLatin1String("product")).toString();
            if (result.cpu.isEmpty())
                result.cpu = node.value(QLatin1String("version")).toString();
            result.cpuVendor = node.value(QLatin1String("vendor")).toString();
        }
        if (cls != QLatin1String("network") || node.value(QLatin1String("serial")).toString().isEmpty())
            continue;
        if (!best) {
            best = &node;
            continue;
        }
        const bool better = isWireless(*best) != isWireless(node)
            ? isWireless(*best)
            : node.value(QLatin1String("logicalname")).toString() < best->value(QLatin1String("logicalname")).toString();
        if (better)
            best = &node;
    }
    if (best) {
        result.mac = best->value(QLatin1String("serial")).toString().toLower();
        result.networkProduct = best->value(QLatin1String("product")).toString();
    }
    return result;
}

const HardwareInventory& HardwareUtils::inventory()
{
    static const HardwareInventory cached = parseInventory(
        CommandRunner::instance()
            .run(QStringLiteral("sudo"), {QStringLiteral("lshw"), QStringLiteral("-json"), QStringLiteral("-quiet"),
                                          QStringLiteral("-class"), QStringLiteral("network"), QStringLiteral("-class"),
                                          QStringLiteral("processor")})
            .standardOutput);
    return cached;
}

QString HardwareUtils::deviceIdentity(const HardwareInventory& inventory)
{
    const QString mac = inventory.mac.isEmpty() ? QStringLiteral("00000000") : inventory.mac;
    return QUuid::createUuidV3(QUuid(), mac + inventory.cpu).toString(QUuid::WithoutBraces);
}
