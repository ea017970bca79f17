#!/usr/bin/env python3
"""Installs the build below a prefix, and once more staged by DESTDIR; both hold the same files.

    check_install.py CMAKE BUILD_DIR PREFIX

The tree below PREFIX stays for the tests that use it, its MIME database made.
"""
import glob
import os
import shutil
import subprocess
import sys

EXPECTED = """
bin/datalog-viewer
include/DataLog/parsing/LogParser.h
lib*/cmake/DataLog/DataLogConfig.cmake
lib*/cmake/DataLog/DataLogConfigVersion.cmake
lib*/cmake/DataLog/DataLogTargets.cmake
lib*/libdatalog_parsing.a
lib*/qt5/qml/DataLog/libdatalogplugin.so
lib*/qt5/qml/DataLog/plugins.qmltypes
lib*/qt5/qml/DataLog/qmldir
share/applications/datalog-viewer.desktop
share/doc/datalog/docs/reference/README.md
share/doc/datalog/examples/logs/one-block.log
share/icons/hicolor/16x16/apps/datalog-viewer.png
share/icons/hicolor/512x512/apps/datalog-viewer.png
share/icons/hicolor/scalable/apps/datalog-viewer.svg
share/man/man1/datalog-viewer.1
share/metainfo/org.datalog.viewer.metainfo.xml
share/mime/packages/datalog.xml
""".split()


def install(cmake, build, prefix, destdir=""):
    environment = dict(os.environ, DESTDIR=destdir)
    subprocess.run([cmake, "--install", build, "--prefix", prefix], env=environment, check=True,
                   stdout=subprocess.DEVNULL)


def files(root):
    return sorted(os.path.relpath(os.path.join(folder, name), root)
                  for folder, _, names in os.walk(root) for name in names)


def main(cmake, build, prefix):
    staging = prefix + "-staging"
    for folder in (prefix, staging):
        shutil.rmtree(folder, ignore_errors=True)
    install(cmake, build, prefix)
    install(cmake, build, "/opt/elsewhere", staging)
    staged = os.path.join(staging, "opt", "elsewhere")
    assert os.listdir(staging) == ["opt"], os.listdir(staging)
    assert files(staged) == files(prefix), set(files(staged)) ^ set(files(prefix))
    for pattern in EXPECTED:
        matches = glob.glob(os.path.join(prefix, pattern)) \
            or glob.glob(os.path.join(prefix, pattern.replace("lib*/", "lib*/*/")))
        assert matches, "missing: " + pattern
    for name in files(prefix):
        if name.endswith((".cmake", ".desktop", "qmldir", ".qmltypes")):
            with open(os.path.join(prefix, name), encoding="utf-8") as text:
                content = text.read()
            assert build not in content and prefix not in content, name + " names a build path"
    shutil.rmtree(staging)
    subprocess.run(["update-mime-database", os.path.join(prefix, "share", "mime")], check=True)


main(*sys.argv[1:])
