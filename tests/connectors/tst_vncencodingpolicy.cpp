#include "VncEncodingPolicy.h"

#include <QtTest>

#include <algorithm>

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
        QTest::addColumn<double>("latencyMs");
        QTest::addColumn<int>("expected");
        QTest::addColumn<double>("expectedRefused");
        const int unmeasured = int(VncLinkClass::Unmeasured), slow = int(VncLinkClass::Slow), medium = int(VncLinkClass::Medium),
                  fast = int(VncLinkClass::Fast);
        // The first figures: slow below 50 Mbit/s, medium from it, the fast class tried from
        // 50 Mbit/s with a round trip of at most 10 ms.
        QTest::newRow("first: thin pipe") << unmeasured << 0.0 << 2000.0 << 40.0 << slow << 0.0;
        QTest::newRow("first: just under medium") << unmeasured << 0.0 << 49999.0 << 20.0 << slow << 0.0;
        QTest::newRow("first: medium border") << unmeasured << 0.0 << 50000.0 << 20.0 << medium << 0.0;
        QTest::newRow("first: fast enough, far away") << unmeasured << 0.0 << 500000.0 << 10.1 << medium << 0.0;
        QTest::newRow("first: fast border") << unmeasured << 0.0 << 50000.0 << 10.0 << fast << 0.0;
        QTest::newRow("first: just under fast") << unmeasured << 0.0 << 49999.0 << 1.0 << slow << 0.0;
        QTest::newRow("slow: fast is tried too") << slow << 0.0 << 50000.0 << 1.0 << fast << 0.0;
        // Between slow and medium the border moves by a quarter away from the class in use.
        QTest::newRow("slow stays under 62.5 Mbit/s") << slow << 0.0 << 62499.0 << 20.0 << slow << 0.0;
        QTest::newRow("slow becomes medium at 62.5 Mbit/s") << slow << 0.0 << 62500.0 << 20.0 << medium << 0.0;
        QTest::newRow("medium stays down to 40 Mbit/s") << medium << 0.0 << 40000.0 << 20.0 << medium << 0.0;
        QTest::newRow("medium becomes slow below") << medium << 0.0 << 39999.0 << 20.0 << slow << 0.0;
        // Fast stays while plain pixels arrive at 200 Mbit/s within 12.5 ms.
        QTest::newRow("fast stays") << fast << 0.0 << 200000.0 << 12.5 << fast << 0.0;
        QTest::newRow("fast: too slow for plain pixels") << fast << 0.0 << 199999.0 << 1.0 << medium << 199999.0;
        QTest::newRow("fast: round trip grew") << fast << 0.0 << 900000.0 << 12.6 << medium << 900000.0;
        QTest::newRow("fast: link collapsed") << fast << 0.0 << 49999.0 << 30.0 << slow << 49999.0;
        // A link that refused plain pixels is tried again at twice what it carried then, and
        // never under twice what plain pixels need.
        QTest::newRow("refused low: not again") << medium << 90000.0 << 399999.0 << 2.0 << medium << 90000.0;
        QTest::newRow("refused low: much faster now") << medium << 90000.0 << 400000.0 << 2.0 << fast << 90000.0;
        QTest::newRow("refused high: not again") << medium << 300000.0 << 599999.0 << 2.0 << medium << 300000.0;
        QTest::newRow("refused high: much faster now") << medium << 300000.0 << 600000.0 << 2.0 << fast << 300000.0;
        QTest::newRow("refused: the memory stays when slow") << medium << 90000.0 << 5000.0 << 50.0 << slow << 90000.0;
    }
    void judge()
    {
        QFETCH(int, current);
        QFETCH(double, refused);
        QFETCH(double, kbps);
        QFETCH(double, latencyMs);
        QFETCH(int, expected);
        QFETCH(double, expectedRefused);
        VncLinkVerdict verdict;
        verdict.linkClass = VncLinkClass(current);
        verdict.fastRefusedKbps = refused;
        VncLinkFigures figures;
        figures.kbitPerSecond = kbps;
        figures.latencyMs = latencyMs;
        const VncLinkVerdict next = VncEncodingPolicy::judge(verdict, figures);
        QCOMPARE(VncEncodingPolicy::name(next.linkClass), VncEncodingPolicy::name(VncLinkClass(expected)));
        QCOMPARE(next.fastRefusedKbps, expectedRefused);
    }

    // A link that keeps measuring the same settles after the fast class has been tried (and kept
    // or refused): no switching to and fro on a steady link.
    void steadyLinkSettles_data()
    {
        QTest::addColumn<double>("compactKbps"); // what compact encodings measure
        QTest::addColumn<double>("plainKbps");   // what plain pixels measure
        QTest::addColumn<double>("latencyMs");
        QTest::addColumn<int>("settled");
        QTest::newRow("wan") << 6000.0 << 5000.0 << 40.0 << int(VncLinkClass::Slow);
        QTest::newRow("office far away") << 90000.0 << 90000.0 << 12.0 << int(VncLinkClass::Medium);
        QTest::newRow("20 Mbit/s, measured high") << 38000.0 << 38000.0 << 21.0 << int(VncLinkClass::Slow);
        QTest::newRow("lan") << 250000.0 << 900000.0 << 1.0 << int(VncLinkClass::Fast);
        QTest::newRow("100 Mbit/s lan") << 300000.0 << 95000.0 << 1.0 << int(VncLinkClass::Medium);
        QTest::newRow("near the medium border") << 50000.0 << 45000.0 << 10.1 << int(VncLinkClass::Medium);
    }
    void steadyLinkSettles()
    {
        QFETCH(double, compactKbps);
        QFETCH(double, plainKbps);
        QFETCH(double, latencyMs);
        QFETCH(int, settled);
        VncLinkVerdict verdict;
        QVector<VncLinkClass> seen;
        for (int i = 0; i < 8; ++i) {
            const double kbps = verdict.linkClass == VncLinkClass::Fast ? plainKbps : compactKbps;
            verdict = VncEncodingPolicy::judge(verdict, VncLinkFigures{kbps, latencyMs});
            seen << verdict.linkClass;
        }
        QCOMPARE(VncEncodingPolicy::name(seen.last()), VncEncodingPolicy::name(VncLinkClass(settled)));
        // At most one try of the fast class, and the last three verdicts the same.
        QVERIFY(std::count(seen.cbegin(), seen.cend(), VncLinkClass::Fast) <= 1 || settled == int(VncLinkClass::Fast));
        QCOMPARE(seen.at(5), seen.at(7));
        QCOMPARE(seen.at(6), seen.at(7));
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
    // one; round trips are judged by the shortest of the recent ones; a restart after a change of
    // encodings measures the throughput afresh and keeps the round trips.
    void meter()
    {
        VncLinkMeter meter;
        QVERIFY(!meter.ready());
        meter.addUpdate(100000, 100000); // 8 Mbit/s
        meter.addUpdate(0, 10);          // nothing read: ignored
        meter.addUpdate(5000, -1);       // a clock that went back: ignored
        meter.addRoundTrip(30000);
        meter.addUpdate(100000, 100000);
        QVERIFY(!meter.ready()); // two updates
        meter.addUpdate(200000, 100000); // 16 Mbit/s
        QVERIFY(meter.ready());
        VncLinkFigures figures = meter.figures();
        QCOMPARE(figures.kbitPerSecond, 400000 * 8.0 * 1000 / 300000);
        QCOMPARE(figures.latencyMs, 30.0);

        // 100 ms at 80 Mbit/s moves the figure a tenth of the way; 1 s no more than a fifth.
        const double before = figures.kbitPerSecond;
        meter.addUpdate(1000000, 100000);
        QCOMPARE(meter.figures().kbitPerSecond, before * 0.9 + 80000 * 0.1);
        const double next = meter.figures().kbitPerSecond;
        meter.addUpdate(10000000, 1000000);
        QCOMPARE(meter.figures().kbitPerSecond, next * 0.8 + 80000 * 0.2);

        for (int i = 0; i < VncLinkMeter::kRoundTripWindow - 1; ++i)
            meter.addRoundTrip(50000 + i);
        QCOMPARE(meter.figures().latencyMs, 30.0);
        meter.addRoundTrip(40000); // the 30 ms round trip leaves the window
        QCOMPARE(meter.figures().latencyMs, 40.0);
        meter.addRoundTrip(-5);
        QCOMPARE(meter.figures().latencyMs, 40.0);

        meter.restartThroughput();
        QVERIFY(!meter.ready());
        for (int i = 0; i < 3; ++i)
            meter.addUpdate(100000, 10000); // 80 Mbit/s, nothing of the figures before
        QVERIFY(meter.ready());
        QCOMPARE(meter.figures().kbitPerSecond, 80000.0);
        QCOMPARE(meter.figures().latencyMs, 40.0);
    }

    // Small updates alone never make a verdict: too little to judge a link by.
    void meterNeedsEnoughBytes()
    {
        VncLinkMeter meter;
        meter.addRoundTrip(1000);
        for (int i = 0; i < 20; ++i)
            meter.addUpdate(1000, 100);
        QVERIFY(!meter.ready());
        meter.addUpdate(VncLinkMeter::kMinBytes, 1000);
        QVERIFY(meter.ready());
    }
};

QTEST_GUILESS_MAIN(tst_VncEncodingPolicy)
#include "tst_vncencodingpolicy.moc"
