#pragma once

#include "controls/StandardPanel.h"

/// A panel that hosts a child and adds nothing but its name: the base of hosts
/// such as the slider row and the occluded hosts.
class WidgetHost : public StandardPanel {
public:
    using InitArgs = StandardPanel::InitArgs;
    explicit WidgetHost(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "WidgetHost"; }
};
