// The toolkit's plain controls in their states, with live values: buttons,
// check boxes bound to one value, a cycle button, labels, sliders bound to a
// whole number that a label follows, a text box whose committed text a label
// follows, icon buttons (one latching), a picture, and a gauge that runs on a timer.
// The widgets a script looks for have names.
#include "GalleryScene.h"

#include "controls/Checkbox.h"
#include "controls/CycleButton.h"
#include "controls/Gauge.h"
#include "controls/ImageButton.h"
#include "controls/ImageView.h"
#include "controls/PushButton.h"
#include "controls/Slider.h"
#include "controls/StandardPanel.h"
#include "controls/TextLabel.h"
#include "controls/TitleTextBox.h"
#include "draw/FontDesc.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "image/HostImage.h"
#include "value/ValAdaptor.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>

namespace {

// A label that shows a value as it changes.
template <class T>
class FollowingLabel : public ValClient<T> {
public:
    using Format = std::function<WString(const T&)>;
    FollowingLabel(ValServer<T>* server, TextLabel* label, Format format) : ValClient<T>(server), label_(label), format_(std::move(format)) {
        valChangedNtfy();
    }
    void valChangedNtfy() override { label_->setText(UIString(format_(static_cast<T>(*this)))); }

private:
    TextLabel* label_;
    Format format_;
};

class ControlsPanel : public StandardPanel {
public:
    ControlsPanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "ControlsPanel"; }

    ValServer<bool> loop{true};
    ValServer<int> frames{12};
    ValServer<WString> clipName;
    Gauge* gauge = nullptr;
    std::unique_ptr<FollowingLabel<int>> framesFollower;
    std::unique_ptr<FollowingLabel<WString>> clipFollower;

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
    flat->setStyle(Button::kFlat, Button::kFlat);
    Button* off = place<Button>(p, Button::InitArgs(L"Inactive", WidgetCallback("off"), 110, row), Glob::RightOf(gap, flat));
    off->setActive(false, kNoRedraw);
    ok->claimKbdFocus();
}

void addChecks(ControlsPanel* p, int gap, int row) {
    auto adaptor = Zn::Ptr<ValAdaptorBase<bool>>(new ValAdaptor<bool, bool>(&p->loop));
    Checkbox* a = place<Checkbox>(p, Checkbox::InitArgs(L"Loop playback", false, {}, 180, row), Glob::UserTopLeft(gap, 2 * gap + row));
    a->setDataAdaptor(adaptor);
    a->setName("loop");
    Checkbox* b = place<Checkbox>(p, Checkbox::InitArgs(L"Same value, second box", false, {}, 220, row), Glob::RightOf(gap, a));
    b->setDataAdaptor(adaptor);
    b->setName("loop-twin");
    adaptor->forceWidgetUpdate(kNoRedraw);
    Checkbox* c = place<Checkbox>(p, Checkbox::InitArgs(L"Inactive", true, {}, 120, row), Glob::Below(gap, a));
    c->setActive(false, kNoRedraw);
    place<CycleButton>(p, CycleButton::InitArgs({L"Speed: off", L"Speed: slow", L"Speed: fast"}, {}, 140, row), Glob::RightOf(gap, c));
}

// A text box whose text a label shows once it is committed (Return, or leaving the box).
Glob* addClipName(ControlsPanel* p, int gap, int row, Glob* above) {
    TitleTextBox::InitArgs args(UIString(L"Clip name"), 180, 270, static_cast<unsigned short>(TextBox::calcHeight()),
                                TitleTextBox::kLegendAgainstBox);
    auto* box = place<TitleTextBox>(p, args, Glob::Below(gap, above));
    box->setPlaceholder(UIString(L"Name the clip"));
    box->setDataAdaptor(Zn::Ptr<ValAdaptorBase<WString>>(new ValAdaptor<WString, WString>(&p->clipName)));
    box->getTextBox()->setName("clip-name");
    auto* label = place<TextLabel>(p, TextLabel::InitArgs(L"", 240, row), Glob::RightOf(gap, box));
    label->setName("clip-label");
    p->clipFollower = std::make_unique<FollowingLabel<WString>>(
        &p->clipName, label, [](const WString& name) { return name.empty() ? WString(L"No name yet") : WString(L"Named: ") + name; });
    return box;
}

// Colour bars over a grey ramp, made in memory: a picture that needs no file.
Zn::Ptr<iImage> colourBars(int w, int h) {
    static const std::uint32_t bars[] = {0xFFC0C0C0, 0xFFC0C000, 0xFF00C0C0, 0xFF00C000, 0xFFC000C0, 0xFFC00000, 0xFF0000C0};
    Zn::Ptr<iHostImage> image(new HostImage(w, h));
    for (int y = 0; y < h; ++y) {
        auto* line = reinterpret_cast<std::uint32_t*>(image->data() + y * image->stride());
        for (int x = 0; x < w; ++x) {
            std::uint32_t grey = static_cast<std::uint32_t>(255 * x / std::max(1, w - 1));
            line[x] = y < h * 2 / 3 ? bars[x * 7 / w] : 0xFF000000 | grey << 16 | grey << 8 | grey;
        }
    }
    return image;
}

void addImages(ControlsPanel* p, int gap, int row, Glob* above) {
    const int side = row + gap, wide = 130;
    auto* magnify =
        place<ImageButton>(p, ImageButton::InitArgs(getIconPath(L"magnify"), WidgetCallback("magnify"), side, side), Glob::Below(gap, above));
    magnify->setName("magnify");
    auto* overlay =
        place<ImageButton>(p, ImageButton::InitArgs(getIconPath(L"eye-open"), WidgetCallback("overlay"), wide, side), Glob::RightOf(gap, magnify));
    overlay->setLabel(UIString(L"Overlay"), kNoRedraw);
    overlay->setLatching(true, true);
    overlay->setName("overlay");
    auto* pick =
        place<ImageButton>(p, ImageButton::InitArgs(getIconPath(L"eyedropper"), WidgetCallback("pick"), wide, side), Glob::RightOf(gap, overlay));
    pick->setLabel(UIString(L"Pick colour"), kNoRedraw);
    auto* picture = place<ImageView>(p, ImageView::InitArgs(colourBars(160, 90), 160, 90), Glob::RightOf(gap, pick, kAlignEnd));
    picture->setName("picture");
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
    p->framesFollower =
        std::make_unique<FollowingLabel<int>>(&p->frames, label, [](const int& n) { return WString(L"Frames: " + std::to_wstring(n)); });
    addImages(p, gap, row, addClipName(p, gap, row, label));
    p->gauge = place<Gauge>(p, Gauge::InitArgs(static_cast<unsigned short>(p->getUserArea().width() - 2 * gap), row), Glob::UserBottomLeft(gap, gap));
    p->gauge->setMeasure(0.4);
    p->gauge->setMessage(L"40%");
}

void buildControls() {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = u.getRowHeight();
    Drawable::disableRedraws();
    const int clipRow = TextBox::calcHeight(), pictureRow = 90;
    StandardPanel::InitArgs args(560, static_cast<unsigned short>(7 * row + clipRow + pictureRow + 10 * gap + u.getTitleHeight()));
    args.palette = u.getColourScheme();
    auto* p = new ControlsPanel(args);
    p->setBorder(StandardPanel::getDefaultBorder());
    p->setTitle(UIString(L"Controls"));
    p->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kTitleBar);
    const Screen& screen = GlobManager::instance().screen();
    p->setupRootPos({40, screen.height() - 60 - p->height()});
    addButtons(p, gap, row);
    addChecks(p, gap, row);
    addValues(p, gap, row);
    p->setInterest(Glob::kTimerInterest);
    GlobManager::instance().realize(p);
    Drawable::enableRedraws();
}

GallerySceneRegistration
    controls("controls", "Buttons, check boxes, cycle button, labels, sliders, a text box, icon buttons, a picture and a gauge, with live values",
             buildControls);

} // namespace
