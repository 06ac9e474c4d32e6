#pragma once

#include "ZnPluginManager.h"

/// The drivers of the device layer: the machine's Video4Linux devices, then, when
/// the configuration key "simulated_io_drivers" is above 0, that many simulated
/// video devices ("Simulated Device 1", ...) and a simulated audio mixer;
/// "simulated_io_refused" names the number of a simulated device that will not come
/// on. At most one video device is on at a time. Used on the user-interface thread.
class ZnDeviceDriverManager : public ZnPluginManager {
public:
    static ZnDeviceDriverManager& theDeviceDriverManager();

    // Finds the drivers again, after the configuration changed (tests do).
    void rediscover();
    // Switches every device off.
    void disableDevices();
    // Switches the named video device on (`exclusive` false leaves the others as
    // they are); false when there is no such device or it will not come on.
    bool toggleDevices(const LightweightString<char>& name, bool exclusive);
    // The video device that is on, or null.
    ZnDeviceDriver* enabledDevice() const;

private:
    ZnDeviceDriverManager() { rediscover(); }
};
