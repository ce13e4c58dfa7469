#!/usr/bin/env bash
# Installs into a folder, moves it, and uses what is there.
# usage: install.sh CMAKE BUILD_FOLDER
set -euo pipefail
fail() { printf 'FAILED: %s\n' "$*" >&2; exit 1; }
folder=$(mktemp -d)
station=
trap '[ -z "$station" ] || kill "$station" 2>/dev/null || true; rm -rf "$folder"' EXIT
"$1" --install "$2" --prefix "$folder/first" >"$folder/log" 2>&1 || fail "$(tail "$folder/log")"
mv "$folder/first" "$folder/moved"
cd "$folder/moved"

[ "$(bin/wardlockctl --version)" = "wardlockctl $(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$2/CMakeCache.txt")" ] ||
    fail "the version"
for file in share/man/man1/{wardlock,wardlockctl,mkstore,docksim}.1 share/applications/wardlock.desktop \
    share/bash-completion/completions/wardlockctl share/icons/hicolor/{scalable/apps/wardlock.svg,256x256/apps/wardlock.png} \
    share/metainfo/wardlock.metainfo.xml lib/systemd/system/wardlock-{backup,download}.{service,timer}; do
    [ -s "$file" ] || fail "there is no $file"
done

unset WARDLOCK_HOME
export XDG_DATA_HOME=$folder/data XDG_CONFIG_HOME=$folder/config WARDLOCK_PASSWORD=KEEPER
store=$folder/data/wardlock/main.mdb
QT_QPA_PLATFORM=offscreen bin/wardlock 2>"$folder/log" &
station=$!
for ((i = 0; i < 100; i++)); do
    [ -s "$store" ] && break
    sleep 0.1
done
[ -s "$store" ] || fail "the first start made no store: $(cat "$folder/log")"
kill -0 "$station" || fail "the station has ended: $(cat "$folder/log")"
kill "$station"
wait "$station" || true
station=

# A store that is lost is not made again, and a folder that is missing is named.
rm "$store"
: >"$folder/data/wardlock/error.log"
QT_QPA_PLATFORM=offscreen timeout 2 bin/wardlock 2>"$folder/log" || true
[ ! -e "$store" ] || fail "a lost store was made again"
bin/wardlockctl --home "$folder/nowhere" list tours 2>"$folder/log" && fail "a missing folder was accepted"
grep -qF "The folder $folder/nowhere does not exist." "$folder/log" || fail "$(cat "$folder/log")"

# In German, from the dictionary of the installation.
mkdir -p "$folder/demo" "$XDG_CONFIG_HOME/Wardlock"
printf '[Properties]\nLanguage=2\n' >"$XDG_CONFIG_HOME/Wardlock/Wardlock Lite.conf"
bin/mkstore --demo "$folder/demo/main.mdb"
bin/wardlockctl --home "$folder/demo" report hardware --format text >"$folder/report"
grep -q "^Hardwareliste" "$folder/report" || fail "the report: $(cat "$folder/report")"
[ ! -e bin/error.log ] && [ ! -e share/wardlock/error.log ] || fail "something was written into the installation"
