#!/usr/bin/env bash
# The real program and a stand-in for the desktop's opener, which prints and then fails, is killed
# or hangs; the About box, and the help. Argument: the program file.
set -uo pipefail
place=$(mktemp -d /tmp/quorvanta-opener.XXXXXX)
. "$(dirname "$0")/../support/window.sh"
trap 'kill -9 $program $(<"$place/hanging") 2>/dev/null; rm -rf "$place"' EXIT
cp "$1" "$place/quorvanta"
mkdir "$place/bin"
PATH=$place/bin:$PATH
page='https://www.zephyrwick.example/prod02.htm|'

# What the opener does after it has noted its arguments and printed something.
opener() {
    printf '#!/bin/sh\nprintf "%%s|" "$@" >>%s\necho noise; echo noise >&2\n%s\n' \
        "$place/opened" "$1" >"$place/new"
    chmod +x "$place/new" && mv "$place/new" "$place/bin/xdg-open"
}
opened() { [[ $(<"$place/opened") == "$1" ]]; }
ticks() { awk '{ print $14 + $15 }' "/proc/$program/stat"; } # of 10 ms
start() { start_program "$place/quorvanta" en_US.UTF-8 2>"$place/terminal" >&2; }

start
expected=
for body in 'sleep 0.2; exit 3' 'kill -9 $$' "echo \$\$ >>$place/hanging; exec sleep 90"; do
    opener "$body"
    keys alt+q Return
    expected+=$page
    await opened "$expected"
done
await test -s "$place/hanging"
keys alt+h a
await in_front '^About Zephyrwick.s Quor Vanta $'
sleep 0.5
before=$(ticks)
sleep 4
used=$(($(ticks) - before))
echo "Processor time with the About box open: $used of 400 ticks."
((used <= 8)) || fail "the animation takes more than 2 % of a core"
keys space # the picture has the focus
await opened "${expected}https://www.zephyrwick.example/|"
keys alt+o
await in_front '^Zephyrwick - '
[[ -z $(cat /proc/$program/task/*/children) ]] || fail "a child process is left"
[[ ! -s $place/terminal ]] || fail "on the terminal: $(<"$place/terminal")"

# The opener that still runs holds no lock.
kill -9 "$program"
wait "$program" 2>/dev/null
kill -0 $(<"$place/hanging") || fail "the opener went with the program"
start
keys alt+h Return
await in_front '^Quor Vanta  - Help$'
end_program
echo "The opener did what it liked."
