// SPDX-License-Identifier: Apache-2.0

#include "EditionWriter.h"
#include "SeedFolder.h"
#include "Subject.h"

#include <QTest>

class EditionWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesAllThatTheFormatHas()
    {
        const EditionFolder seed = SeedFolder::read();
        for (const EditionDocument& document : seed.documents()) {
            const QByteArray written = EditionWriter::document(document.kind, document.root);
            QCOMPARE(QJsonDocument::fromJson(written).object(), document.root);
        }
    }

    void leavesOutWhatTheFormatDoesNotHave()
    {
        const QJsonObject root{
            {u"note"_qs, u"for the next editor"_qs},
            {u"sources"_qs,
             QJsonArray{QJsonObject{
                 {u"url"_qs, u"example.org"_qs}, {u"id"_qs, u"a"_qs}, {u"take"_qs, QJsonValue()}}}},
        };
        QCOMPARE(EditionWriter::document(DocumentKind::Registry, root), QByteArray(R"({
  "sources": [
    {
      "id": "a",
      "url": "example.org"
    }
  ]
}
)"));
    }
};

TEST_SUBJECT(EditionWriterTest)
#include "EditionWriterTest.moc"
