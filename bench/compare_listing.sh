#!/usr/bin/env bash
# Times the listing of one folder of a 1,000,000-entry catalogue over 2,000 folders
# against grep counting the same folder's lines: the store's folder listing, the
# document window's listing (ShowEntries) of the folder, and its sub-view of SUB_ID
# (the root "Music" by default, about 60% of all entries). Prints the medians and each
# ratio to grep. The target for the folder listings is a ratio of 1.5 or less; the exit
# status is 1 above it. The sub-view copies far more rows and has no target.
#
#   bench/compare_listing.sh [BUILD_FOLDER] [FOLDER_ID] [SUB_ID]     (RUNS=9 by default)

set -euo pipefail

build=${1:-$(dirname "$0")/../build}
id=${2:-00001000}
sub_id=${3:-00000000}
runs=${RUNS:-9}
catalogue=$build/bench/listing_1m.zvx
list_folder=$build/bin/zvx_list_folder

if [[ ! -f $catalogue ]]; then
    echo "Generating $catalogue ..."
    "$build/bin/zvx_make_catalogue" "$catalogue" 1000000 2000 1
fi

# Both programs read the file from the page cache.
cat "$catalogue" >/dev/null

# GNU grep stops at the first match when its output is /dev/null, so both programs
# write to a real file.
out=$(mktemp)
trap 'rm -f "$out"' EXIT

# The median wall time of a command, in milliseconds.
median_ms() {
    local times=() start end
    for ((i = 0; i < runs; i++)); do
        start=$(date +%s%N)
        "$@" >"$out"
        end=$(date +%s%N)
        times+=($(((end - start) / 1000)))
    done
    printf '%s\n' "${times[@]}" | sort -n | awk '{ t[NR] = $1 } END { printf "%.3f", t[int((NR + 1) / 2)] / 1000 }'
}

export LC_ALL=C
grep_ms=$(median_ms grep -c -a "^$id" "$catalogue")
list_ms=$(median_ms "$list_folder" "$catalogue" "$id")
show_ms=$(median_ms "$list_folder" "$catalogue" "$id" --show)
sub_ms=$(median_ms "$list_folder" "$catalogue" "$sub_id" --sub)

# grep also counts the folder's ID line in the TOC.
echo "folder $id: $("$list_folder" "$catalogue" "$id") entries, grep counts $(grep -c -a "^$id" "$catalogue") lines"
echo "sub-view of $sub_id: $("$list_folder" "$catalogue" "$sub_id" --sub) entries"
echo "grep -c:              $grep_ms ms (median of $runs)"
echo "store listing:        $list_ms ms (median of $runs)"
echo "ShowEntries:          $show_ms ms (median of $runs)"
echo "ShowEntries sub-view: $sub_ms ms (median of $runs)"
awk -v l="$list_ms" -v s="$show_ms" -v v="$sub_ms" -v g="$grep_ms" 'BEGIN {
    printf "ratio store listing / grep: %.2f (target <= 1.5)\n", l / g
    printf "ratio ShowEntries / grep:   %.2f (target <= 1.5)\n", s / g
    printf "ratio sub-view / grep:      %.2f\n", v / g
    exit (l / g > 1.5 || s / g > 1.5) ? 1 : 0
}'
