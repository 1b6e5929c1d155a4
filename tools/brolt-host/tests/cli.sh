#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# cli.sh COMMAND...
#
# The host as its user meets it: exit statuses, what it says and where, which files are there
# afterwards, and renders whose bits must be the same on every platform. The arguments are the
# command that starts the program.

set -u
. "$(dirname "${BASH_SOURCE[0]}")/cli-kit.bash" "$@"

audio >"$folder/samples"
bytes=$(wc -c <"$folder/samples" | tr -d ' ')
{ wav 1 "$bytes"; cat "$folder/samples"; } >mono.wav
{ wav 2 "$bytes"; cat "$folder/samples"; } >stereo.wav
frames=$((bytes / 2))

# digest FILE FRAMES-TIMES-CHANNELS: of the float samples at the file's end.
digest() { tail -c $(($2 * 4)) "$1" | sha256sum | cut -d' ' -f1; }

## Bad input

: >empty.wav
echo 'this is no audio at all, but long enough to be looked at' >text.wav
head -c 30 mono.wav >header.wav
head -c 50000 mono.wav >cut.wav
wav 1 0 >silent.wav
{ wav 3 600; head -c 600 "$folder/samples"; } >three.wav
mkdir folder.wav
printf '1 gain -6\n2 gian 3\n' >bad.txt
printf -- '-1 gain 3\n' >early.txt

refuses 'a missing file' 'missing\.wav: no such file' render missing.wav out.wav
refuses 'an empty file' 'empty\.wav: is empty' render empty.wav out.wav
refuses 'a file that is no audio' 'text\.wav: cannot be read as audio' render text.wav out.wav
refuses 'half a header' 'header\.wav: cannot be read as audio' render header.wav out.wav
refuses 'a file that was cut off' 'cut\.wav: is damaged: it announces 705600 bytes' render cut.wav out.wav
refuses 'a file without frames' 'silent\.wav: holds no audio' render silent.wav out.wav
refuses 'three channels' 'three\.wav: has 3 channels' render three.wav out.wav
refuses 'a folder as input' 'folder\.wav: is a folder' render folder.wav out.wav
refuses 'a folder as output' 'folder\.wav: is a folder' render mono.wav folder.wav
refuses 'an output in a folder that is missing' 'none/out\.wav: its folder does not exist' render mono.wav none/out.wav
refuses 'an output folder that is missing' 'none: is not a folder' render mono.wav stereo.wav --out-dir none
refuses 'an unknown identifier' "--set gian=1: unknown parameter 'gian'; known are: mbyp, afre, .*, gain" render mono.wav out.wav --set gian=1
refuses 'a value that is no number' "--set gain=loud: 'loud' is not a value" render mono.wav out.wav --set gain=loud
refuses 'a number with something behind it' "--set gain=1dB: " render mono.wav out.wav --set gain=1dB
refuses 'not a number' "--set gain=nan: " render mono.wav out.wav --set gain=nan
refuses 'an empty value' "--set gain=: " render mono.wav out.wav --set gain=
refuses 'a setting without a value' "--set gain: write it as ID=VALUE" render mono.wav out.wav --set gain
refuses 'a block of 0' '--block 0: must be a whole number from 1' render mono.wav out.wav --block 0
refuses 'a negative block' '--block -64: must be a whole number from 1' render mono.wav out.wav --block -64
refuses 'a block that is no number' '--block much: must be' render mono.wav out.wav --block much
refuses 'three channels asked for' '--channels 3: must be 1 or 2' render mono.wav out.wav --channels 3
refuses 'a form that is not built' '--format vst2: is not available in this build' render mono.wav out.wav --format vst2
refuses 'automation that is missing' 'none\.txt: no such file' render mono.wav out.wav --automate none.txt
refuses 'a mistake in automation' "bad\.txt:2: unknown parameter 'gian'" render mono.wav out.wav --automate bad.txt
refuses 'automation before the beginning' 'early\.txt:1: the time -1 s' render mono.wav out.wav --automate early.txt
refuses 'a trace that cannot be written' 'none/t\.txt: its folder' render mono.wav out.wav --trace-records none/t.txt
refuses 'a plot that cannot be written' 'none/p\.png: its folder' render mono.wav out.wav --plot none/p.png
refuses 'one name for two outputs' 'out\.wav: would be written twice' render mono.wav out.wav --plot out.wav
refuses 'an unknown option' '.*--loud' render mono.wav out.wav --loud
refuses 'one file alone' 'render: give one input and one output' render mono.wav
refuses 'an unknown command' "unknown command 'play'" play mono.wav
refuses 'no command' '' 

# Root may read and write everything: such cases need another user, who must be able to start the
# program. The tests' screen would not let that user in, which the X library says on standard error.
nobody=()
if [ "$windows" = no ] && [ "$(id -u)" = 0 ]; then
    nobody=(env -u DISPLAY setpriv --reuid=65534 --regid=65534 --clear-groups)
    chmod 755 "$folder" "$folder/work"
fi
if [ "$windows" = no ] && ${nobody[@]+"${nobody[@]}"} "${host[@]}" --version >/dev/null 2>&1; then
    everyone=("${host[@]}")
    host=(${nobody[@]+"${nobody[@]}"} "${host[@]}")
    cp mono.wav secret.wav
    chmod 000 secret.wav
    mkdir closed
    chmod 555 closed
    refuses 'a file that may not be read' 'secret\.wav: Permission denied' render secret.wav out.wav
    refuses 'an output that may not be written' 'closed/out\.wav: Permission denied' render mono.wav closed/out.wav
    host=("${everyone[@]}")
    rm -f secret.wav
    rmdir closed
elif [ "$windows" = no ]; then
    skip 'a file that may not be read' 'no other user than root can start the program here'
    skip 'an output that may not be written' 'no other user than root can start the program here'
else
    skip 'a file that may not be read' 'Wine runs as a user who may read everything'
    skip 'an output that may not be written' 'Wine runs as a user who may write everywhere'
fi

if [ "$windows" = no ]; then
    refuses 'a device as output' '/dev/full: is not a regular file' render mono.wav /dev/full
    mkfifo pipe.wav
    refuses 'a pipe as input' 'pipe\.wav: is not a regular file' render pipe.wav out.wav
    rm pipe.wav
    echo old >out.wav
    before=$(listing)
    # No file may grow past 64 KB here, which fails as a full disk does.
    (ulimit -f 64; "${host[@]}" render mono.wav out.wav >"$output" 2>"$errors")
    status=$?
    check 'a disk that is full' refused 'out\.wav: '
    check 'after a failure the old file is untouched' test "$(cat out.wav)" = old
    rm out.wav
else
    skip 'a device as output' 'Windows has no such files'
    skip 'a pipe as input' 'Windows has no such files'
    skip 'a disk that is full' 'no limit on file sizes under Wine'
    skip 'after a failure the old file is untouched' 'no limit on file sizes under Wine'
fi

## Values outside their range

run render mono.wav out.wav --quiet --set gain=99
check 'a value beyond the range is clamped and said so' succeededSaying '--set gain=99: gain 99 dB is outside -24 to 24 dB; using 24 dB$'
cp out.wav loud.wav
run render mono.wav out.wav --quiet --set gain=24
check 'a value at the end of the range is not' succeeded
check 'the clamped value is the end of the range' cmp -s out.wav loud.wav
rm out.wav loud.wav

## Renders

run render mono.wav out.wav --trace-records trace.txt
check 'a mono render succeeds' succeeded
check 'it reports one line' test "$(wc -l <"$output" | tr -d ' ')" = 1
check 'the output has the frames of the input' test "$(wc -c <out.wav | tr -d ' ')" -ge $((frames * 4 + 44))
check 'the record of the default settings' test "$(cat trace.txt)" = '0 3f800000 3f800000 3f800000 3e809bcc 472c4400 00000002 3f7ffdfd 3f7fe931 3f7ffbfa 3a83126f 3cd318a1 39c37efd 3cd318a1 39c37efd 3f7de425 3f7ebc49 3f7bc6df 3f7d7809'
check 'the bits of a mono render' test "$(digest out.wav $frames)" = 97207077a940ca6ddc3324fcf8261a25b2be66a6c9a9020569feeec10d29f0ef
run render mono.wav bundle.wav --quiet
check 'the bundle renders them too' cmp -s bundle.wav out.wav

cp mono.wav same.wav
run render same.wav same.wav --quiet
check 'a file may be its own output' cmp -s same.wav out.wav
check 'quietly nothing is said' test ! -s "$output" -a ! -s "$errors"

printf '# pitch and level on the move\n0.5 sfre 45\n0.5 afre 300\n0.5 gain -3\n0.5 wetd 60\n1.25 osc2 Disabled\n1.3 mbyp bypass\n1.4 mbyp Engaged\n2 rlse 500\n99 gain 0\n' >moves.txt
run render stereo.wav out.wav --block 64 --automate moves.txt --set mgan=3 --set osc2=enabled --trace-records trace.txt
check 'changes behind the end are left out and said so' succeededSaying 'moves\.txt: 1 of its changes lie behind the end of stereo\.wav'
check 'the bits of an automated stereo render' test "$(digest out.wav $frames)" = 95e97390891c254a1874a4fb0ab91421b426fcf27caeb045f614e75bd0b5c6dd
run render stereo.wav bundle.wav --quiet --block 64 --automate moves.txt --set mgan=3 --set osc2=enabled
check 'the bundle renders them too, automated' cmp -s bundle.wav out.wav
rm bundle.wav
# 22050 is in the block from 22016; a burst of four changes keeps the first two records and the last.
check 'the frames of its records' test "$(cut -d' ' -f1 trace.txt | tr '\n' ' ')" = '0 22016 22080 22144 55104 57280 61696 88192 '
check 'a trace line is a frame and eighteen words' test "$(grep -cvE '^[0-9]+( [0-9a-f]{8}){18}$' trace.txt)" = 0
check 'the bits of its records' test "$(sha256sum <trace.txt | cut -d' ' -f1)" = bdf1a92026740c81496236a998885c81064f026364c9b45f925f8d1b907b851e

run render stereo.wav out.wav --quiet --bits 16 --set gain=24
check 'clipping is said' succeededSaying 'out\.wav: [0-9]+ samples are beyond full scale and were clipped'
check 'a 16-bit file holds two bytes a sample' test "$(wc -c <out.wav | tr -d ' ')" = $((44 + frames * 2))

run render mono.wav out.wav --quiet --plot plot.png
check 'a plot is a PNG file' test "$(head -c 4 plot.png | tail -c 3)" = PNG
rm -f out.wav plot.png trace.txt same.wav

## Batches

mkdir results
run render mono.wav missing.wav empty.wav stereo.wav --out-dir results --quiet
batchRefused() {
    [ "$status" = 2 ] && [ "$(errorLines)" = 3 ] && grep -q 'missing.wav: no such file' "$errors" &&
        grep -q 'empty.wav: is empty' "$errors" &&
        [ "$(tail -n 1 "$errors")" = 'brolt-host: 2 of 4 files could not be rendered' ]
}
check 'a batch goes on after failures and ends with status 2' batchRefused
check 'a batch leaves the files that could be rendered' test "$(ls -A results | tr '\n' ' ')" = 'mono.wav stereo.wav '
mkdir other
cp mono.wav other/
before=$(listing)
run render mono.wav other/mono.wav --out-dir results
check 'two files of one name in a batch' refused 'results[/\\]mono\.wav: would be written twice'
rm -rf results other

## Names

mkdir 'with blank'
name=$'with blank/k\xc3\xb6ln.wav'
cp mono.wav "$name"
run render "$name" "$name"
check 'blanks and letters beyond ASCII in names' succeeded
check 'a name is said as it was typed' grep -q "^$name: " "$output"
cp mono.wav -- -dash.wav
run render --quiet -- -dash.wav -out.wav
check 'a name that begins like an option' test "$status" = 0 -a -s ./-out.wav
rm -rf 'with blank' ./-dash.wav ./-out.wav

## The other commands

run params
check 'params lists fifteen parameters below its heading' test "$status" = 0 -a "$(wc -l <"$output" | tr -d ' ')" = 16
check 'params shows texts' grep -qE '^afre +Osc 1 Attack Frequency +Hz +1 to 440 +100 +1 Hz +100 Hz +440 Hz$' "$output"
run params --tsv
check 'params for programs has thirteen columns' test "$(awk -F'\t' '{ print NF }' "$output" | sort -u)" = 13
run info
check 'info tells product and version' test "$status" = 0 -a "$(grep -cE '^(Product +QM Brolt|Version +4\.0\.2\.157)$' "$output")" = 2
run --version
check 'version' test "$(cat "$output")" = 'brolt-host 4.0.2.157'
run render --help
check 'help is printed and no error' test "$status" = 0 -a -s "$output" -a ! -s "$errors"

## Interruption

# interrupted SIGNAL: a render that would take minutes is ended by a signal once its file is begun.
interrupted() {
    local signal=$1 pid
    "${host[@]}" render long.wav out.wav --block 1 >"$output" 2>"$errors" &
    pid=$!
    while kill -0 "$pid" 2>/dev/null && ! ls .brolt-host-* >/dev/null 2>&1; do :; done
    kill -s "$signal" "$pid"
    wait "$pid"
    status=$?
    [ "$status" = $((128 + $(kill -l "$signal"))) ] && [ "$(listing)" = "$before" ] && [ "$(errorLines)" = 1 ]
}

if [ "$windows" = no ]; then
    # Job control, since a shell lets its other background jobs ignore SIGINT.
    set -m
    { wav 1 400000000; head -c 400000000 /dev/zero; } >long.wav
    before=$(listing)
    check 'SIGTERM removes the unfinished file' interrupted TERM
    check 'SIGINT removes the unfinished file' interrupted INT
    rm long.wav
    set +m
else
    skip 'SIGTERM removes the unfinished file' 'Wine does not hand signals on'
    skip 'SIGINT removes the unfinished file' 'Wine does not hand signals on'
fi

check 'nothing is left behind' test "$(listing)" = 'bad.txt cut.wav early.txt empty.wav folder.wav header.wav mono.wav moves.txt silent.wav stereo.wav text.wav three.wav '

echo "$passed passed, $failed failed, $skipped skipped"
[ "$failed" = 0 ]
