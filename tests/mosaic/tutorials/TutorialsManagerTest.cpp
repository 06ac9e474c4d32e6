#include "tutorials/TutorialsManager.h"

#include "core/FunctionCallback.h"
#include "core/Utf8.h"
#include "platform/OS.h"
#include "platform/Paths.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class Catalogue : public ::testing::Test {
protected:
    void SetUp() override {
        static int n = 0;
        dir_ = fs::temp_directory_path() / ("mosaic-catalogue-" + std::to_string(getpid()) + "-" + std::to_string(++n));
        fs::create_directories(dir_);
        for (auto& entry : fs::directory_iterator(MOSAIC_TEST_DATA "/tutorials")) fs::copy(entry.path(), dir_ / entry.path().filename());
    }
    void TearDown() override { fs::remove_all(dir_); }
    LightweightString<wchar_t> folder() const { return fromUTF8(dir_.string().c_str()); }

    fs::path dir_;
};

struct Heard {
    std::vector<std::pair<int, Zn::Ptr<Tutorial>>> notices;
};

Zn::Ptr<Zn::Guard> listen(TutorialsManager& m, Heard& heard, int code) {
    auto cb = Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&heard, code](const NotifyMsg& msg) {
            heard.notices.emplace_back(code, msg.dataAs<Tutorial>());
            return 0;
        })));
    return m.addListener(cb, code);
}

} // namespace

TEST_F(Catalogue, EveryTutorialFileIsListedAndBrokenOnesHaveEmptyNames) {
    TutorialsManager m(folder());
    ASSERT_EQ(m.tutorials().size(), 6u) << "six .ZnTutorial files; notes.json is not one";
    EXPECT_EQ(m.tutorials()[0]->getID(), L"T00-00-basics-split.ZnTutorial") << "in the order of the listing";
    auto basics = m.getCategoryContents(L"Editing basics");
    ASSERT_EQ(basics.size(), 2u);
    EXPECT_EQ(basics[1]->getName(), L"Trimming a clip");
    EXPECT_EQ(basics[1]->getNumPhases(), 3u);
    auto broken = m.getTutorial(L"T00-00-broken.ZnTutorial");
    ASSERT_TRUE(broken);
    EXPECT_TRUE(broken->getName().empty());
    EXPECT_EQ(m.getTutorial(L"T00-00-wrong-shape.ZnTutorial")->getNumPhases(), 0u);
    EXPECT_EQ(m.categories(), (std::set<LightweightString<wchar_t>>{L"", L"Colour", L"Editing basics"}));
    EXPECT_FALSE(m.getTutorial(L"Trimming a clip")) << "a name is not an id";
    EXPECT_TRUE(m.getCategoryContents(L"Audio").empty());
    TutorialsManager none(joinPaths(folder(), L"missing"));
    EXPECT_TRUE(none.tutorials().empty());
}

TEST_F(Catalogue, ListenersHearCreateSaveAndDeleteWithTheTutorial) {
    TutorialsManager m(folder());
    Heard heard;
    auto g10 = listen(m, heard, TutorialsManager::kCreated);
    auto g11 = listen(m, heard, TutorialsManager::kSaved);
    auto g12 = listen(m, heard, TutorialsManager::kDeleted);

    auto a = m.createTutorial(L"Same name", L"Audio");
    auto b = m.createTutorial(L"Same name", L"Audio");
    EXPECT_NE(a->getID(), b->getID()) << "files are named by generated identifiers";
    EXPECT_TRUE(a->getID().endsWith(L".ZnTutorial"));
    EXPECT_TRUE(fileExists(a->getPath())) << "saved at once";
    EXPECT_EQ(m.categories().count(L"Audio"), 1u);
    a->setName(L"Renamed");
    m.save(a);
    EXPECT_EQ(Tutorial(a->getPath()).getName(), L"Renamed");
    m.deleteTutorial(a);
    EXPECT_FALSE(fileExists(a->getPath()));
    ASSERT_EQ(heard.notices.size(), 4u);
    EXPECT_EQ(heard.notices[0], std::make_pair(10, b.get() == heard.notices[0].second.get() ? b : a));
    EXPECT_EQ(heard.notices[2].first, 11);
    EXPECT_EQ(heard.notices[2].second, a);
    EXPECT_EQ(heard.notices[3].first, 12);
    EXPECT_EQ(heard.notices[3].second, a);

    m.deleteTutorial(b);
    EXPECT_EQ(m.categories().count(L"Audio"), 0u) << "the last of a category takes it";
    g12->release();
    auto c = m.createTutorial(L"x", L"y");
    m.deleteTutorial(c);
    EXPECT_EQ(heard.notices.back().first, 10) << "a released listener hears no more";
    m.save(Zn::Ptr<Tutorial>());
    m.deleteTutorial(Zn::Ptr<Tutorial>());
}

TEST_F(Catalogue, AListenerOfOneCodeHearsNothingWhenTheCatalogueGoes) {
    std::vector<LightweightString<wchar_t>> names;
    auto named = Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&names](const NotifyMsg& msg) {
            names.push_back(msg.dataAs<Tutorial>()->getName());
            return 0;
        })));
    Zn::Ptr<Zn::Guard> guard;
    {
        TutorialsManager m(folder());
        guard = m.addListener(named, TutorialsManager::kCreated);
        m.createTutorial(L"New", L"Audio");
    }
    EXPECT_EQ(names, std::vector<LightweightString<wchar_t>>{L"New"});
}

TEST_F(Catalogue, ClonesAreOutsideTheCatalogueButShareTheFile) {
    TutorialsManager m(folder());
    Heard heard;
    auto g = listen(m, heard, TutorialsManager::kDeleted);
    auto original = m.getTutorial(L"T00-00-basics-trim.ZnTutorial");
    auto copy = m.clone(original);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->getID(), original->getID());
    EXPECT_NE(copy->getPhase(0), original->getPhase(0));
    m.deleteTutorial(copy);
    EXPECT_TRUE(heard.notices.empty()) << "a clone is not in the catalogue";
    EXPECT_TRUE(fileExists(original->getPath()));
    EXPECT_FALSE(m.clone(Zn::Ptr<Tutorial>()));
    copy->setName(L"Overwritten");
    m.save(copy);
    EXPECT_EQ(Tutorial(original->getPath()).getName(), L"Overwritten");
}

TEST_F(Catalogue, AListedTutorialReadsItsPhasesWhenAskedAndKeepsThemWhenSavedElsewhere) {
    TutorialsManager m(folder());
    auto trim = m.getTutorial(L"T00-00-basics-trim.ZnTutorial");
    ASSERT_TRUE(trim);
    LightweightString<wchar_t> elsewhere = joinPaths(folder(), L"copy.ZnTutorial");
    trim->save(elsewhere);
    Tutorial copy(elsewhere);
    EXPECT_EQ(copy.getName(), L"Trimming a clip");
    EXPECT_EQ(copy.getNumPhases(), 3u);
    EXPECT_EQ(copy.getComponentPosition("Viewer"), (XY<double>(600, 400)));
}

TEST(TutorialsManagerInstance, ListsTheTutorialsFolderOfTheDataFolder) {
    // The data folder is the test program's own (see TestKit::TestHome).
    fs::path tutorials = fs::path(toUTF8(OS()->getApplicationDataFolder()).str()) / "Tutorials";
    EXPECT_EQ(TutorialsManager::getLocation(), fromUTF8(tutorials.string().c_str()));
    fs::create_directories(tutorials);
    fs::copy(MOSAIC_TEST_DATA "/tutorials/T00-00-basics-trim.ZnTutorial", tutorials);
    ASSERT_EQ(TutorialsManager::instance().tutorials().size(), 1u);
    EXPECT_EQ(TutorialsManager::instance().tutorials()[0]->getID(), L"T00-00-basics-trim.ZnTutorial");
}
