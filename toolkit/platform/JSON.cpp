#include "JSON.h"

#include "core/Utf8.h"

#include <simdjson.h>

namespace JSON {

// Copies simdjson's document into elements. simdjson checks the whole text (syntax,
// UTF-8, depth) before anything is copied, at a fraction of the cost of an event
// parser: reading a folder of documents is dominated by this.
class ElementBuilder {
public:
    // Containers below `levels` are checked but not copied.
    explicit ElementBuilder(int levels) : levels_(levels) {}

    Zn::Ptr<Element> build(simdjson::dom::element top) {
        if (!top.is_object() && !top.is_array()) return {};
        Zn::Ptr<Element> root(new Element(LightweightString<char>()));
        fill(*root, top, 1);
        return root;
    }

private:
    void fill(Element& e, simdjson::dom::element value, int level) {
        simdjson::dom::object object;
        simdjson::dom::array array;
        if (value.get(object) == simdjson::SUCCESS) {
            for (simdjson::dom::key_value_pair field : object) add(e, field.key, field.value, level);
        } else if (value.get(array) == simdjson::SUCCESS) {
            for (simdjson::dom::element item : array) add(e, {}, item, level);
        }
    }

    void add(Element& parent, std::string_view key, simdjson::dom::element v, int level) {
        using simdjson::dom::element_type;
        switch (v.type()) {
        case element_type::OBJECT:
        case element_type::ARRAY:
            if (level < levels_) {
                Zn::Ptr<Element> child(new Element(LightweightString<char>(key)));
                parent.children_.push_back(child);
                fill(*child, v, level + 1);
            }
            break;
        case element_type::STRING:
            parent.strings_.push_back({LightweightString<char>(key), LightweightString<char>(v.get_string().value_unsafe())});
            break;
        case element_type::INT64:
            parent.numericAttribs.push_back({LightweightString<char>(key), static_cast<double>(v.get_int64().value_unsafe())});
            break;
        case element_type::UINT64:
            parent.numericAttribs.push_back({LightweightString<char>(key), static_cast<double>(v.get_uint64().value_unsafe())});
            break;
        case element_type::DOUBLE: parent.numericAttribs.push_back({LightweightString<char>(key), v.get_double().value_unsafe()}); break;
        case element_type::BOOL: parent.bools_.emplace_back(LightweightString<char>(key), v.get_bool().value_unsafe()); break;
        case element_type::NULL_VALUE: break;
        }
    }

    int levels_;
};

namespace {

constexpr int kEveryLevel = 1 << 30;

// One parser a thread: it keeps its buffers from one document to the next.
simdjson::dom::parser& parser() {
    thread_local simdjson::dom::parser p;
    return p;
}

Zn::Ptr<Element> build(const simdjson::padded_string& text, int levels) {
    simdjson::dom::element top;
    if (parser().parse(text).get(top) != simdjson::SUCCESS) return {};
    return ElementBuilder(levels).build(top);
}

Zn::Ptr<Element> buildFile(const LightweightString<wchar_t>& path, int levels) {
    simdjson::padded_string text;
    if (simdjson::padded_string::load(toUTF8(path).c_str()).get(text) != simdjson::SUCCESS) return {};
    return build(text, levels);
}

} // namespace

Zn::Ptr<Element> parse(const LightweightString<char>& text) { return build(simdjson::padded_string(text.view()), kEveryLevel); }

Zn::Ptr<Element> parse(const LightweightString<wchar_t>& text) { return parse(toUTF8(text)); }

Zn::Ptr<Element> parseFile(const LightweightString<wchar_t>& path) { return buildFile(path, kEveryLevel); }

Zn::Ptr<Element> parseFileTop(const LightweightString<wchar_t>& path) { return buildFile(path, 1); }

} // namespace JSON
