#include "LogFileFormat.h"

#include "core/Utf8.h"
#include "draw/HTMLUtils.h"
#include "platform/TextFile.h"

LightweightString<wchar_t> LogFileFormat::htmlLine(const LoggerBase::Item& item) {
    const LightweightString<wchar_t>& t = item.text;
    switch (item.type) {
    case LoggerBase::otNormal: return t.empty() ? HTMLUtils::addParagraphTags(t, -1, -1) : t;
    case LoggerBase::otWarning: return HTMLUtils::addColourTags(t, 0.6, 0.6, 0.0, 1.0, -1, -1);
    case LoggerBase::otEmphasis: return HTMLUtils::addStyleTags(t, 2, -1, -1);
    case LoggerBase::otError: return HTMLUtils::addColourTags(t, 1.0, 0.0, 0.0, 1.0, -1, -1);
    case LoggerBase::otStatus:
    case LoggerBase::otSection: return L"\n" + HTMLUtils::addStyleTags(t, 1, -1, -1);
    case LoggerBase::otHeading: return HTMLUtils::addStyleTags(t, 1, -1, -1);
    case LoggerBase::otSuccess: return HTMLUtils::addColourTags(t, 0.0, 0.8, 0.2, 1.0, -1, -1);
    default: return {}; // quiet rows, links and unknown kinds leave an empty line
    }
}

bool LogFileFormat::saveAsText(const std::vector<LoggedItem>& rows, const LightweightString<wchar_t>& path) {
    TextFile file(path, false);
    for (const LoggedItem& row : rows) file.appendLine(toUTF8(row.text));
    return file.save({}, TextFile::kLF);
}

bool LogFileFormat::saveAsHTML(const std::vector<LoggerBase::Item>& items, const LightweightString<wchar_t>& path) {
    TextFile file(path, false);
    file.appendLine(LightweightString<char>("<pre>"));
    for (const LoggerBase::Item& item : items) file.appendLine(toUTF8(htmlLine(item)));
    file.appendLine(LightweightString<char>("</pre>"));
    return file.save({}, TextFile::kLF);
}
