#include "JSONBuilder.h"

#include "TextFile.h"
#include "core/Utf8.h"

#include <sstream>

namespace JSON {

nlohmann::ordered_json* Builder::current() {
    nlohmann::ordered_json* node = &root_;
    for (const auto& [key, index] : path_) node = node->is_array() ? &(*node)[index] : &(*node)[key];
    return node;
}

void Builder::put(const char* key, nlohmann::ordered_json value) {
    if (!hasRoot_) {
        // A value with nothing open starts an object around it.
        root_ = nlohmann::ordered_json::object();
        hasRoot_ = true;
    }
    nlohmann::ordered_json* node = current();
    if (node->is_array())
        node->push_back(std::move(value));
    else if (node->is_object())
        (*node)[key ? key : ""] = std::move(value);
}

void Builder::add(const char* key, const char* value, bool) { put(key, std::string(value ? value : "")); }
void Builder::add(const char* key, const LightweightString<char>& value, bool) { put(key, value.str()); }
void Builder::add(const char* key, const LightweightString<wchar_t>& value, bool) { put(key, toUTF8(value).str()); }
void Builder::add(const char* key, int value) { put(key, value); }
void Builder::add(const char* key, long value) { put(key, value); }
void Builder::add(const char* key, float value) { put(key, value); }
void Builder::add(const char* key, double value) { put(key, value); }
void Builder::add(const char* key, bool value) { put(key, value); }

void Builder::open(const char* key, nlohmann::ordered_json container) {
    if (!hasRoot_) {
        root_ = std::move(container);
        hasRoot_ = true;
        return;
    }
    nlohmann::ordered_json* node = current();
    if (node->is_array()) {
        node->push_back(std::move(container));
        path_.emplace_back(std::string(), node->size() - 1);
    } else {
        std::string k = key ? key : "";
        (*node)[k] = std::move(container);
        path_.emplace_back(k, 0);
    }
}

void Builder::startChild(const char* key) { open(key, nlohmann::ordered_json::object()); }

void Builder::endChild() {
    if (!path_.empty()) path_.pop_back();
}

void Builder::startArray(const char* key) { open(key, nlohmann::ordered_json::array()); }

void Builder::endArray() { endChild(); }

std::string Builder::dump(int indent) const {
    if (!hasRoot_) return "{}";
    // Text that is not UTF-8 is written with replacement characters rather than refused.
    return root_.dump(indent > 0 ? indent : -1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

LightweightString<char> Builder::getOutput() const { return LightweightString<char>(dump(static_cast<int>(indent_))); }

void Builder::printTo(TextFile& file, unsigned char indent, unsigned char) const {
    std::istringstream lines(dump(indent ? indent : static_cast<int>(indent_)));
    for (std::string line; std::getline(lines, line);) file.appendLine(LightweightString<char>(line));
}

} // namespace JSON
