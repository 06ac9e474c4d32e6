#include "ParamBase.h"

#include "core/Utf8.h"

namespace GenericParam {

ParamBase::ParamBase(const LightweightString<char>& id, const LightweightString<char>& valueType, const UIString& legend, const UIString& tooltip)
    : valueType_(valueType), id_(id), legend_(legend), tooltip_(tooltip) {}

ParamBase::ParamBase(const ParamBase& other)
    : Zn::InternalRefCount(), valueType_(other.valueType_), id_(other.id_), legend_(other.legend_), tooltip_(other.tooltip_), active_(other.active_),
      changeHandlers_(other.changeHandlers_), valueConstraints_(other.valueConstraints_), presentationHints_(other.presentationHints_),
      lessThan_(other.lessThan_), greaterThan_(other.greaterThan_), visibleIf_(other.visibleIf_) {
    // The vector shares its storage when copied; a clone's conditions are its own.
    for (const auto& condition : other.activeIf_) activeIf_.push_back(condition);
}

void ParamBase::addChangeHandler(const Zn::Ptr<iValueChangeHandler>& handler) {
    if (handler) changeHandlers_.push_back(handler);
}

void ParamBase::addValueConstraint(const Zn::Ptr<iValueConstraint>& constraint) {
    if (constraint) valueConstraints_.push_back(constraint);
}

void ParamBase::isActiveIf(const LightweightString<char>& id, const LightweightString<wchar_t>& value) {
    activeIf_.push_back(Zn::AttribValuePair(id, toUTF8(value)));
}

void ParamBase::isVisibleIf(const LightweightString<char>& id, const LightweightString<wchar_t>& value) {
    visibleIf_ = Zn::AttribValuePair(id, toUTF8(value));
}

LightweightString<wchar_t> ParamBase::requestValueChange(const LightweightString<wchar_t>& text) {
    LightweightString<wchar_t> value = text;
    // A list, not a vector: one added while these run does not upset the loop.
    for (const auto& c : valueConstraints_) value = c->constrain(value);
    return value;
}

void ParamBase::handleDataChange(const LightweightString<wchar_t>& text) {
    for (const auto& h : changeHandlers_) h->valueChanged(id_, text);
}

} // namespace GenericParam
