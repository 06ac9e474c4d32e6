# Sourced by the real-window tests: a virtual X display, the gallery on it, and
# waiting for what the gallery reports instead of sleeping a fixed time, since a
# sanitizer build can be many times slower than a plain one.
#
# A test is skipped (exit 77, CTest's SKIP_RETURN_CODE) only when Xvfb or xdotool
# is missing; anything else that goes wrong fails it.

skip_code=77
wait_limit=${MOSAIC_WINDOW_WAIT:-90}

need_tools() {
  local tool
  for tool in Xvfb xdotool; do
    command -v "$tool" >/dev/null && continue
    echo "skipped: $tool is not installed (scripts/setup.sh installs it)"
    exit "$skip_code"
  done
}

fail() {
  echo "FAILED: $*"
  [ -n "${DISPLAY:-}" ] && echo "-- windows on $DISPLAY: $(xdotool search --name . getwindowname %@ 2>&1 | tr '\n' ';')"
  [ -s "$work/err.txt" ] && { echo "-- gallery stderr:"; cat "$work/err.txt"; }
  [ -s "$work/report.txt" ] && { echo "-- last report:"; cat "$work/report.txt"; }
  exit 1
}

# Runs a command until it succeeds, for at most wait_limit seconds.
wait_until() {
  local what=$1; shift
  local end=$((SECONDS + wait_limit))
  while [ "$SECONDS" -lt "$end" ]; do
    "$@" && return 0
    sleep 0.1
  done
  fail "waited ${wait_limit}s for $what"
}

cleanup() {
  [ -n "${app:-}" ] && kill "$app" 2>/dev/null
  [ -n "${helper:-}" ] && kill "$helper" 2>/dev/null
  [ -n "${xvfb:-}" ] && kill "$xvfb" 2>/dev/null
  rm -rf "$work"
}

display_ready() {
  kill -0 "$xvfb" 2>/dev/null || { cat "$work/xvfb.log"; fail "the virtual display did not start"; }
  grep -q '^[0-9][0-9]*$' "$work/display" 2>/dev/null
}

start_display() {
  need_tools
  work=$(mktemp -d)
  trap cleanup EXIT
  # The gallery's settings, data and logs go to the scratch folder, never the user's.
  export HOME=$work/home MOSAIC_HOME=$work/home/mosaic XDG_CONFIG_HOME=$work/home/config \
         XDG_DATA_HOME=$work/home/data XDG_STATE_HOME=$work/home/state
  mkdir -p "$MOSAIC_HOME"
  # The server picks a free display number and writes it once it takes clients,
  # so that tests running at once never share or wait for a display. Without
  # -noreset it resets whenever its last client leaves and refuses connections
  # meanwhile: the gallery probes the display and then connects again at once.
  Xvfb -displayfd 3 -noreset -screen 0 800x600x24 -nolisten tcp 3>"$work/display" >"$work/xvfb.log" 2>&1 &
  xvfb=$!
  wait_until "the virtual display to start" display_ready
  export DISPLAY=:$(head -1 "$work/display")
  # Only X: without it SDL may fall back to a driver that shows nothing here.
  export SDL_VIDEODRIVER=x11
  # The display libraries load drivers at run time that keep allocations to exit;
  # leaks of our own code are the unit tests' business.
  export ASAN_OPTIONS="${ASAN_OPTIONS:-}:detect_leaks=0"
  wait_until "the virtual display" xdotool getmouselocation >/dev/null 2>&1
}

# Starts the gallery on one scene with the given options; its stdout goes to
# $work/out.txt. Sets win_x and win_y, the window's place on the display.
start_gallery() {
  local gallery=$1 scene=$2; shift 2
  MOSAIC_SCREEN_SIZE=800x600 "$gallery" --scene "$scene" "$@" >"$work/out.txt" 2>"$work/err.txt" &
  app=$!
  wait_until "the gallery's window" window_shown
  eval "$(xdotool getwindowgeometry --shell "$win")"
  win_x=$X win_y=$Y
}

window_shown() {
  kill -0 "$app" 2>/dev/null || fail "the gallery ended early"
  # A window that goes while xdotool looks at it (SDL makes and drops one while it
  # starts) is an X error to xdotool: not a failure, only "not yet".
  win=$(xdotool search --onlyvisible --name "Mosaic gallery" 2>/dev/null | head -1) || win=""
  [ -n "$win" ]
}

# True once the report file has this exact line.
reported() { [ -f "$work/report.txt" ] && grep -qxF -- "$1" "$work/report.txt"; }
wait_reported() { wait_until "the report line '$1'" reported "$1"; }

# Sets wx, wy, ww, wh to a named widget's rectangle from --print-widgets, in
# display coordinates.
find_widget() {
  local line
  line=$(grep -m1 "^widget $1 " "$work/out.txt") || fail "no widget named $1 in the gallery's list"
  read -r _ _ _ wx wy ww wh <<<"$line"
  wx=$((win_x + wx)) wy=$((win_y + wy))
}

gallery_ended() { ! kill -0 "$app" 2>/dev/null; }

# Waits for the gallery to end and fails unless it ended well.
wait_gallery_exit() {
  wait_until "the gallery to end" gallery_ended
  local status=0
  wait "$app" || status=$?
  app=""
  [ "$status" = 0 ] || fail "the gallery ended with status $status"
}
