#include "glib_getScreenRect.h"

#include "GlobManager.h"
#include "draw/Screen.h"
#include "image/HostImage.h"

#include <algorithm>
#include <cstring>

Zn::Ptr<iImage> glib_getScreenRect(const BoxInt& area) {
    const int w = area.x2 - area.x1, h = area.y2 - area.y1;
    if (w <= 0 || h <= 0) return {};
    GlobManager& gm = GlobManager::instance();
    gm.compose();
    const Screen& screen = gm.screen();
    Zn::Ptr<iHostImage> image(new HostImage(w, h));
    std::uint8_t* out = image->data();
    if (!out) return {};
    const int stride = image->stride();
    const int x1 = std::max(area.x1, 0), x2 = std::min(area.x2, screen.width());
    if (x1 < x2) {
        const unsigned char* in = screen.data();
        // Both count rows from the top; the area's top row is y2 - 1, bottom up.
        for (int row = 0; row < h; ++row) {
            const int y = area.y2 - 1 - row;
            if (y < 0 || y >= screen.height()) continue;
            const int screenRow = screen.height() - 1 - y;
            const std::ptrdiff_t to = static_cast<std::ptrdiff_t>(row) * stride + 4 * static_cast<std::ptrdiff_t>(x1 - area.x1);
            const std::ptrdiff_t from = static_cast<std::ptrdiff_t>(screenRow) * screen.stride() + 4 * static_cast<std::ptrdiff_t>(x1);
            std::memcpy(out + to, in + from, 4 * static_cast<std::size_t>(x2 - x1));
        }
    }
    return Zn::dynamicCast<iImage>(image);
}
