#include "TempFolder.h"

#include "core/Utf8.h"
#include "platform/JSON.h"
#include "platform/TextFile.h"

#include <gtest/gtest.h>

TEST(Json, KeyOrderIsKeptThroughParseAndBuilder) {
    auto e = JSON::parse(LightweightString<char>(R"({"zeta":"1","alpha":"2","mid":"3","n2":2,"n1":1})"));
    ASSERT_TRUE(e);
    ASSERT_EQ(e->getNumStringAttribs(), 3);
    EXPECT_EQ(e->getStringAttribName(0), "zeta");
    EXPECT_EQ(e->getStringAttribName(2), "mid");
    EXPECT_EQ(e->getNumericAttribName(0), "n2");

    JSON::Builder b(0);
    b.startChild(nullptr);
    b.add("zeta", "1");
    b.add("alpha", 2);
    b.startArray("list");
    b.add("", "x");
    b.startChild(nullptr);
    b.add("k", true);
    b.endChild();
    b.endArray();
    b.endChild();
    EXPECT_EQ(b.getOutput(), R"({"zeta":"1","alpha":2,"list":["x",{"k":true}]})");
}

TEST(Json, ArraysGiveStringAttributesAndChildren) {
    auto e = JSON::parse(LightweightString<char>(R"({"list":["a","b",{"type":"c"},3],"flag":true,"obj":{"x":1.5}})"));
    ASSERT_TRUE(e);
    auto list = e->getChild("list");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->getNumStringAttribs(), 2);
    EXPECT_EQ(list->getString(static_cast<unsigned short>(1)), "b");
    EXPECT_EQ(list->getStringAttribName(0), "");
    ASSERT_EQ(list->getNumChildren(), 1);
    EXPECT_EQ(list->getChild(static_cast<unsigned short>(0))->getString("type"), "c");
    EXPECT_EQ(list->getNumNumericAttribs(), 1);
    EXPECT_TRUE(e->getBool("flag", false));
    EXPECT_FALSE(e->getBool("missing", false));
    EXPECT_EQ(e->getChild("obj")->getNumber("x", 0), 1.5);
    EXPECT_EQ(e->getChild("obj")->numericAttribs[0].value, 1.5);
    EXPECT_FALSE(e->getChild("nothing"));
    EXPECT_FALSE(e->getChild(static_cast<unsigned short>(9)));
    EXPECT_EQ(e->getString(static_cast<unsigned short>(40)), "");
    EXPECT_FALSE(e->getChild(static_cast<const char*>(nullptr)));
}

TEST(Json, BadTextGivesNull) {
    for (const char* bad : {"", "{", "[1,]", "{\"a\":}", "42", "\"just a string\"", "{\"a\":\"\xff\xfe\"}"})
        EXPECT_FALSE(JSON::parse(LightweightString<char>(bad))) << bad;
    EXPECT_TRUE(JSON::parse(LightweightString<wchar_t>(L"{\"name\":\"\u00e9t\u00e9\"}")));
    EXPECT_EQ(JSON::parse(LightweightString<wchar_t>(L"{\"name\":\"\u00e9t\u00e9\"}"))->getWString("name"), L"\u00e9t\u00e9");
    EXPECT_FALSE(JSON::parseFile(L"/no/such/file.json"));
}

TEST(Json, TheTopOfAFileHasItsOwnValuesAndNoChildrenButTheWholeFileMustParse) {
    TempFolder dir;
    std::string good = dir.write("good.json", R"({"name":"A","list":[{"deep":"x"}],"n":2,"on":true,"category":"B"})");
    std::string truncated = dir.write("truncated.json", R"({"name":"A","list":[{"deep":)");
    auto top = JSON::parseFileTop(fromUTF8(good.c_str()));
    ASSERT_TRUE(top);
    EXPECT_EQ(top->getString("category"), "B") << "values after a child are read too";
    EXPECT_EQ(top->getNumber("n", 0), 2);
    EXPECT_TRUE(top->getBool("on", false));
    EXPECT_EQ(top->getNumChildren(), 0);
    EXPECT_EQ(JSON::parseFile(fromUTF8(good.c_str()))->getChild("list")->getChild(static_cast<unsigned short>(0))->getString("deep"), "x");
    EXPECT_FALSE(JSON::parseFileTop(fromUTF8(truncated.c_str())));
}

TEST(Json, BuilderWritesWideTextAsUTF8AndBadTextWithReplacements) {
    JSON::Builder b(2);
    b.startChild(nullptr);
    b.add("wide", LightweightString<wchar_t>(L"\u65e5\u672c"));
    b.add("bad", LightweightString<char>("a\xff"));
    b.add("f", 0.1f);
    b.endChild();
    auto back = JSON::parse(b.getOutput());
    ASSERT_TRUE(back);
    EXPECT_EQ(back->getWString("wide"), L"\u65e5\u672c");
    EXPECT_EQ(back->getWString("bad"), L"a\uFFFD");
    EXPECT_EQ(static_cast<float>(back->getNumber("f", 0)), 0.1f);
    // Closing more than was opened does nothing harmful.
    b.endChild();
    b.endArray();
    EXPECT_TRUE(JSON::parse(b.getOutput()));
}

TEST(TextFile, SavesWithTheChosenLineEndingsAndReadsAnyBack) {
    TempFolder dir;
    TextFile out(fromUTF8(dir.file("a.txt").c_str()), false);
    out.appendLine(LightweightString<char>("one"));
    out.appendLine(LightweightString<wchar_t>(L"t\u00e9o"));
    ASSERT_TRUE(out.save(L"", TextFile::kCRLF));
    EXPECT_EQ(dir.read("a.txt"), "one\r\nt\xC3\xA9o\r\n");
    ASSERT_TRUE(out.save(L"", TextFile::kLF));
    EXPECT_EQ(dir.read("a.txt"), "one\nt\xC3\xA9o\n");
    dir.write("mixed.txt", "a\r\nb\nc");
    TextFile in(fromUTF8(dir.file("mixed.txt").c_str()));
    ASSERT_EQ(in.size(), 3u);
    EXPECT_EQ(in.lines()[0], "a");
    EXPECT_EQ(in.lines()[2], "c");
    EXPECT_EQ(TextFile(L"/no/such/file").size(), 0u);
}

TEST(TextFile, AFailedSaveLeavesTheOldFileAndNoTemporary) {
    TempFolder dir;
    dir.write("keep.txt", "old contents\n");
    TextFile f(fromUTF8(dir.file("keep.txt").c_str()));
    f.appendLine(LightweightString<char>("more"));
    // A folder where the file should be: the rename fails, the old file stays.
    std::filesystem::create_directories(dir.file("blocked.txt"));
    std::filesystem::create_directories(dir.file("blocked.txt/inside"));
    EXPECT_FALSE(f.save(fromUTF8(dir.file("blocked.txt").c_str())));
    EXPECT_FALSE(f.save(L"/no/such/folder/x.txt"));
    EXPECT_EQ(dir.read("keep.txt"), "old contents\n");
    for (auto& entry : std::filesystem::directory_iterator(dir.str())) EXPECT_EQ(entry.path().filename().string().find(".tmp"), std::string::npos);
    EXPECT_TRUE(f.save());
    EXPECT_EQ(dir.read("keep.txt"), "old contents\nmore\n");
}
