#pragma once

#include "ColourPicker.h"
#include "core/NormalisedRGB.h"
#include "core/NotifyMsg.h"
#include "core/iCallbackBase.h"
#include "panels/DropDownButton.h"

class ColRect;

/// A small swatch button that drops a ColourPicker over itself (or under it, where
/// there is no room above). Bound to a value through setDataAdaptor, the swatch and
/// the picker share the adaptor and the picker writes the value itself. Free
/// standing, the button copies each change of the picker into its swatch and tells
/// its owner with kColourChangedMsg: through the callback, or as a message with a
/// DropDownColourPickerButton::Event to its parent. User-interface thread only.
class DropDownColourPickerButton : public DropDownButton<ColourPicker> {
public:
    static constexpr const char* kColourChangedMsg = "DDCPChange";

    /// What a DropDownColourPickerButton is made from: a drop-down button's record and the flags of its picker.
    struct InitArgs : DropDownButtonInitArgs {
        unsigned int flags = ColourPicker::kRGBParts;
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height, unsigned int flags = ColourPicker::kRGBParts) : flags(flags) {
            this->width = width;
            this->height = height;
        }
    };

    /// The data of the change message: the colour chosen.
    class Event : public iObject {
    public:
        explicit Event(const ColourData& colour) : colour(colour) {}
        ColourData colour;
    };

    explicit DropDownColourPickerButton(const InitArgs& args);
    // A square button of `size` on `canvas`, in its owner's palette.
    DropDownColourPickerButton(unsigned short size, unsigned int flags, Canvas* canvas);
    const char* idstring() const override { return "DropDownColourPickerButton"; }

    // The swatch's colour; nothing is redrawn.
    void setColour(const NormalisedRGB& colour);
    NormalisedRGB getColour() const;
    void setDataAdaptor(const Zn::Ptr<ValAdaptorBase<ColourData>>& adaptor);
    const Zn::Ptr<ValAdaptorBase<ColourData>>& getDataAdaptor() const { return adaptor_; }
    void setCallback(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback) { callback_ = callback; }
    void setActive(bool state, eRedrawFlag flag = kRedraw) override;
    ColRect* swatch() const { return swatch_; }
    unsigned int pickerFlags() const { return flags_; }
    void drawBackground() override;

protected:
    ColourPicker* generateDropDown() override;
    bool handleDropDownMessage(const char* msg) override;

private:
    void init();
    static InitArgs squareRecord(unsigned short size, unsigned int flags, Canvas* canvas);

    Zn::Ptr<ValAdaptorBase<ColourData>> adaptor_;
    unsigned int flags_;
    ColRect* swatch_ = nullptr;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> callback_;
    LightweightString<char> message_;
};
