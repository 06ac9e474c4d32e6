#!/usr/bin/env bash
# Runs the gallery's controls scene in a real window on a virtual X display and
# uses it as a user would: clicks a check box, clicks into a text box, types a
# name with an accented letter, commits it with Return and closes the panel by
# its close box. The gallery's report must show the box unticked (and its twin on
# the same value), the text typed, the label that follows the committed name, and
# that it all still holds once the panel is gone.
set -euo pipefail
gallery=$1
source "$(dirname "$0")/window-kit.sh"
start_display
start_gallery "$gallery" controls --print-roots --print-widgets --report "$work/report.txt"

# The first report is written after the first turn of the loop: the window is live.
wait_reported "value loop Checkbox on"
wait_reported "value clip-label TextLabel No name yet"

find_widget loop
xdotool mousemove $((wx + wh / 2)) $((wy + wh / 2)) click 1
wait_reported "value loop Checkbox off"
wait_reported "value loop-twin Checkbox off"

find_widget clip-name
xdotool mousemove $((wx + ww / 2)) $((wy + wh / 2)) click 1
wait_reported "focus clip-name"
# xdotool lends a spare key the accented letter only while it types it: a long
# delay lets even a sanitizer build read the key before the loan ends.
xdotool type --delay 250 "héllo 42"
wait_reported "value clip-name TextBox héllo 42"
reported "value clip-label TextLabel No name yet" || fail "the label followed the name before it was committed"
xdotool key Return
wait_reported "value clip-label TextLabel Named: héllo 42"

read -r _ _ _ _ _ _ _ close_x close_y <"$work/out.txt"
xdotool mousemove $((win_x + close_x)) $((win_y + close_y)) click 1
wait_gallery_exit
for line in "value loop Checkbox off" "value clip-name TextBox héllo 42" "value clip-label TextLabel Named: héllo 42"; do
  reported "$line" || fail "the final report lacks '$line'"
done
echo "check box toggled, text typed and committed, panel closed: $(tr '\n' ';' <"$work/report.txt")"
