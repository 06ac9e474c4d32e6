#include "IdStamp.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <unistd.h>

IdStamp::IdStamp(const char* text) {
    unsigned a = 0, b = 0, c = 0;
    char tail = 0;
    if (text && std::sscanf(text, "%x-%x-%x%c", &a, &b, &c, &tail) == 3) {
        a_ = a;
        b_ = b;
        c_ = c;
    }
}

IdStamp IdStamp::make() {
    // The process and its start time make stamps of different runs differ; the
    // counter makes them unique within a run.
    static const unsigned session = static_cast<unsigned>(std::chrono::steady_clock::now().time_since_epoch().count() & 0xffffffffu);
    static std::atomic<unsigned> counter{0};
    return IdStamp(static_cast<unsigned>(getpid()), session, ++counter);
}

LightweightString<char> IdStamp::asString() const {
    char buf[40];
    std::snprintf(buf, sizeof buf, "%x-%x-%x", a_, b_, c_);
    return buf;
}
