#include "DropDownMenuButton.h"

#include "Menu.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"
#include "glob/fireCallback.h"

#include <algorithm>

// The menu of a drop-down: a choice goes back to the button, if it still lives,
// rather than to the row's callback, which the button fires itself.
class DropDownMenu : public Menu {
public:
    DropDownMenu(const InitArgs& args, DropDownMenuButton* button) : Menu(args), button_(button), buttonStamp_(button->stamp()) {}

protected:
    void handleChoice(int row) override {
        if (!EventHandler::valid(button_, buttonStamp_)) return;
        if (int choice = button_->choiceOfRow(row); choice >= 0) button_->handleChoice(choice);
    }

private:
    DropDownMenuButton* button_;
    IdStamp buttonStamp_;
};

namespace {
std::vector<MenuItem> rowsOf(const std::vector<UIString>& entries) {
    std::vector<MenuItem> rows;
    rows.reserve(entries.size());
    for (const UIString& e : entries) rows.emplace_back(e);
    return rows;
}
} // namespace

DropDownMenuButton::InitArgs::InitArgs(const std::vector<UIString>& entries, unsigned short width, unsigned short height)
    : InitArgs(rowsOf(entries), width, height) {}

DropDownMenuButton::InitArgs::InitArgs(const std::vector<MenuItem>& rows, unsigned short width, unsigned short height) : items(rows) {
    this->width = width;
    this->height = height;
}

DropDownMenuButton::DropDownMenuButton(const InitArgs& args) : Button(args), items_(args.items) {
    if (args.callback.isEmpty()) setCallback(WidgetCallback(dropDownMenuButtonMsg));
    if (args.flat) setStyle(kFlat);
    if (height() == 0) resize(width(), calcHeight());
    selected_ = args.selected.resolve(items_);
    showSelection(kNoRedraw);
}

DropDownMenuButton::~DropDownMenuButton() { removeMenuFromScreen(); }

// ---- rows and the selection -------------------------------------------------

int DropDownMenuButton::numChoices() const {
    return static_cast<int>(std::count_if(items_.begin(), items_.end(), [](const MenuItem& m) { return m.isChoice(); }));
}

int DropDownMenuButton::rowOfChoice(int choice) const {
    if (choice < 0) return -1;
    for (std::size_t row = 0; row < items_.size(); ++row)
        if (items_[row].isChoice() && choice-- == 0) return static_cast<int>(row);
    return -1;
}

int DropDownMenuButton::choiceOfRow(int row) const {
    if (row < 0 || row >= static_cast<int>(items_.size()) || !items_[row].isChoice()) return -1;
    return static_cast<int>(std::count_if(items_.begin(), items_.begin() + row, [](const MenuItem& m) { return m.isChoice(); }));
}

void DropDownMenuButton::setStrings(const std::vector<MenuItem>& rows, const MenuItemIndex& selected, eRedrawFlag flag) {
    // An open menu would show rows that are no longer there.
    removeMenuFromScreen();
    items_ = rows;
    selected_ = selected.resolve(items_);
    showSelection(flag);
}

void DropDownMenuButton::setStrings(const std::vector<UIString>& entries, const MenuItemIndex& selected, eRedrawFlag flag) {
    setStrings(rowsOf(entries), selected, flag);
}

LightweightString<wchar_t> DropDownMenuButton::getSelectedItemNameW() const {
    int row = rowOfChoice(selected_);
    return row < 0 ? LightweightString<wchar_t>() : items_[row].text().getString();
}

void DropDownMenuButton::setSelectedItem(const MenuItemIndex& which, eRedrawFlag flag) {
    int choice = which.resolve(items_);
    if (choice < 0) return;
    selected_ = choice;
    showSelection(flag);
}

void DropDownMenuButton::setNewWidgetValue(int& value, eRedrawFlag flag) {
    selected_ = (value >= 0 && value < numChoices()) ? value : -1;
    showSelection(flag);
}

void DropDownMenuButton::useSelectedForButtonDisplay(bool use) {
    useSelected_ = use;
    if (use) showSelection(kRedraw);
}

void DropDownMenuButton::showSelection(eRedrawFlag flag) {
    if (!useSelected_) {
        if (flag == kRedraw) redraw();
        return;
    }
    int row = rowOfChoice(selected_);
    setLabel(row < 0 ? UIString() : UIString(items_[row].displayText()), flag);
}

// ---- the menu ---------------------------------------------------------------

Menu* DropDownMenuButton::getMenu() const { return EventHandler::valid(menu_, menuStamp_) && menu_->isOpen() ? menu_ : nullptr; }

bool DropDownMenuButton::displayMenu() {
    if (isMenuOpen()) return true;
    if (!isActive()) return false;
    const IdStamp me = stamp();
    if (Glob* owner = logicalParent()) callMessage(ddBtnClickMsg, owner, this);
    // The owner may have done anything in answer, this button's end included.
    if (!EventHandler::valid(this, me)) return false;
    Menu::InitArgs args(items_);
    args.palette = getPalette();
    args.minWidth = width();
    args.marked = args.highlighted = rowOfChoice(selected_);
    auto* menu = new DropDownMenu(args, this);
    menu->popUpBelow(this, BoxInt(screenPos(), size()));
    menu_ = menu;
    menuStamp_ = menu->stamp();
    redraw();
    return true;
}

void DropDownMenuButton::removeMenuFromScreen() {
    if (Menu* m = getMenu()) {
        m->close();
        redraw();
    }
    menu_ = nullptr;
    menuStamp_ = IdStamp();
}

void DropDownMenuButton::handleChoice(int choice) {
    const int row = rowOfChoice(choice);
    if (row < 0 || !items_[row].canBeChosen()) return;
    const WidgetCallback rowCallback = items_[row].callback();
    const IdStamp me = stamp();
    // Unbound, the button is its own data; bound, the adaptor's answer shows the choice.
    if (!getDataAdaptor()) {
        selected_ = choice;
        showSelection(kRedraw);
    }
    requestSetNewDataValue(choice, kFinalChange);
    if (!EventHandler::valid(this, me)) return;
    if (!rowCallback.isEmpty() && !fireCallback(this, rowCallback)) return;
    fireCallback(this, getCallback());
}

// ---- input ------------------------------------------------------------------

void DropDownMenuButton::clicked() {
    if (isMenuOpen())
        removeMenuFromScreen();
    else
        displayMenu();
}

int DropDownMenuButton::handleKey(int key) {
    key = Keys::plain(key);
    if (key != Keys::Up && key != Keys::Down) return 0;
    const int dir = key == Keys::Down ? 1 : -1, n = static_cast<int>(items_.size());
    int row = rowOfChoice(selected_);
    if (row < 0) row = dir > 0 ? -1 : n;
    for (row += dir; row >= 0 && row < n; row += dir)
        if (items_[row].canBeChosen()) {
            handleChoice(choiceOfRow(row));
            break;
        }
    return 1;
}

int DropDownMenuButton::react(const Event& e) {
    if (e.isMessage() && e.messageText() == Menu::goneMsg) {
        redraw();
        return 1;
    }
    return Button::react(e);
}

// ---- size and painting ------------------------------------------------------

// Two thirds of a row at the right for the arrow, whatever the scale.
int DropDownMenuButton::arrowZone() { return 2 * UifStd::instance().getRowHeight() / 3; }

int DropDownMenuButton::calcWidth(const std::vector<MenuItem>& rows, const Glib::FontDesc& font) {
    const Glib::FontDesc f = font.resolved();
    int widest = 0;
    for (const MenuItem& row : rows)
        if (row.isChoice()) widest = std::max(widest, Glib::measureText(row.displayText(), f).x);
    return widest + 3 * UifStd::instance().getWidgetGap() + arrowZone();
}

int DropDownMenuButton::calcWidth(const std::vector<UIString>& entries, const Glib::FontDesc& font) { return calcWidth(rowsOf(entries), font); }

int DropDownMenuButton::calcWidth(const UIString& entry, const Glib::FontDesc& font) {
    return calcWidth(std::vector<MenuItem>{MenuItem(entry)}, font);
}

BoxInt DropDownMenuButton::labelBox() const {
    const int gap = UifStd::instance().getWidgetGap();
    return BoxInt(2 * gap, 0, std::max(2 * gap, width() - arrowZone() - gap), height());
}

void DropDownMenuButton::drawBackground() {
    // A face of its own over the plain fill, not the button's.
    CanvasRenderer(canvas()).fill(getPalette().window());
    const Palette& p = getPalette();
    const BoxInt box(0, 0, width(), height());
    if (isMenuOpen()) {
        // Held down for as long as its menu is up.
        Glib::RectDescription face(box, p.window(kShadeDark));
        face.cornerRadius = 3.0 * UifStd::instance().getScale();
        face.outline = p.window(kShadeDarker);
        face.outlineWidth = UifStd::instance().getScale();
        CanvasRenderer(canvas()).render(face);
    } else {
        drawFace(box, getStyle() == kFlat);
    }
    const Colour ink = p.text(isActive() ? kTextNormal : kTextDimmed);
    Glib::TextDescription t(labelBox(), getLabel().getString(), getFont(), ink);
    t.ellipsize = true;
    CanvasRenderer(canvas()).render(t);
    const int size = std::max(2, arrowZone() / 4);
    Menu::paintArrow(canvas(), width() - arrowZone() / 2 - UifStd::instance().getWidgetGap() / 2, (height() + size) / 2, size, false, ink);
}
