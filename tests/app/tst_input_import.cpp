#include "FakeCommandRunner.h"
#include "LanguageBackend.h"
#include "SettingsManager.h"
#include "TestSandbox.h"

#include <QSettings>
#include <QtTest>

// Importing keyboard-and-mouse or language settings takes effect at once.
class tst_InputImport : public QObject {
    Q_OBJECT

    static QByteArray fixture(const QString& name)
    {
        return TestSandbox::readFile(QStringLiteral(NORBIX_TEST_DATA "/simulation/") + name);
    }

private slots:
    void keyboardAndMouse()
    {
        TestSandbox sandbox;
        FakeCommandRunner runner;
        runner.answer(QStringLiteral("xinput --list --short"), fixture(QStringLiteral("xinput-list-short.txt")));
        runner.answer(QStringLiteral("xinput --list-props 9"), fixture(QStringLiteral("xinput-list-props-mouse.txt")));
        runner.answer(QStringLiteral("xinput --list-props 11"), fixture(QStringLiteral("xinput-list-props-touchpad.txt")));
        const QString set = sandbox.path(QStringLiteral("/media/USB/terminal-01"));
        // Exported on another terminal: its pointer ids mean nothing here.
        TestSandbox::writeFile(set + QStringLiteral("/keyboard.ini"),
                               "[General]\nLayouts=\"us,de\"\nPreferredLayout=de\nIds=99\nMouse=Other mouse\nSensetivity=0.4\nPrimary=1\n");
        SettingsManager manager;
        manager.selection(QStringLiteral("keyboardAndMouse"), true);
        manager.importConfig(set);

        const QList<QStringList> calls = runner.commandLines();
        const QStringList setLayouts{"bash", "-c", "setxkbmap -layout de,us -option grp:alt_shift_toggle"};
        QVERIFY(calls.contains(setLayouts));
        QVERIFY(calls.contains(QStringList({"xinput", "--set-prop", "9", "libinput Accel Speed", "0.4"})));
        QVERIFY(calls.contains(QStringList({"xinput", "--set-prop", "11", "libinput Accel Speed", "0.4"})));
        QVERIFY(calls.contains(QStringList({"xinput", "set-button-map", "11", "3", "2", "1"})));
        for (const QStringList& call : calls)
            QVERIFY2(!call.contains(QStringLiteral("99")), qPrintable(call.join(' ')));
        QCOMPARE(QSettings(sandbox.dataFile("keyboard.ini"), QSettings::IniFormat).value("Ids").toString(), QStringLiteral("9,11"));
    }

    void language_data()
    {
        QTest::addColumn<QString>("imported");
        QTest::addColumn<QString>("active"); // the language in use afterwards
        QTest::newRow("German") << "de" << "de";
        QTest::newRow("unknown code: nothing loaded") << "xx" << "en";
        QTest::newRow("translation missing: previous kept") << "ru" << "en";
    }
    void language()
    {
        QFETCH(QString, imported);
        QFETCH(QString, active);
        TestSandbox sandbox;
        FakeCommandRunner runner;
        QTemporaryDir translations;
        QVERIFY(QFile::copy(QStringLiteral(NORBIX_BUILD_DIR "/norbix_de.qm"), translations.filePath("norbix_de.qm")));
        LanguageBackend::setTranslationDirectories({translations.path()});
        LanguageBackend* language = LanguageBackend::getInstance();
        QCoreApplication::removeTranslator(language->translator());
        language->translator()->load(QString()); // back to the source language

        const QString set = sandbox.path(QStringLiteral("/media/USB/terminal-01"));
        TestSandbox::writeFile(set + QStringLiteral("/language.ini"), "[General]\nLanguage=" + imported.toUtf8() + "\n");
        SettingsManager manager;
        manager.selection(QStringLiteral("languageSettings"), true);
        if (active != imported)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Unknown language|COULD NOT INSTALL TRANSLATION")));
        manager.importConfig(set);

        QCOMPARE(language->translator()->isEmpty(), active == QLatin1String("en"));
        if (active == QLatin1String("de"))
            QVERIFY(language->translator()->language().startsWith(QStringLiteral("de")));
        // The imported file itself is kept as copied.
        QCOMPARE(language->getCurrentLanguage(), imported);
        LanguageBackend::setTranslationDirectories({});
    }
};

QTEST_GUILESS_MAIN(tst_InputImport)
#include "tst_input_import.moc"
