#pragma once

#include "core/Ptr.h"
#include "core/XY.h"
#include "core/iObject.h"
#include "iHostImage.h"

#include <cstdint>

/// The pixels of a host image held open for reading: four bytes a pixel, blue,
/// green, red, alpha, rows from the top, `stride()` bytes apart. The guard keeps
/// the image alive for as long as it is held.
class iPixelGuard : public iObject {
public:
    // A guard on `image`, or null when it is no host image or has no pixels.
    static Zn::Ptr<iPixelGuard> lock(const Zn::Ptr<iImage>& image);

    const std::uint8_t* data() const { return data_; }
    XY<int> size() const { return size_; }
    int stride() const { return stride_; }
    // The pixel at column x of row y (from the top); the caller keeps within size().
    const std::uint8_t* at(int x, int y) const { return data_ + static_cast<std::ptrdiff_t>(y) * stride_ + 4 * static_cast<std::ptrdiff_t>(x); }

private:
    explicit iPixelGuard(const Zn::Ptr<iHostImage>& image);
    Zn::Ptr<iHostImage> image_;
    const std::uint8_t* data_ = nullptr;
    XY<int> size_;
    int stride_ = 0;
};
