#pragma once

#include "core/LightweightString.h"

#include <nlohmann/json.hpp>
#include <vector>

class TextFile;

namespace JSON {

/// Writes a JSON document step by step: children and arrays are opened and
/// closed around the values added into them. Inside an array, values are added
/// with an empty (or null) key. Keys keep the order they were added in.
class Builder {
public:
    // `indent`: spaces per level of the output; 0 writes one line.
    explicit Builder(unsigned int indent = 2) : indent_(indent) {}

    // The flag asks for the text to be kept as a string even when it reads as a number.
    void add(const char* key, const char* value, bool asString = true);
    void add(const char* key, const LightweightString<char>& value, bool asString = true);
    void add(const char* key, const LightweightString<wchar_t>& value, bool asString = true);
    void add(const char* key, int value);
    void add(const char* key, long value);
    void add(const char* key, float value);
    void add(const char* key, double value);
    void add(const char* key, bool value);

    // A null key opens the top object, or an object inside an array.
    void startChild(const char* key);
    void endChild();
    void startArray(const char* key);
    void endArray();

    // The document so far; unclosed children count as closed.
    LightweightString<char> getOutput() const;
    // Appends the document to a text file, one line of output per line of the file.
    // `indent` overrides the builder's indent when not 0; `flags` is kept for callers.
    void printTo(TextFile& file, unsigned char indent, unsigned char flags) const;

private:
    void put(const char* key, nlohmann::ordered_json value);
    // Opens an object or array under `key`, or as the next element of an open array.
    void open(const char* key, nlohmann::ordered_json container);
    nlohmann::ordered_json* current();
    std::string dump(int indent) const;

    unsigned int indent_;
    nlohmann::ordered_json root_;
    bool hasRoot_ = false;
    // The path from the root to the open container, as keys or array positions.
    std::vector<std::pair<std::string, std::size_t>> path_;
};

} // namespace JSON
