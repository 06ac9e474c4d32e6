#!/usr/bin/env bash
# Runs the gallery's entry scene in a real window on a virtual X display and types
# an address into the address box as one line, fast, so that the caret must move
# on between the boxes by itself with no digit lost; then types a password, shows
# it with the eye button and types on. The report must show the address as typed
# and the password whole, with the focus still in the password box.
set -euo pipefail
gallery=$1
source "$(dirname "$0")/window-kit.sh"
start_display
start_gallery "$gallery" entry --print-widgets --report "$work/report.txt"

wait_reported "value address IPAddressEntryBox :"

find_widget octet1
xdotool mousemove $((wx + ww / 2)) $((wy + wh / 2)) click 1
wait_reported "focus octet1"
# A full box or a dot carries the caret on, so the port follows "250" directly.
xdotool type --delay 20 "10.0.12.250443"
wait_reported "value address IPAddressEntryBox 10.0.12.250:443"

find_widget password
xdotool mousemove $((wx + ww / 2)) $((wy + wh / 2)) click 1
wait_reported "focus password"
xdotool type --delay 60 "s3cr"
find_widget showPassword
xdotool mousemove $((wx + ww / 2)) $((wy + wh / 2)) click 1
xdotool type --delay 60 "et"
wait_reported "value password TextBox s3cret"
wait_reported "focus password"
echo "address typed as one line and password kept through the eye: $(tr '\n' ';' <"$work/report.txt")"
