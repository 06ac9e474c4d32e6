#pragma once

#include "core/Event.h"
#include "core/FilterStack.h"
#include "core/IdStamp.h"
#include "core/iObject.h"

/// Something that takes events. Every handler carries an IdStamp and is listed in a
/// registry of live handlers for its whole life, so that a pointer can be checked
/// without touching the object it may no longer denote.
class EventHandler : public virtual iObject, public FilterStackable<Event> {
public:
    EventHandler();
    ~EventHandler() override;
    EventHandler(const EventHandler&) = delete;
    EventHandler& operator=(const EventHandler&) = delete;

    // The entry point of every event; returns non-zero when the event was consumed.
    virtual int handleEvent(const Event& e) { return 0; }
    // An event offered ahead of all routing, once this handler is on the event
    // intercept stack (getEventInterceptStack); true swallows it. Takes nothing here.
    bool fsFilterThis(const Event& e, void* cookie) override { return false; }
    virtual const char* idstring() const { return "EventHandler"; }

    const IdStamp& stamp() const { return stamp_; }

    // True when `handler` still denotes the live object that had `stamp`. Safe on
    // dangling pointers: only the registry is consulted.
    static bool valid(const EventHandler* handler, const IdStamp& stamp);
    // True when `handler` denotes any live handler.
    static bool isLive(const EventHandler* handler);
    static std::size_t liveCount();

private:
    IdStamp stamp_;
};
