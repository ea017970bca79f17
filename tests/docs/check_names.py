#!/usr/bin/env python3
"""The documentation names all that the module gives, shows each name that a script can use in an
example of the same page, and its links lead somewhere.

    check_names.py SOURCE_DIR

tests/plugin/interfaces/ lists the names. What scripts can't reach needs a mention only.
"""
import glob
import os
import re
import sys

# Objects that scripts create or are handed.
SCRIPTED = {"DataLog", "LogDataFilterBuilderItem", "LogDataSetFilterListItem", "LogDataSetListItem",
            "LogDataSourceItem", "LogObservationSortFilterProxyModel", "LogTableViewItem",
            "LogVariableListItem", "LogViewerItem", "PropertyWrapper", "Variable", "VariableGroup"}


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


def uses(kind, name, examples):
    if kind == "signal":
        handler = "on" + name[0].upper() + name[1:]
        return re.search(r"\b(%s|%s)\b" % (handler, name), examples)
    if kind == "public slot":
        return re.search(r"\b%s\(" % name, examples)
    return kind == "enum" or re.search(r"\b%s\b" % name, examples)


def check_class(name, interface, pages):
    """What is missing."""
    homes = [page for page in pages.values() if re.search(r"^#+ `?%s`?$" % name, page, re.M)]
    if len(homes) != 1:
        return ["%s has %d headings" % (name, len(homes))]
    page = homes[0]
    examples = "\n".join(re.findall(r"^```qml\n(.*?)^```$", page, re.M | re.S))
    missing = []
    if name in SCRIPTED and not examples:
        missing.append(name + " has no example")
    for kind, own in names(interface):
        if not re.search(r"`%s[`(]" % own, page):
            missing.append("%s %s of %s is not documented" % (kind, own, name))
        elif name in SCRIPTED and not uses(kind, own, examples):
            missing.append("%s %s of %s has no example" % (kind, own, name))
    return missing


def dead_links(source):
    pages = glob.glob(os.path.join(source, "*.md"))
    pages += glob.glob(os.path.join(source, "docs", "**", "*.md"), recursive=True)
    for page in pages:
        for target in re.findall(r"\]\(([^)#]+)(?:#[^)]*)?\)", read(page)):
            if "://" not in target \
                    and not os.path.exists(os.path.join(os.path.dirname(page), target)):
                yield "%s links to %s, which is not there" % (os.path.relpath(page, source), target)


def main(source):
    pages = {path: read(path)
             for path in glob.glob(os.path.join(source, "docs", "**", "*.md"), recursive=True)}
    interfaces = glob.glob(os.path.join(source, "tests", "plugin", "interfaces", "*.txt"))
    assert len(interfaces) > 20, interfaces
    troubles = []
    for path in sorted(interfaces):
        name = os.path.splitext(os.path.basename(path))[0]
        troubles += check_class(name, read(path), pages)
    troubles += dead_links(source)
    print("\n".join(troubles))
    return 1 if troubles else 0


sys.exit(main(sys.argv[1]))
