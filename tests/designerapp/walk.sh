#!/usr/bin/env bash
# A user's walk through the designer, with keys on the display: from the menu's own "Designer..."
# entry to a menu that the next right-click shows. Expects the Wine prefix and the display of
# tools/common.sh and a registered orvane.dll.
# walk.sh BIN_FOLDER PICTURE_FOLDER
set -euo pipefail
bin=$1
pictures=$2
mkdir -p "$pictures"
work=$WINEPREFIX/drive_c/Walk
settings='HKCU\Software\Tarnwick\Orvane'
host=
leave() {
  if [ -n "$host" ]; then kill "$host" 2>/dev/null || true; fi
  # Whatever came of it: a designer that stays would hold this script's output open.
  timeout 20 wine taskkill /f /im designer.exe >/dev/null 2>&1 || true
  wine reg delete "$settings" /f >/dev/null 2>&1 || true
  wine reg import 'C:\Walk\before.reg' >/dev/null 2>&1 || true
}
trap leave EXIT

complain() { printf '%s\n' "$*" >&2; import -window root "$pictures/failed.png"; exit 1; }
shot() { sleep 2.5; import -window root "$pictures/$1.png"; }
keys() { xdotool key --delay 60 "$@"; sleep 0.5; }
text() { xdotool type --delay 60 "$1"; sleep 0.3; }
wait_for() {  # FILE TEXT
  for _ in $(seq 150); do
    grep -q "$2" "$1" && return
    sleep 0.1
  done
  complain "no '$2' in $1"
}
wait_for_window() {
  for _ in $(seq 200); do
    xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 && return
    sleep 0.1
  done
  complain "no window '$1'"
}

close_designer() {
  keys alt+F4
  for _ in $(seq 50); do
    xdotool search --onlyvisible --name 'Orvane Designer' >/dev/null 2>&1 || break
    sleep 0.1
  done
  sleep 1 # the keyboard goes to the window that is left
}

start_host() {
  : >"$work/host.txt"
  timeout 60 wine "$bin/orvane_host.exe" --menu 'C:\Walk' Plans.txt >"$work/host.txt" 2>&1 &
  host=$!
  wait_for "$work/host.txt" '^ready'
}
right_click() {  # what to choose: keys
  start_host
  choose "$@"
}
choose() {  # in the host that was started
  xdotool mousemove 120 80 click 3
  wait_for "$work/host.txt" '^open'
  sleep 1
  keys "$@"
  wait_for "$work/host.txt" '^chosen'
  wait "$host" || true
  host=
}

rm -rf "$work"
mkdir -p "$work"
echo x >"$work/Plans.txt"
wine reg export "$settings" 'C:\Walk\before.reg' /y >/dev/null 2>&1 || true
wine reg delete "$settings" /f >/dev/null 2>&1 || true
wine reg add "$settings" /f /v ShellConfigFile /d 'C:\Walk\Designed.cfg' >/dev/null

right_click Down Down Right d
wait_for_window 'Orvane Designer'
for _ in $(seq 20); do # it asks whether to make the file, when it is ready
  sleep 1
  keys Return
  if [ -s "$work/Designed.cfg" ]; then break; fi
done
[ -s "$work/Designed.cfg" ] || complain "the file was not made"
keys alt+i p
keys F2
text Tools
keys Return
keys alt+i i           # a special folder in it
keys alt+i t           # a task behind that
keys F2
text Listing
keys Return
shot task
keys alt+Left          # out of the popup
keys alt+Up            # above it
keys ctrl+z            # and back
keys ctrl+s
keys F5
sleep 1
keys Down Right
shot preview
keys Escape Escape Escape
keys alt+t s
wait_for_window 'Settings'
shot settings
keys alt+k Return      # no Task Manager from now on
sleep 1
close_designer

right_click Escape
grep -A40 'Orvane' "$work/host.txt" >"$work/menu.txt" || true
expected=$(printf 'Tools\nDocuments\nListing')
shown=$(grep -oE 'Listing|Tools|Documents' "$work/menu.txt")
[ "$shown" = "$expected" ] || complain "the menu shows: $(cat "$work/host.txt")"
if grep -q 'Task Manager' "$work/host.txt"; then complain 'the menu does not obey the settings'; fi

# An action for the window that is right-clicked: its window is picked with the mouse.
wine reg add "$settings" /f /v ShellCustomActionsFile /d 'C:\Walk\Actions.ini' >/dev/null
start_host
wine "$bin/designer.exe" >/dev/null 2>&1 &
wait_for_window 'Orvane Designer'
xdotool search --onlyvisible --name 'Orvane Designer' windowmove 300 0
sleep 1
xdotool mousemove 600 300 click 1 # the host has the keyboard
keys F8
wait_for_window 'Custom Actions'
keys alt+n
text host
keys alt+r
text 'go[orv_item'
shot actions-faults
text ']{ENTER}'
place=$(wine "$bin/orvane_host.exe" --place 1531 | tr -d '\r')
xdotool mousemove $place mousedown 1 mousemove 400 300 mousemove 60 400 mousemove 62 402
shot actions-picking
xdotool mouseup 1 mousemove $place
keys alt+y
shot actions-test
keys Escape
keys alt+v
shot actions
keys alt+o
close_designer
grep -q 'Class=OrvaneHost' "$work/Actions.ini" || complain "no window was picked: $(cat "$work/Actions.ini")"
choose Down Down Right Right Return # the folder in the popup
sed -n 's/^typed //p' "$work/host.txt" | tr -d '\r\n' >"$work/typed.txt"
grep -q '^goC:.*Documents' "$work/typed.txt" || complain "typed: $(cat "$work/host.txt")"
echo "the walk is done"
