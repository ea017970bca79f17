#!/usr/bin/env python3
"""Every relative link of the pages in FOLDER leads to a file in it, and to a heading where it names one.

    check_links.py FOLDER [PAGE_COUNT]

Fails as well when there are fewer than PAGE_COUNT pages: nothing was looked at then. Folders that git
ignores, such as builds, are none of the tree's.
"""
import os
import re
import subprocess
import sys
from urllib.parse import unquote

FENCE = re.compile(r"^```.*?^```$", re.M | re.S)
CODE = re.compile(r"`[^`\n]*`")
LINK = re.compile(r"\]\(\s*<?([^)>\s]+)>?[^)]*\)")
SOURCE = re.compile(r"<(?:img|a)\b[^>]*\b(?:src|href)=\"([^\"]+)\"")
HEADING = re.compile(r"^#+ +(.*?) *#*$", re.M)


def read(path):
    with open(path, encoding="utf-8") as text:
        return text.read()


def anchors(page):
    """The names that web pages of a repository give to headings; a repeated one gets a number."""
    names, seen = set(), {}
    for heading in HEADING.findall(FENCE.sub("", page)):
        shown = re.sub(r"\[([^]]*)\]\([^)]*\)", r"\1", heading).replace("`", "")
        name = re.sub(r"[^\w\- ]", "", shown.lower()).replace(" ", "-")
        count = seen[name] = seen.get(name, -1) + 1
        names.add(name if count == 0 else "%s-%d" % (name, count))
    return names


def links(page):
    prose = FENCE.sub("", page)
    # A link's text may be code, a link in code is none: its brackets are not those of a link.
    prose = CODE.sub(lambda code: re.sub(r"[][()<>]", "", code.group(0)), prose)
    return [target for target in LINK.findall(prose) + SOURCE.findall(prose)
            if not re.match(r"[a-z]+:", target)]


def trouble(root, path, target):
    """What is wrong with a link, or nothing."""
    place, _, anchor = target.partition("#")
    goal = os.path.normpath(os.path.join(os.path.dirname(path), unquote(place))) if place else path
    if os.path.relpath(goal, root).startswith(".."):
        return "which is outside"
    if not os.path.exists(goal):
        return "which is not there"
    if anchor and not (goal.endswith(".md") and anchor in anchors(read(goal))):
        return "which has no such heading"
    return None


def pages(root):
    if os.path.exists(os.path.join(root, ".git")):
        listed = subprocess.run(["git", "-C", root, "ls-files", "-co", "--exclude-standard", "*.md"],
                                stdout=subprocess.PIPE, universal_newlines=True, check=True)
        return [os.path.join(root, name) for name in listed.stdout.splitlines()]
    return [os.path.join(folder, name) for folder, _, names in os.walk(root) for name in names
            if name.endswith(".md")]


def dead(root):
    """A line for each link that leads nowhere."""
    root = os.path.abspath(root)
    return ["%s links to %s, %s" % (os.path.relpath(path, root), target, what)
            for path in sorted(pages(root)) for target in links(read(path))
            for what in [trouble(root, path, target)] if what]


def main(root, least="1"):
    count = len(pages(root))
    if count < int(least):
        print("%d pages only" % count)
        return 1
    troubles = dead(root)
    print("\n".join(troubles) or "%d pages, all links lead somewhere" % count)
    return 1 if troubles else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
