#!/usr/bin/env bash
# Runs the gallery in a real window on a virtual X display and drives it with
# xdotool as a user would: drag a panel by its title, then close every panel with
# its close box. The gallery quits when its last panel is gone; the test fails if
# it does not, or if the drag did not move the panel.
set -euo pipefail
gallery=$1
source "$(dirname "$0")/window-kit.sh"
start_display
start_gallery "$gallery" toolkit-demo --print-roots
listed() { grep -q '^root ' "$work/out.txt"; }
wait_until "the gallery's list of panels" listed
sleep 1
grep '^root ' "$work/out.txt" >"$work/roots.txt"

# Drag the first panel 40 pixels right by its title bar, then look where its close box went.
read -r _ _ px py pw _ _ cx cy < <(head -1 "$work/roots.txt")
tx=$((win_x + px + 30)) ty=$((win_y + py + 10))
xdotool mousemove "$tx" "$ty" mousedown 1 mousemove $((tx + 20)) "$ty" mousemove $((tx + 40)) "$ty" mouseup 1
sleep 0.6
cx=$((cx + 40))

# Close every panel by its close box; the moved one at its new place.
first=1
while read -r _ _ _ _ _ _ _ x y; do
  if [ "$first" = 1 ]; then x=$cx; first=0; fi
  xdotool mousemove $((win_x + x)) $((win_y + y)) click 1
  sleep 0.6
done <"$work/roots.txt"

wait_limit=15 wait_gallery_exit
echo "gallery window closed by its close boxes"
