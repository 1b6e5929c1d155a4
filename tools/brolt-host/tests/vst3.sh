#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# vst3.sh COMMAND...
#
# The plug-in's bundle, driven as a workstation does: it renders the bits that the plug-in model
# renders, whatever the settings, automation, blocks and rates; what it says of itself; and what the
# host says when there is no bundle. The arguments are the command that starts the program.

set -u
. "$(dirname "${BASH_SOURCE[0]}")/cli-kit.bash" "$@"

# A second with two strokes, in numbers of frames that are multiples of no block.
audio | head -c 100002 >"$folder/samples"
bytes=100002
{ wav 1 $bytes; cat "$folder/samples"; } >mono.wav
{ wav 1 $bytes 96000; cat "$folder/samples"; } >mono96.wav
{ wav 2 $((bytes - 2)); head -c $((bytes - 2)) "$folder/samples"; } >stereo.wav
{ wav 2 $((bytes - 2)) 48000; head -c $((bytes - 2)) "$folder/samples"; } >stereo48.wav

# In offline mode the plug-in itself prints each change.
printsNothingElse() { ! grep -qvE '^QMShellVST3::process : [0-9]{8} -> -?[0-9.e+-]+$' "$output"; }
printsNothing() { [ ! -s "$output" ]; }
printsChanges() { [ "$(wc -l <"$output" | tr -d ' ')" = "$1" ] && printsNothingElse; }
identical() { succeeded && printsNothingElse && cmp -s vst3.wav model.wav; }
different() { [ "$(cmp -s "$1" "$2"; echo $?)" = 1 ]; }

# same NAME MODES INPUT OPTION...: in each of the modes the bundle renders what the model renders,
# which stays in model.wav.
same() {
    local name=$1 modes=$2 input=$3 mode
    shift 3
    run render "$input" model.wav --format model --quiet "$@"
    check "$name: the model renders it" succeeded
    for mode in $modes; do
        run render "$input" vst3.wav --mode "$mode" --quiet "$@"
        check "$name: the same bits in $mode mode" identical
    done
}

## The same bits

same 'a mono file' realtime mono.wav
cp model.wav mono-default.wav
run render mono.wav vst3.wav --quiet
check 'the bundle is what is driven when nothing is said' identical
check 'and it says nothing of its own' printsNothing
same 'a stereo file' realtime stereo.wav
cp model.wav default.wav

## A view into the processor

run render stereo.wav vst3.wav --quiet --plot vst3.png --trace-records vst3.txt --set gain=-6
run render stereo.wav model.wav --quiet --plot model.png --trace-records model.txt --set gain=-6 --format model
check 'a plot and a trace leave the bits alone' identical
check 'the trace is the model'"'"'s' cmp -s vst3.txt model.txt
check 'there is a plot' test -s vst3.png

## Settings

settings=(--set afre=150 --set sfre=41.37 --set gain=-3.123 --set osc2=disabled --set wetd=80)
same 'settings' realtime stereo.wav "${settings[@]}" --save-preset some.qmpreset --save-state some.vst3state
cp model.wav settings.wav
check 'settings change the sound' different settings.wav default.wav
same 'bypass' realtime stereo.wav --set mbyp=1
check 'bypass changes the sound' different model.wav default.wav
same 'bypass among settings' realtime mono.wav "${settings[@]}" --set mbyp=Engaged --set mbyp=Bypass
same 'a preset' realtime stereo.wav --preset some.qmpreset
check 'the preset is the settings' cmp -s vst3.wav settings.wav
same 'a preset and settings behind it' realtime stereo.wav --preset some.qmpreset --set gain=6
same 'a state' realtime stereo.wav --state some.vst3state
check 'the state is the settings' cmp -s vst3.wav settings.wav
same 'a state in the other type' realtime mono.wav --state some.vst3state

# From the first frame on, at blocks' edges and inside; more at once than the processor takes at
# once; values between a parameter's steps; switches and the bypass.
cat >moves.txt <<'END'
0     gain -6.1234
0.1   sfre 45
0.1   afre 300.7
0.1   gain 3.333
0.1   wetd 61.239
0.1   rlse 333.3
0.1   attk 7.77
0.2   osc2 Disabled
0.25  mbyp Bypass
0.3   mbyp Engaged
0.3   osc2 Enabled
0.31  dmgn -3.21
0.4   prls 50
0.4   prls 60
0.45  osc1 0
0.5   osc1 1
END
for block in 1 7 512 1000 4096; do
    same "automation in blocks of $block" 'realtime offline' stereo.wav --automate moves.txt --block $block --set mgan=3
done
check 'automation changes the sound' different model.wav default.wav
same 'automation in one block' 'realtime offline' mono.wav --automate moves.txt --block 1048576
run render mono.wav vst3.wav --quiet --mode offline --automate moves.txt --block 64
# prls changes twice in one block, and counts once.
check 'each change of the offline mode is printed' printsChanges 15

same 'a stereo file in mono' realtime stereo.wav --channels 1
same 'a mono file in stereo' 'realtime offline' mono.wav --channels 2 --automate moves.txt
same '48 kHz' 'realtime offline' stereo48.wav --automate moves.txt
same '96 kHz' realtime mono96.wav --set gain=3

mkdir results
run render mono.wav stereo.wav --out-dir results --quiet
check 'a batch renders all its files' succeeded
check 'the first of a batch is as it is alone' cmp -s results/mono.wav mono-default.wav
check 'the second of a batch is as it is alone' cmp -s results/stereo.wav default.wav
rm -r results

## Where the bundle is

bundle=$(dirname "${host[-1]}")/QMBrolt.vst3
name=$'b\xc3\xbcndel mit Leerzeichen'
mkdir "$name"
cp -r "$bundle" "$name/QMBrolt.vst3"
run render stereo.wav vst3.wav --quiet --plugin "$name/QMBrolt.vst3"
check 'a bundle somewhere else' succeeded
check 'renders the same' cmp -s vst3.wav default.wav
run render stereo.wav vst3.wav --quiet --plugin "$name/QMBrolt.vst3/"
check 'a separator behind its name' succeeded
rm -r "$name"

## What it says of itself

run info --format model
check 'info of the model says nothing of the bundle' test "$status" = 0 -a "$(grep -c '^VST3' "$output")" = 0
cp "$output" product.txt
run info
check 'info succeeds' succeeded
check 'the product comes first' cmp -s <(head -n "$(wc -l <product.txt)" "$output") product.txt
says() { # says NAME PATTERN [COUNT]
    check "info: $1" test "$(grep -cE "$2" "$output")" = "${3:-1}"
}
says 'path' '^VST3 +.*[/\\]QMBrolt\.vst3$'
says 'vendor' '^Vendor +Quolm$'
says 'factory flags' '^Flags +Unicode$'
says 'two classes' '^Class +[0-9A-F]{32}$' 2
says 'class of the effect' '^Class +565354514D626C716D2062726F6C7400$'
says 'class for compatibility' '^Class +7A8EA518ECA240369AD492D170AD04FB$'
says 'its category' '^  Category +Audio Module Class$'
says 'its sub-categories' '^  Sub-categories +Fx$'
says 'versions' '^  Version +4\.0\.2\.157$' 2
says 'SDK versions' '^  SDK version +VST 3\.7\.6$' 2
says 'cardinality' '^  Cardinality +many instances$' 2
says 'mono input' '^mono +Mono In +input +main +1 +yes$'
says 'mono output' '^mono +Mono Out +output +main +1 +yes$'
says 'stereo input' '^stereo +Stereo In +input +main +2 +yes$'
says 'stereo output' '^stereo +Stereo Out +output +main +2 +yes$'
says 'latency' '^Latency +0 samples$'
says 'tail' '^Tail +[0-9]+ samples at 44\.1 kHz$'
says 'number of parameters' '^Parameters +15$'
says 'a row a parameter' '^[0-9]+ .* automatable' 15
says 'bypass' '^0 +Master Bypass +Maste +- +1 +0 +automatable, list, bypass$'
says 'a switch' '^7 +Osc 2 Enable +Osc 2 +- +1 +1 +automatable, list$'
says 'a continuous parameter' '^14 +Output Gain +Outpu +[-A-Za-z]+ +0 +0\.5 +automatable$'

## Refused

mkdir -p empty.vst3/Contents text.vst3/Contents/x86_64-linux text.vst3/Contents/x86_64-win
echo 'this is no library' | tee text.vst3/Contents/x86_64-linux/text.so >text.vst3/Contents/x86_64-win/text.vst3

refuses 'a bundle that is missing' '.*none\.vst3: no such VST3 bundle' render mono.wav out.wav --plugin none.vst3
refuses 'a bundle that is missing, for a batch' '.*none\.vst3: no such VST3 bundle' render mono.wav stereo.wav --out-dir empty.vst3 --plugin none.vst3
refuses 'nothing is saved without the bundle' '.*none\.vst3: no such VST3 bundle' render mono.wav out.wav --plugin none.vst3 --save-state x.vst3state
refuses 'a file as a bundle' '.*mono\.wav: is not a VST3 bundle, which is a folder' render mono.wav out.wav --plugin mono.wav
refuses 'a folder that is no bundle' '.*empty\.vst3: is not a VST3 bundle for this system: it has no Contents' render mono.wav out.wav --plugin empty.vst3
refuses 'a bundle whose library is none' '.*text\.vst3: cannot be loaded: ' render mono.wav out.wav --plugin text.vst3
if [ "$windows" = no ]; then
    mkdir -p other.vst3/Contents/x86_64-linux
    cp "$(ldd "${host[-1]}" | sed -n 's/^.*libm\.so\.6 => \([^ ]*\).*$/\1/p')" other.vst3/Contents/x86_64-linux/other.so
    refuses 'a library that is no plug-in' ".*other\.vst3: cannot be loaded: .*'ModuleEntry'" render mono.wav out.wav --plugin other.vst3
    rm -r other.vst3
else
    skip 'a library that is no plug-in' 'the native run shows it'
fi
refuses 'a mode that does not exist' '--mode slow: must be realtime or offline' render mono.wav out.wav --mode slow
refuses 'a form that does not exist' '--format tape: must be vst3 or model' render mono.wav out.wav --format tape
refuses 'a mode of the model' '--mode offline: is for --format vst3 alone' render mono.wav out.wav --mode offline --format model
refuses 'a bundle for the model' '--plugin none\.vst3: is for --format vst3 alone' render mono.wav out.wav --plugin none.vst3 --format model
run info --plugin none.vst3
infoWithoutBundle() {
    [ "$status" = 2 ] && [ "$(errorLines)" = 1 ] && cmp -s "$output" product.txt &&
        grep -qE '^brolt-host: .*none\.vst3: no such VST3 bundle$' "$errors"
}
check 'info without a bundle still tells of the product' infoWithoutBundle

echo "$passed passed, $failed failed, $skipped skipped"
[ "$failed" = 0 ]
