#include "FileBrowserBase.h"

#include "DropDownMenuButton.h"
#include "PushButton.h"
#include "TextBox.h"
#include "WStringEditor.h"
#include "core/Utf8.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "platform/OS.h"
#include "platform/ResourceStrings.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr const char* kOkMsg = "fbOK";
constexpr const char* kCancelMsg = "fbCancel";
constexpr const char* kUpMsg = "fbUp";
constexpr const char* kPathMsg = "fbPath";
constexpr const char* kFilterMsg = "fbFilter";
constexpr const char* kCloseMsg = "fbClose";

constexpr ResId kOkId = 1, kCancelId = 2;
constexpr ResId kNameId = 200, kAllFilesId = 203, kChooseFileId = 204, kChooseFilesId = 205, kChooseFolderId = 206, kUpTipId = 207;

using WStr = LightweightString<wchar_t>;
using NStr = LightweightString<char>;

// Paints the browser's own selection behind a cell's text: the table's highlight
// follows only its current row, and the browser may select several.
class EntryPainter : public WStringEditor {
public:
    explicit EntryPainter(FileBrowserBase* browser) : browser_(browser) {}
    int drawField(CellContext& ctx) override {
        if (ctx.draw && ctx.canvas && ctx.table && browser_->isRowSelected(ctx.row())) {
            const Palette& p = ctx.table->getPalette();
            auto look = ctx.table->hasKbdFocus() ? kSelectionFocused : kSelectionUnfocused;
            CanvasRenderer(ctx.canvas).render(Glib::RectDescription(ctx.box, p.selection(look)));
            ctx.palette.setColour(Palette::kText, p.text(kTextOnSelection));
        }
        return WStringEditor::drawField(ctx);
    }

private:
    FileBrowserBase* browser_;
};

// A path with its dots resolved and no separator at its end but for the root.
NStr normalised(const std::string& path) {
    std::string s = fs::path(path).lexically_normal().string();
    while (s.size() > 1 && s.back() == '/') s.pop_back();
    return s;
}

bool isFolder(const NStr& path) {
    std::error_code ec;
    return !path.empty() && fs::is_directory(fs::path(path.str()), ec);
}

bool exists(const NStr& path) {
    std::error_code ec;
    return !path.empty() && fs::exists(fs::path(path.str()), ec);
}

NStr parentOf(const NStr& path) { return normalised(fs::path(path.str()).parent_path().string()); }

// Wide text that names a path exactly.
bool exact(const NStr& native) { return !native.empty() && toUTF8(fromUTF8(native)) == native; }

int buttonWidth(const UIString& label) { return std::max(4 * UifStd::instance().getRowHeight(), Button::calcWidth(label)); }

} // namespace

FileBrowserBase::FileBrowserBase(const InitArgs& args)
    : StandardPanel(StandardPanel::InitArgs(GlobCreationInfo(args, static_cast<unsigned short>(args.width > 0 ? 0 : calcSize().x),
                                                             static_cast<unsigned short>(args.height > 0 ? 0 : calcSize().y)),
                                            Border(Border::kNoBorder, 0, 15))) {}

FileBrowserBase::~FileBrowserBase() = default;

XY<int> FileBrowserBase::calcSize() {
    const int row = UifStd::instance().getRowHeight();
    return {34 * row, 22 * row};
}

void FileBrowserBase::init(const InitArgs& args, int flags) {
    if (table_) return;
    mode_ = args.selectionMode == kMultipleFiles || args.selectionMode == kFolder ? args.selectionMode : kSingleFile;
    callback_ = args.callback;
    owner_ = args.owner;
    ownerStamp_ = owner_ ? owner_->stamp() : IdStamp();
    showHidden_ = args.showHidden;
    const ResId titleId = mode_ == kFolder ? kChooseFolderId : mode_ == kMultipleFiles ? kChooseFilesId : kChooseFileId;
    setBorder(getDefaultBorder());
    if (flags & kFrameFlag) {
        setTitle(args.title.empty() ? UIString(titleId) : args.title, {}, kNoRedraw);
        addStandardWidgets(kCloseBox | kTitleBar | ((flags & kResizableFlag) ? kResizeGrip : 0));
    }
    const int row = UifStd::instance().getRowHeight();
    setMinSize(static_cast<unsigned short>(18 * row), static_cast<unsigned short>(10 * row));
    buildFilters(args.filters);
    listing_.setFilter(filterChoices_.empty() ? FileFilter() : filterChoices_.front(), mode_ == kFolder);
    buildControls(flags);
    layout();
    showStartFolder(args.startDirectory);
}

void FileBrowserBase::buildFilters(const std::vector<WStr>& filters) {
    FileFilter together(filters);
    if (together.acceptsAll()) return;
    filterChoices_.push_back(together);
    if (together.patterns().size() > 1)
        for (const WStr& p : together.patterns()) filterChoices_.push_back(FileFilter({p}));
    filterChoices_.push_back(FileFilter());
    filterChoice_ = 0;
}

void FileBrowserBase::buildControls(int) {
    const unsigned short row = static_cast<unsigned short>(UifStd::instance().getRowHeight());
    TextBox::InitArgs path(UIString(), row, row);
    pathBox_ = createWidget<TextBox>(path, UserBottomLeft(0, 0));
    pathBox_->requestCallback(kPathMsg, this, TextBoxBase::kReturnPressed);

    Button::InitArgs up(UIString(L"\x2191"), WidgetCallback(kUpMsg), row, row);
    upButton_ = createWidget<Button>(up, UserBottomLeft(0, 0));
    upButton_->setContextString(UIString(kUpTipId));

    TableWidget::InitArgs list(this, row, static_cast<unsigned short>(4 * row));
    table_ = createWidget<TableWidget>(list, UserBottomLeft(0, 0));
    table_->setHighlightCurrentRow(false);
    table_->hideTextEntryBox(true);
    table_->registerFieldEditor(DBFieldTypes::kPath, Zn::Ptr<iCellEditor>(new EntryPainter(this)));

    if (!filterChoices_.empty()) {
        std::vector<UIString> entries;
        for (std::size_t i = 0; i + 1 < filterChoices_.size(); ++i) entries.emplace_back(filterChoices_[i].describe());
        entries.emplace_back(resourceStrW(kAllFilesId) + L" (*)");
        DropDownMenuButton::InitArgs filter(entries, static_cast<unsigned short>(DropDownMenuButton::calcWidth(entries)), row);
        filter.callback = WidgetCallback(kFilterMsg);
        filter.selected = MenuItemIndex(static_cast<unsigned short>(0));
        filterButton_ = createWidget<DropDownMenuButton>(filter, UserBottomLeft(0, 0));
    }

    PushButton::InitArgs cancel(UIString(kCancelId), WidgetCallback(kCancelMsg), static_cast<unsigned short>(buttonWidth(UIString(kCancelId))), row);
    cancelButton_ = createWidget<PushButton>(cancel, UserBottomLeft(0, 0));
    PushButton::InitArgs ok(UIString(kOkId), WidgetCallback(kOkMsg), static_cast<unsigned short>(buttonWidth(UIString(kOkId))), row);
    okButton_ = createWidget<PushButton>(ok, UserBottomLeft(0, 0));
    okButton_->setDefault(true);

    tabOrder().addTabStop(*pathBox_);
    tabOrder().addTabStop(*table_);
    if (filterButton_) tabOrder().addTabStop(*filterButton_);
    tabOrder().addTabStop(*cancelButton_);
    tabOrder().addTabStop(*okButton_);
}

// Path row at the top, buttons at the bottom, the list between them.
void FileBrowserBase::layout() {
    if (!table_) return;
    const UifStd& u = UifStd::instance();
    const int row = u.getRowHeight(), gap = u.getWidgetGap(), m = u.getWidgetGap();
    const BoxInt ua = getUserArea();
    const int w = ua.width(), h = ua.height();
    const int top = std::max(m, h - m - row);

    upButton_->resize(row, row);
    setWidgetPos(upButton_, UserBottomLeft(m, top));
    const int pathX = m + row + gap;
    pathBox_->resize(std::max(1, w - m - pathX), row);
    setWidgetPos(pathBox_, UserBottomLeft(pathX, top));

    const int okX = std::max(m, w - m - okButton_->width());
    setWidgetPos(okButton_, UserBottomLeft(okX, m));
    const int cancelX = std::max(m, okX - gap - cancelButton_->width());
    setWidgetPos(cancelButton_, UserBottomLeft(cancelX, m));
    if (filterButton_) {
        const int wanted = DropDownMenuButton::calcWidth(filterButton_->getItems());
        filterButton_->resize(std::max(row, std::min(wanted, cancelX - gap - m)), row);
        setWidgetPos(filterButton_, UserBottomLeft(m, m));
    }

    const int listY = m + row + gap;
    table_->resize(std::max(1, w - 2 * m), std::max(1, top - gap - listY));
    setWidgetPos(table_, UserBottomLeft(m, listY));
}

void FileBrowserBase::resize(double width, double height) {
    StandardPanel::resize(width, height);
    layout();
}

// ---- folders ----------------------------------------------------------------

bool FileBrowserBase::showStartFolder(const WStr& start) {
    if (!start.empty()) {
        NStr path = toUTF8(start);
        if (path.str().rfind("~", 0) != 0 && fs::path(path.str()).is_relative()) {
            std::error_code ec;
            path = fs::absolute(fs::path(path.str()), ec).string();
        }
        if (goToTyped(fromUTF8(path))) return true;
    }
    if (showFolder(normalised(toUTF8(OS()->getUserFolder()).str()))) return true;
    if (showFolder("/")) return true;
    // Nothing readable at all: an empty list, and the path box says where we are.
    folder_ = "/";
    listing_.read(folder_, showHidden_);
    listingChanged(-1);
    return false;
}

bool FileBrowserBase::showFolder(NStr folder, NStr focus, bool select) {
    FolderListing fresh;
    fresh.setFilter(listing_.getFilter(), mode_ == kFolder);
    fresh.sortBy(listing_.sortKey(), listing_.isAscending());
    if (!fresh.read(folder, showHidden_)) return false;
    listing_ = std::move(fresh);
    folder_ = folder;
    selected_.clear();
    anchor_ = -1;
    const int row = focus.empty() ? -1 : listing_.indexOf(focus);
    if (select && row >= 0) {
        selected_.insert(focus);
        anchor_ = row;
    }
    listingChanged(row);
    return true;
}

bool FileBrowserBase::showPath(const NStr& path) {
    if (isFolder(path)) return showFolder(path);
    if (!exists(path)) return false;
    return showFolder(parentOf(path), path, mode_ != kFolder);
}

void FileBrowserBase::listingChanged(int currentRow) {
    if (pathBox_) pathBox_->setString(fromUTF8(folder_), kNoRedraw);
    if (!table_) return;
    table_->stopEditing(false);
    table_->refresh();
    table_->scrollToRow(0);
    table_->setCurPos({0, std::max(0, currentRow)}, TableWidget::kRevealCell);
    // Before it is on the screen a child's painting would land in a corner of the canvas it shares.
    if (isShowing() && GlobManager::instance().isRealized(getRootParent(this))) redraw();
}

WStr FileBrowserBase::getCurrentFolder() const { return fromUTF8(folder_); }

bool FileBrowserBase::setCurrentFolder(const WStr& folder) {
    if (state_ != kBrowsing || folder.empty()) return false;
    return showFolder(normalised(toUTF8(folder).str()));
}

bool FileBrowserBase::goUp() {
    if (state_ != kBrowsing) return false;
    const NStr parent = parentOf(folder_);
    if (parent.empty() || parent == folder_) return false;
    return showFolder(parent, folder_);
}

bool FileBrowserBase::goToTyped(const WStr& text) {
    if (state_ != kBrowsing) return false;
    std::string typed = toUTF8(text).str();
    const auto first = typed.find_first_not_of(" \t"), last = typed.find_last_not_of(" \t");
    if (first == std::string::npos) return false;
    typed = typed.substr(first, last - first + 1);
    if (typed == "~" || typed.rfind("~/", 0) == 0) typed = toUTF8(OS()->getUserFolder()).str() + typed.substr(1);
    fs::path p(typed);
    if (p.is_relative()) p = fs::path(folder_.str()) / p;
    return showPath(normalised(p.string()));
}

void FileBrowserBase::refreshListing() {
    if (state_ != kBrowsing) return;
    const std::set<NStr> keep = selected_;
    const FBItem* current = table_ ? listing_.item(table_->getCurPos().y) : nullptr;
    const NStr focus = current ? current->nativePath : NStr();
    FolderListing fresh;
    fresh.setFilter(listing_.getFilter(), mode_ == kFolder);
    fresh.sortBy(listing_.sortKey(), listing_.isAscending());
    fresh.read(folder_, showHidden_);
    listing_ = std::move(fresh);
    selected_ = keep;
    pruneSelection();
    listingChanged(listing_.indexOf(focus));
}

// ---- selection ----------------------------------------------------------------

void FileBrowserBase::selectRow(int row, eSelectHow how) {
    const FBItem* item = listing_.item(row);
    if (!item || state_ != kBrowsing) return;
    if (mode_ != kMultipleFiles || (how == kExtend && !listing_.item(anchor_))) how = kReplace;
    if (how == kToggle) {
        if (!selected_.erase(item->nativePath)) selected_.insert(item->nativePath);
    } else if (how == kExtend) {
        selected_.clear();
        for (int r = std::min(anchor_, row); r <= std::max(anchor_, row); ++r) selected_.insert(listing_.item(r)->nativePath);
    } else {
        selected_ = {item->nativePath};
    }
    if (how != kExtend) anchor_ = row;
    if (table_) table_->setCurPos({table_->getCurPos().x, row}, TableWidget::kRevealCell | TableWidget::kRedrawTable);
}

void FileBrowserBase::clearSelection() {
    selected_.clear();
    anchor_ = -1;
    if (table_) table_->redraw();
}

bool FileBrowserBase::isRowSelected(int row) const {
    const FBItem* item = listing_.item(row);
    return item && selected_.count(item->nativePath) > 0;
}

std::vector<int> FileBrowserBase::getSelectedRows() const {
    std::vector<int> rows;
    if (selected_.empty()) return rows;
    for (int r = 0; r < listing_.numShown(); ++r)
        if (isRowSelected(r)) rows.push_back(r);
    return rows;
}

void FileBrowserBase::pruneSelection() {
    std::set<NStr> kept;
    for (const NStr& path : selected_)
        if (listing_.indexOf(path) >= 0) kept.insert(path);
    selected_ = std::move(kept);
    if (!listing_.item(anchor_)) anchor_ = -1;
}

void FileBrowserBase::activateRow(int row) {
    const FBItem* item = listing_.item(row);
    if (!item || state_ != kBrowsing) return;
    if (item->isFolder) {
        // It may have gone since it was listed; then the list is brought up to date.
        if (!showFolder(item->nativePath)) refreshListing();
        return;
    }
    if (mode_ == kFolder) return;
    if (!isRowSelected(row)) selectRow(row, mode_ == kMultipleFiles ? kToggle : kReplace);
    accept();
}

// ---- filters ------------------------------------------------------------------

void FileBrowserBase::setFilterChoice(int index) {
    if (index < 0 || index >= numFilterChoices() || state_ != kBrowsing) return;
    filterChoice_ = index;
    if (filterButton_ && filterButton_->getSelectedItem() != index) filterButton_->setSelectedItem(MenuItemIndex(static_cast<unsigned short>(index)));
    const FBItem* current = table_ ? listing_.item(table_->getCurPos().y) : nullptr;
    const NStr focus = current ? current->nativePath : NStr();
    listing_.setFilter(filterChoices_[static_cast<std::size_t>(index)], mode_ == kFolder);
    pruneSelection();
    listingChanged(listing_.indexOf(focus));
}

// ---- answers ------------------------------------------------------------------

FileBrowserBase::PathList FileBrowserBase::pendingAnswer() const {
    PathList answer;
    const std::vector<int> rows = getSelectedRows();
    if (mode_ == kFolder) {
        const FBItem* picked = rows.empty() ? nullptr : listing_.item(rows.front());
        if (picked && picked->isFolder) {
            if (picked->hasExactPath()) answer.push_back(picked->path);
        } else if (exact(folder_)) {
            answer.push_back(fromUTF8(folder_));
        }
        return answer;
    }
    for (int r : rows) {
        const FBItem* item = listing_.item(r);
        if (!item->isFolder && item->hasExactPath()) answer.push_back(item->path);
    }
    return answer;
}

WStr FileBrowserBase::pendingDir() const {
    if (mode_ == kFolder) {
        PathList answer = pendingAnswer();
        return answer.empty() ? WStr() : answer[0];
    }
    return exact(folder_) ? fromUTF8(folder_) : WStr();
}

FileBrowserBase::PathList FileBrowserBase::getSelectedFiles() const {
    if (state_ == kChosen) return chosen_;
    if (state_ == kCancelled) return {};
    return pendingAnswer();
}

WStr FileBrowserBase::getSelectedDirW() const {
    if (state_ == kChosen) return chosenDir_;
    if (state_ == kCancelled) return {};
    return pendingDir();
}

void FileBrowserBase::okPressed() {
    if (accept()) return;
    // OK on a folder in a file mode opens it, as a double click would.
    const std::vector<int> rows = getSelectedRows();
    if (mode_ != kFolder && rows.size() == 1 && listing_.item(rows.front())->isFolder) activateRow(rows.front());
}

bool FileBrowserBase::accept() {
    if (state_ != kBrowsing) return false;
    PathList answer = pendingAnswer();
    if (answer.empty()) return false;
    chosenDir_ = pendingDir();
    chosen_ = answer;
    state_ = kChosen;
    deliver(answer);
    return true;
}

void FileBrowserBase::cancel() {
    if (state_ != kBrowsing) return;
    state_ = kCancelled;
    deliver(PathList());
}

EventHandler* FileBrowserBase::ownerHandler() const {
    if (!owner_) return logicalParent();
    return EventHandler::valid(owner_, ownerStamp_) ? owner_ : nullptr;
}

// Everything that touches this browser happens before the callback, which may delete it.
void FileBrowserBase::deliver(const PathList& answer) {
    const bool chosen = state_ == kChosen;
    Zn::Ptr<iObject> payload(new Answer(answer));
    const NStr name = callback_.message().empty() ? NStr(fileBrowserSelectedMsg) : callback_.message();
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> function = callback_.callback();
    setVisible(false);
    GlobManager::instance().removeModalGlob(this);
    if (EventHandler* owner = ownerHandler()) {
        if (chosen) sendMessageWithData(fileBrowserSelectedMsg, owner, payload, this);
        if (!function && !callback_.message().empty() && !(chosen && name == fileBrowserSelectedMsg)) sendMessageWithData(name, owner, payload, this);
    }
    // The owner's message is delivered before this one, so the owner still finds the browser.
    if (chosen)
        sendMessage(kCloseMsg, this, this);
    else
        GlobManager::instance().requestDeletion(this);
    if (function) function->execute(NotifyMsg(name, payload));
}

// ---- the list ------------------------------------------------------------------

std::vector<TableColumnDescription> FileBrowserBase::getColumnDefinitions() {
    TableColumnDescription name{UIString(kNameId)};
    name.setSortKey("name");
    return {name};
}

unsigned FileBrowserBase::getSize() { return static_cast<unsigned>(listing_.numShown()); }

NStr FileBrowserBase::columnKey(int col) const {
    const TableColumnDescription* column = table_ ? table_->getColumn(col) : nullptr;
    return column ? column->getSortKey() : NStr();
}

WStr FileBrowserBase::getFieldText(const XY<int>& cell) {
    const FBItem* item = listing_.item(cell.y);
    if (!item) return {};
    const NStr key = columnKey(cell.x);
    if (key == "size") return item->sizeText();
    if (key == "date") return item->dateText();
    return item->name;
}

int FileBrowserBase::getTextStyle(const XY<int>& cell) {
    const FBItem* item = listing_.item(cell.y);
    return item && item->isFolder && columnKey(cell.x) == "name" ? kStyleBold : kStyleDefault;
}

Glib::TextAlignment FileBrowserBase::getTextAlignment(const XY<int>& cell) {
    return {columnKey(cell.x) == "size" ? Glib::kAlignRight : Glib::kAlignDefault, Glib::kAlignMiddle};
}

int FileBrowserBase::handleMouseClickEvent(const XY<int>& cell, const Event& e) {
    if (!mouse_down_event(e) || !mouse_left_event(e) || !listing_.item(cell.y)) return 0;
    if (e.clickCount() >= 2 && !(e.modifiers() & (Modifiers::Control | Modifiers::Shift))) {
        // May choose, and so delete this browser: nothing may follow it.
        activateRow(cell.y);
        return 1;
    }
    const eSelectHow how = (e.modifiers() & Modifiers::Control) ? kToggle : (e.modifiers() & Modifiers::Shift) ? kExtend : kReplace;
    selectRow(cell.y, how);
    return 1;
}

void FileBrowserBase::handleHeaderClick(int col) {
    const NStr key = columnKey(col);
    const FolderListing::eSortKey by = key == "size" ? FolderListing::kBySize : key == "date" ? FolderListing::kByDate : FolderListing::kByName;
    const bool ascending = by == listing_.sortKey() ? !listing_.isAscending() : true;
    const FBItem* current = listing_.item(table_ ? table_->getCurPos().y : -1);
    const NStr focus = current ? current->nativePath : NStr();
    listing_.sortBy(by, ascending);
    // Rows have moved, so a range has no start any more.
    anchor_ = -1;
    listingChanged(listing_.indexOf(focus));
}

// ---- input --------------------------------------------------------------------

int FileBrowserBase::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kCloseMsg) {
        GlobManager::instance().requestDeletion(this);
        return 1;
    }
    if (state_ != kBrowsing) return 1;
    if (message == kOkMsg) {
        okPressed();
    } else if (message == kCancelMsg) {
        cancel();
    } else if (message == kUpMsg) {
        goUp();
    } else if (message == kPathMsg && sender == pathBox_) {
        if (!goToTyped(pathBox_->getString())) pathBox_->setString(fromUTF8(folder_));
    } else if (message == kFilterMsg && sender == filterButton_) {
        setFilterChoice(filterButton_->getSelectedItem());
    } else if (message == TableWidget::currentCellChangedMsg && sender == table_) {
        // The keys move the current row; the mouse selects through handleMouseClickEvent.
        const int row = table_->getCurPos().y;
        if (!isRowSelected(row)) selectRow(row);
    } else if (message == TableWidget::cellActivatedMsg && sender == table_) {
        activateRow(table_->getCurPos().y);
    } else {
        return StandardPanel::handleMessageEvent(message, sender);
    }
    return 1;
}

int FileBrowserBase::handleKeyboardEvent(int key) {
    if (state_ != kBrowsing) return 0;
    switch (Keys::plain(key)) {
    case Keys::Escape: cancel(); return 1;
    case Keys::Backspace: goUp(); return 1;
    case Keys::Return:
    case Keys::KeypadEnter: okPressed(); return 1;
    default: return StandardPanel::handleKeyboardEvent(key);
    }
}

void FileBrowserBase::handlePoot() { cancel(); }
