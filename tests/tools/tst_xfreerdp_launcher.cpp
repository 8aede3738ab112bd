#include "TestSandbox.h"

#include <QProcess>
#include <QtTest>

// tools/xfreerdp: picks the installed FreeRDP and rewrites only what FreeRDP 2.x spells differently.
class tst_XfreerdpLauncher : public QObject {
    Q_OBJECT

    // A stand-in client: announces its version and prints each argument it got on a line.
    static QString fakeClient(const TestSandbox& sandbox, int major)
    {
        const QString path = sandbox.home() + QStringLiteral("/xfreerdp-v%1").arg(major);
        TestSandbox::writeFile(path, QStringLiteral("#!/bin/sh\nif [ \"$1\" = /version ]; then echo 'This is FreeRDP version %1.11.7 (%1.11.7)'; exit 0; fi\n"
                                                    "for a in \"$@\"; do printf '[%s]\\n' \"$a\"; done\n")
                                         .arg(major)
                                         .toUtf8());
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

private slots:
    void translation_data()
    {
        QTest::addColumn<int>("major");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("received");
        const QStringList common{"/v:srv", "/u:", "/p:", "+wallpaper", "/cert:ignore"};
        QTest::newRow("3.x: unchanged") << 3 << common + QStringList{"/gateway:g:gw,u:bob,p:pw", "/tls:seclevel:0"}
                                        << common + QStringList{"/gateway:g:gw,u:bob,p:pw", "/tls:seclevel:0"};
        QTest::newRow("2.x: TLS level") << 2 << common + QStringList{"/tls:seclevel:0", "/timeout:80000"}
                                        << common + QStringList{"/tls-seclevel:0", "/timeout:80000"};
        QTest::newRow("2.x: full gateway") << 2 << QStringList{"/v:s", "/gateway:g:gw.example:443,u:bob,d:CORP,p:pw"}
                                           << QStringList{"/v:s", "/g:gw.example:443", "/gu:bob", "/gd:CORP", "/gp:pw"};
        QTest::newRow("2.x: gateway password only") << 2 << QStringList{"/gateway:g:gw,p:pw"} << QStringList{"/g:gw", "/gp:pw"};
        QTest::newRow("2.x: empty arguments kept") << 2 << QStringList{"", "/v:s", ""} << QStringList{"", "/v:s", ""};
        QTest::newRow("2.x: look-alikes untouched") << 2 << QStringList{"/p:/tls:seclevel:0", "/u:/gateway:g:x"}
                                                    << QStringList{"/p:/tls:seclevel:0", "/u:/gateway:g:x"};
    }
    void translation()
    {
        QFETCH(int, major);
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, received);
        TestSandbox sandbox;
        QProcess launcher;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("NORBIX_XFREERDP", fakeClient(sandbox, major));
        launcher.setProcessEnvironment(env);
        launcher.start(QStringLiteral(NORBIX_SOURCE_DIR "/tools/xfreerdp"), arguments);
        QVERIFY(launcher.waitForFinished());
        QCOMPARE(launcher.exitCode(), 0);
        QStringList got;
        for (const QString& line : QString::fromUtf8(launcher.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts))
            got << line.mid(1, line.size() - 2);
        QCOMPARE(got, received);
    }

    void exitCodeAndMissingClient()
    {
        TestSandbox sandbox;
        const QString failing = sandbox.home() + "/failing";
        TestSandbox::writeFile(failing, "#!/bin/sh\n[ \"$1\" = /version ] && exit 0\nexit 147\n");
        QFile::setPermissions(failing, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QProcess launcher;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("NORBIX_XFREERDP", failing);
        launcher.setProcessEnvironment(env);
        launcher.start(QStringLiteral(NORBIX_SOURCE_DIR "/tools/xfreerdp"), {"/v:x"});
        QVERIFY(launcher.waitForFinished());
        QCOMPARE(launcher.exitCode(), 147); // the client's own code reaches the shell

        env.insert("NORBIX_XFREERDP", "");
        env.insert("PATH", sandbox.home());
        launcher.setProcessEnvironment(env);
        launcher.start(QStringLiteral("/bin/bash"), {QStringLiteral(NORBIX_SOURCE_DIR "/tools/xfreerdp"), "/v:x"});
        QVERIFY(launcher.waitForFinished());
        QCOMPARE(launcher.exitCode(), 127);
    }
};

QTEST_GUILESS_MAIN(tst_XfreerdpLauncher)
#include "tst_xfreerdp_launcher.moc"
