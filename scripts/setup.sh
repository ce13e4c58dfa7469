#!/usr/bin/env bash
# Installs what building, running and testing need and this machine lacks (Debian and its kin), and
# builds. Sourced by run, test and bench; sets BUILD and BIN. Quick when there is nothing to do.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
BUILD=${WARDLOCK_BUILD:-$root/build}
BIN=$BUILD/bin

build_packages=(build-essential cmake ninja-build pkg-config ccache qt6-base-dev
    qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-serialport-dev
    qt6-svg-dev libgl-dev libsqlcipher-dev)
run_packages=(libqt6svg6 qt6-qpa-plugins fonts-dejavu-core)
# Tests look at PDF texts and open the store with the stock shell.
test_packages=(poppler-utils sqlcipher)

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
    "${as_root[@]}" apt-get update -qq >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# build TARGET...: all targets if none is named. The compiler's output is shown only if it fails.
build() {
    local log=$BUILD/build.log
    mkdir -p "$BUILD"
    say "Building in $BUILD"
    if ! { { [ -f "$BUILD/build.ninja" ] ||
        cmake -S "$root" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${cmake_options[@]}"; } &&
        cmake --build "$BUILD" ${1:+--target "$@"}; } >"$log" 2>&1; then
        tail -n 60 "$log" >&2
        exit 1
    fi
}
cmake_options=()
