#include "DisplayRevertGuard.h"
#include "FakeCommandRunner.h"
#include "ScreenListModel.h"
#include "ScreensBackend.h"
#include "SettingsChange.h"
#include "TestSandbox.h"
#include "XrandrCommand.h"
#include "XrandrParser.h"

#include <QAbstractItemModelTester>
#include <QSettings>
#include <QtTest>

Q_DECLARE_METATYPE(XrandrOutputSetting)

namespace {

QByteArray fixture(const QString& name)
{
    return TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/") + name);
}

XrandrOutputSetting output(const QString& name, const QString& resolution, const QString& rate, int orientation = 0,
                           bool primary = false)
{
    XrandrOutputSetting setting;
    setting.name = name;
    setting.resolution = resolution;
    setting.rate = rate;
    setting.orientation = orientation;
    setting.primary = primary;
    return setting;
}

// The xrandr commands among the recorded calls, as one text each (program and arguments joined).
QStringList xrandrCalls(const FakeCommandRunner& runner)
{
    QStringList lines;
    for (const auto& call : runner.calls.snapshot()) {
        if (call.program == QLatin1String("xrandr") && !call.arguments.isEmpty())
            lines << call.commandLine().join(QLatin1Char(' '));
    }
    return lines;
}

QString joinPerOutput(const QList<XrandrOutput>& outputs, QString (*field)(const XrandrOutput&))
{
    QStringList parts;
    for (const XrandrOutput& o : outputs)
        parts << field(o);
    return parts.join(QLatin1Char(';'));
}

} // namespace

class tst_Display : public QObject {
    Q_OBJECT

    std::unique_ptr<TestSandbox> m_sandbox;
    std::unique_ptr<FakeCommandRunner> m_runner;
    int m_reports = 0;

    QString ini() const { return m_sandbox->dataFile(QStringLiteral("display.ini")); }

private slots:
    void init()
    {
        m_sandbox = std::make_unique<TestSandbox>();
        m_runner = std::make_unique<FakeCommandRunner>();
        m_reports = 0;
        SettingsChange::setReporter([this] { ++m_reports; });
    }
    void cleanup()
    {
        SettingsChange::setReporter({});
        m_runner.reset();
        m_sandbox.reset();
    }

    void parse_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("primary");
        QTest::addColumn<QString>("geometry");     // offsets per output
        QTest::addColumn<QString>("current");      // resolution@rate per output
        QTest::addColumn<QString>("orientations");
        QTest::addColumn<QString>("modeCounts");   // resolutions per output

        QTest::newRow("terminal, two monitors") << "simulation/xrandr-query.txt" << "HDMI-1;DP-1" << "HDMI-1"
                                                << "0+0;1920+0" << "1920x1080@60.00;1920x1080@60.00" << "0;0" << "10;7";
        QTest::newRow("Xvfb, one output without a primary") << "simulation/xrandr-query-xvfb.txt" << "screen" << ""
                                                            << "0+0" << "1920x1080@0.00" << "0" << "1";
        QTest::newRow("dummy, two outputs, lone + mark") << "xrandr/xrandr-dummy-two.txt" << "DUMMY0;DUMMY1" << "DUMMY0"
                                                         << "0+0;1920+0" << "1920x1080@59.96;1280x1024@85.02" << "0;0"
                                                         << "30;30";
        QTest::newRow("dummy, three outputs") << "xrandr/xrandr-dummy-three.txt" << "DUMMY0;DUMMY1;DUMMY2" << "DUMMY0"
                                              << "0+0;1920+0;3200+0" << "1920x1080@59.96;1280x1024@85.02;1280x1024@85.02"
                                              << "0;0;0" << "30;30;30";
        QTest::newRow("dummy, four outputs") << "xrandr/xrandr-dummy-four.txt" << "DUMMY0;DUMMY1;DUMMY2;DUMMY3" << "DUMMY0"
                                             << "0+0;1920+0;3200+0;4480+0"
                                             << "1920x1080@59.96;1280x1024@85.02;1280x1024@85.02;1024x768@85.00" << "0;0;0;0"
                                             << "30;30;30;30";
        QTest::newRow("dummy, five outputs") << "xrandr/xrandr-dummy-five.txt" << "DUMMY0;DUMMY1;DUMMY2;DUMMY3;DUMMY4"
                                             << "DUMMY0" << "0+0;1920+0;3200+0;4480+0;5504+0"
                                             << "1920x1080@59.96;1280x1024@85.02;1280x1024@85.02;1024x768@85.00;800x600@85.14"
                                             << "0;0;0;0;0" << "30;30;30;30;30";
        QTest::newRow("connected output switched off") << "xrandr/xrandr-dummy-off.txt" << "DUMMY0;DUMMY1;DUMMY2;DUMMY3;DUMMY4"
                                                       << "DUMMY0" << "0+0;;3200+0;4480+0;5504+0"
                                                       << "1920x1080@59.96;@;1280x1024@85.02;1024x768@85.00;800x600@85.14"
                                                       << "0;0;0;0;0" << "30;30;30;30;30";
        QTest::newRow("rotated outputs, modes of a disconnected one") << "xrandr/xrandr-rotated.txt" << "HDMI-1;DP-1;HDMI-2"
                                                                      << "HDMI-1" << "0+0;1920+0;3000+0"
                                                                      << "1920x1080@60.00;1920x1080@60.00;1024x768@60.00"
                                                                      << "1;2;3" << "3;3;1";
    }
    void parse()
    {
        QFETCH(QString, file);
        const QByteArray text = fixture(file);
        QVERIFY(!text.isEmpty());
        const QList<XrandrOutput> outputs = XrandrParser::parse(text);
        QFETCH(QString, names);
        QCOMPARE(joinPerOutput(outputs, [](const XrandrOutput& o) { return o.name; }), names);
        QString primary;
        for (const XrandrOutput& o : outputs) {
            if (o.primary)
                primary += o.name;
        }
        QTEST(primary, "primary");
        QTEST(joinPerOutput(outputs, [](const XrandrOutput& o) { return o.offsets.join(QLatin1Char('+')); }), "geometry");
        QTEST(joinPerOutput(outputs, [](const XrandrOutput& o) { return o.currentResolution + QLatin1Char('@') + o.currentRate; }),
              "current");
        QTEST(joinPerOutput(outputs, [](const XrandrOutput& o) { return QString::number(o.orientation); }), "orientations");
        QTEST(joinPerOutput(outputs, [](const XrandrOutput& o) { return QString::number(o.resolutions.size()); }), "modeCounts");
        for (const XrandrOutput& o : outputs) {
            for (const QString& resolution : o.resolutions) {
                for (const QString& rate : o.rates.value(resolution)) {
                    QVERIFY2(!rate.isEmpty() && !rate.contains(QLatin1Char('*')) && !rate.contains(QLatin1Char('+')),
                             qPrintable(o.name + QLatin1Char(' ') + resolution + QLatin1Char(' ') + rate));
                }
            }
        }
    }

    void parseRates_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<QStringList>("rates");
        QTest::newRow("active and preferred first") << "simulation/xrandr-query.txt" << "HDMI-1" << "1920x1080"
                                                    << QStringList{"60.00", "50.00", "59.94"};
        QTest::newRow("preferred mark standing alone") << "xrandr/xrandr-dummy-two.txt" << "DUMMY1" << "1920x1080"
                                                       << QStringList{"59.96"};
        QTest::newRow("five rates") << "xrandr/xrandr-dummy-two.txt" << "DUMMY0" << "1600x1200"
                                    << QStringList{"85.00", "75.00", "70.00", "65.00", "60.00"};
        QTest::newRow("disconnected output's mode not taken") << "xrandr/xrandr-rotated.txt" << "DP-1" << "1600x900"
                                                              << QStringList();
    }
    void parseRates()
    {
        QFETCH(QString, file);
        QFETCH(QString, output);
        QFETCH(QString, resolution);
        for (const XrandrOutput& o : XrandrParser::parse(fixture(file))) {
            if (o.name == output) {
                QTEST(o.rates.value(resolution), "rates");
                return;
            }
        }
        QFAIL("output not found");
    }

    void parseBroken_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no display") << QByteArray("Can't open display \n");
        QTest::newRow("modes before any output") << QByteArray("   1920x1080     60.00*+\n   800x600  60.00\n");
        QTest::newRow("only disconnected") << QByteArray("Screen 0: minimum 1 x 1\nDP-2 disconnected (normal left)\n   800x600 60.00\n");
    }
    void parseBroken()
    {
        QFETCH(QByteArray, text);
        QVERIFY(XrandrParser::parse(text).isEmpty());
    }

    void parseGeometryVariants_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<bool>("primary");
        QTest::addColumn<QStringList>("offsets");
        QTest::addColumn<int>("orientation");
        QTest::newRow("primary, rotation word") << QByteArray("A connected primary 1080x1920+0+0 right (normal left inverted right x axis y axis) 1mm x 1mm")
                                                << true << QStringList{"0", "0"} << 3;
        QTest::newRow("no rotation word") << QByteArray("A connected 1280x1024+1920+56 (normal left inverted right x axis y axis) 1mm x 1mm")
                                          << false << QStringList{"1920", "56"} << 0;
        QTest::newRow("primary without a mode") << QByteArray("A connected primary (normal left inverted right x axis y axis)")
                                                << true << QStringList() << 0;
        QTest::newRow("inverted") << QByteArray("A connected 800x600+0+0 inverted (normal left inverted right x axis y axis)")
                                  << false << QStringList{"0", "0"} << 1;
        QTest::newRow("reflection only is not a rotation") << QByteArray("A connected 800x600+0+0 X axis (normal left)")
                                                           << false << QStringList{"0", "0"} << 0;
    }
    void parseGeometryVariants()
    {
        QFETCH(QByteArray, line);
        const QList<XrandrOutput> outputs = XrandrParser::parse(line + "\n");
        QCOMPARE(outputs.size(), 1);
        QTEST(outputs.first().primary, "primary");
        QTEST(outputs.first().offsets, "offsets");
        QTEST(outputs.first().orientation, "orientation");
    }

    void sortResolutions_data()
    {
        QTest::addColumn<QStringList>("input");
        QTest::addColumn<QStringList>("sorted");
        QTest::newRow("terminal list") << QStringList{"1920x1080", "1680x1050", "1600x900", "1280x1024", "1440x900", "1280x800",
                                                      "1280x720", "1024x768", "800x600", "640x480"}
                                       << QStringList{"640x480", "800x600", "1024x768", "1280x720", "1280x800", "1440x900",
                                                      "1280x1024", "1600x900", "1680x1050", "1920x1080"};
        // Text order and width order both get these wrong.
        QTest::newRow("pixel count, not text or width") << QStringList{"1920x1200", "2048x1152", "1920x1440", "800x600", "1366x768"}
                                                        << QStringList{"800x600", "1366x768", "1920x1200", "2048x1152", "1920x1440"};
        QTest::newRow("same count keeps order") << QStringList{"1600x900", "1200x1200", "1280x1024"}
                                                << QStringList{"1280x1024", "1600x900", "1200x1200"};
        QTest::newRow("added mode names") << QStringList{"1280x720_60.00", "1920x1080", "1024x768i"}
                                          << QStringList{"1024x768i", "1280x720_60.00", "1920x1080"};
        QTest::newRow("unreadable first") << QStringList{"800x600", "auto"} << QStringList{"auto", "800x600"};
    }
    void sortResolutions()
    {
        QFETCH(QStringList, input);
        QTEST(XrandrParser::sortedByPixels(input), "sorted");
    }

    void command_data()
    {
        QTest::addColumn<QList<XrandrOutputSetting>>("order");
        QTest::addColumn<bool>("mirror");
        QTest::addColumn<QString>("command");
        const auto a = output("HDMI-1", "1920x1080", "60.00");
        const auto ap = output("HDMI-1", "1920x1080", "60.00", 0, true);
        const auto b = output("DP-1", "1280x1024", "75.02", 2);
        const auto bp = output("DP-1", "1280x1024", "75.02", 2, true);
        const auto c = output("DP-2", "1024x768", "60.00", 1);
        const auto cp = output("DP-2", "1024x768", "60.00", 1, true);
        const auto d = output("HDMI-2", "800x600", "56.25", 3);
        const auto dp = output("HDMI-2", "800x600", "56.25", 3, true);
        QTest::newRow("one") << QList<XrandrOutputSetting>{ap} << false
                             << "xrandr --output HDMI-1 --mode 1920x1080 --rotate normal --rate 60.00 --primary ";
        QTest::newRow("one, not primary, mirror") << QList<XrandrOutputSetting>{b} << true
                                                  << "xrandr --output DP-1 --mode 1280x1024 --rotate left --rate 75.02  ";
        QTest::newRow("two, extend, first primary")
            << QList<XrandrOutputSetting>{ap, b} << false
            << "xrandr --output DP-1 --mode 1280x1024 --rotate left --rate 75.02  "
               "--output HDMI-1 --left-of DP-1 --mode 1920x1080 --rotate normal --rate 60.00 --primary ";
        QTest::newRow("two, mirror, second primary")
            << QList<XrandrOutputSetting>{a, bp} << true
            << "xrandr --output DP-1 --mode 1280x1024 --rotate left --rate 75.02 --primary "
               "--output HDMI-1 --same-as DP-1 --mode 1920x1080 --rotate normal --rate 60.00  ";
        QTest::newRow("three, extend, middle primary")
            << QList<XrandrOutputSetting>{a, bp, c} << false
            << "xrandr --output DP-2 --mode 1024x768 --rotate inverted --rate 60.00  "
               "--output DP-1 --left-of DP-2 --mode 1280x1024 --rotate left --rate 75.02 --primary "
               "--output HDMI-1 --left-of DP-1 --mode 1920x1080 --rotate normal --rate 60.00  ";
        QTest::newRow("three, mirror, last primary")
            << QList<XrandrOutputSetting>{c, a, bp} << true
            << "xrandr --output DP-1 --mode 1280x1024 --rotate left --rate 75.02 --primary "
               "--output HDMI-1 --same-as DP-1 --mode 1920x1080 --rotate normal --rate 60.00  "
               "--output DP-2 --same-as HDMI-1 --mode 1024x768 --rotate inverted --rate 60.00  ";
        QTest::newRow("four, extend, last primary")
            << QList<XrandrOutputSetting>{a, b, c, dp} << false
            << "xrandr --output HDMI-2 --mode 800x600 --rotate right --rate 56.25 --primary "
               "--output DP-2 --left-of HDMI-2 --mode 1024x768 --rotate inverted --rate 60.00  "
               "--output DP-1 --left-of DP-2 --mode 1280x1024 --rotate left --rate 75.02  "
               "--output HDMI-1 --left-of DP-1 --mode 1920x1080 --rotate normal --rate 60.00  ";
        QTest::newRow("four, mirror, third primary")
            << QList<XrandrOutputSetting>{d, a, cp, b} << true
            << "xrandr --output DP-1 --mode 1280x1024 --rotate left --rate 75.02  "
               "--output DP-2 --same-as DP-1 --mode 1024x768 --rotate inverted --rate 60.00 --primary "
               "--output HDMI-1 --same-as DP-2 --mode 1920x1080 --rotate normal --rate 60.00  "
               "--output HDMI-2 --same-as HDMI-1 --mode 800x600 --rotate right --rate 56.25  ";
        QTest::newRow("five are not applied") << QList<XrandrOutputSetting>{a, b, c, d, output("X", "640x480", "60.00")} << false
                                              << "";
        QTest::newRow("nothing") << QList<XrandrOutputSetting>{} << false << "";
    }
    void command()
    {
        QFETCH(QList<XrandrOutputSetting>, order);
        QFETCH(bool, mirror);
        QTEST(XrandrCommand::build(order, mirror), "command");
    }

    // Every arrangement of 1 to 4 outputs, every primary position, both modes: the command read
    // back segment by segment names each output once, in reverse order, relative to its right
    // neighbour, with the primary flag on exactly the primary one.
    void commandMatrix()
    {
        const QStringList names{"A-1", "B-2", "C-3", "D-4"};
        for (int count = 1; count <= 4; ++count) {
            for (int primary = 0; primary < count; ++primary) {
                for (bool mirror : {false, true}) {
                    QList<XrandrOutputSetting> order;
                    for (int i = 0; i < count; ++i)
                        order << output(names.at(i), QStringLiteral("%1x%2").arg(640 + i).arg(480 + i),
                                        QStringLiteral("6%1.00").arg(i), i % 4, i == primary);
                    const QStringList args = CommandRunner::split(XrandrCommand::build(order, mirror));
                    QCOMPARE(args.value(0), QStringLiteral("xrandr"));
                    QStringList segments = args.mid(1).join(QLatin1Char(' ')).split(QStringLiteral("--output "), Qt::SkipEmptyParts);
                    QCOMPARE(segments.size(), count);
                    for (int s = 0; s < count; ++s) {
                        const int i = count - 1 - s;
                        const QStringList words = segments.at(s).split(QLatin1Char(' '), Qt::SkipEmptyParts);
                        QStringList expected{names.at(i)};
                        if (i + 1 < count)
                            expected << (mirror ? "--same-as" : "--left-of") << names.at(i + 1);
                        expected << "--mode" << order.at(i).resolution << "--rotate"
                                 << QStringList{"normal", "inverted", "left", "right"}.at(i % 4) << "--rate" << order.at(i).rate;
                        if (i == primary)
                            expected << "--primary";
                        QCOMPARE(words, expected);
                    }
                }
            }
        }
    }

    void backendReads()
    {
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("simulation/xrandr-query.txt")));
        ScreensBackend screens;
        QVERIFY(screens.isDataUpdated());
        QCOMPARE(screens.listScreens(), (QStringList{"HDMI-1", "DP-1"}));
        QCOMPARE(screens.getPrimaryScreen(), QStringLiteral("HDMI-1"));
        QCOMPARE(screens.getPrimaryScreenPos(), 0);
        QCOMPARE(screens.getResolutions("DP-1"),
                 (QStringList{"640x480", "800x600", "1024x768", "1280x720", "1280x1024", "1680x1050", "1920x1080"}));
        QCOMPARE(screens.getRefreshRate("DP-1", "1920x1080"), (QStringList{"60.00", "74.97", "59.94"}));
        QCOMPARE(screens.getRefreshRate("DP-1", "1600x900"), QStringList());
        QCOMPARE(screens.getCurrentResolution("HDMI-1"), QStringLiteral("1920x1080"));
        QCOMPARE(screens.getGeometry("DP-1"), QRect(1920, 0, 1920, 1080));
        QCOMPARE(screens.getScreenDisplayNameAtString("DP-1"), QStringLiteral("Display 2"));
        QCOMPARE(screens.getRealOffsets(), (QStringList{"HDMI-1", "DP-1"}));
        QCOMPARE(screens.getResolutions("VGA-1"), QStringList());
    }

    void backendSavedOrderNumbers()
    {
        TestSandbox::writeFile(ini(), "[Order]\nScreenOrder=DP-1,GONE-1,HDMI-1\n");
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("simulation/xrandr-query.txt")));
        ScreensBackend screens;
        QCOMPARE(screens.arrangement(), (QStringList{"DP-1", "HDMI-1"}));
        QCOMPARE(screens.getScreenAt(0), QStringLiteral("DP-1"));
        QCOMPARE(screens.getScreenNumberAt(0), 2); // HDMI-1, first in xrandr's list, is the second display
        QCOMPARE(screens.getScreenDisplayNameAt(1), QStringLiteral("Display 1"));
        QCOMPARE(screens.getPrimaryScreenPos(), 1);
        screens.swap(0, 1);
        QCOMPARE(screens.arrangement(), (QStringList{"HDMI-1", "DP-1"}));
        screens.swap(0, 7);
        QCOMPARE(screens.arrangement(), (QStringList{"HDMI-1", "DP-1"}));
    }

    void backendKeepsStateWhenXrandrFails_data()
    {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("prints nothing") << QByteArray() << 0;
        QTest::newRow("fails") << QByteArray("Can't open display \n") << 1;
    }
    void backendKeepsStateWhenXrandrFails()
    {
        QFETCH(QByteArray, output);
        QFETCH(int, exitCode);
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("simulation/xrandr-query.txt")));
        ScreensBackend screens;
        ScreenListModel model(&screens);
        m_runner->answer(QStringLiteral("xrandr"), output, exitCode, "xrandr: cannot open display\n");
        screens.updateInfo();
        QCOMPARE(screens.listScreens(), (QStringList{"HDMI-1", "DP-1"}));
        QCOMPARE(screens.getCurrentResolution("DP-1"), QStringLiteral("1920x1080"));
        QCOMPARE(model.rowCount(), 2);
    }

    void apply()
    {
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("xrandr/xrandr-dummy-two.txt")));
        ScreensBackend screens;
        TestSandbox::writeFile(ini(), "TurnOffTime=2\nSleepTime=4\n");
        m_runner->calls.clear();
        screens.setMode(0);
        screens.makePrimary("DUMMY1");
        screens.setScreenAt("DUMMY1", 0);
        screens.setScreenAt("DUMMY0", 1);
        screens.applySettings("DUMMY1", 2, "1024x768", "70.07");
        QCOMPARE(m_runner->commandLines(),
                 (QList<QStringList>{
                     {"xrandr", "--output", "DUMMY0", "--mode", "1920x1080", "--rotate", "normal", "--rate", "59.96",
                      "--output", "DUMMY1", "--left-of", "DUMMY0", "--mode", "1024x768", "--rotate", "left", "--rate", "70.07",
                      "--primary"},
                     {"gsettings", "set", "org.gnome.desktop.screensaver", "lock-enabled", "false"},
                     {"xset", "dpms", "300", "300", "0", "s", "off"},
                     {"killall", "xautolock"},
                     {"xautolock", "-time", "360", "-locker", "/opt/norbix/tools/suspend.sh"}}));
        QVERIFY(m_runner->calls.last().detached);
        QCOMPARE(m_reports, 1);

        QSettings saved(ini(), QSettings::IniFormat);
        QCOMPARE(saved.value("DUMMY1/Resolution").toString(), QStringLiteral("1024x768"));
        QCOMPARE(saved.value("DUMMY1/Rate").toString(), QStringLiteral("70.07"));
        QCOMPARE(saved.value("DUMMY1/Primary").toBool(), true);
        QCOMPARE(saved.value("DUMMY1/Orientation").toInt(), 2);
        QCOMPARE(saved.value("Mode").toInt(), 0);
        QCOMPARE(saved.value("Order/ScreenOrder").toString(), QStringLiteral("DUMMY1,DUMMY0"));
        QCOMPARE(screens.arrangement(), (QStringList{"DUMMY1", "DUMMY0"}));

        // A second apply names the primary in one group only, and starts from an empty order.
        m_runner->calls.clear();
        screens.makePrimary("DUMMY0");
        screens.setMode(1);
        screens.setScreenAt("DUMMY0", 0);
        screens.setScreenAt("DUMMY1", 1);
        screens.applySettings("DUMMY0", 0, "1280x1024", "60.02");
        saved.sync();
        QCOMPARE(saved.value("DUMMY1/Primary").toBool(), false);
        QCOMPARE(saved.value("DUMMY0/Primary").toBool(), true);
        QCOMPARE(saved.value("Mode").toInt(), 1);
        QCOMPARE(screens.getMode(), 1);
        QVERIFY(screens.isMirroring());
        QCOMPARE(saved.value("Order/ScreenOrder").toString(), QStringLiteral("DUMMY0,DUMMY1"));
        QCOMPARE(xrandrCalls(*m_runner),
                 QStringList("xrandr --output DUMMY1 --mode 1024x768 --rotate left --rate 70.07 --output DUMMY0 --same-as DUMMY1 "
                             "--mode 1280x1024 --rotate normal --rate 60.02 --primary"));
    }

    void applyFiveSavedNotApplied()
    {
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("xrandr/xrandr-dummy-five.txt")));
        ScreensBackend screens;
        m_runner->calls.clear();
        const QStringList order{"DUMMY4", "DUMMY3", "DUMMY2", "DUMMY1", "DUMMY0"};
        for (int i = 0; i < order.size(); ++i)
            screens.setScreenAt(order.at(i), i);
        screens.applySettings("DUMMY4", 0, "800x600", "60.32");
        QCOMPARE(xrandrCalls(*m_runner), QStringList());
        QCOMPARE(QSettings(ini(), QSettings::IniFormat).value("Order/ScreenOrder").toString(), order.join(','));
        QCOMPARE(QSettings(ini(), QSettings::IniFormat).value("DUMMY4/Resolution").toString(), QStringLiteral("800x600"));
        QCOMPARE(m_reports, 1);

        // The replay of that file runs nothing either.
        m_runner->calls.clear();
        screens.loadInitial();
        QCOMPARE(xrandrCalls(*m_runner), QStringList());
    }

    void replay_data()
    {
        QTest::addColumn<QString>("fixtureFile");
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("command"); // empty: none may run

        const QString two = QStringLiteral("xrandr/xrandr-dummy-two.txt");
        QTest::newRow("saved order differs from detected")
            << two
            << QByteArray("Mode=0\n[DUMMY1]\nResolution=1024x768\nRate=60.00\nPrimary=true\nOrientation=0\n"
                          "[DUMMY0]\nResolution=1280x720\nRate=59.86\nPrimary=false\nOrientation=0\n[Order]\nScreenOrder=DUMMY1,DUMMY0\n")
            << "xrandr --output DUMMY0 --mode 1280x720 --rotate normal --rate 59.86 --output DUMMY1 --left-of DUMMY0 "
               "--mode 1024x768 --rotate normal --rate 60.00 --primary";
        QTest::newRow("mirror, only one output saved")
            << two << QByteArray("Mode=1\n[DUMMY1]\nResolution=800x600\nRate=56.25\nOrientation=0\n[Order]\nScreenOrder=DUMMY0,DUMMY1\n")
            << "xrandr --output DUMMY1 --mode 800x600 --rotate normal --rate 56.25 --output DUMMY0 --same-as DUMMY1 "
               "--mode 1920x1080 --rotate normal --rate 59.96 --primary";
        QTest::newRow("unknown outputs in the order and groups")
            << two
            << QByteArray("[HDMI-7]\nResolution=1920x1080\nRate=60.00\nPrimary=true\n[Order]\nScreenOrder=HDMI-7,DUMMY1,VGA-0\n")
            << "xrandr --output DUMMY0 --mode 1920x1080 --rotate normal --rate 59.96 --primary --output DUMMY1 --left-of DUMMY0 "
               "--mode 1280x1024 --rotate normal --rate 85.02";
        QTest::newRow("missing order") << two << QByteArray("[DUMMY1]\nResolution=1280x1024\nRate=60.02\n")
                                       << "xrandr --output DUMMY1 --mode 1280x1024 --rotate normal --rate 60.02 --output DUMMY0 "
                                          "--left-of DUMMY1 --mode 1920x1080 --rotate normal --rate 59.96 --primary";
        QTest::newRow("garbled order") << two << QByteArray("[Order]\nScreenOrder=\",,, ;;\"\nMode=banana\n")
                                       << "xrandr --output DUMMY1 --mode 1280x1024 --rotate normal --rate 85.02 --output DUMMY0 "
                                          "--left-of DUMMY1 --mode 1920x1080 --rotate normal --rate 59.96 --primary";
        QTest::newRow("orientation outside 0-3, empty resolution")
            << two << QByteArray("[DUMMY0]\nOrientation=7\nResolution=\nRate=\n[DUMMY1]\nOrientation=-1\nResolution=640x480\nRate=99.99\n")
            << "xrandr --output DUMMY1 --mode 640x480 --rotate normal --rate 85.01 --output DUMMY0 --left-of DUMMY1 "
               "--mode 1920x1080 --rotate normal --rate 59.96 --primary";
        QTest::newRow("resolution the monitor does not offer")
            << two << QByteArray("[DUMMY1]\nResolution=3840x2160\nRate=30.00\nOrientation=x\n")
            << "xrandr --output DUMMY1 --mode 1280x1024 --rotate normal --rate 85.02 --output DUMMY0 --left-of DUMMY1 "
               "--mode 1920x1080 --rotate normal --rate 59.96 --primary";
        QTest::newRow("connected output without a mode left out")
            << QStringLiteral("xrandr/xrandr-dummy-off.txt")
            << QByteArray("[Order]\nScreenOrder=DUMMY1,DUMMY0\n[DUMMY1]\nResolution=\n")
            << "";
        QTest::newRow("rotations replayed") << QStringLiteral("xrandr/xrandr-rotated.txt")
                                            << QByteArray("[DP-1]\nOrientation=3\n[Order]\nScreenOrder=HDMI-2,DP-1,HDMI-1\n")
                                            << "xrandr --output HDMI-1 --mode 1920x1080 --rotate inverted --rate 60.00 --primary "
                                               "--output DP-1 --left-of HDMI-1 --mode 1920x1080 --rotate right --rate 60.00 "
                                               "--output HDMI-2 --left-of DP-1 --mode 1024x768 --rotate right --rate 60.00";
    }
    void replay()
    {
        QFETCH(QString, fixtureFile);
        QFETCH(QByteArray, file);
        QFETCH(QString, command);
        m_runner->answer(QStringLiteral("xrandr"), fixture(fixtureFile));
        TestSandbox::writeFile(ini(), file);
        ScreensBackend screens;
        m_runner->calls.clear();
        screens.loadInitial();
        const QStringList calls = xrandrCalls(*m_runner);
        if (command.isEmpty()) {
            // Five connected outputs, one without a mode: four remain, and the one without a mode is not named.
            QCOMPARE(calls.size(), 1);
            QVERIFY2(!calls.first().contains("DUMMY1"), qPrintable(calls.first()));
            QCOMPARE(CommandRunner::split(calls.first()).count("--output"), 4);
        } else {
            QCOMPARE(calls, QStringList(command));
        }
        for (const auto& call : m_runner->calls.snapshot()) {
            for (int i = 0; i < call.arguments.size(); ++i) {
                if (call.arguments.at(i) == QLatin1String("--mode") || call.arguments.at(i) == QLatin1String("--rate")) {
                    QVERIFY(i + 1 < call.arguments.size());
                    QVERIFY(!call.arguments.at(i + 1).startsWith(QLatin1String("--")));
                }
            }
        }
        // The replay ends reading the monitors again.
        QCOMPARE(m_runner->calls.last().commandLine(), QStringList("xrandr"));
    }

    void replayWithoutFile()
    {
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("xrandr/xrandr-dummy-two.txt")));
        ScreensBackend screens;
        m_runner->calls.clear();
        screens.loadInitial();
        QCOMPARE(m_runner->calls.size(), 0);
    }

    void reset()
    {
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("xrandr/xrandr-dummy-two.txt")));
        ScreensBackend screens;
        m_runner->calls.clear();
        screens.reset();
        QCOMPARE(m_runner->commandLines(), (QList<QStringList>{{"xrandr", "-s", "0"}}));
    }

    void timers_data()
    {
        QTest::addColumn<int>("turnOff");
        QTest::addColumn<int>("sleep");
        QTest::addColumn<QStringList>("xset");
        QTest::addColumn<QStringList>("xautolock"); // empty: not started
        QTest::newRow("nothing") << 0 << 0 << QStringList{"xset", "-dpms", "s", "off"} << QStringList();
        QTest::newRow("1 minute, 5 minutes") << 1 << 1 << QStringList{"xset", "dpms", "60", "60", "0", "s", "off"}
                                             << QStringList{"xautolock", "-time", "5", "-locker", "/opt/norbix/tools/suspend.sh"};
        QTest::newRow("5 minutes, 30 minutes") << 2 << 2 << QStringList{"xset", "dpms", "300", "300", "0", "s", "off"}
                                               << QStringList{"xautolock", "-time", "30", "-locker", "/opt/norbix/tools/suspend.sh"};
        QTest::newRow("30 minutes, 1 hour") << 3 << 3 << QStringList{"xset", "dpms", "1800", "1800", "0", "s", "off"}
                                            << QStringList{"xautolock", "-time", "60", "-locker", "/opt/norbix/tools/suspend.sh"};
        QTest::newRow("1 hour, 6 hours") << 4 << 4 << QStringList{"xset", "dpms", "3600", "3600", "0", "s", "off"}
                                         << QStringList{"xautolock", "-time", "360", "-locker", "/opt/norbix/tools/suspend.sh"};
        QTest::newRow("indexes beyond the tables") << 5 << -1 << QStringList{"xset", "-dpms", "s", "off"} << QStringList();
    }
    void timers()
    {
        QFETCH(int, turnOff);
        QFETCH(int, sleep);
        QFETCH(QStringList, xset);
        QFETCH(QStringList, xautolock);
        ScreensBackend screens;
        screens.setScreenTurnOffTime(turnOff);
        screens.setSleepTime(sleep);
        QCOMPARE(screens.getScreenTurnOffTime(), turnOff);
        QCOMPARE(screens.getSleepTime(), sleep);
        QCOMPARE(QSettings(ini(), QSettings::IniFormat).value("TurnOffTime").toInt(), turnOff);
        m_runner->calls.clear();
        screens.applyTurnOffTime();
        screens.applySleepTime();
        QList<QStringList> expected{{"gsettings", "set", "org.gnome.desktop.screensaver", "lock-enabled", "false"}, xset,
                                    {"killall", "xautolock"}};
        if (!xautolock.isEmpty())
            expected << xautolock;
        QCOMPARE(m_runner->commandLines(), expected);
    }

    void revert_data()
    {
        QTest::addColumn<bool>("confirm");
        QTest::newRow("not confirmed") << false;
        QTest::newRow("confirmed") << true;
    }
    void revert()
    {
        QFETCH(bool, confirm);
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("xrandr/xrandr-dummy-two.txt")));
        ScreensBackend screens;
        DisplayRevertGuard guard(&screens);
        guard.setCountdownSeconds(3);
        guard.setTickInterval(5);
        QSignalSpy reverted(&guard, &DisplayRevertGuard::reverted);
        QSignalSpy ticks(&guard, &DisplayRevertGuard::secondsLeftChanged);

        guard.capture();
        screens.makePrimary("DUMMY1");
        screens.setMode(1);
        screens.setScreenAt("DUMMY1", 0);
        screens.setScreenAt("DUMMY0", 1);
        screens.stageOutput("DUMMY0", 0, "800x600", "56.25");
        screens.applySettings("DUMMY1", 0, "1024x768", "60.00");
        const QString applied = xrandrCalls(*m_runner).last();
        QCOMPARE(applied, QStringLiteral("xrandr --output DUMMY0 --mode 800x600 --rotate normal --rate 56.25 --output DUMMY1 "
                                         "--same-as DUMMY0 --mode 1024x768 --rotate normal --rate 60.00 --primary"));
        guard.start();
        QVERIFY(guard.pending());
        QCOMPARE(guard.secondsLeft(), 3);
        m_runner->calls.clear();

        if (confirm) {
            guard.confirm();
            QVERIFY(!guard.pending());
            QTest::qWait(50);
            QCOMPARE(reverted.count(), 0);
            QCOMPARE(xrandrCalls(*m_runner), QStringList());
            QCOMPARE(QSettings(ini(), QSettings::IniFormat).value("DUMMY0/Resolution").toString(), QStringLiteral("800x600"));
            return;
        }
        QTRY_COMPARE(reverted.count(), 1);
        QVERIFY(!guard.pending());
        QCOMPARE(guard.secondsLeft(), 0);
        QCOMPARE(ticks.count(), 1 + 3); // start, then one per second of the countdown
        QCOMPARE(xrandrCalls(*m_runner),
                 QStringList("xrandr --output DUMMY1 --mode 1280x1024 --rotate normal --rate 85.02 --output DUMMY0 --left-of DUMMY1 "
                             "--mode 1920x1080 --rotate normal --rate 59.96 --primary"));
        QSettings saved(ini(), QSettings::IniFormat);
        QCOMPARE(saved.value("Mode").toInt(), 0);
        QCOMPARE(saved.value("Order/ScreenOrder").toString(), QStringLiteral("DUMMY0,DUMMY1"));
        QCOMPARE(saved.value("DUMMY0/Resolution").toString(), QStringLiteral("1920x1080"));
        QCOMPARE(saved.value("DUMMY0/Primary").toBool(), true);
        QCOMPARE(saved.value("DUMMY1/Resolution").toString(), QStringLiteral("1280x1024"));
        QCOMPARE(saved.value("DUMMY1/Primary").toBool(), false);
        // Only once: a late confirmation changes nothing.
        guard.confirm();
        guard.revert();
        QCOMPARE(reverted.count(), 1);
    }

    void model()
    {
        TestSandbox::writeFile(ini(), "[Order]\nScreenOrder=DP-1,HDMI-2,HDMI-1\n");
        m_runner->answer(QStringLiteral("xrandr"), fixture(QStringLiteral("xrandr/xrandr-rotated.txt")));
        ScreensBackend screens;
        ScreenListModel model(&screens);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.roleNames().value(257), QByteArray("tableData"));
        QCOMPARE(model.roleNames().value(262), QByteArray("grid"));
        const auto at = [&](int row, int role) { return model.data(model.index(row), role); };
        QCOMPARE(at(0, ScreenListModel::NameRole).toString(), QStringLiteral("DP-1"));
        QCOMPARE(at(0, ScreenListModel::DisplayRole).toString(), QStringLiteral("Display 1"));
        QCOMPARE(at(2, ScreenListModel::DisplayRole).toString(), QStringLiteral("Display 3"));
        QCOMPARE(at(2, ScreenListModel::PrimaryRole).toBool(), true);
        QCOMPARE(at(0, ScreenListModel::PrimaryRole).toBool(), false);
        QCOMPARE(model.active(), QStringLiteral("HDMI-1")); // the primary is selected first
        QCOMPARE(at(2, ScreenListModel::ActiveRole).toBool(), true);
        QCOMPARE(at(1, ScreenListModel::TableDataRole).toMap().value("orientation").toInt(), 3);
        // Portrait DP-1 (1080x1920), portrait HDMI-2 (768x1024), inverted HDMI-1 (1920x1080): 3768 wide.
        const QVariantMap first = at(0, ScreenListModel::GridRole).toMap();
        const QVariantMap second = at(1, ScreenListModel::GridRole).toMap();
        QCOMPARE(first.value("x").toDouble(), 0.0);
        QCOMPARE(first.value("width").toDouble(), 1080.0 / 3768);
        QCOMPARE(first.value("height").toDouble(), 1.0);
        QCOMPARE(second.value("x").toDouble(), 1080.0 / 3768);
        QCOMPARE(second.value("height").toDouble(), 1024.0 / 1920);

        QSignalSpy active(&model, &ScreenListModel::activeChanged);
        model.setActive("DP-1");
        model.setActive("NOPE");
        QCOMPARE(active.count(), 1);
        QCOMPARE(model.active(), QStringLiteral("DP-1"));

        model.move(0, 1);
        QCOMPARE(model.getName(0), QStringLiteral("HDMI-2"));
        QCOMPARE(model.getName(1), QStringLiteral("DP-1"));
        QCOMPARE(model.data(model.index(1), ScreenListModel::DisplayRole).toString(), QStringLiteral("Display 2"));
        QCOMPARE(screens.arrangement(), (QStringList{"HDMI-2", "DP-1", "HDMI-1"}));
        model.move(2, 5);
        QCOMPARE(screens.arrangement(), (QStringList{"HDMI-2", "DP-1", "HDMI-1"}));
    }
};

QTEST_GUILESS_MAIN(tst_Display)
#include "tst_display.moc"
