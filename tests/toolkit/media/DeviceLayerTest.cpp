#include "media/SimulatedDeviceDriver.h"
#include "media/V4L2DeviceDriver.h"
#include "media/ZnDeviceDriverManagerIter.h"

#include "../platform/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {
void node(const TempFolder& sysfs, const std::string& name, const std::string& card, const std::string& index) {
    std::filesystem::create_directories(sysfs.file(name));
    sysfs.write(name + "/name", card + "\n");
    if (!index.empty()) sysfs.write(name + "/index", index + "\n");
}
} // namespace

TEST(V4L2Devices, FoundInSysfsInNodeOrderWithValidNamesAndNoSecondaryNodes) {
    TempFolder sysfs;
    // The kernel cuts a card name at 32 bytes, here inside the two bytes of "é".
    node(sysfs, "video0", "USB Capture HDMI 4K+ Pro Edition\xC3", "0");
    node(sysfs, "video1", "USB Capture HDMI 4K+ Pro Edition", "1");
    node(sysfs, "video10", "Out\xFFput \xE2\x82\xAC", "");
    node(sysfs, "video2", "", "0");
    const auto found = V4L2DeviceDriver::discover(sysfs.str(), "/nonexistent");
    ASSERT_EQ(found.size(), 3u);
    EXPECT_EQ(found[0]->name, "USB Capture HDMI 4K+ Pro Edition");
    EXPECT_EQ(found[1]->name, "video2") << "a node with no card name is named after itself";
    EXPECT_EQ(found[2]->name, "Out?put \xE2\x82\xAC");
    EXPECT_EQ(found[0]->resourceType, kResourceVideoIO);
    EXPECT_FALSE(found[0]->enable(true)) << "a node that will not open does not come on";
    EXPECT_FALSE(found[0]->isEnabled());
    EXPECT_TRUE(found[0]->outputFormats().empty());
    EXPECT_TRUE(V4L2DeviceDriver::discover(sysfs.file("missing")).empty());
    EXPECT_EQ(V4L2DeviceDriver::validUtf8("\xED\xA0\x80x\xC0\xAF"), "???x??") << "surrogates and overlong forms";
}

TEST(DeviceDriverIter, WalksOneResourceTypeAndWithoutAllOnlyWhatIsOn) {
    ZnPluginManager manager;
    manager.addPlugin(Zn::Ptr<ZnDeviceDriver>(new SimulatedDeviceDriver("Mixer", kResourceAudioMixer)));
    manager.addPlugin(Zn::Ptr<ZnDeviceDriver>(new SimulatedDeviceDriver("Deck A", kResourceVideoIO)));
    manager.addPlugin(Zn::Ptr<ZnDeviceDriver>(new SimulatedDeviceDriver("Deck B", kResourceVideoIO, true)));
    manager.addPlugin(Zn::Ptr<ZnDeviceDriver>());
    ZnDeviceDriverManagerIter it;
    it.init(manager, true, 0);
    it.init(kResourceVideoIO);
    std::vector<std::string> names;
    for (; *it; ++it) names.push_back((*it)->name.str());
    EXPECT_EQ(names, (std::vector<std::string>{"Deck A", "Deck B"}));
    ++it;
    EXPECT_EQ(*it, nullptr) << "past the end stays there";

    EXPECT_FALSE(manager.plugins()[2]->enable(true));
    EXPECT_TRUE(manager.plugins()[1]->enable(true));
    ZnDeviceDriverManagerIter on;
    on.init(manager, false, 0);
    on.init(kResourceVideoIO);
    ASSERT_NE(*on, nullptr);
    EXPECT_EQ((*on)->name, "Deck A");
    EXPECT_EQ(*++on, nullptr);
    ZnPluginManagerIter unset;
    EXPECT_EQ(*unset, nullptr);
}
