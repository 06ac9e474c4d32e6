#include "SavableLogger.h"

#include "LogFileFormat.h"
#include "controls/Message.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/makeTopLevel.h"
#include "platform/CommandRegistrar.h"
#include "platform/FilespecUtils.h"
#include "platform/OS.h"
#include "platform/ResourceStrings.h"
#include "value/EventHandlerExistenceCheck.h"
#include "value/UIThreadCallback.h"

namespace {

constexpr ResId kSavedText = 302, kSaveButtonText = 307, kChooserTitle = 308;

CommandRegistrar showLog("ShowLog", [](const Zn::Ptr<iObject>& argument) { SavableLogger::show(Zn::dynamicCast<iTaskLog>(argument)); });

} // namespace

Logger::InitArgs SavableLogger::withSaveButton(InitArgs args) {
    args.buttons.clear();
    args.buttons.emplace_back(UIString(ellipsisResourceStrW(kSaveButtonText)), WidgetCallback(kSaveMsg), 0,
                              static_cast<unsigned short>(PushButton::calcHeight()));
    args.buttons.back().width = Button::calcWidth(args.buttons.back().label);
    return args;
}

SavableLogger::SavableLogger(const InitArgs& args) : Logger(withSaveButton(args)) {
    resize(width(), height());
    setIndestructible(true);
}

SavableLogger* SavableLogger::show(const Zn::Ptr<iTaskLog>& log) {
    if (!log) return nullptr;
    InitArgs a(50, 0, 0);
    a.taskLog = log;
    return makeTopLevel<SavableLogger>(a, Glob::Centre(0, 0, kAlignCentre));
}

int SavableLogger::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kSaveMsg) {
        chooseFolder();
        return 1;
    }
    return Logger::handleMessageEvent(message, sender);
}

void SavableLogger::chooseFolder() {
    if (chooser_) return;
    FileBrowserBase::InitArgs a(UIString(resourceStrW(kChooserTitle)), FileBrowserBase::kFolder);
    a.startDirectory = OS()->getUserFolder();
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> call(new MethodCallback<SavableLogger, NotifyMsg, int>(this, &SavableLogger::saveToChosenFolder));
    auto* checked = new UIThreadCallback<NotifyMsg>(call, false);
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> callback(checked);
    checked->setUIThreadCheck(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new EventHandlerExistenceCheck<NotifyMsg>(static_cast<EventHandler*>(this))));
    a.callback = WidgetCallback(callback);
    chooser_.reset(FileBrowser::make(a, XY<int>(0, 0)));
}

int SavableLogger::saveToChosenFolder(const NotifyMsg&) {
    FileBrowser* browser = chooser_.get();
    LightweightString<wchar_t> folder = browser ? browser->getSelectedDirW() : LightweightString<wchar_t>();
    if (folder.empty()) return 0;
    LightweightString<wchar_t> path = Zn::FilespecUtils::makeValidFilespecNTFS(folder, L"TaskLog", L".html", false, '_');
    std::vector<LoggerBase::Item> items;
    taskLog()->getItems(items);
    LogFileFormat::saveAsHTML(items, path);
    lastSaved_ = path;
    // The browser is inside its own callback: it goes at the next safe moment.
    GlobManager::instance().requestDeletion(browser);
    chooser_.reset(nullptr);
    LightweightString<wchar_t> text = resourceStrW(kSavedText);
    std::size_t at = text.find(L"$FILE$");
    if (at != LightweightString<wchar_t>::npos) text.replace(at, 6, path.view());
    makeMessage(UIString(text));
    return 0;
}
