#!/usr/bin/env python3
"""Writes plugins.qmltypes, what tools (qmllint, editors) know of the module, from the built plugin.

    make_qmltypes.py BUILD/imports            writes the file beside this script
    make_qmltypes.py --check BUILD/imports    says how that file differs from what would be written

qmlplugindump tells nearly all. It leaves out what is registered for DataLogEnums, as it describes
one module only, and takes list properties for opaque values: the frozen interfaces, which a test
compares with the classes, supply both.
"""
import difflib
import os
import re
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
INTERFACES = os.path.join(HERE, "..", "..", "tests", "plugin", "interfaces")
QMLTYPES = os.path.join(HERE, "plugins.qmltypes")
HEAD = """import QtQuick.tooling 1.2

// What the plugin's types are, for tools.
// Written by make_qmltypes.py; a test fails when it is out of date.

Module {
    dependencies: ["QtQuick 2.0"]
"""
TYPES = {"QString": "string", "QVariant": "QVariant"}
BASES = {"QSortFilterProxyModel": "QAbstractItemModel"}
REGISTRATION = re.compile(r'register(?:Type|View)<(\w+)>\((\w+), "(\w+)"\)')


def dump(imports):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    command = ["qmlplugindump", "-qapp", "-defaultplatform", "-nonrelocatable", "DataLog", "1.0",
               imports]
    return subprocess.run(command, env=environment, stdout=subprocess.PIPE,
                          stderr=subprocess.PIPE, check=True, universal_newlines=True).stdout


def components(text):
    """The blocks of a dump by their names."""
    blocks = re.findall(r"^    Component \{(?:[^\n]*\}|\n.*?\n    \})$", text, re.M | re.S)
    return {re.search(r'name: "(\w+)"', block).group(1): block for block in blocks}


def exports():
    """What each class is registered as, such as DataLog/LogViewerItem 1.0."""
    with open(os.path.join(HERE, "DataLogTypes.cpp"), encoding="utf-8") as source:
        found = REGISTRATION.findall(source.read())
    modules = {"uri": "DataLog", "kEnumsUri": "DataLogEnums"}
    result = {}
    for name, uri, exported in found:
        result.setdefault(name, []).append("%s/%s 1.0" % (modules[uri], exported))
    return result


def qml_type(cpp_type):
    name = TYPES.get(cpp_type.rstrip("*"), cpp_type.rstrip("*"))
    pointer = "; isPointer: true" if cpp_type.endswith("*") else ""
    return 'type: "%s"%s' % (name, pointer)


def property_line(line):
    name, cpp_type, access = re.match(r"property (\w+) : (\S+) (read(?: write)?)", line).groups()
    constness = "" if access.endswith("write") else "; isReadonly: true"
    return ['        Property { name: "%s"; %s%s }' % (name, qml_type(cpp_type), constness)]


def method_lines(line):
    kind, name, types, rest = re.match(
        r"(signal|public slot) (\w+)\(([^)]*)\)(.*)", line).groups()
    names = re.search(r"names (\S+)", rest)
    names = names.group(1).split(",") if names else []
    result = re.search(r"returns (\S+)", rest)
    element = "Signal" if kind == "signal" else "Method"
    if not types and not result:
        return ['        %s { name: "%s" }' % (element, name)]
    lines = ["        %s {" % element, '            name: "%s"' % name]
    if result:
        lines.append("            " + qml_type(result.group(1)))
    for parameter, cpp_type in zip(names, types.split(",") if types else []):
        lines.append('            Parameter { name: "%s"; %s }' % (parameter, qml_type(cpp_type)))
    return lines + ["        }"]


def enum_lines(line):
    name, *keys = line.split()[1:]
    values = ['                "%s": %s' % tuple(key.split("=")) for key in keys]
    return ["        Enum {", '            name: "%s"' % name, "            values: {",
            ",\n".join(values), "            }", "        }"]


def is_change_signal(line, lines):
    """Those of properties are told by the properties."""
    return any(other.startswith("property") and other.endswith("notify " + line[len("signal "):])
               for other in lines)


def component(name, exported):
    with open(os.path.join(INTERFACES, name + ".txt"), encoding="utf-8") as text:
        lines = text.read().splitlines()
    base = lines[0].split(" : ")[1]
    own = lines[1:]
    out = ["    Component {", '        name: "%s"' % name]
    if base == "QDeclarativeItem":
        out.append('        defaultProperty: "data"')
    out += ['        prototype: "%s"' % BASES.get(base, base),
            "        exports: [%s]" % ", ".join('"%s"' % export for export in exported),
            "        exportMetaObjectRevisions: [%s]" % ", ".join("0" for _ in exported)]
    for line in own:
        if line.startswith("enum"):
            out += enum_lines(line)
    for line in own:
        if line.startswith("property"):
            out += property_line(line)
    for line in own:
        if line.startswith(("signal", "public slot")) and not is_change_signal(line, own):
            out += method_lines(line)
    return "\n".join(out + ["    }"])


def with_lists(block):
    """Lists of objects as lists."""
    return re.sub(r'type: "QDeclarativeListProperty<(\w+)>"(\n\s*|; )isReadonly',
                  r'type: "\1"\2isList: true\2isReadonly', block)


def module_text(imports):
    blocks = components(dump(imports))
    for name, exported in exports().items():
        if name not in blocks:
            blocks[name] = component(name, exported)
    return HEAD + "\n".join(with_lists(blocks[name]) for name in sorted(blocks)) + "\n}\n"


def main(arguments):
    is_check = "--check" in arguments
    text = module_text(arguments[-1])
    if not is_check:
        with open(QMLTYPES, "w", encoding="utf-8") as out:
            out.write(text)
        return 0
    with open(QMLTYPES, encoding="utf-8") as checked_in:
        difference = list(difflib.unified_diff(
            checked_in.read().splitlines(), text.splitlines(), "checked in", "built", lineterm=""))
    print("\n".join(difference))
    return 1 if difference else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
