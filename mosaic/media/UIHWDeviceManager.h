#pragma once

#include "media/ShotVideoMetadata.h"
#include "platform/UIString.h"
#include "value/Notifier.h"

#include <set>
#include <vector>

/// Which video input/output device is chosen, the output format each device is
/// asked for, and whether the hardware console is on: the one place the user
/// interface keeps them. The device list is read from the driver layer once, when
/// the manager is made at first use; the choices live in the preferences
/// ("HardwareIODevice", "HardwareIOFormat:" with the device's name,
/// "HardwareConsoleEnabled"). Listeners hear an empty notice when another device
/// has been chosen. With the configuration key "test_io_devices" set, two test
/// devices stand for the drivers and no driver is touched. Used on the
/// user-interface thread.
class UIHWDeviceManager : public Notifier {
public:
    /// One row of the device list: its name and its place in the list.
    struct HardwareOption {
        LightweightString<wchar_t> name;
        unsigned short index = 0;
    };

    static constexpr ResId kNoHardware = 861;

    static UIHWDeviceManager& instance();
    // Made by the singleton holder at first use.
    UIHWDeviceManager();

    // "HardwareIOFormat:" followed by the device's name.
    static LightweightString<char> makeOutputFormatPrefKey(const LightweightString<char>& deviceName);
    // The no-hardware row first, then the devices in the driver layer's order.
    const std::vector<LightweightString<wchar_t>>& getDevices() const { return devices_; }
    const std::vector<HardwareOption>& getHardwareOptions() const { return hardwareOptions_; }
    // The stored device's row; with none stored, or one that has gone, the last row.
    int getCurrentHW() const;
    // Switches the driver layer to the device and `format`; true when the choice
    // changed. A device that will not come on gives false and the choice stays.
    bool setCurrentHW(const LightweightString<char>& deviceName, const ShotVideoMetadata& format);

    // The output format of the current device; of width 0 when none is chosen.
    const ShotVideoMetadata& getPreferredOutputFormat() const { return preferredOutputFormat_; }
    // The stored output format of any device; of width 0 when none is stored or it
    // does not read.
    ShotVideoMetadata getPreferredOutputFormat(const LightweightString<char>& deviceName) const;
    // Stores it for the current device; width 0 clears the stored one.
    void setPreferredOutputFormat(const ShotVideoMetadata& format);
    // No format chosen: the output follows what has the focus.
    bool ioOutputFormatFollowsFocus() const { return preferredOutputFormat_.getWidth() == 0; }
    std::set<ShotVideoMetadata> getAvailableVideoOutputFormats() const;

    void setConsoleEnabled(bool enabled);
    bool getConsoleEnabled() const;

    // Test mode: set at load from "test_io_devices"; tests set it before first use.
    static bool testMode();
    static void setTestMode(bool on);

private:
    std::vector<HardwareOption> hardwareOptions_;
    std::vector<LightweightString<wchar_t>> devices_;
    ShotVideoMetadata preferredOutputFormat_;
};
