#include "ConnectionWire.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

// Connection records on the management server's wire, both ways.
class tst_Wire : public QObject {
    Q_OBJECT

    static QJsonObject json(const char* text) { return QJsonDocument::fromJson(text).object(); }

private slots:
    void typeNames_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("name");
        QTest::newRow("VMWare") << 0 << "VMWare";
        QTest::newRow("VNC") << 1 << "VNC";
        QTest::newRow("Citrix") << 2 << "Citrix";
        QTest::newRow("RDP") << 3 << "RDP";
        QTest::newRow("Browser") << 4 << "Browser";
        QTest::newRow("Teams") << 5 << "Teams";
        QTest::newRow("PuTTY") << 6 << "PuTTY";
    }
    void typeNames()
    {
        QFETCH(int, type);
        QFETCH(QString, name);
        QCOMPARE(ConnectionWire::typeName(type), name);
        QCOMPARE(ConnectionWire::typeValue(name), type);
        const QJsonObject wire = ConnectionWire::toWire(QJsonObject{{"type", type}});
        QCOMPARE(wire.value("Type"), QJsonValue(name)); // a string, not the number
        QCOMPARE(ConnectionWire::fromWire(wire).value("type"), QJsonValue(type));
    }

    void unknownTypes()
    {
        QCOMPARE(ConnectionWire::typeValue("Putty"), -1); // the wire spells it PuTTY
        QCOMPARE(ConnectionWire::typeValue("rdp"), -1);
        QCOMPARE(ConnectionWire::typeValue(""), -1);
        QCOMPARE(ConnectionWire::typeName(7), QString());
        QCOMPARE(ConnectionWire::typeName(-1), QString());
        QVERIFY(!ConnectionWire::toWire(QJsonObject{{"type", 9}}).contains("Type"));
        QVERIFY(!ConnectionWire::toWire(QJsonObject{{"type", "3"}}).contains("Type"));
    }

    // Every key of the table, both ways, with the value's type kept.
    void recordToWire()
    {
        const QJsonObject record = json(R"({"type":3,"address":"rdp.example","name":"Office","username":"ann",
            "password":"pw","domain":"CORP","auto_connect":true,"enabled":false,"Extra":"x=1","gateway":"gw",
            "gateway_user":"gu","gateway_password":"gp","gateway_domain":"gd","ForwardUSB":true,"multimon":false,
            "printer":true,"fullscreen":true,"resource":"Desk","shrink":false,"percentage":75,"smartcard":true,
            "desktop":"D1","protocol":"BLAST","performance":"2","clearCache":false,"kiosk":true})");
        const QJsonObject wire = json(R"({"Type":"RDP","Address":"rdp.example","Name":"Office","AccountUsername":"ann",
            "AccountPassword":"pw","AccountDomain":"CORP","AutoConnect":true,"Enabled":false,"Extra":"x=1","Gateway":"gw",
            "GatewayUsername":"gu","GatewayPassword":"gp","GatewayDomain":"gd","ForwardUSB":true,"Multimon":false,
            "ForwardPrinter":true,"Fullscreen":true,"Resource":"Desk","Shrink":false,"Percentage":75,"SmartCard":true,
            "Desktop":"D1","Protocol":"BLAST","Performance":"2","ClearCache":false,"Kiosk":true})");
        QCOMPARE(ConnectionWire::toWire(record), wire);
        QCOMPARE(ConnectionWire::fromWire(wire), record);
    }

    void missingKeysStayMissing_data()
    {
        QTest::addColumn<QJsonObject>("wire");
        QTest::addColumn<QJsonObject>("record");
        QTest::newRow("type only") << json(R"({"Type":"Teams"})") << json(R"({"type":5})");
        QTest::newRow("no password") << json(R"({"Type":"VNC","Address":"h","Shrink":true})")
                                     << json(R"({"type":1,"address":"h","shrink":true})");
        QTest::newRow("null value") << json(R"({"Type":"VNC","Name":null})") << json(R"({"type":1})");
        QTest::newRow("record keys on the wire are not taken") << json(R"({"Type":"RDP","address":"h","username":"u"})")
                                                               << json(R"({"type":3})");
        QTest::newRow("unknown keys dropped") << json(R"({"Type":"Browser","Colour":"red","usb":true})") << json(R"({"type":4})");
        QTest::newRow("numbers stay numbers") << json(R"({"Type":"VNC","Percentage":50})") << json(R"({"type":1,"percentage":50})");
        QTest::newRow("false stays false") << json(R"({"Type":"Browser","Kiosk":false,"ClearCache":false})")
                                           << json(R"({"type":4,"kiosk":false,"clearCache":false})");
    }
    void missingKeysStayMissing()
    {
        QFETCH(QJsonObject, wire);
        QFETCH(QJsonObject, record);
        bool ok = false;
        QCOMPARE(ConnectionWire::fromWire(wire, &ok), record);
        QVERIFY(ok);
    }

    void recordKeysOutsideTheTableDoNotTravel()
    {
        const QJsonObject record = json(R"({"type":3,"name":"n","usb":true,"Address":"wrong-case"})");
        QCOMPARE(ConnectionWire::toWire(record), json(R"({"Type":"RDP","Name":"n"})"));
    }

    void listsDropWhatCannotBeStarted()
    {
        const QJsonArray wire = QJsonDocument::fromJson(R"([{"Type":"RDP","Name":"a"}, 5, "x", null, [], {"Name":"no type"},
            {"Type":"Unknown","Name":"b"}, {"Type":3,"Name":"numeric type"}, {"Type":"PuTTY","Name":"c"}])").array();
        const QList<Connection> list = ConnectionWire::listFromWire(wire);
        QCOMPARE(list.size(), 2);
        QCOMPARE(list.at(0).getType(), RDP);
        QCOMPARE(list.at(1).getType(), Putty);
        QCOMPARE(list.at(1).getConnectionName(), QStringLiteral("c"));
        QCOMPARE(ConnectionWire::listToWire(list), QJsonDocument::fromJson(R"([{"Type":"RDP","Name":"a"},{"Type":"PuTTY","Name":"c"}])").array());
    }

    void orderIsKept()
    {
        QList<Connection> list;
        for (int i = 0; i < 7; ++i)
            list << Connection::withFields(ConnectionType(6 - i), {{"name", QString::number(i)}});
        const QList<Connection> back = ConnectionWire::listFromWire(ConnectionWire::listToWire(list));
        QCOMPARE(back, list);
    }
};

QTEST_GUILESS_MAIN(tst_Wire)
#include "tst_wire.moc"
