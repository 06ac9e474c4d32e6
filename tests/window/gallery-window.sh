#!/usr/bin/env bash
# Runs the gallery in a real window on a virtual X display and drives it with
# xdotool as a user would: drag a panel by its title, then close every panel with
# its close box. The gallery quits when its last panel is gone; the test fails if
# it does not, or if the drag did not move the panel.
set -euo pipefail
gallery=$1
if ! command -v Xvfb >/dev/null || ! command -v xdotool >/dev/null; then
  echo "Xvfb or xdotool missing"; exit 1
fi
work=$(mktemp -d)
display=:$((90 + RANDOM % 100))
Xvfb "$display" -screen 0 800x600x24 -nolisten tcp >"$work/xvfb.log" 2>&1 &
xvfb=$!
cleanup() { kill "$xvfb" 2>/dev/null || true; [ -n "${app:-}" ] && kill "$app" 2>/dev/null || true; rm -rf "$work"; }
trap cleanup EXIT
export DISPLAY=$display
# The display libraries load drivers at run time that keep allocations to exit;
# leaks of our own code are the unit tests' business.
export ASAN_OPTIONS="${ASAN_OPTIONS:-}:detect_leaks=0"
up=0
for _ in $(seq 200); do xdotool getmouselocation >/dev/null 2>&1 && up=1 && break; sleep 0.1; done
[ "$up" = 1 ] || { echo "the virtual display did not start"; cat "$work/xvfb.log"; exit 1; }

MOSAIC_SCREEN_SIZE=800x600 "$gallery" --scene toolkit-demo --print-roots >"$work/roots.txt" 2>"$work/err.txt" &
app=$!
for _ in $(seq 200); do [ -s "$work/roots.txt" ] && break; sleep 0.1; done
win=""
for _ in $(seq 200); do win=$(xdotool search --name "Mosaic gallery" 2>/dev/null | head -1) && [ -n "$win" ] && break; sleep 0.1; done
[ -n "$win" ] || { echo "no gallery window"; cat "$work/err.txt" "$work/roots.txt"; exit 1; }
sleep 1
eval "$(xdotool getwindowgeometry --shell "$win")"
ox=$X oy=$Y

# Drag the first panel 40 pixels right by its title bar, then look where its close box went.
read -r _ _ px py pw _ _ cx cy < <(head -1 "$work/roots.txt")
tx=$((ox + px + 30)) ty=$((oy + py + 10))
xdotool mousemove "$tx" "$ty" mousedown 1 mousemove $((tx + 20)) "$ty" mousemove $((tx + 40)) "$ty" mouseup 1
sleep 0.6
cx=$((cx + 40))

# Close every panel by its close box; the moved one at its new place.
first=1
while read -r _ _ _ _ _ _ _ x y; do
  if [ "$first" = 1 ]; then x=$cx; first=0; fi
  xdotool mousemove $((ox + x)) $((oy + y)) click 1
  sleep 0.6
done <"$work/roots.txt"

for _ in $(seq 150); do kill -0 "$app" 2>/dev/null || break; sleep 0.1; done
if kill -0 "$app" 2>/dev/null; then
  echo "the gallery is still running: a close box click did not close its panel"
  exit 1
fi
if ! wait "$app"; then
  echo "the gallery failed:"; cat "$work/err.txt"; app=""; exit 1
fi
app=""
echo "gallery window closed by its close boxes"
