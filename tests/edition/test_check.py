#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""What `corvanite-edition check` finds, each with its place. Argument: the program."""

import tempfile
import unittest
from pathlib import Path

from edition_tool import APP_VERSION, PACK, REGISTRY, RETIRED, call, put, seed, write

FIRST = ["signals", 0]
BLOCKED = "https://x.com/a"
SPOTTY = "https://github.com/a"
VERSION = {
    "schemaVersion": "corvanite-information-app-version-v1",
    "version": "1.2.0",
    "downloadUrl": "https://corvanite.example/download/corvanite.deb",
    "sha256": "9f86d081884c7d659a2feaa0c55ad015a3bf4f1b2b0b822cd15d6c15b0f00a08",
    "sizeBytes": 5242880,
}

ERRORS = [
    (PACK, ["schemaVersion"], "other", "$.schemaVersion", "“other”不是程序认得的格式"),
    (PACK, ["signals"], [], "$.signals", "一张卡片也没有"),
    (PACK, ["asOf"], None, "$.asOf", "缺少这一项：请补上文字"),
    (PACK, ["checkedEntryCount"], 1.5, "$.checkedEntryCount", "类型不对：这里要整数"),
    (PACK, ["checkedEntryCount"], 1e30, "$.checkedEntryCount", "类型不对：这里要整数"),
    (PACK, [*FIRST, "title"], "x", "$.signals[0].title", "类型不对：这里要带 zh 的对象"),
    (PACK, [*FIRST, "title", "zh"], 1, "$.signals[0].title.zh", "类型不对：这里要文字"),
    (PACK, [*FIRST, "relatedSources"], [1], "$.signals[0].relatedSources[0]",
     "类型不对：这里要对象"),
    (PACK, [*FIRST, "relatedSources", 0], {}, "$.signals[0].relatedSources[0].url", "缺少这一项"),
    (PACK, ["selectionHistory", 0, "focusSignalIds"], ["a", 2],
     "$.selectionHistory[0].focusSignalIds[1]", "类型不对：这里要文字"),
    (PACK, [*FIRST, "ingestion"], {}, "$.signals[0].ingestion.adapter", "缺少这一项"),
    (RETIRED, ["signals"], None, "$.signals", "缺少这一项：请补上由对象组成的数组"),
    (REGISTRY, ["sources", 0, "url"], 1, "$.sources[0].url", "类型不对"),

    (PACK, ["asOf"], "today", "$.asOf", "“today”不是时间"),
    (PACK, ["asOf"], "2026-08-20T00:00:00.000Z", "$.signals[0].observedAt", "晚于本版的时间"),
    (PACK, ["asOf"], "2026-08-20T00:00:00.000Z", "$.selectionHistory[0].date",
     "晚于本版的日期 2026-08-20"),
    (PACK, ["checkedEntryCount"], 3, "$.checkedEntryCount", "比卡片还少"),
    (PACK, [*FIRST, "id"], "", "$.signals[0].id", "是空的"),
    (PACK, ["signals", 1, "id"], "product-hunt-chatcut-ai-video-editor", "$.signals[1].id",
     "已经在 $.signals[0].id 用过"),
    (RETIRED, [*FIRST, "id"], "github-weekly-modular", "$.signals[0].id", "还在信息包里"),
    (PACK, [*FIRST, "why"], {}, "$.signals[0].why", "是空的"),
    (PACK, [*FIRST, "caveat", "zh"], " ", "$.signals[0].caveat", "是空的"),
    (PACK, [*FIRST, "digest", "zh"], "", "$.signals[0].digest", "是空的：请写上，或者去掉"),
    (PACK, [*FIRST, "source"], None, "$.signals[0].source", "是空的"),
    (PACK, [*FIRST, "observedAt"], "yesterday", "$.signals[0].observedAt", "不是时间"),
    (PACK, [*FIRST, "observedAt"], "2026-08-27T08:00:00+08:00", "$.signals[0].observedAt",
     "不是时间"),
    (PACK, [*FIRST, "publishedAt"], "", "$.signals[0].publishedAt", "不是时间"),
    (PACK, [*FIRST, "publishedAt"], "2026-08-27T00:42:11.670Z", "$.signals[0].publishedAt",
     "发布时间晚于核验时间"),
    (PACK, [*FIRST, "state"], "update", "$.signals[0].updateSummary", "没有说变了什么"),
    (PACK, [*FIRST, "originalUrl"], "chatcut.io", "$.signals[0].originalUrl", "程序不会打开"),
    (PACK, [*FIRST, "originalUrl"], "https://me@chatcut.io/", "$.signals[0].originalUrl",
     "程序不会打开"),
    (PACK, [*FIRST, "relatedSources", 0, "url"], "file:///a",
     "$.signals[0].relatedSources[0].url", "程序不会打开"),
    (PACK, [*FIRST, "relatedSources", 0, "label"], {}, "$.signals[0].relatedSources[0].label",
     "是空的"),
    (PACK, [*FIRST, "timeline"], [], "$.signals[0].timeline", "时间线是空的"),
    (PACK, [*FIRST, "timeline", 0, "datetime"], "8 月", "$.signals[0].timeline[0].datetime",
     "不是时间"),
    (PACK, [*FIRST, "timeline", 0, "datetime"], "2026-08-27T04:01:03.785Z",
     "$.signals[0].timeline[0].datetime", "晚于本版的时间"),
    (PACK, [*FIRST, "timeline", 0, "summary"], {}, "$.signals[0].timeline[0].summary", "是空的"),
    (PACK, ["signals", 1, "timeline", 1, "datetime"], "2026-08-11T00:00:00.001Z",
     "$.signals[1].timeline[1].datetime", "时间线请从新到旧排"),
    (PACK, [*FIRST, "followTarget", "scope"], {}, "$.signals[0].followTarget.scope", "是空的"),
    (PACK, [*FIRST, "followTarget", "url"], "", "$.signals[0].followTarget.url", "程序不会打开"),
    (PACK, [*FIRST, "ingestion", "adapter"], "", "$.signals[0].ingestion.adapter", "是空的"),

    (PACK, ["selectionHistory", 1, "date"], "2026-08-22", "$.selectionHistory[1].date",
     "请从旧到新排"),
    (PACK, ["selectionHistory", 1, "date"], "2026-08-32", "$.selectionHistory[1].date",
     "不是日期"),
    (PACK, ["selectionHistory", 1, "date"], "2026-8-23", "$.selectionHistory[1].date", "不是日期"),
    (PACK, ["selectionHistory", 5, "date"], "2026-08-28", "$.selectionHistory[5].date",
     "晚于本版的日期 2026-08-27"),
    (PACK, ["selectionHistory", 0, "focusSignalIds"], [], "$.selectionHistory[0].focusSignalIds",
     "没有入选的卡片"),
    (PACK, ["selectionHistory", 0, "focusSignalIds", 0], "gone",
     "$.selectionHistory[0].focusSignalIds[0]", "也不在已退出名单里"),
    (PACK, ["selectionHistory", 0, "focusSignalIds", 1], "crates-io-arrayref-incident",
     "$.selectionHistory[0].focusSignalIds[1]", "这一天写了两次"),
    # Observed on that day at UTC, on the next in Beijing.
    (PACK, ["selectionHistory", 0, "focusSignalIds", 0], "mcp-roadmap-2026-08",
     "$.selectionHistory[0].focusSignalIds[0]", "到 2026-08-23 才核验"),
    (PACK, ["selectionHistory", 0, "totalShown"], 2, "$.selectionHistory[0].totalShown",
     "比入选的卡片还少"),

    (REGISTRY, ["sources"], [], "$.sources", "一个信源也没有"),
    (REGISTRY, ["sources", 1, "id"], "english-llm-weblog", "$.sources[1].id", "已经用了"),
    (REGISTRY, ["sources", 0, "name"], "The Verge", "$.sources[13].name", "已经用了"),
    (REGISTRY, ["sources", 0, "url"], "https://www.theverge.com/", "$.sources[13].url",
     "已经用了"),
    (REGISTRY, ["sources", 0, "take"], "", "$.sources[0].take", "是空的"),
    (REGISTRY, ["sources", 0, "kind"], "博客", "$.sources[0].kind", "没有写语言"),
    (REGISTRY, ["sources", 0, "url"], "", "$.sources[0].url", "程序不会打开"),

    (APP_VERSION, ["schemaVersion"], "v2", "$.schemaVersion", "“v2”不是程序认得的格式"),
    (APP_VERSION, ["schemaVersion"], 2, "$.schemaVersion", "类型不对"),
    (APP_VERSION, ["version"], "1.3.0-beta", "$.version", "不是版本号"),
    (APP_VERSION, ["version"], None, "$.version", "不是版本号"),
    (APP_VERSION, ["downloadUrl"], "http://corvanite.example/a", "$.downloadUrl",
     "主机要是 corvanite.example"),
    (APP_VERSION, ["downloadUrl"], "https://me@corvanite.example/a", "$.downloadUrl",
     "程序不会打开"),
    (APP_VERSION, ["sha256"], "", "$.sha256", "是空的"),
    (APP_VERSION, ["sizeBytes"], "5", "$.sizeBytes", "类型不对"),
]

HINTS = [
    (PACK, ["asOf"], "2026-08-27T04:01:03Z", "$.asOf", "请写到毫秒"),
    (PACK, [*FIRST, "lane"], "productradar", "$.signals[0].lane", "“productradar”不在词表里"),
    (PACK, [*FIRST, "ingestion", "evidenceClass"], "", "$.signals[0].ingestion.evidenceClass",
     "不在词表里"),
    (PACK, [*FIRST, "updatesummary"], {"zh": "变了"}, "$.signals[0].updatesummary",
     "格式里没有这一项"),
    (PACK, [*FIRST, "summary"], {"en": "A video editor."}, "$.signals[0].summary", "只有英文"),
    (PACK, [*FIRST, "summary"], {"en": "A video editor."}, "$.signals[0].summary", "没有中文"),
    (PACK, [*FIRST, "why", "zh"], "Worth a look.", "$.signals[0].why", "没有中文"),
    (PACK, [*FIRST, "digest"], {"en": "Editor"}, "$.signals[0].digest", "只有英文"),
    (PACK, ["selectionHistory"], None, "$.selectionHistory", "没有往期"),
    # An update may have been featured in an earlier form.
    (PACK, ["selectionHistory", 0, "focusSignalIds", 0], "github-weekly-modular",
     "$.selectionHistory[0].focusSignalIds[0]", "到 2026-08-25 才核验"),
    (APP_VERSION, ["sha256"], "abc", "$.sha256", "不像 SHA-256"),
    (APP_VERSION, ["sizeBytes"], 0, "$.sizeBytes", "不像文件大小"),
    (APP_VERSION, ["notes"], {"cn": "新"}, "$.notes.cn", "格式里没有这一项"),
]


class CheckTest(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = Path(holder.name)

    def edition(self) -> dict[str, dict]:
        return {PACK: seed(PACK), RETIRED: seed(RETIRED), REGISTRY: seed(REGISTRY),
                APP_VERSION: dict(VERSION)}

    def check(self, documents: dict[str, dict], *options):
        for name, document in documents.items():
            write(self.folder, name, document)
        return call("check", *options, *documents, cwd=self.folder)

    def changed(self, name: str, path: list, value) -> dict[str, dict]:
        documents = self.edition()
        put(documents[name], path, value)
        return documents

    def test_accepts_the_compiled_in_edition_without_a_hint(self):
        result = self.check(self.edition(), "--strict")
        self.assertEqual((0, "没有发现问题\n", ""),
                         (result.returncode, result.stdout, result.stderr))

    def test_tells_errors_with_their_place(self):
        for name, path, value, place, text in ERRORS:
            with self.subTest(name=name, path=path, value=value):
                result = self.check(self.changed(name, path, value))
                self.assertEqual(1, result.returncode)
                self.assertRegex(result.stdout, rf"(?m)^{name}:.*")
                self.assertTrue(any(line.startswith(f"{name}:{place}: 错误：") and text in line
                                    for line in result.stdout.splitlines()), result.stdout)

    def test_tells_hints_apart(self):
        for name, path, value, place, text in HINTS:
            with self.subTest(name=name, path=path, value=value):
                documents = self.changed(name, path, value)
                result = self.check(documents)
                self.assertEqual(0, result.returncode, result.stdout)
                self.assertTrue(any(line.startswith(f"{name}:{place}: 提示：") and text in line
                                    for line in result.stdout.splitlines()), result.stdout)
                self.assertEqual(1, self.check(documents, "--strict").returncode)

    def test_wants_a_way_around_originals_that_not_everyone_reaches(self):
        for original, related, severity in [
            (BLOCKED, [], "错误"),
            (BLOCKED, [BLOCKED], "错误"),
            (BLOCKED, ["https://www.twitter.com/a"], "提示"),
            (BLOCKED, [SPOTTY], "提示"),
            (BLOCKED, [SPOTTY, "https://example.org/"], None),
            (SPOTTY, [], "错误"),
            (SPOTTY, [SPOTTY], "错误"),
            (SPOTTY, [BLOCKED], "错误"),
            (SPOTTY, ["https://example.org/"], None),
        ]:
            with self.subTest(original=original, related=related):
                documents = self.edition()
                documents[PACK]["signals"][0] |= {
                    "originalUrl": original,
                    "relatedSources": [{"label": {"zh": "另一处"}, "url": url} for url in related],
                }
                found = self.check(documents).stdout
                if severity:
                    self.assertIn(f"{PACK}:$.signals[0].relatedSources: {severity}：", found)
                else:
                    self.assertEqual("没有发现问题\n", found)

    def test_a_pack_alone_may_name_what_is_retired(self):
        result = self.check({PACK: seed(PACK)})
        self.assertEqual(0, result.returncode)
        self.assertIn("提示：“github-weekly-diagram-design”不在信息包里：请连同已退出名单一起检查",
                      result.stdout)

    def test_counts_what_it_finds(self):
        documents = self.changed(PACK, [*FIRST, "why"], {"zh": ""})
        put(documents[PACK], [*FIRST, "lane"], "")
        self.assertTrue(self.check(documents).stdout.endswith("\n1 处错误，1 处提示\n"))

    def test_nothing_in_a_document_steers_the_terminal(self):
        documents = self.changed(PACK, ["asOf"], "a\x1b[2J\n\u202eb")
        self.assertIn(f"{PACK}:$.asOf: 错误：“a\ufffd[2J\ufffd\ufffdb”不是时间",
                      self.check(documents).stdout)

    def test_recognises_documents_by_what_they_hold(self):
        names = {PACK: "a.json", RETIRED: "b.json", REGISTRY: "c.json", APP_VERSION: "d.json"}
        documents = {names[name]: document for name, document in self.edition().items()}
        self.assertEqual("没有发现问题\n", self.check(documents, "--strict").stdout)

    def test_tells_what_is_no_document(self):
        for text, complaint in [
            (b"", "a.json:第 1 行第 1 列: 错误：从这里起不是 JSON"),
            (b'{\n  "signals": [,]\n}', "a.json:第 2 行第 "),
            (b"[]", "a.json:$: 错误：最外层不是对象"),
            (b"{}", "a.json:$: 错误：认不出是哪种文档"),
            (b'{"signals": []}\xff', "a.json:第 1 行第 "),
        ]:
            with self.subTest(text=text):
                (self.folder / "a.json").write_bytes(text)
                result = call("check", "a.json", cwd=self.folder)
                self.assertEqual(1, result.returncode)
                self.assertIn(complaint, result.stdout)

    def test_refuses_what_only_the_program_refuses(self):
        text = '{"schemaVersion": 1, "schemaVersion": "v", "signals": []}'
        (self.folder / RETIRED).write_text(text)
        result = call("check", RETIRED, cwd=self.folder)
        self.assertEqual(1, result.returncode)
        self.assertIn(f"{RETIRED}:$: 错误：程序读不了这份文档", result.stdout)

    def test_knows_the_limits(self):
        for name, limit in [(PACK, 1500000), (APP_VERSION, 256 * 1024)]:
            with self.subTest(name=name):
                path = write(self.folder, name, self.edition()[name])
                path.write_bytes(path.read_bytes().ljust(limit + 1))
                result = call("check", name, cwd=self.folder)
                self.assertEqual(1, result.returncode)
                self.assertIn(f"{name}:$: 错误：有 {limit + 1} 字节，程序最多读 {limit} 字节",
                              result.stdout)

    def test_tells_files_that_cannot_be_read(self):
        (self.folder / "large.json").write_text(" " * (16 * 1024 * 1024 + 1))
        for name, complaint in [("none.json", "没有这个文件"), (".", "不是普通文件"),
                                ("large.json", "超过 16 MiB")]:
            with self.subTest(name=name):
                result = call("check", name, cwd=self.folder)
                self.assertEqual(1, result.returncode)
                self.assertIn(f"{name}: 错误：{complaint}", result.stdout)


if __name__ == "__main__":
    unittest.main()
