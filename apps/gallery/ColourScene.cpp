// Colour: one colour shown on a hue-saturation wheel, in HSV, RGB, hexadecimal and
// alpha boxes and in sliders, all bound to one value; a drop-down button that
// opens a small panel of named colours, which can be torn off; and a colour picker
// with alpha, a swatch button that drops another, and an eye dropper beside a strip
// of known colours.
#include "GalleryScene.h"

#include "colour/AlphaSliderAdaptor.h"
#include "colour/AlphaTextAdaptor.h"
#include "colour/ColourComponentAdaptor.h"
#include "colour/ColourPicker.h"
#include "colour/ComponentTextBox.h"
#include "colour/DropDownColourPickerButton.h"
#include "colour/HSColourWheel.h"
#include "colour/HexColourAdaptor.h"
#include "colour/LuminanceAdaptor.h"
#include "colour/RGBComponentAdaptor.h"
#include "colour/colourEyeDropper.h"
#include "controls/ColRect.h"
#include "controls/Slider.h"
#include "core/Utf8.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "panels/DropDownButtonEx.h"
#include "value/ValAdaptor.h"

#include <algorithm>

namespace {

using TextAdaptor = Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>;
using SliderAdaptor = Zn::Ptr<ValAdaptorBase<double>>;

// The panel a drop-down button opens: a few named colours, each a button that
// tells the owner which it is.
class SwatchPanel : public StandardPanel {
public:
    using InitArgs = StandardPanel::InitArgs;
    explicit SwatchPanel(const InitArgs& args) : StandardPanel(args) {
        setBorder(Border(Border::kDropMenuBorder, static_cast<unsigned short>(UifStd::instance().getIndentWidth()), 15));
        const int gap = UifStd::instance().getWidgetGap(), row = UifStd::instance().getRowHeight();
        const wchar_t* names[] = {L"Red", L"Amber", L"Teal"};
        Glob* last = nullptr;
        for (const wchar_t* n : names) {
            Button::InitArgs b(UIString(n), WidgetCallback(toUTF8(n)), static_cast<unsigned short>(getUserArea().width() - 2 * gap),
                               static_cast<unsigned short>(row));
            last = createWidget<Button>(b, last ? Glob::Below(gap, last) : Glob::UserTopLeft(gap, gap));
        }
    }
    const char* idstring() const override { return "SwatchPanel"; }
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (sender && sender->parent() == this) {
            sendMsg(logicalParent(), message.c_str());
            return 1;
        }
        return StandardPanel::handleMessageEvent(message, sender);
    }
    static int calcHeight() {
        const int gap = UifStd::instance().getWidgetGap(), row = UifStd::instance().getRowHeight();
        return 3 * row + 4 * gap + 2 * UifStd::instance().getIndentWidth();
    }
};

class ColourPanel : public StandardPanel {
public:
    explicit ColourPanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "ColourPanel"; }
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (message == "Red") colour = ColourData(1.0, 0.1, 0.1, kColourSpaceRGB, colour.value().getAlpha());
        if (message == "Amber") colour = ColourData(1.0, 0.75, 0.0, kColourSpaceRGB, colour.value().getAlpha());
        if (message == "Teal") colour = ColourData(0.0, 0.5, 0.5, kColourSpaceRGB, colour.value().getAlpha());
        return StandardPanel::handleMessageEvent(message, sender);
    }
    ValServer<ColourData> colour{ColourData(200.0, 0.6, 0.9, kColourSpaceHSV, 1.0)};
};

// Holds a picker, and hands it the colours the eye dropper beside it takes.
class PickerPanel : public StandardPanel {
public:
    explicit PickerPanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "PickerPanel"; }
    int react(const Event& e) override {
        if (picker && e.isMessage() && e.messageText().startsWith(ColourPicker::eyeDropperPrefix)) return picker->react(e);
        return StandardPanel::react(e);
    }
    ColourPicker* picker = nullptr;
};

void buildPicker(XY<int> at) {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = u.getRowHeight();
    const unsigned int flags = ColourPicker::kRGBParts | ColourPicker::kAlphaGroup;
    const XY<int> pickerSize = ColourPicker::calcSize(flags);
    // Wide enough for the picker and its swatch button, and for the dropper and its six swatches.
    const int width = std::max(pickerSize.x + 2 * gap + 4 * row, 7 * (2 * row + gap) + 2 * gap);
    auto* p = GalleryScene::makePanel<PickerPanel>(width, pickerSize.y + 3 * row + u.getTitleHeight() + 4 * gap, L"Colour picker", at);
    ColourPicker::InitArgs pickerArgs(flags, ColourData(30.0, 0.8, 0.9, kColourSpaceHSV, 0.75));
    pickerArgs.width = static_cast<unsigned short>(pickerSize.x);
    pickerArgs.height = static_cast<unsigned short>(pickerSize.y);
    p->picker = p->createWidget<ColourPicker>(pickerArgs, Glob::UserTopLeft(gap, gap));
    p->picker->setName("picker");

    DropDownColourPickerButton::InitArgs buttonArgs(static_cast<unsigned short>(2 * row), static_cast<unsigned short>(2 * row), flags);
    auto* button = p->createWidget<DropDownColourPickerButton>(buttonArgs, Glob::RightOf(gap, p->picker, kAlignStart));
    button->setName("swatch-button");
    button->setColour(NormalisedRGB(0.2f, 0.5f, 0.9f));

    colourEyeDropper::InitArgs dropperArgs(static_cast<unsigned short>(2 * row), static_cast<unsigned short>(2 * row));
    auto* dropper = p->createWidget<colourEyeDropper>(dropperArgs, Glob::Below(2 * gap, p->picker));
    dropper->setName("eye-dropper");
    const Colour strip[] = {Colour(1.0, 0.0, 0.0), Colour(1.0, 0.8, 0.0), Colour(0.0, 0.6, 0.2),
                            Colour(0.0, 0.4, 1.0), Colour(0.0, 0.0, 0.0), Colour(1.0, 1.0, 1.0)};
    Glob* last = dropper;
    for (const Colour& c : strip) {
        ColRect::InitArgs swatch(ColourData(c.red(), c.green(), c.blue(), kColourSpaceRGB, 1.0), WidgetCallback(),
                                 static_cast<unsigned short>(2 * row), static_cast<unsigned short>(2 * row));
        auto* r = p->createWidget<ColRect>(swatch, Glob::RightOf(gap, last, kAlignCentre));
        r->setClickable(false);
        r->setOutline(false, kNoRedraw);
        last = r;
    }
    GlobManager::instance().realize(p);
}

void buildColour() {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = u.getRowHeight();
    const int wheelSide = 220, boxWidth = 150, entry = 70;
    Drawable::disableRedraws();
    auto* p =
        GalleryScene::makePanel<ColourPanel>(wheelSide + 2 * boxWidth + 6 * gap, 9 * (row + gap) + u.getTitleHeight() + 2 * gap, L"Colour", {60, 0});
    const Screen& screen = GlobManager::instance().screen();
    p->setupRootPos({60, screen.height() - 80 - p->height()});
    ValServer<ColourData>* colour = &p->colour;

    HSColourWheel::InitArgs wheelArgs(wheelSide, wheelSide);
    auto* wheel = p->createWidget<HSColourWheel>(wheelArgs, Glob::UserTopLeft(gap, gap));
    wheel->setName("wheel");
    wheel->setDataAdaptor(Zn::Ptr<ValAdaptorBase<ColourData>>(new ValAdaptor<ColourData, ColourData>(colour)));

    auto box = [&](const char* name, const wchar_t* legend, TextAdaptor adaptor, Glob* below, Glob* beside) {
        TitleTextBox::InitArgs args(UIString(legend), entry, boxWidth, static_cast<unsigned short>(row));
        auto* b = p->createWidget<ComponentTextBox>(args, below ? Glob::Below(gap, below) : Glob::RightOf(gap, beside, kAlignEnd));
        b->setName(name);
        b->setDataAdaptor(adaptor);
        return b;
    };
    auto* h = box("hue", L"H", TextAdaptor(new ColourComponentAdaptor(0, kColourSpaceHSV, colour)), nullptr, wheel);
    auto* s = box("saturation", L"S", TextAdaptor(new ColourComponentAdaptor(1, kColourSpaceHSV, colour)), h, nullptr);
    auto* v = box("value", L"V", TextAdaptor(new ColourComponentAdaptor(2, kColourSpaceHSV, colour)), s, nullptr);
    auto* r = box("red", L"R", TextAdaptor(new ColourComponentAdaptor(0, kColourSpaceRGB, colour)), nullptr, h);
    auto* g = box("green", L"G", TextAdaptor(new ColourComponentAdaptor(1, kColourSpaceRGB, colour)), r, nullptr);
    auto* b = box("blue", L"B", TextAdaptor(new ColourComponentAdaptor(2, kColourSpaceRGB, colour)), g, nullptr);
    auto* a = box("alpha", L"A", TextAdaptor(new AlphaTextAdaptor(colour)), v, nullptr);
    TitleTextBox::InitArgs hexArgs(UIString(L"Hex"), entry, boxWidth, static_cast<unsigned short>(row));
    auto* hex = p->createWidget<TitleTextBox>(hexArgs, Glob::Below(gap, b));
    hex->setName("hex");
    hex->setCharacters(L"0123456789ABCDEFabcdef", TextBoxBase::kOnlyCharacters);
    hex->getTextBox()->setSizeLimit(6);
    hex->setDataAdaptor(TextAdaptor(new HexColourAdaptor(colour)));

    const unsigned short sliderWidth = static_cast<unsigned short>(2 * boxWidth + gap);
    Glob* above = a;
    auto slider = [&](const char* name, const Colour& c, SliderAdaptor adaptor) {
        Slider::InitArgs args(c, sliderWidth);
        auto* sl = p->createWidget<Slider>(args, Glob::Below(gap, above));
        sl->setName(name);
        sl->setDataAdaptor(adaptor);
        above = sl;
    };
    slider("red-slider", Colour(0.8, 0.2, 0.2), SliderAdaptor(new RGBComponentAdaptor(0, colour)));
    slider("green-slider", Colour(0.2, 0.7, 0.2), SliderAdaptor(new RGBComponentAdaptor(1, colour)));
    slider("blue-slider", Colour(0.2, 0.3, 0.9), SliderAdaptor(new RGBComponentAdaptor(2, colour)));
    slider("luminance", Colour(0.7, 0.7, 0.7), SliderAdaptor(new LuminanceAdaptor(colour)));
    slider("alpha-slider", Colour(0.5, 0.5, 0.5), SliderAdaptor(new AlphaSliderAdaptor(colour)));

    using SwatchButton = DropDownButtonEx<SwatchPanel>;
    SwatchButton::InitArgs dropArgs(
        static_cast<unsigned short>(wheelSide), static_cast<unsigned short>(row),
        SwatchPanel::InitArgs(static_cast<unsigned short>(wheelSide), static_cast<unsigned short>(SwatchPanel::calcHeight())));
    dropArgs.label = UIString(L"Named colours");
    auto* drop = p->createWidget<SwatchButton>(dropArgs, Glob::Below(gap, wheel));
    drop->setName("named-colours");
    drop->setDropMode(SwatchButton::kDetachableDrop);

    for (Glob* w : p->getChildren())
        if (auto* t = dynamic_cast<TitleTextBox*>(w)) t->getDataAdaptor()->forceWidgetUpdate(kNoRedraw);
    for (Glob* w : p->getChildren())
        if (auto* sl = dynamic_cast<Slider*>(w)) sl->getDataAdaptor()->forceWidgetUpdate(kNoRedraw);
    wheel->getDataAdaptor()->forceWidgetUpdate(kNoRedraw);

    GlobManager::instance().realize(p);
    buildPicker({p->getX() + p->width() + 2 * gap, p->getY() + p->height() - 600});
    Drawable::enableRedraws();
    GlobManager::instance().runUntilIdle();
}

GallerySceneRegistration colour("colour",
                                "A colour on a hue-saturation wheel, in HSV, RGB, hexadecimal and alpha boxes and sliders, "
                                "all bound to one value; a drop-down of named colours that can be torn off; a picker with alpha, a swatch "
                                "button that drops one, and an eye dropper beside a strip of known colours",
                                buildColour);

} // namespace
