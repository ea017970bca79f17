#!/usr/bin/env python3
"""Writes the viewer's man page: a template, filled with what the viewer's own --help says.

    make_man.py VIEWER VERSION TEMPLATE OUT
"""
import os
import re
import subprocess
import sys

ENTRY = re.compile(r"^  (\S.*?)(?:  +(.*))?$")
VALUE = re.compile(r"<([^>]+)>")


def help_text(viewer):
    environment = dict(os.environ, LC_ALL="C", LANGUAGE="", ASAN_OPTIONS="detect_leaks=0")
    return subprocess.run([viewer, "--help"], env=environment, stdout=subprocess.PIPE, check=True,
                          universal_newlines=True).stdout


def entries(text):
    """Pairs of what one types and what it does: the options, then the arguments."""
    result = []
    for line in text[text.index("\nOptions:"):].splitlines():
        entry = ENTRY.match(line)
        if entry and not line.startswith("   "):
            result.append([entry.group(1), entry.group(2) or ""])
        elif line.startswith("   ") and result:
            result[-1][1] += " " + line.strip()
    return result


def escaped(text):
    text = text.replace("\\", "\\e").replace("-", "\\-").replace("'", "\\(aq")
    return "\\&" + text if text.startswith(".") else text


def tagged(entry):
    typed, meaning = entry
    tag = VALUE.sub(r"\\fI\1\\fP", escaped(typed).replace(" ", "\\ "))
    return ".TP\n\\fB%s\\fP\n%s" % (tag.replace("\\fI", "\\fP\\fI"), escaped(meaning.strip()))


def main(viewer, version, template, out):
    with open(template, encoding="utf-8") as source:
        page = source.read()
    options = "\n".join(tagged(entry) for entry in entries(help_text(viewer)))
    with open(out, "w", encoding="utf-8") as target:
        target.write(page.replace("@VERSION@", version).replace("@OPTIONS@", options))


if __name__ == "__main__":
    main(*sys.argv[1:])
