#!/usr/bin/env bash
# Start-up time of the game, from launch to the first board painted and
# saved (`combwise --screenshot`), beside a bare Qt window that opens, paints
# and exits the same way. Runs both alternately under one Xvfb server and
# prints the median of each over N runs (default 11).
set -euo pipefail
bin=${BIN:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/bin}
runs=${1:-11}
if [ -z "${DISPLAY:-}" ]; then
    exec xvfb-run -a -s '-screen 0 1280x900x24' "$0" "$@"
fi
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
cd "$bin"
ms() { local start end; start=$(date +%s%N); "$@" >/dev/null 2>&1; end=$(date +%s%N); echo $(((end - start) / 1000000)); }
game=() bare=()
for _ in $(seq "$runs"); do
    game+=("$(ms ./combwise --home "$bin" --screenshot "$out/game.png" puzzles.txt 1)")
    bare+=("$(ms ./combwise_bare_window "$out/bare.png")")
done
median() { printf '%s\n' "$@" | sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }
g=$(median "${game[@]}")
b=$(median "${bare[@]}")
echo "game to first board: median ${g} ms over $runs runs (${game[*]})"
echo "bare window:         median ${b} ms over $runs runs (${bare[*]})"
awk -v g="$g" -v b="$b" 'BEGIN {printf "ratio: %.2f\n", g / b}'
