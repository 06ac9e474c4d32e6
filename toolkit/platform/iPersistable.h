#pragma once

#include "core/Ptr.h"
#include "core/iObject.h"

namespace JSON {

class Builder;
class Element;

/// An object that writes itself into a JSON builder and reads itself from an element.
class iPersistable : public virtual iObject {
public:
    virtual void write(Builder& b) const = 0;
    // Returns 1 when the element was read.
    virtual int read(const Zn::Ptr<Element>& e) = 0;
};

} // namespace JSON
