#include "TempFolder.h"

#include "core/Utf8.h"
#include "platform/OS.h"
#include "platform/revealFilesInOS.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

// Records what would have been launched.
struct Launches {
    Launches() {
        OS()->setLauncher([this](const LightweightString<char>& program, const std::vector<LightweightString<char>>& args) {
            seen.push_back(program.str() + " " + (args.empty() ? std::string() : args.front().str()));
            return true;
        });
    }
    ~Launches() { OS()->setLauncher({}); }
    std::vector<std::string> seen;
};

} // namespace

TEST(Shell, OpenAndRevealGoThroughTheLauncherForFilesAndAddressesThatExist) {
    TempFolder tmp;
    std::string a = tmp.str() + "/a.txt", b = tmp.str() + "/b.txt", sub = tmp.str() + "/sub";
    std::ofstream(a) << "a";
    std::ofstream(b) << "b";
    std::filesystem::create_directories(sub);
    std::ofstream(sub + "/c.txt") << "c";
    Launches launches;
    auto w = [](const std::string& s) { return fromUTF8(LightweightString<char>(s)); };

    EXPECT_TRUE(OS()->openWithDefaultApplication(w(a)));
    EXPECT_TRUE(OS()->openWithDefaultApplication(L"https://example.org/a b"));
    EXPECT_TRUE(OS()->openWithDefaultApplication(L"WWW.example.org"));
    EXPECT_FALSE(OS()->openWithDefaultApplication(w(tmp.str() + "/missing.txt")));
    EXPECT_FALSE(OS()->openWithDefaultApplication(L"C:missing")) << "a drive letter is no scheme";
    EXPECT_FALSE(OS()->openWithDefaultApplication(L""));
    EXPECT_EQ(launches.seen, (std::vector<std::string>{"xdg-open " + a, "xdg-open https://example.org/a b", "xdg-open WWW.example.org"}));

    launches.seen.clear();
    EXPECT_TRUE(Zn::revealFilesInOS({w(a), w(b), w(tmp.str() + "/missing"), w(sub + "/c.txt")}));
    EXPECT_EQ(launches.seen, (std::vector<std::string>{"xdg-open " + tmp.str() + "/", "xdg-open " + sub + "/"})) << "each folder once";
    EXPECT_FALSE(Zn::revealFilesInOS({}));
    EXPECT_FALSE(Zn::revealFilesInOS({w(tmp.str() + "/missing")}));
}

TEST(Shell, AFailedLaunchIsReportedAndTheRealLauncherComesBack) {
    TempFolder tmp;
    std::string a = tmp.str() + "/a.txt";
    std::ofstream(a) << "a";
    OS()->setLauncher([](const LightweightString<char>&, const std::vector<LightweightString<char>>&) { return false; });
    EXPECT_FALSE(OS()->openWithDefaultApplication(fromUTF8(LightweightString<char>(a))));
    OS()->setLauncher({});
}
