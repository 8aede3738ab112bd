// One full collection of the settings report in the simulated terminal: the commands it runs
// (ours) against the distinct commands among them (floor), and how long it takes.
//   BENCH settings_collect ratio=<ours/floor> ours=<n>cmd floor=<n>cmd time=<ms>ms
// Ratio 1.00: no command runs twice in one collection.
#include "APICollectorThread.h"
#include "SimulatedTerminal.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

int main(int argc, char* argv[])
{
    QTemporaryDir root;
    qputenv("NORBIX_SIMULATE", "1");
    qputenv("NORBIX_ROOT", root.path().toUtf8());
    qputenv("HOME", root.path().toUtf8());
    QCoreApplication app(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QDir().mkpath(root.path() + QStringLiteral("/data/norbix"));
    SimulatedTerminal::prepareSandbox();
    APICollectorThread::collect(); // first use: singletons and fixtures loaded

    const QString log = root.path() + QStringLiteral("/commands.jsonl");
    qputenv("NORBIX_COMMAND_LOG", log.toUtf8());
    APICollectorThread::collect();
    qunsetenv("NORBIX_COMMAND_LOG");

    QFile file(log);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "no command log\n");
        return 1;
    }
    int commands = 0;
    QSet<QByteArray> distinct;
    for (const QByteArray& line : file.readAll().split('\n')) {
        const QJsonObject entry = QJsonDocument::fromJson(line).object();
        if (!entry.contains(QLatin1String("program")))
            continue; // a bus call
        ++commands;
        distinct.insert(line);
    }

    const int rounds = 20;
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer timer;
        timer.start();
        APICollectorThread::collect();
        times.push_back(timer.nsecsElapsed() / 1e6);
    }
    std::sort(times.begin(), times.end());
    std::printf("BENCH settings_collect ratio=%.2f ours=%dcmd floor=%dcmd time=%.1fms\n",
                distinct.isEmpty() ? 0.0 : double(commands) / distinct.size(), commands, int(distinct.size()),
                times[times.size() / 2]);
    return 0;
}
