#pragma once

#include "AttribValuePair.h"
#include "core/Ptr.h"
#include "iValueChangeHandler.h"
#include "iValueConstraint.h"
#include "platform/UIString.h"

namespace GenericParam {

/// A typed, named value that knows how it is presented. Every parameter can be read
/// and written as text, which is how parameters are constrained, compared and saved.
class iParam : public virtual iObject {
public:
    virtual LightweightString<wchar_t> getValueAsString() const = 0;
    virtual void setValueFromString(const LightweightString<wchar_t>& text) = 0;
    virtual LightweightString<char> getValueType() const = 0;
    virtual LightweightString<char> getID() const = 0;
    virtual UIString getLegend() const = 0;
    // Back to the default value; true if the value changed.
    virtual bool reset() = 0;
    virtual UIString getTooltip() const = 0;
    virtual bool isActive() const = 0;
    virtual void setActive(bool active) = 0;
    virtual void addChangeHandler(const Zn::Ptr<iValueChangeHandler>& handler) = 0;
    virtual void addValueConstraint(const Zn::Ptr<iValueConstraint>& constraint) = 0;
    virtual unsigned int getPresentationHints() const = 0;
    virtual void setPresentationHints(unsigned int hints) = 0;
    // The same parameter with a server of its own: a change of one does not reach the other.
    virtual Zn::Ptr<iParam> clone() const = 0;
    // The dependencies below are only recorded here; whoever builds the panel acts on them.
    virtual void isActiveIf(const LightweightString<char>& id, const LightweightString<wchar_t>& value) = 0;
    virtual void isLessThan(const LightweightString<char>& id) = 0;
    virtual void isGreaterThan(const LightweightString<char>& id) = 0;
    virtual void isVisibleIf(const LightweightString<char>& id, const LightweightString<wchar_t>& value) = 0;
    // Runs every constraint and handler once on the present value, leaving it as it is.
    virtual void enforceConstraints() = 0;
};

} // namespace GenericParam
