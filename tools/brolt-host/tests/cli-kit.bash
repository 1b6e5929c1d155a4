# SPDX-License-Identifier: GPL-3.0-or-later
#
# What the scripts that drive the host have in common: a folder to work in, cases and their count,
# audio. To be sourced with the command that starts the program as its arguments; afterwards the
# working directory is the folder's "work".

set -u
host=("$@")
case ${host[*]} in
    *.exe) windows=yes ;;
    *) windows=no ;;
esac

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/work"
cd "$folder/work" || exit 1

passed=0
failed=0
skipped=0
output=$folder/output
errors=$folder/errors
status=0

pass() { passed=$((passed + 1)); }

fail() {
    failed=$((failed + 1))
    echo "FAILED: $1"
    echo "  status $status"
    sed 's/^/  stdout: /' "$output"
    sed 's/^/  stderr: /' "$errors"
}

skip() {
    skipped=$((skipped + 1))
    echo "SKIP $1: $2"
}

# run ARGUMENT...: runs the host; leaves $status, $output and $errors, without Windows' line ends.
run() {
    "${host[@]}" "$@" >"$output.raw" 2>"$errors.raw" </dev/null
    status=$?
    tr -d '\r' <"$output.raw" >"$output"
    tr -d '\r' <"$errors.raw" >"$errors"
}

# check NAME COMMAND...: one case; passes when the command succeeds.
check() {
    local name=$1
    shift
    if "$@"; then pass; else fail "$name"; fi
}

errorLines() { wc -l <"$errors" | tr -d ' '; }
# The plug-in keeps a log in its host's current directory, whatever the host does.
listing() { (LC_ALL=C; ls -A -I NoxConsole3d.log | tr '\n' ' '); }

# refused PATTERN: status 2, nothing on standard output, one line on standard error that matches, and
# the folder as it was.
refused() {
    [ "$status" = 2 ] && [ ! -s "$output" ] && [ "$(errorLines)" = 1 ] &&
        grep -qE "^brolt-host: $1" "$errors" && [ "$(listing)" = "$before" ]
}

# refuses NAME PATTERN ARGUMENT...: the host must refuse these arguments with such a line.
refuses() {
    local name=$1 pattern=$2
    shift 2
    before=$(listing)
    run "$@"
    check "$name" refused "$pattern"
}

succeeded() { [ "$status" = 0 ] && [ ! -s "$errors" ]; }
succeededSaying() { [ "$status" = 0 ] && [ "$(errorLines)" = 1 ] && grep -qE "^brolt-host: $1" "$errors"; }

le() { # le VALUE BYTES: little-endian
    local value=$1 i
    for ((i = 0; i < $2; ++i)); do
        printf "\\x$(printf %02x $((value & 255)))"
        value=$((value >> 8))
    done
}

# wav CHANNELS DATA-BYTES [RATE]: header of a 16-bit file, at 44100 Hz if nothing else is said.
wav() {
    local rate=${3:-44100}
    printf 'RIFF'; le $((36 + $2)) 4; printf 'WAVEfmt '; le 16 4; le 1 2; le "$1" 2
    le "$rate" 4; le $((rate * $1 * 2)) 4; le $(($1 * 2)) 2; le 16 2; printf 'data'; le "$2" 4
}

# audio: strokes of something like noise with silence between them, the same on every machine:
# eight times 30000 bytes of digits and 58200 bytes of zeros.
audio() {
    local i
    for i in 1 2 3 4 5 6 7 8; do
        seq $((i * 1000)) 9999999 | head -c 30000
        head -c 58200 /dev/zero
    done
}
