#pragma once

#include "InternalRefCount.h"
#include "iVirtual.h"

/// The base of everything that a Zn::Ptr holds.
class iObject : public virtual Zn::InternalRefCount, public virtual iVirtual {
public:
    ~iObject() override = default;
};
