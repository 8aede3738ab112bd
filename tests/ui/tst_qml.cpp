#include "QmlRegistration.h"
#include "TestSandbox.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickWindow>
#include <QtTest>

namespace {
QStringList g_messages;
QtMessageHandler g_previous = nullptr;

void collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        g_messages << message;
    g_previous(type, context, message);
}
// The VNC form, adding (index -1) or editing record index, with its engine set up as the shell does.
QObject* openVncForm(QQmlEngine& engine, int index)
{
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/vorplex/AddVNCConnection.qml")));
    QObject* form = component.beginCreate(engine.rootContext());
    if (!form) {
        qWarning().noquote() << component.errorString();
        return nullptr;
    }
    form->setProperty("connectionIndex", index);
    component.completeCreate();
    return form;
}

QObject* child(QObject* form, const char* name)
{
    return form->findChild<QObject*>(QLatin1String(name));
}
} // namespace

// Every screen and widget compiled into the shell loads on its own without a single QML warning.
class tst_Qml : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
        registerQmlTypes();
        g_previous = qInstallMessageHandler(collect);
    }

    void loads_data()
    {
        QTest::addColumn<QString>("url");
        int count = 0;
        for (const char* root : {":/vorplex", ":/custom"}) {
            QDirIterator it(QLatin1String(root), {QStringLiteral("*.qml")}, QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                const QString path = it.next();
                QFile file(path);
                file.open(QIODevice::ReadOnly);
                if (file.readAll().contains("pragma Singleton"))
                    continue; // reached through the files that use it
                QTest::newRow(qPrintable(path)) << QStringLiteral("qrc") + path;
                ++count;
            }
        }
        QVERIFY2(count > 5, "the screens are not compiled in");
    }
    // The controls are styled here, on the templates: importing QtQuick.Controls would load a
    // whole style (and compile its files) for nothing on every start.
    void importsNoControlsStyle_data() { loads_data(); }
    void importsNoControlsStyle()
    {
        QFETCH(QString, url);
        QFile file(url.mid(3)); // qrc:/x -> :/x
        QVERIFY(file.open(QIODevice::ReadOnly));
        static const QRegularExpression controls(QStringLiteral("^\\s*import\\s+QtQuick\\.Controls\\b"),
                                                 QRegularExpression::MultilineOption);
        QVERIFY2(!controls.match(QString::fromUtf8(file.readAll())).hasMatch(), "imports QtQuick.Controls");
    }

    void loads()
    {
        QFETCH(QString, url);
        TestSandbox sandbox;
        g_messages.clear();
        {
            QQmlApplicationEngine engine;
            engine.addImportPath(QStringLiteral("qrc:/custom"));
            ContextObjects objects;
            objects.publish(engine.rootContext());
            g_messages.clear(); // "Models ready"
            QQmlComponent component(&engine, QUrl(url));
            QScopedPointer<QObject> object(component.create());
            QVERIFY2(object, qPrintable(component.errorString()));
            if (auto* window = qobject_cast<QQuickWindow*>(object.data())) {
                window->resize(1280, 720);
                window->show();
                QVERIFY(QTest::qWaitForWindowExposed(window));
            }
            QTest::qWait(50);
            QCoreApplication::processEvents();
        }
        QVERIFY2(g_messages.isEmpty(), qPrintable(g_messages.join(QLatin1Char('\n'))));
    }

    // The VNC form's own checks, before anything reaches the backend.
    void vncAddressCheck_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("host") << "vnc.example" << true;
        QTest::newRow("host and port") << "10.0.0.5:5901" << true;
        QTest::newRow("empty") << "" << false;
        QTest::newRow("trailing colon") << "host:" << false;
        QTest::newRow("leading colon") << ":5900" << false;
        QTest::newRow("not a port") << "host:notaport" << false;
        QTest::newRow("port zero") << "host:0" << false;
        QTest::newRow("port too large") << "host:65536" << false;
        QTest::newRow("blank inside") << "my host" << false;
    }
    void vncAddressCheck()
    {
        QFETCH(QString, address);
        QFETCH(bool, accepted);
        TestSandbox sandbox;
        QQmlApplicationEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/custom"));
        QScopedPointer<QObject> form(openVncForm(engine, -1));
        QVERIFY(form);
        QVariant error;
        QVERIFY(QMetaObject::invokeMethod(form.data(), "addressError", Q_RETURN_ARG(QVariant, error), Q_ARG(QVariant, address)));
        QCOMPARE(error.toString().isEmpty(), accepted);
    }

    // What the form hands to the backend ends up in the catalogue with the right keys, and edits load back.
    void vncFormSaves()
    {
        TestSandbox sandbox;
        QQmlApplicationEngine engine;
        engine.addImportPath(QStringLiteral("qrc:/custom"));
        QScopedPointer<QObject> form(openVncForm(engine, -1));
        QVERIFY(form);
        QVERIFY(child(form.data(), "rememberBox")->property("checked").toBool()); // kept by default: the viewer cannot ask later

        child(form.data(), "nameField")->setProperty("text", "Lab");
        child(form.data(), "addressField")->setProperty("text", " lab.example:5901 ");
        child(form.data(), "passwordField")->setProperty("text", "s3cret");
        child(form.data(), "fullscreenRow")->setProperty("checked", true);
        child(form.data(), "shrinkRow")->setProperty("checked", true);
        child(form.data(), "sizeSlider")->setProperty("value", 50);
        QVERIFY(QMetaObject::invokeMethod(form.data(), "submitted"));

        const QJsonArray records = QJsonDocument::fromJson(TestSandbox::readFile(sandbox.dataFile("connections.json"))).array();
        QCOMPARE(records.size(), 1);
        const QJsonObject record = records.at(0).toObject();
        QCOMPARE(record.value("type").toInt(), 1);
        QCOMPARE(record.value("address").toString(), QStringLiteral("lab.example:5901"));
        QCOMPARE(record.value("percentage").toInt(), 50);
        QVERIFY(record.value("fullscreen").toBool());
        QVERIFY(!record.contains("shrink")); // adding leaves it out
        QVERIFY(record.value("password").toString().startsWith("e:"));

        QScopedPointer<QObject> edit(openVncForm(engine, 0));
        QVERIFY(edit);
        QCOMPARE(child(edit.data(), "addressField")->property("text").toString(), QStringLiteral("lab.example:5901"));
        QCOMPARE(child(edit.data(), "passwordField")->property("text").toString(), QStringLiteral("s3cret"));
        QCOMPARE(child(edit.data(), "sizeSlider")->property("value").toInt(), 50);
        child(edit.data(), "rememberBox")->setProperty("checked", false);
        child(edit.data(), "shrinkRow")->setProperty("checked", true);
        QVERIFY(QMetaObject::invokeMethod(edit.data(), "submitted"));
        const QJsonObject edited =
            QJsonDocument::fromJson(TestSandbox::readFile(sandbox.dataFile("connections.json"))).array().at(0).toObject();
        QVERIFY(edited.value("shrink").toBool());

        // Not remembered any more: the stored password is the empty one, and the form shows it so.
        QScopedPointer<QObject> again(openVncForm(engine, 0));
        QVERIFY(again);
        QCOMPARE(child(again.data(), "passwordField")->property("text").toString(), QString());
        QVERIFY(!child(again.data(), "rememberBox")->property("checked").toBool());
        QVERIFY(child(again.data(), "shrinkRow")->property("checked").toBool());
    }
};

QTEST_MAIN(tst_Qml)
#include "tst_qml.moc"
