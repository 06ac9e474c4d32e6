#pragma once

#include "core/LightweightString.h"
#include "core/Ptr.h"
#include "iHostImage.h"

/// A host image held in a Cairo image surface.
class HostImage : public iHostImage {
public:
    // A transparent picture of the size; sizes below 1 give an empty picture.
    HostImage(int width, int height);
    ~HostImage() override;
    HostImage(const HostImage&) = delete;
    HostImage& operator=(const HostImage&) = delete;

    // The PNG file at the path; null when it cannot be read.
    static Zn::Ptr<iHostImage> loadPNG(const LightweightString<wchar_t>& path);

    XY<int> getSize() const override;
    std::uint8_t* data() override;
    const std::uint8_t* data() const override;
    int stride() const override;
    cairo_surface_t* surface() const override { return surface_; }

private:
    explicit HostImage(cairo_surface_t* adopted) : surface_(adopted) {}
    cairo_surface_t* surface_;
};
