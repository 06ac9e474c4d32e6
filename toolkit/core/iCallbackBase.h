#pragma once

#include "iObject.h"

/// Something to call with an argument of type A, giving R. Always held by Zn::Ptr.
template <class R, class A>
class iCallbackBase : public virtual iObject {
public:
    virtual R execute(const A& arg) = 0;
};
