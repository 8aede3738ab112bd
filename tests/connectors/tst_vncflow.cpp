#include "VncFlow.h"

#include <QtTest>

// The wire format of continuous updates and fences: what a TigerVNC-type server reads from us.
class tst_VncFlow : public QObject {
    Q_OBJECT

private slots:
    void enableMessage_data()
    {
        QTest::addColumn<bool>("enable");
        QTest::addColumn<QRect>("area");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("whole 1920x1080 screen") << true << QRect(0, 0, 1920, 1080)
                                                << QByteArray::fromHex("9601" "0000" "0000" "0780" "0438");
        QTest::newRow("off") << false << QRect(0, 0, 1920, 1080) << QByteArray::fromHex("9600" "0000" "0000" "0780" "0438");
        QTest::newRow("an area, big-endian fields") << true << QRect(258, 3, 4096, 65535)
                                                    << QByteArray::fromHex("9601" "0102" "0003" "1000" "ffff");
        // A size the protocol cannot carry is clamped, never wrapped into a small one.
        QTest::newRow("too large") << true << QRect(0, 0, 70000, 10) << QByteArray::fromHex("9601" "0000" "0000" "ffff" "000a");
    }
    void enableMessage()
    {
        QFETCH(bool, enable);
        QFETCH(QRect, area);
        QFETCH(QByteArray, expected);
        QCOMPARE(VncFlow::enableContinuousUpdates(enable, area).toHex(), expected.toHex());
    }

    void fenceHeader_data()
    {
        QTest::addColumn<QByteArray>("header"); // the bytes after the type
        QTest::addColumn<bool>("valid");
        QTest::addColumn<quint32>("flags");
        QTest::addColumn<int>("payloadLength");
        QTest::newRow("request, block before, 4 bytes") << QByteArray::fromHex("000000" "80000001" "04") << true << 0x80000001u << 4;
        QTest::newRow("no payload") << QByteArray::fromHex("000000" "00000006" "00") << true << 6u << 0;
        QTest::newRow("longest payload") << QByteArray::fromHex("000000" "80000000" "40") << true << 0x80000000u << 64;
        QTest::newRow("payload too long") << QByteArray::fromHex("000000" "80000000" "41") << false << 0u << 0;
        QTest::newRow("length byte read unsigned") << QByteArray::fromHex("000000" "80000000" "ff") << false << 0u << 0;
        QTest::newRow("short") << QByteArray::fromHex("000000" "800000") << false << 0u << 0;
    }
    void fenceHeader()
    {
        QFETCH(QByteArray, header);
        QFETCH(bool, valid);
        const std::optional<VncFlow::FenceHeader> parsed = VncFlow::parseFenceHeader(header);
        QCOMPARE(parsed.has_value(), valid);
        if (!valid)
            return;
        QFETCH(quint32, flags);
        QFETCH(int, payloadLength);
        QCOMPARE(parsed->flags, flags);
        QCOMPARE(parsed->payloadLength, payloadLength);
    }

    void fenceAnswer_data()
    {
        QTest::addColumn<quint32>("flags");
        QTest::addColumn<QByteArray>("payload");
        QTest::addColumn<QByteArray>("expected");
        // The request bit goes, the three known flags stay, the payload comes back unchanged.
        QTest::newRow("request with all flags") << 0x80000007u << QByteArray("\x01\x02\x03", 3)
                                                << QByteArray::fromHex("f8000000" "00000007" "03" "010203");
        QTest::newRow("empty payload") << 0x80000000u << QByteArray() << QByteArray::fromHex("f8000000" "00000000" "00");
        QTest::newRow("unknown flags dropped") << 0x80f0ff02u << QByteArray("x") << QByteArray::fromHex("f8000000" "00000002" "01" "78");
        QTest::newRow("payload cut to 64 bytes") << 0x80000000u << QByteArray(70, 'a')
                                                 << QByteArray::fromHex("f8000000" "00000000" "40") + QByteArray(64, 'a');
    }
    void fenceAnswer()
    {
        QFETCH(quint32, flags);
        QFETCH(QByteArray, payload);
        QFETCH(QByteArray, expected);
        QCOMPARE(VncFlow::fenceAnswer(flags, payload).toHex(), expected.toHex());
    }
};

QTEST_GUILESS_MAIN(tst_VncFlow)
#include "tst_vncflow.moc"
