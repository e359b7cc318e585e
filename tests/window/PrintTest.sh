#!/usr/bin/env bash
# Prints the favorite rows from the program's window onto a print server of the test's own, and reads
# the page back. Argument: the program file.
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
    local to=$CUPS_SERVERROOT anyone='Order allow,deny' i
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
    for ((i = 0; i < 50; ++i)); do
        [[ $(lpstat -r 2>/dev/null) == *'is running' ]] && return
        sleep 0.1
    done
    fail "the print server doesn't start: $(cat "$place/cupsd.out" "$to/error_log" 2>/dev/null)"
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

jobs_made() { lpstat -W all 2>/dev/null | wc -l; }

# The favorite rows of the data file that lies beside the program.
write_rows() {
    printf '%s\r\n' '[Favorites]' '1.5;9;14;22;36;44;' '2.4;9;;;;;' $'3.as it was: \xe4' \
        "9.$(printf '%010000d' 0)" '10.;;;;;;' >"$place/Quorvanta.txt"
}

open_page() { keys alt+f Down Down Down Return; }
# The last entry of the page's own menu, which is the second of the bar.
choose_print() { keys alt Right Down Up Return; }

# Waits for the nth error box of the program, whose failure is in the log too.
error_box() { await failures "$1" && await in_front '^Quor Vanta $'; }
failures() {
    local record='"frmFavorites.PrintFavoriteNumbers""Number: 482""Description: Printer error"#'
    [[ $(tr -d '\r\n' <"$place/DebugLog.TXT" | grep -o "$record" | wc -l) == "$1" ]]
}
# The box opens with Abort chosen; Retry and Ignore stand behind it.
answer() {
    case $1 in
    Retry) keys Tab Return ;;
    Ignore) keys Tab Tab Return ;;
    Abort) keys Return ;;
    esac
}

printed() { compgen -G "$place/out/*.pdf" && [[ -z $(lpstat 2>/dev/null) ]]; }
page() { await printed && ls "$place"/out/*.pdf; }

# Each line's size at 108 dots to the inch, colour, bold and italic, and text. The date as $1 has it.
check_texts() {
    diff - <(pdftohtml -xml -i -stdout "$(page)" | awk -F'"' '
        function flush() { if (sub(/ *$/, "", line) && line) print as, substr(line, 1, 25); line = "" }
        /<fontspec/ { look[$2] = $4 " " $8 }
        /<text/ {
            if ($2 > top + 4) { flush(); top = $2 } # a line can come in pieces
            as = look[$10] (/<b>/ ? " bold" : "") (/<i>/ ? " italic" : "")
            gsub(/<[^>]*>/, ""); line = line $0
        }
        END { flush() }') <<END || fail "the page differs"
27 #0000ff bold italic Quor Vanta ® Version 3.5
12 #000000 bold italic $1
15 #000000 italic 1. 5;9;14;22;36;44;
15 #000000 italic 2. 4;9;;;;;
15 #000000 italic 3. as it was: ä
15 #000000 italic 4.
15 #000000 italic 5.
15 #000000 italic 6.
15 #000000 italic 7.
15 #000000 italic 8.
15 #000000 italic 9. 0000000000000000000000
15 #000000 italic 10. ;;;;;;
END
}

# Each line's start in twips of the printable area, from the measures of Liberation Sans in parts of
# its size: line 1.1172, baseline 0.9053 below the top, average character 0.6143 in bold italics and
# 0.5908 in italics. The long line ends where the area does.
check_places() {
    pdfinfo "$(page)" | tr -s ' ' | grep -cE '^(Pages: 1|Page size: 612 x 792 pts .*)$' |
        grep -qx 2 || fail "not one page of Letter paper"
    pdftocairo -svg "$(page)" - | awk -F'"' '
        function expect(left, top, size) {
            off = (x - left) / left; off2 = (y - 0.9053 * size - top) / top
            if (off > 0.02 || off < -0.02 || off2 > 0.02 || off2 < -0.02) {
                print "line " n " at " x ", " y " twips"; bad = 1
            }
        }
        /<use/ {
            x = ($4 - 4) * 20; y = ($6 - 22) * 20
            if (x > most) most = x
            if (x < 100 || y < last + 1) next # the blank ahead of the header; the same line
            last = y; ++n
            if (n == 1) expect(3 * 0.6143 * 360, 500, 360)
            else if (n == 2) expect(3 * 0.6143 * 160, 1150 + 1.1172 * 160, 160)
            else expect(3 * 0.5908 * 200, 3300 + (n - 1) * 1.1172 * 200, 200)
        }
        END {
            print n " lines, to " most " twips"
            exit bad || n != 12 || most < 11500 || most > 11720
        }' || fail "the page is laid out otherwise"
}

printf '<fontconfig><dir>/usr/share/fonts/truetype/liberation</dir><cachedir>%s</cachedir></fontconfig>' \
    "$place/fonts" >"$FONTCONFIG_FILE"
cp "$1" "$place/quorvanta"
write_rows

echo "No print server: the box comes at each of the 16 lines and at the end, and Ignore goes on with the next."
start_program "$place/quorvanta" en_US.UTF-8
open_page
choose_print
for box in {1..17}; do
    error_box "$box"
    answer Ignore
done
await in_front '^Zephyrwick - '

echo "A server without a printer, then with a stopped one: Retry prints when it runs again."
start_server
choose_print
error_box 18
add_printer
cupsdisable PDF
answer Retry
error_box 19
cupsenable PDF
answer Retry
check_texts "$(date +%-m/%-d/%Y)"
check_places
[[ $(jobs_made) == 1 ]] || fail "there are $(jobs_made) jobs"

echo "A printer that takes no jobs: Abort leaves none behind."
cupsreject PDF
choose_print
error_box 20
answer Abort
await in_front '^Zephyrwick - '
cupsaccept PDF
[[ $(jobs_made) == 1 ]] || fail "there are $(jobs_made) jobs"
end_program

echo "A German user."
rm "$place"/out/*.pdf
write_rows
start_program "$place/quorvanta" de_DE.UTF-8
open_page
choose_print
check_texts "$(date +%d.%m.%Y)"
[[ $(jobs_made) == 2 ]] || fail "there are $(jobs_made) jobs"
end_program
