#pragma once

#include "core/Ptr.h"
#include "iGPUImage.h"

/// The GPU image of this platform: a host image's pixels behind the GPU interface.
class GPUImage : public iGPUImage {
public:
    // A transparent picture of the size; sizes below 1 give an empty picture.
    GPUImage(int width, int height);

    XY<int> getSize() const override { return pixels_->getSize(); }
    std::uint8_t* data() override { return pixels_->data(); }
    const std::uint8_t* data() const override { return pixels_->data(); }
    int stride() const override { return pixels_->stride(); }
    cairo_surface_t* surface() const override { return pixels_->surface(); }

private:
    Zn::Ptr<iHostImage> pixels_;
};
