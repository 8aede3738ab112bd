#include "FreePort.h"
#include "HeartbeatWorker.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <QtTest>

// The heartbeat against a stand-in update service on 127.0.0.1.
class tst_Heartbeat : public QObject {
    Q_OBJECT

    // Answers every request with 200 and records its first line.
    struct Service : QTcpServer {
        QStringList requests;
        Service()
        {
            connect(this, &QTcpServer::newConnection, this, [this] {
                while (QTcpSocket* socket = nextPendingConnection()) {
                    connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                        const QByteArray head = socket->readAll();
                        requests << QString::fromLatin1(head.left(head.indexOf("\r\n")));
                        socket->write("HTTP/1.1 200 OK\r\nContent-Length: 2\r\nConnection: close\r\n\r\nok");
                        socket->disconnectFromHost();
                    });
                    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                }
            });
        }
    };

    struct Running {
        QThread thread;
        HeartbeatWorker* worker;
        explicit Running(quint16 port, int pauseMs)
            : worker(new HeartbeatWorker(QStringLiteral("http://127.0.0.1:%1/").arg(port), pauseMs))
        {
            worker->moveToThread(&thread);
            QObject::connect(&thread, &QThread::started, worker, &HeartbeatWorker::run);
            thread.start();
        }
        // The service answers on the test's thread: keep it running while the loop winds down.
        void stop()
        {
            thread.requestInterruption();
            while (!thread.wait(10))
                QCoreApplication::processEvents();
        }
        ~Running()
        {
            stop();
            delete worker;
        }
    };

private slots:
    void asksForHealthAgainAndAgain()
    {
        Service service;
        QVERIFY(service.listen(QHostAddress::LocalHost));
        {
            Running heartbeat(service.serverPort(), 50);
            QTRY_VERIFY_WITH_TIMEOUT(service.requests.size() >= 3, 20000);
            heartbeat.stop();
            // Each reply is freed once it finished.
            QCOMPARE(heartbeat.worker->heldReplies(), 0);
        }
        for (const QString& request : qAsConst(service.requests))
            QCOMPARE(request, QStringLiteral("GET /health HTTP/1.1"));
    }

    // A closing shell does not wait for a service that accepted the request and never answers.
    void stopsWhileTheServiceHangs()
    {
        QTcpServer silent;
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        Running heartbeat(silent.serverPort(), 2000);
        QTRY_VERIFY_WITH_TIMEOUT(silent.hasPendingConnections(), 20000);
        heartbeat.thread.requestInterruption();
        QVERIFY(heartbeat.thread.wait(20000));
        QCOMPARE(heartbeat.worker->rounds(), 1);
    }

    void keepsGoingWhileTheServiceIsDown()
    {
        const quint16 port = freeLocalPort();
        Running heartbeat(port, 50);
        QTRY_VERIFY_WITH_TIMEOUT(heartbeat.worker->rounds() >= 3, 20000); // refused, and again
        Service service;
        QVERIFY(service.listen(QHostAddress::LocalHost, port));
        QTRY_VERIFY_WITH_TIMEOUT(!service.requests.isEmpty(), 20000);
    }
};

QTEST_GUILESS_MAIN(tst_Heartbeat)
#include "tst_heartbeat.moc"
