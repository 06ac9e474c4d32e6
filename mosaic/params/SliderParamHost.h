#pragma once

#include "frame/WidgetHost.h"

/// The host of a slider row: a titled slider and, at its right, a numeric box. A
/// change of the row's width goes wholly to the slider; the box keeps its size and
/// follows the right edge.
class SliderParamHost : public WidgetHost {
public:
    using InitArgs = WidgetHost::InitArgs;
    explicit SliderParamHost(const InitArgs& args) : WidgetHost(args) {}

    void resize(double width, double height) override;
    // Passes the state to every child; the host's own state stays as it was.
    void setActive(bool active, eRedrawFlag flag = kRedraw) override;

    // The row's titled slider, set by whoever fills the host.
    Glob* titled = nullptr;
};
