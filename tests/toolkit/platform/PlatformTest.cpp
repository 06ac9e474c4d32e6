#include "TempFolder.h"

#include "core/Utf8.h"
#include "platform/Clock.h"
#include "platform/CommandRegistrar.h"
#include "platform/Configuration.h"
#include "platform/Cookie.h"
#include "platform/CookieJar.h"
#include "platform/EditorPreferences.h"
#include "platform/LokiThreadSafe.h"
#include "platform/OS.h"
#include "platform/Paths.h"
#include "platform/ResourceStrings.h"
#include "platform/SystemWatchdog.h"
#include "platform/getSystemLogDirectory.h"
#include "testing/TestHome.h"

#include <gtest/gtest.h>
#include <loki/Singleton.h>

#include <set>
#include <thread>

TEST(Prefs, ValuesSurviveARestartAndATornWrite) {
    TempFolder dir;
    {
        EditorPreferences p(dir.str().c_str());
        p.setPreference("Magnifier width", 320);
        p.setPreference("HardwareConsoleEnabled", true);
        p.setPreference("HardwareIODevice", LightweightString<wchar_t>(L"Caf\u00e9 deck"));
    }
    // A crash mid-write leaves a half-written temporary beside the good file.
    dir.write("preferences.json.tmp4242", "{\"Magnifier width\": 1");
    EditorPreferences restarted(dir.str().c_str());
    EXPECT_EQ(restarted.getPreference("Magnifier width", 0), 320);
    EXPECT_TRUE(restarted.getPreference("HardwareConsoleEnabled", false));
    EXPECT_EQ(restarted.getPreference("HardwareIODevice", LightweightString<wchar_t>()), L"Caf\u00e9 deck");
    EXPECT_EQ(restarted.getPreference("missing", 7), 7);
    EXPECT_EQ(restarted.getPreference("Magnifier width", LightweightString<char>("text")), "text") << "a value of another type gives the default";
    restarted.removePreference("Magnifier width");
    EXPECT_FALSE(EditorPreferences(dir.str().c_str()).hasPreference("Magnifier width"));
}

TEST(Prefs, ACorruptFileIsKeptAsideAndDefaultsUsed) {
    TempFolder dir;
    dir.write("preferences.json", "{\"Magnifier level\": 4, trunc");
    EditorPreferences p(dir.str().c_str());
    EXPECT_EQ(p.getPreference("Magnifier level", 2), 2);
    EXPECT_EQ(dir.read("preferences.json.corrupt"), "{\"Magnifier level\": 4, trunc");
    p.setPreference("Magnifier level", 3);
    EXPECT_EQ(EditorPreferences(dir.str().c_str()).getPreference("Magnifier level", 0), 3);
    TempFolder notJson;
    notJson.write("preferences.json", "[1, 2]");
    EXPECT_EQ(EditorPreferences(notJson.str().c_str()).getPreference("x", 5), 5);
    // A folder that does not exist yet is made on the first write.
    TempFolder parent;
    EditorPreferences nested((parent.str() + "/a/b").c_str());
    nested.setPreference("k", LightweightString<char>("v"));
    EXPECT_EQ(EditorPreferences((parent.str() + "/a/b").c_str()).getPreference("k", ""), "v");
}

TEST(Config, IntegersFromTheFileAndDefaultsForAnythingElse) {
    TempFolder dir;
    dir.setEnv("MOSAIC_CONFIG", dir.write("config.json", R"({"test_io_devices": 1, "celstrip_grab_size": "12", "huge": 99999999999, "bad": "x"})"));
    Configuration::reload();
    EXPECT_EQ(config_int("test_io_devices", 0), 1);
    EXPECT_EQ(config_int("celstrip_grab_size", 0), 12);
    EXPECT_EQ(config_int("huge", -1), -1);
    EXPECT_EQ(config_int("bad", 5), 5);
    EXPECT_EQ(config_int("absent", 9), 9);
    EXPECT_EQ(config_int(nullptr, 3), 3);
    dir.write("config.json", "not json at all \xff");
    Configuration::reload();
    EXPECT_EQ(config_int("test_io_devices", 0), 0);
    dir.setEnv("MOSAIC_CONFIG", dir.file("missing.json"));
    Configuration::reload();
    EXPECT_EQ(config_int("test_io_devices", 4), 4);
    dir.setEnv("MOSAIC_HOME", dir.str());
    EXPECT_EQ(Configuration::settingsFolder(), dir.str().c_str());
}

TEST(TestHome, EveryFolderOfTheUserLiesInTheTestsOwnFreshFolder) {
    const std::string home = TestKit::TestHome::path().string();
    ASSERT_FALSE(home.empty());
    for (const LightweightString<char>& folder :
         {Configuration::settingsFolder(), toUTF8(OS()->getApplicationDataFolder()), toUTF8(getSystemLogDirectory()), toUTF8(OS()->getUserFolder())})
        EXPECT_EQ(folder.str().rfind(home + "/", 0), 0u) << folder.str();
}

TEST(Paths, SplitAndJoin) {
    EXPECT_EQ(getPath(L"/a/b/c.txt"), L"/a/b/");
    EXPECT_EQ(stripPath(L"/a/b/c.txt"), L"c.txt");
    EXPECT_EQ(stripExtension(L"/a.b/c.txt"), L"/a.b/c");
    EXPECT_EQ(stripExtension(L"/a.b/c"), L"/a.b/c");
    EXPECT_EQ(getExtension(L"x/clip.ZnTutorial"), L".ZnTutorial");
    EXPECT_EQ(getExtension(L"/home/.hidden"), L"");
    EXPECT_EQ(joinPaths(L"/a/", L"/b"), L"/a/b");
    EXPECT_EQ(joinPaths(L"/a", L"b"), L"/a/b");
    EXPECT_EQ(joinPaths(L"", L"b"), L"b");
    EXPECT_EQ(stripPath(L""), L"");
    EXPECT_FALSE(fileExists(L""));
    EXPECT_TRUE(fileExists(L"/"));
}

TEST(OS, ListsFoldersByPatternAndDeletesAndMakesFolders) {
    TempFolder dir;
    dir.write("b.ZnTutorial", "{}");
    dir.write("a.ZnTutorial", "{}");
    dir.write("notes.json", "{}");
    std::filesystem::create_directories(dir.file("sub.ZnTutorial"));
    LightweightString<wchar_t> folder = fromUTF8(dir.str().c_str());
    auto items = OS()->listFolder(joinPaths(folder, L"*.ZnTutorial"));
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].name, L"a.ZnTutorial");
    EXPECT_TRUE(items[2].isFolder);
    EXPECT_EQ(OS()->listFolder(folder, L"*.ZnTutorial", false).size(), 2u);
    EXPECT_EQ(OS()->listFolder(folder, L"?.json").size(), 0u);
    EXPECT_EQ(OS()->listFolder(folder, L"n*s.js?n").size(), 1u);
    EXPECT_TRUE(OS()->listFolder(L"/no/such/folder", L"*").empty());
    EXPECT_TRUE(OS()->deleteFile(joinPaths(folder, L"a.ZnTutorial")));
    EXPECT_FALSE(OS()->deleteFile(joinPaths(folder, L"a.ZnTutorial")));
    EXPECT_FALSE(OS()->deleteFile(joinPaths(folder, L"sub.ZnTutorial"))) << "folders are not files";
    EXPECT_TRUE(OS()->makeFolder(joinPaths(folder, L"x/y/z")));
    EXPECT_FALSE(OS()->makeFolder(L""));
    dir.setEnv("MOSAIC_HOME", dir.str());
    EXPECT_EQ(OS()->getApplicationDataFolder(), folder);
    OS()->setClipboardText(L"clip \u00e9");
    EXPECT_EQ(OS()->getClipboardText(), L"clip \u00e9");
    EXPECT_FALSE(OS()->openWithDefaultApplication(L"/no/such/file"));
}

TEST(Command, RegisteredCommandsRunByNameWithTheirArgument) {
    static int runs = 0;
    static Zn::Ptr<iObject> seen;
    static CommandRegistrar reg("Test Command", [](const Zn::Ptr<iObject>& arg) {
        ++runs;
        seen = arg;
    });
    Zn::Ptr<iObject> arg(new iObject);
    EXPECT_TRUE(CommandRegistrar::invoke("Test Command", arg));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(seen, arg);
    EXPECT_FALSE(CommandRegistrar::invoke("No Such Command"));
    auto names = CommandRegistrar::names();
    EXPECT_NE(std::find(names.begin(), names.end(), LightweightString<char>("Test Command")), names.end());
    seen.reset();
}

TEST(Resource, LookupFallsBackToEnglishAndUnknownIdsAreEmpty) {
    EXPECT_EQ(resourceStrW(1), L"OK") << "the shipped English strings";
    ResourceStrings::add(777001, L"render");
    EXPECT_EQ(resourceStrW(777001, 1), L"Render");
    EXPECT_EQ(ellipsisResourceStrW(777001), L"render..");
    EXPECT_EQ(paddedResourceStrW(777001, L"[", L"]"), L"[render]");
    EXPECT_EQ(paddedResourceStrW(777001, nullptr, nullptr), L"render");
    TempFolder dir;
    EXPECT_TRUE(ResourceStrings::loadFile("de", dir.write("de.json", R"({"2": "Abbrechen", "x": "ignored", "3": 4})").c_str()));
    EXPECT_FALSE(ResourceStrings::loadFile("fr", dir.write("fr.json", "garbage").c_str()));
    ResourceStrings::setLanguage("de");
    EXPECT_EQ(resourceStrW(2), L"Abbrechen");
    EXPECT_EQ(resourceStrW(1), L"OK") << "English fills the gaps";
    ResourceStrings::setLanguage("en");
    EXPECT_EQ(resourceStrW(123456789), L"");
}

TEST(Cookie, UniqueReadableBackAndSafeInFileNames) {
    std::set<LightweightString<char>> seen;
    for (int i = 0; i < 2000; ++i) {
        Cookie c = CookieJar::makeCookie(84, 0, 0);
        EXPECT_EQ(c.kind(), 'T');
        EXPECT_TRUE(seen.insert(c.asString()).second);
    }
    Cookie c = CookieJar::makeCookie('D', 3, 1);
    EXPECT_EQ(Cookie(c.asString()), c);
    EXPECT_EQ(c.asString().find('/'), LightweightString<char>::npos);
    EXPECT_TRUE(Cookie(LightweightString<char>("not a cookie")).isNull());
    EXPECT_EQ(CookieJar::makeCookie(-5, 0, 0).kind(), 'X');
    EXPECT_EQ(c.asWString(), fromUTF8(c.asString()));
}

TEST(Clock, TestTimeIsExactUntilCleared) {
    Clock::setTestTime(2400);
    EXPECT_EQ(msecsNow(), 2400);
    Clock::advanceTestTime(100);
    EXPECT_EQ(msecsNow(), 2500);
    Clock::clearTestTime();
    std::int64_t a = msecsNow();
    EXPECT_GE(msecsNow(), a);
}

namespace {
struct Counted {
    Counted() { ++made; }
    static inline std::atomic<int> made{0};
};
using CountedHolder = Loki::SingletonHolder<Counted, Loki::CreateUsingNew, Loki::DeletableSingleton, Loki::ThreadSafetyTraits::ThreadSafe>;
} // namespace

TEST(Loki, ThreadsRacingOnFirstUseGetOneInstance) {
    std::vector<std::thread> threads;
    std::vector<Counted*> got(8);
    for (int i = 0; i < 8; ++i) threads.emplace_back([&got, i] { got[i] = &CountedHolder::Instance(); });
    for (auto& t : threads) t.join();
    EXPECT_EQ(Counted::made.load(), 1);
    for (Counted* p : got) EXPECT_EQ(p, got[0]);
}

TEST(SystemWatchdog, ABeatKeepsItAwakeAndLifeSupportCoversASilence) {
    Clock::setTestTime(10'000);
    SystemWatchdog::heartbeat();
    const auto beats = SystemWatchdog::heartbeatCount();
    EXPECT_EQ(SystemWatchdog::lastHeartbeat(), 10'000);
    Clock::advanceTestTime(5'000);
    EXPECT_TRUE(SystemWatchdog::seemsHung(4'000));
    EXPECT_FALSE(SystemWatchdog::seemsHung(6'000));

    SystemWatchdog::beginLifeSupport();
    Clock::advanceTestTime(60'000);
    EXPECT_FALSE(SystemWatchdog::seemsHung(4'000)) << "a long task said it would be long";
    SystemWatchdog::endLifeSupport();
    SystemWatchdog::endLifeSupport(); // one too many: ignored
    EXPECT_FALSE(SystemWatchdog::onLifeSupport());
    EXPECT_EQ(SystemWatchdog::heartbeatCount(), beats + 3);
    Clock::advanceTestTime(5'000);
    EXPECT_TRUE(SystemWatchdog::seemsHung(4'000));
    Clock::clearTestTime();
}
