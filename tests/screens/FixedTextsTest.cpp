// SPDX-License-Identifier: Apache-2.0

#include "ScreenTour.h"
#include "SourcesPage.h"
#include "Subject.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>

/// Holds the list of fixed texts against what the screens show: each is shown somewhere, and no
/// screen says in Chinese what is not listed.
class FixedTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QFile file(QStringLiteral(FIXED_TEXTS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (const QString& line : lines) {
            if (!line.startsWith(u'#')) {
                m_texts.append({line, pattern(line)});
            }
        }
        QVERIFY(!m_texts.isEmpty());

        // The compiled-in registry is content.
        const SourcesPage page;
        const auto sources = page.registry();
        for (const auto& source : sources) {
            m_content += {source.name, source.description};
        }
    }

    void everyScreen_data() { ScreenTour::addRows(); }

    void everyScreen()
    {
        QFETCH(const ScreenTour::Stop, stop);
        ScreenTour::Visit visit(stop);
        collect(visit.window().content());
        QCOMPARE(visit.window().warnings(), QStringList());

        QStringList unlisted;
        for (const QString& shown : std::as_const(m_shownNow)) {
            if (!takeWhole(shown)) {
                unlisted.append(shown);
            }
        }
        m_shownNow.clear();
        QCOMPARE(unlisted.join(u'\n'), QString());
    }

    void everyTextIsShown()
    {
        QStringList missing;
        for (const auto& text : std::as_const(m_texts)) {
            if (!text.shown) {
                missing.append(text.line);
            }
        }
        QCOMPARE(missing.join(u'\n'), QString());
    }

private:
    struct FixedText
    {
        QString line;
        QRegularExpression pattern;
        bool shown = false;
    };

    static QRegularExpression pattern(const QString& line)
    {
        static const QString lanes =
            u"(开源增长|产品雷达|赚钱机会|工作流与方法|创业复盘|平台变化)"_qs;
        auto escaped = QRegularExpression::escape(line);
        escaped.replace(u"\\{n\\}"_qs, u"\\d+"_qs);
        escaped.replace(u"\\{lane\\}"_qs, lanes);
        escaped.replace(u"\\{weekday\\}"_qs, u"星期[一二三四五六日]"_qs);
        escaped.replace(u"\\{day\\}"_qs, u"(\\d{4}年)?\\d+月\\d+日( 星期[一二三四五六日])?"_qs);
        escaped.replace(u"\\{text\\}"_qs, u".*"_qs);
        return QRegularExpression(QRegularExpression::anchoredPattern(escaped));
    }

    void collect(QQuickItem* item)
    {
        if (!item->isVisible()) {
            return;
        }
        add(item->property("text").toString());
        if (auto* const accessible = QAccessible::queryAccessibleInterface(item)) {
            add(accessible->text(QAccessible::Name));
            add(accessible->text(QAccessible::Description));
        }
        const auto children = item->childItems();
        for (auto* const child : children) {
            collect(child);
        }
    }

    void add(const QString& text)
    {
        if (text.contains(chinese) && !m_content.contains(text)) {
            m_shownNow.insert(text);
        }
    }

    /// Marks the listed texts that it is. Whether there is one.
    bool take(const QString& shown)
    {
        bool listed = false;
        for (auto& text : m_texts) {
            if (text.pattern.match(shown).hasMatch()) {
                text.shown = true;
                listed = true;
            }
        }
        return listed;
    }

    /// The same for what a screen reader is told of a card or a button in several lines and parts.
    bool takeWhole(const QString& shown)
    {
        return take(shown) || std::ranges::any_of(u"\n，"_qs, [this, &shown](QChar joint) {
                   const auto parts = shown.split(joint);
                   return parts.size() > 1 &&
                          std::ranges::all_of(parts, [this](const QString& part) {
                              return !part.contains(chinese) || takeWhole(part);
                          });
               });
    }

    inline static const QRegularExpression chinese{u"\\p{Han}"_qs};

    QList<FixedText> m_texts;
    QSet<QString> m_content;
    QSet<QString> m_shownNow;
};

TEST_SUBJECT(FixedTextsTest)
#include "FixedTextsTest.moc"
