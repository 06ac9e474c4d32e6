// The free functions through which any code writes to a logger, and make_logger.
#include "Logger.h"

#include "core/WStringFromAscii.h"
#include "glob/makeTopLevel.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>

namespace {

constexpr std::size_t kFormatBufferBytes = 1024;

// The length of `text` without a last UTF-8 character that the cut left unfinished.
std::size_t wholeCharacters(const char* text, std::size_t length) {
    std::size_t start = length, tail = 0;
    while (start > 0 && tail < 3 && (static_cast<unsigned char>(text[start - 1]) & 0xC0) == 0x80) --start, ++tail;
    if (start == 0) return length;
    auto lead = static_cast<unsigned char>(text[start - 1]);
    std::size_t need = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    return need > tail + 1 ? start - 1 : length;
}

void writeFormatted(Logger* logger, LoggerBase::eOutputType type, const char* format, va_list args) {
    if (!is_good_logger_ptr(logger) || !format) return;
    auto buffer = std::make_unique<char[]>(kFormatBufferBytes);
    int n = std::vsnprintf(buffer.get(), kFormatBufferBytes, format, args);
    if (n < 0) return;
    // A message longer than the buffer keeps the 1,023 bytes that fit, ending on a
    // whole character.
    std::size_t length = std::min<std::size_t>(static_cast<std::size_t>(n), kFormatBufferBytes - 1);
    if (static_cast<std::size_t>(n) > length) length = wholeCharacters(buffer.get(), length);
    logger->write(Zn::WStringFromAscii(buffer.get(), length), type);
}

} // namespace

bool is_good_logger_ptr(const Glob* g) { return is_good_glob_ptr(g) && std::strcmp(g->idstring(), "logger") == 0; }

#define LOGGER_FORMATTED(name, type)                                                                                                                 \
    void name(Logger* logger, const char* format, ...) {                                                                                             \
        va_list args;                                                                                                                                \
        va_start(args, format);                                                                                                                      \
        writeFormatted(logger, type, format, args);                                                                                                  \
        va_end(args);                                                                                                                                \
    }

LOGGER_FORMATTED(logger_write, LoggerBase::otNormal)
LOGGER_FORMATTED(logger_error, LoggerBase::otError)
LOGGER_FORMATTED(logger_warning, LoggerBase::otWarning)
LOGGER_FORMATTED(logger_status_line, LoggerBase::otStatus)
#undef LOGGER_FORMATTED

void loggerWrite(Logger* logger, const LightweightString<wchar_t>& text, LoggerBase::eOutputType type) {
    if (is_good_logger_ptr(logger)) logger->write(text, type);
}

void logger_setFont(Logger* logger, LightweightString<char> name, Colour) {
    if (is_good_logger_ptr(logger)) logger->Glib::FontUser::setFont(Glib::FontDesc(name, 0, 0));
}

void logger_set_new_title(Logger* logger, LightweightString<wchar_t> title) {
    if (is_good_logger_ptr(logger)) logger->set_new_title(title);
}

void logger_display_progress(Logger* logger, double fraction) {
    if (is_good_logger_ptr(logger)) logger->progress(fraction);
}

Logger* make_logger(LightweightString<wchar_t> title, bool flag1, LightweightString<wchar_t>, bool showProgress, unsigned short numRows,
                    unsigned short width, int x, int y) {
    Logger::InitArgs a(numRows, width, 0);
    a.title = UIString(title);
    // Added after the height was computed: the gauge's row is not counted.
    if (flag1) a.flags |= Logger::kMadeByFunction;
    if (showProgress) a.flags |= Logger::kShowProgress;
    return makeTopLevel<Logger>(a, x < 0 ? Glob::Centre(0, 0, kAlignCentre) : Glob::BottomLeft(x, y));
}
