#!/usr/bin/env bash
# Wall time of the command-line tool making 2000 puzzles of size 17, with
# one job and with one per core. Run after a build; prints the tool's own
# timing line for each.
set -euo pipefail
bin=${1:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/bin}
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
for jobs in 1 "$(nproc)"; do
    printf 'jobs %s: ' "$jobs"
    "$bin/combwise-cli" --home "$bin" create --size 17 --count 2000 --jobs "$jobs" --output "$out/jobs$jobs.txt"
done
