#!/usr/bin/python3
# SPDX-License-Identifier: Apache-2.0
"""Which mistakes are made, and that those known as equivalent can still be made."""

import tomllib
import unittest
from pathlib import Path

from mutating import mutants_of

REPOSITORY = Path(__file__).resolve().parents[2]
EQUIVALENT = Path(__file__).resolve().parent / "equivalent.toml"

CASES = {
    "if (a == b) {": ["if (a != b) {"],
    "if (a < b) {": ["if (a <= b) {", "if (a >= b) {"],
    "x = a && b || c;": ["x = a || b || c;", "x = a && b && c;"],
    "x = a + b;": ["x = a - b;"],
    'x = a + u" - "_qs;': [],
    "if (!a) {": ["if (a) {"],
    "bool x = true;": ["bool x = false;"],
    "int x = 0;": ["int x = 1;"],
    "int x = 0xFE;": ["int x = 255;", "int x = 253;"],
    "double x = 0.5;": ["double x = 1.5;"],
    "return a.b();": ["return {};"],
    "return false;": ["return true;"],
    "return {};": [],
    "std::optional<T> x(auto&& y, T* z);": [],
    "{ call(a); }": ["{ }"],
    "{ a->b(c); }": ["{ }"],
    "{ a = b; }": ["{ }"],
    "{ a.b = {c, d}; }": ["{ }"],
    "{ Q_EMIT told(); }": ["{ }"],
    "{ T a(b); std::T c(d); const auto e = f(); }": [],
    "{ assertMainThread(); Q_ASSERT(a == b); c.reserve(d + 1); }": [],
    "{ std::unreachable(); Q_UNREACHABLE(); }": [],
    "T a{ipv4(b, c)};": [],
    "// a < b": [],
    "/* a < b */ #include <x>": [],
    """x = '"' + a + u'<' + u"\\" < ";""": [],
}


class MutatingTest(unittest.TestCase):
    def test_the_mistakes(self):
        for source, mistaken in CASES.items():
            with self.subTest(source=source):
                made = [mutant.change(source) for mutant in mutants_of(source + "\n")]
                self.assertEqual([(source, each) for each in mistaken], made)

    def test_a_mistake_over_several_lines(self):
        source = "{\n    call(a,\n         b);\n}\nint x = 1;\n"
        dropped = mutants_of(source)[0]
        self.assertEqual(("call(a, b);", ""), dropped.change(source))
        self.assertEqual(2, dropped.line_number(source))
        self.assertEqual("{\n    \n}\nint x = 1;\n", dropped.of(source))

    def test_what_is_known_as_equivalent_can_be_made(self):
        for entry in tomllib.loads(EQUIVALENT.read_text(encoding="utf-8"))["equivalent"]:
            with self.subTest(**entry):
                source = (REPOSITORY / entry["file"]).read_text(encoding="utf-8")
                changes = [mutant.change(source) for mutant in mutants_of(source)]
                self.assertIn((entry["line"], entry["becomes"]), changes)
                self.assertTrue(entry["reason"])


if __name__ == "__main__":
    unittest.main()
