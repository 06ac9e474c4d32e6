#pragma once

#include "core/iCallbackBase.h"
#include "glob/GlobHandle.h"

/// A check that a handler still lives: 1 while the object with the stamp taken at
/// construction lives, 0 after. Safe on a dead handler.
template <class E>
class EventHandlerExistenceCheck : public iCallbackBase<int, E> {
public:
    explicit EventHandlerExistenceCheck(EventHandler* handler) : handler_(handler) {}
    int execute(const E&) override { return handler_ ? 1 : 0; }

private:
    GlobHandle<EventHandler> handler_;
};
