# Drives the program's windows from outside, by their titles and by keys. Sourced by end-to-end tests
# that run on a display of their own. Expects the test's own directory in $place.

fail() {
    echo "FAILED: $*" >&2
    find "$place" -name DebugLog.TXT -exec tail -n 5 {} + >&2
    exit 1
}

# Runs the command until it succeeds, for ten seconds at most.
await() {
    local i
    for ((i = 0; i < 100; ++i)); do
        "$@" >/dev/null 2>&1 && return
        sleep 0.1
    done
    fail "in vain: $*"
}

# Whether the window with the focus has a title that the pattern describes.
in_front() { [[ $(xdotool getactivewindow getwindowname 2>/dev/null) =~ $1 ]]; }

# Types the keys, with the time between them that the opening of a menu takes.
keys() { xdotool key --delay 60 "$@" && sleep 0.15; }

# Starts a copy of the program in the test's directory, as a user of the locale, and waits for its
# frame, or for the window whose title the third argument describes.
start_program() {
    install -d -m 700 "$place/run"
    env LC_ALL="$2" XDG_RUNTIME_DIR="$place/run" XDG_CONFIG_HOME="$place" "$1" &
    program=$!
    await in_front "${3:-^Zephyrwick - }"
}

end_program() {
    kill -TERM "$program"
    wait "$program" || fail "the program ended with code $?"
}
