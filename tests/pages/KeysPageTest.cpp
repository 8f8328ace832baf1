// SPDX-License-Identifier: Apache-2.0

#include "KeysPage.h"
#include "Subject.h"

#include <QFile>
#include <QTest>

class KeysPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDocumentHasTheSameTable()
    {
        QFile document(QStringLiteral(KEYBOARD_DOCUMENT));
        QVERIFY(document.open(QIODevice::ReadOnly));
        const auto text = QString::fromUtf8(document.readAll());

        QString table = u"|---|---|\n"_qs;
        for (const auto& row : KeysPage::rows()) {
            table += u"| %1 | %2 |\n"_qs.arg(row.label, row.text);
        }
        QVERIFY(text.endsWith(table));
    }

    void aScreenReaderSaysAllRows()
    {
        QCOMPARE(KeysPage::title(), u"键盘操作"_qs);
        const auto rows = KeysPage::rows();
        const auto lines = KeysPage::description().split(u'\n');

        QCOMPARE(lines.size(), rows.size());
        QCOMPARE(lines.at(1), u"Ctrl+N 添加信息"_qs);
        QCOMPARE(lines.last(), rows.last().name());
    }
};

TEST_SUBJECT(KeysPageTest)
#include "KeysPageTest.moc"
