#!/usr/bin/env python3
"""The definition files that the documentation shows are read by the viewer without a remark, and a
session says the same after it was written again.

    check_definitions.py SOURCE_DIR VIEWER
"""
import json
import os
import re
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"^```(json|xml)\n(.*?)^```$", re.M | re.S)


def is_part(part, whole):
    """Whether all that is told in part is told in whole, too."""
    if isinstance(part, dict):
        return isinstance(whole, dict) and all(
            key in whole and is_part(value, whole[key]) for key, value in part.items())
    return part == whole


def written_again(viewer, log, kind, text):
    with tempfile.TemporaryDirectory() as folder:
        given, written = os.path.join(folder, "given." + kind), os.path.join(folder, "written.json")
        with open(given, "w", encoding="utf-8") as out:
            out.write(text)
        run = subprocess.run(
            [viewer, "--definition", given, "--save-definition", written, "--export",
             os.path.join(folder, "plot.png"), log],
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, universal_newlines=True)
        with open(written, encoding="utf-8") as result:
            return run, json.load(result)


def main(source, viewer):
    with open(os.path.join(source, "docs", "definitions.md"), encoding="utf-8") as page:
        blocks = BLOCK.findall(page.read())
    assert sorted(kind for kind, _ in blocks) == ["json", "xml"], blocks
    log = os.path.join(source, "examples", "logs", "climate-chamber.log")
    for kind, text in blocks:
        run, session = written_again(viewer, log, kind, text)
        print(run.stdout)
        assert run.returncode == 0, run.returncode
        if kind == "json":
            assert run.stdout == "", "remarks"
            assert is_part(json.loads(text), session), json.dumps(session, indent=1)
        else:
            assert session["left"]["variables"] == ["Tair", "Tleaf"], session


main(*sys.argv[1:])
