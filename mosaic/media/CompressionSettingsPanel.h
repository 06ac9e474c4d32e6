#pragma once

#include "controls/StandardPanel.h"
#include "media/Format.h"
#include "params/UIBuilderParams.h"
#include "platform/configb.h"

/// The settings of one compression as a built parameter panel, one row a setting.
/// Values are restored from the state when the panel is made and saved to it when
/// the panel dies, not as they change; a panel with no state does neither.
class CompressionSettingsPanel : public StandardPanel {
public:
    /// What a CompressionSettingsPanel is made from: a panel's record, its parameters and the state they are kept in.
    struct InitArgs : StandardPanel::InitArgs {
        UIBuilder::ParamList params;
        // Not owned; it must outlive the panel.
        configb* state = nullptr;
        InitArgs() = default;
        // The panel's size holds one row a parameter in a user area `width` wide.
        InitArgs(const UIBuilder::ParamList& params, configb& state, unsigned short width);
        InitArgs(const UIBuilder::ParamList& params, configb* state, unsigned short width);
    };

    explicit CompressionSettingsPanel(const InitArgs& args);
    ~CompressionSettingsPanel() override;
    const char* idstring() const override { return "CompressionSettingsPanel"; }

    // One parameter a setting of the compression, at its default, with the
    // setting's id; none for a compression that has no settings.
    static UIBuilder::ParamList makeParams(Zn::Image::Format code);
    const Zn::Ptr<UIBuilder::Params>& getParams() const { return params_; }

private:
    Zn::Ptr<UIBuilder::Params> params_;
    configb* state_ = nullptr;
};
