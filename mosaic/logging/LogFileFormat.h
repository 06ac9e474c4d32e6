#pragma once

#include "LoggedItem.h"

#include <vector>

/// How a log is written to disk: as plain text, one row per line, or as HTML, the
/// whole log as one preformatted block with each kind in its own mark-up. Both are
/// written through TextFile, so a failed save leaves any old file whole.
class LogFileFormat {
public:
    // The HTML line of one item. The file's colours differ from the panel's on
    // purpose: they are meant for a white page.
    static LightweightString<wchar_t> htmlLine(const LoggerBase::Item& item);
    // False when the file could not be written.
    static bool saveAsText(const std::vector<LoggedItem>& rows, const LightweightString<wchar_t>& path);
    static bool saveAsHTML(const std::vector<LoggerBase::Item>& items, const LightweightString<wchar_t>& path);
};
