#pragma once

#include "core/Box.h"
#include "core/XY.h"
#include "core/iObject.h"

#include <algorithm>

/// A picture of some size, wherever its pixels live.
class iImage : public virtual iObject {
public:
    virtual XY<int> getSize() const = 0;
    int width() const { return getSize().x; }
    int height() const { return getSize().y; }

    // The largest box of the picture's proportions centred in `box`; empty for an
    // empty picture or box.
    BoxInt fittedInto(const BoxInt& box) const {
        if (width() <= 0 || height() <= 0 || box.width() <= 0 || box.height() <= 0) return {};
        double scale = std::min(double(box.width()) / width(), double(box.height()) / height());
        int w = std::max(1, int(width() * scale)), h = std::max(1, int(height() * scale));
        int x = box.x1 + (box.width() - w) / 2, y = box.y1 + (box.height() - h) / 2;
        return BoxInt(x, y, x + w, y + h);
    }
};
