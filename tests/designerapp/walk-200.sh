#!/usr/bin/env bash
# The walk at a scaling of 200 %, in a Wine prefix and on a display of its own.
# walk-200.sh BIN_FOLDER PICTURE_FOLDER
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
source "$here/../../tools/common.sh"
export ORVANE_PREFIX=wine-200
wine_environment
start_desktop 2048x1536
trap stop_desktop EXIT
wine reg add 'HKCU\Control Panel\Desktop' /f /v LogPixels /t REG_DWORD /d 192 >/dev/null
wine regsvr32 /s "Z:$1/orvane.dll"
"$here/walk.sh" "$@"
