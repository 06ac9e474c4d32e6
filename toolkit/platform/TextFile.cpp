#include "TextFile.h"

#include "core/Utf8.h"

#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <unistd.h>

TextFile::TextFile(const LightweightString<wchar_t>& path, bool read) : path_(path) {
    if (!read) return;
    std::ifstream in(toUTF8(path).c_str(), std::ios::binary);
    if (!in) return;
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        std::size_t stop = end == std::string::npos ? text.size() : end;
        std::size_t len = stop - start;
        if (len && text[stop - 1] == '\r') --len;
        lines_.emplace_back(std::string_view(text).substr(start, len));
        if (end == std::string::npos) break;
        start = end + 1;
    }
}

void TextFile::appendLine(const LightweightString<char>& line) { lines_.push_back(line); }
void TextFile::appendLine(const LightweightString<wchar_t>& line) { lines_.push_back(toUTF8(line)); }

bool TextFile::save(const LightweightString<wchar_t>& path, eEOLStyle style) const {
    LightweightString<wchar_t> target = path.empty() ? path_ : path;
    if (target.empty()) return false;
    const char* eol = style == kCRLF ? "\r\n" : "\n";
    std::string bytes;
    for (const auto& l : lines_) {
        bytes.append(l.view());
        bytes.append(eol);
    }
    return writeFileAtomically(toUTF8(target), bytes);
}

bool writeFileAtomically(const LightweightString<char>& path, const std::string& bytes) {
    if (path.empty()) return false;
    LightweightString<char> temp = path + ".tmp" + LightweightString<char>(std::to_string(getpid()));
    int fd = ::open(temp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    std::size_t done = 0;
    while (done < bytes.size()) {
        ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n <= 0) break;
        done += static_cast<std::size_t>(n);
    }
    bool ok = done == bytes.size() && ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    if (ok) ok = std::rename(temp.c_str(), path.c_str()) == 0;
    if (!ok) ::unlink(temp.c_str());
    return ok;
}
