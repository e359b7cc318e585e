#!/usr/bin/env bash
# The package as its user meets it: unpacked into oddly named folders, entered into the menu, started
# from there, unpacked over itself, moved, and taken out of the menu. Argument: the build's folder.
set -uo pipefail
place=$(mktemp -d /tmp/quorvanta-package.XXXXXX)
. "$(dirname "$0")/../support/window.sh"
pid=
trap 'kill -9 $pid 2>/dev/null; rm -rf "$place"' EXIT
export XDG_RUNTIME_DIR=$place/run XDG_CONFIG_HOME=$place/config XDG_DATA_HOME="$place/da ta"
id=example.zephyrwick.quorvanta
entry=$XDG_DATA_HOME/applications/$id.desktop
icons=$XDG_DATA_HOME/icons/hicolor
install -d -m 700 "$XDG_RUNTIME_DIR" "$place/odd" "$icons/16x16/apps"
convert -size 16x16 xc:red "$icons/16x16/apps/another.png"
gtk-update-icon-cache -q -t "$icons" # a cache that the script has to renew

unpack() { tar -xzf "$package" -C "$folder" --strip-components=1 || fail "the package doesn't unpack"; }
menu() { "$folder/desktop-menu" "$1" >/dev/null || fail "desktop-menu $1: code $?"; }
installed() { (cd "$XDG_DATA_HOME" && find . -printf '%p %y %s\n' | sort); }
# Starts it from the menu, works it by the keys, and ends it.
run() {
    env LC_ALL=en_US.UTF-8 gio launch "$entry" || fail "the menu's entry doesn't start: $(grep Exec "$entry")"
    await in_front '^Zephyrwick - '
    pid=$(xdotool getactivewindow getwindowpid)
    [[ $(readlink "/proc/$pid/exe") == "$folder/quorvanta" ]] || fail "it started another program"
    class=$(xprop -id "$(xdotool getactivewindow)" WM_CLASS)
    [[ $class == *"\"$(sed -n 's/^StartupWMClass=//p' "$entry")\"" ]] || fail "the window's class: $class"
    keys "$@"
    kill -TERM "$pid"
    await eval '! kill -0 $pid'
}
# What the user has: data file and backup but for their first lines, the times of the saves, and the
# settings.
kept() { tail -q -n +2 "$folder"/Quorvanta.{txt,bak} && cat "$XDG_CONFIG_HOME"/*/quorvanta.ini; }

(cd "$place" && cpack --config "$1/CPackConfig.cmake" -B packages) >"$place/cpack" 2>&1 ||
    fail "$(<"$place/cpack")"
(cd "$place/packages" && sha256sum --quiet -c ./*.sha256) || fail "the checksum is wrong"
package=$(echo "$place"/packages/quorvanta-*-linux-*.tar.gz)
tar -tzf "$package" | grep -v '/$' | sort | diff - <(printf 'quorvanta/%s\n' CHANGELOG.md LICENSE README.txt \
    desktop-menu quorvanta quorvantalite.hlp share/{applications/$id.desktop,metainfo/$id.metainfo.xml} \
    share/icons/hicolor/{{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256,512x512}/apps/$id.png,scalable/apps/$id.svg} |
    sort) || fail "other files in the package"

nothing=$(installed)
# The second has what an entry's command can't hold for a program of its own.
for name in "blank \"quotes' \$HOME \`id\` back\\slash ä;#&~" 'a=b 100% %f'; do
    folder=$place/odd/$name
    mkdir "$folder"
    unpack
    menu add
    once=$(installed)
    menu add
    [[ $(installed) == "$once" ]] || fail "entered twice, the menu differs"
    grep -q $id "$icons/icon-theme.cache" || fail "the cache of icons hides the program's"
    desktop-file-validate "$folder/share/applications/$id.desktop" "$entry" &&
        appstreamcli validate --no-net "$XDG_DATA_HOME/metainfo/$id.metainfo.xml" >"$place/appstream" ||
        fail "invalid: $(grep Exec "$entry") $(<"$place/appstream")"
    (cd "$icons" && identify -format '%wx%h %d\n' */apps/$id.png | awk '$1 "/apps" != $2' | grep .) &&
        fail "an icon has another size than its folder tells"

    run alt+f Return alt+g Down Right Down Return # "6 From 49", and the second system of its menu
    sed -i '23s/^7\./7.8;13;;;;;/; s/^Loss:0/Loss:5/' "$folder/Quorvanta.txt" # a favorite row
    run space # its save makes this the backup
    old=$(kept)
    [[ $old == *7.8\;13\;*Loss:5*7.8\;13\;*Loss:5*system=1* ]] || fail "not kept: $old"
    echo older >"$folder/CHANGELOG.md"
    unpack
    [[ $(kept) == "$old" && $(<"$folder/CHANGELOG.md") != older ]] || fail "the upgrade: $(kept)"
    run alt+f Return
    [[ $(kept) == "$old" ]] || fail "after the upgrade: $(kept | diff - <(echo "$old"))"
    mv "$folder" "$folder moved"
    gio launch "$entry" 2>/dev/null && fail "an entry without its program is still shown"
    folder+=' moved'
    menu remove
    [[ $(installed) == "$nothing" ]] || fail "left in the menu: $(installed | diff - <(echo "$nothing"))"
done
