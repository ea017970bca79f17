#!/usr/bin/env python3
"""Each QML module that the viewer imports is in a package that datalog-viewer depends on, and in the
list of what the two commands install; so is all that the packages are built with. The packages, the
list of changes and the AppStream data have the version of the build.

    check_debian.py SOURCE_DIR VERSION
"""
import glob
import os
import re
import subprocess
import sys

IMPORT = re.compile(r"^import ([A-Z][\w.]*) (\d+)", re.M)
OWN = {"DataLog", "DataLogEnums", "DataLogViewer"}


def imports(folder):
    found = set()
    for path in glob.glob(os.path.join(folder, "*.qml")):
        found.update(IMPORT.findall(read(path)))
    return sorted((name, major) for name, major in found if name not in OWN)


def package(name, major):
    path = name.replace(".", "/")
    wanted = [path + "." + major, path]
    for folder in wanted:
        files = glob.glob("/usr/lib/*/qt5/qml/%s/qmldir" % folder)
        if files:
            owner = subprocess.run(["dpkg", "-S", files[0]], stdout=subprocess.PIPE, check=True)
            return owner.stdout.decode().split(":")[0]
    raise AssertionError("no module " + name)


def stanza(control, name):
    return next(part for part in control.split("\n\n") if "Package: " + name + "\n" in part)


def build_dependencies(control):
    field = re.search(r"^Build-Depends: (.*?)^\S", control, re.M | re.S).group(1)
    names = [re.match(r"[\w.+-]+", part.strip()).group(0) for part in field.split(",")]
    return ["debhelper" if name == "debhelper-compat" else name for name in names]


def read(*path):
    with open(os.path.join(*path), encoding="utf-8") as text:
        return text.read()


def check_versions(source, version):
    changes = {"debian/changelog": r"\Adatalog \(([^)]*)\) ", "CHANGELOG.md": r"^## (\S+)",
               "packaging/desktop/org.datalog.viewer.metainfo.xml": r'<release version="([^"]*)"'}
    for path, pattern in changes.items():
        latest = re.search(pattern, read(source, path), re.M).group(1)
        assert latest == version, "%s is of version %s, not %s" % (path, latest, version)


def main(source, version):
    check_versions(source, version)
    control = read(source, "debian", "control")
    depends = stanza(control, "datalog-viewer")
    listed = read(source, "packaging", "packages.txt").split()
    for needed in build_dependencies(control):
        assert needed in listed, needed + " in packages.txt"
    modules = imports(os.path.join(source, "viewer", "qml"))
    assert len(modules) > 3, modules
    for name, major in modules:
        owner = package(name, major)
        assert re.search(r"\b%s\b" % re.escape(owner), depends), owner + " in debian/control"
        assert owner in listed, owner + " in packages.txt"


main(*sys.argv[1:])
