#!/usr/bin/env bash
# Times the listing of one folder of a 1,000,000-entry catalogue over 2,000 folders
# (zvx_list_folder, the store's folder listing) against grep counting the same folder's
# lines, and prints both medians and their ratio. The target is a ratio of 1.5 or less;
# the exit status is 1 above it.
#
#   bench/compare_listing.sh [BUILD_FOLDER] [FOLDER_ID]     (RUNS=9 by default)

set -euo pipefail

build=${1:-$(dirname "$0")/../build}
id=${2:-00001000}
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

# grep also counts the folder's ID line in the TOC.
echo "folder $id: $("$list_folder" "$catalogue" "$id") entries, grep counts $(grep -c -a "^$id" "$catalogue") lines"
echo "grep -c:         $grep_ms ms (median of $runs)"
echo "zvx_list_folder: $list_ms ms (median of $runs)"
awk -v l="$list_ms" -v g="$grep_ms" 'BEGIN {
    r = l / g
    printf "ratio: %.2f (target <= 1.5)\n", r
    exit r > 1.5 ? 1 : 0
}'
