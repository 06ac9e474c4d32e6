#include "PanelsTestSupport.h"
#include "controls/TextLabel.h"
#include "controls/TitleButton.h"
#include "draw/UifStd.h"

namespace {

class TitledRows : public ControlsTest {
protected:
    TitleButton* row(const UIString& title, int width = 300, int height = 30, const WidgetCallback& cb = WidgetCallback("pressed")) {
        return add<TitleButton>(
            TitleButton::InitArgs(title, L"Choose", cb, 0, static_cast<unsigned short>(width), static_cast<unsigned short>(height)));
    }
    static std::uint32_t textColour(const Glob* g, eTextAppearance a) { return TestKit::argb(g->getPalette().text(a)); }
};

// A row whose control is a label that its owner added itself, as titled rows of other kinds do.
class LabelRow : public TitleGlob {
public:
    explicit LabelRow(const InitArgs& args, int controlHeight) : TitleGlob(args) {
        TextLabel::InitArgs l(L"value", static_cast<unsigned short>(controlBox().width()), static_cast<unsigned short>(controlHeight));
        l.canvas = canvas();
        label = new TextLabel(l);
        addChild(label, UserBottomRight(0, std::max(0, (height() - controlHeight) / 2)));
    }
    TextLabel* label;
};

} // namespace

TEST_F(TitledRows, TheButtonTakesTheWidthTheLegendLeavesAndIsCentredInTheRow) {
    TitleButton* r = row(L"Gain");
    Button* b = r->getBtn();
    ASSERT_NE(b, nullptr);
    const int legend = TitleGlob::calcTitleWidth(L"Gain");
    EXPECT_EQ(r->getTitleWidth(), legend);
    EXPECT_EQ(b->getX(), legend);
    EXPECT_EQ(b->getX() + b->width(), r->width());
    EXPECT_EQ(b->getY(), (30 - b->height()) / 2);
    EXPECT_EQ(r->getControl(), b);
    EXPECT_EQ(r->titleBox(), BoxInt(0, 0, legend, 30));
    EXPECT_EQ(r->controlBox(), BoxInt(legend, 0, 300, 30));

    TitleButton* untitled = row(UIString(), 200, 30);
    EXPECT_EQ(untitled->getTitleWidth(), UifStd::instance().getWidgetGap()) << "an empty legend keeps only a gap";
    EXPECT_EQ(untitled->getBtn()->width(), 200 - UifStd::instance().getWidgetGap());

    TitleButton::InitArgs fixed(L"Gain", L"Pick", WidgetCallback("p"), 120, 300, 30);
    fixed.buttonWidth = 80;
    auto* narrow = add<TitleButton>(fixed);
    EXPECT_EQ(narrow->getTitleWidth(), 120);
    EXPECT_EQ(narrow->getBtn()->width(), 80);
    EXPECT_EQ(narrow->getBtn()->getX(), 220) << "a button of its own width stays at the right edge";
}

TEST_F(TitledRows, TheLegendIsPaintedInItsColumnAndDimmedWithTheControl) {
    TitleButton* r = row(L"Exposure");
    const BoxInt legend = r->titleBox();
    const std::uint32_t window = TestKit::argb(r->getPalette().window());
    EXPECT_GT(inkPixels(r, legend, window), 20);
    EXPECT_LT(PanelsTest::nearestTo(r, legend, textColour(r, kTextNormal)), 30) << "the legend is in the text colour";

    r->setActive(false);
    TestKit::pump();
    EXPECT_FALSE(r->getBtn()->isActive()) << "activity passes on to the control";
    EXPECT_GT(PanelsTest::nearestTo(r, legend, textColour(r, kTextNormal)), 40) << "no full-strength ink is left";
    EXPECT_LT(PanelsTest::nearestTo(r, legend, textColour(r, kTextDimmed)), 30);
    r->setActive(true);
    TestKit::pump();
    EXPECT_TRUE(r->getBtn()->isActive());

    r->setTitleAlignment(Glib::kAlignRight);
    r->setTitleWidth(200);
    TestKit::pump();
    EXPECT_EQ(inkPixels(r, BoxInt(0, 0, 60, 30), window), 0) << "a right-aligned legend leaves the column's left empty";
    EXPECT_GT(inkPixels(r, BoxInt(120, 0, 200, 30), window), 20);
}

TEST_F(TitledRows, ResizingGivesTheWholeChangeToTheControl) {
    TitleButton* r = row(L"Gain");
    Button* b = r->getBtn();
    const int legend = r->getTitleWidth(), before = b->width();
    r->resize(350, 30);
    EXPECT_EQ(r->getTitleWidth(), legend);
    EXPECT_EQ(b->width(), before + 50);
    EXPECT_EQ(b->getX() + b->width(), 350);

    r->resize(350, 60);
    EXPECT_EQ(b->getY(), (60 - b->height()) / 2) << "the control is centred again";
    r->resize(350, 10);
    EXPECT_EQ(b->height(), 10) << "a control taller than the row is cut to it";
    EXPECT_EQ(b->getY(), 0);

    r->resize(20, 10);
    EXPECT_EQ(b->width(), 0) << "a row narrower than its legend leaves the control nothing";
    r->resize(0, 0);
    EXPECT_EQ(r->getTitleWidth(), 0);
    EXPECT_EQ(r->controlBox().width(), 0);
    TestKit::pump();
}

TEST_F(TitledRows, TheLegendColumnCanBeSetToLineRowsUp) {
    TitleButton* a = row(L"Gain", 300, 30);
    TitleButton* b = add<TitleButton>(TitleButton::InitArgs(L"Colour temperature", L"Pick", WidgetCallback("p"), 0, 300, 30), {20, 60});
    const int widest = std::max(a->getTitleWidth(), b->getTitleWidth());
    a->setTitleWidth(widest);
    b->setTitleWidth(widest);
    EXPECT_EQ(a->getBtn()->getX(), b->getBtn()->getX());
    EXPECT_EQ(a->getBtn()->getX() + a->getBtn()->width(), 300);

    a->setTitleWidth(-40);
    EXPECT_EQ(a->getTitleWidth(), 0);
    EXPECT_EQ(a->getBtn()->width(), 300);
    a->setTitleWidth(1000);
    EXPECT_EQ(a->getTitleWidth(), 300) << "the column never reaches past the row";
    EXPECT_EQ(a->getBtn()->width(), 0);

    a->setTitle(L"A much longer legend than before");
    EXPECT_EQ(a->getTitleWidth(), 300) << "a width set by the owner stays when the legend changes";
    EXPECT_EQ(a->getTitle().getString(), WString(L"A much longer legend than before"));
    EXPECT_FALSE(a->hasTitleBar());
}

TEST_F(TitledRows, AMeasuredLegendFollowsItsTextAndTheScale) {
    TitleButton* r = row(L"Gain");
    const int small = r->getTitleWidth();
    r->setTitle(L"Gain in decibels");
    EXPECT_EQ(r->getTitleWidth(), TitleGlob::calcTitleWidth(L"Gain in decibels"));
    EXPECT_GT(r->getTitleWidth(), small);
    EXPECT_EQ(r->getBtn()->getX(), r->getTitleWidth());
    EXPECT_EQ(r->getBtn()->getX() + r->getBtn()->width(), r->width());

    const int before = r->getTitleWidth();
    UifStd::instance().setScale(2.0);
    r->handleUIChange(0);
    const int scaled = r->getTitleWidth();
    UifStd::instance().setScale(1.0);
    r->handleUIChange(0);
    EXPECT_GT(scaled, before + before / 2);
    EXPECT_EQ(r->getTitleWidth(), before);
}

TEST_F(TitledRows, TheButtonReportsToTheRowsOwner) {
    TitleButton* r = row(L"Preset");
    TestKit::click(TestKit::centreOf(r->getBtn()));
    TestKit::pump();
    ASSERT_EQ(host->messages, std::vector<std::string>{"pressed"});
    EXPECT_EQ(host->senders[0], r->getBtn()) << "the owner sees the button as sender";

    int calls = 0;
    r->setCallback(WidgetCallback(countingCallback(calls), "direct"));
    TestKit::click(TestKit::centreOf(r->getBtn()));
    TestKit::pump();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(host->messages.size(), 1u);

    r->setLabel(L"Other");
    EXPECT_EQ(r->getLabel().getString(), WString(L"Other"));
    r->setActive(false);
    TestKit::click(TestKit::centreOf(r->getBtn()));
    TestKit::pump();
    EXPECT_EQ(calls, 1) << "an inactive row does not fire";
}

TEST_F(TitledRows, AControlAddedByTheOwnerIsTheRowsControl) {
    TitleGlob::InitArgs args(L"Level", 260, 30);
    args.canvas = host->canvas();
    args.palette = host->getPalette();
    auto* r = new LabelRow(args, 20);
    host->addChild(r, Glob::UserBottomLeft(10, 10));
    TestKit::pump();
    EXPECT_EQ(r->getControl(), r->label);
    EXPECT_EQ(r->label->getY(), 5);
    r->resize(300, 40);
    EXPECT_EQ(r->label->width(), 260 - r->getTitleWidth() + 40);
    EXPECT_EQ(r->label->getY(), 10);

    Glob* label = r->label;
    r->removeWidget(label, true);
    EXPECT_EQ(r->getControl(), nullptr);
    r->resize(200, 30);
    r->setTitleWidth(50);
    r->setActive(false);
    TestKit::pump();
    EXPECT_EQ(r->getTitleWidth(), 50);

    Glob* stranger = host->getWidget(static_cast<unsigned short>(0)).child;
    r->setControl(stranger);
    EXPECT_EQ(r->getControl(), nullptr) << "a glob that is not the row's child is refused";
}
