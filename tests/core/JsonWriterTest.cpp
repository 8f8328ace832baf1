// SPDX-License-Identifier: Apache-2.0

#include "JsonWriter.h"
#include "Subject.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class JsonWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesALineForEachMemberAndElement()
    {
        JsonWriter writer;
        writer.beginObject();
        writer.key(u"empty array"_qs);
        writer.beginArray();
        writer.endArray();
        writer.key("array");
        writer.beginArray();
        writer.integer(-7);
        writer.boolean(true);
        writer.boolean(false);
        writer.string(u"a/b");
        writer.beginObject();
        writer.endObject();
        writer.endArray();
        writer.key("object");
        writer.beginObject();
        writer.key("number");
        writer.integer(9'223'372'036'854'775'807);
        writer.endObject();
        writer.endObject();

        QCOMPARE(writer.document(), QByteArray(R"({
  "empty array": [],
  "array": [
    -7,
    true,
    false,
    "a/b",
    {}
  ],
  "object": {
    "number": 9223372036854775807
  }
}
)"));
    }

    void escapesWhatAStringMayNotHold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("written");

        QTest::newRow("empty") << QString() << QByteArray("\"\"");
        QTest::newRow("quote") << u"a\"b"_qs << QByteArray("\"a\\\"b\"");
        QTest::newRow("backslash") << u"a\\b"_qs << QByteArray("\"a\\\\b\"");
        QTest::newRow("line") << u"a\nb\r\tc"_qs << QByteArray("\"a\\nb\\r\\tc\"");
        QTest::newRow("nought") << QString(QChar(0)) << QByteArray("\"\\u0000\"");
        QTest::newRow("control") << u"\u0001\u001F"_qs << QByteArray("\"\\u0001\\u001f\"");
        QTest::newRow("delete") << u"\u007F"_qs << QByteArray("\"\x7f\"");
        QTest::newRow("Chinese") << u"中文"_qs << QByteArray("\"中文\"");
        QTest::newRow("upper plane") << u"\U0001F600"_qs << QByteArray("\"\U0001F600\"");
        QTest::newRow("byte order mark") << u"\uFEFFa"_qs << QByteArray("\"\uFEFFa\"");
        QTest::newRow("half a character")
            << u"a"_qs + QChar(0xD83D) + u'b' << QByteArray("\"a\uFFFDb\"");
        QTest::newRow("half a character at the end")
            << u"a"_qs + QChar(0xD83D) << QByteArray("\"a\uFFFD\"");
    }

    void escapesWhatAStringMayNotHold()
    {
        QFETCH(QString, text);
        QFETCH(QByteArray, written);

        JsonWriter writer;
        writer.string(text);
        QCOMPARE(writer.document(), written + '\n');
    }

    void aNameIsWrittenAlikeInEveryEncoding_data()
    {
        QTest::addColumn<QString>("name");

        for (const QString& name : {u""_qs, u"a b~"_qs, u"\""_qs, u"\\"_qs, u"a\"b"_qs, u"\n"_qs,
                                    u"a\nb"_qs, u"\u007F"_qs, u"é"_qs}) {
            QTest::newRow(qUtf8Printable(name)) << name;
        }
    }

    void aNameIsWrittenAlikeInEveryEncoding()
    {
        QFETCH(const QString, name);
        const auto written = [](QAnyStringView key) {
            JsonWriter writer;
            writer.beginObject();
            writer.key(key);
            writer.boolean(true);
            writer.endObject();
            return writer.document();
        };

        QCOMPARE(written(QLatin1StringView(name.toLatin1())), written(name));
        QCOMPARE(written(QUtf8StringView(name.toUtf8())), written(name));
    }

    // The writer looks at many characters in one step.
    void escapesWhereverItStands()
    {
        constexpr qsizetype length = 40;
        for (qsizetype at = 0; at < length; ++at) {
            const auto before = u"中"_qs.repeated(at);
            const auto after = u"中"_qs.repeated(length - at);
            JsonWriter writer;
            writer.string(before + u'"' + after);
            QCOMPARE(writer.document(),
                     (u"\""_qs + before + u"\\\""_qs + after + u"\"\n"_qs).toUtf8());
        }
    }

    void everyCharacterReadsBack()
    {
        QString text;
        for (char32_t character = 0; character <= 0x10FFFF; ++character) {
            if (!QChar::isSurrogate(character)) {
                text += QString::fromUcs4(&character, 1);
            }
        }
        JsonWriter writer;
        writer.beginObject();
        writer.key(text);
        writer.string(text);
        writer.endObject();

        const QJsonDocument document = QJsonDocument::fromJson(writer.document());
        QCOMPARE(document.object().value(text).toString(), text);
    }
};

TEST_SUBJECT(JsonWriterTest)
#include "JsonWriterTest.moc"
