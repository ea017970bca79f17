#!/usr/bin/env python3
"""compare_samples.py DIR: fails unless DIR holds just what its generate.py writes."""

import pathlib
import subprocess
import sys
import tempfile


def samples(folder):
    """The bytes of every log in a folder, by path relative to it."""
    files = [path for pattern in ("*.log", "*.csv") for path in folder.rglob(pattern)]
    return {str(path.relative_to(folder)): path.read_bytes() for path in files}


def difference(name, kept, made):
    if name not in made:
        return "is not written by the generator"
    if name not in kept:
        return "is missing"
    at = next((i for i, (a, b) in enumerate(zip(kept[name], made[name])) if a != b),
              min(len(kept[name]), len(made[name])))
    return "differs from byte {} on".format(at)


def main():
    folder = pathlib.Path(sys.argv[1])
    with tempfile.TemporaryDirectory() as out:
        subprocess.run([sys.executable, str(folder / "generate.py"), "--out", out], check=True)
        made = samples(pathlib.Path(out))
    kept = samples(folder)
    wrong = sorted(name for name in kept.keys() | made.keys() if kept.get(name) != made.get(name))
    for name in wrong:
        print(name, difference(name, kept, made))
    if not made:
        print("the generator wrote nothing")
    sys.exit(1 if wrong or not made else 0)


if __name__ == "__main__":
    main()
