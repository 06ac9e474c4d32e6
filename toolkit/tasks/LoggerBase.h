#pragma once

#include "ProgressReportClient.h"
#include "core/LightweightString.h"
#include "core/iObject.h"

#include <atomic>
#include <cstdint>

/// The base of everything that receives log text and progress: task logs, log
/// panels, progress panels. Its own operations do nothing but keep the indent
/// level, so a receiver overrides only what it shows; text written to a bare
/// LoggerBase is lost. The indent level may be changed from any thread.
class LoggerBase : public ProgressReportClient {
public:
    // The kind of a log item. Values past otSuccess are accepted and shown as otNormal.
    enum eOutputType : std::int32_t {
        otNormal = 0,
        otQuiet = 1,
        otWarning = 2,
        otEmphasis = 3,
        otError = 4,
        otStatus = 5,
        otHyperLink = 6,
        otHeading = 7,
        otSection = 8,
        otSuccess = 9,
    };

    // One item of a log: it travels as the payload of a NotifyMsg, so it is an iObject.
    class Item : public iObject {
    public:
        Item() = default;
        Item(const LightweightString<wchar_t>& t, eOutputType k, unsigned short level = 0) : text(t), type(k), indent(level) {}
        // For otHyperLink the link's string form (HyperLink::toString).
        LightweightString<wchar_t> text;
        eOutputType type = otNormal;
        unsigned short indent = 0;
    };

    // Defined in HyperLink.h.
    class HyperLink;

    LoggerBase() = default;
    ~LoggerBase() override = default;

    virtual void write(const LightweightString<wchar_t>& text, eOutputType type);
    virtual void setFilename(const LightweightString<wchar_t>& name);
    virtual void setFilename(const LightweightString<wchar_t>& name, const LightweightString<wchar_t>& secondName);
    // A base logger has no file: empties `name`.
    virtual void getFilename(LightweightString<wchar_t>& name);
    virtual void setIndentLevel(unsigned short level);
    // Never below 0.
    virtual void decIndent();
    // Never past 65,535.
    virtual void incIndent();

    unsigned short indentLevel() const { return indent_.load(std::memory_order_relaxed); }

private:
    std::atomic<unsigned short> indent_{0};
};
