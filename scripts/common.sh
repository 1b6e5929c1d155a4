# SPDX-License-Identifier: GPL-3.0-or-later
#
# What the scripts of this folder share. Source it: it finds the root of the checkout ($root), and
# gives tools that keep files in the home folder (ccache, Wine) one in the build folder where the
# user has none that can be written.

root=$(CDPATH= cd -- "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

if [ -z "${HOME:-}" ] || [ ! -d "$HOME" ] || [ ! -w "$HOME" ]; then
    export HOME=$root/build/home
    mkdir -p "$HOME"
fi

jobs=$(nproc)

# say TEXT: a line of progress, on standard error so that it keeps its order with the errors.
say() {
    printf '%s\n' "== $*" >&2
}

# die TEXT: one line on standard error, exit status 1.
die() {
    printf '%s\n' "$(basename "$0"): $*" >&2
    exit 1
}

# retry COMMAND...: up to three attempts with a growing pause between them.
retry() {
    local attempt
    for attempt in 1 2 3; do
        "$@" && return 0
        [ "$attempt" = 3 ] || sleep $((attempt * 5))
    done
    return 1
}

# build CONFIG [TARGET...]: fetches the VST3 SDK, configures and builds. CMake's report on the
# configuration is shown only when it fails.
build() {
    local config=$1 log
    shift
    "$root/scripts/fetch-vst3-sdk" || die "building '$config' needs the VST3 SDK"
    log=$root/build/$config-configure.log
    mkdir -p "$root/build"
    (cd "$root" && cmake --preset "$config") >"$log" 2>&1 || {
        cat "$log" >&2
        die "configuring '$config' failed"
    }
    (cd "$root" && cmake --build --preset "$config" -j "$jobs" ${1:+--target "$@"}) >&2 ||
        die "building '$config' failed"
}
