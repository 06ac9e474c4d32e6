#pragma once

#include "Logger.h"
#include "controls/FileBrowser.h"
#include "frame/GlobHandle.h"

/// The logger that the command "ShowLog" opens on a task log: a Logger with a save
/// button, which asks for a folder and writes the whole log there as one HTML file
/// ("TaskLog.html", numbered when taken). It cannot be closed by the ordinary
/// close path.
class SavableLogger : public Logger {
public:
    // The message the save button sends to the panel.
    static constexpr const char* kSaveMsg = "SavableLoggerSave";

    explicit SavableLogger(const InitArgs& args);

    // Makes and realizes one, centred, on `log`; null for a null log.
    static SavableLogger* show(const Zn::Ptr<iTaskLog>& log);

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    // Opens the folder chooser, unless one is open already.
    void chooseFolder();
    // Writes the HTML into the folder the chooser chose, then shows where it went.
    int saveToChosenFolder(const NotifyMsg& msg);
    // The path of the last HTML file written, empty before any.
    const LightweightString<wchar_t>& lastSavedPath() const { return lastSaved_; }
    FileBrowser* chooser() const { return chooser_.get(); }

private:
    static InitArgs withSaveButton(InitArgs args);

    GlobHandle<FileBrowser> chooser_;
    LightweightString<wchar_t> lastSaved_;
};
