#!/usr/bin/env python3
"""The man page names each option and argument of --help, and those only, and groff finds no fault.

    check_man_page.py VIEWER PAGE
"""
import re
import subprocess
import sys


def output(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=True,
                          universal_newlines=True).stdout


def options(text):
    return sorted(set(re.findall(r"^ +(?:-\w, )?(--[\w-]+)", text, re.M)))


def words(text):
    return re.findall(r"[\w.:>=<!-]+", text.replace("<", " ").replace(">", " "))


def main(viewer, page):
    help_text = output(viewer, "--help")
    warnings = subprocess.run(["groff", "-man", "-Tutf8", "-ww", "-z", page],
                              stderr=subprocess.PIPE, check=True).stderr.decode()
    assert not warnings, warnings
    plain = output("groff", "-man", "-Tascii", "-P-cbou", "-rLL=2000n", "-rHY=0", page)
    section = plain[plain.index("\nOPTIONS"):plain.index("\nEXIT STATUS")]
    assert len(options(help_text)) > 10, help_text
    assert options(section) == options(help_text), (options(section), options(help_text))
    missing = set(words(help_text[help_text.index("Options:"):])) - set(words(section))
    missing -= {"Options:", "Arguments:"}
    assert not missing, missing


main(*sys.argv[1:])
