#!/usr/bin/env bash
# wine.sh PREFIX PROGRAM [ARG...]: runs a Windows program under Wine without a display, in a prefix that is made when it
# is not there. Windows are made all the same, and drawn nowhere. The output goes through files, because Wine's own
# processes inherit what they are started with: they would keep a pipe open, and whoever reads it waiting, long after the
# program's end.
set -u
mkdir -p "$1"
WINEPREFIX=$(realpath "$1") || exit 125
export WINEPREFIX WINEDEBUG=${WINEDEBUG:--all} WINEARCH=win64
# A crash is to fail, not to ask, and no menus are to be made in the user's desktop.
export WINEDLLOVERRIDES='winemenubuilder.exe=d;winedbg.exe=d'
unset DISPLAY
shift
wine=/usr/lib/wine/wine64
output=$(mktemp -d) || exit 125
trap 'rm -rf "$output"' EXIT
(
    flock 9
    [ -f "$WINEPREFIX/.drawn-nowhere" ] || {
        "$wine" wineboot --init 9>&- &&
            "$wine" reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f 9>&- &&
            /usr/lib/wine/wineserver64 -k 9>&- && touch "$WINEPREFIX/.drawn-nowhere"
    }
) 9>"$WINEPREFIX/.lock" >"$output/boot" 2>&1 </dev/null || {
    cat "$output/boot" >&2
    exit 125
}
"$wine" "$@" >"$output/out" 2>"$output/err" </dev/null
status=$?
cat "$output/out"
# Wine says this of a disk that only root may read.
grep -v 'FS volume label and serial are not available' "$output/err" >&2
exit "$status"
