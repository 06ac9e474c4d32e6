// One change of value, from the widget the user moved to the parameter and back
// to every widget that shows it.
#include "ParamTestSupport.h"
#include "core/Utf8.h"
#include "value/ValAdaptor.h"

#include <gtest/gtest.h>

using namespace GenericParam;

namespace {

std::vector<std::string> journal;

// A control as a real one must be: the user's input asks for a change, and a
// value from the data only changes what is shown.
template <class T>
class TestControl : public ValWidget<T> {
public:
    explicit TestControl(std::string name) : name_(std::move(name)) {}
    T getWidgetValue() const override { return shown; }
    void setNewWidgetValue(T& v, eRedrawFlag) override {
        shown = v;
        ++shows;
        journal.push_back(name_ + " shows");
    }
    void userSets(const T& v) {
        ++requests;
        this->requestSetNewDataValue(v, kFinalChange);
    }
    T shown{};
    int shows = 0, requests = 0;

private:
    std::string name_;
};

class Journal : public GenericParam::iValueChangeHandler {
public:
    void valueChanged(const LightweightString<char>&, const LightweightString<wchar_t>& value) override {
        journal.push_back("handler hears " + toUTF8(value).str());
    }
};

} // namespace

TEST(ValueChangeRoad, ASliderChangeIsConstrainedStoredAndShownEverywhereOnce) {
    journal.clear();
    IntParam steps(0, "steps", L"Steps", L"");
    steps.setRange(0, 4); // a range holds only for text; this road does not clamp to it
    Zn::Ptr<ParamTestSupport::Constraint> evenOnly(new ParamTestSupport::Constraint([](const WString& v) {
        int n = DataConvert::convert<WString, int>(v);
        return DataConvert::convert<int, WString>(n - n % 2);
    }));
    steps.addValueConstraint(evenOnly);
    steps.addChangeHandler(Zn::Ptr<iValueChangeHandler>(new Journal));

    TestControl<double> slider("slider");
    TestControl<WString> box("box");
    slider.setDataAdaptor(Zn::Ptr<ValAdaptorBase<double>>(new ValAdaptor<double, int>(&steps.server())));
    box.setDataAdaptor(Zn::Ptr<ValAdaptorBase<WString>>(new ValAdaptor<WString, int>(&steps.server())));

    slider.userSets(2.9); // the adaptor truncates to 2; the constraint keeps it
    EXPECT_EQ(steps.getValue(), 2);
    EXPECT_EQ(slider.shown, 2.0);
    EXPECT_EQ(box.shown, WString(L"2"));

    slider.userSets(7.5); // 7 reaches the parameter, whose constraint makes it 6
    EXPECT_EQ(evenOnly->seen.back(), WString(L"7"));
    EXPECT_EQ(steps.getValue(), 6) << "beyond the range: only text is clamped to it";
    EXPECT_EQ(slider.shown, 6.0) << "the widget that asked for 7.5 shows what was stored";
    EXPECT_EQ(box.shown, WString(L"6"));

    // The echo stops: two requests, one showing each per change, and the
    // parameter's own handlers hear of each change before any widget does.
    EXPECT_EQ(slider.requests, 2);
    EXPECT_EQ(box.requests, 0);
    EXPECT_EQ(slider.shows, 2);
    EXPECT_EQ(box.shows, 2);
    EXPECT_EQ(evenOnly->seen.size(), 2u);
    ASSERT_EQ(journal.size(), 6u);
    EXPECT_EQ(journal[3], "handler hears 6");
    EXPECT_EQ(journal[4].substr(journal[4].size() - 5), "shows");
}

TEST(ValueChangeRoad, TheTextBoxOnTheSameParameterDrivesTheSliderToo) {
    journal.clear();
    DoubleParam level(L"Level", "level", L"", 0.5, 0.0, 1.0);
    TestControl<double> slider("slider");
    TestControl<WString> box("box");
    auto sliderAdaptor = Zn::Ptr<ValAdaptorBase<double>>(new ValAdaptor<double, double>(&level.server()));
    slider.setDataAdaptor(sliderAdaptor);
    box.setDataAdaptor(Zn::Ptr<ValAdaptorBase<WString>>(new ValAdaptor<WString, double>(&level.server())));
    sliderAdaptor->forceWidgetUpdate(kRedraw);
    EXPECT_EQ(slider.shown, 0.5);
    box.userSets(L"0.25");
    EXPECT_EQ(level.getValue(), 0.25);
    EXPECT_EQ(slider.shown, 0.25);
    EXPECT_EQ(box.shown, WString(L"0.25"));
    EXPECT_EQ(slider.requests, 0);
    box.userSets(L"garbage");
    EXPECT_EQ(level.getValue(), 0.0) << "text that is no number stores what DataConvert makes of it";
    EXPECT_EQ(box.shown, WString(L"0"));
}
