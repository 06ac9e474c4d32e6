#pragma once

#include "core/XY.h"
#include "core/iObject.h"

// A picture of some size, wherever its pixels live.
class iImage : public virtual iObject {
public:
    virtual XY<int> getSize() const = 0;
    int width() const { return getSize().x; }
    int height() const { return getSize().y; }
};
