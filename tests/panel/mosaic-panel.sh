#!/usr/bin/env bash
# mosaic-panel end to end, headless: values and layout as JSON, --set through the
# panel's rules, a state kept between runs (and no other file written over), and
# bad descriptions refused with status 2.
set -u
bin=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# The program's settings, data and logs go to the scratch folder, never the user's.
export HOME=$work/home MOSAIC_HOME=$work/home/mosaic XDG_CONFIG_HOME=$work/home/config \
       XDG_DATA_HOME=$work/home/data XDG_STATE_HOME=$work/home/state
mkdir -p "$MOSAIC_HOME"
unset DISPLAY
fail() { echo "FAIL: $*"; exit 1; }

cat > "$work/d.json" <<'JSON'
{"params": [
  {"type": "bool", "name": "on", "legend": "On"},
  {"type": "int", "name": "level", "legend": "Level", "min": 0, "max": 10, "default": 5, "active if": "on=true"},
  {"type": "text", "name": "name", "legend": "Name", "value": "clip"}
]}
JSON

out=$("$bin" "$work/d.json" --set level=42 --set name=reel 2>/dev/null) || fail "a good description exits 0"
echo "$out" | grep -q '"level": "10"' || fail "level is held to its range: $out"
echo "$out" | grep -q '"name": "reel"' || fail "name is set: $out"

layout=$("$bin" "$work/d.json" --layout --set on=true) || fail "--layout exits 0"
echo "$layout" | grep -q '"kind": "Checkbox"' || fail "the layout names the kinds: $layout"
echo "$layout" | grep -q '"rows"' || fail "the layout lists rows"

"$bin" "$work/d.json" --state "$work/state.json" --set name=kept >/dev/null 2>&1 || fail "a first run with a state file"
[ -s "$work/state.json" ] || fail "the state was saved"
out=$("$bin" "$work/d.json" --state "$work/state.json" 2>/dev/null)
echo "$out" | grep -q '"name": "kept"' || fail "the state was restored: $out"

echo '{"params": [{"type": "bool", "name": "loop", "legend": "Loop"}]}' > "$work/other.json"
"$bin" "$work/other.json" --state "$work/state.json" --set loop=true >/dev/null 2>&1 || fail "another panel on the same state"
grep -q '"loop"' "$work/state.json" || fail "the other panel's value is saved"
out=$("$bin" "$work/d.json" --state "$work/state.json" 2>/dev/null)
echo "$out" | grep -q '"name": "kept"' || fail "beside the values of the first, which stay: $out"
ls "$work" | grep -q tmp && fail "no temporary file of the saves is left behind: $(ls "$work")"
# Only a saved state is ever written over: a description or a text given to
# --state by mistake is refused and kept byte for byte.
echo "notes of the day" > "$work/notes.txt"
for kept in d.json notes.txt; do
  cp "$work/$kept" "$work/before"
  "$bin" "$work/d.json" --state "$work/$kept" --set name=lost >/dev/null 2>"$work/err"
  [ $? -eq 2 ] || fail "--state $kept that is no saved state exits 2"
  grep -q 'is not a saved state' "$work/err" || fail "and says why: $(cat "$work/err")"
  cmp -s "$work/$kept" "$work/before" || fail "$kept is left as it was"
done

out=$("$bin" 2>/dev/null) || fail "the example panel exits 0"
echo "$out" | grep -q '"choice": "1"' || fail "the example's values: $out"

echo '{"params": [ {"type": ' > "$work/bad.json"
"$bin" "$work/bad.json" >/dev/null 2>"$work/err"
[ $? -eq 2 ] || fail "a description that does not parse exits 2"
grep -q 'is not JSON' "$work/err" || fail "and says why: $(cat "$work/err")"
"$bin" "$work/d.json" --set ghost=1 >/dev/null 2>"$work/err"
[ $? -eq 2 ] || fail "an unknown id exits 2"
grep -q 'no parameter "ghost"' "$work/err" || fail "and names it: $(cat "$work/err")"
echo "mosaic-panel: all passed"
