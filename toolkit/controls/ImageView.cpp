#include "ImageView.h"

#include "draw/CanvasRenderer.h"

#include <algorithm>

void ImageView::setImage(const Zn::Ptr<iImage>& image, eRedrawFlag flag) {
    image_ = image;
    if (flag == kRedraw) redraw();
}

BoxInt ImageView::imageArea() const {
    if (!image_ || image_->width() <= 0 || image_->height() <= 0 || width() <= 0 || height() <= 0) return {};
    double scale = std::min(double(width()) / image_->width(), double(height()) / image_->height());
    int w = std::max(1, int(image_->width() * scale)), h = std::max(1, int(image_->height() * scale));
    int x = (width() - w) / 2, y = (height() - h) / 2;
    return BoxInt(x, y, x + w, y + h);
}

void ImageView::drawBackground() {
    Glob::drawBackground();
    BoxInt area = imageArea();
    if (!area.isEmpty()) CanvasRenderer(canvas()).render(Glib::ImageDescription(image_, area));
}
