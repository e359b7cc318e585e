#!/usr/bin/env bash
# Prints the favorite rows from the program's window, as a German user, onto a print server of the
# test's own, and reads the page back. Argument: the program file.
#
# The server is a copy of the machine's, with configuration, socket, spool and printer of its own,
# so that neither the machine's printers nor its confinement of the server play a part. Its backend
# runs as root only.
set -uo pipefail
place=$(mktemp -d /tmp/quorvanta-print.XXXXXX)
. "$(dirname "$0")/../support/window.sh"

as_root=()
((EUID == 0)) || as_root=(sudo -n)
backend_conf=/etc/cups/cups-pdf-${place##*.}.conf # the backend looks for it nowhere else
server= program=
clean_up() {
    kill $program 2>/dev/null
    [[ -n $server ]] && "${as_root[@]}" kill "$server"
    wait
    rm -rf "$place" "$backend_conf" 2>/dev/null || "${as_root[@]}" rm -rf "$place" "$backend_conf"
}
trap clean_up EXIT

export HOME=$place CUPS_SERVERROOT=$place/cups CUPS_SERVER=$place/cups/socket FONTCONFIG_FILE=$place/fonts.conf

start_server() {
    local to=$CUPS_SERVERROOT anyone='Order allow,deny'
    chmod 755 "$place" && mkdir -p "$to"/{spool,cache,state,tmp} "$place/out" && chmod 1777 "$to/tmp"
    cp /usr/sbin/cupsd "$to" && "${as_root[@]}" cp -a /usr/lib/cups "$to/lib" ||
        fail "the print server can't be copied: is it installed, and is this root, or sudo free?"
    printf '%s\n' "ServerRoot $to" "ServerBin $to/lib" "RequestRoot $to/spool" \
        "CacheDir $to/cache" "StateDir $to/state" "TempDir $to/tmp" "AccessLog $to/access_log" \
        "ErrorLog $to/error_log" "PageLog $to/page_log" >"$to/cups-files.conf"
    printf '%s\n' "Listen $CUPS_SERVER" 'Browsing No' 'DefaultAuthType None' 'WebInterface No' \
        '<Location />' "$anyone" 'Allow all' '</Location>' \
        '<Policy default>' '<Limit All>' "$anyone" '</Limit>' '</Policy>' >"$to/cupsd.conf"
    printf '%s\n' "Out $place/out" "Spool $to/tmp/pdf" "Log $to" |
        "${as_root[@]}" tee "$backend_conf" >/dev/null
    "${as_root[@]}" setpriv --pdeathsig TERM "$to/cupsd" -f -c "$to/cupsd.conf" \
        -s "$to/cups-files.conf" >"$place/cupsd.out" 2>&1 &
    server=$!
    await eval '[[ $(lpstat -r) == *"is running" ]]'
}

# A printer for Letter paper with an edge of 4 points to the left, 22 above and to the right, 30
# below. Its driver keeps the texts of a page as texts.
add_printer() {
    sed 's|^\(.ImageableArea Letter/[^:]*: \).*|\1"4 30 590 770"|' \
        /usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd >"$place/printer.ppd"
    lpadmin -p PDF -E -v "cups-pdf:/${place##*.}" -P "$place/printer.ppd" -o PageSize=Letter \
        -o pdftops-renderer-default=pdftocairo 2>/dev/null && lpadmin -d PDF ||
        fail "the print server takes no printer"
}

# The last entry of the page's own menu, which is the second of the bar.
choose_print() { keys alt Right Down Up Return; }

# Answers the nth error box of the program, whose failure is in the log too, by keys. Abort is chosen
# in it; Retry and Ignore stand behind.
answer() {
    await failures "$1" && await in_front '^Quor Vanta $'
    keys "${@:2}"
}
failures() {
    local record='"frmFavorites.PrintFavoriteNumbers""Number: 482""Description: Printer error"#'
    [[ $(tr -d '\r\n' <"$place/DebugLog.TXT" | grep -o "$record" | wc -l) == "$1" ]]
}
printed() { compgen -G "$place/out/*.pdf" && [[ -z $(lpstat 2>/dev/null) ]]; }

# Each line's left and top, size, colour, bold and italic, and text, at 216 dots to the inch from the
# corner of the paper, whose edge takes 12 and 66. A line begins three of its font's average characters
# in; its text reaches from the baseline, 0.905 of the size below the line's top, 0.71 of the size up.
# The long line ends where the area does.
check_page() {
    await printed
    diff - <(pdftohtml -xml -i -zoom 3 -stdout "$place"/out/*.pdf | awk -F'"' '
        function flush() { sub(/ *$/, "", line); if (head) print head, line; head = line = "" }
        /<page/ { print $10, $12 }
        /<fontspec/ { look[$2] = $4 " " $8 }
        /<text/ {
            if ($2 > top + 8) { flush(); top = $2 } # a line can come in pieces, of two subsets
            at = $4 " " $2 " " look[$10] (/<b>/ ? " bold" : "") (/<i>/ ? " italic" : "")
            end = $4 + $6
            gsub(/<[^>]*>/, ""); line = line $0
            if (!head && line ~ /[^ ]/) head = at
            sub(/00000+/, "0.. to " int(end / 10) "0", line)
        }
        END { flush() }') <<END || fail "the page differs"
2376 1836
112 151 54 #0000ff bold italic Quor Vanta ® Version 3.5
56 270 24 #000000 bold italic $(date +%d.%m.%Y)
65 634 30 #000000 italic 1. 5;9;14;22;36;44;
65 667 30 #000000 italic 2. 4;9;;;;;
65 701 30 #000000 italic 3. as it was: ä
65 734 30 #000000 italic 4.
65 768 30 #000000 italic 5.
65 802 30 #000000 italic 6.
65 835 30 #000000 italic 7.
65 869 30 #000000 italic 8.
65 902 30 #000000 italic 9. 0.. to 1770
65 936 30 #000000 italic 10. ;;;;;;
END
}

printf '<fontconfig><dir>/usr/share/fonts/truetype/liberation</dir><cachedir>%s</cachedir></fontconfig>' \
    "$place/fonts" >"$FONTCONFIG_FILE"
cp "$1" "$place/quorvanta"
printf '%s\r\n' '[Favorites]' '1.5;9;14;22;36;44;' '2.4;9;;;;;' $'3.as it was: \xe4' \
    "9.$(printf '%010000d' 0)" '10.;;;;;;' >"$place/Quorvanta.txt"
start_program "$place/quorvanta" de_DE.UTF-8
keys alt+f Down Down Down Return

echo "No print server: the box comes at each of the 16 lines and at the end, for Ignore goes on."
choose_print
for box in {1..17}; do
    answer $box Tab Tab Return
done
await in_front '^Zephyrwick - '

echo "A server without a printer, then with a stopped one: Retry prints when it runs again."
start_server
choose_print
await failures 18
add_printer
cupsdisable PDF
answer 18 Tab Return
await failures 19
cupsenable PDF
answer 19 Tab Return
check_page
[[ $(lpstat -W all | wc -l) == 1 ]] || fail "jobs: $(lpstat -W all)"

end_program
