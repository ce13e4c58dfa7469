#!/usr/bin/env bash
# The demonstration: last night's tour in a simulated docking station. Sourced by run, and by the
# test of the package. Needs BIN, the folder of the programs, and say.

# make_demo FOLDER: makes it anew, with its own application folder and its own settings.
make_demo() {
    demo=$1
    [ ! -e "$demo/home/main.mdb" ] || say "Replacing the store of the last demonstration"
    rm -rf "$demo"
    mkdir -p "$demo/home" "$demo/config/Wardlock"
    export WARDLOCK_HOME=$demo/home XDG_CONFIG_HOME=$demo/config
    "$BIN/mkstore" --demo "$demo/home/main.mdb"

    night=$(date -d yesterday +%F)
    local morning
    morning=$(date +%F)
    cat >"$demo/night.scenario" <<SCENARIO
# Last night's tour over midnight, as one guard walked it.
reader 4B5831A7
firmware 06
touch $night 23:14 1A40C2
touch $night 23:37 1A40C7
touch $night 23:38 7E0002
touch $morning 00:07 1A41D0
touch $morning 00:09 2C0918
touch $morning 00:41 1A40C2
SCENARIO
}

# start_dock: sets device. The docking station ends with this shell.
start_dock() {
    coproc DOCK { exec "$BIN/docksim" --scenario "$demo/night.scenario" --log "$demo/docksim.log"; }
    dock_pid=$DOCK_PID
    trap 'kill $dock_pid 2>/dev/null || true' EXIT
    read -r device <&"${DOCK[0]}" || { say "docksim did not start"; exit 1; }
    say "A docking station with a reader is on $device"
}

# demo_without_display: downloads the reader, and makes the report as PDF and as text.
demo_without_display() {
    export WARDLOCK_PASSWORD=KEEPER
    say "Downloading the reader"
    "$BIN/wardlockctl" download --device "$device"
    local report=(report tour --tour 2 --reader 4B5831A7 --date "$night" --events)
    "$BIN/wardlockctl" "${report[@]}" --format pdf --output "$demo/report.pdf"
    "$BIN/wardlockctl" "${report[@]}" --format text
    say "The same report as PDF: $demo/report.pdf"
}
