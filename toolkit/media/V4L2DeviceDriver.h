#pragma once

#include "ZnDeviceDriver.h"

#include <string>
#include <vector>

/// A Video4Linux capture or output device of the machine. Found and named from
/// sysfs without opening the device (its card name, made valid UTF-8: the kernel
/// cuts it at 32 bytes, which can end inside a character); nodes after the first of
/// a device (metadata, a second queue) are left out. Switching it on opens the
/// node; its output formats are those of the format table whose sizes the device
/// lists for YUYV output.
class V4L2DeviceDriver : public ZnDeviceDriver {
public:
    V4L2DeviceDriver(const LightweightString<char>& name, const std::string& node) : ZnDeviceDriver(name, kResourceVideoIO), node_(node) {}
    ~V4L2DeviceDriver() override;
    V4L2DeviceDriver(const V4L2DeviceDriver&) = delete;
    V4L2DeviceDriver& operator=(const V4L2DeviceDriver&) = delete;

    // The devices under `sysfs` (a folder like /sys/class/video4linux), with nodes in `dev`.
    static std::vector<Zn::Ptr<ZnDeviceDriver>> discover(const std::string& sysfs = "/sys/class/video4linux", const std::string& dev = "/dev");
    // The text valid UTF-8: a character cut at the end is dropped, any other bad byte becomes '?'.
    static LightweightString<char> validUtf8(const std::string& text);

    bool enable(bool on) override;
    std::set<ShotVideoMetadata> outputFormats() const override;
    const std::string& node() const { return node_; }

private:
    std::string node_;
    int fd_ = -1;
};
