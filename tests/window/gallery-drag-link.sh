#!/usr/bin/env bash
# Drags the file link of the gallery's log panel out of the window with the mouse,
# onto another program's window (a small XDND drop target), and checks the list of
# files that program received: the link's file as a file:// URI with its space
# percent-encoded. A first drag goes over the target and back, and is let go over
# the gallery itself: the target hears it enter and leave and gets nothing. After
# the drags the window still takes the mouse: its panel moves by its title bar and
# closes by its close box.
set -euo pipefail
gallery=$1 target=$2
source "$(dirname "$0")/window-kit.sh"
start_display
start_gallery "$gallery" logger --print-roots --print-widgets --report "$work/report.txt"
wait_until "the first report" test -s "$work/report.txt"

line=$(grep -m1 '^row log [0-9]* .* /tmp/exports/Reel 1\.mov$' "$work/out.txt") || fail "the log shows no link row"
read -r _ _ _ lx ly _ lh _ <<<"$line"
link_x=$((win_x + lx + 20)) link_y=$((win_y + ly + lh / 2))

# The target lies over the empty right part of the gallery's window.
"$target" "$work/dropped" 680 100 110 400 >"$work/target.txt" 2>&1 &
helper=$!
wait_until "the drop target's window" grep -qx ready "$work/target.txt"
heard() { [ "$(grep -c "^$1" "$work/target.txt")" -ge "$2" ]; }
# The drag holds the pointer until it ends; a press before then would be its, not the window's.
drag_over() { "$target" --pointer-free; }

xdotool mousemove "$link_x" "$link_y" mousedown 1 mousemove $((link_x + 30)) "$link_y" mousemove 735 300
wait_until "the target to hear the drag enter" heard enter 1
xdotool mousemove 300 520
wait_until "the target to hear the drag leave" heard leave 1
xdotool mouseup 1
wait_until "the first drag to end" drag_over

xdotool mousemove "$link_x" "$link_y" mousedown 1 mousemove $((link_x + 30)) "$link_y" mousemove 735 300
wait_until "the target to hear the second drag enter" heard enter 2
xdotool mouseup 1
target_ended() { ! kill -0 "$helper" 2>/dev/null; }
wait_until "the drop" target_ended
status=0
wait "$helper" || status=$?
helper=""
heard_all=$(tr '\n' ';' <"$work/target.txt")
[ "$status" = 0 ] || fail "the target got no list (status $status): $heard_all"
[ "$heard_all" = "ready;enter 5 text/uri-list;leave;enter 5 text/uri-list;drop;" ] || fail "the target heard $heard_all"
printf 'file:///tmp/exports/Reel%%201.mov\r\n' >"$work/expected"
cmp -s "$work/expected" "$work/dropped" || fail "the target received '$(od -c "$work/dropped" | head -3)'"
wait_until "the second drag to end" drag_over

# The grab took the button's release from the window: unless it was given back,
# the next press is lost, and the panel neither moves by its title nor closes
# where its close box went.
read -r _ _ px py _ _ _ close_x close_y <"$work/out.txt"
tx=$((win_x + px + 60)) ty=$((win_y + py + 10))
xdotool mousemove "$tx" "$ty" mousedown 1 mousemove "$tx" $((ty + 20)) mousemove "$tx" $((ty + 40)) mouseup 1
xdotool mousemove $((win_x + close_x)) $((win_y + close_y + 40)) click 1
wait_gallery_exit
echo "link dropped on the target as $(tr -d '\r' <"$work/dropped"); the panel moved and closed after the drags"
