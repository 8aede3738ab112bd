#include "SystemInfoModel.h"

#include "CommandRunner.h"
#include "SystemInfoParsers.h"
#include "XrandrParser.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QLocale>
#include <QtConcurrent>

namespace {

const QString kHardware = QStringLiteral("hardware");
const QString kSoftware = QStringLiteral("software");
SystemInfoModel::Fact fact(const QString& section, const QString& kind, const QString& subject, const QString& value)
{
    SystemInfoModel::Fact f;
    f.section = section;
    f.kind = kind;
    f.subject = subject;
    f.value = value;
    f.state = value.isEmpty() ? SystemInfoModel::State::Unknown : SystemInfoModel::State::Known;
    return f;
}

CommandResult run(const QString& program, const QStringList& arguments)
{
    return CommandRunner::instance().run(program, arguments);
}

} // namespace

SystemInfoModel::SystemInfoModel(QObject* parent) : QAbstractListModel(parent)
{
    connect(&m_watcher, &QFutureWatcher<QList<Fact>>::finished, this, [this] {
        setFacts(m_watcher.result());
        qInfo() << "System information ready";
    });
}

SystemInfoModel::~SystemInfoModel()
{
    // The reading holds no pointer to the model; wait so it does not outlive the process's runner.
    m_watcher.waitForFinished();
}

QList<SystemInfoModel::Fact> SystemInfoModel::collect()
{
    using namespace SystemInfoParsers;
    QList<Fact> facts;

    const CommandResult lscpu = run(QStringLiteral("lscpu"), {});
    const Processor cpu = processor(lscpu.standardOutput);
    QString cpuText = cpu.model;
    if (!cpuText.isEmpty() && cpu.count > 0)
        cpuText = QStringLiteral("%1 \u00d7 %2").arg(cpu.count).arg(cpu.model);
    facts << fact(kHardware, QStringLiteral("cpu"), {}, cpuText);

    const qint64 memory = memoryTotal(run(QStringLiteral("cat"), {QStringLiteral("/proc/meminfo")}).standardOutput);
    facts << fact(kHardware, QStringLiteral("memory"), {}, memory > 0 ? formatBytes(memory) : QString());

    const QList<Disk> diskList = disks(run(QStringLiteral("df"),
                                           {QStringLiteral("-P"), QStringLiteral("-B1"), QStringLiteral("-x"), QStringLiteral("tmpfs"),
                                            QStringLiteral("-x"), QStringLiteral("devtmpfs"), QStringLiteral("-x"), QStringLiteral("squashfs"),
                                            QStringLiteral("-x"), QStringLiteral("overlay")})
                                           .standardOutput);
    if (diskList.isEmpty())
        facts << fact(kHardware, QStringLiteral("disk"), {}, {});
    for (const Disk& disk : diskList) {
        // Values are kept language-neutral here; the free-space wording is added when shown.
        facts << fact(kHardware, QStringLiteral("disk"), disk.mountPoint,
                      QStringLiteral("%1\t%2\t%3").arg(disk.device, formatBytes(disk.size), formatBytes(disk.available)));
    }

    const QList<Adapter> adapterList = adapters(run(QStringLiteral("ip"), {QStringLiteral("-j"), QStringLiteral("addr"), QStringLiteral("show")}).standardOutput);
    if (adapterList.isEmpty())
        facts << fact(kHardware, QStringLiteral("adapter"), {}, {});
    for (const Adapter& adapter : adapterList) {
        QStringList parts;
        if (!adapter.mac.isEmpty())
            parts << QStringLiteral("MAC ") + adapter.mac;
        parts << adapter.addresses;
        facts << fact(kHardware, QStringLiteral("adapter"), adapter.name, parts.join(QStringLiteral(", ")));
    }

    const QList<XrandrOutput> outputs = XrandrParser::parse(run(QStringLiteral("xrandr"), {QStringLiteral("--query")}).standardOutput);
    if (outputs.isEmpty())
        facts << fact(kHardware, QStringLiteral("display"), {}, {});
    for (const XrandrOutput& output : outputs) {
        QString modes = output.resolutions.join(QStringLiteral(", "));
        if (!output.currentResolution.isEmpty())
            modes = output.currentResolution + QStringLiteral(" (") + modes + QLatin1Char(')');
        facts << fact(kHardware, QStringLiteral("display"), output.name, modes);
    }

    facts << fact(kSoftware, QStringLiteral("shell"), {}, QStringLiteral("1.2.16"));
    facts << fact(kSoftware, QStringLiteral("kernel"), {}, kernelRelease(run(QStringLiteral("cat"), {QStringLiteral("/proc/sys/kernel/osrelease")}).standardOutput));
    facts << fact(kSoftware, QStringLiteral("os"), {}, osRelease(run(QStringLiteral("cat"), {QStringLiteral("/etc/os-release")}).standardOutput));

    QStringList query{QStringLiteral("-W"), QStringLiteral("-f=${Package}\\t${db:Status-Abbrev}\\t${Version}\\n")};
    const CommandResult dpkg = run(QStringLiteral("dpkg-query"), query + clientPackages());
    const QHash<QString, QString> installed = installedPackages(dpkg.standardOutput);
    for (const Client& client : clients()) {
        QString version;
        for (const QString& package : client.packages) {
            version = installed.value(package);
            if (!version.isEmpty())
                break;
        }
        Fact f = fact(kSoftware, QStringLiteral("client"), client.name, version);
        // Without the package database nothing can be said; with it, absence means not installed.
        if (version.isEmpty() && dpkg.started)
            f.state = State::NotInstalled;
        facts << f;
    }
    return facts;
}

void SystemInfoModel::asyncRead()
{
    if (m_watcher.isRunning())
        return;
    m_watcher.setFuture(QtConcurrent::run(&SystemInfoModel::collect));
}

void SystemInfoModel::setFacts(const QList<Fact>& facts)
{
    beginResetModel();
    m_facts = facts;
    endResetModel();
    if (!m_ready) {
        m_ready = true;
        emit readyChanged();
    }
}

QString SystemInfoModel::formatBytes(qint64 bytes)
{
    if (bytes < 0)
        return {};
    return QLocale::c().formattedDataSize(bytes, 1);
}

QString SystemInfoModel::label(const Fact& fact)
{
    const QString& k = fact.kind;
    if (k == QLatin1String("cpu"))
        return tr("Processor");
    if (k == QLatin1String("memory"))
        return tr("Memory");
    if (k == QLatin1String("disk"))
        return fact.subject.isEmpty() ? tr("Disks") : tr("Disk %1").arg(fact.subject);
    if (k == QLatin1String("adapter"))
        return fact.subject.isEmpty() ? tr("Network adapters") : tr("Network adapter %1").arg(fact.subject);
    if (k == QLatin1String("display"))
        return fact.subject.isEmpty() ? tr("Displays") : tr("Display %1").arg(fact.subject);
    if (k == QLatin1String("shell"))
        return tr("Shell version");
    if (k == QLatin1String("kernel"))
        return tr("Kernel");
    if (k == QLatin1String("os"))
        return tr("Operating system");
    return fact.subject;
}

QString SystemInfoModel::displayValue(const Fact& fact)
{
    if (fact.state == State::NotInstalled)
        return tr("not installed");
    if (fact.state == State::Unknown || fact.value.isEmpty())
        return tr("unknown");
    if (fact.kind == QLatin1String("disk")) {
        const QStringList parts = fact.value.split(QLatin1Char('\t'));
        if (parts.size() == 3)
            return tr("%1: %2, %3 free").arg(parts.at(0), parts.at(1), parts.at(2));
    }
    return fact.value;
}

QString SystemInfoModel::asText() const
{
    QStringList lines;
    lines << QStringLiteral("Norbix %1 \u2014 %2").arg(tr("system information"), QDateTime::currentDateTime().toString(Qt::ISODate));
    QString section;
    for (const Fact& f : m_facts) {
        if (f.section != section) {
            section = f.section;
            lines << QString() << (section == kHardware ? tr("Hardware") : tr("Software"));
        }
        lines << label(f) + QStringLiteral(": ") + displayValue(f);
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

int SystemInfoModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_facts.size();
}

QVariant SystemInfoModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Fact& f = m_facts.at(index.row());
    switch (role) {
    case SectionRole:
        return f.section == kHardware ? tr("Hardware") : tr("Software");
    case Qt::DisplayRole:
    case LabelRole:
        return label(f);
    case ValueRole:
        return displayValue(f);
    case KindRole:
        return f.kind;
    default:
        return {};
    }
}

QHash<int, QByteArray> SystemInfoModel::roleNames() const
{
    return {{SectionRole, "section"}, {LabelRole, "label"}, {ValueRole, "value"}, {KindRole, "kind"}};
}
