#pragma once

#include "MultiLineTextBox.h"

#include <memory>
#include <vector>

/// A multi-line text box in which runs of text that look like web addresses
/// (http:// or https:// and what follows up to a space) are drawn as links and
/// open with the desktop's default application when clicked. In a box that is
/// not editable a plain click opens a link; in an editable one, Control and a
/// click, so that a plain click can still place the caret.
///
/// Not editable, a text of HTMLRenderer's mark-up shows as what it marks up:
/// styles, colours, breaks and paragraphs, each line in a row of the default
/// font's line height, which is what HTMLRenderer::calcNumDisplayLines and
/// calcHeightForLines measure. An <a> to a web address is a link too; other
/// hrefs are not followed. Editable, the mark-up is the text being edited.
class LinkAwareMultiLineTextBox : public MultiLineTextBox {
public:
    using InitArgs = MultiLineTextBox::InitArgs;

    /// A web address found in the text, and where it lies.
    struct Link {
        std::size_t start = 0, end = 0; // characters [start, end) of the text shown
        LightweightString<wchar_t> url;
    };

    explicit LinkAwareMultiLineTextBox(const InitArgs& args);
    ~LinkAwareMultiLineTextBox() override;
    const char* idstring() const override { return "LinkAwareMultiLineTextBox"; }

    using TextBoxBase::setString;
    void setString(const LightweightString<wchar_t>& text, eRedrawFlag flag = kRedraw) override;
    // Shown mark-up counts its characters in the paragraphs' texts joined by line feeds.
    const std::vector<Link>& getLinks() const;
    int numDisplayLines() const override;
    // The link under a point of the box, or null.
    const Link* linkAt(XY<int> p) const;
    // The web addresses in a text, in order. Punctuation that ends a sentence is
    // not part of one, nor is a closing bracket that was not opened inside it.
    static std::vector<Link> findLinks(const LightweightString<wchar_t>& text);

    int handleMouseEvent(const Event& e) override;
    MouseCursorID contextCursor(const XY<int>& p) const override;

protected:
    // Opens the address with the desktop's default application.
    virtual void openLink(const LightweightString<wchar_t>& url);
    void decorateText(const BoxInt& clip) override;
    void drawText() override;
    void textEdited() override;
    void scrollToCaret() override;
    void invalidateLayout() override;

private:
    struct Markup;
    bool opensOnClick(unsigned modifiers) const;
    bool showsMarkup() const;
    const Markup& markup() const;
    BoxInt markupClip() const;

    std::vector<Link> links_;
    mutable std::unique_ptr<Markup> markup_;
    int pressed_ = -1; // the link the button went down on
};
