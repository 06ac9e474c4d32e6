#pragma once

#include "core/LightweightString.h"

#include <vector>

/// A text file as lines: read whole, appended to, and saved whole. Saving writes a
/// temporary file beside the target and renames it over the old one, so a crash
/// mid-save leaves the old file as it was.
class TextFile {
public:
    // 0: the platform's line ending (LF here), 1: LF, 2: CR LF.
    enum eEOLStyle { kPlatformEOL = 0, kLF = 1, kCRLF = 2 };

    // With `read`, the lines of an existing file are loaded (any line ending);
    // otherwise the file starts empty and is only written by save().
    explicit TextFile(const LightweightString<wchar_t>& path, bool read = true);

    void appendLine(const LightweightString<char>& utf8Line);
    void appendLine(const LightweightString<wchar_t>& line);
    const std::vector<LightweightString<char>>& lines() const { return lines_; }
    std::size_t size() const { return lines_.size(); }
    void clear() { lines_.clear(); }
    const LightweightString<wchar_t>& path() const { return path_; }

    // Writes to `path`, or to the file's own path when it is empty. False when the
    // file could not be written; the old file is then untouched.
    bool save(const LightweightString<wchar_t>& path = {}, eEOLStyle style = kLF) const;

private:
    LightweightString<wchar_t> path_;
    std::vector<LightweightString<char>> lines_;
};

// Writes `bytes` to `path` through a temporary file in the same folder, flushed to
// disk and renamed over the old file. False when any step failed.
bool writeFileAtomically(const LightweightString<char>& path, const std::string& bytes);
