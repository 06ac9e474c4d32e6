#include "JSON.h"

#include "core/Utf8.h"

#include <fstream>
#include <iterator>

namespace JSON {

// Builds the element tree straight from the parser's events, with no document in
// between: reading a folder of files is dominated by this.
class ElementBuilder : public nlohmann::json_sax<nlohmann::json> {
public:
    Zn::Ptr<Element> root;

    bool null() override { return true; }
    bool boolean(bool v) override {
        if (!stack_.empty()) stack_.back()->bools_.emplace_back(takeKey(), v);
        return true;
    }
    bool number_integer(number_integer_t v) override { return number(static_cast<double>(v)); }
    bool number_unsigned(number_unsigned_t v) override { return number(static_cast<double>(v)); }
    bool number_float(number_float_t v, const string_t&) override { return number(v); }
    bool string(string_t& v) override {
        if (!stack_.empty()) stack_.back()->strings_.push_back({takeKey(), LightweightString<char>(v)});
        return true;
    }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return open(); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override {
        open();
        inArray_.back() = true;
        return true;
    }
    bool end_array() override { return close(); }
    bool key(string_t& k) override {
        key_ = LightweightString<char>(k);
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        root.reset();
        return false;
    }

private:
    LightweightString<char> takeKey() {
        if (!inArray_.empty() && inArray_.back()) return {};
        LightweightString<char> k = key_;
        key_.clear();
        return k;
    }
    bool number(double v) {
        if (!stack_.empty()) stack_.back()->numericAttribs.push_back({takeKey(), v});
        return true;
    }
    bool open() {
        Zn::Ptr<Element> e(new Element(stack_.empty() ? LightweightString<char>() : takeKey()));
        if (stack_.empty())
            root = e;
        else
            stack_.back()->children_.push_back(e);
        stack_.push_back(e.get());
        inArray_.push_back(false);
        return true;
    }
    bool close() {
        stack_.pop_back();
        inArray_.pop_back();
        return true;
    }

    std::vector<Element*> stack_;
    std::vector<bool> inArray_;
    LightweightString<char> key_;
};

Zn::Ptr<Element> parse(const LightweightString<char>& text) {
    ElementBuilder builder;
    // A top that is not an object or array builds no element.
    if (!nlohmann::json::sax_parse(text.begin(), text.end(), &builder)) return {};
    return builder.root;
}

Zn::Ptr<Element> parse(const LightweightString<wchar_t>& text) { return parse(toUTF8(text)); }

Zn::Ptr<Element> parseFile(const LightweightString<wchar_t>& path) {
    std::ifstream in(toUTF8(path).c_str(), std::ios::binary);
    if (!in) return {};
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return parse(LightweightString<char>(text));
}

} // namespace JSON
