#include "PeerRunner.h"
#include "SoundSettingsBackend.h"
#include "TestSandbox.h"

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

// Volumes and sinks against a private PulseAudio daemon with two null sinks and a null source,
// through the real pacmd, pactl and amixer (ALSA's pulse plugin).
class tst_SoundPeer : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QProcess m_daemon;
    QHash<QByteArray, QByteArray> m_savedEnv;

    void setEnv(const char* name, const QByteArray& value)
    {
        if (!m_savedEnv.contains(name))
            m_savedEnv.insert(name, qgetenv(name));
        qputenv(name, value);
    }

    QString path(const QString& name) const { return m_dir.filePath(name); }

    static QString pactl(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral("pactl"), arguments);
        process.waitForFinished(30000);
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

private slots:
    void initTestCase()
    {
        for (const char* tool : {"pulseaudio", "pacmd", "pactl", "amixer"}) {
            if (QStandardPaths::findExecutable(QLatin1String(tool)).isEmpty())
                QSKIP(qPrintable(QStringLiteral("%1 is not installed (scripts/test installs it)").arg(QLatin1String(tool))));
        }
        QVERIFY(QDir().mkpath(path("run")) && QDir().mkpath(path("home")));
        TestSandbox::writeFile(path("pa.pa"),
                               "load-module module-native-protocol-unix auth-anonymous=1 socket=" + path("run/native").toUtf8() + "\n"
                               "load-module module-null-sink sink_name=speakers sink_properties=device.description=Speakers\n"
                               "load-module module-null-sink sink_name=headset sink_properties=device.description=Headset\n"
                               "load-module module-null-source source_name=mic description=Microphone\n"
                               "set-default-sink speakers\n"
                               "set-default-source mic\n");
        TestSandbox::writeFile(path("client.conf"), "autospawn = no\n");
        setEnv("PULSE_RUNTIME_PATH", path("run").toUtf8());
        setEnv("PULSE_STATE_PATH", path("home").toUtf8());
        setEnv("PULSE_CLIENTCONFIG", path("client.conf").toUtf8());
        setEnv("PULSE_SERVER", "unix:" + path("run/native").toUtf8());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
        env.remove(QStringLiteral("DISPLAY"));
        env.insert(QStringLiteral("HOME"), path("home"));
        m_daemon.setProcessEnvironment(env);
        m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_daemon.start(QStringLiteral("pulseaudio"),
                       {"-n", "-F", path("pa.pa"), "--daemonize=no", "--use-pid-file=yes", "--exit-idle-time=-1",
                        "--disable-shm=yes", "--realtime=no", "--high-priority=no", "--log-target=file:" + path("pa.log")});
        QVERIFY(m_daemon.waitForStarted());
        QTRY_VERIFY_WITH_TIMEOUT(pactl({QStringLiteral("get-default-sink")}) == QLatin1String("speakers"), 20000);
    }

    void cleanupTestCase()
    {
        if (m_daemon.state() != QProcess::NotRunning) {
            m_daemon.terminate();
            if (!m_daemon.waitForFinished(5000))
                m_daemon.kill();
        }
        for (auto it = m_savedEnv.begin(); it != m_savedEnv.end(); ++it)
            qputenv(it.key().constData(), it.value());
    }

    void sinks()
    {
        TestSandbox sandbox;
        qputenv("HOME", path("home").toUtf8());
        PeerRunner runner(sandbox);
        SoundSettingsBackend* sound = SoundSettingsBackend::getInstance();
        QCOMPARE(sound->listSinks(), (QStringList{"Speakers", "Headset"}));
        QCOMPARE(sound->getActiveSink(), 0);
        sound->setActiveSink(1);
        QCOMPARE(pactl({QStringLiteral("get-default-sink")}), QStringLiteral("headset"));
        QCOMPARE(sound->getActiveSink(), 1);
        sound->setActiveSink(5); // no such sink: the default stays
        QCOMPARE(sound->getActiveSink(), 1);
        sound->setActiveSink(0);
        QCOMPARE(sound->getActiveSink(), 0);
    }

    void volumes_data()
    {
        QTest::addColumn<int>("output");
        QTest::addColumn<int>("microphone");
        QTest::newRow("middle") << 40 << 70;
        QTest::newRow("silent") << 0 << 0;
        QTest::newRow("full") << 100 << 100;
    }
    void volumes()
    {
        QFETCH(int, output);
        QFETCH(int, microphone);
        TestSandbox sandbox;
        qputenv("HOME", path("home").toUtf8());
        PeerRunner runner(sandbox);
        SoundSettingsBackend* sound = SoundSettingsBackend::getInstance();
        sound->setSoundVolume(output);
        sound->setMicrophoneVolume(microphone);
        QCOMPARE(sound->getSoundVolume(), output);
        QCOMPARE(sound->getMicrophoneVolume(), microphone);
        // The output volume is the default sink's.
        QVERIFY(pactl({QStringLiteral("get-sink-volume"), QStringLiteral("speakers")}).contains(QStringLiteral("%1%").arg(output)));
    }

    void microphoneTest()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("arecord")).isEmpty())
            QSKIP("alsa-utils is not installed (scripts/test installs it)");
        TestSandbox sandbox;
        qputenv("HOME", path("home").toUtf8());
        PeerRunner runner(sandbox);
        const QString previous = QDir::currentPath();
        QVERIFY(QDir::setCurrent(sandbox.home()));
        SoundSettingsBackend::getInstance()->testMicrophone();
        QDir::setCurrent(previous);
        // Three seconds recorded from the microphone and played back; the recording stays behind.
        const QFileInfo recording(sandbox.home() + QStringLiteral("/test-mic.wav"));
        QVERIFY(recording.exists());
        QVERIFY2(recording.size() > 8000 * 2, qPrintable(QString::number(recording.size())));
    }
};

QTEST_GUILESS_MAIN(tst_SoundPeer)
#include "tst_sound_peer.moc"
