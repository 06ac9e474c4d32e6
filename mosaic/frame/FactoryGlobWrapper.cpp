#include "FactoryGlobWrapper.h"

#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/StateSaver.h"
#include "glob/GlobManager.h"

#include <cmath>

FactoryGlobWrapper::FactoryGlobWrapper(const StandardPanel::InitArgs& args) : StandardPanel(args) {
    GlobCreationInfo info;
    {
        Glib::StateSaver saver;
        info = static_cast<const GlobCreationInfo&>(args);
        info.canvas = canvas();
        info.width = width();
        info.height = height();
        info.palette = args.palette;
        info.isChild = true;
        info.reserved1 = nullptr;
        info.reserved2 = 0;
    }
    glob_ = GlobManager::instance().createGlob(info);
    if (!glob_) return;
    addWidget(glob_, 0, 0, kNoPosition, WidgetSurround(), nullptr);
    idString_ = "FactoryGlobWrapper";
}

void FactoryGlobWrapper::resize(double w, double h) {
    StandardPanel::resize(w, h);
    if (glob_) glob_->resize(w, h);
}

void FactoryGlobWrapper::setVisible(bool v) {
    StandardPanel::setVisible(v);
    if (glob_) glob_->setVisible(v);
}

XY<int> FactoryGlobWrapper::getMinSize() const { return glob_ ? glob_->getMinSize() : StandardPanel::getMinSize(); }

void FactoryGlobWrapper::drawBackground() {
    if (!glob_) {
        CanvasRenderer(canvas()).fill(getPalette().window());
        return;
    }
    int mx = static_cast<int>(std::ceil((width() - glob_->width()) * 0.5));
    int my = static_cast<int>(std::ceil((height() - glob_->height()) * 0.5));
    CanvasRenderer r(canvas());
    Colour shade = getPalette().window(kShadeNormal);
    auto fill = [&](const BoxInt& b) {
        r.render(Glib::RectDescription(b, shade));
        canvas()->addModifiedArea(b.translated(canvasPos().x, canvasPos().y));
    };
    if (mx > 0) {
        fill(BoxInt(0, 0, mx, height()));
        fill(BoxInt(width() - mx, 0, width(), height()));
    }
    if (my > 0) {
        fill(BoxInt(0, 0, width(), my));
        fill(BoxInt(0, height() - my, width(), height()));
    }
}
