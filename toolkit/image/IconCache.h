#pragma once

#include "core/LightweightString.h"
#include "core/Ptr.h"
#include "iHostImage.h"

#include <map>

/// The pictures of icons by path, read once: a panel full of buttons with the
/// same icon shares one picture. User-interface thread only.
class IconCache {
public:
    static IconCache& instance();
    // Null when the file cannot be read; a failed path is not tried again.
    Zn::Ptr<iHostImage> get(const LightweightString<wchar_t>& path);
    void clear() { images_.clear(); }

private:
    std::map<LightweightString<wchar_t>, Zn::Ptr<iHostImage>> images_;
};
