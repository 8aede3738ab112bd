#include "LanguageBackend.h"
#include "TestSandbox.h"
#include "WizardBackend.h"

#include <QFile>
#include <QSignalSpy>
#include <QtTest>

namespace {

QString progressFile(const TestSandbox& sandbox)
{
    return sandbox.dataFile(QStringLiteral("wizard_progress"));
}

WizardBackend::Progress storedProgress(const TestSandbox& sandbox)
{
    return WizardBackend::parseProgress(TestSandbox::readFile(progressFile(sandbox)));
}

// Test JSON written with single quotes for readability.
QByteArray json(const char* text)
{
    return QByteArray(text).replace('\'', '"');
}

} // namespace

class tst_Wizard : public QObject {
    Q_OBJECT

private slots:
    // Files already on the terminal (imported or pushed) -> the steps still asked for.
    void stepsNeeded_data()
    {
        QTest::addColumn<QStringList>("files"); // "name|content"
        QTest::addColumn<QStringList>("steps");
        const QStringList all{"language", "keyboard", "network", "time", "management"};
        QTest::newRow("new terminal") << QStringList{} << all;
        QTest::newRow("language chosen") << QStringList{"language.ini|Language=de\n"}
                                         << QStringList{"keyboard", "network", "time", "management"};
        QTest::newRow("empty language key still asks") << QStringList{"language.ini|Language=\n"} << all;
        QTest::newRow("layouts imported") << QStringList{"keyboard.ini|Layouts=us,de\n"}
                                          << QStringList{"language", "network", "time", "management"};
        QTest::newRow("keyboard file without layouts") << QStringList{"keyboard.ini|Sensetivity=0.4\n"} << all;
        QTest::newRow("time settings imported") << QStringList{"time.ini|Is24=false\n"}
                                                << QStringList{"language", "keyboard", "network", "management"};
        QTest::newRow("managed terminal") << QStringList{"api.ini|URL=mgmt.example.org\nEnabled=true\n"}
                                          << QStringList{"language", "keyboard", "network", "time"};
        QTest::newRow("server switched on without address") << QStringList{"api.ini|Enabled=true\n"} << all;
        QTest::newRow("everything pushed: network only")
            << QStringList{"language.ini|Language=fr\n", "keyboard.ini|Layouts=fr\n", "time.ini|Is24=true\n",
                           "api.ini|URL=10.0.0.5\n"}
            << QStringList{"network"};
    }
    void stepsNeeded()
    {
        QFETCH(QStringList, files);
        QFETCH(QStringList, steps);
        TestSandbox sandbox;
        for (const QString& file : files) {
            const int bar = file.indexOf(QLatin1Char('|'));
            TestSandbox::writeFile(sandbox.dataFile(file.left(bar)), file.mid(bar + 1).toUtf8());
        }
        QCOMPARE(WizardBackend::stepsNeeded(), steps);
    }

    void parseProgress_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("current");
        QTest::newRow("valid") << json("{'steps':['language','network'],'current':'network'}")
                               << QStringList{"language", "network"} << "network";
        QTest::newRow("truncated by a power cut") << json("{'steps':['language','netw") << QStringList{} << "";
        QTest::newRow("empty file") << QByteArray() << QStringList{} << "";
        QTest::newRow("array, not object") << json("['language']") << QStringList{} << "";
        QTest::newRow("unknown step") << json("{'steps':['language','printers'],'current':'language'}")
                                      << QStringList{} << "";
        QTest::newRow("step twice") << json("{'steps':['time','time'],'current':'time'}") << QStringList{} << "";
        QTest::newRow("current outside the list") << json("{'steps':['language'],'current':'time'}")
                                                  << QStringList{} << "";
        QTest::newRow("current missing") << json("{'steps':['language']}") << QStringList{} << "";
        QTest::newRow("steps not a list") << json("{'steps':'language','current':'language'}")
                                          << QStringList{} << "";
        QTest::newRow("step not a string") << json("{'steps':['language',3],'current':'language'}")
                                           << QStringList{} << "";
    }
    void parseProgress()
    {
        QFETCH(QByteArray, json);
        QFETCH(QStringList, steps);
        QFETCH(QString, current);
        const WizardBackend::Progress progress = WizardBackend::parseProgress(json);
        QCOMPARE(progress.steps, steps);
        QCOMPARE(progress.current, current);
        if (!steps.isEmpty()) {
            const auto again = WizardBackend::parseProgress(WizardBackend::serializeProgress(progress));
            QCOMPARE(again.steps, steps);
            QCOMPARE(again.current, current);
        }
    }

    // A sequence of actions from a fresh start -> the step shown after each, "done" once finished.
    void flow_data()
    {
        QTest::addColumn<QStringList>("actions");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("straight through") << QStringList{"next", "next", "next", "next", "next"}
                                          << QStringList{"keyboard", "network", "time", "management", "done"};
        QTest::newRow("skip everything") << QStringList{"skip", "skip", "skip", "skip", "skip"}
                                         << QStringList{"keyboard", "network", "time", "management", "done"};
        QTest::newRow("back at the first step stays") << QStringList{"back", "next", "back", "back"}
                                                      << QStringList{"language", "keyboard", "language", "language"};
        QTest::newRow("back and forth") << QStringList{"next", "skip", "back", "back", "next", "next", "next"}
                                        << QStringList{"keyboard", "network", "keyboard", "language", "keyboard",
                                                       "network", "time"};
        QTest::newRow("jump, then back") << QStringList{"goto:time", "back", "goto:printers", "next"}
                                         << QStringList{"time", "network", "network", "time"};
        QTest::newRow("finish early") << QStringList{"next", "finish", "next", "back"}
                                      << QStringList{"keyboard", "done", "done", "done"};
    }
    void flow()
    {
        QFETCH(QStringList, actions);
        QFETCH(QStringList, shown);
        TestSandbox sandbox;
        WizardBackend wizard;
        wizard.start();
        QCOMPARE(wizard.currentStep(), QStringLiteral("language"));
        QVERIFY(!wizard.canGoBack());
        for (int i = 0; i < actions.size(); ++i) {
            const QString action = actions.at(i);
            if (action == QLatin1String("next"))
                wizard.next();
            else if (action == QLatin1String("skip"))
                wizard.skip();
            else if (action == QLatin1String("back"))
                wizard.back();
            else if (action.startsWith(QLatin1String("goto:")))
                QCOMPARE(wizard.goTo(action.mid(5)), wizard.steps().contains(action.mid(5)));
            else
                wizard.finish();
            const QString expected = shown.at(i);
            if (expected == QLatin1String("done")) {
                QVERIFY2(wizard.isDone(), qPrintable(action));
                QVERIFY(QFile::exists(sandbox.dataFile(QStringLiteral("wizard_lock"))));
                QVERIFY(!QFile::exists(progressFile(sandbox)));
            } else {
                QVERIFY(!wizard.isDone());
                QCOMPARE(wizard.currentStep(), expected);
                QCOMPARE(storedProgress(sandbox).current, expected);
                QVERIFY(!QFile::exists(sandbox.dataFile(QStringLiteral("wizard_lock"))));
            }
        }
    }

    void finishedWizardNeverComesBack()
    {
        TestSandbox sandbox;
        {
            WizardBackend wizard;
            wizard.start();
            for (int i = 0; i < wizard.stepCount(); ++i)
                wizard.next();
            QVERIFY(wizard.isDone());
        }
        LanguageBackend language;
        QVERIFY(!language.isWizardNeeded());
        WizardBackend second;
        QVERIFY(!second.isNeeded());
        QSignalSpy done(&second, &WizardBackend::doneChanged);
        second.start();
        QVERIFY(second.isDone());
        QCOMPARE(done.count(), 1);
        QVERIFY(second.steps().isEmpty());
        // Nothing written behind the user's back on a configured terminal.
        QVERIFY(!QFile::exists(progressFile(sandbox)));
    }

    void resumesAfterPowerCut_data()
    {
        QTest::addColumn<QByteArray>("progress");
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("current");
        QTest::newRow("resumes at the step it was on")
            << json("{'steps':['language','keyboard','network','time','management'],'current':'time'}")
            << QStringList{"language", "keyboard", "network", "time", "management"} << "time";
        QTest::newRow("keeps the course it had")
            << json("{'steps':['network','management'],'current':'management'}")
            << QStringList{"network", "management"} << "management";
        QTest::newRow("half-written progress starts over") << json("{'steps':['lang")
            << QStringList{"language", "keyboard", "network", "time", "management"} << "language";
    }
    void resumesAfterPowerCut()
    {
        QFETCH(QByteArray, progress);
        QFETCH(QStringList, steps);
        QFETCH(QString, current);
        TestSandbox sandbox;
        TestSandbox::writeFile(progressFile(sandbox), progress);
        WizardBackend wizard;
        wizard.start();
        QCOMPARE(wizard.steps(), steps);
        QCOMPARE(wizard.currentStep(), current);
        QCOMPARE(wizard.stepIndex(), steps.indexOf(current));
        // The progress file is whole again.
        QCOMPARE(storedProgress(sandbox).current, current);
    }

    void lockThatCannotBeWrittenLeavesTheWizardOpen()
    {
        TestSandbox sandbox;
        WizardBackend wizard;
        wizard.start();
        // A directory where the lock file belongs: creating it fails.
        QVERIFY(QDir().mkpath(sandbox.dataFile(QStringLiteral("wizard_lock/x"))));
        QDir(sandbox.dataFile(QStringLiteral("wizard_lock/x"))).removeRecursively();
        wizard.finish();
        QVERIFY(!wizard.isDone());
        QCOMPARE(wizard.currentStep(), QStringLiteral("language"));
    }
};

QTEST_GUILESS_MAIN(tst_Wizard)
#include "tst_wizard.moc"
