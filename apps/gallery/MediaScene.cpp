// Media choices: a video format from the format table, a file type, the
// compressions that the installed FFmpeg writes for that pair with the chosen
// one's settings below, and a frame rate. The compression follows the format and
// file type, and its settings panel follows the compression, keeping each
// compression's values while the panel is remade. Beside it, the input/output
// device with its output format, and the media drive, following the mounts.
#include "GalleryScene.h"

#include "controls/TitleMenuButton.h"
#include "core/Utf8.h"
#include "glob/GlobManager.h"

#include "media/CompressionFormatButton.h"
#include "media/CompressionSettingsPanel.h"
#include "media/FrameRateButton.h"
#include "media/ShotVideoMetadataButton.h"
#include "media/TitledDiskButton.h"
#include "media/TitledFileFormatButton.h"
#include "media/UIHWDeviceManager.h"
#include "media/ZnDeviceDriverManager.h"
#include "media/ZnDeviceDriverManagerIter.h"

#include <map>

namespace {

constexpr unsigned short kWidth = 460;

class MediaPanel : public StandardPanel {
public:
    explicit MediaPanel(const InitArgs& args) : StandardPanel(args) {}
    // The settings panel saves into states_ as it dies, so it goes while they live.
    ~MediaPanel() override {
        if (settings_) removeWidget(settings_, true);
    }
    const char* idstring() const override { return "MediaPanel"; }

    void build() {
        const UifStd& u = UifStd::instance();
        const int gap = u.getWidgetGap();
        const auto row = static_cast<unsigned short>(u.getRowHeight());
        const auto inner = static_cast<unsigned short>(getUserArea().width() - 2 * gap);

        std::set<ShotVideoMetadata> all;
        for (const auto& info : Zn::DigitalVideoFormats::getFormats()) all.insert(formatOf(info));
        ShotVideoMetadataButton::InitArgs formatArgs(all, 200, row);
        format_ = createWidget<ShotVideoMetadataButton>(formatArgs, Glob::UserTopLeft(gap, gap));
        format_->setName("format");
        format_->setSelectedFormat(formatOf(Zn::DigitalVideoFormats::findByUID(Zn::Image::FormatUID(14))));

        TitledFileFormatButtonInitArgs typeArgs(Compression::eExport, {}, 120, inner, row);
        fileType_ = createWidget<TitledFileFormatButton>(typeArgs, Glob::Below(gap, format_));
        fileType_->getButton()->setName("fileType");

        CompressionFormatButton::InitArgs compressionArgs(Compression::eExport, 240, inner, row);
        compression_ = createWidget<CompressionFormatButton>(compressionArgs, Glob::Below(gap, fileType_));
        compression_->getBtn()->setName("compression");

        FrameRateButton::InitArgs rateArgs({}, inner, row);
        Zn::getFrameRates(Zn::FrameRateGroups::kVideoRates, rateArgs.rates);
        rate_ = createWidget<FrameRateButton>(rateArgs, Glob::Below(gap, compression_));
        rate_->getBtn()->setName("frameRate");
        rate_->setFrameRate(Zn::kFrameRate25);

        follow();
    }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (message == DropDownMenuButton::dropDownMenuButtonMsg && sender == format_) return follow(), 1;
        if (message == FileFormatButton::FileTypeChangedMsg) return follow(), 1;
        if (message == CompressionFormatButton::CompressionFormatChangedMsg) return showSettings(), 1;
        return StandardPanel::handleMessageEvent(message, sender);
    }

private:
    static ShotVideoMetadata formatOf(const Zn::DigitalVideoFormats::DigitalVideoFormatInfo& info) {
        return ShotVideoMetadata(info, Zn::Image::Format("YUY2"), Zn::kFrameRateNone, Zn::Image::kAspect16x9, true, info.scanMode, 10);
    }

    void follow() {
        compression_->setOutputFormat(fileType_->getButton()->getFileType(), format_->getSelectedFormat());
        showSettings();
    }

    void showSettings() {
        const Zn::Image::Format code = compression_->getCompressionFormat().code;
        if (settings_ && code == shown_) return;
        if (settings_) removeWidget(settings_, true);
        shown_ = code;
        const UifStd& u = UifStd::instance();
        CompressionSettingsPanel::InitArgs args(CompressionSettingsPanel::makeParams(code), states_[code.code()],
                                                static_cast<unsigned short>(getUserArea().width() - 2 * u.getWidgetGap()));
        settings_ = createWidget<CompressionSettingsPanel>(args, Glob::Below(u.getWidgetGap(), rate_));
        settings_->setName("settings");
    }

    ShotVideoMetadataButton* format_ = nullptr;
    TitledFileFormatButton* fileType_ = nullptr;
    CompressionFormatButton* compression_ = nullptr;
    FrameRateButton* rate_ = nullptr;
    Glob* settings_ = nullptr;
    Zn::Image::Format shown_;
    // Each compression's settings, kept while its panel comes and goes.
    std::map<std::uint32_t, configb> states_;
};

// The device the user chooses and the format it sends out, kept by the device
// manager; and the drive media goes to.
class DevicePanel : public StandardPanel {
public:
    explicit DevicePanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "DevicePanel"; }

    void build() {
        const UifStd& u = UifStd::instance();
        const int gap = u.getWidgetGap();
        const auto row = static_cast<unsigned short>(u.getRowHeight());
        const auto inner = static_cast<unsigned short>(getUserArea().width() - 2 * gap);
        UIHWDeviceManager& devices = UIHWDeviceManager::instance();
        std::vector<UIString> names(devices.getDevices().begin(), devices.getDevices().end());
        TitleMenuButton::InitArgs deviceArgs(UIString(L"Device"), names, 200, inner, row);
        device_ = createWidget<TitleMenuButton>(deviceArgs, Glob::UserTopLeft(gap, gap));
        device_->getBtn()->setName("device");
        device_->getBtn()->setSelectedItem(MenuItemIndex(static_cast<unsigned short>(std::max(0, devices.getCurrentHW()))));

        ShotVideoMetadataButton::InitArgs formatArgs({}, 200, row);
        format_ = createWidget<ShotVideoMetadataButton>(formatArgs, Glob::Below(gap, device_));
        format_->setName("outputFormat");
        showFormats();

        TitledDiskButton::InitArgs driveArgs(UIString(L"Drive"), inner, row);
        drive_ = createWidget<TitledDiskButton>(driveArgs, Glob::Below(gap, format_));
        drive_->getButton()->setName("drive");
    }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (message != DropDownMenuButton::dropDownMenuButtonMsg) return StandardPanel::handleMessageEvent(message, sender);
        UIHWDeviceManager& devices = UIHWDeviceManager::instance();
        if (sender == device_->getBtn() || sender == device_) {
            devices.setCurrentHW(toUTF8(device_->getBtn()->getSelectedItemNameW()), format_->getSelectedFormat());
            showFormats();
        } else if (sender == format_) {
            devices.setPreferredOutputFormat(format_->getSelectedFormat());
        }
        return 1;
    }

private:
    void showFormats() {
        const UIHWDeviceManager& devices = UIHWDeviceManager::instance();
        format_->setFormats(devices.getAvailableVideoOutputFormats(), {});
        if (!format_->setSelectedFormat(devices.getPreferredOutputFormat()) && !format_->getFormats().empty())
            format_->setSelectedFormat(format_->getFormats().front());
    }

    TitleMenuButton* device_ = nullptr;
    ShotVideoMetadataButton* format_ = nullptr;
    TitledDiskButton* drive_ = nullptr;
};

// A machine with no video device shows the two test devices instead of an empty choice.
void offerTestDevicesWithoutHardware() {
    ZnDeviceDriverManagerIter it;
    it.init(ZnDeviceDriverManager::theDeviceDriverManager(), true, 0);
    it.init(kResourceVideoIO);
    if (!*it) UIHWDeviceManager::setTestMode(true);
}

void buildMedia() {
    const UifStd& u = UifStd::instance();
    const int rows = 4 + 2;
    const int height = rows * u.getRowHeight() + (rows + 2) * u.getWidgetGap() + u.getTitleHeight();
    auto* p = GalleryScene::makePanel<MediaPanel>(kWidth, height, L"Media", {120, 420});
    p->build();
    GlobManager::instance().realize(p);

    offerTestDevicesWithoutHardware();
    const int deviceRows = 3;
    const int deviceHeight = deviceRows * u.getRowHeight() + (deviceRows + 2) * u.getWidgetGap() + u.getTitleHeight();
    auto* d = GalleryScene::makePanel<DevicePanel>(kWidth, deviceHeight, L"Devices", {120 + kWidth + 20, 420 + height - deviceHeight});
    d->build();
    GlobManager::instance().realize(d);
}

const GallerySceneRegistration
    registration("media", "video format, file type, compression with its settings, frame rate; device, output format and drive", buildMedia);

} // namespace
