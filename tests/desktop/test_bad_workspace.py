#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""A stored workspace that cannot be read is told, and never written over."""

import json
import unittest

from desktop_test import EMPTY_WORKSPACE, PROGRAM, DesktopTest, workspace_file

ALERT = "Corvanite 没有改动原数据"
UNREADABLE = "已有信息没有被覆盖："
NOT_SAVED = "没有可用的本机存储；这次操作没有保存。"


def workspace(**changes) -> bytes:
    return json.dumps(EMPTY_WORKSPACE | changes).encode()


WORKSPACES = {
    "empty": b"",
    "truncated": workspace(following=["product:one", "product:two"])[:-40],
    "version 0": workspace(version=0),
    "version 4": workspace(version=4),
    "not JSON": "这不是资料库。".encode(),
}


class BadWorkspaceTest(DesktopTest):
    def test_is_told_and_never_written_over(self):
        with self.world() as world:
            for case, content in WORKSPACES.items():
                with self.subTest(case):
                    data_home = world.folder / case
                    file = workspace_file(data_home)
                    file.parent.mkdir(parents=True)
                    file.write_bytes(content)
                    program = world.start(PROGRAM, data_home)

                    program.wait_for(ALERT)
                    self.assert_alert_says(program, UNREADABLE)
                    if case.startswith("version"):
                        number = case.removeprefix("version ")
                        reason = f"信息资料库版本 {number} 暂不受支持。"
                        self.assert_alert_says(program, UNREADABLE + reason)
                    program.wait_for("知道了", "push button").press()
                    program.wait_until_gone(ALERT)

                    program.wait_for_beginning("收下并持续更新：").press()
                    program.wait_for(ALERT)
                    self.assert_alert_says(program, NOT_SAVED)
                    program.wait_for("知道了", "push button").press()
                    program.wait_until_gone(ALERT)

                    self.assertEqual(0, program.close())
                    self.assertEqual(content, file.read_bytes())
                    strangers = {f.name for f in file.parent.iterdir()} - {file.name, ".lock"}
                    self.assertEqual(set(), strangers)

    def assert_alert_says(self, program, beginning: str) -> None:
        texts = [text for e in program.find_all(bool) for text in (e.name, e.description)]
        self.assertTrue(any(text.startswith(beginning) for text in texts), beginning)


if __name__ == "__main__":
    unittest.main()
