#include "SliderParamHost.h"

void SliderParamHost::resize(double w, double h) {
    if (titled) titled->resize(titled->width() + w - width(), titled->height());
    WidgetHost::resize(w, h);
}

void SliderParamHost::setActive(bool active, eRedrawFlag flag) {
    for (Glob* child : getChildren())
        if (child) child->setActive(active, kNoRedraw);
    if (flag == kRedraw) redraw();
}
