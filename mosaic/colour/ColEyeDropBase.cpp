#include "ColEyeDropBase.h"

#include "core/ColourData.h"
#include "core/StringFromFloat.h"
#include "core/asDouble.h"
#include "core/splitIf.h"
#include "glob/glib_getScreenRect.h"
#include "image/iPixelGuard.h"

#include <algorithm>
#include <cstdint>

namespace {
constexpr const char* kMessageName = "colour_eye_dropper";

Zn::Ptr<iPixelGuard> grab(const Zn::Box<double, Zn::BottomUpTraits>& box) {
    const BoxInt area(static_cast<int>(box.x1), static_cast<int>(box.y1), static_cast<int>(box.x2), static_cast<int>(box.y2));
    return iPixelGuard::lock(glib_getScreenRect(area));
}
} // namespace

ColEyeDropBase::Triple ColEyeDropBase::getPixelColour(const Zn::Box<double, Zn::BottomUpTraits>& box) {
    Triple mean;
    const Zn::Ptr<iPixelGuard> pixels = grab(box);
    if (!pixels) return mean;
    const std::uint32_t n = static_cast<std::uint32_t>(pixels->size().x) * static_cast<std::uint32_t>(pixels->size().y);
    if (n == 0) return mean;
    std::uint32_t sums[3] = {0, 0, 0};
    for (int y = 0; y < pixels->size().y; ++y) {
        const std::uint8_t* p = pixels->at(0, y);
        for (int x = 0; x < pixels->size().x; ++x, p += 4) {
            sums[0] += p[0];
            sums[1] += p[1];
            sums[2] += p[2];
        }
    }
    mean.blue = static_cast<unsigned char>(sums[0] / n);
    mean.green = static_cast<unsigned char>(sums[1] / n);
    mean.red = static_cast<unsigned char>(sums[2] / n);
    return mean;
}

ColEyeDropBase::Range ColEyeDropBase::getPixelRange(const Zn::Box<double, Zn::BottomUpTraits>& box) {
    Range range{};
    const Zn::Ptr<iPixelGuard> pixels = grab(box);
    if (!pixels) return range;
    bool counted = false;
    for (int y = 0; y < pixels->size().y; ++y) {
        const std::uint8_t* p = pixels->at(0, y);
        for (int x = 0; x < pixels->size().x; ++x, p += 4) {
            double h = 0.0, s = 0.0, v = 0.0;
            ColourData::RGBToHSV(p[2] / 255.0, p[1] / 255.0, p[0] / 255.0, h, s, v);
            if (s == 0.0 || v == 0.0) continue;
            if (!counted) {
                range = {h, h, s, s, v, v};
                counted = true;
                continue;
            }
            range = {std::min(range[0], h), std::max(range[1], h), std::min(range[2], s),
                     std::max(range[3], s), std::min(range[4], v), std::max(range[5], v)};
        }
    }
    if (!counted) range.fill(-1.0);
    return range;
}

LightweightString<char> ColEyeDropBase::pixelToMsg(const Triple& pixel) {
    const ColourData c(pixel.red / 255.0, pixel.green / 255.0, pixel.blue / 255.0, kColourSpaceRGB, 1.0);
    LightweightString<char> msg(kMessageName);
    msg += " HSV ";
    msg += StringFromFloat(c.getHue());
    msg += " ";
    msg += StringFromFloat(c.getSaturation());
    msg += " ";
    msg += StringFromFloat(c.getValue() / 255.0);
    return msg;
}

int ColEyeDropBase::parse(const char* msg, double& h, double& s, double& v) {
    if (!msg) return 0;
    const auto fields = Zn::splitIf(LightweightString<char>(msg), ' ', Zn::kSplitKeepEmpty);
    if (fields.size() == 5 && fields[0] == kMessageName) {
        h = asDouble(fields[2]);
        s = asDouble(fields[3]);
        v = asDouble(fields[4]);
    }
    return 0;
}

void ColEyeDropBase::grabPixelColour(int x, int y, LightweightString<char>& msg) {
    msg = pixelToMsg(getPixelColour(Zn::Box<double, Zn::BottomUpTraits>(x, y, x + 1, y + 1)));
}
