#include "FakeCommandRunner.h"
#include "InputParsers.h"
#include "KeyboardsLayoutModel.h"
#include "LanguageBackend.h"
#include "MouseSettingsBackend.h"
#include "TestSandbox.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QSettings>
#include <QtTest>

using namespace InputParsers;

namespace {

QByteArray fixture(const QString& name)
{
    return TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/simulation/") + name);
}

QString keyboardIni(const TestSandbox& sandbox)
{
    return sandbox.dataFile(QStringLiteral("keyboard.ini"));
}

void writeKeyboard(const TestSandbox& sandbox, const QVariantMap& values)
{
    QSettings settings(keyboardIni(sandbox), QSettings::IniFormat);
    for (auto it = values.begin(); it != values.end(); ++it)
        settings.setValue(it.key(), it.value());
}

QVariant readKeyboard(const TestSandbox& sandbox, const QString& key)
{
    return QSettings(keyboardIni(sandbox), QSettings::IniFormat).value(key);
}

QStringList bash(const QString& script)
{
    return {QStringLiteral("bash"), QStringLiteral("-c"), script};
}

const QString kLayoutTool = QStringLiteral("/opt/norbix/xkblayout-state print %s");

} // namespace

class tst_Input : public QObject {
    Q_OBJECT

private slots:
    void deviceList_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("ids");
        QTest::newRow("terminal: tree decoration dropped") << fixture(QStringLiteral("xinput-list-short.txt"))
            << QStringList{"Virtual core pointer", "Virtual core XTEST pointer", "Logitech USB Optical Mouse",
                           "SYNA3602:00 0911:5288 Touchpad", "Virtual core keyboard", "Virtual core XTEST keyboard",
                           "Power Button", "Dell KB216 Wired Keyboard"}
            << QStringList{"2", "4", "9", "11", "3", "5", "6", "8"};
        QTest::newRow("Xvfb") << QByteArray("⎡ Virtual core pointer                    \tid=2\t[master pointer  (3)]\n"
                                            "⎜   ↳ Xvfb mouse                              \tid=6\t[slave  pointer  (2)]\n")
                              << QStringList{"Virtual core pointer", "Xvfb mouse"} << QStringList{"2", "6"};
        QTest::newRow("name with digits first") << QByteArray("⎜   ↳ 2.4G Wireless Mouse\tid=12\t[slave  pointer  (2)]\n")
                                                << QStringList{"2.4G Wireless Mouse"} << QStringList{"12"};
        QTest::newRow("no id field") << QByteArray("⎡ Virtual core pointer\n⎜   ↳ Mouse\tid=\t[x]\n") << QStringList{} << QStringList{};
        QTest::newRow("error text") << QByteArray("Unable to connect to X server\n") << QStringList{} << QStringList{};
        QTest::newRow("empty") << QByteArray() << QStringList{} << QStringList{};
    }
    void deviceList()
    {
        QFETCH(QByteArray, output);
        QFETCH(QStringList, names);
        QFETCH(QStringList, ids);
        QStringList gotNames, gotIds;
        for (const XinputDevice& device : parseDeviceList(output)) {
            gotNames << device.name;
            gotIds << device.id;
        }
        QCOMPARE(gotNames, names);
        QCOMPARE(gotIds, ids);
    }

    void accelSpeed_data()
    {
        QTest::addColumn<QByteArray>("properties");
        QTest::addColumn<bool>("listed");
        QTest::addColumn<double>("speed");
        QTest::newRow("mouse") << fixture(QStringLiteral("xinput-list-props-mouse.txt")) << true << 0.0;
        QTest::newRow("touchpad") << fixture(QStringLiteral("xinput-list-props-touchpad.txt")) << true << -0.4;
        QTest::newRow("legacy acceleration only") << fixture(QStringLiteral("xinput-list-props-xtest.txt")) << false << 0.0;
        QTest::newRow("only the default listed") << QByteArray("\tlibinput Accel Speed Default (332):\t0.500000\n") << false << 0.0;
        QTest::newRow("value not a number") << QByteArray("\tlibinput Accel Speed (331):\tabc\n") << false << 0.0;
        QTest::newRow("device gone") << QByteArray() << false << 0.0;
    }
    void accelSpeed()
    {
        QFETCH(QByteArray, properties);
        QFETCH(bool, listed);
        QFETCH(double, speed);
        const std::optional<double> parsed = parseAccelSpeed(properties);
        QCOMPARE(parsed.has_value(), listed);
        if (listed)
            QCOMPARE(*parsed, speed);
    }

    void buttonMap_data()
    {
        QTest::addColumn<QByteArray>("map");
        QTest::addColumn<int>("primary");
        QTest::newRow("right-handed") << QByteArray("1 2 3 4 5 6 7 8 9 10 11 12 \n") << 0;
        QTest::newRow("left-handed") << QByteArray("3 2 1 4 5 6 7 8 9 10 11 12 \n") << 1;
        QTest::newRow("leading blanks") << QByteArray("  3 2 1\n") << 1;
        QTest::newRow("13 is not 3") << QByteArray("13 2 1\n") << 0;
        QTest::newRow("device gone") << QByteArray() << 0;
    }
    void buttonMap()
    {
        QFETCH(QByteArray, map);
        QFETCH(int, primary);
        QCOMPARE(parsePrimaryButton(map), primary);
    }

    void sensitivity_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::newRow("zero") << "0" << true;
        QTest::newRow("slow end") << "-1" << true;
        QTest::newRow("fast end") << "1.0" << true;
        QTest::newRow("step") << "0.4" << true;
        QTest::newRow("above") << "1.2" << false;
        QTest::newRow("below") << "-1.01" << false;
        QTest::newRow("word") << "fast" << false;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("nan") << "nan" << false;
    }
    void sensitivity()
    {
        QFETCH(QString, text);
        QFETCH(bool, valid);
        QCOMPARE(parseSensitivity(text).has_value(), valid);
    }

    void layoutOrder_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("preferred");
        QTest::addColumn<QStringList>("ordered");
        QTest::newRow("preferred moves first") << "us,de,fr" << "fr" << QStringList{"fr", "us", "de"};
        QTest::newRow("already first") << "de,us" << "de" << QStringList{"de", "us"};
        QTest::newRow("preferred not enabled") << "us,de" << "ru" << QStringList{"us", "de"};
        QTest::newRow("no preferred") << "us,de" << "" << QStringList{"us", "de"};
        QTest::newRow("blanks and repeats") << " us, de,,us " << "de" << QStringList{"de", "us"};
        QTest::newRow("empty list") << "" << "us" << QStringList{};
    }
    void layoutOrder()
    {
        QFETCH(QString, stored);
        QFETCH(QString, preferred);
        QFETCH(QStringList, ordered);
        QCOMPARE(orderLayouts(splitLayouts(stored), preferred), ordered);
    }

    void layoutRemoval_data()
    {
        QTest::addColumn<QStringList>("enabled");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("preferred");
        QTest::addColumn<QString>("current");
        QTest::addColumn<QStringList>("layouts");
        QTest::addColumn<QString>("newPreferred");
        QTest::addColumn<QString>("newCurrent");
        QTest::newRow("preferred removed, next takes over") << QStringList{"de", "us", "fr"} << 0 << "de" << "us"
                                                            << QStringList{"us", "fr"} << "us" << "us";
        QTest::newRow("current removed") << QStringList{"us", "de", "fr"} << 1 << "us" << "de"
                                         << QStringList{"us", "fr"} << "us" << "us";
        QTest::newRow("both removed") << QStringList{"us", "de", "fr"} << 2 << "fr" << "fr"
                                      << QStringList{"us", "de"} << "us" << "us";
        QTest::newRow("other removed") << QStringList{"us", "de"} << 1 << "us" << "us" << QStringList{"us"} << "us" << "us";
        QTest::newRow("last one") << QStringList{"us"} << 0 << "us" << "us" << QStringList{} << "" << "";
        QTest::newRow("index out of range") << QStringList{"us", "de"} << 2 << "us" << "de"
                                            << QStringList{"us", "de"} << "us" << "de";
        QTest::newRow("negative index") << QStringList{"us"} << -1 << "us" << "us" << QStringList{"us"} << "us" << "us";
    }
    void layoutRemoval()
    {
        QFETCH(QStringList, enabled);
        QFETCH(int, index);
        QFETCH(QString, preferred);
        QFETCH(QString, current);
        const LayoutRemoval after = InputParsers::removeLayout(enabled, index, preferred, current);
        QTEST(after.layouts, "layouts");
        QTEST(after.preferred, "newPreferred");
        QTEST(after.current, "newCurrent");
    }

    void layoutCatalogue_data()
    {
        QTest::addColumn<QByteArray>("evdev");
        QTest::addColumn<int>("count");
        QTest::addColumn<QStringList>("firstCodes");
        QTest::addColumn<QStringList>("firstNames");
        QTest::newRow("recorded evdev.lst") << fixture(QStringLiteral("evdev.lst")) << -1
                                            << QStringList{"us", "af", "ara"}
                                            << QStringList{"English (US)", "Dari", "Arabic"};
        QTest::newRow("section ends at the next header")
            << QByteArray("! model\n  pc105 Generic\n! layout\n  us              English (US)\n  de  German\n! variant\n  chr  us: Cherokee\n")
            << 2 << QStringList{"us", "de"} << QStringList{"English (US)", "German"};
        QTest::newRow("no layout section") << QByteArray("! model\n  pc105 Generic\n") << 0 << QStringList{} << QStringList{};
        QTest::newRow("missing file (cat printed nothing)") << QByteArray() << 0 << QStringList{} << QStringList{};
    }
    void layoutCatalogue()
    {
        QFETCH(QByteArray, evdev);
        QFETCH(int, count);
        QFETCH(QStringList, firstCodes);
        QFETCH(QStringList, firstNames);
        const LanguageBackend::LayoutCatalogue catalogue = LanguageBackend::parseLayoutCatalogue(evdev);
        QCOMPARE(catalogue.internalNames.size(), catalogue.displayNames.size());
        if (count >= 0)
            QCOMPARE(catalogue.internalNames.size(), count);
        else
            QVERIFY(catalogue.internalNames.size() > 50);
        QCOMPARE(catalogue.internalNames.mid(0, firstCodes.size()), firstCodes);
        QCOMPARE(catalogue.displayNames.mid(0, firstNames.size()), firstNames);
    }

    // Only pointers that list "libinput Accel Speed" are stored, with their ids.
    void pointerDiscovery_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QString>("mouse");
        QTest::addColumn<QString>("ids");
        QTest::newRow("touchpad and mouse") << fixture(QStringLiteral("xinput-list-short.txt"))
                                            << "Logitech USB Optical Mouse,SYNA3602:00 0911:5288 Touchpad" << "9,11";
        QTest::newRow("nothing configurable") << QByteArray("⎜   ↳ Xvfb mouse\tid=6\t[slave  pointer  (2)]\n") << "" << "";
    }
    void pointerDiscovery()
    {
        QFETCH(QByteArray, list);
        TestSandbox sandbox;
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("xinput --list --short"), list);
        runner.answer(QStringLiteral("xinput --list-props 9"), fixture(QStringLiteral("xinput-list-props-mouse.txt")));
        runner.answer(QStringLiteral("xinput --list-props 11"), fixture(QStringLiteral("xinput-list-props-touchpad.txt")));
        runner.answer(QStringLiteral("xinput --list-props 4"), fixture(QStringLiteral("xinput-list-props-xtest.txt")));
        runner.answer(QStringLiteral("xinput --list-props 6"), fixture(QStringLiteral("xinput-list-props-xtest.txt")));
        MouseSettingsBackend backend;
        backend.getMouseNames();
        QTEST(readKeyboard(sandbox, QStringLiteral("Mouse")).toString(), "mouse");
        QTEST(readKeyboard(sandbox, QStringLiteral("Ids")).toString(), "ids");

        // Speed and buttons go to exactly the stored pointers.
        runner.calls.clear();
        backend.setMouseSensetivity(0.4f);
        backend.setPrimaryButton(1);
        QList<QStringList> expected;
        const QStringList ids = readKeyboard(sandbox, QStringLiteral("Ids")).toString().split(',', Qt::SkipEmptyParts);
        for (const QString& id : ids)
            expected << QStringList{"xinput", "--set-prop", id, "libinput Accel Speed", "0.4"};
        for (const QString& id : ids)
            expected << QStringList{"xinput", "set-button-map", id, "3", "2", "1"};
        QCOMPARE(runner.commandLines(), expected);
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("Sensetivity")).toDouble(), 0.4);
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("Primary")).toInt(), 1);
    }

    void speedAndButtonsRead()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        writeKeyboard(sandbox, {{"Ids", "11,9"}});
        runner.answer(QStringLiteral("xinput --list-props 11"), fixture(QStringLiteral("xinput-list-props-touchpad.txt")));
        runner.answer(QStringLiteral("xinput get-button-map 11"), "3 2 1 4 5 6 7\n");
        MouseSettingsBackend backend;
        QCOMPARE(backend.getMouseSensetivity(), -0.4f);
        QCOMPARE(backend.getPrimaryButton(), 1);
        // The first pointer is gone: nothing to read, the defaults answer.
        runner.answer(QStringLiteral("xinput --list-props 11"), {}, 1, "unable to find device 11\n");
        runner.answer(QStringLiteral("xinput get-button-map 11"), {}, 1, "unable to find device 11\n");
        QCOMPARE(backend.getMouseSensetivity(), 0.0f);
        QCOMPARE(backend.getPrimaryButton(), 0);
    }

    void refusedPointerValues()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        writeKeyboard(sandbox, {{"Ids", "9"}, {"Sensetivity", 0.2}, {"Primary", 0}});
        MouseSettingsBackend backend;
        backend.setMouseSensetivity(1.5f);
        backend.setMouseSensetivity(-3.0f);
        backend.setPrimaryButton(2);
        backend.setDoubleClickSpeed(0);
        QVERIFY(runner.calls.isEmpty());
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("Sensetivity")).toDouble(), 0.2);
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("Primary")).toInt(), 0);
    }

    void doubleClick_data()
    {
        QTest::addColumn<QByteArray>("grepOutput");
        QTest::addColumn<int>("milliseconds");
        QTest::newRow("openbox default") << QByteArray("500\n") << 500;
        QTest::newRow("two elements, first wins") << QByteArray("400\n500\n") << 400;
        QTest::newRow("no element") << QByteArray() << 0;
        QTest::newRow("garbage") << QByteArray("fast\n") << 0;
    }
    void doubleClick()
    {
        QFETCH(QByteArray, grepOutput);
        TestSandbox sandbox;
        FakeCommandRunner runner;
        const QString grep = QStringLiteral("grep -oP '(?<=<doubleClickTime>).*?(?=</doubleClickTime>)' /etc/X11/openbox/rc.xml");
        runner.answer(bash(grep).join(' '), grepOutput);
        MouseSettingsBackend backend;
        QTEST(backend.getDoubleClickSpeed(), "milliseconds");
        QCOMPARE(runner.commandLines(), QList<QStringList>{bash(grep)});

        runner.calls.clear();
        backend.setDoubleClickSpeed(700);
        QCOMPARE(runner.commandLines(),
                 (QList<QStringList>{bash("sudo sed -i -e 's|<doubleClickTime>[0-9]\\{1,\\}</doubleClickTime>|"
                                          "<doubleClickTime>700</doubleClickTime>|g' /etc/X11/openbox/rc.xml"),
                                     {"openbox", "--reconfigure"}}));
    }

    void initLayouts_data()
    {
        QTest::addColumn<QString>("layouts");
        QTest::addColumn<QString>("preferred");
        QTest::addColumn<QString>("applied"); // empty: setxkbmap not run
        QTest::newRow("preferred first") << "us,de,fr" << "fr" << "fr,us,de";
        QTest::newRow("one layout") << "de" << "de" << "de";
        QTest::newRow("shell characters dropped") << "us,de;reboot,fr" << "us" << "us,fr";
        QTest::newRow("empty list") << "" << "" << "";
        QTest::newRow("only unusable codes") << "$(reboot)" << "" << "";
    }
    void initLayouts()
    {
        QFETCH(QString, layouts);
        QFETCH(QString, preferred);
        QFETCH(QString, applied);
        TestSandbox sandbox;
        FakeCommandRunner runner;
        writeKeyboard(sandbox, {{"Layouts", layouts}, {"PreferredLayout", preferred}, {"CurrentLayout", "xx"}});
        runner.answer(kLayoutTool, "fr");
        QVERIFY(MouseSettingsBackend::initLayouts());
        QList<QStringList> expected;
        if (!applied.isEmpty())
            expected << bash("setxkbmap -layout " + applied + " -option grp:alt_shift_toggle") << QStringList{"openbox", "--reconfigure"};
        expected << kLayoutTool.split(' ');
        QCOMPARE(runner.commandLines(), expected);
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("CurrentLayout")).toString(), QStringLiteral("fr"));
    }

    // keyboard.ini as a person writes it: lists without quotes, which QSettings reads as lists.
    void handWrittenKeyboardIni()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        TestSandbox::writeFile(keyboardIni(sandbox), "[General]\nLayouts=us, de ,fr\nPreferredLayout=fr\nIds=9,11\n");
        QCOMPARE(MouseSettingsBackend::listLayoutsEnabled(), (QStringList{"us", "de", "fr"}));
        QVERIFY(MouseSettingsBackend::initLayouts());
        QCOMPARE(runner.commandLines().value(0), bash("setxkbmap -layout fr,us,de -option grp:alt_shift_toggle"));
        MouseSettingsBackend backend;
        runner.calls.clear();
        backend.setPrimaryButton(0);
        QCOMPARE(runner.commandLines(), (QList<QStringList>{{"xinput", "set-button-map", "9", "1", "2", "3"},
                                                           {"xinput", "set-button-map", "11", "1", "2", "3"}}));
        LanguageBackend language;
        QCOMPARE(language.listActiveLayoutsCount(), 3);
    }

    void layoutToolSilent()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        writeKeyboard(sandbox, {{"Layouts", "us"}, {"CurrentLayout", "us"}});
        runner.answer(kLayoutTool, "\n", 1);
        QCOMPARE(MouseSettingsBackend::getKeyboardLayout(), QStringLiteral("Unknown"));
        // X not ready: setxkbmap fails, start-up will try again; the stored current layout stays.
        runner.answer(bash("setxkbmap -layout us -option grp:alt_shift_toggle").join(' '), {}, 1, "Cannot open display \"default display\"\n");
        QVERIFY(!MouseSettingsBackend::initLayouts());
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("CurrentLayout")).toString(), QStringLiteral("us"));
    }

    // While X is not ready the layouts are tried again, a bounded number of times.
    void layoutRetry()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        writeKeyboard(sandbox, {{"Layouts", "us,de"}});
        const QString setxkbmap = bash("setxkbmap -layout us,de -option grp:alt_shift_toggle").join(' ');
        runner.answer(setxkbmap, {}, 1, "Cannot open display \"default display\"\n");
        auto layoutCalls = [&runner, &setxkbmap] {
            int count = 0;
            for (const QStringList& call : runner.commandLines())
                count += call.join(' ') == setxkbmap;
            return count;
        };

        MouseSettingsBackend never;
        never.setRetryInterval(1);
        never.startTimer();
        QTRY_COMPARE(never.attempts(), MouseSettingsBackend::kMaxAttempts);
        QTest::qWait(30);
        QCOMPARE(never.attempts(), MouseSettingsBackend::kMaxAttempts);
        QCOMPARE(layoutCalls(), MouseSettingsBackend::kMaxAttempts);
        QVERIFY(!never.layoutSet());

        runner.calls.clear();
        // Slow enough retries that the X session comes up long before they run out, however slowly
        // the test itself runs.
        MouseSettingsBackend later;
        later.setRetryInterval(200);
        later.startTimer();
        QTRY_VERIFY(later.attempts() >= 2);
        runner.answer(setxkbmap, {}); // the X session is up
        QTRY_VERIFY(later.layoutSet());
        const int attempts = later.attempts();
        QTest::qWait(30);
        QCOMPARE(later.attempts(), attempts);
        QCOMPARE(layoutCalls(), attempts);
    }

    // A missing evdev.lst leaves an empty catalogue that is known to be read.
    void missingCatalogue()
    {
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("cat /usr/share/X11/xkb/rules/evdev.lst"), {}, 1,
                      "cat: /usr/share/X11/xkb/rules/evdev.lst: No such file or directory\n");
        LanguageBackend* language = LanguageBackend::getInstance();
        QSignalSpy ready(language, &LanguageBackend::layoutsReady);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("No keyboard layouts in evdev.lst")));
        language->asyncRead();
        QVERIFY(ready.wait(10000));
        QVERIFY(language->isLayoutCatalogueReady());
        QVERIFY(language->listLocalesInternal().isEmpty());
        KeyboardsLayoutModel model;
        QVERIFY(!model.isLoading());
        QCOMPARE(model.rowCount(), 0);

        runner.answer(QStringLiteral("cat /usr/share/X11/xkb/rules/evdev.lst"), fixture(QStringLiteral("evdev.lst")));
        language->asyncRead();
        QVERIFY(ready.wait(10000));
        QVERIFY(model.rowCount() > 50);
        QCOMPARE(language->listLocalesInternal().value(0), QStringLiteral("us"));
    }

    void startSettings_data()
    {
        QTest::addColumn<QVariant>("sensitivity");
        QTest::addColumn<QVariant>("primary");
        QTest::addColumn<QStringList>("pointerCalls"); // per id, joined
        QTest::newRow("both applied") << QVariant("0.6") << QVariant("1")
                                      << QStringList{"--set-prop 9 libinput Accel Speed 0.6", "--set-prop 11 libinput Accel Speed 0.6",
                                                     "set-button-map 9 3 2 1", "set-button-map 11 3 2 1"};
        QTest::newRow("right-handed") << QVariant("-1") << QVariant("0")
                                      << QStringList{"--set-prop 9 libinput Accel Speed -1", "--set-prop 11 libinput Accel Speed -1",
                                                     "set-button-map 9 1 2 3", "set-button-map 11 1 2 3"};
        QTest::newRow("speed not a number") << QVariant("fast") << QVariant("1")
                                            << QStringList{"set-button-map 9 3 2 1", "set-button-map 11 3 2 1"};
        QTest::newRow("speed out of range, button unknown") << QVariant("4") << QVariant("7") << QStringList{};
        QTest::newRow("nothing stored") << QVariant() << QVariant() << QStringList{};
    }
    void startSettings()
    {
        QFETCH(QVariant, sensitivity);
        QFETCH(QVariant, primary);
        QFETCH(QStringList, pointerCalls);
        TestSandbox sandbox;
        FakeCommandRunner runner;
        QVariantMap stored{{"Ids", "9,11"}, {"Layouts", "us"}};
        if (sensitivity.isValid())
            stored.insert(QStringLiteral("Sensetivity"), sensitivity);
        if (primary.isValid())
            stored.insert(QStringLiteral("Primary"), primary);
        writeKeyboard(sandbox, stored);
        MouseSettingsBackend backend;
        backend.applyStartSettings();
        QStringList xinputCalls;
        bool layoutsApplied = false;
        for (const QStringList& call : runner.commandLines()) {
            if (call.first() == QLatin1String("xinput"))
                xinputCalls << call.mid(1).join(' ');
            layoutsApplied |= call == bash("setxkbmap -layout us -option grp:alt_shift_toggle");
        }
        QCOMPARE(xinputCalls, pointerCalls);
        QVERIFY(layoutsApplied);
        QVERIFY(backend.layoutSet());
    }

    void removeLayout()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        writeKeyboard(sandbox, {{"Layouts", "de,us,fr"}, {"PreferredLayout", "de"}, {"CurrentLayout", "de"}});
        LanguageBackend backend;
        QCOMPARE(backend.listActiveLayoutsCount(), 3);
        backend.removeLanguage(0);
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("Layouts")).toString(), QStringLiteral("us,fr"));
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("PreferredLayout")).toString(), QStringLiteral("us"));
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("CurrentLayout")).toString(), QStringLiteral("us"));
        QCOMPARE(runner.commandLines().value(0), bash("setxkbmap -layout us,fr -option grp:alt_shift_toggle"));
        runner.calls.clear();
        backend.removeLanguage(5);
        QVERIFY(runner.calls.isEmpty());
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("Layouts")).toString(), QStringLiteral("us,fr"));
    }

    void layoutPopupModel()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        writeKeyboard(sandbox, {{"Layouts", "us"}, {"PreferredLayout", "us"}});
        KeyboardsLayoutModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const LanguageBackend::LayoutCatalogue catalogue = LanguageBackend::parseLayoutCatalogue(fixture(QStringLiteral("evdev.lst")));
        model.setCatalogue(catalogue.internalNames, catalogue.displayNames);
        QVERIFY(!model.isLoading());
        QCOMPARE(model.rowCount(), catalogue.internalNames.size());
        const int us = catalogue.internalNames.indexOf(QStringLiteral("us"));
        const int de = catalogue.internalNames.indexOf(QStringLiteral("de"));
        const int fr = catalogue.internalNames.indexOf(QStringLiteral("fr"));
        QVERIFY(us >= 0 && de >= 0 && fr >= 0);
        QCOMPARE(model.data(model.index(us), KeyboardsLayoutModel::CheckedRole).toBool(), true);
        QCOMPARE(model.data(model.index(us), KeyboardsLayoutModel::EnabledRole).toBool(), false);
        model.addRowChecked(us); // already enabled: no change
        model.addRowChecked(fr);
        model.addRowChecked(de);
        model.addRowChecked(-1);
        model.addRowChecked(model.rowCount());
        QCOMPARE(model.checkedCount(), 2);
        model.removeRowChecked(fr);
        model.addRowChecked(fr);
        model.apply();
        // Catalogue order, appended after the enabled one; the preferred one is kept.
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("Layouts")).toString(),
                 de < fr ? QStringLiteral("us,de,fr") : QStringLiteral("us,fr,de"));
        QCOMPARE(readKeyboard(sandbox, QStringLiteral("PreferredLayout")).toString(), QStringLiteral("us"));
        QCOMPARE(runner.commandLines().value(0),
                 bash(QStringLiteral("setxkbmap -layout %1 -option grp:alt_shift_toggle")
                          .arg(readKeyboard(sandbox, QStringLiteral("Layouts")).toString())));
        QCOMPARE(model.checkedCount(), 0);
        QCOMPARE(model.data(model.index(de), KeyboardsLayoutModel::CheckedRole).toBool(), true);
    }

    void languageIndex_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("code");
        QTest::newRow("English") << 0 << "en";
        QTest::newRow("French") << 1 << "fr";
        QTest::newRow("Deutch") << 2 << "de";
        QTest::newRow("Russian") << 3 << "ru";
        QTest::newRow("past the menu") << 4 << "";
        QTest::newRow("negative") << -1 << "";
    }
    void languageIndex()
    {
        QFETCH(int, index);
        QFETCH(QString, code);
        QCOMPARE(LanguageBackend::languageCode(index), code);
        if (!code.isEmpty()) {
            TestSandbox sandbox;
            QSettings(sandbox.dataFile("language.ini"), QSettings::IniFormat).setValue("Language", code);
            LanguageBackend backend;
            QCOMPARE(backend.getCurrentSystemLanguage(), index);
        }
    }

    // A good file switches and is remembered; a missing or broken one keeps the previous language.
    void languageSwitch()
    {
        TestSandbox sandbox;
        QTemporaryDir translations;
        QVERIFY(QFile::copy(QStringLiteral(NORBIX_BUILD_DIR "/norbix_de.qm"), translations.filePath("norbix_de.qm")));
        TestSandbox::writeFile(translations.filePath("norbix_ru.qm"), "not a translation");
        LanguageBackend::setTranslationDirectories({translations.path()});
        LanguageBackend* language = LanguageBackend::getInstance();
        LanguageBackend screenObject; // what a screen makes: it hands over to the shared one
        QSignalSpy failed(language, &LanguageBackend::languageFailed);

        QVERIFY(screenObject.updateLanguage(2));
        QCOMPARE(language->getCurrentLanguage(), QStringLiteral("de"));
        QVERIFY(!language->translator()->isEmpty());
        const QString translated = language->translator()->language();

        for (int index : {1, 3}) {
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression("COULD NOT INSTALL TRANSLATION"));
            QVERIFY(!screenObject.updateLanguage(index));
        }
        QCOMPARE(failed.count(), 2);
        QCOMPARE(failed.at(0).at(0).toString(), QStringLiteral("fr"));
        QCOMPARE(language->getCurrentLanguage(), QStringLiteral("de"));
        QCOMPARE(language->getCurrentSystemLanguage(), 2);
        QVERIFY(!language->translator()->isEmpty());
        QCOMPARE(language->translator()->language(), translated);

        // English is what the screens are written in: it needs no file to go back to.
        QVERIFY(screenObject.updateLanguage(0));
        QCOMPARE(language->getCurrentLanguage(), QStringLiteral("en"));
        QVERIFY(language->translator()->isEmpty());
        QVERIFY(screenObject.updateLanguage(2));

        QVERIFY(!language->updateLanguage(9)); // not in the menu: nothing happens
        QCOMPARE(failed.count(), 2);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("Unknown language"));
        language->setCurrentLanguage(QStringLiteral("xx"));
        QCOMPARE(language->getCurrentLanguage(), QStringLiteral("de"));
        LanguageBackend::setTranslationDirectories({});
    }

    // Once the catalogue is known, stored codes X does not have are left out instead of failing
    // the whole list.
    void unknownLayoutsDropped()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("cat /usr/share/X11/xkb/rules/evdev.lst"), fixture(QStringLiteral("evdev.lst")));
        LanguageBackend* language = LanguageBackend::getInstance();
        QSignalSpy ready(language, &LanguageBackend::layoutsReady);
        language->asyncRead();
        QVERIFY(ready.wait(10000));
        runner.calls.clear();
        writeKeyboard(sandbox, {{"Layouts", "us,klingon,de"}, {"PreferredLayout", "klingon"}});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Skipping unknown keyboard layout.*klingon")));
        QVERIFY(MouseSettingsBackend::initLayouts());
        QCOMPARE(runner.commandLines().value(0), bash("setxkbmap -layout us,de -option grp:alt_shift_toggle"));
    }

    void wizardFlag()
    {
        TestSandbox sandbox;
        LanguageBackend backend;
        QVERIFY(backend.isWizardNeeded());
        backend.disableWizard();
        QVERIFY(QFile::exists(sandbox.dataFile("wizard_lock")));
        QVERIFY(!backend.isWizardNeeded());
        backend.disableWizard();
        QVERIFY(!backend.isWizardNeeded());
    }
};

QTEST_GUILESS_MAIN(tst_Input)
#include "tst_input.moc"
