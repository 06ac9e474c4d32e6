#pragma once

#include "core/iCallbackBase.h"
#include "glob/EventHandler.h"

/// A check that a handler still lives: 1 while the object with the stamp taken at
/// construction lives, 0 after. Safe on a dead handler.
template <class E>
class EventHandlerExistenceCheck : public iCallbackBase<int, E> {
public:
    explicit EventHandlerExistenceCheck(EventHandler* handler) : handler_(handler), stamp_(handler ? handler->stamp() : IdStamp()) {}
    int execute(const E&) override { return EventHandler::valid(handler_, stamp_) ? 1 : 0; }

private:
    EventHandler* handler_;
    IdStamp stamp_;
};
