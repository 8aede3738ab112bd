#include "CertificateExpiry.h"
#include "CertificatesModel.h"

#include <QAbstractItemModelTester>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

Q_DECLARE_METATYPE(CertificateExpiry::State)

namespace {

const QDateTime kNow(QDate(2026, 11, 23), QTime(12, 0), Qt::UTC);

// The way openssl prints a date, day padded with a blank.
QString opensslDate(const QDateTime& when)
{
    const QDateTime utc = when.toUTC();
    return QLocale::c().toString(utc, QStringLiteral("MMM")) + QLatin1Char(' ')
            + QStringLiteral("%1").arg(utc.date().day(), 2, 10, QLatin1Char(' '))
            + QLocale::c().toString(utc, QStringLiteral(" hh:mm:ss yyyy 'GMT'"));
}

} // namespace

class tst_CertificateExpiry : public QObject {
    Q_OBJECT
private slots:
    void parseOpensslDate_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDateTime>("expected");
        QTest::newRow("padded day") << "Feb  1 00:00:00 2020 GMT" << QDateTime(QDate(2020, 2, 1), QTime(0, 0), Qt::UTC);
        QTest::newRow("two-digit day") << "Dec 31 23:59:59 2035 GMT" << QDateTime(QDate(2035, 12, 31), QTime(23, 59, 59), Qt::UTC);
        QTest::newRow("leap day") << "Feb 29 12:00:00 2028 GMT" << QDateTime(QDate(2028, 2, 29), QTime(12, 0), Qt::UTC);
        QTest::newRow("trailing newline") << "Jan  1 00:00:00 2034 GMT\n" << QDateTime(QDate(2034, 1, 1), QTime(0, 0), Qt::UTC);
        QTest::newRow("no such day") << "Feb 30 00:00:00 2020 GMT" << QDateTime();
        QTest::newRow("not a leap year") << "Feb 29 00:00:00 2027 GMT" << QDateTime();
        QTest::newRow("unknown month") << "Foo  1 00:00:00 2020 GMT" << QDateTime();
        QTest::newRow("lower-case month") << "feb  1 00:00:00 2020 GMT" << QDateTime();
        QTest::newRow("hour 24") << "Feb  1 24:00:00 2020 GMT" << QDateTime();
        QTest::newRow("no zone") << "Feb  1 00:00:00 2020" << QDateTime();
        QTest::newRow("iso") << "2020-02-01T00:00:00Z" << QDateTime();
        QTest::newRow("empty") << "" << QDateTime();
        QTest::newRow("key left in") << "notAfter=Feb  1 00:00:00 2020 GMT" << QDateTime();
    }
    void parseOpensslDate()
    {
        QFETCH(QString, text);
        QFETCH(QDateTime, expected);
        const QDateTime parsed = CertificateExpiry::parseOpensslDate(text);
        QCOMPARE(parsed.isValid(), expected.isValid());
        if (expected.isValid()) {
            QCOMPARE(parsed, expected);
            QCOMPARE(parsed.timeSpec(), Qt::UTC);
        }
    }

    void classify_data()
    {
        QTest::addColumn<QDateTime>("notAfter");
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<CertificateExpiry::State>("state");
        using E = CertificateExpiry;
        QTest::newRow("expired yesterday") << kNow.addDays(-1) << kNow << E::Expired;
        QTest::newRow("expired earlier today") << QDateTime(kNow.date(), QTime(0, 0), Qt::UTC) << kNow << E::Expired;
        QTest::newRow("expires this very second") << kNow << kNow << E::Expired;
        QTest::newRow("expires later today") << QDateTime(kNow.date(), QTime(23, 59, 59), Qt::UTC) << kNow << E::ExpiresSoon;
        QTest::newRow("in 30 days, last second") << QDateTime(kNow.date().addDays(30), QTime(23, 59, 59), Qt::UTC) << kNow << E::ExpiresSoon;
        QTest::newRow("in 30 days, first second") << QDateTime(kNow.date().addDays(30), QTime(0, 0), Qt::UTC) << kNow << E::ExpiresSoon;
        QTest::newRow("in 31 days") << QDateTime(kNow.date().addDays(31), QTime(0, 0), Qt::UTC) << kNow << E::Valid;
        QTest::newRow("in ten years") << kNow.addYears(10) << kNow << E::Valid;
        QTest::newRow("unreadable date") << QDateTime() << kNow << E::Unknown;
        // Days are counted in UTC, as the dates are shown: a terminal east of Greenwich is already
        // on the next day locally, which must not pull a 31-day certificate into the warning.
        const QDateTime eveningUtc(QDate(2026, 11, 23), QTime(20, 0), Qt::UTC);
        QDateTime eastern = eveningUtc;
        eastern.setOffsetFromUtc(10 * 3600);
        QTest::newRow("now given with an offset") << QDateTime(QDate(2026, 12, 24), QTime(1, 0), Qt::UTC) << eastern << E::Valid;
        QTest::newRow("now with an offset, 30 days") << QDateTime(QDate(2026, 12, 23), QTime(1, 0), Qt::UTC) << eastern << E::ExpiresSoon;
    }
    void classify()
    {
        QFETCH(QDateTime, notAfter);
        QFETCH(QDateTime, now);
        QFETCH(CertificateExpiry::State, state);
        QCOMPARE(CertificateExpiry::classify(notAfter, now), state);
        if (notAfter.isValid())
            QCOMPARE(CertificateExpiry::classify(opensslDate(notAfter), now), state);
    }

    void describe_data()
    {
        QTest::addColumn<CertificateExpiry::State>("state");
        QTest::addColumn<QString>("start");
        QTest::newRow("expired") << CertificateExpiry::Expired << "Expired on ";
        QTest::newRow("soon") << CertificateExpiry::ExpiresSoon << "Expires on ";
        QTest::newRow("valid") << CertificateExpiry::Valid << "";
        QTest::newRow("unknown") << CertificateExpiry::Unknown << "";
    }
    void describe()
    {
        QFETCH(CertificateExpiry::State, state);
        QFETCH(QString, start);
        const QString text = CertificateExpiry::describe(state, QDateTime(QDate(2027, 1, 9), QTime(0, 0), Qt::UTC));
        QVERIFY2(start.isEmpty() || text.startsWith(start), qPrintable(text));
        QCOMPARE(text.contains("2027"), !start.isEmpty());
        QCOMPARE(text.isEmpty(), start.isEmpty());
    }

    void countsOnlyInstalledFiles()
    {
        const QList<CertificatesModel::CertificateData> rows{
                {"A", "", opensslDate(kNow.addDays(-400)), "a.crt"},          // expired
                {"B", "", opensslDate(kNow.addDays(5)), "b.crt"},             // soon
                {"C", "", opensslDate(kNow.addDays(31).addSecs(43200)), "c.crt"}, // fine
                {"D", "", "garbage", "d.crt"},                                // unreadable: not counted
                {"System old", "", opensslDate(kNow.addDays(-3)), ""},        // bundle: not the user's
        };
        QCOMPARE(CertificateExpiry::countNeedingAttention(rows, kNow), 2);
        QCOMPARE(CertificateExpiry::countNeedingAttention({}, kNow), 0);
    }

    // The model answers the screen's roles for real rows, against the real clock.
    void modelRoles()
    {
        CertificatesModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QDateTime now = QDateTime::currentDateTimeUtc();
        model.setCertificates({{"old", "", opensslDate(now.addDays(-2)), "old.crt"},
                               {"soon", "", opensslDate(now.addDays(20)), "soon.crt"},
                               {"fine", "", opensslDate(now.addDays(200)), "fine.crt"}});
        const QHash<int, QByteArray> roles = model.roleNames();
        const int stateRole = roles.key("expiryState");
        const int textRole = roles.key("expiryText");
        QVERIFY(stateRole > CertificatesModel::DeleteRole);
        QCOMPARE(model.data(model.index(0, 0), stateRole).toInt(), int(CertificateExpiry::Expired));
        QCOMPARE(model.data(model.index(1, 0), stateRole).toInt(), int(CertificateExpiry::ExpiresSoon));
        QCOMPARE(model.data(model.index(2, 0), stateRole).toInt(), int(CertificateExpiry::Valid));
        QVERIFY(model.data(model.index(0, 0), textRole).toString().startsWith("Expired on "));
        QVERIFY(model.data(model.index(1, 0), textRole).toString().contains(QString::number(now.addDays(20).date().year())));
        QCOMPARE(model.data(model.index(2, 0), textRole).toString(), QString());
    }

    // Dates as the real openssl prints them for certificates made now.
    void realOpensslDates_data()
    {
        QTest::addColumn<int>("days");
        QTest::addColumn<CertificateExpiry::State>("state");
        QTest::newRow("10 days") << 10 << CertificateExpiry::ExpiresSoon;
        QTest::newRow("45 days") << 45 << CertificateExpiry::Valid;
    }
    void realOpensslDates()
    {
        QFETCH(int, days);
        QFETCH(CertificateExpiry::State, state);
        QTemporaryDir dir;
        QProcess make;
        make.setWorkingDirectory(dir.path());
        make.start("openssl", {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", "k.pem", "-out", "c.pem",
                               "-days", QString::number(days), "-subj", "/CN=expiry.test"});
        QVERIFY(make.waitForFinished(60000));
        QCOMPARE(make.exitCode(), 0);
        QProcess read;
        read.start("openssl", {"x509", "-noout", "-enddate", "-in", dir.path() + "/c.pem"});
        QVERIFY(read.waitForFinished(60000));
        const QString line = QString::fromLatin1(read.readAllStandardOutput()).trimmed();
        QVERIFY2(line.startsWith("notAfter="), qPrintable(line));
        const QDateTime notAfter = CertificateExpiry::parseOpensslDate(line.mid(9));
        QVERIFY2(notAfter.isValid(), qPrintable(line));
        QCOMPARE(notAfter.date(), QDateTime::currentDateTimeUtc().addDays(days).date());
        QCOMPARE(CertificateExpiry::classify(notAfter, QDateTime::currentDateTimeUtc()), state);
    }
};

QTEST_GUILESS_MAIN(tst_CertificateExpiry)
#include "tst_certificateexpiry.moc"
