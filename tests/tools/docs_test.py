#!/usr/bin/env python3
"""The programs that docs/ shows are those that are built and tested."""

import pathlib
import re
import unittest

TREE = pathlib.Path(__file__).resolve().parents[2]

NAMED_BLOCK = re.compile(r"^<!-- (?P<file>\S+) -->\n```\w*\n(?P<text>.*?)^```$", re.MULTILINE | re.DOTALL)


class ShownPrograms(unittest.TestCase):
    def test_are_the_files_that_they_name(self):
        blocks = list(NAMED_BLOCK.finditer((TREE / "docs" / "hosts.md").read_text(encoding="utf-8")))
        self.assertGreaterEqual(len(blocks), 2)
        for block in blocks:
            self.assertEqual(block["text"], (TREE / block["file"]).read_text(encoding="utf-8"), block["file"])


if __name__ == "__main__":
    unittest.main()
