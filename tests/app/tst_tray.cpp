#include "ClipboardProxy.h"
#include "FakeCommandRunner.h"
#include "TestSandbox.h"
#include "TrayIcon.h"

#include <QApplication>
#include <QClipboard>
#include <QtTest>

class tst_Tray : public QObject {
    Q_OBJECT

private slots:
    void sessionWindows_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QStringList>("ids");
        QTest::newRow("recorded window list")
            << QString::fromUtf8(TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/simulation/wmctrl-l.txt")))
            << QStringList{"0x02200004", "0x02400007", "0x02600002"};
        QTest::newRow("two RDP windows") << "0x01 0 h xfreerdp: a\n0x02  0 h xfreerdp: b\n0x03 0 h Norbix\n" << QStringList{"0x01", "0x02"};
        QTest::newRow("markers are case-sensitive") << "0x01 0 h XFREERDP\n0x02 0 h VMware-View\n" << QStringList();
        QTest::newRow("blank padding") << "   0x0a   0 h vmware-view  \n" << QStringList{"0x0a"};
        QTest::newRow("empty") << "" << QStringList();
    }
    void sessionWindows()
    {
        QFETCH(QString, list);
        QFETCH(QStringList, ids);
        QCOMPARE(TrayIcon::sessionWindows(list), ids);
    }

    void minimizeAllCommands()
    {
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("wmctrl -l"), "0x01a00006  0 t Norbix\n0x02200004  0 t xfreerdp: one\n0x02200009  0 t xfreerdp: two\n");
        TrayIcon tray;
        tray.minimizeAll();
        QCOMPARE(runner.commandLines(), QList<QStringList>({{"wmctrl", "-l"},
                                                            {"wmctrl", "-ir", "0x02200004", "-b", "remove,fullscreen"},
                                                            {"wmctrl", "-ir", "0x02200009", "-b", "remove,fullscreen"}}));
    }

    void minimizeAllWithoutWmctrl()
    {
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("wmctrl -l"), {}, 127, "bash: wmctrl: command not found\n");
        TrayIcon tray;
        tray.minimizeAll();
        QCOMPARE(runner.calls.size(), 1);
    }

    void clipboardHoldsTextForTheScreens()
    {
        QGuiApplication::clipboard()->setText(QStringLiteral("system"));
        ClipboardProxy proxy;
        QCOMPARE(proxy.clipboard(), QString());
        proxy.setClipboard(QStringLiteral("Server: rdp.example.org — Ω"));
        QCOMPARE(proxy.clipboard(), QStringLiteral("Server: rdp.example.org — Ω"));
        proxy.setClipboard(QString());
        QCOMPARE(proxy.clipboard(), QString());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("system"));
    }
};

QTEST_MAIN(tst_Tray)
#include "tst_tray.moc"
