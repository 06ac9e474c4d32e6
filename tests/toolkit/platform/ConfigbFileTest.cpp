#include "platform/ConfigbFile.h"
#include "TempFolder.h"

#include <gtest/gtest.h>

namespace {

configb sample() {
    configb c;
    c.set("gain", ConfigEntryT("double", "0.5"));
    c.set("name", ConfigEntryT("text", "Caf\xC3\xA9 \"quoted\"\nline"));
    c.set("empty", ConfigEntryT("text", ""));
    return c;
}

// Counts the owner's dirty notices, to see whether a failed read touched the store.
class Owner : public Dirtiable {
public:
    void makeDirty() override { ++dirtied; }
    int dirtied = 0;
};

} // namespace

TEST(ConfigbFile, TextKeepsEveryEntryItsTypeAndTheOrder) {
    configb read;
    read.set("stale", ConfigEntryT("int", "1"));
    ASSERT_TRUE(ConfigbFile::fromText(ConfigbFile::toText(sample()), read));
    ASSERT_EQ(read.entries(), sample().entries()) << "same keys, types, values and order; nothing left over";

    configb none;
    ASSERT_TRUE(ConfigbFile::fromText(ConfigbFile::toText(none), read));
    EXPECT_TRUE(read.empty()) << "an empty store reads back empty";
    EXPECT_TRUE(ConfigbFile::isStore(ConfigbFile::toText(sample())));
    EXPECT_TRUE(ConfigbFile::isStore(ConfigbFile::toText(none)));
}

TEST(ConfigbFile, TextThatIsNotAStoreLeavesItUntouched) {
    const LightweightString<char> good = ConfigbFile::toText(sample());
    const std::vector<LightweightString<char>> bad = {"",
                                                      "   ",
                                                      "garbage",
                                                      "[1, 2]",
                                                      "\"text\"",
                                                      "42",
                                                      "null",
                                                      "{\"gain\": {\"type\": \"double\", \"value\": \"0.5\"",
                                                      good.substr(0, good.size() / 2),
                                                      good.substr(0, good.size() - 3),
                                                      LightweightString<char>("{\"a\":\xFF}"),
                                                      LightweightString<char>(std::string("{\"a\"\0:1}", 8))};
    for (const auto& text : bad) {
        Owner owner;
        configb store(&owner);
        store.set("kept", ConfigEntryT("int", "7"));
        owner.dirtied = 0;
        EXPECT_FALSE(ConfigbFile::fromText(text, store)) << text;
        EXPECT_FALSE(ConfigbFile::isStore(text)) << text;
        ASSERT_EQ(store.size(), 1u) << text;
        EXPECT_EQ(store.get("kept"), LightweightString<char>("7"));
        EXPECT_EQ(owner.dirtied, 0) << text;
    }
}

TEST(ConfigbFile, EntriesOfTheWrongShapeAreDroppedAndTheRestKept) {
    configb read;
    const LightweightString<char> mixed = "{\"a\": {\"type\": \"int\", \"value\": \"3\"}, \"b\": 5, \"c\": {\"type\": \"int\"},"
                                          " \"d\": {\"type\": 1, \"value\": \"x\"}, \"e\": {\"type\": \"text\", \"value\": 4},"
                                          " \"f\": [\"int\", \"1\"], \"g\": {\"value\": \"ok\", \"type\": \"text\", \"more\": 1}}";
    ASSERT_TRUE(ConfigbFile::fromText(mixed, read));
    EXPECT_FALSE(ConfigbFile::isStore(mixed)) << "readable, but more than a store";
    EXPECT_FALSE(ConfigbFile::isStore("{\"params\": [{\"type\": \"bool\", \"name\": \"on\"}]}")) << "a panel description";
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read.entries()[0].first, LightweightString<char>("a"));
    EXPECT_EQ(read.entries()[0].second, ConfigEntryT("int", "3"));
    EXPECT_EQ(read.entries()[1].second, ConfigEntryT("text", "ok"));
}

TEST(ConfigbFile, SavedFilesLoadBackAndBadOnesChangeNothing) {
    TempFolder dir;
    const std::string file = dir.file("panel.state");
    const LightweightString<wchar_t> path(std::wstring(file.begin(), file.end()));
    ASSERT_TRUE(ConfigbFile::save(sample(), path));
    configb loaded;
    ASSERT_TRUE(ConfigbFile::load(path, loaded));
    EXPECT_EQ(loaded.entries(), sample().entries());

    configb changed = sample();
    changed.set("gain", ConfigEntryT("double", "0.75"));
    ASSERT_TRUE(ConfigbFile::save(changed, path)) << "a save replaces the old file";
    ASSERT_TRUE(ConfigbFile::load(path, loaded));
    EXPECT_EQ(loaded.get("gain"), LightweightString<char>("0.75"));
    for (const auto& entry : std::filesystem::directory_iterator(dir.str()))
        EXPECT_EQ(entry.path().filename().string(), "panel.state") << "no temporary file is left behind";

    const std::string text = dir.read("panel.state");
    dir.write("torn.state", text.substr(0, text.size() / 2));
    const std::string torn = dir.file("torn.state");
    EXPECT_FALSE(ConfigbFile::load(LightweightString<wchar_t>(std::wstring(torn.begin(), torn.end())), loaded));
    EXPECT_FALSE(ConfigbFile::load(L"/no/such/folder/x.state", loaded));
    EXPECT_FALSE(ConfigbFile::load(L"", loaded));
    EXPECT_EQ(loaded.get("gain"), LightweightString<char>("0.75")) << "failed loads leave what was loaded before";

    EXPECT_FALSE(ConfigbFile::save(sample(), L"/no/such/folder/x.state"));
    EXPECT_FALSE(ConfigbFile::save(sample(), L""));
}
