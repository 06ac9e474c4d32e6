#pragma once

#include "core/LightweightString.h"

/// One entry of a configb: a type word and a value, both text.
struct ConfigEntryT {
    LightweightString<char> type;
    LightweightString<char> value;

    ConfigEntryT() = default;
    ConfigEntryT(const LightweightString<char>& t, const LightweightString<char>& v) : type(t), value(v) {}
    bool operator==(const ConfigEntryT&) const = default;
};
