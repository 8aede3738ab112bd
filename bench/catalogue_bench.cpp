// Catalogue of 500 records: listing it and rebuilding the table model, against the floor of
// parsing the same file with QJsonDocument and deciphering its passwords once.
#include "ConnectionManager.h"
#include "ConnectionStore.h"
#include "ConnectionTableModel.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kRecords = 500;
constexpr int kRounds = 41;

void writeCatalogue()
{
    QJsonArray records;
    for (int i = 0; i < kRecords; ++i) {
        QJsonObject record{{"type", i % 7}, {"name", QStringLiteral("Connection %1").arg(i)},
                           {"address", QStringLiteral("host-%1.corp.example").arg(i)}, {"username", "user"},
                           {"domain", "CORP"}, {"enabled", true}, {"auto_connect", i % 50 == 0},
                           {"password", ConnectionStore::encryptPassword(QStringLiteral("Secret-%1").arg(i))}};
        records.append(record);
    }
    ConnectionStore::writeArray(records);
}

int floorWork()
{
    QFile file(ConnectionStore::filePath());
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    const QJsonArray records = QJsonDocument::fromJson(file.readAll()).array();
    int total = 0;
    for (const QJsonValue& value : records)
        total += ConnectionStore::decryptPassword(value.toObject().value("password").toString()).size();
    return total;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void report(const char* name, const std::vector<double>& ours, const std::vector<double>& floor)
{
    const double o = median(ours), f = median(floor);
    std::printf("BENCH %s ratio=%.2f ours=%.2fms floor=%.2fms\n", name, o / f, o, f);
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir root;
    qputenv("NORBIX_ROOT", root.path().toUtf8());
    QDir().mkpath(root.path() + "/data/norbix");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    writeCatalogue();

    ConnectionManager* manager = ConnectionManager::getInstance();
    ConnectionTableModel model;
    std::vector<double> floor, list, rebuild;
    volatile int sink = 0;
    QElapsedTimer timer;
    for (int round = 0; round < kRounds; ++round) {
        timer.start();
        sink = sink + floorWork();
        floor.push_back(timer.nsecsElapsed() / 1e6);

        timer.start();
        sink = sink + manager->listConnections().size();
        list.push_back(timer.nsecsElapsed() / 1e6);

        timer.start();
        manager->reload(); // the model rebuilds itself on the change signal
        rebuild.push_back(timer.nsecsElapsed() / 1e6);
    }
    if (model.rowCount() != kRecords)
        return 1;
    report("catalogue_model_rebuild", rebuild, floor);
    report("catalogue_list", list, floor);
    return 0;
}
