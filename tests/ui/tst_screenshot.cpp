#include "ShellProcess.h"
#include "TestSandbox.h"

#include <QFile>
#include <QImage>
#include <QSet>
#include <QStandardPaths>
#include <QtTest>

// The shell's --screenshot, under a real X server and under the offscreen platform.
class tst_Screenshot : public QObject {
    Q_OBJECT

    static ShellProcess shellIn(const TestSandbox& sandbox, const QString& workingDir)
    {
        ShellProcess shell;
        shell.workingDirectory = workingDir;
        shell.environment.insert(QStringLiteral("NORBIX_SIMULATE"), QStringLiteral("1"));
        shell.environment.insert(QStringLiteral("NORBIX_ROOT"), sandbox.root());
        shell.environment.insert(QStringLiteral("HOME"), sandbox.home());
        shell.environment.remove(QStringLiteral("QT_QUICK_BACKEND"));
        return shell;
    }

    // Not one flat colour: a rendered screen has text, panels and an accent.
    static void verifyRendered(const QString& file, const QSize& size)
    {
        QImage image(file);
        QVERIFY2(!image.isNull(), qPrintable(file));
        QCOMPARE(image.size(), size);
        QSet<QRgb> colours;
        for (int y = 0; y < image.height(); y += 7)
            for (int x = 0; x < image.width(); x += 7)
                colours.insert(image.pixel(x, y));
        QVERIFY2(colours.size() > 20, qPrintable(QStringLiteral("only %1 colours").arg(colours.size())));
    }

private slots:
    void underX_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QSize>("size");
        for (const QSize& size : {QSize(1280, 720), QSize(1920, 1080)}) {
            for (const char* page : {"main", "settings", "logs", "password", "lock", "connections", "add/rdp", "add/citrix",
                                     "add/vmware", "add/vnc", "rdp-login", "citrix-progress", "settings/certificates",
                                     "settings/export", "settings/import", "settings/updates", "settings/management",
                                     "remote-request", "help-answered"})
                QTest::addRow("%s %dx%d", page, size.width(), size.height()) << QString::fromLatin1(page) << size;
        }
    }
    void underX()
    {
        QFETCH(QString, page);
        QFETCH(QSize, size);
        if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty())
            QSKIP("Xvfb is not installed");
        TestSandbox sandbox;
        // The screens with a catalogue to show.
        QFile::copy(QStringLiteral(NORBIX_TEST_DATA "/simulation/sample-connections.json"), sandbox.dataFile("connections.json"));
        ShellProcess shell = shellIn(sandbox, QStringLiteral(NORBIX_BUILD_DIR));
        shell.environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        const QString file = sandbox.home() + QStringLiteral("/shot.png");
        const QString screen = QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height());
        // Full screen: the window takes the X screen's size.
        const ShellRun run = shell.run(QStringLiteral(NORBIX_WITH_XVFB),
                                       {screen, QStringLiteral(NORBIX_SHELL_BINARY), "--screenshot", file, "--page", page});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        // A screen that warns while it is shown (bindings, layouts) is not finished.
        QVERIFY2(!run.out.contains("qrc:/") && !run.err.contains("qrc:/"), (run.out + run.err).constData());
        verifyRendered(file, size);
    }

    // Without a display and without OpenGL the shell renders in software by itself.
    void offscreenWithoutDisplay()
    {
        TestSandbox sandbox;
        ShellProcess shell = shellIn(sandbox, QStringLiteral(NORBIX_BUILD_DIR));
        shell.environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        shell.environment.remove(QStringLiteral("DISPLAY"));
        const QString file = sandbox.home() + QStringLiteral("/shot.png");
        const ShellRun run = shell.run(QStringLiteral(NORBIX_SHELL_BINARY), {"--screenshot", file, "--size", "1366x768"});
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QVERIFY(!run.err.contains("Failed to create OpenGL context"));
        verifyRendered(file, QSize(1366, 768));
    }

    void badOptionsAreRefused()
    {
        TestSandbox sandbox;
        const ShellProcess shell = shellIn(sandbox, QStringLiteral(NORBIX_BUILD_DIR));
        const ShellRun run = shell.run(QStringLiteral(NORBIX_SHELL_BINARY), {"--size", "big"});
        QCOMPARE(run.exitCode, 2);
        QVERIFY(run.err.contains("--size takes WIDTHxHEIGHT"));
    }
};

QTEST_GUILESS_MAIN(tst_Screenshot)
#include "tst_screenshot.moc"
