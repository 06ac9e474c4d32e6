#pragma once

#include "MenuItem.h"
#include "core/iObject.h"

#include <vector>

/// A menu whose entries carry values: each entry is a heading with a row per value,
/// the present value ticked. Choosing a row sends the entry's message to the menu's
/// owner with a MenuData::Change as payload, so one handler serves the entry.
class MenuData {
public:
    /// What choosing a value says: the entry, the value, and whether the entry was
    /// turned on by it (its first value, "Yes" of a yes-or-no entry, was chosen).
    struct Change : iObject {
        LightweightString<char> message;
        LightweightString<wchar_t> value;
        int index = 0;
        bool on = false;
    };
    /// One entry: the heading, the message its rows send and its values.
    struct Entry {
        UIString title;
        LightweightString<char> message;
        std::vector<UIString> values;
        // The value now in force, ticked; none when out of range.
        int current = -1;
    };

    void add(const Entry& entry) { entries_.push_back(entry); }
    // An entry of two values, "Yes" and "No", with "Yes" ticked when `on`.
    void addYesNo(const UIString& title, const LightweightString<char>& message, bool on);
    const std::vector<Entry>& entries() const { return entries_; }
    bool empty() const { return entries_.empty(); }

    // The rows: for each entry a heading, then its values.
    std::vector<MenuItem> items() const;

private:
    std::vector<Entry> entries_;
};
