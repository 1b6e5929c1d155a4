# SPDX-License-Identifier: GPL-3.0-or-later
#
# Debian's source packages, for the scripts that build third-party code. Source it after common.sh
# and call useRelease before anything else.
#
# The sources come through package lists of our own in the build folder: the machine's apt set-up
# need not name any source packages and is not touched. They name the mirrors that the machine takes
# its Debian 12 packages from. Downloads stay in build/downloads and are used again.

downloads=$root/build/downloads
keyring=/usr/share/keyrings/debian-archive-keyring.gpg

# useRelease NAME: takes sources from this release of Debian from here on. Its lists and apt's cache
# are in $aptFolder.
useRelease() {
    release=$1
    aptFolder=$downloads
    [ "$release" = bookworm ] || aptFolder=$downloads/$release
    mkdir -p "$aptFolder"
}

privateApt() {
    local tool=$1
    shift
    "$tool" -q -o Dir::Etc::sourcelist="$aptFolder/sources.list" -o Dir::Etc::sourceparts=- \
        -o Dir::State::lists="$aptFolder/lists" -o Dir::Cache="$aptFolder/cache" \
        -o APT::Sandbox::User="$(id -un)" -o Acquire::Retries=3 "$@"
}

# machineSources: lines of a sources.list for Debian 12, with the mirrors of this machine.
machineSources() {
    local signed=''
    [ ! -e "$keyring" ] || signed="[signed-by=$keyring]"
    # Asked from apt rather than written here: a machine may have its own mirrors.
    apt-get indextargets --format "deb-src $signed \$(REPO_URI) \$(RELEASE) main" \
        'Created-By: Packages' 'Component: main' 2>/dev/null |
        grep -E ' bookworm(-updates|-security)? main$' | sort -u
}

refreshLists() {
    if [ "$release" = bookworm ]; then
        machineSources
    else
        # Mirrors of updates and security fixes are folders of their own; they are not asked.
        machineSources | sed -n "s/ bookworm main\$/ $release main/p"
    fi >"$aptFolder/sources.list"
    [ -s "$aptFolder/sources.list" ] || die "apt knows no mirror of Debian 12 (bookworm)"
    mkdir -p "$aptFolder/lists/partial" "$aptFolder/cache/archives/partial"
    # One suite that cannot be had now is no reason to stop: another may do.
    retry privateApt apt-get -o APT::Update::Error-Mode=any update >"$aptFolder/update.log" 2>&1 ||
        say "some package lists could not be fetched (see $aptFolder/update.log)"
}

# sumsOf PACKAGE VERSION: "sum  file" of each of the version's files, from the signed lists.
sumsOf() {
    privateApt apt-cache showsrc "$1" | awk -v version="$2" '
        /^Version:/ { right = ($2 == version) }
        /^[^ ]/ { sums = ($1 == "Checksums-Sha256:") }
        /^ / && right && sums { print $1 "  " $3 }' | sort -u
}

# fetchSource PACKAGE: the newest version of a source package that the mirrors really have. Leaves
# its files and their sums (PACKAGE.sha256) in the downloads.
fetchSource() {
    local package=$1 version
    cd "$downloads" || return 1
    if [ -s "$package.sha256" ] && sha256sum --status -c "$package.sha256" 2>/dev/null; then
        return 0
    fi
    refreshLists
    for version in $(privateApt apt-cache showsrc "$package" 2>"$package.log" | sed -n 's/^Version: //p' | sort -ruV); do
        # apt's own answer is failure when the .dsc alone is missing, which nothing here needs.
        retry privateApt apt-get source --download-only "$package=$version" \
            >"$downloads/$package.log" 2>&1
        sumsOf "$package" "$version" | grep -v '\.dsc$' >"$package.sha256.new"
        if [ -s "$package.sha256.new" ] && sha256sum --status -c "$package.sha256.new" 2>/dev/null; then
            mv "$package.sha256.new" "$package.sha256"
            return 0
        fi
        say "$package $version cannot be had from the mirror; trying an older one"
    done
    rm -f "$package.sha256.new"
    return 1
}

# fetchErrors PACKAGE: what apt complained of, a few lines on standard error.
fetchErrors() {
    grep -hE '^(E|W|Err)' "$aptFolder/update.log" "$downloads/$1.log" 2>/dev/null |
        sort -u | tail -n 8 >&2
}

# unpackSource PACKAGE FOLDER: upstream's tarball with Debian's patches.
unpackSource() {
    local package=$1 folder=$2 upstream debian patchFile
    upstream=$(sed -n 's/^[^ ]*  \(.*\.orig\.tar\..z\)$/\1/p' "$downloads/$package.sha256")
    debian=$(sed -n 's/^[^ ]*  \(.*\.debian\.tar\.xz\)$/\1/p' "$downloads/$package.sha256")
    rm -rf "$folder"
    mkdir -p "$folder"
    tar -xf "$downloads/$upstream" -C "$folder" --strip-components=1 || return 1
    tar -xf "$downloads/$debian" -C "$folder" || return 1
    sed 's/[ \t]*#.*//; /^$/d' "$folder/debian/patches/series" 2>/dev/null |
        while read -r patchFile _; do
            patch -s -f -p1 -d "$folder" <"$folder/debian/patches/$patchFile" || exit 1
        done
}
