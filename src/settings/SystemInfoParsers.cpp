#include "SystemInfoParsers.h"
#include "JsonText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace SystemInfoParsers {

namespace {

QList<QByteArray> lines(const QByteArray& text)
{
    return text.split('\n');
}

// "Key:   value" -> value, for the first line with that key.
QString keyValue(const QByteArray& text, const QByteArray& key)
{
    for (const QByteArray& line : lines(text)) {
        const int colon = line.indexOf(':');
        if (colon > 0 && line.left(colon).trimmed() == key)
            return QString::fromUtf8(line.mid(colon + 1)).trimmed();
    }
    return {};
}

QString unquote(QString value)
{
    value = value.trimmed();
    if (value.size() >= 2 && (value.startsWith(QLatin1Char('"')) || value.startsWith(QLatin1Char('\'')))
        && value.endsWith(value.at(0)))
        value = value.mid(1, value.size() - 2);
    return value.replace(QLatin1String("\\\""), QLatin1String("\""));
}

} // namespace

Processor processor(const QByteArray& lscpu)
{
    Processor result;
    result.model = keyValue(lscpu, "Model name");
    result.count = keyValue(lscpu, "CPU(s)").toInt();
    return result;
}

qint64 memoryTotal(const QByteArray& meminfo)
{
    const QStringList parts = keyValue(meminfo, "MemTotal").split(QLatin1Char(' '), Qt::SkipEmptyParts);
    bool ok = false;
    const qint64 value = parts.value(0).toLongLong(&ok);
    if (!ok || value < 0)
        return -1;
    const QString unit = parts.value(1).toLower();
    if (unit == QLatin1String("kb"))
        return value * 1024;
    return unit.isEmpty() ? value : -1;
}

QList<Disk> disks(const QByteArray& df)
{
    QList<Disk> result;
    bool header = true;
    for (const QByteArray& raw : lines(df)) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.isEmpty())
            continue;
        if (header) {
            header = false;
            if (line.startsWith(QLatin1String("Filesystem")))
                continue;
        }
        // Device, size, used, available, capacity, then the mount point (which may hold blanks).
        static const QRegularExpression row(QStringLiteral("^(\\S+)\\s+(\\d+)\\s+(\\d+)\\s+(\\d+)\\s+(\\d+%|-)\\s+(/.*)$"));
        const QRegularExpressionMatch match = row.match(line);
        if (!match.hasMatch())
            continue;
        Disk disk;
        disk.device = match.captured(1);
        disk.size = match.captured(2).toLongLong();
        disk.available = match.captured(4).toLongLong();
        disk.mountPoint = match.captured(6);
        result << disk;
    }
    return result;
}

QList<Adapter> adapters(const QByteArray& ipJson)
{
    QList<Adapter> result;
    const QJsonDocument document = JsonText::parse(ipJson);
    for (const QJsonValue& value : document.array()) {
        const QJsonObject link = value.toObject();
        const QString name = link.value(QStringLiteral("ifname")).toString();
        if (name.isEmpty() || link.value(QStringLiteral("link_type")).toString() == QLatin1String("loopback"))
            continue;
        Adapter adapter;
        adapter.name = name;
        adapter.mac = link.value(QStringLiteral("address")).toString().toLower();
        QStringList v4;
        QStringList v6;
        for (const QJsonValue& entry : link.value(QStringLiteral("addr_info")).toArray()) {
            const QJsonObject info = entry.toObject();
            const QString local = info.value(QStringLiteral("local")).toString();
            if (local.isEmpty())
                continue;
            const QString text = local + QLatin1Char('/') + QString::number(info.value(QStringLiteral("prefixlen")).toInt());
            (info.value(QStringLiteral("family")).toString() == QLatin1String("inet6") ? v6 : v4) << text;
        }
        adapter.addresses = v4 + v6;
        result << adapter;
    }
    return result;
}

QString osRelease(const QByteArray& osRelease)
{
    QHash<QString, QString> values;
    for (const QByteArray& raw : lines(osRelease)) {
        const QString line = QString::fromUtf8(raw).trimmed();
        const int equals = line.indexOf(QLatin1Char('='));
        if (line.startsWith(QLatin1Char('#')) || equals <= 0)
            continue;
        values.insert(line.left(equals), unquote(line.mid(equals + 1)));
    }
    const QString pretty = values.value(QStringLiteral("PRETTY_NAME"));
    if (!pretty.isEmpty())
        return pretty;
    return QStringList{values.value(QStringLiteral("NAME")), values.value(QStringLiteral("VERSION"))}
        .join(QLatin1Char(' '))
        .trimmed();
}

QHash<QString, QString> installedPackages(const QByteArray& dpkgQuery)
{
    QHash<QString, QString> result;
    for (const QByteArray& raw : lines(dpkgQuery)) {
        const QList<QByteArray> fields = raw.split('\t');
        if (fields.size() < 3)
            continue;
        // "ii " installed; "rc " removed with its configuration left, "un " never installed...
        const QByteArray status = fields.at(1).trimmed();
        const QString version = QString::fromUtf8(fields.at(2)).trimmed();
        if (status == "ii" && !version.isEmpty())
            result.insert(QString::fromUtf8(fields.at(0)).trimmed().section(QLatin1Char(':'), 0, 0), version);
    }
    return result;
}

QString kernelRelease(const QByteArray& uname)
{
    return QString::fromUtf8(uname).trimmed();
}

QList<Client> clients()
{
    return {
        {QStringLiteral("FreeRDP"), {QStringLiteral("freerdp2-x11"), QStringLiteral("freerdp3-x11")}},
        {QStringLiteral("Citrix Workspace"), {QStringLiteral("icaclient")}},
        {QStringLiteral("VMware Horizon"), {QStringLiteral("vmware-horizon-client")}},
        {QStringLiteral("Firefox"), {QStringLiteral("firefox-esr"), QStringLiteral("firefox")}},
        {QStringLiteral("Chromium"), {QStringLiteral("chromium"), QStringLiteral("chromium-browser")}},
        {QStringLiteral("PuTTY"), {QStringLiteral("putty")}},
    };
}

QStringList clientPackages()
{
    QStringList packages;
    for (const Client& client : clients())
        packages << client.packages;
    return packages;
}

} // namespace SystemInfoParsers
