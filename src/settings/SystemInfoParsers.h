#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

// The system-information page's readings of tool output: text in, values out.
namespace SystemInfoParsers {

struct Processor {
    QString model; // empty when lscpu names none
    int count = 0; // logical processors, 0 when unknown
};

struct Disk {
    QString device;
    QString mountPoint;
    qint64 size = -1;
    qint64 available = -1;
};

struct Adapter {
    QString name;
    QString mac;         // lower case; empty when the link has none
    QStringList addresses; // "address/prefix", IPv4 first, in the order ip lists them
};

// `lscpu`: "Model name:" and "CPU(s):".
Processor processor(const QByteArray& lscpu);
// /proc/meminfo: MemTotal in bytes, -1 when missing.
qint64 memoryTotal(const QByteArray& meminfo);
// `df -P -B1 ...`: one entry per file system; mount points may hold blanks.
QList<Disk> disks(const QByteArray& df);
// `ip -j addr show`: the adapters other than loopback, in the order ip lists them.
QList<Adapter> adapters(const QByteArray& ipJson);
// /etc/os-release: PRETTY_NAME, else NAME and VERSION; empty when neither is there.
QString osRelease(const QByteArray& osRelease);
// `dpkg-query -W -f='${Package}\t${db:Status-Abbrev}\t${Version}\n' ...`: package -> version of
// the installed packages only (a package removed but not purged is not installed).
QHash<QString, QString> installedPackages(const QByteArray& dpkgQuery);
// /proc/sys/kernel/osrelease (what `uname -r` prints): the release, trimmed.
QString kernelRelease(const QByteArray& uname);

// The session clients the page names, each with the Debian packages that may provide it.
struct Client {
    QString name;
    QStringList packages;
};
QList<Client> clients();
// Every package of clients(), in order (the dpkg-query argument list).
QStringList clientPackages();

} // namespace SystemInfoParsers
