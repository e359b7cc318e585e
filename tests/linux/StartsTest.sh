#!/usr/bin/env bash
# Starts and ends the real program again and again. Each run must save what the one before it saved,
# hold no file open but its lock, and leave no process, lock or file behind. Arguments: the program
# file, and how often.
set -uo pipefail
place=$(mktemp -d /tmp/quorvanta-starts.XXXXXX)
. "$(dirname "$0")/../support/window.sh"
trap 'kill -9 $program 2>/dev/null; rm -rf "$place"' EXIT
cp "$1" "$place/quorvanta"
install -d -m 700 "$place/run" "$place/tmp"
export LC_ALL=C DBUS_SESSION_BUS_ADDRESS=disabled:
export XDG_RUNTIME_DIR=$place/run XDG_CONFIG_HOME=$place TMPDIR=$place/tmp
lock=$place/run/quorvanta.lock
left="DebugLog.TXT Quorvanta.bak Quorvanta.txt Quorvanta.txt.spare quorvanta"
left+=" run run/quorvanta.lock tmp "

row=$(printf '1;2;3;4;5;6;7;%042d' 0 | tr 0 ';')
printf '%s\r\n' '[StammNumbers]' "10.$row" '[Favorites]' '10.5;9;14;22;36;44;' \
    '[Win/Loss]' Win:1250.5 Date:3/2/2005 >"$place/Quorvanta.txt"

begin=$(date +%s%N)
for ((run = 1; run <= $2; ++run)); do
    "$place/quorvanta" &
    program=$!
    # A key on the splash opens the frame.
    for ((i = 0; i < 400; ++i)); do
        in_front '^Zephyrwick - ' && break
        in_front '^quorvanta$' && xdotool key space
        sleep 0.02
    done
    in_front '^Zephyrwick - ' || fail "run $run: no frame"
    open=$(find "/proc/$program/fd" -lname "$place/*" -printf '%l ')
    [[ $open == "$lock " ]] || fail "run $run holds open: $open"
    flock -n "$lock" true && fail "run $run has no lock"
    end_program
    [[ -e /proc/$program ]] && fail "run $run: a process is left"
    flock -n "$lock" true || fail "run $run: its lock is held"
    found=$(cd "$place" && find . -mindepth 1 -printf '%P\n' | sort | tr '\n' ' ')
    # The spare is left from the third run on.
    ((run < 3)) || [[ $found == "$left" ]] || fail "run $run left: $found"
    tail -n +2 "$place/Quorvanta.txt" >"$place/tmp/data"
    ((run == 1)) && data=$(sha256sum <"$place/tmp/data")
    [[ $(sha256sum <"$place/tmp/data") == "$data" ]] || fail "run $run changed the data file"
    rm "$place/tmp/data"
done
[[ $(sed -n '14p;26p;29p;33p' "$place/Quorvanta.txt" | tr -d '\r') == \
    "10.$row"$'\n10.5;9;14;22;36;44;\nWin:1250.5\nDate:3/2/2005' ]] ||
    fail "the data file holds $(<"$place/Quorvanta.txt")"
echo "$2 runs, $((($(date +%s%N) - begin) / $2 / 1000000)) ms each."
