#!/usr/bin/env python3
"""The programs of docs/cpp.md build with the library below PREFIX and print what the page says.

    check_cpp.py PREFIX SOURCE_DIR BUILD_DIR [CMAKE_OPTION...]

A comment such as "// prints: text" tells what a program prints when it is given one-block.log. One that
runs scripts is given module.qml.
"""
import os
import re
import shutil
import subprocess
import sys

PROGRAM = re.compile(r"^`(\w+)\.cpp`(?:(?!```).)*\n```cpp\n(.*?)^```$", re.M | re.S)
MAKE_LISTS = re.compile(r"^```cmake\n(.*?)^```$", re.M | re.S)
PRINTS = re.compile(r"^// prints: (.*)$", re.M)
SCRIPT_SAYS = "qml: read one-block.log: 12 variables, 1 block, enumeration 2"


def write(folder, name, text):
    with open(os.path.join(folder, name), "w", encoding="utf-8") as out:
        out.write(text)


def unpack(page, folder):
    """Writes the page's files. @return the programs by name, each with what it prints."""
    lists, programs = MAKE_LISTS.findall(page), PROGRAM.findall(page)
    assert len(lists) == 1, "%d CMakeLists.txt" % len(lists)
    assert len(programs) == page.count("\n```cpp\n"), "a block that no file name stands above"
    write(folder, "CMakeLists.txt", lists[0])
    for name, text in programs:
        write(folder, name + ".cpp", text)
    return {name: PRINTS.findall(text) for name, text in programs}


def output(program, argument, folder):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_QUICK_BACKEND="software")
    run = subprocess.run([program, argument], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                         cwd=folder, env=environment, timeout=60)
    lines = [line for line in run.stdout.decode().splitlines() if "XDG_RUNTIME_DIR" not in line]
    return run.returncode, lines


def main(prefix, source, build, *options):
    shutil.rmtree(build, ignore_errors=True)
    os.makedirs(build)
    with open(os.path.join(source, "docs", "cpp.md"), encoding="utf-8") as page:
        programs = unpack(page.read(), build)
    assert len(programs) >= 2, programs
    subprocess.run(["cmake", "-S", build, "-B", build, "-DCMAKE_PREFIX_PATH=" + prefix] + list(options),
                   check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", build], check=True, stdout=subprocess.DEVNULL)
    logs = os.path.join(source, "examples", "logs")
    script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "module.qml")
    for name, prints in programs.items():
        argument, expected = ("one-block.log", prints) if prints else (script, [SCRIPT_SAYS])
        told = output(os.path.join(build, name), argument, logs)
        assert told == (0, expected), "%s: %s instead of %s" % (name, told, expected)
        print("%s: %s" % (name, ", ".join(expected)))


main(*sys.argv[1:])
