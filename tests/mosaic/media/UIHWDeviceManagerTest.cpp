// The device manager on simulated drivers, and on the two test devices.
#include "media/UIHWDeviceManager.h"
#include "MediaTestSupport.h"
#include "core/FunctionCallback.h"
#include "core/Utf8.h"
#include "media/ShotVideoMetadataButton.h"
#include "media/SoftwareAudioMixer.h"
#include "media/ZnDeviceDriverManager.h"
#include "media/ZnVideoResourceInfo.h"
#include "media/console_reinit.h"
#include "platform/Configuration.h"
#include "platform/EditorPreferences.h"
#include "platform/ResourceStrings.h"
#include "testkit/TestHome.h"

#include <loki/Singleton.h>

#include <filesystem>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

using namespace MediaTestSupport;

namespace {

// Three simulated video devices, the second of which will not come on, and a mixer.
void simulateDrivers(const std::string& config = R"({"simulated_io_drivers": 3, "simulated_io_refused": 2})") {
    const std::string folder = Configuration::settingsFolder().str();
    std::filesystem::create_directories(folder);
    std::ofstream(folder + "/config.json") << config;
    Configuration::reload();
    ZnDeviceDriverManager::theDeviceDriverManager().rediscover();
}

void restartManager() { Loki::DeletableSingleton<UIHWDeviceManager>::GracefulDelete(); }

class DeviceManager : public MediaTest {
protected:
    void SetUp() override {
        MediaTest::SetUp();
        simulateDrivers();
        UIHWDeviceManager::setTestMode(false);
        for (const char* key : {"HardwareIODevice", "HardwareConsoleEnabled", "HardwareIOFormat:Simulated Device 3"}) prefs().removePreference(key);
        restartManager();
        guard = UIHWDeviceManager::instance().addListener(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
            new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([this](const NotifyMsg&) { return ++notices; }))));
    }
    void TearDown() override {
        guard.reset();
        restartManager();
        MediaTest::TearDown();
    }
    static bool enabled(const char* name) {
        for (const auto& d : ZnDeviceDriverManager::theDeviceDriverManager().plugins())
            if (d->name == name) return d->isEnabled();
        return false;
    }
    Zn::Ptr<Zn::Guard> guard;
    int notices = 0;
};

} // namespace

TEST_F(DeviceManager, TheLastDeviceIsCurrentUntilOneIsChosenAndChoosingItAgainChangesNothing) {
    UIHWDeviceManager& m = UIHWDeviceManager::instance();
    ASSERT_EQ(m.getDevices().size(), 4u);
    EXPECT_EQ(m.getDevices()[0], resourceStrW(UIHWDeviceManager::kNoHardware));
    EXPECT_EQ(m.getDevices()[3], L"Simulated Device 3");
    EXPECT_EQ(m.getHardwareOptions()[3].index, 3);
    EXPECT_EQ(m.getCurrentHW(), 3) << "no stored choice: the last device found";
    EXPECT_TRUE(m.ioOutputFormatFollowsFocus());

    const int mixerInits = SoftwareAudioMixer::initCount();
    const ShotVideoMetadata hd = tableFormat(27);
    ASSERT_TRUE(m.setCurrentHW("Simulated Device 1", hd));
    EXPECT_EQ(m.getCurrentHW(), 1);
    EXPECT_EQ(notices, 1);
    EXPECT_TRUE(enabled("Simulated Device 1"));
    EXPECT_EQ(ZnVideoResourceInfo::getVideoStandard(), hd);
    EXPECT_EQ(SoftwareAudioMixer::initCount(), mixerInits + 1);
    EXPECT_EQ(SoftwareAudioMixer::voices(), 32);
    EXPECT_TRUE(SoftwareAudioMixer::isRunning());
    EXPECT_EQ(m.getAvailableVideoOutputFormats().size(), 2u) << "the formats the device reported";

    EXPECT_FALSE(m.setCurrentHW("Simulated Device 1", tableFormat(11)));
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(ZnVideoResourceInfo::getVideoStandard(), hd) << "the driver layer is left alone";
    EXPECT_EQ(SoftwareAudioMixer::initCount(), mixerInits + 1);

    restartManager();
    EXPECT_EQ(UIHWDeviceManager::instance().getCurrentHW(), 1) << "the stored device is selected again";
    prefs().setPreference("HardwareIODevice", "Unplugged Deck");
    EXPECT_EQ(UIHWDeviceManager::instance().getCurrentHW(), 3) << "a device that has gone: the last one";
}

TEST_F(DeviceManager, ARefusedDeviceStoresNothingAndNoHardwareSwitchesEveryDeviceOff) {
    UIHWDeviceManager& m = UIHWDeviceManager::instance();
    ASSERT_TRUE(m.setCurrentHW("Simulated Device 3", tableFormat(27)));
    const ShotVideoMetadata sd = tableFormat(4);
    EXPECT_FALSE(m.setCurrentHW("Simulated Device 2", sd));
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(prefs().getPreference("HardwareIODevice", ""), "Simulated Device 3");
    EXPECT_EQ(ZnVideoResourceInfo::getVideoStandard(), sd) << "the standard is set all the same";
    EXPECT_FALSE(enabled("Simulated Device 3")) << "and the devices stay off";
    EXPECT_TRUE(m.getAvailableVideoOutputFormats().empty());
    EXPECT_FALSE(m.setCurrentHW("No Such Device", sd));

    ASSERT_TRUE(m.setCurrentHW(toUTF8(m.getDevices()[0]), sd));
    EXPECT_EQ(m.getCurrentHW(), 0);
    EXPECT_EQ(ZnDeviceDriverManager::theDeviceDriverManager().enabledDevice(), nullptr);
    EXPECT_EQ(notices, 2);
}

TEST_F(DeviceManager, TheOutputFormatIsKeptPerDeviceClearedByWidthZeroAndSelectsItsRow) {
    UIHWDeviceManager& m = UIHWDeviceManager::instance();
    const ShotVideoMetadata early = tableFormat(11);
    m.setPreferredOutputFormat(early);
    EXPECT_EQ(m.getPreferredOutputFormat(), early) << "with no device stored it lives in memory";
    EXPECT_FALSE(prefs().hasPreference(UIHWDeviceManager::makeOutputFormatPrefKey("Simulated Device 3")));
    EXPECT_EQ(UIHWDeviceManager::makeOutputFormatPrefKey(""), "HardwareIOFormat:");

    ASSERT_TRUE(m.setCurrentHW("Simulated Device 3", early));
    EXPECT_EQ(m.getPreferredOutputFormat().getWidth(), 0) << "the device's own stored format replaces the field";
    const std::set<ShotVideoMetadata> offered = m.getAvailableVideoOutputFormats();
    ASSERT_EQ(offered.size(), 2u);
    const ShotVideoMetadata chosen = *offered.rbegin();
    m.setPreferredOutputFormat(chosen);
    EXPECT_FALSE(m.ioOutputFormatFollowsFocus());
    const nlohmann::ordered_json stored = nlohmann::ordered_json::parse(prefs().getPreference("HardwareIOFormat:Simulated Device 3", "").str());
    EXPECT_EQ(stored.dump(), R"({"uid":")" + chosen.getVideoFormatUID().toString().str() + R"(","bpc":8,"sm":)" +
                                 std::to_string(chosen.getScanMode()) + R"(,"ar":"16:9"})");
    restartManager();
    UIHWDeviceManager& again = UIHWDeviceManager::instance();
    EXPECT_EQ(again.getPreferredOutputFormat(), chosen);
    auto* button = host->add<ShotVideoMetadataButton>(ShotVideoMetadataButton::InitArgs(again.getAvailableVideoOutputFormats(), 220, 26));
    ASSERT_TRUE(button->setSelectedFormat(again.getPreferredOutputFormat()));
    EXPECT_EQ(button->getSelectedFormat(), chosen) << "the stored format selects its row";

    again.setPreferredOutputFormat(ShotVideoMetadata());
    EXPECT_EQ(prefs().getPreference("HardwareIOFormat:Simulated Device 3", "x"), "");
    EXPECT_EQ(again.getPreferredOutputFormat("Simulated Device 3").getWidth(), 0);
    EXPECT_TRUE(again.ioOutputFormatFollowsFocus());

    prefs().setPreference("HardwareIOFormat:Simulated Device 3", R"({"uid": "27"})");
    const ShotVideoMetadata bare = again.getPreferredOutputFormat("Simulated Device 3");
    EXPECT_EQ(bare.getBitsPerComponent(), 8);
    EXPECT_EQ(bare.getScanMode(), Zn::Image::kProgressive);
    EXPECT_EQ(bare.getAspectRatio(), Zn::Image::kAspectUnknown);
    prefs().setPreference("HardwareIOFormat:Simulated Device 3", R"({"uid": "999999"})");
    EXPECT_EQ(again.getPreferredOutputFormat("Simulated Device 3").getWidth(), 0) << "an unknown format reads as none";
}

TEST_F(DeviceManager, TestDevicesTouchNoDriverAndOfferTheirTwoFormats) {
    UIHWDeviceManager::setTestMode(true);
    restartManager();
    UIHWDeviceManager& m = UIHWDeviceManager::instance();
    ASSERT_EQ(m.getDevices().size(), 3u);
    EXPECT_EQ(m.getDevices()[2], L"Test Device 2");
    const std::set<ShotVideoMetadata> formats = m.getAvailableVideoOutputFormats();
    ASSERT_EQ(formats.size(), 2u);
    for (const ShotVideoMetadata& f : formats) {
        EXPECT_TRUE(f.getVideoFormatUID().value() == 27 || f.getVideoFormatUID().value() == 28);
        EXPECT_EQ(f.getFrameRate(), Zn::kFrameRate25);
    }
    const int mixerInits = SoftwareAudioMixer::initCount();
    ASSERT_TRUE(m.setCurrentHW("Test Device 1", tableFormat(27)));
    EXPECT_EQ(m.getCurrentHW(), 1);
    EXPECT_EQ(ZnDeviceDriverManager::theDeviceDriverManager().enabledDevice(), nullptr);
    EXPECT_EQ(SoftwareAudioMixer::initCount(), mixerInits);
    ASSERT_TRUE(m.setCurrentHW(toUTF8(m.getDevices()[0]), {}));
    EXPECT_TRUE(m.getAvailableVideoOutputFormats().empty());
    UIHWDeviceManager::setTestMode(false);
}

TEST_F(DeviceManager, TheConsoleSwitchIsStoredAndRestartsTheConsole) {
    UIHWDeviceManager& m = UIHWDeviceManager::instance();
    EXPECT_FALSE(m.getConsoleEnabled());
    m.setConsoleEnabled(true);
    EXPECT_TRUE(console_running());
    EXPECT_TRUE(EditorPreferences(Configuration::settingsFolder()).getPreference("HardwareConsoleEnabled", false));
    m.setConsoleEnabled(false);
    EXPECT_FALSE(console_running());
}

TEST(DeviceManagerRestart, ChoicesSurviveARestartOfTheProcessAndATornWrite) {
    // Each child is a process of its own that reads the preferences as it starts.
    auto inChild = [](const std::function<bool()>& body) {
        const pid_t pid = fork();
        if (pid == 0) {
            prefs().reload();
            _exit(body() ? 0 : 1);
        }
        int status = -1;
        waitpid(pid, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    };
    const ShotVideoMetadata hd = tableFormat(27);
    ASSERT_EQ(inChild([&] {
                  simulateDrivers();
                  prefs().removePreference("HardwareIODevice");
                  UIHWDeviceManager& m = UIHWDeviceManager::instance();
                  if (!m.setCurrentHW("Simulated Device 1", hd)) return false;
                  m.setPreferredOutputFormat(m.getAvailableVideoOutputFormats().empty() ? hd : *m.getAvailableVideoOutputFormats().begin());
                  return true;
              }),
              0);
    // A writer that died half-way leaves its temporary beside the file.
    std::ofstream(Configuration::settingsFolder().str() + "/preferences.json.tmp77") << R"({"HardwareIODevice": "Simulated De)";
    ASSERT_EQ(inChild([] {
                  simulateDrivers();
                  const UIHWDeviceManager& m = UIHWDeviceManager::instance();
                  return m.getCurrentHW() == 1 && m.getPreferredOutputFormat().getWidth() > 0 && !m.ioOutputFormatFollowsFocus();
              }),
              0);
}
