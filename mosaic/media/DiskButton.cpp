#include "DiskButton.h"

#include "media/DiskManager.h"
#include "media/bytesAsString.h"
#include "value/UIThreadCallback.h"

#include <algorithm>
#include <strings.h>

namespace {
constexpr double kBytesPerMegabyte = 1048576.0;
} // namespace

DiskButton::DiskButton(const InitArgs& args) : DropDownMenuButton(args) { init(); }

void DiskButton::init() {
    init(DriveId());
    listenerGuard_ = DiskManager::addListener(makeDeferredCallback(this, &DiskButton::handleDiskManChange));
}

void DiskButton::getMenuItems(std::vector<UIString>& items, bool withFreeSpace, bool withAuto) {
    const unsigned short count = DiskManager::numVolumes();
    for (unsigned short i = 0; i < count; ++i) {
        const MediaDrive drive = DiskManager::getMediaDrive(i);
        LightweightString<wchar_t> text = drive.getUserName(false);
        // The two bars put what follows in a column of its own; space not yet known shows none.
        if (withFreeSpace && drive.freeMegabytes)
            text = text + L"||(" + bytesAsString(static_cast<unsigned long>(*drive.freeMegabytes * kBytesPerMegabyte), true) + L")";
        items.emplace_back(text);
    }
    if (withAuto) items.emplace_back(kAutomatic);
}

unsigned short DiskButton::calcWidth() {
    std::vector<UIString> items;
    getMenuItems(items, true, true);
    return static_cast<unsigned short>(std::clamp(DropDownMenuButton::calcWidth(items), 0, 0xFFFF));
}

void DiskButton::init(const DriveId& drive) {
    std::vector<UIString> texts;
    getMenuItems(texts, true, allowAuto_);
    std::vector<MenuItem> rows;
    rows.reserve(texts.size());
    for (const UIString& t : texts) rows.emplace_back(t, WidgetCallback(), getPalette().text(kTextNormal), getCol());
    setStrings(rows, MenuItemIndex(0), kNoRedraw);
    drives_.clear();
    for (unsigned short i = 0; i < DiskManager::numVolumes(); ++i) drives_.push_back(DiskManager::get_drive(i));
    const int found = drive.isAuto() ? -1 : DiskManager::find_index_for_drive(drive);
    std::size_t selected = 0;
    if (found >= 0)
        selected = static_cast<std::size_t>(found);
    else if (allowAuto_)
        selected = drives_.size();
    setSelectedItem(MenuItemIndex(static_cast<unsigned short>(std::min<std::size_t>(selected, 0xFFFE))));
}

DriveId DiskButton::getCurrentDrive() const {
    const int selected = getSelectedItem();
    return selected >= 0 && static_cast<std::size_t>(selected) < drives_.size() ? drives_[static_cast<std::size_t>(selected)] : DriveId();
}

bool DiskButton::setCurrentDrive(const DriveId& drive) {
    const auto it = std::find(drives_.begin(), drives_.end(), drive);
    if (it == drives_.end()) return false;
    setSelectedItem(MenuItemIndex(static_cast<unsigned short>(it - drives_.begin())));
    return true;
}

void DiskButton::setAllowAuto(bool allow) {
    allowAuto_ = allow;
    init(getCurrentDrive());
}

int DiskButton::handleDiskManChange(const NotifyMsg& message) {
    if (strcasecmp(message.name().c_str(), DiskManager::MediaLocationsChangeMsg) != 0) return 0;
    // The rebuild closes an open menu; it opens again with the new rows.
    const bool wasOpen = isMenuOpen();
    init(getCurrentDrive());
    if (wasOpen) displayMenu();
    redraw();
    return 0;
}
