#include "LoggerBase.h"

void LoggerBase::write(const LightweightString<wchar_t>&, eOutputType) {}

void LoggerBase::setFilename(const LightweightString<wchar_t>&) {}

void LoggerBase::setFilename(const LightweightString<wchar_t>&, const LightweightString<wchar_t>&) {}

void LoggerBase::getFilename(LightweightString<wchar_t>& name) { name.clear(); }

void LoggerBase::setIndentLevel(unsigned short level) { indent_.store(level, std::memory_order_relaxed); }

void LoggerBase::decIndent() {
    unsigned short level = indent_.load(std::memory_order_relaxed);
    while (level > 0 && !indent_.compare_exchange_weak(level, static_cast<unsigned short>(level - 1), std::memory_order_relaxed)) {}
}

void LoggerBase::incIndent() {
    unsigned short level = indent_.load(std::memory_order_relaxed);
    while (level < 0xFFFF && !indent_.compare_exchange_weak(level, static_cast<unsigned short>(level + 1), std::memory_order_relaxed)) {}
}
