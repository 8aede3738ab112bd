#include "ConnectionManager.h"
#include "ConnectionTableModel.h"
#include "ConnectionsModel.h"
#include "TestSandbox.h"

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QtTest>

class tst_Models : public QObject {
    Q_OBJECT

    TestSandbox* m_sandbox = nullptr;

    void writeCatalogue(int count)
    {
        QJsonArray records;
        for (int i = 0; i < count; ++i)
            records.append(QJsonObject{{"type", i % 8}, {"name", QStringLiteral("C%1").arg(i)}, {"address", QStringLiteral("h%1").arg(i)},
                                       {"auto_connect", i == 1}});
        TestSandbox::writeFile(m_sandbox->dataFile("connections.json"), QJsonDocument(records).toJson());
    }

private slots:
    void init() { m_sandbox = new TestSandbox; }
    void cleanup() { delete m_sandbox; }

    void emptyCatalogueStillHasHeaders()
    {
        ConnectionTableModel model;
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.columnCount(), 5);
        QStringList headers;
        for (int column = 0; column < 5; ++column)
            headers << model.headerData(column, Qt::Horizontal).toString();
        QCOMPARE(headers, QStringList({"Name", "Type", "Server Address", "Auto Connect", "Action"}));
        QVERIFY(!model.headerData(5, Qt::Horizontal).isValid());
        QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    }

    void cellsAndRoles()
    {
        writeCatalogue(8);
        ConnectionTableModel model;
        QCOMPARE(model.rowCount(), 8);
        const QStringList types = {"VMWare", "VNC", "Citrix", "RDP", "Browser", "Teams", "PuTTY", ""};
        for (int row = 0; row < 8; ++row)
            QCOMPARE(model.data(model.index(row, 1), ConnectionTableModel::TableDataRole).toString(), types.at(row));
        const QModelIndex autoCell = model.index(1, 3);
        QCOMPARE(model.data(autoCell, 257).toString(), QStringLiteral("true"));
        QCOMPARE(model.data(autoCell, 259).toBool(), true);
        QCOMPARE(model.data(model.index(2, 3), 259).toBool(), false);
        // The name, type and address roles return the asked column's cell, whatever it is.
        QCOMPARE(model.data(model.index(2, 2), 260).toString(), QStringLiteral("h2"));
        QCOMPARE(model.data(model.index(2, 0), 262).toString(), QStringLiteral("C2"));
        QCOMPARE(model.data(model.index(2, 1), 261).toString(), QStringLiteral("Citrix"));
        QVERIFY(!model.data(model.index(2, 0), 258).isValid());
        QVERIFY(!model.data(model.index(2, 0), Qt::DisplayRole).isValid());
        QCOMPARE(model.data(model.index(2, 4), 257).toString(), QString());
        const auto roles = model.roleNames();
        QCOMPARE(roles.value(257), QByteArray("display"));
        QCOMPARE(roles.value(258), QByteArray("connect"));
        QCOMPARE(roles.value(259), QByteArray("auto"));
        QCOMPARE(roles.value(260), QByteArray("name"));
        QCOMPARE(roles.value(261), QByteArray("type"));
        QCOMPARE(roles.value(262), QByteArray("address"));
    }

    // Every change is announced as one row inserted at the old end, whatever changed.
    void refreshSignalling()
    {
        writeCatalogue(3);
        ConnectionTableModel model;
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        ConnectionManager::getInstance()->remove(0);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(inserted.at(0).at(1).toInt(), 3);
        QCOMPARE(inserted.at(0).at(2).toInt(), 3);
        QCOMPARE(reset.count(), 0);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.data(model.index(0, 0), 257).toString(), QStringLiteral("C1"));
    }

    void tableModelIsConsistentWhenOneRowIsAdded()
    {
        writeCatalogue(2);
        ConnectionTableModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        Connection teams;
        teams.setType(Teams);
        teams.add("name", "T");
        ConnectionManager::getInstance()->saveConnection(teams, {"name"});
        QCOMPARE(model.rowCount(), 3);
    }

    void tilesShowFourUntilExpanded()
    {
        writeCatalogue(7);
        ConnectionsModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.totalRows(), 7);
        model.loadAll();
        QCOMPARE(model.rowCount(), 7);
        QCOMPARE(model.totalRows(), 7);
        QCOMPARE(model.data(model.index(6, 0), 257).toString(), QStringLiteral("C6"));
        QVERIFY(!model.data(model.index(6, 0), 258).isValid());
        QCOMPARE(model.roleNames().value(257), QByteArray("name"));
        model.loadPartial();
        QCOMPARE(model.rowCount(), 4);
        QVERIFY(model.setData(model.index(0, 0), "renamed", 257));
        QCOMPARE(model.data(model.index(0, 0), 257).toString(), QStringLiteral("C0"));

        ConnectionManager::getInstance()->remove(0);
        QCOMPARE(model.totalRows(), 6);
        QCOMPARE(model.data(model.index(0, 0), 257).toString(), QStringLiteral("C1"));
    }
};

QTEST_GUILESS_MAIN(tst_Models)
#include "tst_models.moc"
