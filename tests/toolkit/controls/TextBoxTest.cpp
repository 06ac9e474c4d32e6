#include "TextControlKit.h"

#include "controls/TextBox.h"
#include "value/ValAdaptor.h"

using namespace TextControlKit;

namespace {

class TextBoxTest : public TextControlTest {
protected:
    void SetUp() override {
        panel = makePanel();
        box = addBox(200);
    }

    TextBox* addBox(int w, const wchar_t* text = L"", XY<int> at = {10, 10}) {
        TextBox::InitArgs args(UIString(text), static_cast<unsigned short>(w), static_cast<unsigned short>(TextBox::calcHeight()));
        return panel->createWidget<TextBox>(args, Glob::BottomLeft(at.x, at.y));
    }
    void focus(TextBox* b) {
        set_kbd_focus(b);
        TestKit::pump();
    }
    // The screen point of the caret position before character `index` of `text`,
    // in the middle of the line, for a left-aligned box that has not scrolled.
    XY<int> pointBefore(TextBox* b, const wchar_t* text, std::size_t index) {
        Glib::TextLayout l(text, b->getFont());
        int x = b->getMargin() + l.caret(index).x;
        return TestKit::screenPointOf(b, {x, b->height() / 2});
    }
    // The left edge of the caret before `index` in the box's coordinates.
    int caretColumn(TextBox* b, const wchar_t* text, std::size_t index) {
        return b->getMargin() + Glib::TextLayout(text, b->getFont()).caret(index).x;
    }

    TextBox* box = nullptr;
};

} // namespace

TEST_F(TextBoxTest, PaintsTheTextTheCaretAndTheSelectionWhereTheyAre) {
    const Palette& p = box->getPalette();
    BoxInt inside(2, 2, box->width() - 2, box->height() - 2);
    EXPECT_EQ(inkPixels(box, inside, p.childWindow()), 0) << "an empty box shows nothing but its background";
    EXPECT_TRUE(TestKit::pixelNear(box, 0, box->height() / 2, TestKit::argb(p.window(kShadeDarkest)))) << "its frame";

    focus(box);
    int column = caretColumn(box, L"", 0);
    EXPECT_TRUE(TestKit::pixelNear(box, column, box->height() / 2, TestKit::argb(p.text()))) << "the caret of an empty box";
    EXPECT_TRUE(TestKit::pixelNear(box, 0, box->height() / 2, TestKit::argb(p.selection()))) << "the frame of a focused box";

    TestKit::typeText(L"mmm");
    int end = caretColumn(box, L"mmm", 3);
    EXPECT_TRUE(TestKit::pixelNear(box, end, box->height() / 2, TestKit::argb(p.text()))) << "the caret moved past the text";
    EXPECT_GT(inkPixels(box, BoxInt(column + 1, 2, end, box->height() - 2), p.childWindow()), 10) << "the text";
    EXPECT_EQ(inkPixels(box, BoxInt(end + 2, 2, box->width() - 2, box->height() - 2), p.childWindow()), 0);

    TestKit::pressKey('a', Modifiers::Control);
    EXPECT_EQ(box->selectionStart(), 0u);
    EXPECT_EQ(box->selectionEnd(), 3u);
    // Lower-case letters leave the top row of their line empty: there the
    // selection shows its own colour.
    Glib::TextLayout l(L"mmm", box->getFont());
    int lineTop = box->height() / 2 + l.height() / 2 - 1;
    EXPECT_TRUE(TestKit::pixelNear(box, (column + end) / 2, lineTop, TestKit::argb(p.selection())));
    EXPECT_GT(countPixels(box, BoxInt(column, 2, end, box->height() - 2), p.text(kTextOnSelection), 40), 5)
        << "selected text is drawn in the colour for text on a selection";

    set_kbd_focus(nullptr);
    TestKit::pump();
    EXPECT_EQ(countPixels(box, BoxInt(column, 2, end, box->height() - 2), p.selection()), 0) << "no selection shows without focus";
    EXPECT_FALSE(TestKit::pixelNear(box, end, box->height() / 2, TestKit::argb(p.text()))) << "and no caret";
}

TEST_F(TextBoxTest, APlaceholderShowsOnlyWhileEmptyAndUnfocused) {
    const Palette& p = box->getPalette();
    BoxInt inside(2, 2, box->width() - 2, box->height() - 2);
    TextBox* plain = addBox(200, L"", {10, 60});
    box->setPlaceholder(UIString(L"Search clips"));
    TestKit::pump();
    EXPECT_GT(countPixels(box, inside, p.text(kTextDimmed), 30), 5);
    EXPECT_EQ(countPixels(box, inside, p.text(), 30), 0) << "the hint is dimmed, not in the text colour";
    EXPECT_FALSE(samePixels(box, plain));

    focus(box);
    focus(plain);
    focus(box);
    EXPECT_EQ(countPixels(box, BoxInt(10, 2, box->width() - 2, box->height() - 2), p.text(kTextDimmed), 30), 0) << "focused, no hint";
    TestKit::typeText(L"x");
    plain->setString(L"x");
    set_kbd_focus(nullptr);
    EXPECT_TRUE(samePixels(box, plain)) << "a text hides the hint";
}

TEST_F(TextBoxTest, ObfuscatedTextIsDrawnAsOneBulletPerCharacter) {
    TextBox* bullets = addBox(200, L"\u2022\u2022\u2022\u2022\u2022\u2022", {10, 60});
    box->setString(L"secret");
    box->setObfuscatedDisplay(true);
    EXPECT_TRUE(samePixels(box, bullets));
    EXPECT_EQ(box->getString(), L"secret") << "the text itself is kept";

    focus(box);
    TestKit::pressKey('a', Modifiers::Control);
    TestKit::pressKey('c', Modifiers::Control);
    TestKit::pressKey('x', Modifiers::Control);
    EXPECT_TRUE(OS()->getClipboardText().empty()) << "hidden text is neither copied nor cut";
    EXPECT_EQ(box->getString(), L"secret");
    TestKit::pressKey(Keys::Left, Modifiers::Control);
    EXPECT_EQ(box->getCursorPosition(), 0u) << "word moves jump to the ends and tell nothing";

    box->setObfuscatedDisplay(false);
    set_kbd_focus(nullptr);
    TestKit::pump();
    EXPECT_FALSE(samePixels(box, bullets));
}

TEST_F(TextBoxTest, TypingArrowsAndDeletionEditAtTheCaret) {
    focus(box);
    TestKit::typeText(L"hello");
    EXPECT_EQ(box->getString(), L"hello");
    EXPECT_EQ(box->getCursorPosition(), 5u);
    TestKit::pressKey(Keys::Left);
    TestKit::pressKey(Keys::Left);
    TestKit::typeText(L"X");
    EXPECT_EQ(box->getString(), L"helXlo");
    TestKit::pressKey(Keys::Backspace);
    TestKit::pressKey(Keys::Delete);
    EXPECT_EQ(box->getString(), L"helo");
    TestKit::pressKey(Keys::Home);
    TestKit::typeText(L"[");
    TestKit::pressKey(Keys::End);
    TestKit::typeText(L"]");
    EXPECT_EQ(box->getString(), L"[helo]");

    // A key press of a printable key brings no character: the text event does.
    TestKit::pressKey('q');
    EXPECT_EQ(box->getString(), L"[helo]");

    box->setString(L"one two three");
    TestKit::pressKey(Keys::Backspace, Modifiers::Control);
    EXPECT_EQ(box->getString(), L"one two ");
    TestKit::pressKey(Keys::Left, Modifiers::Control);
    EXPECT_EQ(box->getCursorPosition(), 4u);
    TestKit::pressKey(Keys::Delete, Modifiers::Control);
    EXPECT_EQ(box->getString(), L"one  ");
}

TEST_F(TextBoxTest, ShiftWithArrowsSelectsAndTypingReplacesTheSelection) {
    box->setString(L"abcdef");
    focus(box);
    TestKit::pressKey(Keys::End);
    TestKit::pressKey(Keys::Left, Modifiers::Shift);
    TestKit::pressKey(Keys::Left, Modifiers::Shift);
    EXPECT_EQ(box->getSelectedText(), L"ef");
    TestKit::pressKey(Keys::Home, Modifiers::Shift);
    EXPECT_EQ(box->getSelectedText(), L"abcdef");
    TestKit::pressKey(Keys::Right, Modifiers::Shift);
    EXPECT_EQ(box->getSelectedText(), L"bcdef") << "the anchor stays where the selection began";
    TestKit::typeText(L"Z");
    EXPECT_EQ(box->getString(), L"aZ");
    TestKit::pressKey(Keys::Left, Modifiers::Shift);
    TestKit::pressKey(Keys::Right);
    EXPECT_FALSE(box->hasSelection()) << "an arrow without shift collapses the selection";
    EXPECT_EQ(box->getCursorPosition(), 2u);
}

TEST_F(TextBoxTest, CutCopyAndPasteGoThroughTheClipboard) {
    box->setString(L"alpha beta");
    focus(box);
    TestKit::pressKey(Keys::Home);
    for (int i = 0; i < 5; ++i) TestKit::pressKey(Keys::Right, Modifiers::Shift);
    TestKit::pressKey('c', Modifiers::Control);
    EXPECT_EQ(OS()->getClipboardText(), L"alpha");
    TestKit::pressKey(Keys::End);
    TestKit::pressKey('v', Modifiers::Control);
    EXPECT_EQ(box->getString(), L"alpha betaalpha");

    TestKit::pressKey(Keys::Home);
    TestKit::pressKey(Keys::Right, Modifiers::Shift | Modifiers::Control);
    TestKit::pressKey('x', Modifiers::Control);
    EXPECT_EQ(OS()->getClipboardText(), L"alpha");
    EXPECT_EQ(box->getString(), L" betaalpha");

    OS()->setClipboardText(L"line one\r\nline two\nthree");
    TestKit::pressKey(Keys::Insert, Modifiers::Shift);
    EXPECT_EQ(box->getString(), L"line one line two three betaalpha") << "line breaks become spaces in one line";
}

namespace {
class KeyRecorder : public TextBox {
public:
    using TextBox::TextBox;
    int handleKeyboardEvent(int key) override {
        keys.push_back(key);
        return key == Keys::Paste ? 1 : TextBox::handleKeyboardEvent(key);
    }
    std::vector<int> keys;
};
} // namespace

TEST_F(TextBoxTest, ASubclassHearsAnEditCommandAsOneCodeWhicheverKeysGaveIt) {
    TextBox::InitArgs args(UIString(L"abc"), 200, static_cast<unsigned short>(TextBox::calcHeight()));
    auto* b = panel->createWidget<KeyRecorder>(args, Glob::BottomLeft(10, 40));
    focus(b);
    OS()->setClipboardText(L"zz");
    TestKit::pressKey('V', Modifiers::Control);
    TestKit::pressKey('v', Modifiers::Cmd);
    TestKit::pressKey(Keys::Insert, Modifiers::Shift);
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    EXPECT_EQ(b->keys, (std::vector<int>{Keys::Paste, Keys::Paste, Keys::Paste, Keys::Tab | static_cast<int>(Modifiers::Shift)}));
    EXPECT_EQ(b->getString(), L"abc") << "the subclass kept the pastes out";
}

TEST_F(TextBoxTest, UndoTakesBackTheLastEditAndRedoDoesItAgain) {
    box->setString(L"base");
    focus(box);
    TestKit::pressKey(Keys::End);
    TestKit::typeText(L" one");
    TestKit::pressKey('z', Modifiers::Control);
    EXPECT_EQ(box->getString(), L"base") << "a run of typing is one edit";
    TestKit::pressKey('z', Modifiers::Control | Modifiers::Shift);
    EXPECT_EQ(box->getString(), L"base one");

    OS()->setClipboardText(L"!!");
    TestKit::pressKey('v', Modifiers::Control);
    TestKit::pressKey(Keys::Backspace);
    EXPECT_EQ(box->getString(), L"base one!");
    TestKit::pressKey('z', Modifiers::Control);
    EXPECT_EQ(box->getString(), L"base one!!");
    EXPECT_EQ(box->getCursorPosition(), 10u);
    TestKit::pressKey('y', Modifiers::Control);
    EXPECT_EQ(box->getString(), L"base one!");
    box->setString(L"from code");
    EXPECT_FALSE(box->canUndo()) << "text set by code cannot be undone";
    TestKit::pressKey('z', Modifiers::Control);
    EXPECT_EQ(box->getString(), L"from code");
}

TEST_F(TextBoxTest, EscapeRestoresTheTextAtFocusTimeAndReturnCommitsOnce) {
    int returns = 0, escapes = 0, typed = 0;
    box->requestCallback(countingCallback(returns), TextBoxBase::kReturnPressed);
    box->requestCallback(countingCallback(escapes), TextBoxBase::kEscapePressed);
    box->requestCallback(countingCallback(typed), TextBoxBase::kCharTyped);
    box->setString(L"kept");
    focus(box);
    TestKit::pressKey(Keys::End);
    typeEach(L"gone");
    EXPECT_EQ(typed, 4) << "one call for every character typed";
    TestKit::typeText(L"!?");
    EXPECT_EQ(typed, 5) << "and one for an input method's text of several";
    TestKit::pressKey(Keys::Escape);
    EXPECT_EQ(box->getString(), L"kept");
    EXPECT_EQ(escapes, 1);
    EXPECT_EQ(returns, 0);

    TestKit::typeText(L"new");
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(returns, 1);
    EXPECT_EQ(box->getString(), L"keptnew");
    TestKit::typeText(L"er");
    TestKit::pressKey(Keys::Escape);
    EXPECT_EQ(box->getString(), L"keptnew") << "after a commit Escape goes back to the committed text";
    EXPECT_EQ(returns, 1);
}

TEST_F(TextBoxTest, NamedCallbacksArePostedAndTravelUpUntilTaken) {
    int focusLost = 0;
    box->requestCallback("EnterPressed", nullptr, TextBoxBase::kReturnPressed);
    box->requestCallback(countingCallback(focusLost), TextBoxBase::kFocusLost);
    focus(box);
    TestKit::typeText(L"a");
    panel->heard.clear();
    GlobManager::instance().dispatch(Event::key(Event::kKeyPress, Keys::Return));
    EXPECT_TRUE(panel->heard.empty()) << "the message is posted, not delivered inside the key";
    TestKit::pump();
    ASSERT_EQ(panel->heard.size(), 1u);
    EXPECT_EQ(panel->heard[0], "EnterPressed");
    EXPECT_EQ(panel->senders[0], box);

    // Addressed to a glob that does not take it, the message goes on to its parent.
    StandardPanel::InitArgs args(50, 20);
    auto* deaf = panel->createWidget<StandardPanel>(args, Glob::TopRight(0, 0));
    box->requestCallback("TypedChar", deaf, TextBoxBase::kCharTyped);
    panel->heard.clear();
    TestKit::typeText(L"b");
    ASSERT_EQ(panel->heard.size(), 1u);
    EXPECT_EQ(panel->heard[0], "TypedChar");

    set_kbd_focus(nullptr);
    EXPECT_EQ(focusLost, 1);
}

TEST_F(TextBoxTest, TabLeavesTheBoxForTheNextStopWhichSelectsAll) {
    TextBox* second = addBox(200, L"second", {10, 60});
    panel->tabOrder().addTabStop(*box);
    panel->tabOrder().addTabStop(*second);
    focus(box);
    TestKit::typeText(L"first");
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(get_kbd_focus(), second);
    EXPECT_EQ(box->getString(), L"first") << "Tab is no character";
    EXPECT_EQ(second->getSelectedText(), L"second") << "tabbing in selects the whole text";
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    EXPECT_EQ(get_kbd_focus(), box);
    box->setEditable(false);
    EXPECT_EQ(get_kbd_focus(), nullptr) << "a box that is no longer editable gives up the focus";
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(get_kbd_focus(), second) << "and is passed over";
}

TEST_F(TextBoxTest, RestrictionsAndTheSizeLimitFilterWhatGoesIn) {
    focus(box);
    box->setCharacters(L"0123456789", TextBoxBase::kOnlyCharacters);
    box->setSizeLimit(3);
    TestKit::typeText(L"a1b2");
    EXPECT_EQ(box->getString(), L"12");
    OS()->setClipboardText(L"3456");
    TestKit::pressKey('v', Modifiers::Control);
    EXPECT_EQ(box->getString(), L"123") << "a paste is cut at the limit";
    TestKit::pressKey('a', Modifiers::Control);
    TestKit::typeText(L"x");
    EXPECT_EQ(box->getString(), L"123") << "a refused character leaves the selection alone";
    TestKit::typeText(L"9");
    EXPECT_EQ(box->getString(), L"9") << "a selection makes room within the limit";

    box->setCharacters(L"<>", TextBoxBase::kExceptCharacters);
    box->setSizeLimit(0);
    TestKit::typeText(L"<a>");
    EXPECT_EQ(box->getString(), L"9a");
}

TEST_F(TextBoxTest, TheMousePlacesTheCaretAndDragsASelection) {
    const wchar_t* text = L"drag me around";
    box->setString(text);
    TestKit::click(pointBefore(box, text, 5));
    EXPECT_EQ(get_kbd_focus(), box) << "a click gives the focus";
    EXPECT_EQ(box->getCursorPosition(), 5u);
    EXPECT_FALSE(box->hasSelection()) << "a click that gives the focus places the caret instead of selecting all";

    TestKit::drag(pointBefore(box, text, 1), pointBefore(box, text, 7));
    EXPECT_EQ(box->selectionStart(), 1u);
    EXPECT_EQ(box->selectionEnd(), 7u);

    TestKit::click(pointBefore(box, text, 9), Event::kLeft, Modifiers::Shift);
    EXPECT_EQ(box->selectionStart(), 1u);
    EXPECT_EQ(box->selectionEnd(), 9u) << "a shift click takes the selection from its anchor to the click";

    XY<int> inWord = pointBefore(box, text, 10);
    TestKit::click(inWord);
    TestKit::click(inWord);
    EXPECT_EQ(box->getSelectedText(), L"around") << "a double click selects a word";
}

TEST_F(TextBoxTest, ALongTextScrollsToKeepTheCaretInView) {
    TextBox* narrow = addBox(60, L"", {10, 60});
    focus(narrow);
    TestKit::typeText(L"a rather long line of text that cannot fit");
    EXPECT_GT(narrow->getScrollOffset(), 0);
    const Palette& p = narrow->getPalette();
    int caretPixels = countPixels(narrow, BoxInt(2, narrow->height() / 2, narrow->width() - 2, narrow->height() / 2 + 1), p.text());
    EXPECT_GT(caretPixels, 0) << "the caret is inside the box";
    TestKit::pressKey(Keys::Home);
    EXPECT_EQ(narrow->getScrollOffset(), 0);
    EXPECT_TRUE(TestKit::pixelNear(narrow, narrow->getMargin(), narrow->height() / 2, TestKit::argb(p.text())));
}

TEST_F(TextBoxTest, TextSetFromOutsideScrollsOnlyWhenItDoesNotFit) {
    // Text that fits is told so from cached advances, text that does not is laid out:
    // across the boundary both must agree on one content width.
    for (const wchar_t* text : {L"Render queue: 12 clips", L"Caf\u00e9 AVA To.", L"office fluff"}) {
        int content = -1;
        for (int w = 40; w < 260; w += 3) {
            TextBox* b = addBox(w, L"", {10, 100});
            b->setString(text, kNoRedraw);
            if (b->getScrollOffset() > 0) {
                if (content < 0) content = b->getScrollOffset() + w;
                EXPECT_EQ(b->getScrollOffset() + w, content) << LightweightString<wchar_t>(text) << " at " << w;
            } else {
                EXPECT_TRUE(content < 0 || w >= content) << LightweightString<wchar_t>(text) << " fits at " << w;
            }
            Glob* done = b;
            panel->removeWidget(done, true);
        }
        EXPECT_GT(content, 0) << "the narrow boxes scrolled";
    }
}

TEST_F(TextBoxTest, ABoundBoxCommitsWhatIsTypedAndShowsServerChangesWithoutCallingBack) {
    ValServer<int> server(5);
    struct Counter : ValClient<int> {
        using ValClient<int>::ValClient;
        void valChangedNtfy() override { ++changes; }
        int changes = 0;
    } counter(&server);
    auto adaptor = Zn::Ptr<ValAdaptor<LightweightString<wchar_t>, int>>(new ValAdaptor<LightweightString<wchar_t>, int>(&server));
    box->setDataAdaptor(adaptor);
    EXPECT_EQ(box->getString(), L"5") << "binding fills the box";
    EXPECT_EQ(counter.changes, 0);

    focus(box);
    TestKit::typeText(L"42");
    EXPECT_EQ(server.value(), 5) << "typing alone does not commit";
    TestKit::pressKey(Keys::Return);
    EXPECT_EQ(server.value(), 42);
    EXPECT_EQ(counter.changes, 1);

    server = 7;
    EXPECT_EQ(box->getString(), L"7");
    EXPECT_EQ(counter.changes, 2) << "showing the server's value wrote nothing back";

    TestKit::pressKey('a', Modifiers::Control);
    TestKit::typeText(L"12abc");
    set_kbd_focus(nullptr);
    EXPECT_EQ(server.value(), 12) << "leaving a changed box commits it";
    EXPECT_EQ(box->getString(), L"12") << "and it shows what was stored";
    int before = counter.changes;
    focus(box);
    set_kbd_focus(nullptr);
    EXPECT_EQ(counter.changes, before) << "leaving an unchanged box commits nothing";
}

TEST_F(TextBoxTest, AnyTextAndHugePastesDoNoHarm) {
    focus(box);
    LightweightString<wchar_t> huge(100000, L'w');
    OS()->setClipboardText(huge);
    TestKit::pressKey('v', Modifiers::Control);
    EXPECT_EQ(box->getString().size(), 100000u);
    EXPECT_GT(box->getScrollOffset(), 0);
    TestKit::pressKey(Keys::Home);
    TestKit::pressKey(Keys::End, Modifiers::Shift);
    TestKit::pressKey(Keys::Backspace);
    EXPECT_TRUE(box->getString().empty());

    // Emoji, combining marks, a lone surrogate value, a NUL and a value past Unicode.
    const wchar_t odd[] = {L'e', 0x301, 0x1F600, 0x1F469, 0x200D, 0x1F4BB, 0xD800, L'x', 0x110000, L'y', 0};
    TestKit::typeText(LightweightString<wchar_t>(odd));
    TestKit::typeText(LightweightString<wchar_t>(L"a\0b", 3));
    std::size_t n = box->getString().size();
    EXPECT_GE(n, 10u);
    for (int i = 0; i < 12; ++i) TestKit::pressKey(Keys::Left);
    EXPECT_EQ(box->getCursorPosition(), 0u);
    TestKit::pressKey(Keys::Right);
    EXPECT_EQ(box->getCursorPosition(), 2u) << "a letter and its combining accent are one step";
    TestKit::drag(TestKit::screenPointOf(box, {2, 5}), TestKit::screenPointOf(box, {box->width() - 2, 5}));
    TestKit::pressKey('x', Modifiers::Control);
    TestKit::pressKey('z', Modifiers::Control);
    EXPECT_EQ(box->getString().size(), n);

    box->setString({});
    TestKit::pressKey(Keys::Backspace);
    TestKit::pressKey(Keys::Delete);
    TestKit::pressKey('z', Modifiers::Control);
    TestKit::pressKey(Keys::Left, Modifiers::Shift | Modifiers::Control);
    EXPECT_TRUE(box->getString().empty());
}
