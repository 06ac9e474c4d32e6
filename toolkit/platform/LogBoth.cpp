#include "LogBoth.h"

#include <cstdarg>
#include <cstdio>

void LogBoth(const char* format, ...) {
    if (!format) return;
    va_list args;
    va_start(args, format);
    std::vfprintf(stderr, format, args);
    va_end(args);
    std::fputc('\n', stderr);
}
