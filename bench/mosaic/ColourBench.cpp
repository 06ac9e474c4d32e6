// The colour tools' hot paths: building the wheel's picture from nothing and
// painting a wheel whose picture is kept; one drag event on the wheel through to
// the last bound text box repainted; and a drop-down of a 20-control panel opened
// and painted.
#include "BenchHost.h"
#include "colour/ColourComponentAdaptor.h"
#include "colour/ComponentTextBox.h"
#include "colour/HSColourWheel.h"
#include "colour/HexColourAdaptor.h"
#include "controls/Button.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "panels/DropDownButtonEx.h"
#include "value/ValAdaptor.h"

#include <benchmark/benchmark.h>

namespace {

HSColourWheel* addWheel(StandardPanel* host) {
    const unsigned short side = static_cast<unsigned short>(200 + 2 * UifStd::instance().getWidgetGap());
    HSColourWheel::InitArgs args(side, side);
    return host->createWidget<HSColourWheel>(args, Glob::BottomLeft(0, 0));
}

void BM_WheelPictureFromNothing(benchmark::State& state) {
    StandardPanel* host = makeBenchHost(300, 300);
    HSColourWheel* wheel = addWheel(host);
    const Colour face = wheel->getCol();
    for (auto _ : state) {
        HSColourWheel::lastWheelImage_ = {};
        wheel->setCol(face, false);
        wheel->drawBackground();
    }
    delete host;
}
BENCHMARK(BM_WheelPictureFromNothing)->Unit(benchmark::kMicrosecond);

void BM_WheelPaintedFromItsPicture(benchmark::State& state) {
    StandardPanel* host = makeBenchHost(300, 300);
    HSColourWheel* wheel = addWheel(host);
    wheel->drawBackground();
    for (auto _ : state) wheel->drawBackground();
    delete host;
}
BENCHMARK(BM_WheelPaintedFromItsPicture)->Unit(benchmark::kMicrosecond);

void BM_WheelDragToBoundTexts(benchmark::State& state) {
    StandardPanel* host = makeBenchHost(600, 300);
    HSColourWheel* wheel = addWheel(host);
    ValServer<ColourData> colour(ColourData(0.0, 0.0, 1.0, kColourSpaceHSV, 1.0));
    wheel->setDataAdaptor(Zn::Ptr<ValAdaptorBase<ColourData>>(new ValAdaptor<ColourData, ColourData>(&colour)));
    const unsigned short row = static_cast<unsigned short>(UifStd::instance().getRowHeight());
    Glob* last = nullptr;
    for (int i = 0; i < 7; ++i) {
        TitleTextBox::InitArgs args(UIString(L"C"), 80, 200, row);
        auto* box = host->createWidget<ComponentTextBox>(args, Glob::UserTopRight(10, 10 + i * (row + 4)));
        if (i < 6)
            box->setDataAdaptor(Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(
                new ColourComponentAdaptor(i % 3, i < 3 ? kColourSpaceHSV : kColourSpaceRGB, &colour)));
        else
            box->setDataAdaptor(Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(new HexColourAdaptor(&colour)));
        last = box;
    }
    GlobManager& gm = GlobManager::instance();
    gm.runUntilIdle();
    const XY<int> centre = host->screenPos() + XY<int>(static_cast<int>(wheel->centre().x), static_cast<int>(wheel->centre().y));
    gm.dispatch(Event::mouse(Event::kMouseDown, centre, Event::kLeft));
    int step = 0;
    for (auto _ : state) {
        step = (step + 7) % 80;
        gm.dispatch(Event::mouse(Event::kMouseMove, centre + XY<int>(step, step / 2), Event::kLeft));
        gm.runUntilIdle();
    }
    gm.dispatch(Event::mouse(Event::kMouseUp, centre, Event::kLeft));
    if (!last || colour.value().getSaturation() == 0.0) state.SkipWithError("the drag did not arrive");
    delete host;
}
BENCHMARK(BM_WheelDragToBoundTexts)->Unit(benchmark::kMicrosecond);

// A panel of 20 buttons, the widget the drop-down opens.
class TwentyControls : public StandardPanel {
public:
    using InitArgs = StandardPanel::InitArgs;
    explicit TwentyControls(const InitArgs& args) : StandardPanel(args) {
        const unsigned short row = static_cast<unsigned short>(UifStd::instance().getRowHeight());
        for (int i = 0; i < 20; ++i) {
            Button::InitArgs b(UIString(L"Control"), WidgetCallback("pressed"), 90, row);
            createWidget<Button>(b, Glob::UserTopLeft(4 + (i % 2) * 100, 4 + (i / 2) * (row + 2)));
        }
    }
};

void BM_DropDownOfTwentyControls(benchmark::State& state) {
    StandardPanel* host = makeBenchHost(300, 100);
    host->setupRootPos({100, 700});
    using Drop = DropDownButtonEx<TwentyControls>;
    const int row = UifStd::instance().getRowHeight();
    Drop::InitArgs args(100, static_cast<unsigned short>(row), TwentyControls::InitArgs(210, static_cast<unsigned short>(10 * (row + 2) + 8)));
    auto* button = host->createWidget<Drop>(args, Glob::BottomLeft(10, 10));
    GlobManager& gm = GlobManager::instance();
    gm.runUntilIdle();
    for (auto _ : state) {
        button->displayDropDown();
        gm.runUntilIdle();
        state.PauseTiming();
        button->removeMenuFromScreen();
        gm.runUntilIdle();
        state.ResumeTiming();
    }
    delete host;
}
BENCHMARK(BM_DropDownOfTwentyControls)->Unit(benchmark::kMicrosecond);

} // namespace
