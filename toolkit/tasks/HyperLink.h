#pragma once

#include "LoggerBase.h"

#include <vector>

/// What a log row of kind otHyperLink points at: one or more targets and the text
/// shown for them. The string form kept in a log item is, in the simple case, the
/// target alone: a bare path or web address is a link to itself. A link to a panel
/// of the application ("internal") has as first target a JSON object, the text
/// that describes the panel, and so begins with '{'. Links with several targets
/// or with a description of their own are written as a JSON envelope:
/// {"hyperlink":{"description":"...","targets":["...", ...]}}.
/// Targets are kept as they are, "|" and "," included.
class LoggerBase::HyperLink {
public:
    HyperLink() = default;
    // A link to one target, shown as itself.
    explicit HyperLink(const LightweightString<wchar_t>& target);
    // Empty targets are dropped.
    HyperLink(const std::vector<LightweightString<wchar_t>>& targets, const LightweightString<wchar_t>& description);

    // Never fails: text that is no envelope is one target; empty text is no link.
    static HyperLink fromString(const LightweightString<wchar_t>& text);
    // The shortest string form that fromString reads back as this link.
    LightweightString<wchar_t> toString() const;

    // The description, or the first target when there is none.
    LightweightString<wchar_t> getDescription() const;
    // True when the first target is a JSON description of a panel rather than a path or an address.
    bool isInternal() const;
    const std::vector<LightweightString<wchar_t>>& getTargets() const { return targets_; }
    bool empty() const { return targets_.empty(); }

private:
    static bool readEnvelope(const LightweightString<wchar_t>& text, HyperLink& link);
    LightweightString<wchar_t> envelope() const;

    std::vector<LightweightString<wchar_t>> targets_;
    LightweightString<wchar_t> description_;
};
