#include "AccessibilityBackend.h"
#include "LanguageBackend.h"
#include "TestSandbox.h"

#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

class tst_Accessibility : public QObject {
    Q_OBJECT

private slots:
    void keyboardLocale_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("locale");
        QTest::newRow("English") << "en" << "en_US";
        QTest::newRow("French") << "fr" << "fr_FR";
        QTest::newRow("German") << "de" << "de_DE";
        QTest::newRow("Russian") << "ru" << "ru_RU";
        QTest::newRow("nothing stored") << "" << "en_US";
        QTest::newRow("unknown code") << "xx" << "en_US";
    }
    void keyboardLocale()
    {
        QFETCH(QString, language);
        QFETCH(QString, locale);
        TestSandbox sandbox;
        if (!language.isEmpty())
            TestSandbox::writeFile(sandbox.dataFile("language.ini"), "Language=" + language.toUtf8() + "\n");
        AccessibilityBackend backend;
        QCOMPARE(backend.keyboardLocale(), locale);
    }

    // Each switch: stored under its key, signalled once per real change, read back by a new object.
    void switches_data()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("on-screen keyboard") << "OnScreenKeyboard";
        QTest::newRow("high contrast") << "HighContrast";
    }
    void switches()
    {
        QFETCH(QString, key);
        TestSandbox sandbox;
        AccessibilityBackend backend;
        const bool keyboard = key == QLatin1String("OnScreenKeyboard");
        auto get = [&](const AccessibilityBackend& b) { return keyboard ? b.onScreenKeyboard() : b.highContrast(); };
        auto set = [&](bool on) { keyboard ? backend.setOnScreenKeyboard(on) : backend.setHighContrast(on); };
        QSignalSpy changed(&backend, keyboard ? &AccessibilityBackend::onScreenKeyboardChanged : &AccessibilityBackend::highContrastChanged);
        QSignalSpy other(&backend, keyboard ? &AccessibilityBackend::highContrastChanged : &AccessibilityBackend::onScreenKeyboardChanged);

        QVERIFY(!get(backend));
        set(false);
        QCOMPARE(changed.count(), 0);
        set(true);
        QCOMPARE(changed.count(), 1);
        set(true);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(QSettings(sandbox.dataFile("accessibility.ini"), QSettings::IniFormat).value(key).toBool(), true);
        QVERIFY(get(AccessibilityBackend()));
        set(false);
        QCOMPARE(changed.count(), 2);
        QVERIFY(!get(AccessibilityBackend()));
        QCOMPARE(other.count(), 0);
    }

    void unwritableFileChangesNothing()
    {
        TestSandbox sandbox;
        // A directory in the file's place: the setting cannot be stored.
        QVERIFY(QDir().mkpath(sandbox.dataFile("accessibility.ini")));
        AccessibilityBackend backend;
        QSignalSpy changed(&backend, &AccessibilityBackend::highContrastChanged);
        backend.setHighContrast(true);
        QCOMPARE(changed.count(), 0);
        QVERIFY(!backend.highContrast());
    }

    void inputMethodLeftToTheEnvironment()
    {
        const QByteArray saved = qgetenv("QT_IM_MODULE");
        TestSandbox sandbox;
        qputenv("QT_IM_MODULE", "ibus");
        AccessibilityBackend::prepareInputMethod();
        QCOMPARE(qgetenv("QT_IM_MODULE"), QByteArray("ibus"));
        QVERIFY(!AccessibilityBackend::inputMethodReady());
        // Switched off (the default): the X compose handling stays, dead keys keep working.
        qunsetenv("QT_IM_MODULE");
        AccessibilityBackend::prepareInputMethod();
        QVERIFY(!qEnvironmentVariableIsSet("QT_IM_MODULE"));
        QVERIFY(!AccessibilityBackend::inputMethodReady());
        // Switched on: the on-screen keyboard is the input method from the next start on.
        AccessibilityBackend().setOnScreenKeyboard(true);
        AccessibilityBackend::prepareInputMethod();
        QCOMPARE(qgetenv("QT_IM_MODULE"), QByteArray("qtvirtualkeyboard"));
        QVERIFY(AccessibilityBackend::inputMethodReady());
        if (saved.isNull())
            qunsetenv("QT_IM_MODULE");
        else
            qputenv("QT_IM_MODULE", saved);
    }
};

QTEST_GUILESS_MAIN(tst_Accessibility)
#include "tst_accessibility.moc"
