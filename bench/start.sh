#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# start.sh [BUILD_FOLDER [RUNS]]: what a start of the program costs, on a virtual display with a
# window manager. Prints the median of the runs (10) beside an empty main window's.
#
# CPU time is that of all threads since the program's first instruction. The splash and the windows
# stand still once they are painted, so each figure is taken when the processor time has come to
# rest; what is measured is the window with everything on it.
set -euo pipefail

build=$(realpath "${1:-build/release}")
runs=${2:-10}
here=$(mktemp -d)
display=
helpers=()
measured= # the process that is being measured
cleanup() {
    for process in $measured "${helpers[@]}"; do kill "$process" 2>/dev/null || true; done
    rm -rf "$here"
}
trap cleanup EXIT

# Nothing of the person who measures is to be touched, nor to matter.
export HOME="$here/home" XDG_RUNTIME_DIR="$here/run"
mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR"
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME XDG_CURRENT_DESKTOP DBUS_SESSION_BUS_ADDRESS \
    QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE QT_SCALE_FACTOR WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8

mkfifo "$here/display"
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3<>"$here/display" 2>/dev/null &
helpers+=($!)
read -r display <"$here/display"
export DISPLAY=":$display"
openbox >/dev/null 2>&1 &
helpers+=($!)
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do sleep 0.05; done

(cd "$here" && "$build/bench/biglist" "$here/big.lwx")
(cd "$here" && "$build/bench/biglist" "$here/second.lwx")

# Of all threads, in microseconds. The scheduler's count is finer than the 10 ms of /proc/PID/stat.
cpu() {
    cat /proc/"$1"/task/*/schedstat | awk '{ sum += $1 } END { printf "%d\n", sum / 1000 }'
}

# In kilobytes.
memory() { awk '$1 == "VmRSS:" { print $2 }' "/proc/$1/status"; }
ownMemory() { awk '$1 == "RssAnon:" { print $2 }' "/proc/$1/status"; }

# The processor time once it has not grown for 0.3 s, but for a millisecond of timers.
settledCpu() {
    local before=-10000 now
    now=$(cpu "$1")
    while ((now - before > 1000)); do
        before=$now
        sleep 0.3
        now=$(cpu "$1")
    done
    echo "$now"
}

# Waits for a visible window of the process with that text in its title; prints its id. A search
# that meets a window just closing fails and is made again.
window() {
    local found=
    until [[ -n $found ]]; do
        kill -0 "$1"
        found=$(xdotool search --onlyvisible --all --pid "$1" --name "$2" 2>/dev/null | head -1) ||
            found=
    done
    echo "$found"
}

note() { echo "$2" >>"$here/$1"; }

median() {
    sort -n "$here/$1" | awk '{ value[NR] = $1 }
        END { printf "%d", (value[int((NR + 1) / 2)] + value[int((NR + 2) / 2)]) / 2 }'
}

finish() {
    kill "$measured"
    wait "$measured" 2>/dev/null || true
    measured=
}

measureEmptyWindow() {
    "$build/bench/empty_window" &
    local process=$!
    measured=$process
    window "$process" 'Empty window' >/dev/null
    note emptyCpu "$(settledCpu "$process")"
    note emptyMemory "$(memory "$process")"
    finish
}

# Opens a list as a person does: Ctrl+O, OK, the file's name, Enter. Sets `opening` to the
# processor time from that Enter on.
openList() {
    local process=$1 title=$2
    xdotool windowactivate --sync "$(window "$process" 'LexiBrook')"
    xdotool key ctrl+o
    window "$process" '^Tanglewit$' >/dev/null
    settledCpu "$process" >/dev/null
    xdotool key Return
    window "$process" '^Open File$' >/dev/null
    settledCpu "$process" >/dev/null
    xdotool type --delay 5 "$here/$title"
    local before
    before=$(settledCpu "$process")
    xdotool key Return
    window "$process" "$title" >/dev/null
    opening=$(($(settledCpu "$process") - before))
}

measureProgram() {
    "$build/tanglewit" &
    local process=$! opening
    measured=$process
    window "$process" '^The Tanglewit$' >/dev/null
    note splashMapped "$(cpu "$process")"
    note splashCpu "$(settledCpu "$process")"
    window "$process" 'LexiBrook' >/dev/null
    local idleCpu idle
    idleCpu=$(settledCpu "$process")
    idle=$(memory "$process")
    note idleCpu "$idleCpu"
    note idleMemory "$idle"
    note idleOwnMemory "$(ownMemory "$process")"

    openList "$process" big.lwx
    note openCpu "$opening"
    note openAllCpu "$(($(settledCpu "$process") - idleCpu))"
    note openMemory "$(($(memory "$process") - idle))"
    # Once more: now the dialog's own first-time cost is paid.
    openList "$process" second.lwx
    note openAgainCpu "$opening"
    note openAgainMemory "$(($(memory "$process") - idle))"
    finish
}

for ((run = 1; run <= runs; ++run)); do
    measureEmptyWindow
    measureProgram
done

milliseconds() { awk -v value="$(median "$1")" 'BEGIN { printf "%8.1f ms", value / 1000 }'; }
megabytes() { awk -v value="$(median "$1")" 'BEGIN { printf "%8.1f MB", value / 1024 }'; }

cat <<RESULT
Median of $runs runs
Empty main window, CPU time:          $(milliseconds emptyCpu)
Empty main window, memory:            $(megabytes emptyMemory)
Splash mapped, CPU time:              $(milliseconds splashMapped)
Splash painted, CPU time:             $(milliseconds splashCpu)   goal 60 ms
Idle in the editor, CPU time:         $(milliseconds idleCpu)   goal 75 ms
Idle in the editor, memory:           $(megabytes idleMemory)   goal 38 MB
  of it not shared or from files:     $(megabytes idleOwnMemory)
List of 32,000 opened:
  CPU time from the dialog's Enter:   $(milliseconds openCpu)   goal 60 ms
  CPU time with both dialogs:         $(milliseconds openAllCpu)
  further memory:                     $(megabytes openMemory)   goal 25 MB
Another such list opened after it:
  CPU time from the dialog's Enter:   $(milliseconds openAgainCpu)
  further memory since idle:          $(megabytes openAgainMemory)
RESULT
