#!/usr/bin/env bash
# Makes the twelve sounds of the game into assets/sounds/NAME.wav: 16-bit mono PCM,
# synthesised with sox and spoken by espeak-ng. Both are generator tools only, so
# they are installed here when missing rather than by `make deps`.
#
#   tools/gen_sounds.sh [output folder]
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
out=${1:-$root/assets/sounds}
mkdir -p "$out"

for tool in sox:sox espeak-ng:espeak-ng; do
    command -v "${tool%%:*}" >/dev/null && continue
    sudo=$([ "$(id -u)" = 0 ] || echo sudo)
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${tool#*:}"
done

tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# -R makes the noise generators and the dither repeatable, so a rerun gives the same files.
sx() { sox -R -V1 "$@"; }

# A synthesised piece at 44.1 kHz: tone FILE LENGTH SYNTH-AND-EFFECTS...
tone() {
    local file=$1 length=$2
    shift 2
    sx -n -r 44100 -c 1 -b 16 "$tmp/$file" synth "$length" "$@"
}

# The finished sound: mono, 16-bit, at RATE, normalised just below full scale, with
# silence of TAIL seconds at the end: finish NAME RATE TAIL [-m] INPUT...
finish() {
    local name=$1 rate=$2 tail=$3
    shift 3
    sx "$@" -r "$rate" -c 1 -b 16 -e signed-integer "$out/$name.wav" gain -n -1 pad 0 "$tail"
}

# A spoken line at 44.1 kHz: speak FILE PITCH SPEED TEXT
speak() {
    espeak-ng -v en-us -p "$2" -s "$3" -w "$tmp/raw_$1" "$4"
    sx "$tmp/raw_$1" -r 44100 -c 1 -b 16 "$tmp/$1" silence 1 0.01 0.5% reverse silence 1 0.01 0.5% fade t 0.03 reverse fade t 0.005
}

# ---- Table sounds ----------------------------------------------------------------

# A button click: a tick of noise over a short plucked tone.
sx -n -r 22050 -c 1 -b 16 "$tmp/tick.wav" synth 0.006 whitenoise highpass 2000 pad 0 0.043
sx -n -r 22050 -c 1 -b 16 "$tmp/body.wav" synth 0.049 pluck 1700 fade l 0 0.049 0.046
finish BUTTONCLICK 22050 0 -m "$tmp/tick.wav" "$tmp/body.wav"

# A card flicked onto the felt: a snap, then a short brush of filtered noise.
tone snap.wav 0.012 whitenoise highpass 3000 fade l 0.001 0.012 0.01 pad 0 0.166
tone brush.wav 0.178 pinknoise highpass 700 lowpass 5000 fade l 0.006 0.178 0.17 vol 0.7
finish DEAL 44100 0 -m "$tmp/snap.wav" "$tmp/brush.wav"

# A hand won: a rising chime, C E G C.
notes=()
delay=0
for freq in 1046.5 1318.5 1568 2093; do
    tone "chime_$freq.wav" 0.36 pluck "$freq" fade l 0.002 0.36 0.34 pad "$delay" 0
    notes+=("$tmp/chime_$freq.wav")
    delay=$(awk -v d="$delay" 'BEGIN { printf "%.2f", d + 0.05 }')
done
sx -m "${notes[@]}" "$tmp/won.wav" trim 0 0.513
finish WONHAND 44100 0 "$tmp/won.wav"

# A hand lost: one low note that sinks.
tone lost.wav 0.198 triangle 196:150 lowpass 1500 fade h 0.004 0.198 0.14
finish LOSTHAND 44100 0 "$tmp/lost.wav"

# ---- Players moved to the user's table: a two-tone chime, then the number spoken --

tone ding.wav 0.22 pluck 1318.5 fade l 0.002 0.22 0.2
tone dong.wav 0.3 pluck 1046.5 fade l 0.002 0.3 0.28
sx "$tmp/ding.wav" "$tmp/dong.wav" "$tmp/dingdong.wav"
moved=(MOVED:"One player has moved to your table."
       TWOMOVED:"Two players have moved to your table."
       THREEMOVED:"Three players have moved to your table."
       FOURMOVED:"Four players have moved to your table."
       FIVEMOVED:"Five players have moved to your table."
       SIXMOVED:"Six players have moved to your table.")
for entry in "${moved[@]}"; do
    name=${entry%%:*}
    speak "$name.wav" 50 165 "${entry#*:}"
    finish "$name" 44100 0.15 "$tmp/dingdong.wav" "$tmp/$name.wav"
done

# ---- The end of the game ---------------------------------------------------------

# Game over: three falling notes, then the words, slow and low.
tone fall1.wav 0.32 sawtooth 392 lowpass 1200 fade h 0.01 0.32 0.08
tone fall2.wav 0.32 sawtooth 329.6 lowpass 1100 fade h 0.01 0.32 0.08
tone fall3.wav 1.0 sawtooth 261.6 lowpass 900 fade h 0.01 1.0 0.8
speak over.wav 30 115 "Game over."
sx "$tmp/fall1.wav" "$tmp/fall2.wav" "$tmp/fall3.wav" "$tmp/fall.wav" vol 0.6
sx -n -r 44100 -c 1 -b 16 "$tmp/gap.wav" trim 0 0.25
finish GAMEOVER 44100 0.6 "$tmp/fall.wav" "$tmp/gap.wav" "$tmp/over.wav"

# The tournament won: a brass fanfare, then the news.
fanfare=()
k=0
for note in 392:0.14 523.3:0.14 659.3:0.14 784:0.42 659.3:0.14 784:1.3; do
    freq=${note%%:*}
    length=${note#*:}
    tone "brass_$k.wav" "$length" sawtooth "$freq" lowpass 2400 lowpass 3000 fade h 0.012 "$length" 0.06 vol 0.5
    fanfare+=("$tmp/brass_$k.wav")
    k=$((k + 1))
done
sx "${fanfare[@]}" "$tmp/fanfare.wav"
speak won.wav 60 150 "You won the tournament!"
finish WIN 44100 0.8 "$tmp/fanfare.wav" "$tmp/gap.wav" "$tmp/won.wav"

for f in "$out"/*.wav; do
    printf '%-14s %s\n' "$(basename "$f" .wav)" "$(soxi "$f" | awk -F': ' '/Sample Rate|Channels|Precision|Duration/ {printf "%s  ", $2}')"
done
