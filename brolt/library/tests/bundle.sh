#!/bin/bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# bundle.sh COMMAND...
#
# What is in the bundle, looked at from outside: its files, what the library hands out and what it
# needs. The arguments are the command that starts a program of the build; the bundle lies beside it.

set -u

program=${*: -1}
bundle=$(dirname "$program")/QMBrolt.vst3

passed=0
failed=0

# is NAME FOUND WANTED
is() {
    if [ "$2" = "$3" ]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAILED: %s\n  found:  %s\n  wanted: %s\n' "$1" "$2" "$3"
    fi
}

# has NAME COMMAND...
has() {
    local name=$1
    shift
    if "$@"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAILED: %s\n' "$name"
    fi
}

words() { tr '\n' ' ' | sed 's/ $//'; }

case $program in
    *.exe)
        library=$bundle/Contents/x86_64-win/QMBrolt.vst3
        report=$(x86_64-w64-mingw32-objdump -p "$library")
        is 'the entry points are handed out and nothing else' \
            "$(sed -n 's/^\t\[ *[0-9]*\] \(+base\[.*\] [0-9a-f]* \)\?\([A-Za-z]*\)$/\2/p' <<<"$report" | sort -u | words)" \
            'ExitDll GetPluginFactory InitDll'
        # What every Windows has. A library of the compiler's among them would be missing at users'.
        system='^(advapi32|comctl32|comdlg32|dxgi|gdi32|imm32|kernel32|msvcrt|ole32|oleaut32|rpcrt4|shell32|shlwapi|user32|uuid|version|wininet|winmm|ws2_32|wsock32)\.dll$'
        is 'no library but the system'"'"'s own is needed' \
            "$(sed -n 's/^\tDLL Name: //p' <<<"$report" | tr 'A-Z' 'a-z' | grep -vE "$system" | words)" ''
        resources=$(strings -e l "$library")
        for text in 'Quolm' 'QM Brolt' '4.0.2.157' 'QMBrolt.vst3' 'GPL-3.0-or-later'; do
            has "its properties say $text" grep -qxF "$text" <<<"$resources"
        done
        has 'it has a manifest' grep -q 'Microsoft.Windows.Common-Controls' "$library"
        # Addresses that may change, no data that may be run.
        for flag in DYNAMIC_BASE NX_COMPAT HIGH_ENTROPY_VA; do
            has "it is linked with $flag" grep -q "$flag" <<<"$report"
        done
        ;;
    *)
        library=$bundle/Contents/x86_64-linux/QMBrolt.so
        is 'the entry points are handed out and nothing else' \
            "$(nm -D --defined-only "$library" | awk '{ print $3 }' | sort | words)" \
            'GetPluginFactory ModuleEntry ModuleExit'
        is 'the window system is looked for when a window comes, not when the library is loaded' \
            "$(objdump -p "$library" | awk '/NEEDED/ { print $2 }' | grep -iE '^lib(X|gtk|webkit|GL)' | words)" ''
        is 'it can be unloaded: no flag and no symbol keeps it' \
            "$(objdump -p "$library" | grep -c NODELETE) $(nm "$library" | awk '$2 == "u"' | wc -l)" '0 0'
        has 'it is bound at once, with tables that cannot be written then' \
            bash -c "objdump -p '$library' | grep -q RELRO"
        ;;
esac

pictures=$(cd "$(dirname "${BASH_SOURCE[0]}")/../../../resources" && ls)
typefaces='URWGothic-Book.otf URWGothic-BookOblique.otf URWGothic-Demi.otf'
is 'the bundle holds the library, its description, pictures and typefaces' \
    "$(cd "$bundle" && find . -type f | LC_ALL=C sort | words)" \
    "$({ printf './Contents/Resources/%s\n' moduleinfo.json $typefaces $pictures
        echo "./${library#"$bundle"/}"; } | LC_ALL=C sort | words)"

echo "$passed passed, $failed failed, 0 skipped"
[ "$failed" = 0 ]
