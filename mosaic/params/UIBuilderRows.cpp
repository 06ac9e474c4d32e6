// The row makers of UIBuilder: one control per kind of parameter, bound to the
// parameter's server, lined up at the legend column.
#include "ColourAdaptor.h"
#include "RemappingValAdaptor.h"
#include "SliderParamHost.h"
#include "TitledFileChooserButton.h"
#include "TitledGlob.h"
#include "UIBuilder.h"
#include "colour/DropDownColourPickerButton.h"
#include "controls/Button.h"
#include "controls/Checkbox.h"
#include "controls/LinkAwareMultiLineTextBox.h"
#include "controls/NumericTextBox.h"
#include "controls/Slider.h"
#include "controls/TitleMenuButton.h"
#include "controls/TitleTextBox.h"
#include "controls/VerticalScrollingBase.h"
#include "core/Utf8.h"
#include "draw/HTMLRenderer.h"
#include "draw/UifStd.h"
#include "value/ValAdaptor.h"

#include <algorithm>
#include <set>

using namespace GenericParam;

namespace {
int rowHeight() { return UifStd::instance().getRowHeight(); }
int widgetGap() { return UifStd::instance().getWidgetGap(); }

template <class A, class P>
Zn::Ptr<A> adaptorOn(P& param) {
    return Zn::Ptr<A>(new A(&param.server()));
}
} // namespace

template <class T>
T* UIBuilder::createRow(typename T::InitArgs& args, const WidgetPosition& position, const WidgetSurround& surround) {
    if (scroller_) return scroller_->createManagedWidget<T>(args, surround);
    return panel_->createWidget<T>(args, position, surround);
}

void UIBuilder::finishRow(const Zn::Ptr<iParam>& param, Glob* row, eRedrawFlag activeFlag, std::initializer_list<TabOrderable*> stops) {
    row->setContextString(param->getTooltip(), UIString());
    row->setActive(param->isActive(), activeFlag);
    recordRow(param, row);
    for (TabOrderable* stop : stops)
        if (stop) panel_->tabOrder().addTabStop(*stop);
}

Glob* UIBuilder::makeBoolWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    auto& p = dynamic_cast<BoolParam&>(*param);
    Checkbox::InitArgs args(param->getLegend().getString(), p.getValue(), {}, width_, static_cast<unsigned short>(rowHeight()));
    auto* box = createRow<Checkbox>(args, position, surround);
    box->setDataAdaptor(adaptorOn<ValAdaptor<bool, bool>>(p));
    finishRow(param, box, kNoRedraw, {box});
    return box;
}

Glob* UIBuilder::makeChoiceWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    auto& p = dynamic_cast<ChoiceParam&>(*param);
    auto adaptor = adaptorOn<RemappingValAdaptor<unsigned int, unsigned int>>(p);
    std::vector<UIString> labels;
    for (std::size_t n = 0; n < p.choices().size(); ++n) {
        adaptor->add(static_cast<unsigned int>(n), static_cast<unsigned int>(p.choices()[n].value));
        labels.push_back(p.choices()[n].label);
    }
    TitleMenuButton::InitArgs args(param->getLegend(), labels, 0, width_, static_cast<unsigned short>(rowHeight()));
    auto* row = createRow<TitleMenuButton>(args, position, surround);
    row->getBtn()->setDataAdaptor(adaptor);
    adaptor->forceWidgetUpdate(kNoRedraw);
    finishRow(param, row, kNoRedraw, {row->getBtn()});
    return row;
}

Glob* UIBuilder::makeFontWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    auto& p = dynamic_cast<FontParam&>(*param);
    auto adaptor = adaptorOn<RemappingValAdaptor<unsigned int, LightweightString<wchar_t>>>(p);
    // Font families in an order that ignores case, as a user reads a list of names.
    auto lessNoCase = [](const LightweightString<char>& a, const LightweightString<char>& b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
            return std::tolower(static_cast<unsigned char>(x)) < std::tolower(static_cast<unsigned char>(y));
        });
    };
    std::set<LightweightString<char>, decltype(lessNoCase)> fonts(lessNoCase);
    for (const auto& name : Glib::getAvailableFonts()) fonts.insert(name);
    std::vector<MenuItem> items;
    unsigned int n = 0;
    for (const auto& name : fonts) {
        adaptor->add(n++, fromUTF8(name));
        MenuItem item(UIString(fromUTF8(name)));
        item.setFont(Glib::FontDesc(name, 0, 0));
        items.push_back(item);
    }
    TitleMenuButton::InitArgs args(param->getLegend(), {}, static_cast<unsigned short>(width_ / 2), width_, static_cast<unsigned short>(rowHeight()));
    auto* row = createRow<TitleMenuButton>(args, position, surround);
    row->getBtn()->setStrings(items, MenuItemIndex(), kNoRedraw);
    row->getBtn()->setDataAdaptor(adaptor);
    adaptor->forceWidgetUpdate(kNoRedraw);
    finishRow(param, row, kNoRedraw, {row->getBtn()});
    return row;
}

Glob* UIBuilder::makeColourWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    auto& p = dynamic_cast<ColourParam&>(*param);
    const int h = rowHeight();
    const auto side = static_cast<unsigned short>(std::max(0, h - 2 * UifStd::instance().getIndentWidth()));
    DropDownColourPickerButton::InitArgs button(side, side);
    button.flat = true;
    TitledGlob<DropDownColourPickerButton>::InitArgs args(param->getLegend(), button, width_, static_cast<unsigned short>(h));
    auto* row = createRow<TitledGlob<DropDownColourPickerButton>>(args, position, surround);
    DropDownColourPickerButton* swatch = row->control();
    swatch->setStyle(Button::kFlatDropDown);
    swatch->setColour(p.getValue());
    swatch->setDataAdaptor(adaptorOn<ColourAdaptor>(p));
    swatch->getDataAdaptor()->forceWidgetUpdate(kNoRedraw);
    // The swatch is no tab stop: a picker is opened with the mouse.
    finishRow(param, row, kNoRedraw);
    return row;
}

Glob* UIBuilder::makeFileWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    TitledFileChooserButton::InitArgs args(Zn::dynamicCast<FileParam>(param), static_cast<unsigned short>(2 * width_ / 3), width_,
                                           static_cast<unsigned short>(rowHeight()));
    auto* row = createRow<TitledFileChooserButton>(args, position, surround);
    finishRow(param, row, kNoRedraw, {row->getBtn()});
    return row;
}

Glob* UIBuilder::makeTextWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    auto& p = dynamic_cast<TextParam&>(*param);
    TitleTextBox::InitArgs args(param->getLegend(), static_cast<unsigned short>(std::max(0, width_ - legendWidth_)), width_,
                                static_cast<unsigned short>(rowHeight()), TitleTextBox::kLegendLeft);
    args.text = UIString(p.getValue());
    auto* row = createRow<TitleTextBox>(args, position, surround);
    if (!p.hint.empty()) row->setPlaceholder(UIString(p.hint));
    if (p.obfuscated) row->setObfuscatedDisplay(true);
    row->setEditable(true);
    row->setDataAdaptor(adaptorOn<ValAdaptor<LightweightString<wchar_t>, LightweightString<wchar_t>>>(p));
    // The commit key sends the panel's main message, as its default button would.
    if (p.advance) row->requestCallback(StandardPanel::doItMsg, panel_, TextBoxBase::kReturnPressed);
    finishRow(param, row, kNoRedraw);
    panel_->tabOrder().addTabStopsFrom(*row);
    return row;
}

Glob* UIBuilder::makeLabelWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    const LightweightString<wchar_t> text = param->getLegend().getString();
    const auto paragraphs = HTMLRenderer::parse(text, UifStd::instance().getColourScheme());
    // Measured at the width the box wraps at, inside its margins, so that no line is left out.
    const int lines = HTMLRenderer::calcNumDisplayLines(paragraphs, static_cast<unsigned short>(MultiLineTextBox::calcWrapWidth(width_)));
    LinkAwareMultiLineTextBox::InitArgs args(
        UIString(), width_, static_cast<unsigned short>(MultiLineTextBox::calcHeightForLines(lines, getDefaultFontSize(), widgetGap())));
    auto* row = createRow<LinkAwareMultiLineTextBox>(args, position, surround);
    row->setEditable(false);
    row->setString(text, kNoRedraw);
    finishRow(param, row, kNoRedraw);
    return row;
}

Glob* UIBuilder::makeActionWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    auto& p = dynamic_cast<ActionParam&>(*param);
    const auto h = static_cast<unsigned short>(rowHeight());
    TitledGlob<Button>::InitArgs args(UIString(p.title), Button::InitArgs(param->getLegend(), {}, 0, h), width_, h);
    auto* row = createRow<TitledGlob<Button>>(args, position, surround);
    if (actionParamsOnMenu()) {
        // The action lives on the panel's menu; the row only keeps its place in the map.
        row->resize(0, 0);
        row->setVisible(false);
    } else {
        row->setContextString(param->getTooltip(), UIString());
    }
    row->setActive(param->isActive(), kNoRedraw);
    recordRow(param, row);
    return row;
}

namespace {
// The numbers a slider row needs of its parameter, whatever its type.
template <class T>
UIBuilder::SliderRow sliderRowOf(Param<T>& p, bool isFloat) {
    const double current = static_cast<double>(p.getValue());
    UIBuilder::SliderRow row;
    row.min = static_cast<double>(p.getMinValue());
    row.max = static_cast<double>(p.getMaxValue());
    row.current = current;
    // A float marks its default, an integer where it stood when the row was made.
    row.pointOfInterest = isFloat ? static_cast<double>(p.getDefaultValue()) : current;
    row.isFloat = isFloat;
    row.bind = [&p](Slider* slider, NumericTextBox* box) {
        slider->setDataAdaptor(Zn::Ptr<ValAdaptorBase<double>>(new ValAdaptor<double, T>(&p.server())));
        if (box) box->setDataAdaptor(Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(new ValAdaptor<LightweightString<wchar_t>, T>(&p.server())));
    };
    return row;
}
} // namespace

Glob* UIBuilder::makeFloatWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    return makeSliderRow(param, sliderRowOf(dynamic_cast<Param<double>&>(*param), true), position, surround);
}

Glob* UIBuilder::makeIntWidget(const Zn::Ptr<iParam>& param, const WidgetPosition& position, const WidgetSurround& surround) {
    return makeSliderRow(param, sliderRowOf(dynamic_cast<Param<int>&>(*param), false), position, surround);
}

Glob* UIBuilder::makeSliderRow(const Zn::Ptr<iParam>& param, const SliderRow& numbers, const WidgetPosition& position,
                               const WidgetSurround& surround) {
    const bool isFloat = numbers.isFloat;
    const bool hideBox = isFloat && (param->getPresentationHints() & 2) != 0;
    const int h = rowHeight(), g = widgetGap(), indent = UifStd::instance().getIndentWidth();
    const int titledWidth = hideBox ? width_ : width_ - 2 * h - g;

    SliderParamHost::InitArgs hostArgs(width_, static_cast<unsigned short>(h));
    hostArgs.border = Border(Border::kNoBorder, 0, 15);
    auto* host = createRow<SliderParamHost>(hostArgs, position, surround);

    const Palette& palette = panel_->getPalette();
    TitledGlob<Slider>::InitArgs titledArgs(
        param->getLegend(), Slider::InitArgs(palette.subheadingText(), static_cast<unsigned short>(std::max(0, titledWidth - legendWidth_))),
        static_cast<unsigned short>(std::max(0, titledWidth)), static_cast<unsigned short>(h));
    auto* titled = host->createWidget<TitledGlob<Slider>>(titledArgs, Glob::UserTopLeft(0, 0));
    host->titled = titled;
    Slider* slider = titled->control();
    if (numbers.min != numbers.max) {
        slider->setValueRange(numbers.min, numbers.max);
        if (!isFloat) slider->setValueIncrement(std::max(1.0, (numbers.max - numbers.min) / 500.0));
    }
    slider->setPointOfInterest(numbers.pointOfInterest);
    slider->setPosition(numbers.current, kNoRedraw);
    titled->sliderRow = true;

    NumericTextBox* box = nullptr;
    if (!hideBox) {
        NumericTextBox::InitArgs boxArgs(UIString(LightweightString<wchar_t>()), static_cast<unsigned short>(2 * h),
                                         static_cast<unsigned short>(std::min(h, TextBox::calcHeight())));
        box = host->createWidget<NumericTextBox>(boxArgs, Glob::RightCentre(indent, 0, kAlignCentre), WidgetSurround(1, 15, 0, 0, 0.2f, false));
        box->setEditable(true);
        box->setPalette(makeChildPalette(palette));
        box->setAlignment(Glib::TextAlignment(Glib::kAlignCentreH, Glib::kAlignTop));
        if (numbers.min != numbers.max) box->setValueRange(numbers.min, numbers.max);
    }
    numbers.bind(slider, box);

    finishRow(param, host, kRedraw, {slider, box});
    return host;
}
