#include "value/ValAdaptor.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

// A value widget as a real control must be: user input asks for a change, a
// shown value only changes what is on display.
template <class T>
class TestWidget : public ValWidget<T> {
public:
    T getWidgetValue() const override { return shown; }
    void setNewWidgetValue(T& v, eRedrawFlag) override {
        shown = v;
        ++shows;
        redrawsWereOn = Drawable::redrawsEnabled();
    }
    bool userEnters(const T& v) {
        ++requests;
        return this->requestSetNewDataValue(v, kFinalChange);
    }
    T shown{};
    int shows = 0, requests = 0;
    bool redrawsWereOn = true;
};

template <class T, class U>
Zn::Ptr<ValAdaptor<T, U>> adaptorOn(ValServer<U>& s) {
    return Zn::Ptr<ValAdaptor<T, U>>(new ValAdaptor<T, U>(&s));
}

} // namespace

TEST(ValAdaptor, ASliderValueOnAnIntegerServerIsTruncatedAndShownEverywhereOnce) {
    ValServer<int> server(0);
    auto adaptor = adaptorOn<double>(server);
    TestWidget<double> slider, twin;
    slider.setDataAdaptor(adaptor);
    twin.setDataAdaptor(adaptor);
    EXPECT_TRUE(slider.userEnters(2.9));
    EXPECT_EQ(server.value(), 2);
    EXPECT_EQ(slider.shown, 2.0) << "the widget that asked shows the stored value";
    EXPECT_EQ(twin.shown, 2.0);
    EXPECT_EQ(slider.shows, 1);
    EXPECT_EQ(twin.shows, 1);
    EXPECT_EQ(slider.requests, 1) << "showing a value never asks for a change";
    EXPECT_FALSE(slider.redrawsWereOn) << "the round trip runs with redraws held back";
    EXPECT_TRUE(Drawable::redrawsEnabled());
    slider.userEnters(-7.99);
    EXPECT_EQ(server.value(), -7);
    slider.userEnters(std::nan(""));
    EXPECT_EQ(server.value(), 0);
    slider.userEnters(1e300);
    EXPECT_EQ(server.value(), std::numeric_limits<int>::max());
}

TEST(ValAdaptor, TextWidgetsOnNumbersFormatAndParse) {
    ValServer<int> count(7);
    ValServer<double> ratio(0.5);
    auto countText = adaptorOn<WString>(count);
    auto ratioText = adaptorOn<WString>(ratio);
    TestWidget<WString> countBox, ratioBox;
    countBox.setDataAdaptor(countText);
    ratioBox.setDataAdaptor(ratioText);
    countText->forceWidgetUpdate(kRedraw);
    ratioText->forceWidgetUpdate(kRedraw);
    EXPECT_EQ(countBox.shown, WString(L"7"));
    EXPECT_EQ(ratioBox.shown, WString(L"0.5"));
    countBox.userEnters(L" 42 ");
    ratioBox.userEnters(L"0.1");
    EXPECT_EQ(count.value(), 42);
    EXPECT_DOUBLE_EQ(ratio.value(), 0.1);
    EXPECT_EQ(ratioBox.shown, WString(L"0.1"));
    countBox.userEnters(L"forty");
    EXPECT_EQ(count.value(), 0);
    EXPECT_EQ(countBox.shown, WString(L"0")) << "text that is no number shows what was stored";
}

TEST(ValAdaptor, AWidgetLeavesItsAdaptorWhenItDiesOrMoves) {
    ValServer<bool> flag(false);
    auto first = adaptorOn<bool>(flag);
    auto second = adaptorOn<bool>(flag);
    TestWidget<bool> stays;
    stays.setDataAdaptor(first);
    {
        TestWidget<bool> brief;
        brief.setDataAdaptor(first);
        EXPECT_EQ(first->widgets().size(), 2u);
    }
    EXPECT_EQ(first->widgets().size(), 1u);
    flag = true; // must not reach the dead widget
    EXPECT_TRUE(stays.shown);
    stays.setDataAdaptor(second);
    EXPECT_TRUE(first->widgets().empty());
    EXPECT_EQ(stays.getDataAdaptor().get(), second.get());
    EXPECT_TRUE(stays.getDataValue());
}

TEST(ValAdaptor, AnUnboundWidgetAcceptsEverythingAndReadsDefaults) {
    TestWidget<double> alone;
    EXPECT_TRUE(alone.userEnters(3.0));
    EXPECT_EQ(alone.getDataValue(), 0.0);
    EXPECT_EQ(alone.getDataAdaptor().get(), nullptr);
    EXPECT_EQ(alone.shows, 0);
    // An adaptor whose server has gone keeps its widgets usable.
    TestWidget<int> orphan;
    {
        ValServer<int> server(5);
        orphan.setDataAdaptor(adaptorOn<int>(server));
    }
    EXPECT_TRUE(orphan.userEnters(9));
    EXPECT_EQ(orphan.getDataValue(), 0);
}
