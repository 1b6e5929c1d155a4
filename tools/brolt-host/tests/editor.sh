#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# editor.sh COMMAND...
#
# The plug-in's editor in a window and in pictures, as the host's user sees it: what is refused, how
# the window comes and goes, and that pictures show something. Windows want a screen, which the test
# runner provides. The arguments are the command that starts the program.

set -u
. "$(dirname "${BASH_SOURCE[0]}")/cli-kit.bash" "$@"

audio | head -c 100000 >"$folder/samples"
{ wav 1 100000; cat "$folder/samples"; } >mono.wav
{ wav 2 100000; cat "$folder/samples"; } >stereo.wav

## Bad input

refuses 'a missing file' 'missing\.wav: no such file' editor missing.wav
refuses 'two files' '.*two\.wav' editor mono.wav two.wav
refuses 'an unknown identifier' "--set gian=1: unknown parameter 'gian'" editor --set gian=1
refuses 'a size of nothing' '--scale 0: must be a whole number of percent' editor --scale 0
refuses 'no time at all' '--seconds 0: must be a number above 0' editor --seconds 0
refuses 'three channels' '--channels 3: must be 1 or 2' editor --channels 3
refuses 'another form' '.*--format' editor --format model
refuses 'a preset that is missing' 'none\.qmpreset: no such file' editor --preset none.qmpreset
refuses 'a picture without a file' '.*OUT' screenshot
refuses 'a length of nothing' 'screenshot: --seconds is a length of --input' screenshot out.png --seconds 1
refuses 'a picture in a folder that is missing' 'none/out\.png: its folder does not exist' screenshot none/out.png
refuses 'a picture in place of its input' 'mono\.wav: is the input file' screenshot mono.wav --input mono.wav
refuses 'a sound that is missing' 'missing\.wav: no such file' screenshot out.png --input missing.wav
refuses 'a picture of a missing bundle' '.*none\.vst3: no such VST3 bundle' screenshot out.png --plugin none.vst3

if [ "$windows" = no ]; then
    everyone=("${host[@]}")
    host=(env -u DISPLAY "${everyone[@]}")
    refuses 'a window without a screen' 'there is no screen to open a window on \(DISPLAY is not set\)' editor
    host=(env DISPLAY=:54321 "${everyone[@]}")
    refuses 'a screen that does not answer' 'there is no screen to open a window on \(DISPLAY :54321 cannot be reached\)' editor
    host=("${everyone[@]}")
else
    skip 'a window without a screen' 'Windows has one'
    skip 'a screen that does not answer' 'Windows has one'
fi

## Pictures

# bytesAt FILE OFFSET COUNT: one big-endian number.
bytesAt() { echo $((0x$(od -An -v -tx1 -j "$2" -N "$3" "$1" | tr -d ' \n'))); }
sizeOf() { echo "$(bytesAt "$1" 16 4) x $(bytesAt "$1" 20 4)"; }

# manyColours FILE: the compressed rows come directly behind the head; gzip takes them out once they
# have a head of its own. In a picture of one colour few bytes differ, however the rows are filtered;
# its bytes of 0 are left out, since most of any picture is like its neighbours.
manyColours() {
    [ "$({ printf '\x1f\x8b\x08\0\0\0\0\0\0\3'; tail -c +44 "$1"; } | gzip -dc 2>/dev/null |
        tr -d '\0' | head -c 200000 | od -An -v -tx1 -w1 | sort -u | wc -l)" -gt 32 ]
}

# pictured FILE: the host succeeded and told the size of a picture that shows something.
pictured() {
    succeeded && [ "$(cat "$output")" = "$1: $(sizeOf "$1") pixels" ] && manyColours "$1"
}
larger() { [ "$(bytesAt "$1" 16 4)" -gt "$(bytesAt "$2" 16 4)" ] && [ "$(bytesAt "$1" 20 4)" -gt "$(bytesAt "$2" 20 4)" ]; }
different() { [ "$(cmp -s "$1" "$2"; echo $?)" = 1 ]; }

# picture NAME FILE OPTION...: a screenshot, which must show something.
picture() {
    local name=$1 file=$2
    shift 2
    run screenshot "$file" "$@"
    check "a picture $name" pictured "$file"
}

picture 'of the editor' plain.png
picture 'once more' again.png
check 'the same settings give the same picture' cmp -s plain.png again.png
picture 'of other settings' set.png --set sfre=20 --set gain=-12 --set osc2=Disabled
check 'settings show' different plain.png set.png
picture 'in its design size' normal.png --scale 100
picture 'in twice its size' double.png --scale 200
check 'scale enlarges' larger double.png normal.png
picture 'of the generic editor' generic.png --generic
check 'the product has an editor of its own' different plain.png generic.png
picture 'of the mono type' mono.png --channels 1
picture 'after some sound' sound.png --input stereo.wav --seconds 0.1
check 'sound shows' different plain.png sound.png
picture 'after all of the sound' all.png --input mono.wav --block 64
cp plain.png kept.png
run screenshot kept.png --set gain=-12 --plugin none.vst3
check 'after a failure the old picture is untouched' cmp -s kept.png plain.png
rm -f ./*.png

## The window

stays() { [ "$status" = 0 ] && [ ! -s "$output" ] && [ ! -s "$errors" ] && [ $((end - begin)) -ge 1000 ]; }

# opens NAME OPTION...: the window stays open for its second.
opens() {
    local name=$1
    shift
    begin=$(date +%s%3N)
    run editor --seconds 1 "$@"
    end=$(date +%s%3N)
    check "$name" stays
}

# ended FUNCTION: an editor is ended from outside, once its window is there; leaves $status. The
# function finds $pid and $window.
ended() {
    local pid window=
    "${host[@]}" editor --seconds 60 --print-edits >"$output" 2>"$errors" &
    pid=$!
    while kill -0 "$pid" 2>/dev/null && [ -z "$window" ]; do
        window=$(xdotool search --onlyvisible --name '^QM Brolt$' 2>/dev/null | head -n 1)
    done
    [ -z "$window" ] || "$@"
    wait "$pid"
    status=$?
}
clickClose() { xdotool windowactivate --sync "$window" key alt+F4; }
endedByWindow() {
    ended clickClose
    [ "$status" = 0 ] && [ ! -s "$output" ] && [ ! -s "$errors" ]
}
sendSignal() { kill -s "$signal" "$pid"; }
endedBySignal() {
    local signal=$1
    ended sendSignal
    [ "$status" = $((128 + $(kill -l "$1"))) ] && [ "$(errorLines)" = 1 ]
}

if [ "$windows" = no ] && [ -z "${DISPLAY:-}" ]; then
    skip 'an editor in a window' 'there is no screen (DISPLAY is not set)'
else
    opens 'an editor opens and closes by itself'
    opens 'an editor with sound' stereo.wav --print-edits
    opens 'an editor with sound for the mono type' stereo.wav --channels 1 --block 64
    opens 'an editor in another size' --scale 150
    opens 'the generic editor' --generic --set gain=-6
fi

# Keys go to whatever has the focus: only on a screen where nobody works.
if [ "$windows" = no ] && [ -n "${DISPLAY:-}" ] && [ "${BROLT_TEST_DISPLAY:-}" = "$DISPLAY" ]; then
    # Job control, since a shell lets its other background jobs ignore SIGINT.
    set -m
    check 'the close button ends the editor' endedByWindow
    check 'SIGINT ends the editor' endedBySignal INT
    check 'SIGTERM ends the editor' endedBySignal TERM
    set +m
else
    skip 'an editor that is ended from outside' 'it wants the screen that scripts/run-tests makes on Linux'
fi

check 'nothing is left behind' test "$(listing)" = 'mono.wav stereo.wav '

echo "$passed passed, $failed failed, $skipped skipped"
[ "$failed" = 0 ]
