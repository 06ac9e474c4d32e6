#include "iPixelGuard.h"

iPixelGuard::iPixelGuard(const Zn::Ptr<iHostImage>& image) : image_(image) {
    const iHostImage& constImage = *image_;
    data_ = constImage.data();
    size_ = constImage.getSize();
    stride_ = constImage.stride();
}

Zn::Ptr<iPixelGuard> iPixelGuard::lock(const Zn::Ptr<iImage>& image) {
    Zn::Ptr<iHostImage> host = Zn::dynamicCast<iHostImage>(image);
    if (!host || host->width() <= 0 || host->height() <= 0) return {};
    Zn::Ptr<iPixelGuard> guard(new iPixelGuard(host));
    if (!guard->data()) return {};
    return guard;
}
