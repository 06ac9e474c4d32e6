#pragma once

#include "core/IdStamp.h"

#include <vector>

class Glob;

/// A control that the Tab key can reach.
class TabOrderable {
public:
    virtual ~TabOrderable() = default;
    // The glob that takes the focus.
    virtual Glob* tabGlob() = 0;
    virtual bool canTakeTabFocus() { return true; }
};

/// A compound widget that offers the tab stops of its parts.
class TabOrderableHost {
public:
    virtual ~TabOrderableHost() = default;
    virtual std::vector<TabOrderable*> getTabStops() = 0;
};

/// The order in which Tab and Shift+Tab move the keyboard focus through a panel's
/// controls. Stops whose glob has died, is hidden or inactive are passed over.
class TabOrderManager {
public:
    static constexpr unsigned int kAppend = 0xFFFFFFFE;

    void addTabStop(TabOrderable& stop, unsigned int position = kAppend);
    void addTabStopsFrom(TabOrderableHost& host, unsigned int position = kAppend);
    void removeTabStop(TabOrderable& stop);
    void clear() { stops_.clear(); }
    std::size_t size() const { return stops_.size(); }

    // Moves the focus to the next (previous) usable stop after the focused one, wrapping.
    // Returns false when there is no usable stop.
    bool incrementTabStop();
    bool decrementTabStop();

private:
    // A stop remembers its glob's stamp: the stop is usually the glob itself, so it
    // is touched only while that glob lives.
    struct Stop {
        TabOrderable* stop;
        Glob* glob;
        IdStamp stamp;
        bool alive() const;
    };
    bool move(int direction);
    std::vector<Stop> stops_;
};
