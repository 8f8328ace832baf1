// SPDX-License-Identifier: Apache-2.0

#include "JsonReader.h"
#include "Subject.h"

#include <QTest>

namespace {

struct Pair
{
    QString first;
    qint64 second;

    friend bool operator==(const Pair&, const Pair&) = default;
};

Pair readPair(const JsonReader::Object& object)
{
    return {.first = object.string("first"), .second = object.integer("second")};
}

QString readRepeated(const JsonReader::Object& object)
{
    return object.repeatedString("k");
}

} // namespace

class JsonReaderTest : public QObject
{
    Q_OBJECT

    using Kind = JsonReader::Error::Kind;

private Q_SLOTS:
    void readsEveryKindOfValue()
    {
        JsonReader reader(R"({"text": "甲", "number": -7, "texts": ["a", "b"], "inner": {"x": "y"},
                              "pairs": [{"first": "p", "second": 1}], "ignored": [true, null]})");
        QCOMPARE(reader.root().string("text"), u"甲"_qs);
        QCOMPARE(reader.root().optionalString("text"), u"甲"_qs);
        QCOMPARE(reader.root().repeatedString("text"), u"甲"_qs);
        QCOMPARE(reader.root().optionalRepeatedString("text"), u"甲"_qs);
        QCOMPARE(reader.root().integer("number"), -7);
        QCOMPARE(reader.root().optionalInteger("number"), -7);
        QCOMPARE(reader.root().strings("texts"), QList<QString>({u"a"_qs, u"b"_qs}));
        QCOMPARE(reader.root().optionalStrings("texts"), QList<QString>({u"a"_qs, u"b"_qs}));
        QCOMPARE(reader.root().object("inner").string("x"), u"y"_qs);
        QCOMPARE(reader.root().optionalObject("inner")->string("x"), u"y"_qs);
        QCOMPARE(reader.root().list("pairs", readPair), QList<Pair>({{u"p"_qs, 1}}));
        QCOMPARE(reader.root().optionalList("pairs", readPair), QList<Pair>({{u"p"_qs, 1}}));
        QVERIFY(!reader.error());
    }

    void missingOrNullIsNothingWhereOptional_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("missing") << QByteArray("{}");
        QTest::newRow("null") << QByteArray(R"({"k": null})");
    }

    void missingOrNullIsNothingWhereOptional()
    {
        QFETCH(QByteArray, document);
        JsonReader reader(document);
        QVERIFY(!reader.root().optionalString("k"));
        QVERIFY(!reader.root().optionalRepeatedString("k"));
        QVERIFY(!reader.root().optionalInteger("k"));
        QVERIFY(!reader.root().optionalObject("k"));
        QVERIFY(reader.root().optionalStrings("k").isEmpty());
        QVERIFY(reader.root().optionalList("k", readPair).isEmpty());
        QVERIFY(!reader.error());
    }

    void missingOrNullIsAnErrorWhereRequired_data() { missingOrNullIsNothingWhereOptional_data(); }

    void missingOrNullIsAnErrorWhereRequired()
    {
        QFETCH(QByteArray, document);
        const JsonReader::Error missing{Kind::MissingKey, u"k"_qs};

        const auto errorOf = [&document](auto read) {
            JsonReader reader(document);
            read(reader.root());
            return reader.error();
        };
        QCOMPARE(errorOf([](const auto& root) { QVERIFY(root.string("k").isEmpty()); }), missing);
        QCOMPARE(errorOf([](const auto& root) { QVERIFY(root.repeatedString("k").isEmpty()); }),
                 missing);
        QCOMPARE(errorOf([](const auto& root) { QCOMPARE(root.integer("k"), 0); }), missing);
        QCOMPARE(errorOf([](const auto& root) { QVERIFY(root.strings("k").isEmpty()); }), missing);
        QCOMPARE(
            errorOf([](const auto& root) { QVERIFY(root.object("k").string("inner").isEmpty()); }),
            missing);
        QCOMPARE(errorOf([](const auto& root) { QVERIFY(root.list("k", readPair).isEmpty()); }),
                 missing);
    }

    void anotherTypeIsAnError_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("isText");
        QTest::addColumn<bool>("isInteger");
        QTest::addColumn<bool>("isObject");
        QTest::addColumn<bool>("isTexts");
        QTest::addColumn<bool>("isPairs");

        QTest::newRow("text") << QByteArray(R"("1")") << true << false << false << false << false;
        QTest::newRow("integer") << QByteArray("1") << false << true << false << false << false;
        QTest::newRow("fraction") << QByteArray("1.5") << false << false << false << false << false;
        QTest::newRow("boolean") << QByteArray("true") << false << false << false << false << false;
        QTest::newRow("object") << QByteArray("{}") << false << false << true << false << false;
        QTest::newRow("empty array") << QByteArray("[]") << false << false << false << true << true;
        QTest::newRow("texts") << QByteArray(R"(["a"])") << false << false << false << true
                               << false;
        QTest::newRow("text and null")
            << QByteArray(R"(["a", null])") << false << false << false << false << false;
        QTest::newRow("pairs") << QByteArray(R"([{"first": "", "second": 0}])") << false << false
                               << false << false << true;
        QTest::newRow("pair and null") << QByteArray(R"([{"first": "", "second": 0}, null])")
                                       << false << false << false << false << false;
    }

    void anotherTypeIsAnError()
    {
        QFETCH(QByteArray, value);
        const QByteArray document = R"({"k": )" + value + "}";

        const auto reads = [&document](auto read) {
            JsonReader reader(document);
            read(reader.root());
            return !reader.error() ||
                   reader.error() != JsonReader::Error{Kind::InvalidValue, u"k"_qs};
        };
        QTEST(reads([](const auto& root) { root.string("k"); }), "isText");
        QTEST(reads([](const auto& root) { root.optionalString("k"); }), "isText");
        QTEST(reads([](const auto& root) { root.repeatedString("k"); }), "isText");
        QTEST(reads([](const auto& root) { root.optionalRepeatedString("k"); }), "isText");
        QTEST(reads([](const auto& root) { root.integer("k"); }), "isInteger");
        QTEST(reads([](const auto& root) { root.optionalInteger("k"); }), "isInteger");
        QTEST(reads([](const auto& root) { root.object("k"); }), "isObject");
        QTEST(reads([](const auto& root) { root.optionalObject("k"); }), "isObject");
        QTEST(reads([](const auto& root) { root.strings("k"); }), "isTexts");
        QTEST(reads([](const auto& root) { root.optionalStrings("k"); }), "isTexts");
        QTEST(reads([](const auto& root) { root.list("k", readPair); }), "isPairs");
        QTEST(reads([](const auto& root) { root.optionalList("k", readPair); }), "isPairs");
    }

    void wholeNumbersAreIntegersInAnyNotation_data()
    {
        QTest::addColumn<QByteArray>("number");
        QTest::addColumn<std::optional<qint64>>("integer");

        const auto row = [](const char* number, std::optional<qint64> integer) {
            QTest::newRow(number) << QByteArray(number) << integer;
        };
        row("0", 0);
        row("-0", 0);
        row("1.0", 1);
        row("1e2", 100);
        row("1.5e1", 15);
        row("-2.50E2", -250);
        row("9223372036854775807", std::numeric_limits<qint64>::max());
        row("-9223372036854775808", std::numeric_limits<qint64>::min());
        row("-9223372036854775808.0", std::numeric_limits<qint64>::min());
        row("9223372036854775808", std::nullopt);
        row("9223372036854775808.0", std::nullopt);
        row("-9223372036854775809", std::nullopt);
        row("18446744073709551616", std::nullopt);
        row("1e300", std::nullopt);
        row("1e999", std::nullopt);
        row("0.5", std::nullopt);
        row("1e-1", std::nullopt);
    }

    void wholeNumbersAreIntegersInAnyNotation()
    {
        QFETCH(QByteArray, number);
        QFETCH(std::optional<qint64>, integer);
        JsonReader reader(R"({"k": )" + number + "}");
        const qint64 read = reader.root().integer("k");

        QCOMPARE(!reader.error(), integer.has_value());
        QCOMPARE(read, integer.value_or(0));
    }

    void refusesWhatIsNotJson_data()
    {
        QTest::addColumn<QByteArray>("document");

        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("blank") << QByteArray(" ");
        QTest::newRow("cut short") << QByteArray(R"({"k": "v")");
        QTest::newRow("trailing comma") << QByteArray(R"({"k": "v",})");
        QTest::newRow("text behind") << QByteArray(R"({} x)");
        QTest::newRow("comment") << QByteArray(R"({/* */})");
        QTest::newRow("not a number") << QByteArray(R"({"k": NaN})");
        QTest::newRow("leading zero") << QByteArray(R"({"k": 01})");
        QTest::newRow("raw control character") << QByteArray("{\"k\": \"a\nb\"}");
        QTest::newRow("invalid UTF-8") << QByteArray("{\"k\": \"\xFF\"}");
        QTest::newRow("surrogate in UTF-8") << QByteArray("{\"k\": \"\xED\xA0\x80\"}");
        QTest::newRow("nested too deep")
            << QByteArray(QByteArray("[").repeated(100'000) + QByteArray("]").repeated(100'000));
    }

    void refusesWhatIsNotJson()
    {
        QFETCH(QByteArray, document);
        JsonReader reader(document);
        reader.root();

        QCOMPARE(reader.error(), (JsonReader::Error{Kind::NotJson, {}}));
    }

    void acceptsDeepNesting()
    {
        JsonReader reader(R"({"ignored": )" + QByteArray("[").repeated(500) +
                          QByteArray("]").repeated(500) + "}");
        reader.root();

        QVERIFY(!reader.error());
    }

    void refusesATopLevelThatIsNoObject()
    {
        JsonReader reader("[]");
        reader.root();

        QCOMPARE(reader.error(), (JsonReader::Error{Kind::InvalidValue, {}}));
    }

    void keepsEveryCharacter_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("text");

        QTest::newRow("null character") << QByteArray(R"("a\u0000b")") << u"a\0b"_qs;
        QTest::newRow("leading byte order mark")
            << QByteArray("\"\xEF\xBB\xBF甲\"") << u"\uFEFF甲"_qs;
        QTest::newRow("two byte order marks")
            << QByteArray("\"\xEF\xBB\xBF\xEF\xBB\xBF\"") << u"\uFEFF\uFEFF"_qs;
        QTest::newRow("escapes") << QByteArray(R"("\"\\\/\b\f\n\r\t\u7532")")
                                 << u"\"\\/\b\f\n\r\t甲"_qs;
        QTest::newRow("escaped pair") << QByteArray(R"("\ud83d\ude00")") << u"\U0001F600"_qs;
        QTest::newRow("raw upper plane") << QByteArray("\"\xF0\x9F\x98\x80\"") << u"\U0001F600"_qs;
        QTest::newRow("delete") << QByteArray("\"\x7F\"") << u"\x7F"_qs;
    }

    void keepsEveryCharacter()
    {
        QFETCH(QByteArray, json);
        JsonReader reader(R"({"k": )" + json + "}");

        QTEST(reader.root().string("k"), "text");
        QVERIFY(!reader.error());
    }

    void keepsTheWholeOfUnicode()
    {
        QString text;
        for (char32_t character = 0x20; character <= QChar::LastValidCodePoint; ++character) {
            if (!QChar::isSurrogate(character) && character != U'"' && character != U'\\') {
                text += QChar::fromUcs4(character);
            }
        }
        JsonReader reader("{\"k\": \"" + text.toUtf8() + "\"}");

        QVERIFY(reader.root().string("k") == text);
    }

    void tokensAreBytes()
    {
        JsonReader reader(R"({"plain": "new", "other": "新", "number": 1})");
        const auto root = reader.root();

        QCOMPARE(root.token("plain"), QLatin1StringView("new"));
        QCOMPARE(root.token("other"), QLatin1StringView("新"));
        QVERIFY(!reader.error());
        QCOMPARE(root.token("number"), QLatin1StringView());
        QCOMPARE(reader.error(), (JsonReader::Error{Kind::InvalidValue, u"number"_qs}));
    }

    void firstErrorIsKept()
    {
        JsonReader reader(R"({"number": "x"})");
        const auto root = reader.root();
        root.integer("number");
        root.string("absent");

        QCOMPARE(reader.error(), (JsonReader::Error{Kind::InvalidValue, u"number"_qs}));
    }

    void namesTheKeyInsideAList()
    {
        JsonReader reader(R"({"pairs": [{"first": "p", "second": 1}, {"first": "p"}]})");

        QVERIFY(reader.root().list("pairs", readPair).isEmpty());
        QCOMPARE(reader.error(), (JsonReader::Error{Kind::MissingKey, u"second"_qs}));
    }

    void refusedContentIsAnError()
    {
        JsonReader reader(R"({"date": "yesterday"})");
        reader.root().refuse("date");

        QCOMPARE(reader.error(), (JsonReader::Error{Kind::InvalidValue, u"date"_qs}));
    }

    void visitsMembersInOrder()
    {
        JsonReader reader(R"({"saved": {"b": {"first": "1", "second": 1},
                                        "": {"first": "2", "second": 2}}})");
        QList<QString> visited;
        reader.root().object("saved").forEachMember(
            [&visited](const QString& key, const JsonReader::Object& value) {
                visited += {key, readPair(value).first};
            });

        QVERIFY(!reader.error());
        QCOMPARE(visited, QList<QString>({u"b"_qs, u"1"_qs, u""_qs, u"2"_qs}));
    }

    void membersMustBeObjects()
    {
        JsonReader reader(R"({"saved": {"a": {}, "b": null}})");
        int visits = 0;
        reader.root().object("saved").forEachMember(
            [&visits](const QString&, const JsonReader::Object&) { ++visits; });

        QCOMPARE(visits, 1);
        QCOMPARE(reader.error(), (JsonReader::Error{Kind::InvalidValue, u"b"_qs}));
    }

    void ofARepeatedKeyTheFirstCounts_data()
    {
        QTest::addColumn<QByteArray>("document");

        QTest::newRow("alone") << QByteArray(R"({"a": "", "k": "first", "k": 2, "z": ""})");
        QTest::newRow("around another")
            << QByteArray(R"({"k": "first", "a": "", "k": 2, "z": ""})");
        QTest::newRow("before another")
            << QByteArray(R"({"k": "first", "k": 2, "a": "", "z": ""})");
        QTest::newRow("behind another")
            << QByteArray(R"({"a": "", "z": "", "k": "first", "k": 2})");
        QTest::newRow("another") << QByteArray(
            R"({"a": "", "a": 1, "k": "first", "z": "", "k": 2})");
    }

    void ofARepeatedKeyTheFirstCounts()
    {
        QFETCH(QByteArray, document);
        JsonReader reader(document);
        const auto root = reader.root();
        root.string("a");

        QCOMPARE(root.string("k"), u"first"_qs);
        root.string("z");
        QVERIFY(!reader.error());
    }

    void findsMembersInAnyOrder()
    {
        JsonReader reader(R"({"a": "1", "b": "2", "c": null, "d": "4"})");
        const auto root = reader.root();

        QCOMPARE(root.string("b"), u"2"_qs);
        QCOMPARE(root.optionalString("absent"), std::nullopt);
        QCOMPARE(root.string("a"), u"1"_qs);
        QCOMPARE(root.optionalString("c"), std::nullopt);
        QCOMPARE(root.string("d"), u"4"_qs);
        QCOMPARE(root.optionalString("absent as well"), std::nullopt);
        QVERIFY(!reader.error());
    }

    void aRepeatedTextIsKeptOnce()
    {
        JsonReader reader(R"({"texts": [{"k": "一次"}, {"k": "另一次"}, {"k": "一次"},
                                        {"k": ""}, {"k": ""}]})");
        const auto texts = reader.root().list("texts", readRepeated);

        QCOMPARE(texts, QStringList({u"一次"_qs, u"另一次"_qs, u"一次"_qs, u""_qs, u""_qs}));
        QCOMPARE(texts.at(2).constData(), texts.at(0).constData());
    }

    void ofManyTextsEachStaysItself()
    {
        QStringList texts;
        QByteArray document = "{\"texts\": [";
        for (int number = 0; number < 5000; ++number) {
            texts.append(u"第 %1 条"_qs.arg(number));
            document.append(R"({"k": ")" + texts.last().toUtf8() + R"("},)");
        }
        document.back() = ']';
        JsonReader reader(document + '}');

        QCOMPARE(reader.root().list("texts", readRepeated), texts);
    }
};

TEST_SUBJECT(JsonReaderTest)
#include "JsonReaderTest.moc"
