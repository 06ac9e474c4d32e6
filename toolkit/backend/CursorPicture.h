#pragma once

#include "core/XY.h"
#include "glob/MouseCursor.h"

#include <cstdint>
#include <optional>
#include <vector>

/// The picture of a cursor that the system has no shape for: the closed hand of
/// dragging a marker (kCursorDrag) and the pipette of taking a colour off the screen
/// (kCursorEyeDropper). Each is a dark outline around a light body, so that it shows
/// on any background. Made on the user-interface thread when the window opens.
class CursorPicture {
public:
    static constexpr int kSize = 32;

    // The picture of `id`, or none for a cursor the system draws itself.
    static std::optional<CursorPicture> draw(MouseCursorID id);

    // kSize rows of kSize pixels, top row first, as 0xAARRGGBB with straight alpha.
    const std::vector<std::uint32_t>& pixels() const { return pixels_; }
    std::uint32_t at(int x, int y) const { return pixels_[static_cast<std::size_t>(y) * kSize + static_cast<std::size_t>(x)]; }
    // The pixel that points, from the top left.
    XY<int> hotspot() const { return hotspot_; }

private:
    CursorPicture() = default;

    std::vector<std::uint32_t> pixels_;
    XY<int> hotspot_;
};
