// The parts of Logger that act for the user: its buttons, the context menu of
// link rows, dragging links out, and saving the rows as text.
#include "Logger.h"

#include "LogFileFormat.h"
#include "controls/TableWidget.h"
#include "core/Utf8.h"
#include "core/splitIf.h"
#include "draw/StateSaver.h"
#include "draw/UifStd.h"
#include "glob/CanvasStack.h"
#include "glob/FileDrag.h"
#include "glob/GlobManager.h"
#include "platform/FilespecUtils.h"
#include "platform/OS.h"
#include "platform/Paths.h"
#include "platform/ResourceStrings.h"
#include "platform/getSystemLogDirectory.h"
#include "platform/revealFilesInOS.h"
#include "tasks/HyperLink.h"
#include "tasks/TaskLog.h"
#include "value/EventHandlerExistenceCheck.h"
#include "value/UIThreadCallback.h"

#include <cmath>

namespace {

constexpr ResId kCopyText = 303, kOpenText = 304, kRevealText = 305, kSaveToFileText = 306, kSavedTitle = 309;

WidgetCallback menuAction(Logger* logger, int (Logger::*method)(const NotifyMsg&), bool alwaysDefer, const LightweightString<char>& message) {
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> call(new MethodCallback<Logger, NotifyMsg, int>(logger, method));
    auto* deferred = new UIThreadCallback<NotifyMsg>(call, alwaysDefer);
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> result(deferred);
    deferred->setUIThreadCheck(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new EventHandlerExistenceCheck<NotifyMsg>(static_cast<EventHandler*>(logger))));
    return WidgetCallback(result, message);
}

std::vector<LightweightString<wchar_t>> pathsOf(const NotifyMsg& msg) { return Zn::splitIf(fromUTF8(msg.name()), L',', Zn::kSplitSkipEmpty); }

} // namespace

void Logger::addButtons(const std::vector<PushButton::InitArgs>& buttons, eCoordinateOrigin origin) {
    int b = getBorder().size(), gap = UifStd::instance().getWidgetGap();
    bool fromLeft = origin == kBottomLeft;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        PushButton::InitArgs a = buttons[fromLeft ? i : buttons.size() - 1 - i];
        a.canvas = canvas();
        a.palette = getPalette();
        auto* button = new PushButton(a);
        WidgetPosition at = buttons_.empty() ? (fromLeft ? BottomLeft(b, b) : BottomRight(b, b))
                                             : (fromLeft ? RightOf(gap, buttons_.back()) : LeftOf(gap, buttons_.back()));
        addChild(button, at);
        buttons_.push_back(button);
    }
}

// ---- the context menu -------------------------------------------------------------

void Logger::reviewMenu(const Event* e) {
    clearMenu();
    setMenuTitle(UIString());
    if (e && table_) {
        XY<int> cell = table_->getCellForMouseEvent(*e);
        const LoggedItem* row = cell.y >= 0 && cell.y < rowCount_ ? &items_[static_cast<std::size_t>(cell.y)] : nullptr;
        if (row && row->type == otHyperLink) {
            LoggerBase::HyperLink link = LoggerBase::HyperLink::fromString(row->text);
            if (!link.empty() && !link.isInternal()) {
                LightweightString<wchar_t> list;
                for (const auto& target : link.getTargets()) list += (list.empty() ? L"" : L",") + target;
                LightweightString<char> message = toUTF8(list);
                setMenuTitle(UIString(stripPath(link.getDescription())));
                addMenuItem(
                    MenuItem(UIString(resourceStrW(kCopyText)), menuAction(this, &Logger::copyToClipboard, false, message), kMenuItemCommand));
                addMenuItem(MenuItem(UIString(resourceStrW(kOpenText)), menuAction(this, &Logger::openFile, false, message), kMenuItemCommand));
                addMenuItem(MenuItem(UIString(resourceStrW(kRevealText)), menuAction(this, &Logger::revealInOS, false, message), kMenuItemCommand));
            }
        }
    }
    // Only a panel with rows has anything to save.
    if (menuItems().empty() && table_)
        addMenuItem(MenuItem(UIString(resourceStrW(kSaveToFileText)), menuAction(this, &Logger::saveToFile, true, "saveToFile")));
}

int Logger::copyToClipboard(const NotifyMsg& msg) {
    auto paths = pathsOf(msg);
    if (!paths.empty()) OS()->setClipboardText(paths.front());
    return 0;
}

int Logger::openFile(const NotifyMsg& msg) {
    auto paths = pathsOf(msg);
    if (!paths.empty()) OS()->openWithDefaultApplication(paths.front());
    return 0;
}

int Logger::revealInOS(const NotifyMsg& msg) {
    Zn::revealFilesInOS(pathsOf(msg));
    return 0;
}

// ---- dragging links out -----------------------------------------------------------

int Logger::handleMouseClickEvent(const XY<int>& cell, const Event& e) {
    if (mouse_down_event(e)) {
        pressedAt_ = e.screenPos();
        dragged_ = false;
        return 0;
    }
    if (mouse_up_event(e)) {
        bool ended = dragged_;
        pressedAt_ = {kUnset, kUnset};
        dragged_ = false;
        return ended ? 1 : 0;
    }
    const LoggedItem* row = rowAt(cell.y);
    if (!row || row->type != otHyperLink || !mouse_move_event(e) || pressedAt_.x == kUnset || dragged_) return 0;
    LoggerBase::HyperLink link = LoggerBase::HyperLink::fromString(row->text);
    // A "|" marks a target that cannot stand as a file of its own.
    if (link.empty() || link.getTargets().front().find(L'|') != LightweightString<wchar_t>::npos) return 0;
    XY<int> d = e.screenPos() - pressedAt_;
    auto distance = static_cast<int>(std::sqrt(double(d.x) * d.x + double(d.y) * d.y));
    if (distance < UifStd::instance().getWidgetGap()) return 0;
    dragged_ = true;
    mouse_canvas_connect(nullptr);
    Glib::dragFilesToOS(link.getTargets());
    return 1;
}

// ---- saving -----------------------------------------------------------------------

void Logger::saveAtClose() {
    if (!autoSave_) return;
    LightweightString<wchar_t> folder = getSystemLogDirectory();
    if (!fileExists(folder)) OS()->makeFolder(folder);
    LogFileFormat::saveAsText(items_, autoSavePath_);
}

int Logger::saveToFile(const NotifyMsg&) {
    LightweightString<wchar_t> path = Zn::FilespecUtils::makeValidFilespec(OS()->getUserFolder(), L"log", L".txt", false, '_');
    LogFileFormat::saveAsText(items_, path);

    Drawable::disableRedraws();
    InitArgs a(1, 0, 0);
    a.border = StandardPanel::getDefaultBorder();
    a.flags = kNoResizeGrip | kNoHeader;
    a.title = UIString(resourceStrW(kSavedTitle));
    a.palette = getPalette();
    a.width = StandardPanel::calcPanelSize(XY<int>(TableColumnDescription::calcSizeFor(path), 0), kCloseBox | kTitleBar, a.border).x;
    a.taskLog = Zn::Ptr<iTaskLog>(new TaskLog);
    a.taskLog->write(path, otHyperLink);
    XY<int> at(getX() + width() / 2 - a.width / 2, getY() + height() / 2 - a.height / 2);
    XY<int> pos = GlobManager::instance().getPosForGlob(a, BottomLeft(at));
    pos = GlobManager::instance().getSafePosForGlob(nullptr, pos, XY<int>(a.width, a.height));
    Logger* shown;
    {
        Glib::StateSaver saver;
        shown = new Logger(a);
        shown->setupRootPos(pos);
    }
    if (canvas_is_topmost(canvas())) canvas_pop_to_top(shown->canvas(), false);
    GlobManager::instance().realize(shown);
    GlobManager::instance().addModalGlob(shown, nullptr);
    Drawable::enableRedraws();
    return 0;
}
