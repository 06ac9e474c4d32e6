#pragma once

#include "LoggerBase.h"
#include "core/Guard.h"
#include "core/NotifyMsg.h"
#include "core/iCallbackBase.h"

#include <vector>

/// A log that tasks write to from any thread and that panels show. The log holds
/// the items; a panel opened later replays them with getItems. Listeners hear of
/// each new item, or each progress report, by a NotifyMsg whose payload is a
/// LoggerBase::Item or a ProgressSnapshot.
class iTaskLog : public LoggerBase, public virtual iObject {
public:
    // The kinds of registerInterest.
    enum eInterest { kProgressInterest = 1, kItemsInterest = 2 };

    // Replaces the contents of `items` with a copy of every item so far, in order.
    virtual void getItems(std::vector<LoggerBase::Item>& items) const = 0;
    // Calls `callback` for each notice of `kind` until the guard is released. An
    // unknown kind or a null callback registers nothing and gives a null guard.
    virtual Zn::Ptr<Zn::Guard> registerInterest(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback, int kind) = 0;
    // The same, and copies the items so far in the same step, so that what the
    // listener replays and what it then hears neither overlap nor leave a gap.
    virtual Zn::Ptr<Zn::Guard> registerInterest(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback, int kind,
                                                std::vector<LoggerBase::Item>& itemsSoFar) = 0;
};
