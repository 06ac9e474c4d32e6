#include "platform/FilespecUtils.h"
#include "TempFolder.h"
#include "core/Utf8.h"
#include "platform/Paths.h"
#include "platform/getSystemLogDirectory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {
using W = LightweightString<wchar_t>;
using Zn::FilespecUtils;

W wide(const std::string& s) { return fromUTF8(LightweightString<char>(s)); }

// True when the file can really be made where the path says, and nowhere else.
bool createsInside(const W& path, const std::string& folder) {
    std::filesystem::path p(toUTF8(path).str());
    if (p.parent_path() != std::filesystem::path(folder)) return false;
    std::ofstream(p) << "x";
    return std::filesystem::exists(p);
}
} // namespace

TEST(FilespecUtils, AnOrdinaryNameIsJoinedWithItsExtension) {
    EXPECT_EQ(FilespecUtils::makeValidFilespec(L"/tmp/logs", L"log", L".txt", true, '_'), L"/tmp/logs/log.txt");
    EXPECT_EQ(FilespecUtils::makeValidFilespec(L"/tmp/logs/", L"Render r\u00e9sum\u00e9", L"html", true, '_'),
              L"/tmp/logs/Render r\u00e9sum\u00e9.html");
    EXPECT_EQ(FilespecUtils::makeValidFilespec(L"", L"log", L"", true, '_'), L"log");
}

TEST(FilespecUtils, HostileNamesStayInsideTheFolder) {
    TempFolder dir;
    W folder = wide(dir.str());
    W nul(L"a\0b", 3);
    struct Case {
        W name;
        const wchar_t* expected;
    } cases[] = {
        {L"../../etc/passwd", L"___.._etc_passwd.txt"},
        {L"..", L"__.txt"},
        {L".", L"_.txt"},
        {L".hidden", L"_hidden.txt"},
        {L"", L"_.txt"},
        {nul, L"a_b.txt"},
        {L"tab\there\nnewline", L"tab_here_newline.txt"},
        {L"/", L"_.txt"},
    };
    for (const auto& c : cases) {
        W path = FilespecUtils::makeValidFilespec(folder, c.name, L".txt", true, '_');
        EXPECT_EQ(stripPath(path), c.expected) << c.name;
        EXPECT_TRUE(createsInside(path, dir.str())) << path;
    }
    EXPECT_EQ(stripPath(FilespecUtils::makeValidFilespec(folder, L"a/b", L"./../x", true, '/')), L"a_b._.._x")
        << "a replacement that is itself forbidden becomes '_', and the extension is cleaned too";
    EXPECT_EQ(stripPath(FilespecUtils::makeValidFilespec(folder, L"a b", L"", true, '-')), L"a b");
    W inFolderWithNul = FilespecUtils::makeValidFilespec(W(L"/tmp\0x", 6), L"n", L"", true, '_');
    EXPECT_EQ(inFolderWithNul, L"/tmp_x/n");
}

TEST(FilespecUtils, VeryLongNamesAreCutOnCharacterBoundariesToFitTheFileSystem) {
    TempFolder dir;
    W folder = wide(dir.str());
    W longAscii(std::wstring(5000, L'x'));
    W path = FilespecUtils::makeValidFilespec(folder, longAscii, L".txt", true, '_');
    EXPECT_LE(toUTF8(stripPath(path)).size(), FilespecUtils::kMaxNameBytes);
    EXPECT_TRUE(path.endsWith(L".txt"));
    EXPECT_TRUE(createsInside(path, dir.str()));

    W longWide(std::wstring(300, L'\u00e9'));
    W widePath = FilespecUtils::makeValidFilespec(folder, longWide, L".log", true, '_');
    LightweightString<char> utf8 = toUTF8(stripPath(widePath));
    EXPECT_LE(utf8.size(), FilespecUtils::kMaxNameBytes);
    EXPECT_EQ(fromUTF8(utf8), stripPath(widePath)) << "no character is cut in half";
    EXPECT_TRUE(createsInside(widePath, dir.str()));

    W hugeExtension(std::wstring(1000, L'e'));
    W withExt = FilespecUtils::makeValidFilespec(folder, L"n", hugeExtension, true, '_');
    EXPECT_LE(toUTF8(stripPath(withExt)).size(), FilespecUtils::kMaxNameBytes);
    EXPECT_TRUE(stripPath(withExt).startsWith(L"n."));
}

TEST(FilespecUtils, ATakenNameGetsANumberUnlessOverwritingIsAllowed) {
    TempFolder dir;
    W folder = wide(dir.str());
    W first = FilespecUtils::makeValidFilespec(folder, L"log", L".txt", false, '_');
    EXPECT_EQ(stripPath(first), L"log.txt");
    dir.write("log.txt", "earlier");
    EXPECT_EQ(stripPath(FilespecUtils::makeValidFilespec(folder, L"log", L".txt", false, '_')), L"log_2.txt");
    dir.write("log_2.txt", "earlier too");
    EXPECT_EQ(stripPath(FilespecUtils::makeValidFilespec(folder, L"log", L".txt", false, '-')), L"log-2.txt");
    EXPECT_EQ(stripPath(FilespecUtils::makeValidFilespec(folder, L"log", L".txt", false, '_')), L"log_3.txt");
    EXPECT_EQ(stripPath(FilespecUtils::makeValidFilespec(folder, L"log", L".txt", true, '_')), L"log.txt");
}

TEST(FilespecUtils, TheNtfsRulesAlsoRemoveWindowsReservedCharactersAndNames) {
    EXPECT_EQ(FilespecUtils::makeValidFilename(L"a<b>c:d\"e\\f|g?h*i", L".html", '_', true), L"a_b_c_d_e_f_g_h_i.html");
    EXPECT_EQ(FilespecUtils::makeValidFilename(L"a<b>", L".html", '_', false), L"a<b>.html") << "fine on Linux";
    EXPECT_EQ(FilespecUtils::makeValidFilename(L"CON", L".html", '_', true), L"_CON.html");
    EXPECT_EQ(FilespecUtils::makeValidFilename(L"lpt1", L"", '_', true), L"_lpt1");
    EXPECT_EQ(FilespecUtils::makeValidFilename(L"COM10", L"", '_', true), L"COM10");
    EXPECT_EQ(FilespecUtils::makeValidFilename(L"ends. ", L"", '_', true), L"ends__");
    EXPECT_EQ(FilespecUtils::makeValidFilename(L"x", L"txt. ", '_', true), L"x.txt__");
    EXPECT_EQ(FilespecUtils::makeValidFilespecNTFS(L"/f", L"Task:Log", L".html", true, '_'), L"/f/Task_Log.html");
}

TEST(SystemLogDirectory, FollowsMosaicHomeThenTheXdgStateFolderThenHome) {
    TempFolder dir;
    dir.setEnv("MOSAIC_HOME", "/m");
    dir.setEnv("XDG_STATE_HOME", "/state");
    EXPECT_EQ(getSystemLogDirectory(), L"/m/logs");
    dir.setEnv("MOSAIC_HOME", "");
    EXPECT_EQ(getSystemLogDirectory(), L"/state/mosaic/logs");
    dir.setEnv("XDG_STATE_HOME", "");
    dir.setEnv("HOME", "/home/ed");
    EXPECT_EQ(getSystemLogDirectory(), L"/home/ed/.local/state/mosaic/logs");
    EXPECT_FALSE(fileExists(L"/home/ed/.local/state/mosaic/logs")) << "asking does not make the folder";
}
