#include "ColourPicker.h"

#include "AlphaSliderAdaptor.h"
#include "AlphaTextAdaptor.h"
#include "ColEyeDropBase.h"
#include "ColourComponentAdaptor.h"
#include "ComponentTextBox.h"
#include "HSColourWheel.h"
#include "HexColourAdaptor.h"
#include "LuminanceAdaptor.h"
#include "RGBComponentAdaptor.h"
#include "controls/Button.h"
#include "controls/Slider.h"
#include "controls/WidgetGroup.h"
#include "core/Utf8.h"
#include "core/getDegreesString.h"
#include "draw/StateSaver.h"
#include "draw/UifStd.h"
#include "glob/UpdateDeferrer.h"
#include "value/ValAdaptor.h"

#include <cstring>

namespace {
int rowHeight() { return UifStd::instance().getRowHeight(); }
int rowGap() { return UifStd::instance().getRowGap(); }
int widgetGap() { return UifStd::instance().getWidgetGap(); }
const Colour kGrey(0.4, 0.4, 0.4);
const Border kPickerBorder(Border::kDropMenuBorder, 0, 15);

// Shows the bound value in a part that was just bound.
template <class T>
void fill(ValWidget<T>* w) {
    if (!w) return;
    if (auto adaptor = w->getDataAdaptor()) adaptor->forceWidgetUpdate(kNoRedraw);
}

int rgbGroupHeight() { return WidgetGroup::calcHeightForRows(4, rowHeight(), rowGap(), 1) + 2 * widgetGap(); }
} // namespace

ColourPicker::ColourPicker(const Palette& palette, unsigned int flags)
    : StandardPanel(calcSize(flags).x, calcSize(flags).y, palette, false, nullptr), server_(ColourData(1.0, 1.0, 1.0, 2, 1.0)), flags_(flags) {
    init();
}

ColourPicker::ColourPicker(const InitArgs& args)
    : StandardPanel(StandardPanel::InitArgs(args, Border(Border::kNoBorder, 0, 15))), server_(args.colour), flags_(args.flags) {
    init();
}

// The server dies before the parts; it tells their adaptors, which then hold none.
ColourPicker::~ColourPicker() = default;

int ColourPicker::calcSliderWidth() { return rowHeight() * 5; }

int ColourPicker::calcHSVGroupHeight() { return ((calcSliderWidth() * 7) >> 3) + rowHeight() + ((3 * widgetGap() + rowHeight()) >> 1); }

XY<int> ColourPicker::calcSize(unsigned int flags) {
    int height = rgbGroupHeight() + calcHSVGroupHeight() + widgetGap();
    if (flags & kAlphaGroup) height += WidgetGroup::calcHeightForRows(1, rowHeight(), rowGap(), 1);
    return calcPanelSize(XY<int>(2 * calcSliderWidth(), height), 0, kPickerBorder);
}

const char* ColourPicker::getDisplayName(ColourData::ComponentID id) {
    switch (id) {
    case ColourData::kFirst: return "R";
    case ColourData::kSecond: return "G";
    case ColourData::kThird: return "B";
    case ColourData::kAlpha: return "A";
    }
    return "";
}

Colour ColourPicker::getSliderColour(ColourData::ComponentID id) {
    switch (id) {
    case ColourData::kFirst: return Colour(1.0, 0.0, 0.0);
    case ColourData::kSecond: return Colour(0.0, 1.0, 0.0);
    case ColourData::kThird: return Colour(0.0, 0.0, 1.0);
    case ColourData::kAlpha: return kGrey;
    }
    return Colour();
}

ComponentTextBox* ColourPicker::addBox(WidgetGroup* group, const char* title, const WidgetPosition& at) {
    TitleTextBox::InitArgs args(UIString(fromUTF8(title)), static_cast<unsigned short>(std::max(0, boxWidth_ - rowHeight())),
                                static_cast<unsigned short>(boxWidth_), static_cast<unsigned short>(rowHeight()));
    auto* box = group->createWidget<ComponentTextBox>(args, at);
    box->setName(title);
    return box;
}

Slider* ColourPicker::addSlider(WidgetGroup* group, Glob* box, const Colour& colour) {
    Slider::InitArgs args(colour, static_cast<unsigned short>(calcSliderWidth()));
    args.height = static_cast<unsigned short>(rowHeight());
    return group->createWidget<Slider>(args, Glob::RightOf(widgetGap(), box, kAlignCentre));
}

void ColourPicker::buildRGBGroup() {
    WidgetGroup::InitArgs args(UIString(L"RGB"), 0, static_cast<unsigned short>(rgbGroupHeight()));
    rgbGroup_ = createWidget<WidgetGroup>(args, Glob::UserTopLeft(0, 0));
    Glob* above = nullptr;
    for (int i = 0; i < 3; ++i) {
        const auto id = static_cast<ColourData::ComponentID>(i);
        boxes_[i] = addBox(rgbGroup_, getDisplayName(id), above ? Glob::Below(widgetGap(), above) : Glob::UserTopLeft(0, 0));
        sliders_[i] = addSlider(rgbGroup_, boxes_[i], getSliderColour(id));
        sliders_[i]->setName(LightweightString<char>(getDisplayName(id)) + " slider");
        sliders_[i]->setDataAdaptor(Zn::Ptr<ValAdaptorBase<double>>(new RGBComponentAdaptor(i, &server_)));
        boxes_[i]->setDataAdaptor(Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(new ColourComponentAdaptor(i, kColourSpaceRGB, &server_)));
        tabOrder().addTabStopsFrom(*boxes_[i]);
        above = boxes_[i];
    }
    hexBox_ = addBox(rgbGroup_, "#", Glob::Below(2 * widgetGap(), above));
    hexBox_->addSurround(scale(getCol(), 0.8), static_cast<unsigned long>(std::max(0, getBorder().size() - UifStd::instance().getIndentWidth())));
}

void ColourPicker::buildHSVGroup() {
    WidgetGroup::InitArgs args(UIString(L"HSV"), 0, static_cast<unsigned short>(calcHSVGroupHeight()));
    hsvGroup_ = createWidget<WidgetGroup>(args, Glob::Below(rowGap(), rgbGroup_));
    lumBox_ = addBox(hsvGroup_, "L", Glob::UserBottomLeft(0, 0));
    satBox_ = addBox(hsvGroup_, "S", Glob::Above(widgetGap(), lumBox_));
    hueBox_ = addBox(hsvGroup_, "H", Glob::Above(widgetGap(), satBox_));
    lumSlider_ = addSlider(hsvGroup_, lumBox_, kGrey);
    lumSlider_->setName("L slider");
    const auto side = static_cast<unsigned short>((calcSliderWidth() * 7) >> 3);
    wheel_ = new HSColourWheel(hsvGroup_->canvas(), side, 1.0, 0);
    wheel_->setPalette(hsvGroup_->getPalette());
    hsvGroup_->addChild(wheel_, Glob::Above(0, lumSlider_, kAlignCentre));
    for (ComponentTextBox* box : {hexBox_, hueBox_, satBox_, lumBox_}) tabOrder().addTabStopsFrom(*box);
}

void ColourPicker::buildAlphaGroup() {
    WidgetGroup::InitArgs args(UIString(L"Alpha"), 0, static_cast<unsigned short>(WidgetGroup::calcHeightForRows(1, rowHeight(), rowGap(), 1)));
    alphaGroup_ = createWidget<WidgetGroup>(args, Glob::Below(rowGap(), hsvGroup_));
    alphaBox_ = addBox(alphaGroup_, "A", Glob::UserTopLeft(0, 0));
    alphaSlider_ = addSlider(alphaGroup_, alphaBox_, kGrey);
    alphaSlider_->setName("A slider");
    alphaSlider_->setDataAdaptor(Zn::Ptr<ValAdaptorBase<double>>(new AlphaSliderAdaptor(&server_)));
    alphaBox_->setDataAdaptor(Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(new AlphaTextAdaptor(&server_)));
    tabOrder().addTabStopsFrom(*alphaBox_);
}

void ColourPicker::init() {
    const Glib::StateSaver saver;
    setBorder(kPickerBorder);
    setResizable(false);
    setPersistable(false);
    boxWidth_ = Button::calcSizeFor(UIString(L"R 255.00%"), UifStd::instance().getDefaultFont()).x;
    buildRGBGroup();
    buildHSVGroup();
    if (flags_ & kAlphaGroup) buildAlphaGroup();
    hexBox_->setCharacters(L"0123456789ABCDEFabcdef", TextBoxBase::kOnlyCharacters);
    hexBox_->getTextBox()->setSizeLimit(6);
    hueBox_->setDisplaySuffix(getDegreesString());
    satBox_->setDisplaySuffix(L"%");
    lumBox_->setDisplaySuffix(L"%");
    using TextAdaptor = ValAdaptorBase<LightweightString<wchar_t>>;
    hueBox_->setDataAdaptor(Zn::Ptr<TextAdaptor>(new ColourComponentAdaptor(0, kColourSpaceHSV, &server_)));
    satBox_->setDataAdaptor(Zn::Ptr<TextAdaptor>(new ColourComponentAdaptor(1, kColourSpaceHSV, &server_)));
    lumBox_->setDataAdaptor(Zn::Ptr<TextAdaptor>(new ColourComponentAdaptor(2, kColourSpaceHSV, &server_)));
    lumSlider_->setDataAdaptor(Zn::Ptr<ValAdaptorBase<double>>(new LuminanceAdaptor(&server_)));
    hexBox_->setDataAdaptor(Zn::Ptr<TextAdaptor>(new HexColourAdaptor(&server_)));
    wheel_->setDataAdaptor(Zn::Ptr<ValAdaptorBase<ColourData>>(new ValAdaptor<ColourData, ColourData>(&server_)));
    fill(wheel_);
    for (Slider* slider : {lumSlider_, sliders_[0], sliders_[1], sliders_[2], alphaSlider_}) fill(slider);
    for (ComponentTextBox* box : {hexBox_, hueBox_, satBox_, lumBox_, boxes_[0], boxes_[1], boxes_[2], alphaBox_}) fill(box);
    registerWith(&server_);
    caller_.reset(parent());
}

ColourData ColourPicker::getColour() const { return server_.value(); }

void ColourPicker::setColour(const ColourData& colour) { server_.storeQuietly(colour); }

void ColourPicker::setColour() {
    ++updateDepth_;
    ColourDataValWidget::requestSetNewDataValue(getColour(), kRelayedChange);
    --updateDepth_;
    if (Glob* caller = caller_.get()) sendMsg(caller, callerMsg_.c_str());
}

void ColourPicker::set_caller(Glob* caller, const char* message) {
    caller_.reset(caller);
    callerMsg_ = message ? message : "";
}

void ColourPicker::drawCurrent() {
    const Glib::UpdateDeferrer deferrer;
    if (wheel_) wheel_->update();
}

void ColourPicker::drawBars() {
    if (flags_ & kHSVParts) {
        if (lumSlider_) lumSlider_->redraw();
        if (alphaSlider_) alphaSlider_->redraw();
    }
    if (flags_ & kRGBParts)
        for (Slider* s : sliders_)
            if (s) s->redraw();
}

void ColourPicker::setActive(bool state, eRedrawFlag flag) {
    if (state == isActive()) return;
    Glob::setActive(state, kNoRedraw);
    if (flags_ & kHSVParts) {
        for (ComponentTextBox* box : {hueBox_, satBox_, lumBox_}) box->setActive(state, flag);
        wheel_->setEnabledState(state);
        // The luminance slider stays inactive whatever the state.
        lumSlider_->setActive(false, flag);
        if (alphaBox_) alphaBox_->setActive(state, flag);
        if (alphaSlider_) alphaSlider_->setActive(state, flag);
    }
    if (flags_ & kRGBParts)
        for (int i = 0; i < 4; ++i)
            if (boxes_[i]) {
                boxes_[i]->setActive(state, flag);
                if (sliders_[i]) sliders_[i]->setActive(state, flag);
            }
    if (flags_ & kRedrawCurrent) drawCurrent();
}

int ColourPicker::react(const Event& e) {
    if (e.isMessage() && std::strncmp(e.messageText().c_str(), eyeDropperPrefix, std::strlen(eyeDropperPrefix)) == 0) {
        // A message of another shape leaves these as they are: the colour stays.
        ColourData now = getColour();
        now.setColourSpace(kColourSpaceHSV);
        double h = now.getHue(), s = now.getSaturation(), v = now.getValue() / 255.0;
        ColEyeDropBase::parse(e.messageText().c_str(), h, s, v);
        server_ = ColourData(h, s, 255.0 * v, 2, 1.0);
        return 1;
    }
    return StandardPanel::react(e);
}

void ColourPicker::setNewWidgetValue(ColourData& colour, eRedrawFlag flag) {
    if (updateDepth_ > 0 || colour == getColour()) return;
    ++updateDepth_;
    server_ = colour;
    --updateDepth_;
    if (flag == kRedraw) drawCurrent();
}

void ColourPicker::valChangedNtfy() {
    if (updateDepth_ > 0) return;
    drawCurrent();
    setColour();
}
