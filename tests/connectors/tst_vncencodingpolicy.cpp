#include "VncEncodingPolicy.h"

#include <QtTest>

// The VNC viewer's encoding choice: the verdict on a measured link (with its borders and the
// memory of a refused fast link), what each class asks for, the record's own choice, and the
// meter that turns updates into figures.
class tst_VncEncodingPolicy : public QObject {
    Q_OBJECT

private slots:
    void judge_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<double>("refused");
        QTest::addColumn<double>("kbps");
        QTest::addColumn<double>("cycleKbps");
        QTest::addColumn<double>("latencyMs");
        QTest::addColumn<int>("expected");
        QTest::addColumn<double>("expectedRefused");
        const int unmeasured = int(VncLinkClass::Unmeasured), slow = int(VncLinkClass::Slow), medium = int(VncLinkClass::Medium),
                  fast = int(VncLinkClass::Fast);
        // The first figures: slow below 16 Mbit/s, medium from it, the fast class tried from
        // 30 Mbit/s with a round trip of at most 10 ms.
        QTest::newRow("first: thin pipe") << unmeasured << 0.0 << 2000.0 << 1500.0 << 40.0 << slow << 0.0;
        QTest::newRow("first: just under medium") << unmeasured << 0.0 << 15999.0 << 9000.0 << 20.0 << slow << 0.0;
        QTest::newRow("first: medium border") << unmeasured << 0.0 << 16000.0 << 9000.0 << 20.0 << medium << 0.0;
        QTest::newRow("first: fast enough, far away") << unmeasured << 0.0 << 500000.0 << 90000.0 << 10.1 << medium << 0.0;
        QTest::newRow("first: fast border") << unmeasured << 0.0 << 30000.0 << 9000.0 << 10.0 << fast << 0.0;
        QTest::newRow("first: just under fast") << unmeasured << 0.0 << 29999.0 << 9000.0 << 1.0 << medium << 0.0;
        // Between slow and medium the border moves by a quarter away from the class in use.
        QTest::newRow("slow stays under 20 Mbit/s") << slow << 0.0 << 19999.0 << 9000.0 << 20.0 << slow << 0.0;
        QTest::newRow("slow becomes medium at 20 Mbit/s") << slow << 0.0 << 20000.0 << 9000.0 << 20.0 << medium << 0.0;
        QTest::newRow("medium stays down to 12.8 Mbit/s") << medium << 0.0 << 12800.0 << 9000.0 << 20.0 << medium << 0.0;
        QTest::newRow("medium becomes slow below") << medium << 0.0 << 12799.0 << 9000.0 << 20.0 << slow << 0.0;
        // Fast stays while plain pixels come back at 200 Mbit/s within 12.5 ms.
        QTest::newRow("fast stays") << fast << 0.0 << 900000.0 << 200000.0 << 12.5 << fast << 0.0;
        QTest::newRow("fast: too slow for plain pixels") << fast << 0.0 << 900000.0 << 199999.0 << 1.0 << medium << 199999.0;
        QTest::newRow("fast: round trip grew") << fast << 0.0 << 900000.0 << 300000.0 << 12.6 << medium << 300000.0;
        QTest::newRow("fast: link collapsed") << fast << 0.0 << 8000.0 << 7000.0 << 30.0 << slow << 7000.0;
        // A link that refused plain pixels is tried again only at a quarter more than it did.
        QTest::newRow("refused: not again") << medium << 80000.0 << 300000.0 << 99999.0 << 2.0 << medium << 80000.0;
        QTest::newRow("refused: clearly faster now") << medium << 80000.0 << 300000.0 << 100000.0 << 2.0 << fast << 80000.0;
        QTest::newRow("refused: the memory stays when slow") << medium << 80000.0 << 5000.0 << 4000.0 << 50.0 << slow << 80000.0;
    }
    void judge()
    {
        QFETCH(int, current);
        QFETCH(double, refused);
        QFETCH(double, kbps);
        QFETCH(double, cycleKbps);
        QFETCH(double, latencyMs);
        QFETCH(int, expected);
        QFETCH(double, expectedRefused);
        VncLinkVerdict verdict;
        verdict.linkClass = VncLinkClass(current);
        verdict.fastRefusedKbps = refused;
        VncLinkFigures figures;
        figures.kbitPerSecond = kbps;
        figures.cycleKbitPerSecond = cycleKbps;
        figures.latencyMs = latencyMs;
        const VncLinkVerdict next = VncEncodingPolicy::judge(verdict, figures);
        QCOMPARE(VncEncodingPolicy::name(next.linkClass), VncEncodingPolicy::name(VncLinkClass(expected)));
        QCOMPARE(next.fastRefusedKbps, expectedRefused);
    }

    // A verdict fed its own figures again does not move: no switching to and fro on a steady link.
    void steadyLinkSettles_data()
    {
        QTest::addColumn<double>("kbps");
        QTest::addColumn<double>("cycleKbps");
        QTest::addColumn<double>("latencyMs");
        QTest::newRow("wan") << 6000.0 << 5000.0 << 40.0;
        QTest::newRow("office") << 60000.0 << 20000.0 << 12.0;
        QTest::newRow("lan") << 900000.0 << 400000.0 << 1.0;
        QTest::newRow("lan too slow for plain pixels") << 900000.0 << 100000.0 << 1.0;
        QTest::newRow("near a border") << 16000.0 << 15000.0 << 10.0;
    }
    void steadyLinkSettles()
    {
        QFETCH(double, kbps);
        QFETCH(double, cycleKbps);
        QFETCH(double, latencyMs);
        const VncLinkFigures figures{kbps, cycleKbps, latencyMs};
        VncLinkVerdict verdict = VncEncodingPolicy::judge(VncLinkVerdict(), figures);
        verdict = VncEncodingPolicy::judge(verdict, figures);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(VncEncodingPolicy::judge(verdict, figures), verdict);
    }

    void choices()
    {
        // Compact until measured, as on a slow link; JPEG 6 slow, 8 medium; no JPEG when fast.
        QCOMPARE(VncEncodingPolicy::choiceFor(VncLinkClass::Unmeasured), VncEncodingPolicy::choiceFor(VncLinkClass::Slow));
        const VncEncodingChoice slow = VncEncodingPolicy::choiceFor(VncLinkClass::Slow);
        const VncEncodingChoice medium = VncEncodingPolicy::choiceFor(VncLinkClass::Medium);
        const VncEncodingChoice fast = VncEncodingPolicy::choiceFor(VncLinkClass::Fast);
        QVERIFY(slow.encodings.startsWith("copyrect tight "));
        QCOMPARE(slow.qualityLevel, 6);
        QCOMPARE(slow.compressLevel, 6);
        QVERIFY(medium.encodings.startsWith("copyrect tight "));
        QCOMPARE(medium.qualityLevel, 8);
        QCOMPARE(medium.compressLevel, 2);
        QVERIFY(fast.encodings.startsWith("copyrect raw "));
        QVERIFY(!fast.encodings.contains("tight"));
        QCOMPARE(fast.qualityLevel, -1);
        // Every choice must be a list libvncclient takes, unchanged by the record check.
        for (const VncEncodingChoice& choice : {slow, medium, fast})
            QCOMPARE(VncEncodingPolicy::explicitChoice(QString::fromLatin1(choice.encodings), choice.compressLevel, choice.qualityLevel)
                         ->encodings,
                     choice.encodings);
    }

    void explicitChoice_data()
    {
        QTest::addColumn<QString>("encodings");
        QTest::addColumn<int>("compress");
        QTest::addColumn<int>("quality");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QByteArray>("expected");
        QTest::addColumn<int>("expectedCompress");
        QTest::addColumn<int>("expectedQuality");
        QTest::newRow("none") << QString() << -1 << -1 << false << QByteArray() << 0 << 0;
        QTest::newRow("blank") << "   " << 3 << 3 << false << QByteArray() << 0 << 0;
        QTest::newRow("only unknown") << "h264 jpeg" << 3 << 3 << false << QByteArray() << 0 << 0;
        QTest::newRow("one") << "hextile" << 3 << 7 << true << QByteArray("hextile") << 3 << 7;
        QTest::newRow("case and spacing") << "  CopyRect\tZRLE  raw " << 0 << 9 << true << QByteArray("copyrect zrle raw") << 0 << 9;
        QTest::newRow("unknown and repeated dropped") << "tight foo tight raw" << 1 << 1 << true << QByteArray("tight raw") << 1 << 1;
        QTest::newRow("levels out of range") << "tight" << 10 << -2 << true << QByteArray("tight") << 6 << 6;
        QTest::newRow("levels absent") << "zlib" << -1 << -1 << true << QByteArray("zlib") << 6 << 6;
    }
    void explicitChoice()
    {
        QFETCH(QString, encodings);
        QFETCH(int, compress);
        QFETCH(int, quality);
        QFETCH(bool, valid);
        const std::optional<VncEncodingChoice> choice = VncEncodingPolicy::explicitChoice(encodings, compress, quality);
        QCOMPARE(choice.has_value(), valid);
        if (!valid)
            return;
        QFETCH(QByteArray, expected);
        QFETCH(int, expectedCompress);
        QFETCH(int, expectedQuality);
        QCOMPARE(choice->encodings, expected);
        QCOMPARE(choice->compressLevel, expectedCompress);
        QCOMPARE(choice->qualityLevel, expectedQuality);
    }

    // The first updates count as a whole; then a long update moves the figure more than a short
    // one; round trips are judged by the shortest of the recent ones.
    void meter()
    {
        VncLinkMeter meter;
        QVERIFY(!meter.ready());
        meter.addUpdate(100000, 100000, 200000); // 8 Mbit/s taking in, 4 from the request
        meter.addUpdate(0, 10, 10);              // nothing read: ignored
        meter.addUpdate(5000, -1, 10);           // a clock that went back: ignored
        meter.addRoundTrip(30000);
        meter.addUpdate(100000, 100000, 200000);
        QVERIFY(!meter.ready()); // two updates
        meter.addUpdate(200000, 100000, 100000); // 16 Mbit/s
        QVERIFY(meter.ready());
        VncLinkFigures figures = meter.figures();
        QCOMPARE(figures.kbitPerSecond, 400000 * 8.0 * 1000 / 300000);
        QCOMPARE(figures.cycleKbitPerSecond, 400000 * 8.0 * 1000 / 500000);
        QCOMPARE(figures.latencyMs, 30.0);

        // 100 ms at 80 Mbit/s moves the figure a tenth of the way; 1 s no more than a fifth.
        const double before = figures.kbitPerSecond;
        meter.addUpdate(1000000, 100000, 100000);
        figures = meter.figures();
        QCOMPARE(figures.kbitPerSecond, before * 0.9 + 80000 * 0.1);
        const double next = figures.kbitPerSecond;
        meter.addUpdate(10000000, 1000000, 1000000);
        QCOMPARE(meter.figures().kbitPerSecond, next * 0.8 + 80000 * 0.2);
        // The time since the request cannot be shorter than the time since the data arrived.
        VncLinkMeter odd;
        for (int i = 0; i < 3; ++i)
            odd.addUpdate(100000, 100000, 50000);
        QCOMPARE(odd.figures().cycleKbitPerSecond, odd.figures().kbitPerSecond);

        for (int i = 0; i < VncLinkMeter::kRoundTripWindow - 1; ++i)
            meter.addRoundTrip(50000 + i);
        QCOMPARE(meter.figures().latencyMs, 30.0);
        meter.addRoundTrip(40000); // the 30 ms round trip leaves the window
        QCOMPARE(meter.figures().latencyMs, 40.0);
        meter.addRoundTrip(-5);
        QCOMPARE(meter.figures().latencyMs, 40.0);
    }

    // Small updates alone never make a verdict: too little to judge a link by.
    void meterNeedsEnoughBytes()
    {
        VncLinkMeter meter;
        meter.addRoundTrip(1000);
        for (int i = 0; i < 20; ++i)
            meter.addUpdate(1000, 100, 1000);
        QVERIFY(!meter.ready());
        meter.addUpdate(VncLinkMeter::kMinBytes, 1000, 2000);
        QVERIFY(meter.ready());
    }
};

QTEST_GUILESS_MAIN(tst_VncEncodingPolicy)
#include "tst_vncencodingpolicy.moc"
