// Parameter rows: a legend with a control at the right, and the slider row's host.
#include "controls/Button.h"
#include "controls/NumericTextBox.h"
#include "controls/Slider.h"
#include "controls/StandardPanel.h"
#include "controls/VerticalScrollingBase.h"
#include "glob/GlobManager.h"
#include "params/SliderParamHost.h"
#include "params/TitledGlob.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

namespace {

class TitledRows : public ::testing::Test {
protected:
    void SetUp() override {
        panel = new StandardPanel(StandardPanel::InitArgs(500, 200));
        panel->setupRootPos({100, 100});
        GlobManager::instance().realize(panel);
    }
    void TearDown() override { TestKit::reset(); }

    template <class T>
    T* add(typename T::InitArgs args, XY<int> at = {10, 10}) {
        T* t = panel->createWidget<T>(args, Glob::UserBottomLeft(at.x, at.y));
        TestKit::pump();
        return t;
    }

    StandardPanel* panel = nullptr;
};

} // namespace

TEST_F(TitledRows, TheControlSitsAtTheRightEdgeCentredAndNoTallerThanTheRow) {
    TitledGlob<Button>::InitArgs args(L"Render", Button::InitArgs(L"Go", WidgetCallback("go"), 80, 60), 300, 28);
    auto* row = add<TitledGlob<Button>>(args);
    Glob* button = row->widget;
    ASSERT_NE(button, nullptr);
    EXPECT_STREQ(row->idstring(), "TitledButton");
    EXPECT_EQ(button->height(), 28) << "a control taller than the row is cut to it";
    EXPECT_EQ(button->getY(), 0) << "and then sits at offset 0";
    EXPECT_EQ(button->getX() + button->width(), row->width()) << "at the right edge";

    // The legend is painted in its column, left of the control.
    const std::uint32_t back = TestKit::argb(row->getPalette().window());
    int ink = 0;
    for (int x = 0; x < button->getX(); ++x)
        for (int y = 4; y < 24; ++y) ink += TestKit::globPixel(row, x, y) != back;
    EXPECT_GT(ink, 20);
}

TEST_F(TitledRows, AControlOfNoWidthTakesWhatTheLegendLeaves) {
    const UIString title(L"A legend long enough to leave the button little room");
    const int legend = TitleGlob::calcTitleWidth(title);
    TitledGlob<Button>::InitArgs args(title, Button::InitArgs(L"Go", {}, 0, 24), static_cast<unsigned short>(legend + 6), 28);
    auto* row = add<TitledGlob<Button>>(args);
    EXPECT_EQ(row->widget->width(), 6) << "however little is left";
    EXPECT_EQ(row->widget->getY(), 2) << "a shorter control is centred in the row";

    TitledGlob<Slider>::InitArgs sliderArgs(L"Gain", Slider::InitArgs(Colour(0.2, 0.6, 0.9), 0), 300, 28);
    auto* sliderRow = add<TitledGlob<Slider>>(sliderArgs, {10, 60});
    EXPECT_STREQ(sliderRow->idstring(), "TitledSlider");
    EXPECT_EQ(sliderRow->control()->width(), 300 - TitleGlob::calcTitleWidth(L"Gain"));
    // The control in the row is live: a click on its right end moves it there.
    Slider* s = sliderRow->control();
    TestKit::click(TestKit::screenPointOf(s, {s->xOf(0.9), s->height() / 2}));
    TestKit::pump();
    EXPECT_NEAR(s->getPosition(), 0.9, 0.02);
}

TEST_F(TitledRows, AWidenedSliderHostGivesTheSliderTheWidthAndMovesTheBox) {
    auto* host = add<SliderParamHost>(SliderParamHost::InitArgs(400, 28));
    TitledGlob<Slider>::InitArgs sliderArgs(L"Level", Slider::InitArgs(Colour(0.9, 0.4, 0.1), 0), 300, 28);
    host->titled = host->createWidget<TitledGlob<Slider>>(sliderArgs, Glob::BottomLeft(0, 0));
    NumericTextBox::InitArgs boxArgs(L"0.5", 80, 24);
    Glob* box = host->createWidget<NumericTextBox>(boxArgs, Glob::UserBottomRight(0, 2));
    TestKit::pump();
    const int boxX = box->getX(), titledW = host->titled->width();
    const int sliderW = static_cast<TitledGlob<Slider>*>(host->titled)->control()->width();

    host->resize(450, 28);
    EXPECT_EQ(host->titled->width(), titledW + 50);
    EXPECT_EQ(static_cast<TitledGlob<Slider>*>(host->titled)->control()->width(), sliderW + 50) << "the legend keeps its width";
    EXPECT_EQ(box->getX(), boxX + 50);
    EXPECT_EQ(box->width(), 80);
}

TEST_F(TitledRows, AHostPassesItsStateToItsChildrenAndRedrawsOnlyWhenAsked) {
    auto* host = add<SliderParamHost>(SliderParamHost::InitArgs(400, 28));
    TitledGlob<Slider>::InitArgs sliderArgs(L"Level", Slider::InitArgs(Colour(0.9, 0.4, 0.1), 0), 300, 28);
    auto* titled = host->createWidget<TitledGlob<Slider>>(sliderArgs, Glob::BottomLeft(0, 0));
    host->titled = titled;
    titled->control()->setPosition(1.0);
    TestKit::pump();
    Slider* s = titled->control();
    const XY<int> onTrack{s->xOf(0.5), s->height() / 2};
    const std::uint32_t active = TestKit::globPixel(s, onTrack.x, onTrack.y);

    host->setActive(false, kNoRedraw);
    EXPECT_FALSE(titled->isActive());
    EXPECT_FALSE(s->isActive()) << "the titled row passes it on to its control";
    EXPECT_TRUE(host->isActive()) << "the host's own state is untouched";
    TestKit::pump();
    EXPECT_EQ(TestKit::globPixel(s, onTrack.x, onTrack.y), active) << "not redrawn until asked";

    host->setActive(false, kRedraw);
    TestKit::pump();
    EXPECT_NE(TestKit::globPixel(s, onTrack.x, onTrack.y), active) << "an inactive slider is dimmed";
}

TEST_F(TitledRows, ManagedRowsOfTitledControlsStackInAScroller) {
    VerticalScrollingBase::InitArgs args(400, 150);
    args.rowGap = 4;
    auto* scroller = add<VerticalScrollingBase>(args);
    for (const wchar_t* legend : {L"One", L"Two", L"Three"})
        scroller->createManagedWidget<TitledGlob<Button>>(TitledGlob<Button>::InitArgs(legend, Button::InitArgs(L"Set", {}, 60, 24), 0, 28));
    ASSERT_EQ(scroller->rows.size(), 3u);
    EXPECT_EQ(scroller->rows[0]->width(), scroller->content->getUserArea().width()) << "a row of width 0 spans the content";
    EXPECT_EQ(scroller->rows[0]->getY() - scroller->rows[1]->getY(), 28 + 4);
    EXPECT_EQ(static_cast<TitledGlob<Button>*>(scroller->rows[2])->getTitle().getString(), LightweightString<wchar_t>(L"Three"));
}
