#pragma once

#include "controls/DropDownMenuButton.h"
#include "core/Guard.h"
#include "core/NotifyMsg.h"
#include "media/DriveId.h"

#include <vector>

/// A drop-down of the machine's media drives, each with its free space in a column
/// of its own, and last, when allowed, a row that leaves the choice to the system.
/// It follows DiskManager: when drives come or go the rows are built again, and the
/// chosen drive stays chosen while it is there; when it has gone the automatic row
/// (or, without it, the first) is chosen. Used on the user-interface thread.
class DiskButton : public DropDownMenuButton {
public:
    /// What a DiskButton is made from: a drop-down's record, whose rows it fills itself.
    struct InitArgs : DropDownMenuButton::InitArgs {
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height) {
            this->width = width;
            this->height = height;
        }
    };

    static constexpr ResId kAutomatic = 860;

    explicit DiskButton(const InitArgs& args);
    const char* idstring() const override { return "DiskButton"; }

    // Rows for the drives now, with the automatic row chosen; then follows DiskManager.
    void init();
    // Rows for the drives now, with `drive` chosen when it is there.
    void init(const DriveId& drive);
    // The chosen drive; the automatic row, or none, gives DriveId::kAuto.
    DriveId getCurrentDrive() const;
    // Chooses the row of `drive`; false, changing nothing, when no row has it (the
    // automatic row is reached by init).
    bool setCurrentDrive(const DriveId& drive);
    void setAllowAuto(bool allow);
    bool getAllowAuto() const { return allowAuto_; }

    // The width that shows the widest row there could be now.
    static unsigned short calcWidth();
    // A row per volume, in DiskManager's order, "name||(free space)" when asked, and
    // the automatic row last when asked.
    static void getMenuItems(std::vector<UIString>& items, bool withFreeSpace, bool withAuto);
    // Builds the rows again on MediaLocationsChangeMsg, in any letter case.
    int handleDiskManChange(const NotifyMsg& message);

private:
    std::vector<DriveId> drives_;
    Zn::Ptr<Zn::Guard> listenerGuard_;
    bool allowAuto_ = true;
};
