#!/usr/bin/env bash
# Installs the missing packages (on Debian and its derivatives) and builds. Sourced by run, test,
# bench and package. Sets BUILD and BIN. Quick if there is nothing to do.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
BUILD=${WARDLOCK_BUILD:-$root/build}
BIN=$BUILD/bin

build_packages=(build-essential cmake ninja-build pkg-config ccache qt6-base-dev
    qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-serialport-dev
    qt6-svg-dev libgl-dev libsqlcipher-dev libcups2-dev libcli11-dev python3)
# What the programs load when they run. The Debian package depends on them.
run_packages=(libqt6svg6 qt6-translations-l10n fonts-dejavu-core)
# Tests read the text of PDFs, open the store with the stock shell, and read windows as a screen reader.
test_packages=(poppler-utils sqlcipher xvfb dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi)
lint_packages=(clang-format clang-tidy)
# The fault campaigns kill programs with strace and cut the power of small file systems.
fault_packages=(sqlcipher strace e2fsprogs xfsprogs)
# The Debian package is built, checked, and tried in a fresh system.
package_packages=(debhelper lintian desktop-file-utils appstream mandoc)
package_test_packages=(debootstrap)

say() { printf '%s\n' "$*" >&2; }

install_missing() {
    local missing=() package
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

# apt_get ARGUMENT...: waits up to ten minutes for the package manager's locks, which are often held
# on a fresh system. (apt-get's own option waits for only one of them.)
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

# quietly LOG COMMAND...: writes the command's output to a log in the build folder. If the command
# fails, shows the end of the log and exits.
quietly() {
    local log=$BUILD/$1
    mkdir -p "$BUILD"
    "${@:2}" >"$log" 2>&1 || { tail -n 60 "$log" >&2; exit 1; }
}

# build [TARGET...]: builds these targets, or all.
build() {
    say "Building in $BUILD"
    [ -f "$BUILD/build.ninja" ] ||
        quietly configure.log cmake -S "$root" -B "$BUILD" -G Ninja \
            -DCMAKE_BUILD_TYPE=RelWithDebInfo "${cmake_options[@]}"
    quietly build.log cmake --build "$BUILD" ${1:+--target "$@"}
}
cmake_options=()
# Precompiled headers or a moved checkout do not force a recompilation.
export CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
