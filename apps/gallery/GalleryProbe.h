#pragma once

#include <cstdio>
#include <map>
#include <optional>
#include <string>

class Glob;

// What a script driving the gallery's window can read back: where the top-level
// globs and the named widgets are (top-down window coordinates, as a tool such as
// xdotool counts them), and the values of the named value widgets.
//
// The report file holds one line a named value widget, "value NAME KIND VALUE", and
// a line "focus NAME" for the named widget that has the keyboard focus (or "-").
// A widget that has gone keeps its last value, so the file still tells what a
// panel held after it was closed. The file is replaced whole, never half written.
class GalleryProbe {
public:
    explicit GalleryProbe(std::string reportPath = {}) : reportPath_(std::move(reportPath)) {}

    // "root KIND X Y W H close CX CY": each top-level glob and its close box's centre.
    static void printRoots(std::FILE* out);
    // "widget NAME KIND X Y W H": every glob, roots included, with its idstring as
    // KIND; NAME is "-" for a glob that has none. A named table adds
    // "row NAME INDEX X Y W H TEXT" for each row it shows (the first column).
    static void printWidgets(std::FILE* out);

    bool reporting() const { return !reportPath_.empty(); }
    // Reads the values of the named widgets on the screen and rewrites the report
    // when anything changed. False when the file cannot be written.
    bool capture();

    // The value a widget shows, as text; nothing for a glob that holds no value.
    static std::optional<std::string> valueOf(const Glob* g);

private:
    std::string reportText() const;
    bool write(const std::string& text) const;

    std::string reportPath_;
    std::map<std::string, std::string> values_;
    std::string focus_ = "-";
    std::string written_;
};
