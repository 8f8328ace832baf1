// SPDX-License-Identifier: Apache-2.0

#include "InformationWorkspaceCoding.h"
#include "FormatExamples.h"
#include "Subject.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace std::chrono_literals;
using namespace InformationWorkspaceCoding;

namespace {

constexpr std::chrono::sys_seconds sampleTime{1'788'220'800s}; // 2026-09-01T00:00:00Z

InformationWorkspace sampleWorkspace()
{
    return {
        .version = 3,
        .saved = {{u"s1"_qs, {sampleTime, u"理由"_qs, u"备注/注"_qs}},
                  {u"s10"_qs, {sampleTime + 1s, {}, {}}}},
        .following = {u"t1"_qs, u"t2"_qs},
        .hidden = {u"s1@2026"_qs, u"s9"_qs},
        .reducedLanes = {InformationLane::Workflow, InformationLane::Opportunity},
        .customSources = {{QUuid(u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F"_qs),
                           u"https://a.example/b"_qs, sampleTime}},
        .seenTargets = {u"t1"_qs},
    };
}

// The sample's document with one piece of it replaced.
QByteArray documentWith(const QByteArray& piece, const QByteArray& replacement)
{
    QByteArray document = R"({"version": 3,
        "saved": {"s1": {"savedAt": "2026-09-01T00:00:00Z", "saveReason": "r", "note": "n"}},
        "following": ["t1"], "hidden": ["h1"], "reducedLanes": ["workflow"],
        "customSources": [{"id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", "input": "i",
                           "createdAt": "2026-09-02T00:00:00Z"}],
        "seenTargets": ["t1"]})";
    if (!document.contains(piece)) {
        qFatal("no such piece: %s", piece.constData());
    }
    return document.replace(piece, replacement);
}

QString failureOf(const QByteArray& document)
{
    const auto decoded = decode(document);
    return decoded ? QString() : decoded.error().localizedDescription;
}

QString missing(const QString& name)
{
    return u"信息资料库文件里缺少“"_qs + name + u"”。"_qs;
}

QString invalid(const QString& name)
{
    return u"信息资料库文件里的“"_qs + name + u"”无法识别。"_qs;
}

const QString broken = u"信息资料库文件已损坏或不完整。"_qs;
const QString foreign = u"信息资料库文件里不是信息工作台的内容。"_qs;

} // namespace

class InformationWorkspaceCodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDocumentedExampleReadsAndIsWrittenTheSame()
    {
        const QByteArray example = formatExample(u"workspace-v1.json"_qs);

        const auto workspace = decode(example);
        QVERIFY(workspace);
        QCOMPARE(workspace->saved.at(u"example-editor"_qs).note,
                 u"下周试用，\n重点看 \"导出\" 与 C:\\ 路径。"_qs);
        QCOMPARE(encode(*workspace), example);
    }

    void anEmptyObjectIsAnEmptyWorkspaceOfTheOldestForm_data()
    {
        QTest::addColumn<QByteArray>("document");

        QTest::newRow("empty") << QByteArray("{}");
        QTest::newRow("nulls") << QByteArray(
            R"({"version": null, "saved": null, "following": null, "hidden": null,
                "reducedLanes": null, "customSources": null, "seenTargets": null})");
        QTest::newRow("unknown keys") << QByteArray(R"({"Version": 3, "other": [{"a": [null]}]})");
    }

    void anEmptyObjectIsAnEmptyWorkspaceOfTheOldestForm()
    {
        QFETCH(QByteArray, document);

        InformationWorkspace wanted;
        wanted.version = 1;
        QCOMPARE(decode(document).value(), wanted);
    }

    void versionsAreReadAsTheyStand_data()
    {
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<qint64>("version");

        QTest::newRow("old") << QByteArray("1") << qint64{1};
        QTest::newRow("later") << QByteArray("99") << qint64{99};
        QTest::newRow("negative") << QByteArray("-1") << qint64{-1};
        QTest::newRow("fraction of nought") << QByteArray("3.0") << qint64{3};
        QTest::newRow("exponent") << QByteArray("3e0") << qint64{3};
        QTest::newRow("largest") << QByteArray("9223372036854775807")
                                 << std::numeric_limits<qint64>::max();
    }

    void versionsAreReadAsTheyStand()
    {
        QFETCH(QByteArray, written);
        QFETCH(qint64, version);

        QCOMPARE(decode("{\"version\": " + written + '}').value().version, version);
    }

    void listsAreCleaned()
    {
        QByteArray seen;
        for (int number = 1; number <= 305; ++number) {
            seen += (number > 1 ? ",\"t" : "\"t") + QByteArray::number(number) + '"';
        }
        const InformationWorkspace workspace =
            decode(R"({"following": ["a", "b", "a"], "hidden": ["x", "x"],
                       "reducedLanes": ["workflow", "workflow"], "seenTargets": [)" +
                   seen + "]}")
                .value();

        QCOMPARE(workspace.following, (QList<QString>{u"a"_qs, u"b"_qs}));
        QCOMPARE(workspace.hidden, QList<QString>{u"x"_qs});
        QCOMPARE(workspace.reducedLanes, QList<InformationLane>{InformationLane::Workflow});
        QCOMPARE(workspace.seenTargets.size(), 300);
        QCOMPARE(workspace.seenTargets.first(), u"t6"_qs);
    }

    void uuidsReadInEitherLetterCase()
    {
        const InformationWorkspace upper = decode(documentWith("{", "{")).value();
        const InformationWorkspace lower =
            decode(documentWith("E621E1F8-C36C-495A-93FC-0C247A3E6E5F",
                                "e621e1f8-c36c-495a-93fc-0c247a3e6e5f"))
                .value();

        QCOMPARE(upper, lower);
        QVERIFY(encode(lower).contains("E621E1F8-C36C-495A-93FC-0C247A3E6E5F"));
    }

    void whatIsNoWorkspaceIsRefusedInWords_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("reason");

        const auto add = [](const char* title, const QByteArray& document, const QString& reason) {
            QTest::newRow(title) << document << reason;
        };
        add("nothing", "", broken);
        add("words", "garbage", broken);
        add("cut", documentWith("{", "{").chopped(3), broken);
        add("cut in a character", QByteArray("{\"following\": [\"\xE4\xB8\"]}"), broken);
        add("trailing comma", R"({"version": 3,})", broken);
        add("comment", R"({"version": 3} // mine)", broken);
        add("two documents", "{}{}", broken);
        add("raw line end in a text", "{\"following\": [\"a\nb\"]}", broken);
        add("array", "[]", foreign);
        add("null", "null", foreign);
        add("text", R"("version")", foreign);

        const QString version = u"版本号"_qs;
        add("version: text", documentWith("3,", R"("3",)"), invalid(version));
        add("version: fraction", documentWith("3,", "3.5,"), invalid(version));
        add("version: too large", documentWith("3,", "9223372036854775808,"), invalid(version));
        add("version: true", documentWith("3,", "true,"), invalid(version));

        const QString saved = u"收下的内容"_qs;
        add("saved: array", R"({"saved": [null]})", invalid(saved));
        add("saved: text", R"({"saved": "x"})", invalid(saved));
        add("entry: null", R"({"saved": {"s1": null}})", invalid(u"s1"_qs));
        add("entry: text", R"({"saved": {"s1": "x"}})", invalid(u"s1"_qs));

        const QString savedAt = u"收下的时间"_qs;
        const QByteArray date = R"("savedAt": "2026-09-01T00:00:00Z", )";
        add("no date", documentWith(date, ""), missing(savedAt));
        add("date: null", documentWith(date, R"("savedAt": null, )"), missing(savedAt));
        add("date: number", documentWith(date, R"("savedAt": 809496063, )"), invalid(savedAt));
        const QByteArray stamp = "2026-09-01T00:00:00Z";
        add("date: empty", documentWith(stamp, ""), invalid(savedAt));
        add("date: fraction", documentWith(stamp, "2026-09-01T00:00:00.5Z"), invalid(savedAt));
        add("date: fraction of nought", documentWith(stamp, "2026-09-01T00:00:00.0Z"),
            invalid(savedAt));
        add("date: offset", documentWith(stamp, "2026-09-01T00:00:00+00:00"), invalid(savedAt));
        add("date: small letters", documentWith(stamp, "2026-09-01t00:00:00Z"), invalid(savedAt));
        add("date: no dashes", documentWith(stamp, "20260901T000000Z"), invalid(savedAt));
        add("date: hour 25", documentWith(stamp, "2026-09-01T25:00:00Z"), invalid(savedAt));
        add("date: 31 February", documentWith(stamp, "2026-02-31T00:00:00Z"), invalid(savedAt));
        add("date: day alone", documentWith(stamp, "2026-09-01"), invalid(savedAt));

        add("no reason", documentWith(R"("saveReason": "r", )", ""), missing(u"收下的理由"_qs));
        add("reason: list", documentWith(R"("r")", "[]"), invalid(u"收下的理由"_qs));
        add("no note", documentWith(R"(, "note": "n")", ""), missing(u"备注"_qs));
        add("note: null", documentWith(R"("n")", "null"), missing(u"备注"_qs));
        add("note: object", documentWith(R"("n")", "{}"), invalid(u"备注"_qs));

        add("following: object", documentWith(R"("following": ["t1"])", R"("following": {})"),
            invalid(u"持续更新的对象"_qs));
        add("following: null inside",
            documentWith(R"("following": ["t1"])", R"("following": ["t1", null])"),
            invalid(u"持续更新的对象"_qs));
        add("hidden: number", documentWith(R"(["h1"])", "5"), invalid(u"收起的内容"_qs));
        add("hidden: number inside", documentWith(R"(["h1"])", "[5]"), invalid(u"收起的内容"_qs));
        add("seen: text", documentWith(R"("seenTargets": ["t1"])", R"("seenTargets": "t1")"),
            invalid(u"看过的内容"_qs));
        add("lanes: unknown", documentWith(R"("workflow")", R"("Workflow")"),
            invalid(u"减少的栏目"_qs));
        add("lanes: null inside", documentWith(R"("workflow")", "null"), invalid(u"减少的栏目"_qs));

        const QString sources = u"自己添加的内容"_qs;
        add("sources: object", R"({"customSources": {}})", invalid(sources));
        add("sources: text inside", R"({"customSources": ["x"]})", invalid(sources));
        const QByteArray id = R"("id": "E621E1F8-C36C-495A-93FC-0C247A3E6E5F", )";
        const QString idName = u"添加内容的编号"_qs;
        add("no id", documentWith(id, ""), missing(idName));
        add("id: number", documentWith(id, R"("id": 5, )"), invalid(idName));
        add("id: short", documentWith("3E6E5F\"", "3E6E5\""), invalid(idName));
        add("id: long", documentWith("3E6E5F\"", "3E6E5F0\""), invalid(idName));
        add("id: braces", documentWith(id, R"("id": "{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}", )"),
            invalid(idName));
        add("id: word", documentWith(id, R"("id": "x", )"), invalid(idName));
        add("no input", documentWith(R"("input": "i",)", ""), missing(u"添加的链接或文字"_qs));
        add("input: number", documentWith(R"("i")", "1"), invalid(u"添加的链接或文字"_qs));
        add("no creation", documentWith(R"("createdAt")", R"("created")"),
            missing(u"添加的时间"_qs));
        add("creation: empty", documentWith("2026-09-02T00:00:00Z", ""), invalid(u"添加的时间"_qs));
    }

    void whatIsNoWorkspaceIsRefusedInWords()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, reason);

        QCOMPARE(failureOf(document), reason);
    }

    void everythingIsWrittenInOrder()
    {
        QCOMPARE(encode(InformationWorkspace()), QByteArray(R"({
  "customSources": [],
  "following": [],
  "hidden": [],
  "reducedLanes": [],
  "saved": {},
  "seenTargets": [],
  "version": 3
}
)"));
    }

    void savedIdsAreWrittenInCodePointOrder()
    {
        InformationWorkspace workspace;
        for (const QString& id : {u"\U0001F600"_qs, u"\uFFFD"_qs, u"a"_qs, u"Z"_qs}) {
            workspace.saved.insert({id, {sampleTime, {}, {}}});
        }
        const QByteArray document = encode(workspace);

        qsizetype last = -1;
        for (const QByteArray key : {"\"Z\"", "\"a\"", "\"\uFFFD\"", "\"\U0001F600\""}) {
            QVERIFY(document.indexOf(key) > last);
            last = document.indexOf(key);
        }
    }

    void slashesAreNotEscaped()
    {
        const QByteArray document = encode(sampleWorkspace());

        QVERIFY(document.contains("https://a.example/b"));
        QVERIFY(!document.contains("\\/"));
    }

    void whatIsWrittenReadsBack_data()
    {
        QTest::addColumn<InformationWorkspace>("workspace");

        const auto add = [](const char* title, const InformationWorkspace& workspace) {
            QTest::newRow(title) << workspace;
        };
        add("empty", {});
        add("sample", sampleWorkspace());

        const auto withText = [](const QString& text) {
            InformationWorkspace workspace;
            workspace.saved.insert({text, {sampleTime, text, text}});
            workspace.following = {text};
            workspace.hidden = {text};
            workspace.seenTargets = {text};
            workspace.customSources = {{QUuid(), text, sampleTime}};
            return workspace;
        };
        add("empty text", withText(u""_qs));
        add("quotes and slashes", withText(u"\"a\" \\ / 'b'"_qs));
        add("controls", withText(u"\u0001\b\f\n\r\t\u001F\u007F\u0085\u2028\u2029"_qs));
        add("character nought", withText(u"a"_qs + QChar(0) + u'b'));
        add("upper planes", withText(u"\U0001F600\U0010FFFF"_qs));
        add("byte order mark", withText(u"\uFEFFa\uFEFF"_qs));
        add("no character", withText(u"\uFFFE\uFFFF"_qs));
        add("combining", withText(u"e\u0301 \u00E9"_qs));
        add("long", withText(QString(300'000, u'长')));

        const auto withTime = [](std::chrono::sys_seconds time) {
            InformationWorkspace workspace;
            workspace.saved.insert({u"a"_qs, {time, {}, {}}});
            return workspace;
        };
        add("epoch", withTime({}));
        add("before the epoch", withTime(std::chrono::sys_seconds(-1s)));
        add("leap day", withTime(std::chrono::sys_days(2028y / 2 / 29) + 23h + 59min + 59s));
        add("first second", withTime(std::chrono::sys_days(0y / 1 / 1)));
        add("last second", withTime(std::chrono::sys_days(9999y / 12 / 31) + 86399s));
    }

    void whatIsWrittenReadsBack()
    {
        QFETCH(InformationWorkspace, workspace);

        const QByteArray document = encode(workspace);
        const auto decoded = decode(document);
        QVERIFY(decoded);
        QCOMPARE(*decoded, workspace);
        QCOMPARE(encode(*decoded), document);
        QVERIFY(!QJsonDocument::fromJson(document).isNull());
    }

    // Half a character, as programs can hand it in, is no JSON text. Written as it is it would
    // make the whole file unreadable.
    void halfACharacterDoesNotMakeTheFileUnreadable()
    {
        InformationWorkspace workspace;
        workspace.saved.insert(
            {u"a"_qs, {sampleTime, {}, u"a"_qs + QChar(0xD83D) + u'b' + QChar(0xDE00)}});

        QCOMPARE(decode(encode(workspace)).value().saved.at(u"a"_qs).note, u"a\uFFFDb\uFFFD"_qs);
    }
};

TEST_SUBJECT(InformationWorkspaceCodingTest)
#include "InformationWorkspaceCodingTest.moc"
