#include "QmlRegistration.h"
#include "TestSandbox.h"

#include <QDirIterator>
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
};

QTEST_MAIN(tst_Qml)
#include "tst_qml.moc"
