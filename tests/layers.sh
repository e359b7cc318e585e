#!/usr/bin/env bash
# Holds every include of the source against the table "What may include what" of the architecture
# document, and the table against the includes. Arguments: the source directory, the document.
set -uo pipefail
cd "$1" || exit 1
grep -rE '^ *# *include' --include='*.cpp' --include='*.h' . | sed 's|^\./||' |
    awk -v document="$2" '
function folder(path) { return sub("/[^/]*$", "", path) ? path : path }
function bad(text) { print text; status = 1 }
BEGIN {
    while ((getline line < document) > 0) {
        if (line ~ /^## /)
            here = line ~ /^## What may include what/
        if (!here || line !~ /^\| `/)
            continue
        gsub(/[` ]/, "", line)
        split(line, cell, "|")
        row[cell[2]] = cell[4] # whether it may include headers of the system
        split(cell[3], others, ",")
        for (i in others)
            may[cell[2] " " others[i]]
    }
}
{
    file = substr($0, 1, index($0, ":") - 1)
    from = folder(file)
    present[from]
    what = substr($0, match($0, /["<]/) + 1)
    system_header = what ~ />$/ && what !~ /^[a-z_]+>/ # those of C++ have no ending
    sub(/[">].*/, "", what)
    to = folder(what)
    if (!(from in row))
        bad(file ": no row for " from)
    else if ($0 ~ /</) {
        if (system_header && row[from] != "yes")
            bad(file " includes <" what ">")
    } else if (to != from && !(from " " to in may) && !(from " " what in may))
        bad(file " includes " what)
    used[from " " to]
    used[from " " what]
}
END {
    for (pair in may) {
        split(pair, name, " ")
        if (name[1] in present && !(pair in used))
            bad("no file of " name[1] " includes " name[2] ", as the table lets it")
    }
    exit status || NR == 0
}'
