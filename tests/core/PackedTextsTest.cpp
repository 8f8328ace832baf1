// SPDX-License-Identifier: Apache-2.0

#include "PackedTexts.h"
#include "Subject.h"

#include <QTest>

#include <optional>

namespace {

constexpr qsizetype longestPacked = 1024;
constexpr qsizetype blockSize = 8192;

QString packed(PackedTexts& texts, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return texts.fromUtf8({utf8.constData(), static_cast<size_t>(utf8.size())});
}

/// Whether nothing lies between them but the end of the first.
bool lieSideBySide(const QString& first, const QString& second)
{
    return second.constData() == first.constData() + first.size() + 1;
}

using Change = void (*)(QString&);

const QList<Change> changes{
    [](QString& text) { text.append(u'。'); },
    [](QString& text) { text.append(QString(3 * blockSize, u'长')); },
    [](QString& text) { text.prepend(u"前面"_qs); },
    [](QString& text) { text.insert(1, u"里面"_qs); },
    [](QString& text) { text.remove(0, 1); },
    [](QString& text) { text.replace(u"文"_qs, u"文字"_qs); },
    [](QString& text) { text[0] = u'改'; },
    [](QString& text) { text.resize(blockSize + 1, u'长'); },
    [](QString& text) { text.resize(1); },
    [](QString& text) { text.reserve(2 * blockSize); },
    [](QString& text) { text.squeeze(); },
    [](QString& text) { text.clear(); },
};

} // namespace

class PackedTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodesCharactersOfEveryLengthInEveryOrder()
    {
        const QStringList pieces{u"a"_qs, u"é"_qs, u"中"_qs, u"😀"_qs, u"in ASCII"_qs};
        PackedTexts texts;
        QStringList ofOneLength{QString()};
        for (int length = 1; length <= 6; ++length) {
            QStringList longer;
            for (const QString& text : std::as_const(ofOneLength)) {
                for (const QString& piece : pieces) {
                    longer.append(text + piece);
                    QVERIFY2(packed(texts, longer.last()) == longer.last(),
                             qUtf8Printable(longer.last()));
                }
            }
            ofOneLength = longer;
        }
    }

    void decodesTheEdgesOfEveryLengthAlone()
    {
        PackedTexts texts;
        for (const char32_t character : {0x01U, 0x7FU, 0x80U, 0x7FFU, 0x800U, 0xFFFU, 0x1000U,
                                         0xD7FFU, 0xE000U, 0xFFFFU, 0x10000U, 0x10FFFFU}) {
            const QString text = QString::fromUcs4(&character, 1);
            QCOMPARE(packed(texts, text), text);
        }
    }

    void anEmptyTextIsNotNull()
    {
        PackedTexts texts;

        QVERIFY(packed(texts, QString()).isEmpty());
        QVERIFY(!packed(texts, QString()).isNull());
    }

    void textsLieSideBySide()
    {
        PackedTexts texts;
        const QString first = packed(texts, u"一"_qs);
        const QString second = packed(texts, u"second"_qs);
        const QString third = packed(texts, QString(longestPacked, u'3'));

        QVERIFY(lieSideBySide(first, second));
        QVERIFY(lieSideBySide(second, third));
        QCOMPARE(first.utf16()[first.size()], u'\0');
    }

    void aLongTextLiesOnItsOwn()
    {
        PackedTexts texts;
        const QString before = packed(texts, u"before"_qs);
        const QString text = QString(longestPacked / 3, u'长') + u"aa"_qs;
        QCOMPARE(text.toUtf8().size(), longestPacked + 1);
        const QString onItsOwn = packed(texts, text);
        const QString after = packed(texts, u"after"_qs);

        QCOMPARE(onItsOwn, text);
        QCOMPARE(onItsOwn.capacity(), text.size());
        QVERIFY(lieSideBySide(before, after));
    }

    void aBlockIsFilledToItsEnd()
    {
        PackedTexts texts;
        const QString whole(longestPacked - 1, u'a');
        QStringList filling;
        for (qsizetype room = blockSize; room > 0; room -= longestPacked) {
            filling.append(packed(texts, whole));
        }
        const QString behind = packed(texts, whole);

        for (qsizetype at = 1; at < filling.size(); ++at) {
            QVERIFY(lieSideBySide(filling.at(at - 1), filling.at(at)));
        }
        QVERIFY(!lieSideBySide(filling.last(), behind));
        QCOMPARE(filling.count(whole), filling.size());
        QCOMPARE(behind, whole);
    }

    void aTextThatDoesNotFitBeginsABlock()
    {
        PackedTexts texts;
        const QString first = packed(texts, QString(longestPacked, u'a'));
        QString last;
        for (qsizetype room = blockSize; room > 2 * longestPacked; room -= longestPacked) {
            last = packed(texts, QString(longestPacked - 1, u'a'));
        }
        // One unit less is free than the text and its end take.
        const QString behind = packed(texts, QString(longestPacked - 1, u'b'));

        QVERIFY(!lieSideBySide(last, behind));
        QCOMPARE(behind, QString(longestPacked - 1, u'b'));
        QCOMPARE(first, QString(longestPacked, u'a'));
    }

    void aChangedTextLeavesTheOthers()
    {
        for (const Change change : changes) {
            PackedTexts texts;
            const QString before = packed(texts, u"前文"_qs);
            QString text = packed(texts, u"一段文字"_qs);
            const QString after = packed(texts, u"后文"_qs);
            QString changed = u"一段文字"_qs;
            change(changed);
            change(text);

            QCOMPARE(text, changed);
            QCOMPARE(before, u"前文"_qs);
            QCOMPARE(after, u"后文"_qs);
        }
    }

    void theLastTextOfABlockChangesAsAnyOther()
    {
        for (const Change change : changes) {
            std::optional<PackedTexts> texts(std::in_place);
            packed(*texts, u"前文"_qs);
            QString text = packed(*texts, u"一段文字"_qs);
            texts.reset();
            QVERIFY(text.isDetached());
            QString changed = u"一段文字"_qs;
            change(changed);
            change(text);
            QCOMPARE(text, changed);
            change(changed);
            change(text);
            QCOMPARE(text, changed);
        }
    }
};

TEST_SUBJECT(PackedTextsTest)
#include "PackedTextsTest.moc"
