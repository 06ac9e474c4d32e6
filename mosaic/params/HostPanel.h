#pragma once

#include "UIBuilderParams.h"
#include "controls/StandardPanel.h"

/// A window of its own that shows a panel built from a description or a list of
/// parameters, titled "Output": how a developer tries a description. It keeps the
/// panel's parameter set for as long as it lives.
class HostPanel : public StandardPanel {
public:
    /// What a HostPanel is made from: a JSON description of the panel to build or,
    /// when there is none, a list of parameters, and where the window goes.
    struct InitArgs : StandardPanel::InitArgs {
        Zn::Ptr<JSON::Element> description;
        UIBuilder::ParamList params;
        // Where the window goes; kNoPosition lets the manager choose.
        WidgetPosition position;
        InitArgs() = default;
        InitArgs(unsigned short w, unsigned short h) : StandardPanel::InitArgs(w, h) {}
    };

    explicit HostPanel(const InitArgs& args);
    const char* idstring() const override { return "HostPanel"; }

    // Makes, places and realizes a host panel.
    static HostPanel* make(const InitArgs& args);

    const Zn::Ptr<UIBuilder::Params>& params() const { return params_; }
    // Grows the window, its bottom left staying put, so that rows that run past
    // its user area (a label of several lines, a row added below the built ones)
    // show whole.
    void fitToRows();

private:
    Zn::Ptr<UIBuilder::Params> params_;
};
