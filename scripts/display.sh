# SPDX-License-Identifier: GPL-3.0-or-later
#
# A screen for tests. Source it after common.sh: startDisplay makes an X server of our own, with a
# window manager on it, and points DISPLAY at it; stopDisplay ends both. Nobody's own screen is used,
# and nobody else can use this one: it has a cookie that only the caller's programs are told of.

displayProcesses=()
displayFolder=

# authority FILE: a new cookie that fits any X server. An entry is the family ("any"), then address,
# number, name of the protocol and cookie, each behind its length in two bytes.
authority() {
    {
        printf '\xff\xff\0\0\0\0\0\x12%s\0\x10' MIT-MAGIC-COOKIE-1
        head -c 16 /dev/urandom
    } >"$1"
}

# waitFor COMMAND...: until it succeeds; fails after ten seconds, or once the last process has ended.
waitFor() {
    local end=$((SECONDS + 10))
    until "$@"; do
        [ "$SECONDS" -lt "$end" ] && kill -0 "${displayProcesses[-1]}" 2>/dev/null || return 1
        sleep 0.01
    done
}

# The window manager has made its entry on the root window: without one, a toolkit's windows miss
# properties that they ask for.
windowManagerIsReady() {
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

# startProcess COMMAND...: in the background. Should this shell be killed, the process is, too.
startProcess() {
    setpriv --pdeathsig TERM "$@" </dev/null >>"$displayFolder/log" 2>&1 &
    displayProcesses+=($!)
    disown $!
}

# startServer NUMBER: the server writes its number down once it can be reached.
startServer() {
    startProcess Xvfb ":$1" -displayfd 3 -screen 0 1920x1200x24 -nolisten tcp -noreset \
        -auth "$XAUTHORITY" 3>"$displayFolder/number"
    waitFor test -s "$displayFolder/number" || {
        kill "${displayProcesses[@]}" 2>/dev/null
        displayProcesses=()
        return 1
    }
}

# displayFailed REASON: one line and what the programs said; nothing is left running.
displayFailed() {
    say "there is no screen: $1"
    [ ! -s "$displayFolder/log" ] || sed 's/^/   /' "$displayFolder/log" >&2
    stopDisplay
    return 1
}

# startDisplay: leaves DISPLAY and XAUTHORITY set, or DISPLAY unset, a message and status 1. The caller
# stops it in its EXIT trap, which may be set before.
startDisplay() {
    local program number attempts
    unset DISPLAY WAYLAND_DISPLAY BROLT_TEST_DISPLAY
    displayFolder=$(mktemp -d) || return 1
    for program in Xvfb openbox xprop setpriv; do
        command -v "$program" >/dev/null || {
            displayFailed "$program is missing; scripts/setup test installs it"
            return
        }
    done
    export XAUTHORITY=$displayFolder/authority
    authority "$XAUTHORITY"

    # Toolkits that find no DISPLAY try number 0, so the server leaves the low ones alone. Others may
    # come to the same number at the same time.
    for ((number = 100 + $$ % 800, attempts = 10; attempts > 0; ++number, --attempts)); do
        startServer "$number" && break
    done
    [ "$attempts" -gt 0 ] || {
        displayFailed "the X server did not start"
        return
    }
    # The second tells tests that nobody works on this screen, so that they may type and click.
    export DISPLAY=:$number BROLT_TEST_DISPLAY=:$number

    startProcess openbox --sm-disable
    waitFor windowManagerIsReady || {
        displayFailed "the window manager did not start"
        return
    }
}

# stopDisplay: may be called whatever has happened, and again.
stopDisplay() {
    local process
    unset DISPLAY
    for process in ${displayProcesses[@]+"${displayProcesses[@]}"}; do
        kill "$process" 2>/dev/null
    done
    displayProcesses=()
    [ -z "$displayFolder" ] || rm -rf "$displayFolder"
    displayFolder=
}
