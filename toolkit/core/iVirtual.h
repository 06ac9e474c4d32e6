#pragma once

/// The root interface of every polymorphic object in the toolkit: only a virtual destructor.
class iVirtual {
public:
    virtual ~iVirtual() = default;
};
