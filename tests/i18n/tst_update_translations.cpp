#include "TestSandbox.h"

#include <QDir>
#include <QMap>
#include <QProcess>
#include <QXmlStreamReader>
#include <QtTest>

struct Message {
    QString context;
    QString source;
    QStringList forms; // one for a plain message, one per plural form for a %n message
    bool finished = true;
};
Q_DECLARE_METATYPE(Message)

// scripts/update-translations on small source trees of its own: what the check lets pass and what
// it stops, and that a refresh keeps every translation while listing only new texts as unfinished.
class tst_UpdateTranslations : public QObject {
    Q_OBJECT

    struct Run {
        int exitCode = -1;
        QString output;
    };

    // The texts of the tree every case starts from: four in a QML file, one in C++.
    static void writeSources(const QString& tree)
    {
        TestSandbox::writeFile(tree + "/qml/Page.qml", "import QtQuick 2.15\n"
                                                      "Item {\n"
                                                      "    property int count: 2\n"
                                                      "    property string a: qsTr(\"Save\")\n"
                                                      "    property string b: qsTr(\"%n file(s) in %1\", \"\", count).arg(\"x\")\n"
                                                      "    property string c: qsTr(\"Press <b>%1</b> to go on\")\n"
                                                      "    property string d: qsTr(\"&Open\")\n"
                                                      "}\n");
        TestSandbox::writeFile(tree + "/src/Thing.cpp", "#include <QCoreApplication>\n"
                                                       "QString hostError() { return QCoreApplication::translate(\"Thing\", \"Host not found\"); }\n");
    }

    static QList<Message> frenchMessages()
    {
        return {{"Page", "Save", {"Enregistrer"}},
                {"Page", "%n file(s) in %1", {"%n fichier dans %1", "%n fichiers dans %1"}},
                {"Page", "Press <b>%1</b> to go on", {"Appuyez sur <b>%1</b> pour continuer"}},
                {"Page", "&Open", {"&Ouvrir"}},
                {"Thing", "Host not found", {"Hôte introuvable"}}};
    }

    static QString escaped(const QString& text) { return text.toHtmlEscaped(); }

    static void writeTs(const QString& path, const QString& language, const QList<Message>& messages)
    {
        QMap<QString, QString> contexts;
        for (const Message& m : messages) {
            const bool numerus = m.source.contains("%n");
            QString body = QString("    <message%1>\n        <source>%2</source>\n        <translation%3>")
                               .arg(numerus ? " numerus=\"yes\"" : "", escaped(m.source), m.finished ? "" : " type=\"unfinished\"");
            if (numerus) {
                for (const QString& form : m.forms)
                    body += "<numerusform>" + escaped(form) + "</numerusform>";
            } else {
                body += escaped(m.forms.value(0));
            }
            contexts[m.context] += body + "</translation>\n    </message>\n";
        }
        QString xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" language=\"" + language + "\">\n";
        for (auto it = contexts.cbegin(); it != contexts.cend(); ++it)
            xml += "<context>\n    <name>" + it.key() + "</name>\n" + it.value() + "</context>\n";
        TestSandbox::writeFile(path, (xml + "</TS>\n").toUtf8());
    }

    // Every live message of a .ts file, keyed "context|source".
    static QMap<QString, Message> readTs(const QString& path)
    {
        QMap<QString, Message> found;
        QXmlStreamReader xml(TestSandbox::readFile(path));
        QString context;
        Message current;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == QLatin1String("name")) {
                context = xml.readElementText();
            } else if (xml.name() == QLatin1String("message")) {
                current = Message{context, {}, {}, true};
            } else if (xml.name() == QLatin1String("source")) {
                current.source = xml.readElementText();
            } else if (xml.name() == QLatin1String("translation")) {
                const QString type = xml.attributes().value("type").toString();
                current.finished = type.isEmpty();
                if (type == "obsolete" || type == "vanished")
                    continue;
                QString text;
                while (!(xml.isEndElement() && xml.name() == QLatin1String("translation")) && !xml.atEnd()) {
                    xml.readNext();
                    if (xml.isStartElement() && xml.name() == QLatin1String("numerusform"))
                        current.forms << xml.readElementText();
                    else if (xml.isCharacters())
                        text += xml.text();
                }
                if (current.forms.isEmpty())
                    current.forms << text;
                found.insert(current.context + "|" + current.source, current);
            }
        }
        return found;
    }

    static Run runScript(const QString& tree, const QStringList& arguments)
    {
        QProcess script;
        script.setProcessChannelMode(QProcess::MergedChannels);
        script.start("/usr/bin/python3", QStringList{NORBIX_SOURCE_DIR "/scripts/update-translations", "--tree", tree} + arguments);
        if (!script.waitForFinished(120000))
            return {};
        return {script.exitStatus() == QProcess::NormalExit ? script.exitCode() : -1, QString::fromUtf8(script.readAll())};
    }

private slots:
    void check_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QList<Message>>("messages");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("reported");

        const QList<Message> complete = frenchMessages();
        QTest::newRow("complete") << "fr_FR" << complete << 0 << "5 messages, complete";

        QList<Message> unfinished = complete;
        unfinished[0].finished = false;
        QTest::newRow("marked unfinished") << "fr_FR" << unfinished << 1 << "unfinished Page: \"Save\"";

        QList<Message> empty = complete;
        empty[4].forms = QStringList{""};
        QTest::newRow("empty translation") << "fr_FR" << empty << 1 << "unfinished Thing: \"Host not found\"";

        QTest::newRow("text missing") << "fr_FR" << complete.mid(0, 4) << 1 << "missing text Thing: \"Host not found\"";

        QTest::newRow("text gone from the sources") << "fr_FR" << complete + QList<Message>{{"Page", "Gone", {"Parti"}}} << 1
                                                    << "text no longer in the sources Page: \"Gone\"";

        QList<Message> dropped = complete;
        dropped[1].forms[1] = "%n fichiers";
        QTest::newRow("placeholder dropped") << "fr_FR" << dropped << 1 << "placeholders ['%n'] instead of ['%1', '%n']";

        QList<Message> added = complete;
        added[0].forms = QStringList{"Enregistrer %1"};
        QTest::newRow("placeholder added") << "fr_FR" << added << 1 << "placeholders ['%1'] instead of []";

        QList<Message> markup = complete;
        markup[2].forms = QStringList{"Appuyez sur %1 pour continuer"};
        QTest::newRow("markup dropped") << "fr_FR" << markup << 1 << "markup differs from the source";

        QList<Message> accelerator = complete;
        accelerator[3].forms = QStringList{"Ouvrir"};
        QTest::newRow("accelerator dropped") << "fr_FR" << accelerator << 1 << "accelerator differs from the source";

        QList<Message> russian = {{"Page", "Save", {"Сохранить"}},
                                  {"Page", "%n file(s) in %1", {"%n файл в %1", "%n файла в %1", "%n файлов в %1"}},
                                  {"Page", "Press <b>%1</b> to go on", {"Нажмите <b>%1</b>, чтобы продолжить"}},
                                  {"Page", "&Open", {"&Открыть"}},
                                  {"Thing", "Host not found", {"Узел не найден"}}};
        QTest::newRow("russian, three plural forms") << "ru_RU" << russian << 0 << "5 messages, complete";
        QList<Message> twoForms = russian;
        twoForms[1].forms.removeLast();
        QTest::newRow("russian, two plural forms") << "ru_RU" << twoForms << 1 << "2 plural forms instead of 3";
    }
    void check()
    {
        QFETCH(QString, language);
        QFETCH(QList<Message>, messages);
        QFETCH(int, exitCode);
        QFETCH(QString, reported);
        TestSandbox sandbox;
        const QString tree = sandbox.home() + "/tree";
        writeSources(tree);
        const QString ts = tree + "/translations/norbix_" + language.left(2) + ".ts";
        writeTs(ts, language, messages);
        const QByteArray before = TestSandbox::readFile(ts);

        const Run run = runScript(tree, {"--check"});
        QVERIFY2(run.output.contains(reported), qPrintable(run.output));
        QCOMPARE(run.exitCode, exitCode);
        QCOMPARE(TestSandbox::readFile(ts), before); // checking changes nothing
    }

    // One bad file fails the check even when another is complete, and each is reported by name.
    void checkReportsEveryFile()
    {
        TestSandbox sandbox;
        const QString tree = sandbox.home() + "/tree";
        writeSources(tree);
        writeTs(tree + "/translations/norbix_fr.ts", "fr_FR", frenchMessages());
        writeTs(tree + "/translations/norbix_de.ts", "de_DE", frenchMessages().mid(1));
        const Run run = runScript(tree, {"--check"});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.output.contains("translations/norbix_fr.ts: 5 messages, complete"), qPrintable(run.output));
        QVERIFY2(run.output.contains("translations/norbix_de.ts: 1 problem(s)"), qPrintable(run.output));
        QVERIFY2(run.output.contains("missing text Page: \"Save\""), qPrintable(run.output));

        QDir(tree + "/translations").removeRecursively();
        QCOMPARE(runScript(tree, {"--check"}).exitCode, 1); // nothing to check is no success
    }

    // A refresh after texts were added and removed: the translations stay, only the new text is to do.
    void refreshKeepsTranslations()
    {
        TestSandbox sandbox;
        const QString tree = sandbox.home() + "/tree";
        writeSources(tree);
        QList<Message> old = frenchMessages().mid(0, 4);
        old << Message{"Page", "Gone", {"Parti"}};
        const QString ts = tree + "/translations/norbix_fr.ts";
        writeTs(ts, "fr_FR", old);

        const Run refresh = runScript(tree, {});
        QCOMPARE(refresh.exitCode, 0);
        QVERIFY2(refresh.output.contains("translations/norbix_fr.ts: 1 unfinished"), qPrintable(refresh.output));

        const QMap<QString, Message> now = readTs(ts);
        QCOMPARE(now.size(), 5);
        QVERIFY(!now.contains("Page|Gone"));
        for (const Message& kept : frenchMessages().mid(0, 4)) {
            const Message got = now.value(kept.context + "|" + kept.source);
            QCOMPARE(got.forms, kept.forms);
            QVERIFY(got.finished);
        }
        QVERIFY(now.contains("Thing|Host not found"));
        QVERIFY(!now.value("Thing|Host not found").finished);
        QVERIFY2(TestSandbox::readFile(ts).contains("filename=\"../src/Thing.cpp\""), TestSandbox::readFile(ts).constData());

        const Run check = runScript(tree, {"--check"});
        QCOMPARE(check.exitCode, 1);
        QCOMPARE(check.output.count("\n  "), 1); // the one new text, nothing else
        QVERIFY2(check.output.contains("unfinished Thing: \"Host not found\""), qPrintable(check.output));

        QCOMPARE(runScript(tree, {}).exitCode, 0);
        QCOMPARE(readTs(ts).size(), 5); // a second refresh changes nothing
        QCOMPARE(readTs(ts).value("Page|Save").forms, QStringList{"Enregistrer"});
    }

    void addLanguage()
    {
        TestSandbox sandbox;
        const QString tree = sandbox.home() + "/tree";
        writeSources(tree);
        const Run add = runScript(tree, {"--add", "ru"});
        QCOMPARE(add.exitCode, 0);
        const QString ts = tree + "/translations/norbix_ru.ts";
        QVERIFY(TestSandbox::readFile(ts).contains("language=\"ru_RU\""));
        const QMap<QString, Message> messages = readTs(ts);
        QCOMPARE(messages.size(), 5);
        for (const Message& m : messages)
            QVERIFY2(!m.finished, qPrintable(m.source));
        QCOMPARE(messages.value("Page|%n file(s) in %1").forms.size(), 3);

        const QByteArray before = TestSandbox::readFile(ts);
        QVERIFY(runScript(tree, {"--add", "ru"}).exitCode != 0); // never over an existing file
        QCOMPARE(TestSandbox::readFile(ts), before);
        QVERIFY(runScript(tree, {"--add", "../x"}).exitCode != 0);
        QVERIFY(!QFile::exists(tree + "/x.ts"));
    }
};

QTEST_GUILESS_MAIN(tst_UpdateTranslations)
#include "tst_update_translations.moc"
