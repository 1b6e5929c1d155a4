#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# presets.sh COMMAND...
#
# Presets and saved states as the host's user meets them: what one run saves, others list, show,
# convert and render to the same bits. The arguments are the command that starts the program.

set -u
. "$(dirname "${BASH_SOURCE[0]}")/cli-kit.bash" "$@"

audio >"$folder/samples"
bytes=$(wc -c <"$folder/samples" | tr -d ' ')
{ wav 1 "$bytes"; cat "$folder/samples"; } >mono.wav
{ wav 2 "$bytes"; cat "$folder/samples"; } >stereo.wav

settings=(--set afre=150 --set sfre=41.5 --set gain=-3 --set osc2=0 --set wetd=80)
preset='Sub für Kick.qmpreset'

run render stereo.wav first.wav --quiet "${settings[@]}" --save-preset "$preset" --save-state first.vst3state
check 'a render saves its settings' succeeded
run render mono.wav mono-first.wav --quiet "${settings[@]}"

## Shown and listed

run preset show "$preset"
check 'a preset has the name of its file' grep -qx 'Name        Sub für Kick' "$output"
check 'its values have names and units' grep -qE "^'sfre'  Osc 1 Sustain Frequency +41\.5 +41\.5 Hz" "$output"
check 'it holds fifteen values' test "$(grep -cE "^'....'" "$output")" = 15
check 'its extension is shown' grep -q '"mSnapshotPopulated"' "$output"
identifier=$(sed -n 's/^Identifier  //p' "$output")
check 'it has an identifier' grep -qE '^0x8[0-9A-F]{15}$' <<<"$identifier"
run preset show first.vst3state
check 'a state is shown too' grep -qx 'Form        vst3' "$output"

mkdir -p factory 'user/Über Bass'
cp "$preset" "user/Über Bass/one.qmpreset"
cp "$preset" "factory/two.qmpreset"
head -c 20 "$preset" >user/damaged.qmpreset
echo 'no preset' >user/notes.txt
run preset list --user user --factory factory
check 'the list has a heading and two presets' test "$status" = 0 -a "$(wc -l <"$output" | tr -d ' ')" = 3
check 'a preset is listed by folder' grep -qE "^User +Über Bass +one +$identifier" "$output"
check 'factory presets come first' grep -qE "^Factory +- +two +$identifier" <(sed -n 2p "$output")
run preset list --user user --factory factory --tsv
check 'the list for programs has four columns' test "$(awk -F'\t' '{ print NF }' "$output" | sort -u)" = 4
check 'listing changes no file' cmp -s "$preset" "user/Über Bass/one.qmpreset"

## Converted, and rendered from

for form in vst3state vst2chunk aaxchunk; do
    run preset convert "$preset" "state.$form"
    check "a preset becomes a $form" succeeded
    run preset convert "state.$form" "from-$form.qmpreset"
    check "a $form becomes a preset again, to the same bytes" cmp -s "from-$form.qmpreset" "$preset"
    run render stereo.wav again.wav --quiet --state "state.$form"
    check "a $form renders the same bits" cmp -s again.wav first.wav
done
run preset convert "$preset" state.any --to vst2
check 'a form may be named' cmp -s state.any state.vst2chunk
run render stereo.wav again.wav --quiet --preset "$preset"
check 'a preset renders the same bits' cmp -s again.wav first.wav
run render stereo.wav again.wav --quiet --state first.vst3state
check 'the saved state renders the same bits' cmp -s again.wav first.wav
run render mono.wav again.wav --quiet --preset "$preset"
check 'and in the mono type' cmp -s again.wav mono-first.wav
run render stereo.wav again.wav --quiet --preset "$preset" --set gain=6
check 'a setting goes on from the preset' succeeded
check 'and changes the sound' test "$(cmp -s again.wav first.wav; echo $?)" = 1
run render stereo.wav again.wav --quiet --set gain=9 --set afre=77 --save-state other.vst2chunk
run render stereo.wav again.wav --quiet --state other.vst2chunk --preset "$preset"
check 'the preset is applied after the state' cmp -s again.wav first.wav
run render stereo.wav again.wav --quiet --preset "$preset" --save-preset "$preset"
run preset show "$preset"
check 'a preset that is saved again keeps its identifier' grep -qx "Identifier  $identifier" "$output"
rm again.wav first.wav mono-first.wav

## Refused

head -c 100 "$preset" >values.qmpreset
head -c 240 "$preset" >end.qmpreset
head -c 100 state.vst3state >cut.vst3state
head -c 300 state.vst2chunk >cut.vst2chunk
head -c 100 state.aaxchunk >cut.aaxchunk
: >empty.qmpreset
mkdir folder.qmpreset
# The product word of another plug-in, in the place of ours.
{ head -c 16 "$preset"; printf 'ESLE'; tail -c +21 "$preset"; } >other.qmpreset

refuses 'a preset that is missing' 'none\.qmpreset: no such file' preset show none.qmpreset
refuses 'a preset that is a folder' 'folder\.qmpreset: is a folder' preset show folder.qmpreset
refuses 'an empty preset' 'empty\.qmpreset: is neither a preset nor' preset show empty.qmpreset
refuses 'audio as a preset' 'mono\.wav: is neither a preset nor' preset show mono.wav
refuses 'a preset without its end' 'end\.qmpreset: is a damaged preset: ' preset convert end.qmpreset x.vst3state
refuses 'a preset without its last values' 'values\.qmpreset: is a damaged preset: it ends before its last value' render stereo.wav out.wav --preset values.qmpreset
refuses 'a cut VST3 state' 'cut\.vst3state: is a damaged VST3 state' render stereo.wav out.wav --state cut.vst3state
refuses 'a cut VST 2 chunk' 'cut\.vst2chunk: is a damaged VST 2 chunk' render stereo.wav out.wav --state cut.vst2chunk
refuses 'a cut AAX chunk' 'cut\.aaxchunk: is a damaged AAX chunk' render stereo.wav out.wav --state cut.aaxchunk
refuses "another product's preset" 'other\.qmpreset: holds settings of another product' render stereo.wav out.wav --preset other.qmpreset
refuses 'a form that does not exist' '--to vst4: must be preset, vst3, vst2 or aax' preset convert "$preset" x --to vst4
refuses 'an output that tells no form' 'x\.bin: does not tell a form' preset convert "$preset" x.bin
refuses 'an output in a folder that is missing' 'none/x\.vst3state: its folder does not exist' preset convert "$preset" none/x.vst3state
refuses 'a list of a folder that is missing' 'none: is not a folder' preset list --user none
refuses 'a state in the place of the audio' 'stereo\.wav: would be written twice|stereo\.wav: is the input file' render stereo.wav out.wav --save-state stereo.wav
refuses 'a preset command without its part' '.*subcommand is required' preset

echo "$passed passed, $failed failed, $skipped skipped"
[ "$failed" = 0 ]
