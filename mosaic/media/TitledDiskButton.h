#pragma once

#include "DiskButton.h"
#include "controls/TitleGlob.h"

/// A DiskButton at the right of a row, with its title at the left. The button's
/// messages go on to this row's owner.
class TitledDiskButton : public TitleGlob {
public:
    using InitArgs = TitleGlob::InitArgs;

    explicit TitledDiskButton(const InitArgs& args);
    const char* idstring() const override { return "TitledDiskButton"; }

    // Places the button: `width` wide, or as wide as its widest row when 0.
    void init(unsigned short width);
    DiskButton* getButton() const { return button_; }

    DriveId getCurrentDrive() const { return button_->getCurrentDrive(); }
    bool setCurrentDrive(const DriveId& drive) { return button_->setCurrentDrive(drive); }
    void setAllowAuto(bool allow) { button_->setAllowAuto(allow); }

private:
    DiskButton* button_ = nullptr;
};
