#!/usr/bin/env bash
# Runs of the real program, driven by mouse and keyboard: a row's way from the keypad to the data
# file and back, a second instance, and a start after a kill. Argument: the program file.
set -uo pipefail
place=$(mktemp -d /tmp/quorvanta-run.XXXXXX)
. "$(dirname "$0")/../support/window.sh"
trap 'kill -9 $program 2>/dev/null; rm -rf "$place"' EXIT
cp "$1" "$place/quorvanta"
data=$place/Quorvanta.txt

start() { start_program "$place/quorvanta" en_US.UTF-8; }
# A place on the frame, in pixels from the top left of its inside.
click_at() {
    local x y
    read -r x y < <(xwininfo -name 'Zephyrwick - Quor Vanta ' |
        awk '/Absolute upper-left/ { printf "%s ", $NF }')
    xdotool mousemove "$((x + $1))" "$((y + $2))" click "${@:3}" 1 && sleep 0.15
}
click_tool() { click_at "$1" 42; }
click_key() {
    local left=(383 419 455 492 529 565 601)
    click_at "${left[($1 - 1) % 7]}" $((122 + ($1 - 1) / 7 * 23))
}
double_click_row() { click_at 380 $((336 + 16 * $1)) --repeat 2 --delay 60; }
# The toolbar's last button, and Yes.
exit_program() {
    click_tool 236
    await in_front '^Quor Vanta $'
    keys y
    wait "$program" || fail "the program ended with code $?"
}
row() { sed -n "$1p" "$data" | tr -d '\r'; }

begin=$(date +%s%N)
start
(($(date +%s%N) - begin >= 3500000000)) || fail "the splash didn't stay for 3.5 seconds"

log=$(stat -c %Y.%s "$place/DebugLog.TXT")
timeout 5 env XDG_RUNTIME_DIR="$place/run" "$place/quorvanta" || fail "a second instance: code $?"
[[ $(stat -c %Y.%s "$place/DebugLog.TXT") == "$log" && ! -e $data ]] || fail "it wrote something"

click_tool 64
for n in 41 3 48 7 33 12 25; do click_key "$n"; done
keys alt+f
exit_program
semicolons=$(printf '%042d' 0 | tr 0 ';')
[[ $(row 5) == "1.3;7;12;25;33;41;48;$semicolons" ]] || fail "row 1 is $(row 5)"
[[ $(row 6) == "2.;;;;;;;$semicolons" && $(grep -c $'\r$' "$data") == 33 ]] || fail "not 33 lines that end in CR LF"

start
kill -9 "$program"
wait "$program" 2>/dev/null
start
click_tool 64
double_click_row 1 # it asks only if the row is there
await in_front '^Quor Vanta $'
keys Escape # Cancel
end_program
[[ $(row 5) == 1.3\;7\;* ]] || fail "a declined deletion changed row 1 to $(row 5)"

start
click_tool 64
double_click_row 1
await in_front '^Quor Vanta $'
keys y
exit_program
[[ $(row 5) == "1.;;;;;;;$semicolons" ]] || fail "row 1 is still $(row 5)"
# The error box of a bad line stands longer than the splash that it came up over.
printf '[Win/Loss]\r\nWin:\r\nLoss:5\r\n' >"$data"
start_program "$place/quorvanta" en_US.UTF-8 '^Quor Vanta $'
sleep 4.5
keys i # Ignore
await in_front '^Zephyrwick - '
end_program
[[ $(row 29) == Win:0 && $(row 30) == Loss:5 ]] || fail "read as $(row 29) $(row 30)"

# A save that fails asks also when the system ends the run.
start
rm -f "$data" && mkdir "$data"
kill -TERM "$program"
await in_front '^Quor Vanta $'
sleep 1.5
rmdir "$data"
keys r # Retry
wait "$program" || fail "the program ended with code $?"
[[ $(row 30) == Loss:5 ]] || fail "the save after Retry holds $(row 30)"
# The bankroll in two locales: opened from the toolbar, typed in with the keyboard, balance and all.
bankroll() {
    printf '[Win/Loss]\r\nWin:%s\r\nLoss:980\r\nLarge:500\r\nDate:%s\r\n' "$2" "$3" >"$data"
    start_program "$place/quorvanta" "$1"
    click_tool 147
    keys Tab
    xdotool type "$4"
    keys Tab
    xdotool type "$5" # not left: it is no edit yet
    exit_program
    [[ $(sed -n '29,33s/\r$//p' "$data" | tr '\n' ' ') == "$6 " ]] ||
        fail "the bankroll in $1 is $(tail -n 5 "$data")"
}
bankroll en_US.UTF-8 1250.5 3/2/2005 2,000 7 'Win:1250.5 Loss:2000 Bal:-749.5 Large:500 Date:3/2/2005'
bankroll de_DE.UTF-8 1250,5 02.03.2005 1.000,004 7 'Win:1250,5 Loss:1000 Bal:250,5 Large:500 Date:02.03.2005'
start_program "$place/quorvanta" de_DE.UTF-8
click_tool 147
keys Tab Tab Tab Tab Tab space # the calculator
await xdotool search --onlyvisible --class galculator
xdotool search --onlyvisible --class galculator windowkill
end_program
[[ $(row 30) == Loss:1000 && $(row 31) == Bal:250,5 ]] || fail "read back as $(row 30) $(row 31)"
echo "Every run went as told."
