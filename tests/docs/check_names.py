#!/usr/bin/env python3
"""The documentation names all that the module gives, under the heading of its type, and shows each name
that a script can use in an example there. An example's comments and texts show nothing.

    check_names.py SOURCE_DIR

tests/plugin/interfaces/ lists the names, src/plugin/plugins.qmltypes the types that scripts have. What
scripts can't reach needs a mention only.
"""
import glob
import os
import re
import sys

HEADING = re.compile(r"^(#+) `?([^`\n]*?)`?$", re.M)
EXAMPLE = re.compile(r"^```qml\n(.*?)^```$", re.M | re.S)
NO_CODE = re.compile(r'"(?:[^"\\\n]|\\.)*"|//[^\n]*')


def read(path):
    with open(path, encoding="utf-8") as text:
        return text.read()


def names(interface):
    """Pairs of kind and name."""
    for line in interface.splitlines()[1:]:
        kind, rest = re.match(r"(signal|public slot|private slot|property|enum) (.*)", line).groups()
        if kind == "private slot":
            continue
        if kind == "enum":
            yield kind, rest.split()[0]
            for key in rest.split()[1:]:
                yield "enumerator", key.split("=")[0]
        else:
            yield kind, re.match(r"\w+", rest).group(0)


def sections(page, name):
    """What stands under each heading of that name, up to a heading that is not below it."""
    headings = list(HEADING.finditer(page))
    for at, heading in enumerate(headings):
        if heading.group(2) == name:
            later = [other.start() for other in headings[at + 1:]
                     if len(other.group(1)) <= len(heading.group(1))]
            yield page[heading.end():later[0] if later else len(page)]


def is_shown(kind, name, code):
    if kind == "signal":
        handler = "on" + name[0].upper() + name[1:]
        return re.search(r"\b%s:|\b%s(\(|\.connect\()" % (handler, name), code)
    if kind == "public slot":
        return re.search(r"\b%s\(" % name, code)
    if kind == "enumerator":
        return re.search(r"\b[A-Z]\w*\.%s\b" % name, code)
    return kind == "enum" or re.search(r"\b%s\b" % name, code)


def missing(name, interface, is_scripted, pages):
    """Lines on what the pages lack of a class."""
    homes = [section for page in pages for section in sections(page, name)]
    if len(homes) != 1:
        return ["%s has %d headings" % (name, len(homes))]
    home = homes[0]
    code = NO_CODE.sub("", "\n".join(EXAMPLE.findall(home)))
    lacks = []
    if is_scripted and not code:
        lacks.append(name + " has no example")
    for kind, own in names(interface):
        if not re.search(r"`%s[`(]" % own, home):
            lacks.append("%s %s of %s is not documented" % (kind, own, name))
        elif is_scripted and not is_shown(kind, own, code):
            lacks.append("%s %s of %s has no example" % (kind, own, name))
    return lacks


def inputs(source):
    """The pages, the interface of each class, and the classes that scripts have."""
    pages = [read(path)
             for path in glob.glob(os.path.join(source, "docs", "**", "*.md"), recursive=True)]
    interfaces = {os.path.splitext(os.path.basename(path))[0]: read(path)
                  for path in glob.glob(os.path.join(source, "tests/plugin/interfaces/*.txt"))}
    types = read(os.path.join(source, "src", "plugin", "plugins.qmltypes"))
    exported = re.findall(r'^        name: "(\w+)"(?:(?!^    \}).)*?^        exports: \[(.*?)\]', types,
                          re.M | re.S)
    exports = {name: re.findall(r"/(\w+) ", said) for name, said in exported}
    assert len(interfaces) > 20 and len(exports) > 10, (interfaces.keys(), exports)
    return pages, interfaces, exports


def main(source):
    pages, interfaces, exports = inputs(source)
    troubles = ["%s is given to scripts, but not listed" % name for name in exports
                if name not in interfaces]
    for name, interface in sorted(interfaces.items()):
        troubles += missing(name, interface, name in exports, pages)
    listed = read(os.path.join(source, "docs", "reference", "README.md"))
    troubles += ["%s is not among the types of the reference" % name for own in exports.values()
                 for name in own if not re.search(r"^\| \[[^]]*\b%s\b" % name, listed, re.M)]
    print("\n".join(troubles))
    return 1 if troubles else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
