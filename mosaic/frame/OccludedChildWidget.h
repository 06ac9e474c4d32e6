#pragma once

#include "WidgetHost.h"

/// A host whose whole area is covered by its children, so it paints nothing of its own.
class OccludedChildWidget : public WidgetHost {
public:
    using InitArgs = WidgetHost::InitArgs;
    explicit OccludedChildWidget(const InitArgs& args) : WidgetHost(args) {}
    const char* idstring() const override { return "OccludedChildWidget"; }
    void drawBackground() override {}
};
