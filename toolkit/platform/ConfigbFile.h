#pragma once

#include "configb.h"

/// The text form of a configb, for keeping one in a file: a JSON object whose keys
/// are the entries' keys, in their order, each holding its type word and its value
/// as strings, as in {"gain": {"type": "double", "value": "0.5"}}.
///
/// Reading is all or nothing for text that is not such an object, so a torn or
/// foreign file leaves the store as it was. Inside a good object, an entry of the
/// wrong shape is dropped and the others are kept.
class ConfigbFile {
public:
    static LightweightString<char> toText(const configb& config);
    // Replaces the entries of `config` with those of the text. False, with `config`
    // untouched, when the text is not a JSON object.
    static bool fromText(const LightweightString<char>& text, configb& config);
    // True when the text is a store and nothing else: a JSON object whose every
    // member is an entry, as toText writes. A program about to write a store over
    // a file it was given checks that the file held one.
    static bool isStore(const LightweightString<char>& text);

    // Writes through a temporary file renamed over the old one, so a failed save
    // leaves the old file whole. False when the file could not be written.
    static bool save(const configb& config, const LightweightString<wchar_t>& path);
    // False, with `config` untouched, when the file cannot be read or is not a store.
    static bool load(const LightweightString<wchar_t>& path, configb& config);
};
