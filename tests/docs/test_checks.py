#!/usr/bin/env python3
"""The checks of the documentation notice each fault that they are for.

    test_checks.py SOURCE_DIR
"""
import os
import re
import sys
import tempfile
import unittest

import check_links
import check_names

SOURCE = sys.argv.pop()
CODE = re.compile(r"(^```qml\n.*?^```$)", re.M | re.S)


def without_mention(page, name):
    return re.sub(r"`%s([`(])" % name, r"`other\1", page)


def without_use(page, name):
    """Takes a name, and the handler of a signal of that name, out of all examples."""
    handler = "on" + name[0].upper() + name[1:]
    return CODE.sub(lambda part: re.sub(r"\b(%s|%s)\b" % (name, handler), "other", part.group(0)), page)


class Names(unittest.TestCase):
    def test_each_name_is_missed(self):
        pages, interfaces, exports = check_names.inputs(SOURCE)
        looked_at = 0
        for name, interface in interfaces.items():
            for kind, own in check_names.names(interface):
                mutations = {"documented": without_mention}
                if name in exports and kind != "enum":
                    mutations["example"] = without_use
                for fault, mutate in mutations.items():
                    lacks = check_names.missing(name, interface, name in exports,
                                                [mutate(page, own) for page in pages])
                    self.assertTrue([line for line in lacks if fault in line and " %s " % own in line],
                                    "%s of %s could be missing: %s" % (own, name, fault))
                    looked_at += 1
        self.assertGreater(looked_at, 200)

    def test_comments_and_texts_show_nothing(self):
        page = '# Thing\n`gone`\n```qml\n// gone()\nconsole.log("gone()")\n```\n'
        self.assertEqual(check_names.missing("Thing", "class Thing\npublic slot gone()", True, [page]),
                         ["public slot gone of Thing has no example"])

    def test_examples_of_another_type_show_nothing(self):
        page = "# Thing\n`go`\n```qml\nThing {}\n```\n# Other\n```qml\ngo()\n```\n"
        self.assertEqual(check_names.missing("Thing", "class Thing\npublic slot go()", True, [page]),
                         ["public slot go of Thing has no example"])


class Links(unittest.TestCase):
    ROWS = {
        "a file": ("[a](other.md)", None),
        "a heading": ("[a](other.md#two-words-and-code)", None),
        "the page itself": ("[a](#here)", None),
        "the web": ("[a](https://example.org/x)", None),
        "code": ("`[a](nothing.md)`", None),
        "a missing file": ("[a](nothing.md)", "which is not there"),
        "a missing picture": ("![a](nothing.png)", "which is not there"),
        "a missing picture that is a link": ("[![a](nothing.png)](other.md)", "which is not there"),
        "a missing source": ('<img src="nothing.png">', "which is not there"),
        "a missing heading": ("[a](other.md#three)", "which has no such heading"),
        "a missing heading here": ("[a](#three)", "which has no such heading"),
        "a place outside": ("[a](../other.md)", "which is outside"),
    }

    def test_links(self):
        for name, (text, trouble) in self.ROWS.items():
            with self.subTest(name), tempfile.TemporaryDirectory() as folder:
                for page, content in (("page.md", "# Here\n%s\n" % text),
                                      ("other.md", "## Two words, and `code`\n")):
                    with open(os.path.join(folder, page), "w", encoding="utf-8") as out:
                        out.write(content)
                troubles = check_links.dead(folder)
                if trouble is None:
                    self.assertEqual(troubles, [])
                else:
                    self.assertEqual(len(troubles), 1, troubles)
                    self.assertTrue(troubles[0].endswith(trouble), troubles)


unittest.main()
