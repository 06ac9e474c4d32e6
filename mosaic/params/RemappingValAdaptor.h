#pragma once

#include "value/ValAdaptorBase.h"
#include "value/ValClient.h"

#include <map>

/// Lets a drop-down, which knows its entries by position, show and set a value that
/// means something else: entry n stands for map[n]. A value that no entry stands for
/// shows entry 0.
template <class Index, class U>
class RemappingValAdaptor : public ValAdaptorBase<int>, public ValClient<U> {
public:
    RemappingValAdaptor() = default;
    explicit RemappingValAdaptor(ValServer<U>* server) : ValClient<U>(server) {}

    void add(Index entry, const U& value) { map_.emplace(entry, value); }
    const std::map<Index, U>& map() const { return map_; }

    // The first entry, in entry order, that stands for the client's value; 0 if none does.
    int getDataValue() override {
        const U current = static_cast<U>(*this);
        for (const auto& [entry, value] : map_)
            if (value == current) return static_cast<int>(entry);
        return 0;
    }
    // Sets the value an entry stands for. Always false: the widget learns the outcome
    // from the notice, like every other client, and not from this answer.
    bool requestSetNewDataValue(const int& entry, DataChangeType) override {
        auto it = entry < 0 ? map_.end() : map_.find(static_cast<Index>(entry));
        if (it != map_.end()) ValClient<U>::operator=(it->second);
        return false;
    }
    void valChangedNtfy() override { setNewWidgetValue(getDataValue(), kRedraw); }

private:
    std::map<Index, U> map_;
};
