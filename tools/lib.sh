# Shared by the commands in this folder and at the root; sourced, never run.
# shellcheck shell=bash

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck disable=SC2034  # read by the scripts that source this file
cache=$root/.cache
# Where the program, its samples and its driver were built.
# shellcheck disable=SC2034
windows_build=${VELKARIX_BUILD:-$root/build/windows-x86}
# How much of what can be done side by side is done so, by compilers and by others.
jobs=${VELKARIX_JOBS:-$(nproc)}
export CMAKE_BUILD_PARALLEL_LEVEL=$jobs

# "1.0.0" of the project is "1.0" to people.
full_version=$(sed -nE 's/^project\(.* VERSION ([0-9]+\.[0-9]+\.[0-9]+).*/\1/p' "$root/CMakeLists.txt")
# shellcheck disable=SC2034  # read by the scripts that source this file
short_version=${full_version%.*}

fail() {
    echo "${0##*/}: $*" >&2
    exit 1
}

# Runs a command with its output in a log file; shows the end of the log only when the command fails.
logged() {
    local log=$1
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 || {
        local status=$?
        echo "failed ($status): $*; last lines of $log:" >&2
        tail -n 40 "$log" >&2
        return "$status"
    }
}

# Groups of end-to-end tests that have commands of their own: the tour (./run), long use (tools/soak), and the
# installer, which has to be made first (./test setup).
# shellcheck disable=SC2034  # read by the scripts that source this file
readonly e2e_apart='^(Tour|Soak)$|Package'

# The names of the groups of end-to-end tests.
e2e_groups() {
    cat "$root"/tests/e2e/*_test.cpp | sed -nE 's/^TEST(_F|_P)?\((\w+),.*/\2/p' | LC_ALL=C sort -u
}

# The groups that grep finds with these arguments, as --gtest_filter takes them, also where they are run for each of
# some values.
e2e_groups_filter() {
    e2e_groups | grep "$@" | sed 's|.*|&.*:*/&.*|' | paste -s -d :
}

# Sets and exports what a 32-bit Wine needs; the word to start it with is in $wine.
# The project's own Wine is preferred once it is unpacked, else the machine's is used.
# shellcheck disable=SC2034  # wine is for the caller
wine_env() {
    local own=$cache/wine/usr
    if [[ -x $own/lib/wine/wine ]]; then
        wine=$own/lib/wine/wine
        wineserver=$own/lib/wine/wineserver32
        # Both library folders are named since libraries of one load libraries of the other.
        export LD_LIBRARY_PATH=$own/lib/i386-linux-gnu:$cache/wine/lib/i386-linux-gnu
        export WINESERVER=$wineserver
    else
        wine=$(command -v wine) || fail "no Wine; run tools/wine-setup"
        wineserver=$(command -v wineserver || echo /usr/lib/wine/wineserver)
    fi
    export WINEARCH=win32 WINEDEBUG=${WINEDEBUG:--all}
    # No menu entries in the user's desktop, no offer to download Mono or Gecko.
    export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-winemenubuilder.exe=d;mscoree=d;mshtml=d}
}

# Ends everything in the prefix named by WINEPREFIX and waits until its server has written the registry.
wine_end() {
    "$wineserver" -k 2>/dev/null || true
    "$wineserver" -w 2>/dev/null || true
}

# start_display SIZE: starts a virtual display on a free number; exports DISPLAY and leaves the process id in $xvfb.
start_display() {
    local number screen=$1
    command -v Xvfb >/dev/null || fail "no Xvfb; run tools/install display"
    coproc xvfb_fd { exec Xvfb -displayfd 1 -screen 0 "${screen}x24" -nolisten tcp 2>/dev/null; }
    xvfb=$!
    read -r -t 20 number <&"${xvfb_fd[0]}" || fail "Xvfb doesn't start"
    export DISPLAY=:$number
}

stop_display() {
    [[ -z ${xvfb:-} ]] && return
    kill "$xvfb" 2>/dev/null || true
    wait "$xvfb" 2>/dev/null || true
    xvfb=""
}

# The name that programs under Wine know a file of this system by.
windows_path() {
    local path
    path=$(cd "$(dirname "$1")" && pwd)/$(basename "$1")
    echo "Z:${path//\//\\}"
}

# Checks written as commands, told in the manner of GoogleTest so that one reader counts them all:
# check NAME COMMAND... passes when the command succeeds, and checks_end says how many did.
checks_passed=0
checks_failed=()

check() {
    local name=$1 said
    shift
    if said=$("$@" 2>&1); then
        checks_passed=$((checks_passed + 1))
        echo "[       OK ] $name"
    else
        checks_failed+=("$name")
        [[ -z $said ]] || echo "$said"
        echo "[  FAILED  ] $name"
    fi
}

# Prints the lines that a command finds and fails when there are any.
none() {
    local found
    found=$("$@" || true)
    [[ -z $found ]] || { echo "$found" && return 1; }
}

checks_end() {
    echo "[  PASSED  ] $checks_passed tests."
    [[ ${#checks_failed[@]} -eq 0 ]] && return
    echo "[  FAILED  ] ${#checks_failed[@]} tests, listed below:"
    printf '[  FAILED  ] %s\n' "${checks_failed[@]}"
    return 1
}
