// SPDX-License-Identifier: Apache-2.0

#include "FontConfiguration.h"
#include "Subject.h"

#include <QFile>
#include <QFontDatabase>
#include <QTemporaryDir>
#include <QTest>

class FontConfigurationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNotReadAgainByTheFirstText()
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(u"fonts.conf"_qs));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<fontconfig></fontconfig>");
        file.close();
        qputenv("FONTCONFIG_FILE", file.fileName().toLocal8Bit());

        FontConfiguration::readAhead().get();

        qunsetenv("FONTCONFIG_FILE");
        QVERIFY(!QFontDatabase::families().contains(u"Noto Sans CJK SC"_qs));
    }
};

TEST_SUBJECT(FontConfigurationTest)
#include "FontConfigurationTest.moc"
