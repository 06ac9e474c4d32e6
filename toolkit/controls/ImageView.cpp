#include "ImageView.h"

#include "draw/CanvasRenderer.h"

void ImageView::setImage(const Zn::Ptr<iImage>& image, eRedrawFlag flag) {
    image_ = image;
    if (flag == kRedraw) redraw();
}

BoxInt ImageView::imageArea() const { return image_ ? image_->fittedInto(BoxInt(0, 0, width(), height())) : BoxInt(); }

void ImageView::drawBackground() {
    Glob::drawBackground();
    BoxInt area = imageArea();
    if (!area.isEmpty()) CanvasRenderer(canvas()).render(Glib::ImageDescription(image_, area));
}
