#!/usr/bin/env python3
"""What the desktop's tools take logs for, and which program they open them with.

    check_mime_type.py LOGS_DIR PREFIX      (XDG_DATA_DIRS names the tree installed below PREFIX)
"""
import os
import shutil
import subprocess
import sys
import tempfile


def content_type(path):
    told = subprocess.run(["gio", "info", "-a", "standard::content-type", path],
                          stdout=subprocess.PIPE, check=True, universal_newlines=True).stdout
    return told.split("standard::content-type: ")[1].strip()


def openers(mime_type, prefix):
    """The programs that desktops offer, of those in PREFIX."""
    environment = dict(os.environ, PATH=os.path.join(prefix, "bin") + ":" + os.environ["PATH"])
    subprocess.run(["update-desktop-database", os.path.join(prefix, "share", "applications")],
                   check=True)
    return subprocess.run(["gio", "mime", mime_type], env=environment, stdout=subprocess.PIPE,
                          check=True, universal_newlines=True).stdout


def main(logs, prefix):
    told = openers("text/x-datalog", prefix)
    assert "datalog-viewer.desktop" in told, told
    with tempfile.TemporaryDirectory() as folder:
        os.environ["XDG_DATA_HOME"] = os.path.join(folder, "home")

        def named(name, text=None, copy_of=None):
            path = os.path.join(folder, name)
            if copy_of:
                shutil.copy(os.path.join(logs, copy_of), path)
            else:
                with open(path, "w", encoding="utf-8") as out:
                    out.write(text)
            return content_type(path)

        ours = "text/x-datalog"
        for copied in ("climate-chamber.log", "climate-chamber.csv", "broken/crlf-line-ends.log",
                       "broken/byte-order-mark.log"):
            name = os.path.basename(copied)
            assert named(name, copy_of=copied) == ours, name
        assert named("nameless", copy_of="one-block.log") == ours
        assert named("by-name.datalog", "anything\n") == ours
        assert named("server.log", "started\nstopped\n") == "text/x-log"
        assert named("table.csv", "a,b\n1,2\n") == "text/csv"
        assert named("nameless2", "[Headers]\n") == "text/plain"


main(*sys.argv[1:])
