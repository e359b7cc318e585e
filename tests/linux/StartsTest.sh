#!/usr/bin/env bash
# Starts and ends the real program a few times. Each run must save what the one before it saved, hold
# no file open but its lock, and leave no lock or file behind. Argument: the program file.
set -uo pipefail
place=$(mktemp -d /tmp/quorvanta-starts.XXXXXX)
. "$(dirname "$0")/../support/window.sh"
trap 'kill -9 $program 2>/dev/null; rm -rf "$place"' EXIT
cp "$1" "$place/quorvanta"
mkdir "$place/tmp"
export DBUS_SESSION_BUS_ADDRESS=disabled: TMPDIR=$place/tmp
printf '%s\r\n' '[Favorites]' '10.5;9;14;22;36;44;' '[Win/Loss]' Win:1250.5 >"$place/Quorvanta.txt"

for run in 1 2 3 4; do
    start_program "$place/quorvanta" C
    open=$(find "/proc/$program/fd" -lname "$place*" -printf '%l ')
    [[ $open == "$place " ]] || fail "run $run holds open: $open"
    flock -n "$place" true && fail "run $run has no lock"
    end_program
    flock -n "$place" true || fail "run $run: its lock is held"
    data=$(tail -n +2 "$place/Quorvanta.txt")
    [[ $data == "${first=$data}" && $data == *10.5\;9\;*Win:1250.5* ]] || fail "run $run saved $data"
done
left=$(cd "$place" && find . -type f | LC_ALL=C sort | tr '\n' ' ')
[[ $left == './DebugLog.TXT ./Quorvanta.bak ./Quorvanta.txt ./Quorvanta.txt.spare ./quorvanta ' ]] ||
    fail "left: $left"
