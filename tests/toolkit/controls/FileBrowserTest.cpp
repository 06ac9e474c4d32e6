#include "../platform/TempFolder.h"
#include "ControlsTestSupport.h"

#include "controls/DropDownMenuButton.h"
#include "controls/FileBrowser.h"
#include "controls/PushButton.h"
#include "controls/TextBox.h"
#include "core/Utf8.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"

#include <dirent.h>
#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;
using WStr = LightweightString<wchar_t>;
using TestKit::argb;

namespace {

// A panel that owns browsers and keeps every answer sent to it, with what the
// sending browser itself said when the message arrived.
class Owner : public StandardPanel {
public:
    Owner() : StandardPanel(InitArgs(200, 100)) { TestKit::realize(this, {1500, 900}); }
    int handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) override {
        messages.push_back(message.str());
        auto answer = Zn::dynamicCast<FileBrowserBase::Answer>(data);
        paths.push_back(answer ? std::vector<WStr>(answer->get().begin(), answer->get().end()) : std::vector<WStr>{});
        auto* browser = dynamic_cast<FileBrowserBase*>(sender);
        senderDirs.push_back(browser ? browser->getSelectedDirW() : WStr(L"(gone)"));
        return 1;
    }
    std::vector<std::string> messages;
    std::vector<std::vector<WStr>> paths;
    std::vector<WStr> senderDirs;
};

// Every call of a browser's callback.
struct Answers {
    std::vector<std::string> names;
    std::vector<std::vector<WStr>> lists;
};

Zn::Ptr<iCallbackBase<int, NotifyMsg>> recorder(Answers& a, std::function<void()> then = {}) {
    return Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&a, then](const NotifyMsg& m) {
            a.names.push_back(m.name().str());
            auto answer = m.dataAs<FileBrowserBase::Answer>();
            a.lists.push_back(answer ? std::vector<WStr>(answer->get().begin(), answer->get().end()) : std::vector<WStr>{{L"(no payload)"}});
            if (then) then();
            return 1;
        })));
}

// A browser with only the name column and no frame, made as a child of a panel.
class NameOnlyBrowser : public FileBrowserBase {
public:
    explicit NameOnlyBrowser(const InitArgs& a) : FileBrowserBase(a) { init(a, 0); }
};

class FileBrowserTest : public ControlsTest {
protected:
    void SetUp() override {
        ControlsTest::SetUp();
        owner = new Owner();
        tmp.write("apple.png", "0123456789");
        tmp.write("Zed.PNG", std::string(3000, 'z'));
        tmp.write("notes.txt", "n");
        tmp.write("banana.JPG", "");
        tmp.write(".hidden", "h");
        fs::create_directories(tmp.file("Beta"));
        fs::create_directories(tmp.file("alpha/deeper"));
        tmp.write("alpha/inner.txt", "i");
    }
    FileBrowser* open(FileBrowserBase::eSelectionMode mode = FileBrowserBase::kSingleFile, std::vector<WStr> filters = {},
                      const std::string& start = "") {
        FileBrowserBase::InitArgs a(UIString(L"Pick"), mode);
        a.filters = std::move(filters);
        a.startDirectory = fromUTF8(start.empty() ? tmp.str() : start);
        a.callback = WidgetCallback(recorder(answers));
        a.owner = owner;
        FileBrowser* b = FileBrowser::make(a, {30, 40});
        TestKit::pump();
        return b;
    }
    static std::vector<std::wstring> names(const FileBrowserBase* b) {
        std::vector<std::wstring> n;
        for (const FBItem& i : b->listing().shown()) n.push_back(i.name.str());
        return n;
    }
    static int rowOf(const FileBrowserBase* b, const wchar_t* name) {
        const auto n = names(b);
        auto it = std::find(n.begin(), n.end(), name);
        return it == n.end() ? -1 : static_cast<int>(it - n.begin());
    }
    static XY<int> rowPoint(FileBrowserBase* b, int row) {
        BoxInt box = b->table()->getCellBox({0, row});
        return TestKit::screenPointOf(b->table(), {box.x1 + 4, (box.y1 + box.y2) / 2});
    }
    static void clickRow(FileBrowserBase* b, int row, unsigned modifiers = 0) { TestKit::click(rowPoint(b, row), Event::kLeft, modifiers); }
    static void doubleClickRow(FileBrowserBase* b, int row) {
        TestKit::click(rowPoint(b, row));
        TestKit::click(rowPoint(b, row));
    }
    // Moves the mouse's last click away, so that the next click on a row is a single one.
    void clickAside() { TestKit::click(TestKit::centreOf(owner)); }
    static void typePath(FileBrowserBase* b, const std::string& text) {
        b->pathBox()->setString(fromUTF8(text));
        set_kbd_focus(b->pathBox());
        TestKit::pressKey(Keys::Return);
    }
    WStr path(const std::string& name) const { return fromUTF8(tmp.file(name)); }
    static bool alive(const Glob* g, const IdStamp& s) { return EventHandler::valid(const_cast<Glob*>(g), s); }

    TempFolder tmp;
    Owner* owner = nullptr;
    Answers answers;
};

} // namespace

// ---- the pieces -------------------------------------------------------------

TEST(FileFilterTest, ExtensionsAndPatternsMatchWithoutCaseAndBadEntriesAreDropped) {
    FileFilter f({L"png", L".JPG", L"take_??.wav", L"", L"a/b", L" tif ; exr "});
    EXPECT_EQ(f.describe(), WStr(L"*.png; *.jpg; take_??.wav; *.tif; *.exr"));
    EXPECT_TRUE(f.matches(L"Shot.PNG"));
    EXPECT_TRUE(f.matches(L"still.jpg"));
    EXPECT_TRUE(f.matches(L"TAKE_07.wav"));
    EXPECT_TRUE(f.matches(L"plate.exr"));
    EXPECT_FALSE(f.matches(L"take_7.wav"));
    EXPECT_FALSE(f.matches(L"png"));
    EXPECT_FALSE(f.matches(L"notes.png.txt"));

    EXPECT_TRUE(FileFilter().acceptsAll());
    EXPECT_TRUE(FileFilter({L"", L"/"}).acceptsAll()) << "nothing usable is no filter";
    EXPECT_TRUE(FileFilter({L"png", L"*.*"}).acceptsAll());
    EXPECT_TRUE(FileFilter({L"*.*"}).matches(L"README"));
}

TEST(FBItemTest, SizesAndDatesReadAsPeopleWriteThem) {
    FBItem f;
    f.size = 812;
    EXPECT_EQ(f.sizeText(), WStr(L"812 B"));
    f.size = 14540;
    EXPECT_EQ(f.sizeText(), WStr(L"14.2 KB"));
    f.size = 3ull * 1024 * 1024 * 1024 + 1024ull * 1024 * 100;
    EXPECT_EQ(f.sizeText(), WStr(L"3.1 GB"));
    f.isFolder = true;
    EXPECT_TRUE(f.sizeText().empty());
    EXPECT_TRUE(f.dateText().empty()) << "no date known";
    f.modified = 1700000000;
    EXPECT_EQ(f.dateText().size(), 16u);

    f.nativePath = "/tmp/a\xff";
    f.path = fromUTF8(f.nativePath);
    EXPECT_FALSE(f.hasExactPath());
    f.nativePath = "/tmp/caf\xc3\xa9";
    f.path = fromUTF8(f.nativePath);
    EXPECT_TRUE(f.hasExactPath());
}

// ---- listing ----------------------------------------------------------------

TEST(FolderListingTest, AFolderThatCannotBeReadListsNothingAndHiddenNamesAreShownOnlyWhenAsked) {
    TempFolder tmp;
    const std::string file = tmp.write("take.wav", "w");
    tmp.write(".cache", "c");
    fs::create_directories(tmp.file("Renders"));
    FolderListing listing;
    EXPECT_FALSE(listing.read(file.c_str())) << "a file is no folder";
    EXPECT_FALSE(listing.isReadable());
    EXPECT_EQ(listing.numShown(), 0);
    EXPECT_FALSE(listing.read(""));
    EXPECT_FALSE(listing.read(tmp.file("missing").c_str()));
    EXPECT_EQ(listing.item(0), nullptr);
    EXPECT_EQ(listing.indexOf("anything"), -1);

    ASSERT_TRUE(listing.read(tmp.str().c_str(), true));
    EXPECT_EQ(listing.numShown(), 3);
    listing.setFilter(FileFilter({L"wav"}), true);
    ASSERT_EQ(listing.numShown(), 1) << "folders only";
    EXPECT_TRUE(listing.item(0)->isFolder);
    listing.setFilter(FileFilter({L"wav"}));
    EXPECT_EQ(listing.numShown(), 2);
    EXPECT_EQ(listing.numEntries(), 3u);
    EXPECT_EQ(listing.indexOf(file.c_str()), 1);
}

TEST_F(FileBrowserTest, FoldersComeFirstThenFilesByNameWithoutCaseAndHiddenOnesAreLeftOut) {
    FileBrowser* b = open();
    EXPECT_EQ(b->getCurrentFolder(), fromUTF8(tmp.str()));
    EXPECT_EQ(b->pathBox()->getString(), fromUTF8(tmp.str()));
    EXPECT_EQ(names(b), (std::vector<std::wstring>{L"alpha", L"Beta", L"apple.png", L"banana.JPG", L"notes.txt", L"Zed.PNG"}));
    EXPECT_TRUE(b->listing().shown()[0].isFolder);
    EXPECT_EQ(b->listing().shown()[2].path, path("apple.png"));

    ASSERT_EQ(b->table()->numColumns(), 3);
    EXPECT_EQ(b->table()->getColumn(0)->getSortKey(), LightweightString<char>("name"));
    EXPECT_TRUE(b->table()->getColumn(0)->isResizeable());
    EXPECT_EQ(b->table()->getColumn(1)->getSortKey(), LightweightString<char>("size"));
    EXPECT_EQ(b->table()->getColumn(2)->getSortKey(), LightweightString<char>("date"));
    EXPECT_EQ(b->getFieldText({0, 2}), WStr(L"apple.png"));
    EXPECT_EQ(b->getFieldText({1, 2}), WStr(L"10 B"));
    EXPECT_EQ(b->getFieldText({1, 0}), WStr()) << "a folder has no size";
    EXPECT_FALSE(b->getFieldText({2, 2}).empty());
    EXPECT_TRUE(b->getFieldText({0, 99}).empty()) << "a row past the end is empty";
    EXPECT_EQ(b->getTextStyle({0, 0}), iTableAdaptor::kStyleBold) << "folders stand out";

    // The size header sorts by size, folders still first; again reverses.
    b->handleHeaderClick(1);
    EXPECT_EQ(names(b), (std::vector<std::wstring>{L"alpha", L"Beta", L"banana.JPG", L"notes.txt", L"apple.png", L"Zed.PNG"}));
    b->handleHeaderClick(1);
    EXPECT_EQ(names(b)[2], L"Zed.PNG");
    b->handleHeaderClick(0);
    EXPECT_EQ(names(b)[2], L"apple.png");
}

TEST_F(FileBrowserTest, TheFilterHidesOtherFilesButNeverFoldersAndTheDropDownChangesIt) {
    FileBrowser* b = open(FileBrowserBase::kSingleFile, {L"png", L"jpg"});
    EXPECT_EQ(names(b), (std::vector<std::wstring>{L"alpha", L"Beta", L"apple.png", L"banana.JPG", L"Zed.PNG"}));
    ASSERT_NE(b->filterButton(), nullptr);
    ASSERT_EQ(b->numFilterChoices(), 4);
    EXPECT_EQ(b->filterButton()->getSelectedItemNameW(), WStr(L"*.png; *.jpg"));

    // Down on the focused drop-down picks the next choice: the first filter alone.
    set_kbd_focus(b->filterButton());
    TestKit::pressKey(Keys::Down);
    EXPECT_EQ(b->getFilterChoice(), 1);
    EXPECT_EQ(names(b), (std::vector<std::wstring>{L"alpha", L"Beta", L"apple.png", L"Zed.PNG"}));

    b->setFilterChoice(3);
    EXPECT_EQ(names(b).size(), 6u) << "all files";
    EXPECT_EQ(b->filterButton()->getSelectedItem(), 3);
    b->setFilterChoice(9);
    EXPECT_EQ(b->getFilterChoice(), 3) << "a choice that does not exist changes nothing";

    FileBrowser* plain = open();
    EXPECT_EQ(plain->filterButton(), nullptr) << "no filters, no drop-down";
    EXPECT_EQ(plain->numFilterChoices(), 0);
}

TEST_F(FileBrowserTest, AThousandsOfFilesFolderListsSortedAndScrollsToItsEnd) {
    const int n = 3000;
    for (int i = 0; i < n; ++i) tmp.write("Beta/clip_" + std::to_string(100000 + n - i) + ".mov", "");
    FileBrowser* b = open(FileBrowserBase::kSingleFile, {}, tmp.file("Beta"));
    ASSERT_EQ(b->listing().numShown(), n);
    EXPECT_EQ(names(b).front(), L"clip_100001.mov");
    EXPECT_EQ(names(b).back(), L"clip_103000.mov");
    set_kbd_focus(b->table());
    TestKit::pressKey(Keys::End);
    EXPECT_EQ(b->table()->getLastVisibleRow(), n - 1);
    EXPECT_EQ(b->getSelectedRows(), std::vector<int>{n - 1}) << "the keys select as they move";
}

// ---- navigation ----------------------------------------------------------------

TEST_F(FileBrowserTest, DoubleClickEntersAFolderAndUpAndBackspaceComeBack) {
    FileBrowser* b = open();
    doubleClickRow(b, rowOf(b, L"alpha"));
    EXPECT_EQ(b->getCurrentFolder(), path("alpha"));
    EXPECT_EQ(names(b), (std::vector<std::wstring>{L"deeper", L"inner.txt"}));
    EXPECT_EQ(b->pathBox()->getString(), path("alpha"));

    TestKit::click(TestKit::centreOf(b->upButton()));
    EXPECT_EQ(b->getCurrentFolder(), fromUTF8(tmp.str()));
    EXPECT_EQ(b->table()->getCurPos().y, rowOf(b, L"alpha")) << "the folder left is current again";
    EXPECT_TRUE(b->getSelectedRows().empty());

    // Return on the current folder row enters it; Backspace goes up.
    set_kbd_focus(b->table());
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(b->getCurrentFolder(), path("alpha"));
    TestKit::pressKey(Keys::Backspace);
    EXPECT_EQ(b->getCurrentFolder(), fromUTF8(tmp.str()));

    ASSERT_TRUE(b->setCurrentFolder(path("Beta")));
    ASSERT_TRUE(b->goUp());
    EXPECT_EQ(b->table()->getCurPos().y, rowOf(b, L"Beta"));

    ASSERT_TRUE(b->setCurrentFolder(L"/"));
    EXPECT_FALSE(b->goUp()) << "nothing above the root";
    EXPECT_EQ(b->getCurrentFolder(), WStr(L"/"));
}

TEST_F(FileBrowserTest, ATypedPathGoesThereAndOneThatLeadsNowhereLeavesTheBrowserWhereItWas) {
    FileBrowser* b = open();
    typePath(b, "alpha/deeper/..");
    EXPECT_EQ(b->getCurrentFolder(), path("alpha")) << "relative to the folder shown, dots resolved";

    typePath(b, tmp.file("Beta") + "/");
    EXPECT_EQ(b->getCurrentFolder(), path("Beta"));

    typePath(b, tmp.file("apple.png"));
    EXPECT_EQ(b->getCurrentFolder(), fromUTF8(tmp.str())) << "a file opens its folder";
    EXPECT_EQ(b->getSelectedRows(), std::vector<int>{rowOf(b, L"apple.png")}) << "with the file selected";

    typePath(b, tmp.file("no such folder"));
    EXPECT_EQ(b->getCurrentFolder(), fromUTF8(tmp.str()));
    EXPECT_EQ(b->pathBox()->getString(), fromUTF8(tmp.str())) << "the box shows the folder again";
    EXPECT_FALSE(b->goToTyped(L"   "));
    EXPECT_FALSE(b->setCurrentFolder(L""));

    tmp.setEnv("HOME", tmp.file("alpha"));
    typePath(b, "~/deeper");
    EXPECT_EQ(b->getCurrentFolder(), path("alpha/deeper"));
}

TEST_F(FileBrowserTest, AMissingStartFolderFallsBackToHomeAndThenToTheRoot) {
    tmp.setEnv("HOME", tmp.file("Beta"));
    FileBrowser* b = open(FileBrowserBase::kSingleFile, {}, tmp.file("gone/away"));
    EXPECT_EQ(b->getCurrentFolder(), path("Beta"));

    tmp.setEnv("HOME", tmp.file("also gone"));
    b = open(FileBrowserBase::kSingleFile, {}, tmp.file("gone"));
    EXPECT_EQ(b->getCurrentFolder(), WStr(L"/"));

    b = open(FileBrowserBase::kSingleFile, {}, tmp.file("alpha/inner.txt"));
    EXPECT_EQ(b->getCurrentFolder(), path("alpha")) << "a file to start from opens its folder";
    EXPECT_EQ(b->getSelectedFiles().vec(), std::vector<WStr>{path("alpha/inner.txt")});
}

TEST_F(FileBrowserTest, AnUnreadableOrVanishedFolderIsNotEnteredAndTheListCatchesUp) {
    FileBrowser* b = open();
    // A folder removed after it was listed: entering it fails and it leaves the list.
    fs::remove_all(tmp.file("alpha"));
    doubleClickRow(b, rowOf(b, L"alpha"));
    EXPECT_EQ(b->getCurrentFolder(), fromUTF8(tmp.str()));
    EXPECT_EQ(rowOf(b, L"alpha"), -1);

    // Permissions block reading unless the tests run with the power to ignore them
    // (as root): then the folder is simply entered. Either way nothing breaks.
    const std::string locked = tmp.file("Beta");
    tmp.write("Beta/secret.txt", "s");
    fs::permissions(locked, fs::perms::none);
    DIR* probe = opendir(locked.c_str());
    const bool blocked = probe == nullptr;
    if (probe) closedir(probe);
    b->refreshListing();
    EXPECT_EQ(b->setCurrentFolder(fromUTF8(locked)), !blocked);
    if (blocked) {
        EXPECT_EQ(b->getCurrentFolder(), fromUTF8(tmp.str()));
        FileBrowser* fresh = open(FileBrowserBase::kSingleFile, {}, locked);
        EXPECT_NE(fresh->getCurrentFolder(), fromUTF8(locked)) << "an unreadable start folder falls back";
    } else {
        EXPECT_EQ(names(b), std::vector<std::wstring>{L"secret.txt"});
    }
    fs::permissions(locked, fs::perms::owner_all);
}

TEST_F(FileBrowserTest, NamesThatAreNotUtf8AreShownAndBrowsedButNeverGoOutInAnAnswer) {
    const std::string badFile = tmp.str() + "/bad\xff.txt", badDir = tmp.str() + "/dir\xfe";
    std::ofstream(badFile) << "x";
    fs::create_directories(badDir);
    std::ofstream(badDir + "/inside.txt") << "y";
    FileBrowser* b = open();
    const int fileRow = rowOf(b, L"bad\xfffd.txt"), dirRow = rowOf(b, L"dir\xfffd");
    ASSERT_GE(fileRow, 0);
    ASSERT_GE(dirRow, 0);

    b->selectRow(fileRow);
    EXPECT_TRUE(b->getSelectedFiles().empty());
    EXPECT_FALSE(b->accept()) << "its wide path would name another file";

    b->activateRow(dirRow);
    EXPECT_EQ(b->listing().folder(), LightweightString<char>(badDir)) << "the real bytes are kept for browsing";
    EXPECT_EQ(names(b), std::vector<std::wstring>{L"inside.txt"});
    b->selectRow(0);
    EXPECT_FALSE(b->accept());
    EXPECT_TRUE(answers.lists.empty());
}

// ---- answers -------------------------------------------------------------------

TEST_F(FileBrowserTest, DoubleClickOnAFileChoosesItTellsCallbackAndOwnerAndCloses) {
    FileBrowser* b = open();
    const IdStamp stamp = b->stamp();
    doubleClickRow(b, rowOf(b, L"notes.txt"));
    EXPECT_FALSE(alive(b, stamp)) << "it goes once its answer is delivered";
    ASSERT_EQ(answers.lists.size(), 1u);
    EXPECT_EQ(answers.names.front(), FileBrowserBase::fileBrowserSelectedMsg);
    EXPECT_EQ(answers.lists.front(), std::vector<WStr>{path("notes.txt")});
    ASSERT_EQ(owner->messages, std::vector<std::string>{FileBrowserBase::fileBrowserSelectedMsg});
    EXPECT_EQ(owner->paths.front(), std::vector<WStr>{path("notes.txt")});
    EXPECT_EQ(owner->senderDirs.front(), fromUTF8(tmp.str())) << "the owner can still ask the browser";
}

TEST_F(FileBrowserTest, OkSendsTheSelectionAndDoesNothingWithoutOne) {
    FileBrowser* b = open();
    const IdStamp stamp = b->stamp();
    TestKit::click(TestKit::centreOf(b->okButton()));
    EXPECT_TRUE(alive(b, stamp));
    EXPECT_TRUE(answers.lists.empty()) << "nothing selected, nothing sent";

    // OK on a folder opens it.
    clickRow(b, rowOf(b, L"alpha"));
    TestKit::click(TestKit::centreOf(b->okButton()));
    EXPECT_EQ(b->getCurrentFolder(), path("alpha"));
    EXPECT_TRUE(answers.lists.empty());

    clickRow(b, rowOf(b, L"inner.txt"));
    EXPECT_EQ(b->getSelectedFiles().vec(), std::vector<WStr>{path("alpha/inner.txt")});
    TestKit::click(TestKit::centreOf(b->okButton()));
    EXPECT_FALSE(alive(b, stamp));
    EXPECT_EQ(answers.lists, std::vector<std::vector<WStr>>{{path("alpha/inner.txt")}});
}

TEST_F(FileBrowserTest, SeveralFilesAreSelectedWithControlAndShift) {
    FileBrowser* b = open(FileBrowserBase::kMultipleFiles);
    const int apple = rowOf(b, L"apple.png"), notes = rowOf(b, L"notes.txt"), zed = rowOf(b, L"Zed.PNG");
    clickRow(b, apple);
    clickRow(b, zed, Modifiers::Control);
    EXPECT_EQ(b->getSelectedRows(), (std::vector<int>{apple, zed}));
    clickRow(b, notes, Modifiers::Shift);
    EXPECT_EQ(b->getSelectedRows(), (std::vector<int>{notes, zed})) << "a range from the last plain or control click";
    clickRow(b, apple, Modifiers::Control);
    EXPECT_EQ(b->getSelectedRows(), (std::vector<int>{apple, notes, zed}));

    // A folder in the selection is not part of the answer.
    clickRow(b, 0, Modifiers::Control);
    EXPECT_EQ(b->getSelectedRows().size(), 4u);
    TestKit::click(TestKit::centreOf(b->okButton()));
    ASSERT_EQ(answers.lists.size(), 1u);
    EXPECT_EQ(answers.lists.front(), (std::vector<WStr>{path("apple.png"), path("notes.txt"), path("Zed.PNG")}));

    // One file only in the single mode: Control replaces.
    FileBrowser* single = open();
    clickAside();
    clickRow(single, apple);
    clickRow(single, zed, Modifiers::Control);
    EXPECT_EQ(single->getSelectedRows(), std::vector<int>{zed});
}

TEST_F(FileBrowserTest, FolderModeChoosesTheFolderShownOrTheSubfolderSelected) {
    FileBrowser* b = open(FileBrowserBase::kFolder, {L"png"});
    EXPECT_EQ(names(b), (std::vector<std::wstring>{L"alpha", L"Beta"})) << "only folders";
    ASSERT_EQ(b->table()->numColumns(), 2) << "no size column for folders";
    EXPECT_EQ(b->table()->getColumn(1)->getSortKey(), LightweightString<char>("date"));
    EXPECT_EQ(b->getSelectedDirW(), fromUTF8(tmp.str()));
    EXPECT_EQ(b->getTitle().getString(), WStr(L"Pick"));

    clickRow(b, rowOf(b, L"Beta"));
    EXPECT_EQ(b->getSelectedDirW(), path("Beta"));
    doubleClickRow(b, rowOf(b, L"alpha"));
    EXPECT_EQ(b->getCurrentFolder(), path("alpha"));
    EXPECT_EQ(b->getSelectedDirW(), path("alpha")) << "entering clears the selection";

    const IdStamp stamp = b->stamp();
    set_kbd_focus(b->okButton());
    TestKit::pressKey(Keys::Return);
    EXPECT_FALSE(alive(b, stamp));
    EXPECT_EQ(answers.lists, std::vector<std::vector<WStr>>{{path("alpha")}});
    EXPECT_EQ(owner->senderDirs, std::vector<WStr>{path("alpha")});
}

TEST_F(FileBrowserTest, CancelEscapeAndTheCloseBoxAnswerWithAnEmptyListAndClose) {
    FileBrowser* b = open(FileBrowserBase::kFolder);
    IdStamp stamp = b->stamp();
    TestKit::click(TestKit::centreOf(b->cancelButton()));
    EXPECT_FALSE(alive(b, stamp));
    EXPECT_EQ(answers.lists, std::vector<std::vector<WStr>>{{}});
    EXPECT_TRUE(owner->messages.empty()) << "no fileBrowserSelectedMsg for a cancel";

    b = open();
    stamp = b->stamp();
    clickRow(b, rowOf(b, L"notes.txt"));
    TestKit::pressKey(Keys::Escape);
    EXPECT_FALSE(alive(b, stamp)) << "deleted once the key has been handled";
    EXPECT_EQ(answers.lists.size(), 2u);
    EXPECT_TRUE(answers.lists.back().empty());

    b = open(FileBrowserBase::kFolder);
    stamp = b->stamp();
    EXPECT_FALSE(b->getSelectedDirW().empty());
    b->handlePoot();
    EXPECT_TRUE(b->wasCancelled());
    EXPECT_TRUE(b->getSelectedFiles().empty());
    EXPECT_TRUE(b->getSelectedDirW().empty()) << "a save into the folder would do nothing";
    b->cancel();
    EXPECT_FALSE(b->accept()) << "one answer only";
    TestKit::pump();
    EXPECT_FALSE(alive(b, stamp));
    EXPECT_EQ(answers.lists.size(), 3u);
}

TEST_F(FileBrowserTest, ACallbackMayDeleteTheBrowserAndAMessageOnlyCallbackGoesToTheOwner) {
    FileBrowser* b = nullptr;
    IdStamp stamp;
    FileBrowserBase::InitArgs a(UIString(L"Pick"));
    a.startDirectory = fromUTF8(tmp.str());
    a.owner = owner;
    a.callback = WidgetCallback(recorder(answers, [&] {
        if (EventHandler::valid(b, stamp)) delete b;
    }));
    b = FileBrowser::make(a);
    stamp = b->stamp();
    TestKit::pump();
    doubleClickRow(b, rowOf(b, L"apple.png"));
    EXPECT_FALSE(alive(b, stamp));
    EXPECT_EQ(answers.lists.size(), 1u);
    EXPECT_EQ(owner->messages.size(), 1u) << "posted before the callback ran";
    EXPECT_EQ(owner->senderDirs.front(), WStr(L"(gone)"));

    clickAside();
    FileBrowserBase::InitArgs m(UIString(L"Pick"));
    m.startDirectory = fromUTF8(tmp.str());
    m.owner = owner;
    m.callback = WidgetCallback("picked");
    FileBrowser* c = FileBrowser::make(m);
    TestKit::pump();
    doubleClickRow(c, rowOf(c, L"apple.png"));
    EXPECT_EQ(owner->messages,
              (std::vector<std::string>{FileBrowserBase::fileBrowserSelectedMsg, FileBrowserBase::fileBrowserSelectedMsg, "picked"}));
    EXPECT_EQ(owner->paths.back(), std::vector<WStr>{path("apple.png")});
}

// ---- on the screen ----------------------------------------------------------------

TEST_F(FileBrowserTest, MakePlacesTheBrowserAtItsPositionOrInTheMiddle) {
    FileBrowser* b = open();
    EXPECT_TRUE(GlobManager::instance().isRealized(b));
    EXPECT_EQ(b->parent(), nullptr);
    EXPECT_EQ(XY<int>(b->getX(), b->getY()), XY<int>(30, 40));
    EXPECT_EQ(b->size(), FileBrowserBase::calcSize());
    EXPECT_EQ(get_kbd_focus(), b->table());

    FileBrowserBase::InitArgs a(UIString(), FileBrowserBase::kMultipleFiles, 500, 300);
    a.startDirectory = fromUTF8(tmp.str());
    FileBrowser* centred = FileBrowser::make(a);
    TestKit::pump();
    const Screen& s = GlobManager::instance().screen();
    EXPECT_EQ(centred->size(), XY<int>(500, 300));
    EXPECT_NEAR(centred->getX() + 250, s.width() / 2, 1);
    EXPECT_NEAR(centred->getY() + 150, s.height() / 2, 1);
    EXPECT_EQ(centred->getTitle().getString(), WStr(L"Choose files")) << "no title given";
    // Controls sit inside the panel: path at the top, buttons at the bottom.
    EXPECT_GT(centred->pathBox()->getY(), centred->table()->getY() + centred->table()->height() - 1);
    EXPECT_LT(centred->okButton()->getY(), centred->table()->getY());
    EXPECT_LE(centred->okButton()->getX() + centred->okButton()->width(), centred->width());
}

TEST_F(FileBrowserTest, TheListPaintsItsRowsAndTheSelectionInTheSelectionColour) {
    FileBrowser* b = open();
    TableWidget* t = b->table();
    const Palette& p = t->getPalette();
    const int notes = rowOf(b, L"notes.txt");
    clickRow(b, notes);
    const BoxInt lit = t->getCellBox({0, notes}), plain = t->getCellBox({0, notes + 1});
    EXPECT_TRUE(TestKit::pixelNear(t, lit.x2 - 3, lit.y1 + 2, argb(p.selection(kSelectionFocused)), 1));
    EXPECT_TRUE(TestKit::pixelNear(t, plain.x2 - 3, plain.y1 + 2, argb(p.childWindow(kChildList)), 1));
    EXPECT_GT(inkPixels(t, plain, argb(p.childWindow(kChildList))), 5) << "the name is written";
    EXPECT_GT(inkPixels(t, lit, argb(p.selection(kSelectionFocused))), 5);

    // Moving the selection repaints both rows.
    set_kbd_focus(t);
    TestKit::pressKey(Keys::Down);
    EXPECT_TRUE(TestKit::pixelNear(t, plain.x2 - 3, plain.y1 + 2, argb(p.selection(kSelectionFocused)), 1));
    EXPECT_TRUE(TestKit::pixelNear(t, lit.x2 - 3, lit.y1 + 2, argb(p.childWindow(kChildList)), 1));
}

TEST_F(FileBrowserTest, TheBaseListsOnlyNamesAndWorksAsAChildWithoutAFrame) {
    auto* host = new ControlHost(420, 300);
    FileBrowserBase::InitArgs a(UIString(), FileBrowserBase::kSingleFile, 400, 280);
    a.startDirectory = fromUTF8(tmp.str());
    auto* b = host->createWidget<NameOnlyBrowser>(a, Glob::UserBottomLeft(10, 10));
    host->redraw();
    TestKit::pump();
    ASSERT_EQ(b->table()->numColumns(), 1);
    EXPECT_EQ(b->getColumnDefinitions().front().getSortKey(), LightweightString<char>("name"));
    EXPECT_FALSE(b->hasTitleBar());
    doubleClickRow(b, rowOf(b, L"notes.txt"));
    EXPECT_EQ(host->messages, std::vector<std::string>{FileBrowserBase::fileBrowserSelectedMsg}) << "the parent is the owner";
    EXPECT_EQ(answers.lists.size(), 0u);
}
