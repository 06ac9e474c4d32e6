#include "MenusTestSupport.h"
#include "controls/ButtonWidget.h"
#include "controls/Checkbox.h"
#include "controls/ColRect.h"
#include "controls/CycleButton.h"
#include "controls/DropDownMenuButton.h"
#include "controls/ImageButton.h"
#include "controls/Message.h"
#include "controls/ScrollList.h"
#include "controls/Slider.h"
#include "controls/TextBox.h"
#include "glob/Messaging.h"
#include "value/ValAdaptor.h"

namespace {

// The control a callback deletes, and what the callback saw.
struct Doomed {
    Glob* glob = nullptr;
    IdStamp stamp;
    int calls = 0;
    void set(Glob* g) {
        glob = g;
        stamp = g->stamp();
    }
};

// Deletes the control, then counts through its closure: with the control holding
// the only reference to this callback, the count lands in freed memory (which ASan
// reports) unless firing kept the callback alive.
WidgetCallback deleting(Doomed& d) {
    return WidgetCallback(
        Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&d](const NotifyMsg&) {
            delete d.glob;
            ++d.calls;
            return 1;
        }))));
}

class CallbackDeletesControl : public MenusTest {
protected:
    // Makes a control around the callback, fires it as a user would, and checks that
    // the callback ran once and the control is gone; then the loop runs on.
    void expectSafe(const char* kind, const std::function<Glob*(const WidgetCallback&)>& make, const std::function<void(Glob*)>& fire) {
        SCOPED_TRACE(kind);
        Doomed d;
        d.set(make(deleting(d)));
        TestKit::pump();
        fire(d.glob);
        TestKit::pump();
        EXPECT_EQ(d.calls, 1);
        EXPECT_FALSE(alive(d.glob, d.stamp));
    }
    static void click(Glob* g) { TestKit::click(TestKit::centreOf(g)); }
    static std::function<void(Glob*)> focusAndPress(int key) {
        return [key](Glob* g) {
            set_kbd_focus(g);
            TestKit::pressKey(key);
        };
    }
};

} // namespace

TEST_F(CallbackDeletesControl, EveryKindOfControlSurvivesACallbackThatDeletesIt) {
    expectSafe(
        "Button", [&](const WidgetCallback& cb) { return add<Button>(Button::InitArgs(UIString(L"Go"), cb, 80, 30)); }, click);
    expectSafe(
        "CycleButton",
        [&](const WidgetCallback& cb) {
            return add<CycleButton>(CycleButton::InitArgs({UIString(L"A"), UIString(L"B")}, cb, 80, 30));
        },
        click);
    expectSafe(
        "ImageButton", [&](const WidgetCallback& cb) { return add<ImageButton>(ImageButton::InitArgs(L"", cb, 30, 30)); }, click);
    expectSafe(
        "ButtonWidget", [&](const WidgetCallback& cb) { return add<ButtonWidget<int>>(Button::InitArgs(UIString(L"1"), cb, 80, 30)); }, click);
    expectSafe(
        "Checkbox", [&](const WidgetCallback& cb) { return add<Checkbox>(Checkbox::InitArgs(L"On", false, cb, 80, 30)); }, click);
    expectSafe(
        "ColRect", [&](const WidgetCallback& cb) { return add<ColRect>(ColRect::InitArgs(ColourData(), cb, 30, 30)); }, click);
    expectSafe(
        "Slider",
        [&](const WidgetCallback& cb) {
            auto* s = add<Slider>(Slider::InitArgs(Colour(0.9, 0.3, 0.1), 120));
            s->setCallback(cb);
            return s;
        },
        focusAndPress(Keys::Right));
    auto list = [&](bool activation) {
        return [&, activation](const WidgetCallback& cb) {
            ScrollList::InitArgs a(150, 100, {L"One", L"Two"});
            (activation ? a.activationCallback : a.selectionCallback) = cb;
            return add<ScrollList>(a);
        };
    };
    expectSafe("ScrollList selection", list(false), focusAndPress(Keys::Down));
    expectSafe("ScrollList activation", list(true), [](Glob* g) {
        static_cast<ScrollList*>(g)->select(0, false);
        focusAndPress(Keys::Return)(g);
    });
    auto dropDown = [&](bool ownRow) {
        return [&, ownRow](const WidgetCallback& cb) {
            auto* b = add<DropDownMenuButton>(DropDownMenuButton::InitArgs(
                std::vector<MenuItem>{MenuItem(UIString(L"24")), MenuItem(UIString(L"25"), ownRow ? cb : WidgetCallback())}, 100, 26));
            if (!ownRow) b->setCallback(cb);
            return b;
        };
    };
    expectSafe("DropDownMenuButton row", dropDown(true), focusAndPress(Keys::Down));
    expectSafe("DropDownMenuButton", dropDown(false), focusAndPress(Keys::Down));
    expectSafe(
        "Menu", [&](const WidgetCallback& cb) { return popUp({MenuItem(UIString(L"Cut"), cb)}); },
        [&](Glob* g) { TestKit::click(rowCentre(static_cast<Menu*>(g), 0)); });
    expectSafe(
        "Message", [&](const WidgetCallback& cb) { return makeMessage(L"Title", L"Done.", cb, host); },
        [](Glob*) { TestKit::pressKey(Keys::Return); });
    expectSafe(
        "TextBox",
        [&](const WidgetCallback& cb) {
            auto* t = add<TextBox>(TextBox::InitArgs(UIString(L"text"), 120, 30));
            t->requestCallback(cb, TextBoxBase::kReturnPressed);
            return t;
        },
        focusAndPress(Keys::Return));
}

TEST_F(CallbackDeletesControl, AControlDeletedByAListenerOfItsValueFiresNoCallback) {
    struct Deleter : ValClient<bool> {
        using ValClient::ValClient;
        void valChangedNtfy() override { delete doomed; }
        Glob* doomed = nullptr;
    };
    ValServer<bool> on(false);
    Deleter deleter(&on);
    int calls = 0;
    auto* box = add<Checkbox>(Checkbox::InitArgs(L"On", false, WidgetCallback(countingCallback(calls)), 80, 30));
    box->setDataAdaptor(Zn::Ptr<ValAdaptorBase<bool>>(new ValAdaptor<bool, bool>(&on)));
    deleter.doomed = box;
    const IdStamp stamp = box->stamp();
    click(box);
    TestKit::pump();
    EXPECT_FALSE(alive(box, stamp));
    EXPECT_TRUE(on.value());
    EXPECT_EQ(calls, 0);
}
