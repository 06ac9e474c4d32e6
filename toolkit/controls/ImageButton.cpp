#include "ImageButton.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "image/IconCache.h"

#include <algorithm>

ImageButton::ImageButton(const InitArgs& args) : Button(args) { setImage(args.image, kNoRedraw); }

void ImageButton::setImage(const LightweightString<wchar_t>& path, eRedrawFlag flag) {
    path_ = path;
    image_ = IconCache::instance().get(path);
    if (flag == kRedraw) redraw();
}

BoxInt ImageButton::imageBox() const {
    int margin = std::max(2, height() / 8);
    int side = std::max(0, std::min(width(), height()) - 2 * margin);
    if (getLabel().empty()) {
        int x = (width() - side) / 2, y = (height() - side) / 2;
        return BoxInt(x, y, x + side, y + side);
    }
    return BoxInt(margin, margin, margin + side, margin + side);
}

BoxInt ImageButton::labelBox() const {
    if (!image_) return Button::labelBox();
    return BoxInt(imageBox().x2 + UifStd::instance().getWidgetGap(), 0, width(), height());
}

void ImageButton::drawBackground() {
    Button::drawBackground();
    if (!image_) return;
    CanvasRenderer(canvas()).render(Glib::ImageDescription(image_, image_->fittedInto(imageBox()), isActive() ? 1.0 : 0.4));
}
