#include "JsonText.h"

#include <QJsonDocument>
#include <QtTest>

// (Plain string literals: moc misreads raw ones with quotes inside.)
// Repeated object keys are taken out of the text before Qt parses it (Qt 5.15 leaks the earlier
// value when it is an object or array; the sanitizer run catches a leak here). What the document
// holds must not change: the last repeat counts, as with Qt's own parser.
class tst_JsonText : public QObject {
    Q_OBJECT

private slots:
    void withoutRepeatedKeys_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("no repeats") << QByteArray("{\"a\":{\"b\":1},\"c\":[1,2]}") << QByteArray("{\"a\":{\"b\":1},\"c\":[1,2]}");
        QTest::newRow("no object") << QByteArray("[1,2,3]") << QByteArray("[1,2,3]");
        QTest::newRow("object repeated") << QByteArray("{\"a\":{\"b\":1},\"a\":{}}") << QByteArray("{\"a\":{}}");
        QTest::newRow("array repeated, blanks") << QByteArray("{ \"a\" : [1] ,\n \"b\":2, \"a\" : 3 }")
                                                << QByteArray("{ \"b\":2, \"a\" : 3 }");
        QTest::newRow("three times") << QByteArray("{\"a\":{\"x\":1},\"a\":[2],\"a\":3}") << QByteArray("{\"a\":3}");
        QTest::newRow("scalar repeated") << QByteArray("{\"a\":1,\"a\":2}") << QByteArray("{\"a\":2}");
        QTest::newRow("repeat inside a removed member") << QByteArray("{\"a\":{\"x\":{\"y\":1},\"x\":2},\"a\":1}")
                                                        << QByteArray("{\"a\":1}");
        QTest::newRow("repeat inside a kept member") << QByteArray("[{\"k\":{\"v\":1},\"k\":0},{\"k\":{}}]")
                                                     << QByteArray("[{\"k\":0},{\"k\":{}}]");
        QTest::newRow("same key after unescaping") << QByteArray("{\"\\u0061\":{\"b\":1},\"a\":2}") << QByteArray("{\"a\":2}");
        QTest::newRow("escaped quote in a key") << QByteArray("{\"q\\\"\":{},\"q\\\"\":1}") << QByteArray("{\"q\\\"\":1}");
        QTest::newRow("keys differ by case") << QByteArray("{\"a\":{},\"A\":{}}") << QByteArray("{\"a\":{},\"A\":{}}");
        QTest::newRow("same key in two objects") << QByteArray("{\"a\":{\"k\":1},\"b\":{\"k\":2}}")
                                                 << QByteArray("{\"a\":{\"k\":1},\"b\":{\"k\":2}}");
        QTest::newRow("braces inside strings") << QByteArray("{\"s\":\"{\\\"a\\\":1,\\\"a\\\":2}\",\"t\":\"}\"}")
                                               << QByteArray("{\"s\":\"{\\\"a\\\":1,\\\"a\\\":2}\",\"t\":\"}\"}");
        QTest::newRow("non-ASCII keys") << QByteArray("{\"\xc3\xa9t\xc3\xa9\":[],\"\xc3\xa9t\xc3\xa9\":1}")
                                        << QByteArray("{\"\xc3\xa9t\xc3\xa9\":1}");
        // Not JSON: the repeats before the error still go.
        QTest::newRow("cut short") << QByteArray("{\"a\":{\"b\":1},\"a\":") << QByteArray("{\"a\":");
        QTest::newRow("garbage after") << QByteArray("{\"a\":{},\"a\":1} x") << QByteArray("{\"a\":1} x");
        // Qt reads an unknown escape as the character itself.
        QTest::newRow("unknown escape") << QByteArray("{\"a\\q\":{},\"a\":1}") << QByteArray("{\"a\\q\":{},\"a\":1}");
        QTest::newRow("unknown escape, same key") << QByteArray("{\"\\a\":{},\"a\":1}") << QByteArray("{\"a\":1}");
        // Qt takes raw control characters inside strings; so does the scan, or repeats after them
        // would reach Qt.
        QTest::newRow("control character in a key") << QByteArray("{\"b\x01\":{\"c\":[]},\"b\x01\":2}")
                                                    << QByteArray("{\"b\x01\":2}");
        const QByteArray deep = QByteArray(1100, '[') + QByteArray(1100, ']');
        QTest::newRow("deeper than Qt allows") << deep << deep;
        QTest::newRow("empty") << QByteArray() << QByteArray();
        QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF{\"a\":[1],\"a\":2}") << QByteArray("\xEF\xBB\xBF{\"a\":2}");
    }
    void withoutRepeatedKeys()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, expected);
        QCOMPARE(JsonText::withoutRepeatedKeys(text), expected);
        // The document is what Qt makes of the text without repeats (Qt's own parse of a text with
        // repeated containers would leak, which the sanitizer run reports); text Qt refuses is refused.
        QJsonParseError ours;
        QJsonParseError qts;
        const QJsonDocument qtsDocument = QJsonDocument::fromJson(expected, &qts);
        QCOMPARE(JsonText::parse(text, &ours), qtsDocument);
        QCOMPARE(ours.error == QJsonParseError::NoError, qts.error == QJsonParseError::NoError);
    }

    // Broken text never reaches Qt; the error says what kind of break and where reading stopped.
    void refusedText_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("error");
        QTest::addColumn<int>("offset");
        QTest::newRow("cut short") << QByteArray("{\"a\":[1,") << int(QJsonParseError::IllegalValue) << 8;
        QTest::newRow("garbage after") << QByteArray("{\"a\":1} x") << int(QJsonParseError::GarbageAtEnd) << 8;
        QTest::newRow("missing colon") << QByteArray("{\"a\" 1}") << int(QJsonParseError::IllegalValue) << 5;
        QTest::newRow("too deep") << QByteArray(1100, '[') + QByteArray(1100, ']') << int(QJsonParseError::DeepNesting) << 1024;
        QTest::newRow("bad unicode escape") << QByteArray("[\"\\u12x4\"]") << int(QJsonParseError::IllegalValue) << 7;
        QTest::newRow("empty") << QByteArray() << int(QJsonParseError::IllegalValue) << 0;
    }
    void refusedText()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, error);
        QFETCH(int, offset);
        QJsonParseError ours;
        QVERIFY(JsonText::parse(text, &ours).isNull());
        QCOMPARE(int(ours.error), error);
        QCOMPARE(ours.offset, offset);
        QVERIFY(QJsonDocument::fromJson(text).isNull());
    }

    // Where Qt itself does not leak (repeated plain values), its own reading of the original text
    // agrees: the last repeat counts, at every depth.
    void lastRepeatCountsAsWithQt_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("top level") << QByteArray("{\"a\":1,\"b\":true,\"a\":\"x\"}");
        QTest::newRow("nested") << QByteArray("[{\"k\":{\"v\":1,\"v\":null}},{\"k\":2,\"k\":3}]");
        QTest::newRow("escaped") << QByteArray("{\"\\u0061\":1,\"a\":2}");
    }
    void lastRepeatCountsAsWithQt()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(JsonText::parse(text), QJsonDocument::fromJson(text));
    }
};

QTEST_GUILESS_MAIN(tst_JsonText)
#include "tst_jsontext.moc"
