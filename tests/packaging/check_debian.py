#!/usr/bin/env python3
"""Each QML module that the viewer imports is in a package that datalog-viewer depends on, and in the
list of what the two commands install; so is all that the packages are built with. The packages have
the version of the build.

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
        with open(path, encoding="utf-8") as script:
            found.update(IMPORT.findall(script.read()))
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


def main(source, version):
    with open(os.path.join(source, "debian", "changelog"), encoding="utf-8") as text:
        assert text.readline().startswith("datalog (%s) " % version), "version of debian/changelog"
    with open(os.path.join(source, "debian", "control"), encoding="utf-8") as text:
        control = text.read()
    depends = stanza(control, "datalog-viewer")
    with open(os.path.join(source, "packaging", "packages.txt"), encoding="utf-8") as text:
        listed = text.read().split()
    for needed in build_dependencies(control):
        assert needed in listed, needed + " in packages.txt"
    modules = imports(os.path.join(source, "viewer", "qml"))
    assert len(modules) > 3, modules
    for name, major in modules:
        owner = package(name, major)
        assert re.search(r"\b%s\b" % re.escape(owner), depends), owner + " in debian/control"
        assert owner in listed, owner + " in packages.txt"


main(*sys.argv[1:])
