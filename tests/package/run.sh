#!/usr/bin/env bash
# Installs the package into a fresh Debian, does the main job there as an ordinary user, removes the
# package, and looks for what it has left. Called by ./test --package. Needs root.
# usage: run.sh PACKAGE
set -euo pipefail
source "$(dirname "$0")/../../scripts/setup.sh"
package=$1 system=$BUILD/system

step() { printf '== %s\n' "$*"; }
fail() { printf 'FAILED: %s\n' "$*" >&2; exit 1; }

[ "$(id -u)" -eq 0 ] || fail "a fresh system can only be made by root: sudo ./test --package"
install_missing "${package_test_packages[@]}"

# What is mounted in the system is gone when its last process has ended.
inside() {
    unshare --mount --pid --fork --kill-child -- bash -c '
        mount -t proc proc "$0/proc"
        mount -t devpts -o newinstance,ptmxmode=0666,mode=0620,gid=5 devpts "$0/dev/pts"
        [ -c "$0/dev/ptmx" ] && mount --bind "$0/dev/pts/ptmx" "$0/dev/ptmx"
        exec chroot "$0" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
            DEBIAN_FRONTEND=noninteractive "$@"' "$system" "$@"
}

# Everything but the user's folder: kind, rights, owner, path and target of each file.
files() {
    (cd "$system" && find . -xdev \( -path ./proc -o -path ./sys -o -path ./dev -o -path ./home \) -prune \
        -o -printf '%y %m %u %g %p %l\n') | LC_ALL=C sort -k 5
}

step "A fresh Debian, from this machine's own package sources"
rm -rf --one-file-system "$system"
sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Identifier: Packages' 'Origin: Debian' | sort -u)
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
mirror=$(awk -v release="$release" '$3 == release {print $2; exit}' <<<"$sources")
[ -n "$mirror" ] || fail "no package source for $release; has apt-get update run?"
quietly system.log debootstrap --variant=minbase --include=man-db,bash-completion "$release" "$system" "$mirror"
echo "$sources" >"$system/etc/apt/sources.list"
# How this machine reaches them.
apt-config dump | grep -E '^Acquire::(http|https|Check|Retries)' >"$system/etc/apt/apt.conf.d/90machine" || true
quietly system.log inside apt-get update
inside useradd --create-home --shell /bin/bash office

step "What the package depends on"
# With nothing but these, the system must look the same before and after.
quietly system.log inside apt-get satisfy -y --no-install-recommends "$(dpkg-deb --field "$package" Depends)"
cp "$package" "$system/home/wardlock.deb"
files >"$BUILD/before"

step "Installing the package"
quietly system.log inside apt-get install -y --no-install-recommends /home/wardlock.deb
grep -q '^0 upgraded, 1 newly installed' "$BUILD/system.log" ||
    fail "its dependencies are not complete: $(grep upgraded "$BUILD/system.log")"
files >"$BUILD/installed"
added=$(($(wc -l <"$BUILD/installed") - $(wc -l <"$BUILD/before")))
echo "$added files and folders more"
[ "$added" -gt 50 ] || fail "they are too few"
if ls "$system"/etc/systemd/system/*/wardlock* 2>/dev/null; then
    fail "unattended work is switched on"
fi

step "The main job, as an ordinary user"
cp "$root/tests/package/office.sh" "$root/scripts/demo.sh" "$system/home/office/"
inside runuser -l office -c 'bash office.sh'

step "Removing the package"
quietly system.log inside apt-get purge -y wardlock
files >"$BUILD/after"
if ! diff "$BUILD/before" "$BUILD/after" >"$BUILD/left"; then
    cat "$BUILD/left" >&2
    fail "the package has changed the system"
fi
[ -f "$system/home/office/.local/share/wardlock/main.mdb" ] || fail "the user's store is gone"
echo "Nothing is left but the user's own folder"
rm -rf --one-file-system "$system"
