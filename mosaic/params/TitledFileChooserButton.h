#pragma once

#include "FileParam.h"
#include "controls/FileBrowser.h"
#include "controls/TitleMenuButton.h"
#include "frame/GlobHandle.h"

/// A parameter row for a file: the legend, and a drop-down showing the file's name
/// whose menu offers the file itself, "no file" and a browse entry that opens the
/// file browser in the file's folder. The menu is made afresh each time it opens.
class TitledFileChooserButton : public TitleMenuButton {
public:
    /// What a TitledFileChooserButton is made from: a drop-down row's record and the file parameter it shows.
    struct InitArgs : TitleMenuButton::InitArgs {
        Zn::Ptr<GenericParam::FileParam> param;
        InitArgs() = default;
        InitArgs(const Zn::Ptr<GenericParam::FileParam>& p, unsigned short buttonWidth, unsigned short width, unsigned short height);
    };

    static constexpr ResId kNoFileText = 380;
    static constexpr ResId kBrowseText = 381;

    explicit TitledFileChooserButton(const InitArgs& args);
    ~TitledFileChooserButton() override;
    const char* idstring() const override { return "TitledFileChooserButton"; }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

    // The menu's actions, as the user would choose them.
    int clearFile(const NotifyMsg& message);
    int browse(const NotifyMsg& message);
    int handleBrowserAnswer(const NotifyMsg& message);

    FileBrowser* browser() const { return browser_.get(); }

private:
    void rebuildMenu();
    void showValue();

    Zn::Ptr<GenericParam::FileParam> param_;
    GlobHandle<FileBrowser> browser_;
};
