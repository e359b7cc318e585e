#!/usr/bin/env python3
"""Holds every include of the source against the table "What may include what" of the architecture
document, and the table against the includes. Arguments: the source directory, the document."""

import pathlib
import re
import sys

source, document = map(pathlib.Path, sys.argv[1:])
table = document.read_text(encoding="utf-8").partition("\n## What may include what\n")[2]
rows = {folder: (set(re.findall("`(.*?)`", others)), "yes" in system) for folder, others, system
        in re.findall(r"(?m)^\| `(.*?)` \|(.*?)\|(.*?)\|$", table.partition("\n## ")[0])}
used, status = {folder: set() for folder in rows}, 0


def bad(*words):
    global status  # pylint: disable=global-statement
    status = 1
    print(*words)


def folder_of(path):
    return path.rpartition("/")[0] or path


for file in filter(pathlib.Path.is_file, source.rglob("*.*")):
    name = file.relative_to(source).as_posix()
    here = folder_of(name)
    may, system_may = rows.get(here, (set(), False))
    for mark, other in re.findall(r'(?m)^ *# *include *([<"])(.*?)[">]', file.read_text("utf-8")):
        there = {other, folder_of(other)}
        used.setdefault(here, set()).update(there)
        # The headers of C++ have no ending.
        if not (system_may or re.fullmatch("[a-z_]+", other) if mark == "<"
                else here in there or there & may):
            bad(name, "includes", other)
for here, (may, _) in rows.items():
    if (source / here).exists() and not may <= used[here]:
        bad("no file of", here, "includes", *may - used[here])
sys.exit(status or not rows)
