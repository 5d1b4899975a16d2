#!/bin/sh
# Plug-in: appends one block to the event log for every event ZVX fires to it.
#
#   2024-05-01 12:00:00<TAB>ZVXLOAD<TAB>working copy<TAB>saved file
#   <TAB>folder 00000002<TAB>sub-view off
#   <TAB>name<TAB>size bytes<TAB>path<TAB>content type     (one line a selected entry)
#
# ZVX starts it in the application folder (ZVX_HOME) after writing current.zvd and
# selected.zvd there, and waits until PLUGINS/extlock.tmp exists.

# Names and texts are passed through as bytes, whatever their code page.
LC_ALL=C
export LC_ALL

home=${ZVX_HOME:-$PWD}
plugins=$home/PLUGINS
log=${ZVX_EVENTLOG:-$plugins/eventlog.log}

# The lock file is made last, whatever happened, so that ZVX goes on at once.
trap ': > "$plugins/extlock.tmp"' EXIT
trap 'exit 1' HUP INT TERM

# Line N of a hand-over file without its CR, or "(none)" when empty or missing.
handed_over() {
    value=$(sed -n "$2p" "$home/$1" 2>/dev/null | tr -d '\r')
    printf '%s' "${value:-(none)}"
}

# The selected folder, the sub-view flag and each selected entry line, readably.
selection() {
    [ -f "$home/selected.zvd" ] || return 0
    awk 'BEGIN { FS = "\001" }
        { sub(/\r$/, "") }
        NR == 1 { folder = ($0 == "" ? "(none)" : $0); next }
        NR == 2 { printf "\tfolder %s\tsub-view %s\n", folder, ($0 == "1" ? "on" : "off"); next }
        { printf "\t%s\t%s bytes\t%s\t%s\n", $2, $3, $4, $9 }
        END { if (NR == 1) printf "\tfolder %s\n", folder }' "$home/selected.zvd"
}

{
    printf '%s\t%s\t%s\t%s\n' "$(date '+%Y-%m-%d %H:%M:%S')" "$(handed_over current.zvd 1)" \
        "$(handed_over current.zvd 2)" "$(handed_over current.zvd 3)"
    selection
    echo
} >> "$log"
