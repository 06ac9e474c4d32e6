#include "IconCache.h"

#include "HostImage.h"

IconCache& IconCache::instance() {
    static IconCache cache;
    return cache;
}

Zn::Ptr<iHostImage> IconCache::get(const LightweightString<wchar_t>& path) {
    auto it = images_.find(path);
    if (it != images_.end()) return it->second;
    Zn::Ptr<iHostImage> image = HostImage::loadPNG(path);
    images_.emplace(path, image);
    return image;
}
