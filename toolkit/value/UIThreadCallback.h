#pragma once

#include "EventHandlerExistenceCheck.h"
#include "core/MethodCallback.h"
#include "core/NotifyMsg.h"
#include "glob/Messaging.h"

/// Hands a call over to the user-interface thread. On that thread, unless told to
/// always defer, it calls the target at once; from any other thread it posts the
/// event to itself and calls the target when the loop delivers it, after the
/// current event. A caller check runs before anything; a UI-thread check runs just
/// before the target is called, on the UI thread.
template <class E>
class UIThreadCallback : public iCallbackBase<int, E>, private EventHandler {
public:
    // The event travelling to the UI thread; it keeps its callback alive in flight.
    class DeferredCallback : public iObject {
    public:
        DeferredCallback(const Zn::Ptr<UIThreadCallback>& owner, const E& e) : owner(owner), event(e) {}
        Zn::Ptr<UIThreadCallback> owner;
        E event;
    };

    UIThreadCallback(const Zn::Ptr<iCallbackBase<int, E>>& target, bool alwaysDefer) : target_(target), alwaysDefer_(alwaysDefer) {}

    void setCallerCheck(const Zn::Ptr<iCallbackBase<int, E>>& c) { callerCheck_ = c; }
    void setUIThreadCheck(const Zn::Ptr<iCallbackBase<int, E>>& c) { uiThreadCheck_ = c; }

    int execute(const E& e) override {
        if (callerCheck_ && callerCheck_->execute(e) == 0) return 0;
        if (!alwaysDefer_ && co_pid() == 0) return executeInternal(e);
        // One shared name: a string made per call would cost an allocation on this
        // thread and a free on the UI thread, which contend for the heap.
        static const LightweightString<char> name("Hello");
        Zn::Ptr<UIThreadCallback> self(this);
        sendMessageWithData(name, static_cast<EventHandler*>(this), Zn::Ptr<iObject>(new DeferredCallback(self, e)), nullptr);
        return 0;
    }

    virtual int executeInternal(const E& e) {
        if (uiThreadCheck_) {
            int ok = uiThreadCheck_->execute(e);
            if (ok == 0) return 0;
        }
        return target_ ? target_->execute(e) : 0;
    }

private:
    int handleEvent(const Event& event) override {
        auto deferred = Zn::dynamicCast<DeferredCallback>(event.payload());
        if (!deferred) return 1;
        executeInternal(deferred->event);
        return 1;
    }
    const char* idstring() const override { return "UIThreadCallback"; }

    Zn::Ptr<iCallbackBase<int, E>> target_;
    Zn::Ptr<iCallbackBase<int, E>> callerCheck_;
    Zn::Ptr<iCallbackBase<int, E>> uiThreadCheck_;
    bool alwaysDefer_;
};

// The notice callback that a widget hands to a source on any thread: the call always
// arrives on the user-interface thread, after the current event, and is dropped
// if the widget has died meanwhile. `adjustment` is kept for callers and unused.
template <class C>
Zn::Ptr<iCallbackBase<int, NotifyMsg>> makeDeferredCallback(C* object, int (C::*method)(const NotifyMsg&), int adjustment = 0) {
    (void)adjustment;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> call(new MethodCallback<C, NotifyMsg, int>(object, method));
    auto* deferred = new UIThreadCallback<NotifyMsg>(call, true);
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> result(deferred);
    deferred->setUIThreadCheck(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new EventHandlerExistenceCheck<NotifyMsg>(static_cast<EventHandler*>(object))));
    return result;
}
