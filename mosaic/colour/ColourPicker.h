#pragma once

#include "ColourDataValClient.h"
#include "ColourDataValWidget.h"
#include "controls/StandardPanel.h"

class ComponentTextBox;
class HSColourWheel;
class Slider;
class WidgetGroup;

/// The panel in which the user chooses a colour: an RGB group of boxes and sliders
/// with a hexadecimal box, an HSV group with the wheel and boxes for hue,
/// saturation and luminance, and with kAlphaGroup an alpha group. Every part is
/// bound to the one colour the picker holds. A change by the user goes out through
/// the picker's own adaptor, if it has one, and as the caller message to the
/// caller (the parent unless set_caller says otherwise). It also takes the
/// eye dropper's "colour_eye_dropper HSV " message. User-interface thread only.
class ColourPicker : public StandardPanel, public ColourDataValWidget, public ColourDataValClient {
public:
    // Flags: which parts react and whether the alpha group is built.
    enum Flags : unsigned int { kRedrawCurrent = 1, kHSVParts = 2, kRGBParts = 4, kAlphaGroup = 8 };
    static constexpr const char* eyeDropperPrefix = "colour_eye_dropper HSV ";

    /// What a ColourPicker is made from: its flags and its starting colour.
    struct InitArgs : GlobCreationInfo {
        unsigned int flags = kRGBParts;
        ColourData colour{1.0, 1.0, 1.0, kColourSpaceHSV, 1.0};
        InitArgs() = default;
        InitArgs(unsigned int flags, const ColourData& colour) : flags(flags), colour(colour) {}
    };

    ColourPicker(const Palette& palette, unsigned int flags);
    explicit ColourPicker(const InitArgs& args);
    ~ColourPicker() override;
    const char* idstring() const override { return "ColourPicker"; }

    static int calcSliderWidth();
    static int calcHSVGroupHeight();
    static XY<int> calcSize(unsigned int flags);

    ColourData getColour() const;
    // Changes the colour and tells no one: the parts show it at their next redraw.
    void setColour(const ColourData& colour);
    // Sends the present colour out: to the outside adaptor, then to the caller.
    void setColour();
    void set_caller(Glob* caller, const char* message);
    void drawCurrent();
    void drawBars();
    void setEnabledState(bool state) override { setActive(state, kNoRedraw); }
    void setActive(bool state, eRedrawFlag flag = kRedraw) override;
    int react(const Event& e) override;

    void setNewWidgetValue(ColourData& colour, eRedrawFlag flag) override;
    ColourData getWidgetValue() const override { return getColour(); }
    void valChangedNtfy() override;

    static const char* getDisplayName(ColourData::ComponentID id);
    static Colour getSliderColour(ColourData::ComponentID id);

    ValServer<ColourData>& server() { return server_; }
    unsigned int flags() const { return flags_; }
    Slider* componentSlider(int i) const { return i >= 0 && i < 4 ? sliders_[i] : nullptr; }
    ComponentTextBox* componentBox(int i) const { return i >= 0 && i < 4 ? boxes_[i] : nullptr; }
    Slider* luminanceSlider() const { return lumSlider_; }
    Slider* alphaSlider() const { return alphaSlider_; }
    ComponentTextBox* hexBox() const { return hexBox_; }
    ComponentTextBox* hueBox() const { return hueBox_; }
    ComponentTextBox* saturationBox() const { return satBox_; }
    ComponentTextBox* luminanceBox() const { return lumBox_; }
    ComponentTextBox* alphaBox() const { return alphaBox_; }
    HSColourWheel* wheel() const { return wheel_; }
    int updateDepth() const { return updateDepth_; }

private:
    void init();
    ComponentTextBox* addBox(WidgetGroup* group, const char* title, const WidgetPosition& at);
    Slider* addSlider(WidgetGroup* group, Glob* box, const Colour& colour);
    void buildRGBGroup();
    void buildHSVGroup();
    void buildAlphaGroup();

    int updateDepth_ = 0;
    ValServer<ColourData> server_;
    unsigned int flags_;
    Slider* lumSlider_ = nullptr;
    Slider* sliders_[4] = {};
    ComponentTextBox* boxes_[4] = {};
    Slider* alphaSlider_ = nullptr;
    HSColourWheel* wheel_ = nullptr;
    ComponentTextBox* hexBox_ = nullptr;
    ComponentTextBox *hueBox_ = nullptr, *satBox_ = nullptr, *lumBox_ = nullptr;
    ComponentTextBox* alphaBox_ = nullptr;
    GlobHandle<Glob> caller_;
    LightweightString<char> callerMsg_;
    WidgetGroup *rgbGroup_ = nullptr, *hsvGroup_ = nullptr, *alphaGroup_ = nullptr;
    int boxWidth_ = 0;
};
