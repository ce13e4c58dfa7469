#!/usr/bin/env bash
# What an ordinary user does with the installed package. Called by run.sh in the fresh system.
set -euo pipefail
BIN=/usr/bin
say() { printf '%s\n' "$*"; }
fail() { printf 'FAILED: %s\n' "$*" >&2; exit 1; }
source demo.sh
[ "$(id -u)" -ne 0 ] || fail "this is root"
export XDG_RUNTIME_DIR=$HOME/.runtime # a login makes it
mkdir -m 700 "$XDG_RUNTIME_DIR"

version=$(dpkg-query -W -f '${Version}' wardlock)
for program in wardlock wardlockctl mkstore docksim; do
    [ "$($program --version)" = "$program $version" ] || fail "$program --version"
    LC_ALL=C.UTF-8 man "$program" 2>&1 | grep -q "Wardlock $version" || fail "man $program"
done

say "The first start of the station makes the store"
status=0
QT_QPA_PLATFORM=offscreen timeout 8 wardlock || status=$?
[ $status -eq 124 ] || fail "the station ended by itself: $status"
home=$HOME/.local/share/wardlock
[ -s "$home/main.mdb" ] || fail "there is no store"
[ ! -s "$home/error.log" ] || fail "the log has failures: $(cat "$home/error.log")"
# The first login of an operator fails, but adds him to the store.
WARDLOCK_PASSWORD=KEEPER wardlockctl list tours 2>/dev/null && fail "the first login"
WARDLOCK_PASSWORD=KEEPER wardlockctl check || fail "the new store"

make_demo "$HOME/demo"
start_dock
demo_without_display >report.txt
cat report.txt
grep -q '^5 points: 3 on time, 1 late, 1 missing$' report.txt || fail "the report as text"
[ "$(head -c 5 demo/report.pdf)" = %PDF- ] || fail "the report as PDF"
# speak NUMBER: chooses a language of the installed dictionary.
speak() { printf '[Properties]\nLanguage=%s\n' "$1" >"$XDG_CONFIG_HOME/Wardlock/Wardlock Lite.conf"; }
speak 2
wardlockctl report hardware --format text >german.txt
grep -q '^Hardwareliste' german.txt || fail "the report in German"
speak 9
wardlockctl report hardware --format pdf --output arabic.pdf
grep -aq DejaVuSans arabic.pdf || fail "there is no font with Arabic letters"

say "Completion"
source /usr/share/bash-completion/bash_completion
_completion_loader wardlockctl || [ $? -eq 124 ]
# completes LINE WORD: what bash offers for the last word of the line.
completes() {
    read -ra COMP_WORDS <<<"$1"
    COMP_LINE=$1 COMP_POINT=${#1} COMP_CWORD=$((${#COMP_WORDS[@]} - 1)) COMPREPLY=()
    _wardlockctl
    [ "${COMPREPLY[*]}" = "$2" ] || fail "completion of $1: ${COMPREPLY[*]}"
}
set +eu
completes "wardlockctl rep" report
completes "wardlockctl report sch" schedule
completes "wardlockctl report tour --fo" --format
completes "wardlockctl report tour --format p" pdf
completes "wardlockctl setup import demo.s" demo.sh
say "All as expected"
