#!/bin/sh
# Add-on: a report of the active catalogue, per content type the number of entries and
# their bytes, largest first, and a total; written to PLUGINS/stats-report.txt and opened
# with the desktop's program for text (ZVX_OPENER, default xdg-open).
#
# ZVX starts it in the application folder (ZVX_HOME) after writing current.zvd there,
# whose line 2 is the active document's working copy (empty for the search window), and
# waits until PLUGINS/extlock.tmp exists.

# Catalogue text is passed through as bytes, whatever its code page.
LC_ALL=C
export LC_ALL

home=${ZVX_HOME:-$PWD}
plugins=$home/PLUGINS
report=${ZVX_STATS_REPORT:-$plugins/stats-report.txt}
tab=$(printf '\t')

# The lock file is made last, whatever happened, so that ZVX goes on at once.
trap ': > "$plugins/extlock.tmp"' EXIT
trap 'exit 1' HUP INT TERM

# Line N of current.zvd without its CR.
current() {
    sed -n "$1p" "$home/current.zvd" 2>/dev/null | tr -d '\r'
}

# Where the entry section begins: bytes 2 to 5 of the catalogue hold its position as
# eight decimal digits, two a byte.
entry_offset() {
    od -An -tu1 -j1 -N4 "$1" | awk '{ for (i = 1; i <= NF; i++) n = n * 100 + $i }
        END { print (n > 0 ? n : 1) }'
}

# "bytes<TAB>entries<TAB>content type" for each content type, largest first.
totals() {
    tail -c "+$(entry_offset "$1")" "$1" | awk 'BEGIN { FS = "\001" }
        { sub(/\r$/, "") }
        length($0) >= 8 {
            type = ($9 == "" ? "(no content type)" : $9)
            entries[type]++
            bytes[type] += $3
        }
        END { for (t in entries) printf "%.0f\t%d\t%s\n", bytes[t], entries[t], t }' |
        sort -t "$tab" -k1,1nr -k3,3
}

table() {
    awk -F "$tab" '
        BEGIN { printf "%-32s %9s %18s\n", "Content type", "Entries", "Bytes" }
        { printf "%-32s %9d %18.0f\n", $3, $2, $1; entries += $2; bytes += $1 }
        END { printf "%-32s %9d %18.0f\n", "Total", entries, bytes }'
}

write_report() {
    echo "Statistics Report"
    echo
    copy=$(current 2)
    if [ -z "$copy" ]; then
        echo "There is no document: the active window holds no catalogue."
        return 0
    fi
    saved=$(current 3)
    echo "Catalogue: ${saved:-(not saved yet)}"
    echo "Working copy: $copy"
    echo
    if [ ! -r "$copy" ]; then
        echo "The working copy cannot be read."
        return 1
    fi
    totals "$copy" | table
}

write_report > "$report"
status=$?
"${ZVX_OPENER:-xdg-open}" "$report" > /dev/null 2>&1 &
exit "$status"
