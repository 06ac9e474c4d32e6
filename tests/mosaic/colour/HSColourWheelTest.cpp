#include "colour/HSColourWheel.h"
#include "colour/ColourComponentAdaptor.h"
#include "colour/ComponentTextBox.h"
#include "colour/HexColourAdaptor.h"
#include "core/FloatFromWString.h"
#include "draw/UifStd.h"
#include "testkit/TestKit.h"
#include "value/ValAdaptor.h"

#include <cmath>

namespace {

// Passes the whole colour through, as a picker binds its wheel, and keeps the
// kind of the last change asked for.
class RecordingAdaptor : public ValAdaptor<ColourData, ColourData> {
public:
    using ValAdaptor::ValAdaptor;
    bool requestSetNewDataValue(const ColourData& c, DataChangeType type) override {
        types.push_back(type);
        return ValAdaptor::requestSetNewDataValue(c, type);
    }
    std::vector<DataChangeType> types;
};

class Wheels : public TestKit::ScreenTest {
protected:
    void SetUp() override {
        HSColourWheel::lastWheelImage_ = {};
        StandardPanel::InitArgs args(560, 300);
        args.palette = UifStd::instance().getColourScheme();
        host = TestKit::realize(new StandardPanel(args), {100, 100});
    }
    // A wheel of radius 100 (inset by the widget gap) at the host's bottom left.
    HSColourWheel* addWheel(int x = 0, int size = 0) {
        const int side = size ? size : 200 + 2 * UifStd::instance().getWidgetGap();
        HSColourWheel::InitArgs args(static_cast<unsigned short>(side), static_cast<unsigned short>(side));
        auto* w = host->createWidget<HSColourWheel>(args, Glob::BottomLeft(x, 0));
        adaptor = Zn::Ptr<RecordingAdaptor>(new RecordingAdaptor(&colour));
        w->setDataAdaptor(Zn::Ptr<ValAdaptorBase<ColourData>>(adaptor));
        TestKit::pump();
        return w;
    }
    // The screen point of a point of the disc, relative to its centre.
    static XY<int> discPoint(const HSColourWheel* w, double x, double y) {
        return TestKit::screenPointOf(w, {static_cast<int>(w->centre().x + x), static_cast<int>(w->centre().y + y)});
    }
    static std::uint32_t discPixel(const HSColourWheel* w, double displayAngle, double distance) {
        const double a = displayAngle * 3.141592653589793 / 180.0;
        return TestKit::globPixel(w, static_cast<int>(w->centre().x + std::sin(a) * distance),
                                  static_cast<int>(w->centre().y + std::cos(a) * distance));
    }
    static int channel(std::uint32_t px, int shift) { return static_cast<int>((px >> shift) & 0xFF); }

    StandardPanel* host = nullptr;
    ValServer<ColourData> colour{ColourData(0.0, 0.0, 1.0, kColourSpaceHSV, 1.0)};
    Zn::Ptr<RecordingAdaptor> adaptor;
};

} // namespace

TEST_F(Wheels, HueTurnsAgainstTheDisplayAndTheDiscEdgeCountsWholePixels) {
    HSColourWheel* w = addWheel();
    ASSERT_EQ(w->radius(), 100.0);
    double x = 0, y = 0, h = 0, s = 0;
    ASSERT_EQ(w->convertHStoXY(0.0, 0.5, x, y), 0);
    EXPECT_NEAR(std::atan2(x, y) * 180.0 / 3.141592653589793 + 360.0, 346.0, 1e-9) << "hue 0 at display angle 346";
    EXPECT_EQ(w->convertHStoXY(361.0, 0.5, x, y), -1);
    EXPECT_EQ(w->convertXYtoHS(99.9, 0.0, h, s), 0) << "99.9 is pixel 99, still on the disc";
    EXPECT_EQ(w->convertXYtoHS(100.2, 0.0, h, s), -1);
    ASSERT_EQ(w->convertXYtoHS(0.0, 50.0, h, s), 0);
    EXPECT_EQ(h, 346.0);
    EXPECT_EQ(s, 0.5);
    ASSERT_EQ(w->setCursor(10.0, 10.0), 0);
    EXPECT_EQ(w->setCursor(10.0, 10.0), -1);
    EXPECT_EQ(w->setCursor(150.0, 0.0), -1);
}

TEST_F(Wheels, ThePictureShowsHueByAngleAPaleCentreAndBackgroundCorners) {
    HSColourWheel* w = addWheel();
    ASSERT_TRUE(w->wheelImage());
    EXPECT_EQ(w->wheelImage()->width(), 201);
    const std::uint32_t red = discPixel(w, 346.0, 60.0), cyan = discPixel(w, 166.0, 60.0);
    EXPECT_GT(channel(red, 16), 250);
    EXPECT_LT(channel(red, 8), 110);
    EXPECT_LT(channel(cyan, 16), 110);
    EXPECT_GT(channel(cyan, 8), 250);
    const std::uint32_t centre = TestKit::globPixel(w, static_cast<int>(w->centre().x), static_cast<int>(w->centre().y));
    EXPECT_NEAR(std::min({channel(centre, 16), channel(centre, 8), channel(centre, 0)}), 204, 6) << "saturation 0.2, not white";
    const int gap = UifStd::instance().getWidgetGap();
    EXPECT_TRUE(TestKit::pixelNear(w, gap + 3, gap + 3, TestKit::argb(w->getCol()), 1));
}

TEST_F(Wheels, WheelsOfOneSizeShareAPictureAndAnotherSizeMakesItsOwn) {
    HSColourWheel* a = addWheel(0);
    HSColourWheel* b = addWheel(230);
    ASSERT_TRUE(a->wheelImage());
    EXPECT_EQ(a->wheelImage().get(), b->wheelImage().get());
    HSColourWheel* c = addWheel(440, 90);
    ASSERT_TRUE(c->wheelImage());
    EXPECT_NE(c->wheelImage().get(), a->wheelImage().get());
    EXPECT_EQ(HSColourWheel::lastWheelImage_.get(), c->wheelImage().get());
    EXPECT_EQ(a->wheelImage().get(), b->wheelImage().get()) << "the first two keep theirs";
    c->resize(110, 110);
    c->redraw();
    TestKit::pump();
    ASSERT_TRUE(c->wheelImage());
    EXPECT_EQ(c->wheelImage()->width(), 2 * static_cast<int>(c->radius()) + 1);
}

TEST_F(Wheels, AClickBesideTheMarkerResetsAndASubPixelDragSendsNothing) {
    HSColourWheel* w = addWheel();
    colour = ColourData(200.0, 0.5, 0.8, kColourSpaceHSV, 0.7);
    TestKit::pump();
    TestKit::click(discPoint(w, 60, -60));
    TestKit::pump();
    ASSERT_FALSE(adaptor->types.empty());
    EXPECT_EQ(adaptor->types.back(), kResetChange);
    EXPECT_EQ(colour.value().getSaturation(), 0.0);
    EXPECT_EQ(colour.value().getHue(), 0.0);
    EXPECT_EQ(colour.value().getAlpha(), 0.7);

    adaptor->types.clear();
    const XY<int> marker = discPoint(w, w->cursor().x, w->cursor().y);
    TestKit::mouseDown(marker);
    TestKit::mouseUp(marker);
    EXPECT_EQ(adaptor->types, std::vector<DataChangeType>{kChangeStart}) << "a press on the marker grabs it";
}

TEST_F(Wheels, AResizedWheelKeepsTheHueAndSaturationOfItsColour) {
    HSColourWheel* w = addWheel();
    colour = ColourData(90.0, 0.5, 1.0, kColourSpaceHSV, 1.0);
    w->resize(120, 120);
    const ColourData kept = w->getWidgetValue();
    EXPECT_NEAR(kept.getHue(), 90.0, 1e-6);
    EXPECT_NEAR(kept.getSaturation(), 0.5, 1e-6);
    EXPECT_NE(w->radius(), 100.0);
}

TEST_F(Wheels, DraggingTheMarkerMovesTheTextsAndAHexEntryMovesTheMarker) {
    HSColourWheel* w = addWheel();
    const unsigned short row = static_cast<unsigned short>(UifStd::instance().getRowHeight());
    auto box = [&](const wchar_t* legend, Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>> a, int y) {
        TitleTextBox::InitArgs args(UIString(legend), 80, 200, row);
        auto* b = host->createWidget<ComponentTextBox>(args, Glob::UserTopRight(10, y));
        b->setDataAdaptor(a);
        a->forceWidgetUpdate(kNoRedraw);
        return b;
    };
    ComponentTextBox* hue =
        box(L"H", Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(new ColourComponentAdaptor(0, kColourSpaceHSV, &colour)), 10);
    ComponentTextBox* sat =
        box(L"S", Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(new ColourComponentAdaptor(1, kColourSpaceHSV, &colour)), 50);
    TitleTextBox::InitArgs hexArgs(UIString(L"Hex"), 80, 200, row);
    auto* hex = host->createWidget<TitleTextBox>(hexArgs, Glob::UserTopRight(10, 90));
    hex->setDataAdaptor(Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>(new HexColourAdaptor(&colour)));
    TestKit::pump();

    // The marker starts at the centre; drag it 60 pixels right: display angle 90.
    TestKit::drag(discPoint(w, 0, 0), discPoint(w, 60, 0), 6);
    TestKit::pump();
    EXPECT_NEAR(Zn::FloatFromWString(hue->getString(), -1.0), 256.0, 1.0);
    EXPECT_NEAR(Zn::FloatFromWString(sat->getString(), -1.0), 60.0, 1.5);
    EXPECT_FALSE(w->isDragging());

    TestKit::click(TestKit::centreOf(hex->getTextBox()));
    TestKit::pressKey('A', Modifiers::Control);
    TestKit::typeText(L"FF0000");
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(hue->getString(), L"0.00");
    const XY<double> c = w->cursor();
    EXPECT_NEAR(std::atan2(c.x, c.y) * 180.0 / 3.141592653589793 + 360.0, 346.0, 0.5) << "the marker at hue 0";
    EXPECT_NEAR(std::hypot(c.x, c.y), 100.0, 1.0);
}
