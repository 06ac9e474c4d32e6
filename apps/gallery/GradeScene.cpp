// A dense panel as a colourist uses it: twelve grading parameters, each a check
// box that switches it on, a slider and a number box bound to one whole number,
// under a scope choice and above a row of actions. The gallery's busiest scene,
// which the painting benchmark measures.
#include "GalleryScene.h"

#include "controls/Checkbox.h"
#include "controls/CycleButton.h"
#include "controls/NumericTextBox.h"
#include "controls/Slider.h"
#include "controls/StandardPanel.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "value/ValAdaptor.h"

#include <array>

namespace {

struct Parameter {
    const wchar_t* name;
    int value;
    Colour colour;
};

const std::array<Parameter, 12> kParameters = {{
    {L"Lift red", 0, Colour(0.85, 0.3, 0.3)},
    {L"Lift green", 4, Colour(0.3, 0.75, 0.35)},
    {L"Lift blue", -6, Colour(0.3, 0.5, 0.9)},
    {L"Gamma red", 10, Colour(0.85, 0.3, 0.3)},
    {L"Gamma green", 0, Colour(0.3, 0.75, 0.35)},
    {L"Gamma blue", -12, Colour(0.3, 0.5, 0.9)},
    {L"Gain red", 20, Colour(0.85, 0.3, 0.3)},
    {L"Gain green", 8, Colour(0.3, 0.75, 0.35)},
    {L"Gain blue", 0, Colour(0.3, 0.5, 0.9)},
    {L"Saturation", 35, Colour(0.8, 0.6, 0.2)},
    {L"Contrast", -15, Colour(0.7, 0.7, 0.7)},
    {L"Temperature", 25, Colour(0.9, 0.55, 0.2)},
}};

class GradePanel : public StandardPanel {
public:
    explicit GradePanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "GradePanel"; }

    std::array<ValServer<int>, kParameters.size()> values;
};

void addParameter(GradePanel* p, std::size_t i, Glob* above) {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = TextBox::calcHeight();
    const Parameter& param = kParameters[i];
    p->values[i] = param.value;
    WidgetPosition at = above ? Glob::Below(gap, above) : Glob::UserTopLeft(gap, gap);
    Checkbox::InitArgs check(param.name, param.value != 0, {}, 140, static_cast<unsigned short>(row));
    auto* on = p->createWidget<Checkbox>(check, at);
    Slider::InitArgs track(param.colour, 240);
    auto* slider = p->createWidget<Slider>(track, Glob::RightOf(gap, on));
    slider->setValueRange(-100, 100);
    slider->setPointOfInterest(0);
    slider->setDataAdaptor(Zn::Ptr<ValAdaptorBase<double>>(new ValAdaptor<double, int>(&p->values[i])));
    slider->getDataAdaptor()->forceWidgetUpdate(kNoRedraw);
    NumericTextBox::InitArgs number(UIString(), 70, static_cast<unsigned short>(row));
    auto* box = p->createWidget<NumericTextBox>(number, Glob::RightOf(gap, slider));
    box->setValueRange(-100, 100);
    box->setDataAdaptor(Zn::Ptr<ValAdaptorBase<WString>>(new ValAdaptor<WString, int>(&p->values[i])));
}

void addActions(GradePanel* p) {
    const int gap = UifStd::instance().getWidgetGap(), row = UifStd::instance().getRowHeight();
    Glob* last = nullptr;
    for (const wchar_t* label : {L"Reset", L"Copy", L"Paste", L"Apply"}) {
        Button::InitArgs args(UIString(label), WidgetCallback("grade"), 90, static_cast<unsigned short>(row));
        last = p->createWidget<Button>(args, last ? Glob::RightOf(gap, last) : Glob::UserBottomLeft(gap, gap));
    }
}

void buildGrade() {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = TextBox::calcHeight();
    Drawable::disableRedraws();
    const int rows = static_cast<int>(kParameters.size()) + 2;
    StandardPanel::InitArgs args(490, static_cast<unsigned short>(rows * (row + gap) + 2 * gap + u.getTitleHeight()));
    args.palette = u.getColourScheme();
    auto* p = new GradePanel(args);
    p->setBorder(StandardPanel::getDefaultBorder());
    p->setTitle(UIString(L"Grade"));
    p->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kTitleBar);
    p->setupRootPos({40, GlobManager::instance().screen().height() - 40 - p->height()});
    CycleButton::InitArgs scope({L"Scope: luma", L"Scope: RGB", L"Scope: parade"}, {}, 160, static_cast<unsigned short>(row));
    Glob* above = p->createWidget<CycleButton>(scope, Glob::UserTopLeft(gap, gap));
    for (std::size_t i = 0; i < kParameters.size(); ++i) {
        auto before = p->getChildren().size();
        addParameter(p, i, above);
        above = p->getChildren()[before];
    }
    addActions(p);
    GlobManager::instance().realize(p);
    Drawable::enableRedraws();
}

GallerySceneRegistration grade("grade", "A dense grading panel: twelve parameters of check box, slider and number box on one value, with actions",
                               buildGrade);

} // namespace
