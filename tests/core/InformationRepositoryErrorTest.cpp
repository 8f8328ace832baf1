// SPDX-License-Identifier: Apache-2.0

#include "InformationRepositoryError.h"
#include "Subject.h"

#include <QTest>

#include <limits>

class InformationRepositoryErrorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesItself_data()
    {
        QTest::addColumn<InformationRepositoryError>("error");
        QTest::addColumn<QString>("description");

        const auto unsupported = [](qint64 version) {
            return InformationRepositoryError{InformationRepositoryError::Kind::UnsupportedVersion,
                                              version};
        };
        QTest::newRow("later version") << unsupported(4) << u"信息资料库版本 4 暂不受支持。"_qs;
        QTest::newRow("negative version")
            << unsupported(-1) << u"信息资料库版本 -1 暂不受支持。"_qs;
        QTest::newRow("largest version") << unsupported(std::numeric_limits<qint64>::max())
                                         << u"信息资料库版本 9223372036854775807 暂不受支持。"_qs;
        QTest::newRow("no directory")
            << InformationRepositoryError{InformationRepositoryError::Kind::
                                              ApplicationSupportUnavailable}
            << u"无法找到本机应用数据目录。"_qs;
    }

    void describesItself()
    {
        QFETCH(InformationRepositoryError, error);
        QFETCH(QString, description);

        QCOMPARE(error.localizedDescription(), description);
    }
};

TEST_SUBJECT(InformationRepositoryErrorTest)
#include "InformationRepositoryErrorTest.moc"
