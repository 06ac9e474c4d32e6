// The toolkit's plain controls in their states, with live values: buttons,
// check boxes bound to one value, a cycle button, labels, sliders bound to a
// whole number that a label follows, and a gauge that runs on a timer.
#include "GalleryScene.h"

#include "controls/Checkbox.h"
#include "controls/CycleButton.h"
#include "controls/Gauge.h"
#include "controls/PushButton.h"
#include "controls/Slider.h"
#include "controls/TextLabel.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "glob/StandardPanel.h"
#include "glob/UifStd.h"
#include "value/ValAdaptor.h"

#include <string>

namespace {

// A label that shows a whole number as it changes.
class FollowingLabel : public ValClient<int> {
public:
    FollowingLabel(ValServer<int>* server, TextLabel* label) : ValClient<int>(server), label_(label) { valChangedNtfy(); }
    void valChangedNtfy() override { label_->setText(UIString(WString(L"Frames: " + std::to_wstring(static_cast<int>(*this))))); }

private:
    TextLabel* label_;
};

class ControlsPanel : public StandardPanel {
public:
    ControlsPanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "ControlsPanel"; }

    ValServer<bool> loop{true};
    ValServer<int> frames{12};
    Gauge* gauge = nullptr;
    std::unique_ptr<FollowingLabel> follower;

    int handleTimerEvent() override {
        if (!gauge) return 0;
        double next = gauge->getMeasure() + 0.01;
        gauge->setMeasure(next > 1.0 ? 0.0 : next);
        gauge->setMessage(WString(std::to_wstring(static_cast<int>(gauge->getMeasure() * 100)) + L"%"));
        gauge->display();
        return 1;
    }
};

template <class T>
T* place(StandardPanel* p, typename T::InitArgs args, const WidgetPosition& at) {
    return p->createWidget<T>(args, at);
}

void addButtons(ControlsPanel* p, int gap, int row) {
    Button* normal = place<Button>(p, Button::InitArgs(L"Button", WidgetCallback("button"), 110, row), Glob::UserTopLeft(gap, gap));
    auto* ok = place<PushButton>(p, PushButton::InitArgs(L"Render", WidgetCallback("render"), 110, row), Glob::RightOf(gap, normal));
    ok->setDefault(true);
    Button* flat = place<Button>(p, Button::InitArgs(L"Flat", WidgetCallback("flat"), 90, row), Glob::RightOf(gap, ok));
    flat->setStyle(1, 1);
    Button* off = place<Button>(p, Button::InitArgs(L"Inactive", WidgetCallback("off"), 110, row), Glob::RightOf(gap, flat));
    off->setActive(false, kNoRedraw);
    ok->claimKbdFocus();
}

void addChecks(ControlsPanel* p, int gap, int row) {
    auto adaptor = Zn::Ptr<ValAdaptorBase<bool>>(new ValAdaptor<bool, bool>(&p->loop));
    Checkbox* a = place<Checkbox>(p, Checkbox::InitArgs(L"Loop playback", false, {}, 180, row), Glob::UserTopLeft(gap, 2 * gap + row));
    a->setDataAdaptor(adaptor);
    Checkbox* b = place<Checkbox>(p, Checkbox::InitArgs(L"Same value, second box", false, {}, 220, row), Glob::RightOf(gap, a));
    b->setDataAdaptor(adaptor);
    adaptor->forceWidgetUpdate(kNoRedraw);
    Checkbox* c = place<Checkbox>(p, Checkbox::InitArgs(L"Inactive", true, {}, 120, row), Glob::Below(gap, a));
    c->setActive(false, kNoRedraw);
    place<CycleButton>(p, CycleButton::InitArgs({L"Speed: off", L"Speed: slow", L"Speed: fast"}, {}, 140, row), Glob::RightOf(gap, c));
}

void addValues(ControlsPanel* p, int gap, int row) {
    auto* slider = place<Slider>(p, Slider::InitArgs(Colour(0.85, 0.45, 0.15), 260), Glob::UserTopLeft(gap, 4 * gap + 3 * row));
    slider->setValueRange(0, 50);
    slider->setPointOfInterest(25);
    slider->setDataAdaptor(Zn::Ptr<ValAdaptorBase<double>>(new ValAdaptor<double, int>(&p->frames)));
    slider->getDataAdaptor()->forceWidgetUpdate(kNoRedraw);
    auto* quiet = place<Slider>(p, Slider::InitArgs(Colour(0.3, 0.5, 0.85), 160), Glob::RightOf(gap, slider));
    quiet->setPosition(0.3, kNoRedraw);
    quiet->setActive(false, kNoRedraw);
    auto* label = place<TextLabel>(p, TextLabel::InitArgs(L"", 200, row), Glob::Below(gap, slider));
    p->follower = std::make_unique<FollowingLabel>(&p->frames, label);
    p->gauge = place<Gauge>(p, Gauge::InitArgs(static_cast<unsigned short>(p->getUserArea().width() - 2 * gap), row), Glob::UserBottomLeft(gap, gap));
    p->gauge->setMeasure(0.4);
    p->gauge->setMessage(L"40%");
}

void buildControls() {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = u.getRowHeight();
    Drawable::disableRedraws();
    StandardPanel::InitArgs args(560, static_cast<unsigned short>(7 * row + 8 * gap + u.getTitleHeight()));
    args.palette = u.getColourScheme();
    auto* p = new ControlsPanel(args);
    p->setBorder(StandardPanel::getDefaultBorder());
    p->setTitle(UIString(L"Controls"));
    p->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kMoveByTitle);
    const Screen& screen = GlobManager::instance().screen();
    p->setupRootPos({40, screen.height() - 60 - p->height()});
    addButtons(p, gap, row);
    addChecks(p, gap, row);
    addValues(p, gap, row);
    p->setInterest(4096);
    GlobManager::instance().realize(p);
    Drawable::enableRedraws();
}

GallerySceneRegistration controls("controls", "Buttons, check boxes, cycle button, labels, sliders and a gauge, with live values", buildControls);

} // namespace
