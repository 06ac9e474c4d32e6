#pragma once

#include "core/LightweightString.h"
#include "core/iObject.h"

namespace GenericParam {

/// Sees a parameter's new value, as text, before it is stored; may change it.
class iValueConstraint : public iObject {
public:
    virtual LightweightString<wchar_t> constrain(LightweightString<wchar_t>& value) = 0;
};

} // namespace GenericParam
