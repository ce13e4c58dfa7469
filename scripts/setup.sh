#!/usr/bin/env bash
# Installs what building, running and testing need and this machine lacks (Debian and its kin), and
# builds. Sourced by run, test and bench; sets BUILD and BIN. Quick when there is nothing to do.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
BUILD=${WARDLOCK_BUILD:-$root/build}
BIN=$BUILD/bin

build_packages=(build-essential cmake ninja-build pkg-config ccache qt6-base-dev
    qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-serialport-dev
    qt6-svg-dev libgl-dev libsqlcipher-dev libcups2-dev libcli11-dev)
run_packages=(libqt6svg6 qt6-qpa-plugins qt6-translations-l10n fonts-dejavu-core)
# Tests look at PDF texts and open the store with the stock shell.
test_packages=(poppler-utils sqlcipher)
# The fault campaigns kill by strace, and pull the power from small file systems.
fault_packages=(python3 sqlcipher strace e2fsprogs xfsprogs)

say() { printf '%s\n' "$*" >&2; }

install_missing() {
    local missing=()
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { say "Please install: ${missing[*]}"; exit 1; }
        as_root=(sudo)
    fi
    say "Installing ${missing[*]}"
    apt_get update
    apt_get install -y --no-install-recommends "${missing[@]}"
}

# apt_get ARGUMENT...: waits up to ten minutes for the package manager's locks, which a fresh system
# often holds. (apt-get's own option waits for one of them only.)
apt_get() {
    local log=$BUILD/install.log deadline=$((SECONDS + 600)) waiting=
    mkdir -p "$BUILD"
    until "${as_root[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get "$@" >"$log" 2>&1; do
        if [ $SECONDS -ge $deadline ] || ! grep -q 'Could not get lock' "$log"; then
            tail -n 60 "$log" >&2
            exit 1
        fi
        [ -n "$waiting" ] || say "Waiting for another package manager to finish"
        waiting=1
        sleep 2
    done
}

# quietly LOG COMMAND...: what it prints goes into a log in the build folder, and is shown only if it
# fails, which ends everything.
quietly() {
    local log=$BUILD/$1
    mkdir -p "$BUILD"
    "${@:2}" >"$log" 2>&1 || { tail -n 60 "$log" >&2; exit 1; }
}

# build TARGET...: all targets if none is named.
build() {
    say "Building in $BUILD"
    [ -f "$BUILD/build.ninja" ] ||
        quietly configure.log cmake -S "$root" -B "$BUILD" -G Ninja \
            -DCMAKE_BUILD_TYPE=RelWithDebInfo "${cmake_options[@]}"
    quietly build.log cmake --build "$BUILD" ${1:+--target "$@"}
}
cmake_options=()
# Precompiled headers and the place of the checkout are no reason to compile anew.
export CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
