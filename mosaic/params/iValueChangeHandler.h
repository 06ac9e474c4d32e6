#pragma once

#include "core/LightweightString.h"
#include "core/iObject.h"

namespace GenericParam {

/// Told of every change of a parameter's value, as text.
class iValueChangeHandler : public iObject {
public:
    virtual void valueChanged(const LightweightString<char>& id, const LightweightString<wchar_t>& value) = 0;
};

} // namespace GenericParam
