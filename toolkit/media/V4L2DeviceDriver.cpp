#include "V4L2DeviceDriver.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <linux/videodev2.h>
#include <map>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

std::string firstLine(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::string line;
    std::getline(in, line);
    while (!line.empty() && (line.back() == ' ' || line.back() == '\r')) line.pop_back();
    return line;
}

// The length of the UTF-8 sequence a lead byte starts; 0 for a byte that starts none.
int sequenceLength(unsigned char c) {
    if (c < 0x80) return 1;
    if (c >= 0xC2 && c <= 0xDF) return 2;
    if (c >= 0xE0 && c <= 0xEF) return 3;
    if (c >= 0xF0 && c <= 0xF4) return 4;
    return 0;
}

int xioctl(int fd, unsigned long request, void* arg) {
    int r = 0;
    do {
        r = ioctl(fd, request, arg);
    } while (r < 0 && errno == EINTR);
    return r;
}

// "video12" sorts after "video2".
int nodeNumber(const std::string& name) {
    const std::size_t digits = name.find_first_of("0123456789");
    return digits == std::string::npos ? -1 : std::atoi(name.c_str() + digits);
}

} // namespace

V4L2DeviceDriver::~V4L2DeviceDriver() {
    if (fd_ >= 0) close(fd_);
}

LightweightString<char> V4L2DeviceDriver::validUtf8(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        const auto c = static_cast<unsigned char>(text[i]);
        const int n = sequenceLength(c);
        bool good = n > 0 && i + static_cast<std::size_t>(n) <= text.size();
        for (int k = 1; good && k < n; ++k) good = (static_cast<unsigned char>(text[i + static_cast<std::size_t>(k)]) & 0xC0) == 0x80;
        if (good && n > 1) {
            // Overlong three-byte forms, surrogates, and code points past U+10FFFF.
            const auto c1 = static_cast<unsigned char>(text[i + 1]);
            good = !((c == 0xE0 && c1 < 0xA0) || (c == 0xED && c1 > 0x9F) || (c == 0xF0 && c1 < 0x90) || (c == 0xF4 && c1 > 0x8F));
        }
        if (good) {
            out.append(text, i, static_cast<std::size_t>(n));
            i += static_cast<std::size_t>(n);
        } else if (n > 1 && i + static_cast<std::size_t>(n) > text.size()) {
            break; // a character cut off by the kernel's limit
        } else {
            out += '?';
            ++i;
        }
    }
    return LightweightString<char>(out.c_str());
}

std::vector<Zn::Ptr<ZnDeviceDriver>> V4L2DeviceDriver::discover(const std::string& sysfs, const std::string& dev) {
    std::map<std::pair<int, std::string>, std::filesystem::path> nodes;
    std::error_code ec;
    for (const auto& entry : std::filesystem::directory_iterator(sysfs, ec)) {
        const std::string name = entry.path().filename().string();
        nodes.emplace(std::make_pair(nodeNumber(name), name), entry.path());
    }
    std::vector<Zn::Ptr<ZnDeviceDriver>> found;
    for (const auto& [key, path] : nodes) {
        const std::string index = firstLine(path / "index");
        if (!index.empty() && index != "0") continue;
        LightweightString<char> name = validUtf8(firstLine(path / "name"));
        if (name.empty()) name = key.second.c_str();
        found.push_back(Zn::Ptr<ZnDeviceDriver>(new V4L2DeviceDriver(name, dev + "/" + key.second)));
    }
    return found;
}

bool V4L2DeviceDriver::enable(bool on) {
    if (!on) {
        if (fd_ >= 0) close(fd_);
        fd_ = -1;
        enabled_ = false;
        return true;
    }
    if (fd_ < 0) fd_ = open(node_.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    enabled_ = fd_ >= 0;
    return enabled_;
}

std::set<ShotVideoMetadata> V4L2DeviceDriver::outputFormats() const {
    std::set<ShotVideoMetadata> formats;
    v4l2_capability cap{};
    if (fd_ < 0 || xioctl(fd_, VIDIOC_QUERYCAP, &cap) != 0) return formats;
    const std::uint32_t caps = (cap.capabilities & V4L2_CAP_DEVICE_CAPS) != 0 ? cap.device_caps : cap.capabilities;
    if ((caps & V4L2_CAP_VIDEO_OUTPUT) == 0) return formats;
    v4l2_frmsizeenum size{};
    size.pixel_format = V4L2_PIX_FMT_YUYV;
    for (size.index = 0; xioctl(fd_, VIDIOC_ENUM_FRAMESIZES, &size) == 0 && size.type == V4L2_FRMSIZE_TYPE_DISCRETE; ++size.index) {
        for (const auto& info : Zn::DigitalVideoFormats::getFormats()) {
            if (info.width == static_cast<int>(size.discrete.width) && info.height == static_cast<int>(size.discrete.height))
                formats.insert(
                    ShotVideoMetadata(info, Zn::Image::Format("YUY2"), Zn::kFrameRateNone, Zn::Image::kAspectUnknown, true, info.scanMode, 8));
        }
    }
    return formats;
}
