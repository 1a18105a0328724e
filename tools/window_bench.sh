#!/usr/bin/env bash
# Time from launch to the first painted table, and resident memory at the
# table: starts `holdem --quit-after-first-paint` RUNS times under one virtual
# display and prints the medians. Figures on a shared machine are noisy.
set -euo pipefail
BIN=${1:-build/bin/holdem}
RUNS=${RUNS:-9}
[ -x "$BIN" ] || { echo "window_bench: $BIN not built" >&2; exit 1; }
command -v Xvfb >/dev/null || { echo "window_bench: Xvfb is not installed (make deps)" >&2; exit 1; }
[ -x /usr/bin/time ] || { echo "window_bench: /usr/bin/time is not installed (make deps)" >&2; exit 1; }

# One display for every run, so that its start-up is not timed.
for n in $(seq 90 140); do [ -e /tmp/.X11-unix/X$n ] || [ -e /tmp/.X$n-lock ] || break; done
Xvfb :$n -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
XVFB=$!
trap 'kill $XVFB 2>/dev/null || true' EXIT
for _ in $(seq 50); do [ -e /tmp/.X11-unix/X$n ] && break; sleep 0.1; done

# Wall time is what a player waits; processor time (user + system) is what
# the program itself spends, and tells more on a busy machine.
times=() cpus=() mems=()
cpu=$(mktemp)
for _ in $(seq "$RUNS"); do
    start=$(date +%s%N)
    out=$(DISPLAY=:$n QT_QPA_PLATFORM=xcb /usr/bin/time -o "$cpu" -f '%U %S' "$BIN" --quit-after-first-paint 2>/dev/null)
    end=$(date +%s%N)
    times+=($(((end - start) / 1000000)))
    cpus+=("$(awk '{printf "%d", ($1 + $2) * 1000}' "$cpu")")
    mems+=("$(sed -n 's/^rss-kb: //p' <<<"$out")")
done
rm -f "$cpu"
median() { printf '%s\n' "$@" | sort -n | awk '{a[NR]=$1} END {print a[int((NR + 1) / 2)]}'; }
ms=$(median "${times[@]}")
kb=$(median "${mems[@]}")
echo "runs: $RUNS (ms: ${times[*]})"
echo "first painted table: ${ms} ms (median wall time; $(median "${cpus[@]}") ms processor time)"
echo "memory at the table: $((kb / 1024)) MB (median RSS, ${kb} kB)"
