#include "UIHWDeviceManager.h"

#include "StoredVideoFormat.h"
#include "core/Utf8.h"
#include "media/SoftwareAudioMixer.h"
#include "media/ZnAudioResource.h"
#include "media/ZnDeviceDriverManager.h"
#include "media/ZnDeviceDriverManagerIter.h"
#include "media/ZnVideoResourceInfo.h"
#include "media/console_reinit.h"
#include "platform/Configuration.h"
#include "platform/EditorPreferences.h"
#include "platform/LokiThreadSafe.h"
#include "platform/ResourceStrings.h"

#include <loki/Singleton.h>

namespace {

using Holder = Loki::SingletonHolder<UIHWDeviceManager, Loki::CreateUsingNew, Loki::DeletableSingleton, Loki::ThreadSafetyTraits::ThreadSafe>;

bool testIODevices = config_int("test_io_devices", 0) != 0;

const char kDeviceKey[] = "HardwareIODevice";
const char kConsoleKey[] = "HardwareConsoleEnabled";
constexpr std::uint32_t kTestFormatA = 27, kTestFormatB = 28;
constexpr int kMixerVoices = 32;

ShotVideoMetadata testFormat(std::uint32_t uid) {
    return ShotVideoMetadata(Zn::DigitalVideoFormats::findByUID(Zn::Image::FormatUID(uid)), Zn::Image::Format("YUY2"), Zn::kFrameRate25,
                             Zn::Image::kAspectUnknown, false, Zn::Image::kProgressive, 8);
}

ZnDeviceDriver* firstDriver(ZnResourceType type) {
    ZnDeviceDriverManagerIter it;
    it.init(ZnDeviceDriverManager::theDeviceDriverManager(), true, 0);
    it.init(type);
    return *it;
}

void restartMixer() {
    if (!firstDriver(kResourceAudioMixer)) return;
    const ZnAudioResource::State audio = ZnAudioResource::instance().getState();
    SoftwareAudioMixer::suspend();
    SoftwareAudioMixer::init(audio.sampleRate, audio.channels, kMixerVoices);
    SoftwareAudioMixer::resume();
}

} // namespace

UIHWDeviceManager& UIHWDeviceManager::instance() { return Holder::Instance(); }

bool UIHWDeviceManager::testMode() { return testIODevices; }

void UIHWDeviceManager::setTestMode(bool on) { testIODevices = on; }

UIHWDeviceManager::UIHWDeviceManager() {
    devices_.push_back(resourceStrW(kNoHardware));
    if (testIODevices) {
        devices_.emplace_back(L"Test Device 1");
        devices_.emplace_back(L"Test Device 2");
    } else {
        ZnDeviceDriverManagerIter it;
        it.init(ZnDeviceDriverManager::theDeviceDriverManager(), true, 0);
        it.init(kResourceVideoIO);
        for (; *it && devices_.size() < 0xFFFF; ++it) devices_.push_back(fromUTF8((*it)->name));
    }
    for (const LightweightString<wchar_t>& name : devices_)
        hardwareOptions_.push_back(HardwareOption{name, static_cast<unsigned short>(hardwareOptions_.size())});
    if (getCurrentHW() >= 0) preferredOutputFormat_ = getPreferredOutputFormat(prefs().getPreference(kDeviceKey, ""));
}

LightweightString<char> UIHWDeviceManager::makeOutputFormatPrefKey(const LightweightString<char>& deviceName) {
    return LightweightString<char>("HardwareIOFormat:") + deviceName.view();
}

int UIHWDeviceManager::getCurrentHW() const {
    int current = static_cast<unsigned short>(devices_.size() - 1);
    const LightweightString<wchar_t> stored = prefs().getPreference(kDeviceKey, LightweightString<wchar_t>());
    if (stored.empty()) return current;
    // Every match counts, so the last of two like-named devices wins.
    for (const HardwareOption& option : hardwareOptions_)
        if (option.name == stored) current = option.index;
    return current;
}

bool UIHWDeviceManager::setCurrentHW(const LightweightString<char>& deviceName, const ShotVideoMetadata& format) {
    if (prefs().getPreference(kDeviceKey, "") == deviceName) return false;
    if (!testIODevices) {
        ZnDeviceDriverManager& drivers = ZnDeviceDriverManager::theDeviceDriverManager();
        drivers.disableDevices();
        // No hardware is a choice that every device off fulfils.
        const bool noHardware = !devices_.empty() && deviceName == toUTF8(devices_.front());
        const bool ok = noHardware || drivers.toggleDevices(deviceName, false);
        if (ok && !noHardware) {
            ZnVideoResourceInfo::getResources(deviceName);
            restartMixer();
        }
        ZnVideoResourceInfo::setVideoStandard(format);
        if (!ok) return false;
    }
    prefs().setPreference(kDeviceKey, deviceName);
    preferredOutputFormat_ = getPreferredOutputFormat(deviceName);
    issueNotification(NotifyMsg(), NotifyMsgTypeDictionary::instance().allMsgType);
    return true;
}

ShotVideoMetadata UIHWDeviceManager::getPreferredOutputFormat(const LightweightString<char>& deviceName) const {
    if (getCurrentHW() < 0) return {};
    const LightweightString<char> stored = prefs().getPreference(makeOutputFormatPrefKey(deviceName), "");
    return stored.empty() ? ShotVideoMetadata() : StoredVideoFormat::read(stored);
}

void UIHWDeviceManager::setPreferredOutputFormat(const ShotVideoMetadata& format) {
    preferredOutputFormat_ = format;
    const LightweightString<char> device = prefs().getPreference(kDeviceKey, "");
    if (device.empty()) return;
    prefs().setPreference(makeOutputFormatPrefKey(device), format.getWidth() == 0 ? LightweightString<char>() : StoredVideoFormat::write(format));
}

std::set<ShotVideoMetadata> UIHWDeviceManager::getAvailableVideoOutputFormats() const {
    if (testIODevices) {
        if (getCurrentHW() == 0) return {};
        return {testFormat(kTestFormatA), testFormat(kTestFormatB)};
    }
    const ZnVideoOutputResource* output = ZnVideoResourceInfo::getResourceForOutput(0);
    return output ? output->getFormats(0) : std::set<ShotVideoMetadata>();
}

void UIHWDeviceManager::setConsoleEnabled(bool enabled) {
    prefs().setPreference(kConsoleKey, enabled);
    console_reinit();
}

bool UIHWDeviceManager::getConsoleEnabled() const { return prefs().getPreference(kConsoleKey, false); }
