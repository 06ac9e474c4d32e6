#include "TextBoxBase.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"
#include "glob/fireCallback.h"
#include "platform/OS.h"

#include <algorithm>
#include <cmath>
#include <cwctype>
#include <string>
#include <vector>

namespace {

// The internal message that carries a named callback to its target once the box
// has finished handling the input that fired it.
constexpr const char* kCallbackRelayMsg = "TextBoxCallbackRelay";
constexpr wchar_t kBullet = 0x2022;

class CallbackRelay : public iObject {
public:
    CallbackRelay(const LightweightString<char>& m, EventHandler* t, const IdStamp& s, const Zn::Ptr<iObject>& p)
        : message(m), target(t), stamp(s), payload(p) {}
    LightweightString<char> message;
    EventHandler* target;
    IdStamp stamp;
    Zn::Ptr<iObject> payload;
};

bool isLineBreak(wchar_t c) { return c == L'\n' || c == L'\r' || c == 0x2028 || c == 0x2029 || c == 0x85; }

// Word moves and double clicks treat runs of one class as a word: spaces, word
// characters (anything beyond ASCII counts, so accented and non-Latin words hold
// together), and punctuation.
int charClass(wchar_t c) {
    if (std::iswspace(static_cast<wint_t>(c))) return 0;
    if (c >= 0x80 || c == L'_' || std::iswalnum(static_cast<wint_t>(c))) return 1;
    return 2;
}

int frameWidth() { return std::max(1, static_cast<int>(std::lround(UifStd::instance().getScale()))); }

} // namespace

TextBoxBase::TextBoxBase(const GlobCreationInfo& info, const LightweightString<wchar_t>& text)
    : StandardPanel(StandardPanel::InitArgs(info, Border(Border::kNoBorder, 0, 15))), text_(text), committed_(text), caret_(text.size()),
      anchor_(text.size()), margin_(defaultMargin()) {}

TextBoxBase::~TextBoxBase() = default;

int TextBoxBase::defaultMargin() { return frameWidth() + UifStd::instance().getRowGap(); }

// ---- text and settings --------------------------------------------------------

void TextBoxBase::setString(const LightweightString<wchar_t>& text, eRedrawFlag flag) {
    committed_ = text;
    // The same text again (a bound box hearing back its own commit) keeps the
    // caret, the selection and the undo step where the user left them.
    if (text == text_) {
        if (flag == kRedraw) redraw();
        return;
    }
    text_ = text;
    caret_ = anchor_ = text_.size();
    undo_.reset();
    redo_.reset();
    lastEdit_ = kOtherEdit;
    invalidateLayout();
    scrollToCaret();
    if (flag == kRedraw) redraw();
}

void TextBoxBase::setPlaceholder(const UIString& text) {
    placeholder_ = text;
    if (text_.empty()) redraw();
}

void TextBoxBase::setEditable(bool editable) {
    if (editable == editable_) return;
    editable_ = editable;
    if (!editable_ && hasKbdFocus()) set_kbd_focus(nullptr);
    redraw();
}

void TextBoxBase::setCharacters(const LightweightString<wchar_t>& characters, eCharacterRestriction restriction) {
    characters_ = characters;
    restriction_ = restriction;
}

void TextBoxBase::setAlignment(TextAlignment alignment) {
    alignment_ = alignment;
    redraw();
}

void TextBoxBase::setObfuscatedDisplay(bool obfuscated) {
    if (obfuscated == obfuscated_) return;
    obfuscated_ = obfuscated;
    invalidateLayout();
    scrollToCaret();
    redraw();
}

void TextBoxBase::setMargin(int margin) {
    margin_ = std::max(0, margin);
    invalidateLayout();
    redraw();
}

void TextBoxBase::setFont(const Glib::FontDesc& font) {
    Glib::FontUser::setFont(font);
    invalidateLayout();
    redraw();
}

void TextBoxBase::resize(double width, double height) {
    StandardPanel::resize(width, height);
    invalidateLayout();
    scrollToCaret();
}

void TextBoxBase::handleUIChange(unsigned int what) {
    invalidateLayout();
    StandardPanel::handleUIChange(what);
}

void TextBoxBase::setActive(bool active, eRedrawFlag flag) {
    if (!active && hasKbdFocus()) set_kbd_focus(nullptr);
    StandardPanel::setActive(active, flag);
}

// ---- caret and selection ------------------------------------------------------

void TextBoxBase::moveCaret(std::size_t index, bool extend) {
    index = std::min(index, text_.size());
    if (!isCaretStop(index)) index = nextCaretStop(index, 1);
    caret_ = index;
    if (!extend) anchor_ = caret_;
    lastEdit_ = kOtherEdit;
    scrollToCaret();
    redraw();
}

void TextBoxBase::setCursorPosition(std::size_t index, bool extendSelection) { moveCaret(index, extendSelection); }

void TextBoxBase::setSelection(std::size_t anchor, std::size_t caret) {
    anchor_ = std::min(anchor, text_.size());
    moveCaret(caret, true);
}

LightweightString<wchar_t> TextBoxBase::getSelectedText() const { return text_.substr(selectionStart(), selectionEnd() - selectionStart()); }

void TextBoxBase::highlightAllText(bool all) {
    if (all)
        setSelection(0, text_.size());
    else
        moveCaret(caret_, false);
}

std::size_t TextBoxBase::homeOf(std::size_t) const { return 0; }
std::size_t TextBoxBase::endOf(std::size_t) const { return text_.size(); }

std::size_t TextBoxBase::wordStart(std::size_t index) const {
    // Word moves would tell how the hidden text is made up.
    if (obfuscated_) return 0;
    std::size_t i = std::min(index, text_.size());
    while (i > 0 && charClass(text_[i - 1]) == 0) --i;
    if (i == 0) return 0;
    int cls = charClass(text_[i - 1]);
    while (i > 0 && charClass(text_[i - 1]) == cls) --i;
    return i;
}

std::size_t TextBoxBase::wordEnd(std::size_t index) const {
    if (obfuscated_) return text_.size();
    std::size_t i = std::min(index, text_.size()), n = text_.size();
    while (i < n && charClass(text_[i]) == 0) ++i;
    if (i == n) return n;
    int cls = charClass(text_[i]);
    while (i < n && charClass(text_[i]) == cls) ++i;
    return i;
}

void TextBoxBase::selectRunAround(std::size_t index) {
    std::size_t n = text_.size();
    if (obfuscated_ || n == 0) {
        highlightAllText(true);
        return;
    }
    std::size_t k = std::min(index, n - 1);
    int cls = charClass(text_[k]);
    std::size_t from = k, to = k + 1;
    while (from > 0 && charClass(text_[from - 1]) == cls) --from;
    while (to < n && charClass(text_[to]) == cls) ++to;
    setSelection(from, to);
}

// ---- editing ------------------------------------------------------------------

LightweightString<wchar_t> TextBoxBase::filterInput(const LightweightString<wchar_t>& text) const {
    std::wstring out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        wchar_t c = text[i];
        if (isLineBreak(c)) {
            if (c == L'\r' && text[i + 1] == L'\n') continue; // CR LF is one break
            c = acceptsLineBreaks() ? L'\n' : L' ';
        } else if (c == L'\t') {
            if (!acceptsLineBreaks()) c = L' ';
        } else if (c < 32 || c == 127) {
            continue;
        }
        if (restriction_ == kOnlyCharacters && characters_.find(c) == LightweightString<wchar_t>::npos) continue;
        if (restriction_ == kExceptCharacters && characters_.find(c) != LightweightString<wchar_t>::npos) continue;
        out.push_back(c);
    }
    if (sizeLimit_ > 0) {
        std::size_t kept = text_.size() - (selectionEnd() - selectionStart());
        std::size_t room = sizeLimit_ > kept ? sizeLimit_ - kept : 0;
        if (out.size() > room) out.resize(room);
    }
    return LightweightString<wchar_t>(out);
}

bool TextBoxBase::replaceSelection(const LightweightString<wchar_t>& text, EditKind kind) {
    LightweightString<wchar_t> insert = filterInput(text);
    // Input that was refused altogether must not eat the selection either.
    if (!text.empty() && insert.empty()) return false;
    std::size_t from = selectionStart(), to = selectionEnd();
    if (insert.empty() && from == to) return false;
    // A run of typing, or of deleting, is undone as one step.
    if (kind == kOtherEdit || kind != lastEdit_ || !undo_) undo_ = Snapshot{text_, caret_, anchor_};
    redo_.reset();
    text_.replace(from, to - from, insert.view());
    caret_ = anchor_ = from + insert.size();
    lastEdit_ = kind;
    invalidateLayout();
    scrollToCaret();
    redraw();
    textEdited();
    return true;
}

bool TextBoxBase::insertText(const LightweightString<wchar_t>& text) {
    if (!replaceSelection(text, kOtherEdit)) return false;
    fireCallback(kCharTyped);
    return true;
}

void TextBoxBase::deleteBackwards(bool word) {
    if (!hasSelection()) {
        if (caret_ == 0) return;
        anchor_ = word ? wordStart(caret_) : nextCaretStop(caret_, -1);
    }
    if (replaceSelection({}, kDeleting)) fireCallback(kCharTyped);
}

void TextBoxBase::deleteForwards(bool word) {
    if (!hasSelection()) {
        if (caret_ >= text_.size()) return;
        anchor_ = word ? wordEnd(caret_) : nextCaretStop(caret_, 1);
    }
    if (replaceSelection({}, kDeleting)) fireCallback(kCharTyped);
}

void TextBoxBase::copy() const {
    if (!hasSelection() || obfuscated_) return;
    setClipboardText(getSelectedText());
}

void TextBoxBase::cut() {
    if (!editable_ || !hasSelection() || obfuscated_) return;
    copy();
    if (replaceSelection({}, kOtherEdit)) fireCallback(kCharTyped);
}

void TextBoxBase::paste() {
    if (editable_) insertText(getClipboardText());
}

void TextBoxBase::applySnapshot(const Snapshot& s) {
    text_ = s.text;
    caret_ = std::min(s.caret, text_.size());
    anchor_ = std::min(s.anchor, text_.size());
    lastEdit_ = kOtherEdit;
    invalidateLayout();
    scrollToCaret();
    redraw();
    textEdited();
}

bool TextBoxBase::undo() {
    if (!undo_ || !editable_) return false;
    Snapshot back = *undo_;
    undo_.reset();
    redo_ = Snapshot{text_, caret_, anchor_};
    applySnapshot(back);
    fireCallback(kCharTyped);
    return true;
}

bool TextBoxBase::redo() {
    if (!redo_ || !editable_) return false;
    Snapshot forward = *redo_;
    redo_.reset();
    undo_ = Snapshot{text_, caret_, anchor_};
    applySnapshot(forward);
    fireCallback(kCharTyped);
    return true;
}

LightweightString<wchar_t> TextBoxBase::getClipboardText() const { return OS()->getClipboardText(); }

void TextBoxBase::setClipboardText(const LightweightString<wchar_t>& text) const { OS()->setClipboardText(text); }

void TextBoxBase::commit() { committed_ = text_; }

int TextBoxBase::handleReturn() {
    IdStamp me = stamp();
    commit();
    if (EventHandler::valid(this, me)) fireCallback(kReturnPressed);
    return 1;
}

int TextBoxBase::handleEscape() {
    bool restore = text_ != committed_;
    if (restore) {
        undo_ = Snapshot{text_, caret_, anchor_};
        redo_.reset();
        applySnapshot(Snapshot{committed_, committed_.size(), committed_.size()});
    }
    bool heard = !callbacks_[kEscapePressed].callback.isEmpty();
    fireCallback(kEscapePressed);
    // With nothing to undo and nobody listening, Escape goes on to the panel (a
    // dialogue may close on it).
    return restore || heard ? 1 : 0;
}

// ---- callbacks ----------------------------------------------------------------

void TextBoxBase::requestCallback(const WidgetCallback& callback, eCallbackEvent event) {
    if (event <= 0 || event >= kNumCallbackEvents) return;
    callbacks_[event] = Callback{callback, nullptr, IdStamp()};
}

void TextBoxBase::requestCallback(const LightweightString<char>& message, EventHandler* target, eCallbackEvent event) {
    if (event <= 0 || event >= kNumCallbackEvents) return;
    callbacks_[event] = Callback{WidgetCallback(message), target, target ? target->stamp() : IdStamp()};
}

bool TextBoxBase::fireCallback(eCallbackEvent event) {
    // A copy: the callback may replace its own registration, or delete this box.
    Callback c = callbacks_[event];
    if (c.callback.callback()) return ::fireCallback(this, c.callback);
    if (c.callback.message().empty()) return true;
    EventHandler* target = c.target;
    IdStamp targetStamp = c.stamp;
    if (!target) {
        Glob* owner = logicalParent();
        target = owner;
        targetStamp = owner ? owner->stamp() : IdStamp();
    }
    if (!target) return true;
    sendMessageWithData(kCallbackRelayMsg, this, Zn::Ptr<iObject>(new CallbackRelay(c.callback.message(), target, targetStamp, c.callback.payload())),
                        this);
    return true;
}

int TextBoxBase::handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) {
    auto relay = Zn::dynamicCast<CallbackRelay>(data);
    if (!relay || message != kCallbackRelayMsg) return StandardPanel::handleDataMessageEvent(message, sender, data);
    if (!EventHandler::valid(relay->target, relay->stamp)) return 1;
    // The target first, then its parents, until one takes the message. Every
    // pointer is taken before the first delivery and checked before each.
    std::vector<std::pair<EventHandler*, IdStamp>> chain{{relay->target, relay->stamp}};
    if (auto* g = dynamic_cast<Glob*>(relay->target))
        for (Glob* p = g->parent(); p; p = p->parent()) chain.emplace_back(p, p->stamp());
    IdStamp me = stamp();
    for (const auto& [handler, handlerStamp] : chain) {
        if (!EventHandler::valid(handler, handlerStamp)) continue;
        iObject* from = EventHandler::valid(this, me) ? this : nullptr;
        int taken = relay->payload ? callMessageWithData(relay->message, handler, relay->payload, from) : callMessage(relay->message, handler, from);
        if (taken) break;
    }
    return 1;
}

// ---- input --------------------------------------------------------------------

bool TextBoxBase::acceptsKbdFocus() const { return editable_ && isActive() && isVisible(); }

void TextBoxBase::handleKbdFocus(bool gained) {
    if (gained) {
        committed_ = text_;
        lastEdit_ = kOtherEdit;
        // Tabbing in selects everything; a click that gave the focus places the
        // caret straight after, as its button press arrives.
        highlightAllText(true);
        return;
    }
    dragging_ = false;
    IdStamp me = stamp();
    if (text_ != committed_) commit();
    if (!EventHandler::valid(this, me) || !fireCallback(kFocusLost)) return;
    redraw();
}

int TextBoxBase::react(const Event& e) {
    if (e.type() == Event::kTextInput) {
        if (!editable_ || !isActive()) return 0;
        const LightweightString<wchar_t>& typed = e.typedText();
        if (typed.size() == 1 && Keys::isPrintable(typed[0])) {
            keyModifiers_ = 0;
            return handleKeyboardEvent(typed[0]);
        }
        insertText(typed);
        return 1;
    }
    if (e.type() == Event::kKeyPress) {
        constexpr unsigned kCommand = Modifiers::Control | Modifiers::Alt | Modifiers::Cmd;
        // The character comes in the text event that follows this key.
        if (Keys::isPrintable(Keys::plain(e.keyCode())) && !(e.modifiers() & kCommand)) return editable_ && isActive() ? 1 : 0;
        keyModifiers_ = e.modifiers();
        IdStamp me = stamp();
        int taken = StandardPanel::react(Event::key(Event::kKeyPress, Keys::editCommandFor(e.keyCode())));
        if (EventHandler::valid(this, me)) keyModifiers_ = 0;
        return taken;
    }
    return StandardPanel::react(e);
}

int TextBoxBase::handleKeyboardEvent(int keyCode) {
    if (!editable_ || !isActive()) return 0;
    const bool shift = keyModifiers_ & Modifiers::Shift;
    const bool word = keyModifiers_ & (Modifiers::Control | Modifiers::Cmd);
    switch (keyCode) {
    case Keys::SelectAll: highlightAllText(true); return 1;
    case Keys::Copy: copy(); return 1;
    case Keys::Cut: cut(); return 1;
    case Keys::Paste: paste(); return 1;
    case Keys::Undo: undo(); return 1;
    case Keys::Redo: redo(); return 1;
    default: break;
    }
    switch (Keys::plain(keyCode)) {
    case Keys::Left:
        if (hasSelection() && !shift)
            moveCaret(selectionStart(), false);
        else
            moveCaret(word ? wordStart(caret_) : nextCaretStop(caret_, -1), shift);
        return 1;
    case Keys::Right:
        if (hasSelection() && !shift)
            moveCaret(selectionEnd(), false);
        else
            moveCaret(word ? wordEnd(caret_) : nextCaretStop(caret_, 1), shift);
        return 1;
    case Keys::Home: moveCaret(word ? 0 : homeOf(caret_), shift); return 1;
    case Keys::End: moveCaret(word ? text_.size() : endOf(caret_), shift); return 1;
    case Keys::Up:
    case Keys::Down: return moveCaretVertically(Keys::plain(keyCode) == Keys::Up ? -1 : 1, shift) ? 1 : 0;
    case Keys::Backspace: deleteBackwards(word); return 1;
    case Keys::Delete: deleteForwards(word); return 1;
    case Keys::Insert: return 1;
    case Keys::Return:
    case Keys::KeypadEnter: return handleReturn();
    case Keys::Escape: return handleEscape();
    default: break;
    }
    if (word || (keyModifiers_ & Modifiers::Alt) || !Keys::isPrintable(keyCode)) return 0;
    if (replaceSelection(LightweightString<wchar_t>(1, static_cast<wchar_t>(keyCode)), kTyping)) fireCallback(kCharTyped);
    return 1;
}

int TextBoxBase::handleMouseEvent(const Event& e) {
    if (!editable_ || !isActive()) return 0;
    if (mouse_down_event(e) && mouse_left_event(e)) {
        if (!hasKbdFocus() && !claimKbdFocus()) return 0;
        std::size_t at = indexAtPoint(e.pos());
        dragging_ = false;
        if (e.clickCount() == 2) {
            selectRunAround(at);
        } else if (e.clickCount() >= 3) {
            highlightAllText(true);
        } else {
            moveCaret(at, e.modifiers() & Modifiers::Shift);
            dragging_ = true;
        }
        return 1;
    }
    if (dragging_ && (mouse_move_event(e) || mouse_up_event(e))) {
        moveCaret(indexAtPoint(e.pos()), true);
        if (mouse_up_event(e)) dragging_ = false;
        return 1;
    }
    return mouse_left_event(e) ? 1 : 0;
}

MouseCursorID TextBoxBase::contextCursor(const XY<int>& p) const { return editable_ && isActive() ? kCursorIBeam : StandardPanel::contextCursor(p); }

// ---- layout and painting ------------------------------------------------------

void TextBoxBase::invalidateLayout() { layout_.reset(); }

std::size_t TextBoxBase::nextCaretStop(std::size_t index, int direction) const { return layout().nextCaretStop(index, direction); }

bool TextBoxBase::isCaretStop(std::size_t index) const { return layout().isCaretStop(index); }

std::size_t TextBoxBase::indexAtPoint(XY<int> globPoint) const { return layout().indexAt(toLayout(globPoint)); }

const Glib::TextLayout& TextBoxBase::layout() const {
    if (!layout_) layout_ = std::make_unique<Glib::TextLayout>(displayText(), getFont(), wrapWidth());
    return *layout_;
}

LightweightString<wchar_t> TextBoxBase::displayText() const { return obfuscated_ ? LightweightString<wchar_t>(text_.size(), kBullet) : text_; }

BoxInt TextBoxBase::textArea() const {
    int m = std::min({margin_, width() / 2, height() / 2});
    return BoxInt(m, m, width() - m, height() - m);
}

XY<int> TextBoxBase::toGlob(XY<int> p) const {
    XY<int> o = textOrigin();
    return {o.x + p.x, o.y - p.y};
}

XY<int> TextBoxBase::toLayout(XY<int> p) const {
    XY<int> o = textOrigin();
    return {p.x - o.x, o.y - p.y};
}

BoxInt TextBoxBase::insideFrame() const {
    int inset = editable_ ? frameWidth() : 0;
    return BoxInt(inset, inset, std::max(inset, width() - inset), std::max(inset, height() - inset));
}

int TextBoxBase::caretWidth() { return frameWidth(); }

bool TextBoxBase::showsCaret() const { return editable_ && isActive() && hasKbdFocus(); }

BoxInt TextBoxBase::layoutBox(const Glib::TextLayout::Rect& r) const {
    XY<int> o = textOrigin();
    return BoxInt(o.x + r.x, o.y - r.top - r.height, o.x + r.x + r.width, o.y - r.top);
}

void TextBoxBase::drawBackground() {
    CanvasRenderer r(canvas());
    if (!editable_) {
        r.fill(getPalette().window());
    } else {
        Glib::RectDescription box(BoxInt(0, 0, width(), height()), getPalette().childWindow(isActive() ? kChildEntry : kChildInactive));
        box.outline = hasKbdFocus() ? getPalette().selection() : getPalette().window(kShadeDarkest);
        box.outlineWidth = frameWidth();
        r.render(box);
    }
    drawText();
}

void TextBoxBase::drawText() {
    CanvasRenderer r(canvas());
    const Palette& p = getPalette();
    BoxInt clip = insideFrame();
    XY<int> o = textOrigin();
    Colour ink = isActive() ? p.text() : p.text(kTextDimmed);
    if (text_.empty()) {
        if (!hasKbdFocus() && !placeholder_.empty()) {
            Glib::TextLayout hint(placeholder_.getString(), getFont(), wrapWidth());
            // An empty text has no width to align, so the hint aligns itself.
            int shift = alignment_.horizontal == Glib::kAlignRight     ? hint.width()
                        : alignment_.horizontal == Glib::kAlignCentreH ? hint.width() / 2
                                                                       : 0;
            hint.render(canvas(), o.x - (wrapWidth() > 0 ? 0 : shift), o.y, clip, p.text(kTextDimmed));
        }
    } else {
        const Glib::TextLayout& l = layout();
        l.render(canvas(), o.x, o.y, clip, ink);
        decorateText(clip);
        if (hasSelection() && hasKbdFocus()) {
            for (const Glib::TextLayout::Rect& b : l.rangeBoxes(selectionStart(), selectionEnd())) {
                BoxInt box = layoutBox(b);
                box.clip(clip);
                r.render(Glib::RectDescription(box, p.selection()));
                l.render(canvas(), o.x, o.y, box, p.text(kTextOnSelection));
            }
        }
    }
    if (showsCaret()) {
        BoxInt c = layoutBox(layout().caret(caret_));
        c.x2 = c.x1 + caretWidth();
        c.clip(clip);
        r.render(Glib::RectDescription(c, ink));
    }
}
