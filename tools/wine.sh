#!/usr/bin/env bash
# Runs a Windows program in the project's Wine prefix: tools/wine.sh PROGRAM.exe [argument]...
# A program that hangs is ended after WINE_TIMEOUT seconds (600).
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"
wine_environment >&2
exec timeout -k 10 "${WINE_TIMEOUT:-600}" wine "$@"
