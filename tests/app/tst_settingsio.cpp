#include "ConnectionManager.h"
#include "FakeCommandRunner.h"
#include "SettingsChange.h"
#include "SettingsManager.h"
#include "TestSandbox.h"

#include <QDir>
#include <QDirIterator>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

namespace {

// Every file under a folder with its content, paths relative to the folder.
QMap<QString, QByteArray> snapshot(const QString& folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(folder).relativeFilePath(path), TestSandbox::readFile(path));
    }
    return files;
}

const QStringList kKeys{"display", "keyboardAndMouse", "languageSettings", "connections", "timeSettings", "apiSettings", "adminPassword",
                        "wallpaperSettings"};

} // namespace

class tst_SettingsIO : public QObject {
    Q_OBJECT

    TestSandbox* m_sandbox = nullptr;
    FakeCommandRunner* m_runner = nullptr;

    QString drive() const { return m_sandbox->path(QStringLiteral("/media/USB")); }

    // A terminal with every group configured.
    void fillDataDirectory()
    {
        TestSandbox::writeFile(m_sandbox->dataFile("display.ini"), "[General]\nMode=1\n");
        TestSandbox::writeFile(m_sandbox->dataFile("keyboard.ini"), "[General]\nLayouts=de\n");
        TestSandbox::writeFile(m_sandbox->dataFile("language.ini"), "[General]\nLanguage=de\n");
        TestSandbox::writeFile(m_sandbox->dataFile("connections.json"), "[]");
        TestSandbox::writeFile(m_sandbox->dataFile("time.ini"), "[General]\nTimezone=Europe/Berlin\n");
        TestSandbox::writeFile(m_sandbox->dataFile("api.ini"), "[General]\nId=norbix-A1B2C3\nEnabled=true\n");
        TestSandbox::writeFile(m_sandbox->dataFile("admin_password"), "e:secret");
        TestSandbox::writeFile(m_sandbox->dataFile("wallpaper/current.png"), "PNG");
        TestSandbox::writeFile(m_sandbox->dataFile("wallpaper/library/sea.jpg"), "JPG");
    }

    static void select(SettingsManager& manager, const QStringList& keys)
    {
        for (const QString& key : kKeys)
            manager.selection(key, keys.contains(key));
    }

private slots:
    void init()
    {
        m_sandbox = new TestSandbox;
        m_runner = new FakeCommandRunner;
        m_runner->answer(QStringLiteral("nmcli device show"),
                         TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/simulation/nmcli-device-show.txt")));
        QDir().mkpath(drive());
        fillDataDirectory();
    }
    void cleanup()
    {
        delete m_runner;
        delete m_sandbox;
    }

    // The screens show drive folders without the machine's own media path in front.
    void folderLabel()
    {
        SettingsManager manager;
        QCOMPARE(manager.folderLabel(drive()), QStringLiteral("USB"));
        QCOMPARE(manager.folderLabel(drive() + QStringLiteral("/norbix-1-01-01-2024-00-00-00")),
                 QStringLiteral("USB/norbix-1-01-01-2024-00-00-00"));
        QCOMPARE(manager.folderLabel(QStringLiteral("/elsewhere/USB")), QStringLiteral("/elsewhere/USB"));
    }

    void setFolderName()
    {
        const QDateTime when(QDate(2024, 3, 7), QTime(9, 5, 1));
        QCOMPARE(SettingsManager::setFolderName(QStringLiteral("norbix-A1B2C3"), when), QStringLiteral("norbix-A1B2C3-07-03-2024-09-05-01"));
        QCOMPARE(SettingsManager::setFolderName(QStringLiteral("t"), QDateTime(QDate(2024, 12, 31), QTime(23, 59, 59))),
                 QStringLiteral("t-31-12-2024-23-59-59"));
    }

    void exportOnlyConnections()
    {
        SettingsManager manager;
        QSignalSpy finished(&manager, &SettingsManager::exportFinished);
        select(manager, {"connections"});
        manager.exportConfig(drive());

        const QStringList sets = QDir(drive()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(sets.size(), 1);
        QVERIFY2(QRegularExpression(QStringLiteral("^norbix-A1B2C3-\\d\\d-\\d\\d-\\d{4}-\\d\\d-\\d\\d-\\d\\d$")).match(sets.first()).hasMatch(),
                 qPrintable(sets.first()));
        QCOMPARE(snapshot(drive() + QLatin1Char('/') + sets.first()).keys(), QStringList({"connections.json"}));
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.first().at(0).toBool(), true);
        QCOMPARE(finished.first().at(2).toInt(), 1);
    }

    void exportEverything()
    {
        SettingsManager manager;
        select(manager, kKeys);
        manager.exportConfig(drive());
        const QString set = QDir(drive()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot).first().absoluteFilePath();
        QCOMPARE(snapshot(set), snapshot(m_sandbox->path(QStringLiteral("/data/norbix"))));
    }

    void selectionIsClearedAfterEachRun()
    {
        SettingsManager manager;
        select(manager, {"display"});
        manager.exportConfig(drive());
        const QString set = QDir(drive()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot).first().absoluteFilePath();
        QDir(set).removeRecursively();
        manager.exportConfig(drive());
        const QString second = QDir(drive()).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot).first().absoluteFilePath();
        QVERIFY(snapshot(second).isEmpty());
    }

    // Within one second the folder name repeats; what is already there stays.
    void exportDoesNotOverwrite()
    {
        const QDateTime when(QDate(2024, 3, 7), QTime(9, 5, 1));
        SettingsManager::setClock([when] { return when; });
        const QString set = drive() + QLatin1Char('/') + SettingsManager::setFolderName(QStringLiteral("norbix-A1B2C3"), when);
        TestSandbox::writeFile(set + QStringLiteral("/display.ini"), "earlier export");
        TestSandbox::writeFile(set + QStringLiteral("/wallpaper/current.png"), "earlier wallpaper");
        SettingsManager manager;
        select(manager, {"display", "wallpaperSettings", "languageSettings"});
        manager.exportConfig(drive());
        SettingsManager::setClock({});
        QCOMPARE(QDir(drive()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList({QFileInfo(set).fileName()}));
        QCOMPARE(TestSandbox::readFile(set + QStringLiteral("/display.ini")), QByteArray("earlier export"));
        QCOMPARE(TestSandbox::readFile(set + QStringLiteral("/wallpaper/current.png")), QByteArray("earlier wallpaper"));
        // A group not in the earlier set is added to it.
        QVERIFY(QFile::exists(set + QStringLiteral("/language.ini")));
    }

    void exportToUnwritableDriveChangesNothing()
    {
        const QString notADrive = drive() + QStringLiteral("/file-not-folder");
        TestSandbox::writeFile(notADrive, "x");
        const auto data = snapshot(m_sandbox->path(QStringLiteral("/data/norbix")));
        const auto media = snapshot(m_sandbox->path(QStringLiteral("/media")));
        SettingsManager manager;
        QSignalSpy finished(&manager, &SettingsManager::exportFinished);
        select(manager, kKeys);
        manager.exportConfig(notADrive);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.first().at(0).toBool(), false);
        QCOMPARE(snapshot(m_sandbox->path(QStringLiteral("/data/norbix"))), data);
        QCOMPARE(snapshot(m_sandbox->path(QStringLiteral("/media"))), media);
    }

    // Another terminal's api.ini comes with its server settings but never with its name.
    void importApiSettingsClearsTheId()
    {
        const QString set = drive() + QStringLiteral("/norbix-FFFFFF-01-01-2024-00-00-00");
        TestSandbox::writeFile(set + QStringLiteral("/api.ini"),
                               "[General]\nId=norbix-FFFFFF\nURL=wss://mgmt.example.org/api/v1/ws\nEnabled=true\nAccount=acme\n");
        SettingsManager manager;
        select(manager, {"apiSettings"});
        manager.importConfig(set);
        QSettings api(m_sandbox->dataFile("api.ini"), QSettings::IniFormat);
        // This terminal's own name, made from its wired adapter, and set on the system.
        QCOMPARE(api.value("Id").toString(), QStringLiteral("norbix-4A7B12"));
        QVERIFY(m_runner->commandLines().contains(QStringList({"sudo", "hostname", "norbix-4A7B12"})));
        QCOMPARE(api.value("URL").toString(), QStringLiteral("wss://mgmt.example.org/api/v1/ws"));
        QCOMPARE(api.value("Account").toString(), QStringLiteral("acme"));
        QCOMPARE(api.value("Enabled").toBool(), true);
    }

    // Chosen groups missing from the set are reset; groups not chosen are untouched.
    void importPartialSet()
    {
        const QString set = drive() + QStringLiteral("/partial");
        TestSandbox::writeFile(set + QStringLiteral("/display.ini"), "[General]\nMode=2\n");
        TestSandbox::writeFile(set + QStringLiteral("/language.ini"), "[General]\nLanguage=fr\n"); // not chosen
        const auto before = snapshot(m_sandbox->path(QStringLiteral("/data/norbix")));

        SettingsManager manager;
        QSignalSpy finished(&manager, &SettingsManager::importFinished);
        select(manager, {"display", "timeSettings", "wallpaperSettings"});
        manager.importConfig(set);

        auto expected = before;
        expected.insert(QStringLiteral("display.ini"), "[General]\nMode=2\n");
        expected.remove(QStringLiteral("time.ini"));
        expected.remove(QStringLiteral("wallpaper/current.png"));
        expected.remove(QStringLiteral("wallpaper/library/sea.jpg"));
        QCOMPARE(snapshot(m_sandbox->path(QStringLiteral("/data/norbix"))), expected);
        QVERIFY(QFileInfo(m_sandbox->dataFile("wallpaper")).isDir());
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.first().at(0).toInt(), 1);
        QCOMPARE(finished.first().at(1).toStringList(), QStringList({"timeSettings", "wallpaperSettings"}));
    }

    void importReplacesWallpapersWhole()
    {
        const QString set = drive() + QStringLiteral("/set");
        TestSandbox::writeFile(set + QStringLiteral("/wallpaper/current.png"), "NEW");
        TestSandbox::writeFile(set + QStringLiteral("/wallpaper/library/forest.jpg"), "FOREST");
        SettingsManager manager;
        select(manager, {"wallpaperSettings"});
        manager.importConfig(set);
        const QMap<QString, QByteArray> expected{{"current.png", "NEW"}, {"library/forest.jpg", "FOREST"}};
        QCOMPARE(snapshot(m_sandbox->dataFile("wallpaper")), expected);
    }

    void importWithNothingChosenChangesNothing()
    {
        int reports = 0;
        SettingsChange::setReporter([&reports] { ++reports; });
        const QString set = drive() + QStringLiteral("/set");
        TestSandbox::writeFile(set + QStringLiteral("/display.ini"), "other");
        const auto before = snapshot(m_sandbox->path(QStringLiteral("/data/norbix")));
        SettingsManager manager;
        QSignalSpy finished(&manager, &SettingsManager::importFinished);
        manager.importConfig(set);
        QCOMPARE(snapshot(m_sandbox->path(QStringLiteral("/data/norbix"))), before);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.first().at(0).toInt(), 0);
        // The server is still asked for a fresh report.
        QCOMPARE(reports, 1);
        SettingsChange::setReporter({});
    }

    void importedConnectionsReachTheScreens()
    {
        const QString set = drive() + QStringLiteral("/set");
        TestSandbox::writeFile(set + QStringLiteral("/connections.json"), R"([{"type":3,"name":"Imported","address":"h"}])");
        QSignalSpy reloaded(ConnectionManager::getInstance(), &ConnectionManager::updateConnections);
        SettingsManager manager;
        select(manager, {"connections"});
        manager.importConfig(set);
        QCOMPARE(reloaded.count(), 1);
        QCOMPARE(ConnectionManager::getInstance()->listConnectionNames(), QStringList({"Imported"}));
    }

    void copyPathCopiesTreeWithoutOverwriting()
    {
        const QString source = m_sandbox->path(QStringLiteral("/src"));
        const QString target = m_sandbox->path(QStringLiteral("/dst"));
        TestSandbox::writeFile(source + QStringLiteral("/a.txt"), "A");
        TestSandbox::writeFile(source + QStringLiteral("/one/two/three/deep.txt"), "DEEP");
        QDir().mkpath(source + QStringLiteral("/empty"));
        TestSandbox::writeFile(target + QStringLiteral("/a.txt"), "kept");
        copyPath(source, target);
        const QMap<QString, QByteArray> expected{{"a.txt", "kept"}, {"one/two/three/deep.txt", "DEEP"}};
        QCOMPARE(snapshot(target), expected);
        QVERIFY(QFileInfo(target + QStringLiteral("/empty")).isDir());

        const QString none = m_sandbox->path(QStringLiteral("/nothing"));
        copyPath(m_sandbox->path(QStringLiteral("/missing")), none);
        QVERIFY(!QFileInfo::exists(none));
    }

    void folderListings()
    {
        QDir().mkpath(m_sandbox->path(QStringLiteral("/media/STICK/random-folder")));
        TestSandbox::writeFile(m_sandbox->path(QStringLiteral("/media/STICK/norbix-1-01-01-2024-00-00-00/time.ini")), "x");
        TestSandbox::writeFile(m_sandbox->path(QStringLiteral("/media/USB/only-wallpaper/wallpaper/a.png")), "x");
        TestSandbox::writeFile(m_sandbox->path(QStringLiteral("/media/not-a-drive.txt")), "x");
        SettingsManager manager;
        QCOMPARE(manager.listFolders(), QStringList({m_sandbox->path("/media/STICK"), m_sandbox->path("/media/USB")}));
        QCOMPARE(manager.listFoldersToImport(), QStringList({m_sandbox->path("/media/STICK/norbix-1-01-01-2024-00-00-00"),
                                                              m_sandbox->path("/media/USB/only-wallpaper")}));
    }
};

QTEST_GUILESS_MAIN(tst_SettingsIO)
#include "tst_settingsio.moc"
