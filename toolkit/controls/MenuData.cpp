#include "MenuData.h"

void MenuData::addYesNo(const UIString& title, const LightweightString<char>& message, bool on) {
    add(Entry{title, message, {UIString(L"Yes"), UIString(L"No")}, on ? 0 : 1});
}

std::vector<MenuItem> MenuData::items() const {
    std::vector<MenuItem> rows;
    for (const Entry& e : entries_) {
        rows.emplace_back(e.title, WidgetCallback(), kMenuItemHeading);
        for (int i = 0; i < static_cast<int>(e.values.size()); ++i) {
            auto change = Zn::makePtr<Change>();
            change->message = e.message;
            change->value = e.values[i].getString();
            change->index = i;
            change->on = i == 0;
            MenuItem row(e.values[i], WidgetCallback({}, e.message, change));
            if (i == e.current) row.setSecondText(UIString(L"\u2713"));
            rows.push_back(row);
        }
    }
    return rows;
}
