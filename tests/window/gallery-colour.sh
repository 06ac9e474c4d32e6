#!/usr/bin/env bash
# Runs the gallery's colour scene in a real window on a virtual X display: centres
# the wheel's marker with a click and drags it, types a colour into the hexadecimal box, and
# drops the named colours down and dismisses them with a click outside. The report
# must show the boxes following the wheel, the wheel following the box, and the
# drop-down's button coming up again.
set -euo pipefail
gallery=$1
source "$(dirname "$0")/window-kit.sh"
start_display
start_gallery "$gallery" colour --print-roots --print-widgets --report "$work/report.txt"

value_of() { grep -s -m1 "^value $1 " "$work/report.txt" | cut -d' ' -f4-; }
wait_until "the first report" grep -qs "^value wheel " "$work/report.txt"

# A click beside the marker puts it in the centre: no saturation, the same value.
find_widget wheel
cx=$((wx + ww / 2)) cy=$((wy + wh / 2))
xdotool mousemove $cx $cy click 1
wait_reported "value saturation ComponentTextBox 0.00"
centred_red=$(value_of red)

# Dragged down and right, the marker takes the boxes with it.
xdotool mousemove $cx $cy mousedown 1 mousemove $((cx + ww / 8)) $((cy + wh / 8)) mousemove $((cx + ww / 4)) $((cy + wh / 4)) mouseup 1
followed() { [ "$(value_of saturation)" != "0.00" ] && [ "$(value_of red)" != "$centred_red" ]; }
wait_until "the saturation and red boxes to follow the marker" followed

find_widget hex
xdotool mousemove $((wx + ww - 10)) $((wy + wh / 2)) click 1
wait_reported "focus hex"
xdotool key ctrl+a
xdotool type --delay 100 "FF0000"
xdotool key Return
# Red is hue 0, which the wheel may give as 360.
marker_on_red() { value_of wheel | grep -qxE '(0|360) 1 1'; }
wait_until "the wheel's marker on pure red" marker_on_red
wait_reported "value red ComponentTextBox 255"
wait_reported "value hex TitleTextBox FF0000"

find_widget named-colours
xdotool mousemove $((wx + ww / 2)) $((wy + wh / 2)) click 1
wait_reported "value named-colours DropDownButton on"
xdotool mousemove $((win_x + 780)) $((win_y + 580)) click 1
wait_reported "value named-colours DropDownButton off"
echo "wheel dragged, hex typed, drop-down opened and dismissed: $(tr '\n' ';' <"$work/report.txt")"
