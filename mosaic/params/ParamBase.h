#pragma once

#include "iParam.h"

#include <list>

namespace GenericParam {

/// What every parameter has whatever its value type: names, presentation, the
/// handlers and constraints, and the dependencies on other parameters.
class ParamBase : public iParam {
public:
    ParamBase(const LightweightString<char>& id, const LightweightString<char>& valueType, const UIString& legend, const UIString& tooltip);
    // For clones: the handler and constraint objects are shared, the lists are not.
    ParamBase(const ParamBase& other);
    ParamBase& operator=(const ParamBase&) = delete;

    LightweightString<char> getValueType() const override { return valueType_; }
    LightweightString<char> getID() const override { return id_; }
    UIString getLegend() const override { return legend_; }
    UIString getTooltip() const override { return tooltip_; }
    bool isActive() const override { return active_; }
    void setActive(bool active) override { active_ = active; }
    void addChangeHandler(const Zn::Ptr<iValueChangeHandler>& handler) override;
    void addValueConstraint(const Zn::Ptr<iValueConstraint>& constraint) override;
    unsigned int getPresentationHints() const override { return presentationHints_; }
    void setPresentationHints(unsigned int hints) override { presentationHints_ = hints; }
    void isActiveIf(const LightweightString<char>& id, const LightweightString<wchar_t>& value) override;
    void isLessThan(const LightweightString<char>& id) override { lessThan_ = id; }
    void isGreaterThan(const LightweightString<char>& id) override { greaterThan_ = id; }
    void isVisibleIf(const LightweightString<char>& id, const LightweightString<wchar_t>& value) override;

    const LightweightVector<Zn::AttribValuePair>& getActiveIf() const { return activeIf_; }
    const LightweightString<char>& getLessThan() const { return lessThan_; }
    const LightweightString<char>& getGreaterThan() const { return greaterThan_; }
    const Zn::AttribValuePair& getVisibleIf() const { return visibleIf_; }
    const std::list<Zn::Ptr<iValueChangeHandler>>& changeHandlers() const { return changeHandlers_; }
    const std::list<Zn::Ptr<iValueConstraint>>& valueConstraints() const { return valueConstraints_; }

    // The text after every constraint, in order of addition, each on the result of the one before.
    LightweightString<wchar_t> requestValueChange(const LightweightString<wchar_t>& text);
    // Tells every handler, in order of addition.
    void handleDataChange(const LightweightString<wchar_t>& text);

private:
    LightweightString<char> valueType_;
    LightweightString<char> id_;
    UIString legend_;
    UIString tooltip_;
    bool active_ = true;
    std::list<Zn::Ptr<iValueChangeHandler>> changeHandlers_;
    std::list<Zn::Ptr<iValueConstraint>> valueConstraints_;
    unsigned int presentationHints_ = 0;
    LightweightVector<Zn::AttribValuePair> activeIf_;
    LightweightString<char> lessThan_;
    LightweightString<char> greaterThan_;
    Zn::AttribValuePair visibleIf_;
};

} // namespace GenericParam
