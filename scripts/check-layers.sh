#!/usr/bin/env bash
# Checks that the toolkit's includes run down its layers. A file includes headers of
# its own folder and of the layers below its folder's, never of a layer above nor of
# another folder of its own layer, and nothing of the library. Prints each include
# that breaks this and fails; a toolkit folder that is in no layer fails too.
set -euo pipefail
cd "$(dirname "$0")/.."

# The layers, from the ground up.
layers=(
    "core"                   # value types: strings, pointers, geometry, colour, events
    "platform image"         # configuration, resources, files, JSON, commands; pictures in memory
    "draw"                   # canvases, fonts, text, metrics and the screen, knowing no tree
    "glob"                   # the glob tree: layout, input, focus, messages, timers
    "value"                  # notifiers, value servers and adaptors, on the tree's messages
    "tasks controls backend" # task logs and progress; the widgets; the window and its input
    "testing"                # the test kit, which drives all of them
)

status=0
for dir in toolkit/*/; do
    folder=$(basename "$dir")
    if [[ ! " ${layers[*]} " =~ " $folder " ]]; then
        echo "toolkit/$folder is in no layer of $0"
        status=1
    fi
done

grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include[[:space:]]*[<"]' toolkit/*/ |
    awk -v layers="$(printf '%s\n' "${layers[@]}")" '
    BEGIN {
        n = split(layers, rows, "\n")
        for (i = 1; i <= n; ++i) {
            m = split(rows[i], names, " ")
            for (j = 1; j <= m; ++j) rank[names[j]] = i
        }
        bad = 0
    }
    {
        split($0, where, ":")
        split(where[1], path, "/")
        folder = path[2]
        header = $0
        sub(/^[^<"]*[<"]/, "", header)
        sub(/[>"].*$/, "", header)
        if (index(header, "/") == 0) next
        top = substr(header, 1, index(header, "/") - 1)
        if (top in rank) {
            if (top == folder || rank[top] < rank[folder]) next
            why = rank[top] > rank[folder] ? "a layer above" : "beside it in its layer"
            printf "%s:%s includes %s: %s is %s\n", where[1], where[2], header, top, why
            bad = 1
        } else if (system("test -e mosaic/" header) == 0) {
            printf "%s:%s includes %s of the library\n", where[1], where[2], header
            bad = 1
        }
    }
    END { exit bad }' || status=1

exit $status
