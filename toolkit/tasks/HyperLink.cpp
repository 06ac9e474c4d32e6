#include "HyperLink.h"

#include "core/Utf8.h"

#include <nlohmann/json.hpp>

namespace {
constexpr const char* kEnvelopeKey = "hyperlink";

bool startsLikeJsonObject(const LightweightString<wchar_t>& text) {
    std::wstring_view v = text.view();
    std::size_t first = v.find_first_not_of(L" \t\r\n");
    return first != std::wstring_view::npos && v[first] == L'{';
}

LightweightString<wchar_t> wide(const std::string& utf8) { return fromUTF8(LightweightString<char>(utf8)); }
} // namespace

LoggerBase::HyperLink::HyperLink(const LightweightString<wchar_t>& target) {
    if (!target.empty()) targets_.push_back(target);
}

LoggerBase::HyperLink::HyperLink(const std::vector<LightweightString<wchar_t>>& targets, const LightweightString<wchar_t>& description)
    : description_(description) {
    for (const auto& t : targets)
        if (!t.empty()) targets_.push_back(t);
}

LoggerBase::HyperLink LoggerBase::HyperLink::fromString(const LightweightString<wchar_t>& text) {
    HyperLink link;
    if (text.empty()) return link;
    if (startsLikeJsonObject(text) && readEnvelope(text, link)) return link;
    return HyperLink(text);
}

bool LoggerBase::HyperLink::readEnvelope(const LightweightString<wchar_t>& text, HyperLink& link) {
    auto doc = nlohmann::json::parse(toUTF8(text).view(), nullptr, false);
    if (doc.is_discarded() || !doc.is_object()) return false;
    auto it = doc.find(kEnvelopeKey);
    if (it == doc.end() || !it->is_object()) return false;
    if (auto d = it->find("description"); d != it->end() && d->is_string()) link.description_ = wide(d->get<std::string>());
    if (auto ts = it->find("targets"); ts != it->end() && ts->is_array())
        for (const auto& t : *ts)
            if (t.is_string() && !t.get<std::string>().empty()) link.targets_.push_back(wide(t.get<std::string>()));
    return true;
}

LightweightString<wchar_t> LoggerBase::HyperLink::toString() const {
    if (targets_.empty()) return {};
    bool plain = targets_.size() == 1 && (description_.empty() || description_ == targets_[0]);
    // A lone target that itself looks like an envelope must be wrapped, or it would be read as one.
    if (plain) {
        HyperLink probe;
        if (!startsLikeJsonObject(targets_[0]) || !readEnvelope(targets_[0], probe)) return targets_[0];
    }
    return envelope();
}

LightweightString<wchar_t> LoggerBase::HyperLink::envelope() const {
    nlohmann::json targets = nlohmann::json::array();
    for (const auto& t : targets_) targets.push_back(toUTF8(t).str());
    nlohmann::json inner = {{"description", toUTF8(description_).str()}, {"targets", targets}};
    nlohmann::json doc = {{kEnvelopeKey, inner}};
    // Replacement rather than an exception for text that is not Unicode.
    return wide(doc.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

LightweightString<wchar_t> LoggerBase::HyperLink::getDescription() const {
    if (!description_.empty()) return description_;
    return targets_.empty() ? LightweightString<wchar_t>() : targets_[0];
}

bool LoggerBase::HyperLink::isInternal() const { return !targets_.empty() && startsLikeJsonObject(targets_[0]); }
