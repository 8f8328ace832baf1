// SPDX-License-Identifier: Apache-2.0

#include "KeptJson.h"
#include "SampleSignal.h"
#include "Subject.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

class KeptJsonTest : public QObject
{
    Q_OBJECT

private:
    static QJsonObject firstThread(const ExportedThread& thread)
    {
        const auto document = QJsonDocument::fromJson(keptJson({thread}, {}));
        return document[u"threads"][0].toObject();
    }

private Q_SLOTS:
    void textsAreAsTheyAreStored()
    {
        const QString note = u"*a*\n\t<b>\u001B[2J \"C:\\\" /"_qs;
        const auto thread = firstThread({.signal = std::nullopt,
                                         .keepings = {{u"id"_qs, {{}, u"why"_qs, note}}},
                                         .targetId = {}});

        const auto kept = thread[u"kept"][0];
        QCOMPARE(kept[u"signalId"].toString(), u"id"_qs);
        QCOMPARE(kept[u"savedAt"].toString(), u"1970-01-01T00:00:00Z"_qs);
        QCOMPARE(kept[u"note"].toString(), note);
        QVERIFY(!thread.contains(u"newest"));
    }

    void whatACardDoesNotHaveIsAbsent()
    {
        auto signal = sampleSignal(u"a"_qs);
        const auto newest = [&signal] {
            return firstThread({.signal = signal, .keepings = {}, .targetId = {}})[u"newest"]
                .toObject();
        };
        for (const auto& key : {u"publishedAt"_qs, u"updateSummary"_qs, u"digest"_qs}) {
            QVERIFY2(!newest().contains(key), qPrintable(key));
        }
        signal.publishedAt = signal.updateSummary = signal.digest = u"there"_qs;
        for (const auto& key : {u"publishedAt"_qs, u"updateSummary"_qs, u"digest"_qs}) {
            QCOMPARE(newest()[key].toString(), u"there"_qs);
        }
    }
};

TEST_SUBJECT(KeptJsonTest)
#include "KeptJsonTest.moc"
