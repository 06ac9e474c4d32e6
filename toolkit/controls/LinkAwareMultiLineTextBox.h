#pragma once

#include "MultiLineTextBox.h"

#include <vector>

// A multi-line text box in which runs of text that look like web addresses
// (http:// or https:// and what follows up to a space) are drawn as links and
// open with the desktop's default application when clicked. In a box that is
// not editable a plain click opens a link; in an editable one, Control and a
// click, so that a plain click can still place the caret.
//
// A box that is not editable and holds mark-up (HTMLRenderer::isHTML) shows it
// styled, as a label does; its addresses are then not links.
class LinkAwareMultiLineTextBox : public MultiLineTextBox {
public:
    using InitArgs = MultiLineTextBox::InitArgs;

    struct Link {
        std::size_t start = 0, end = 0; // characters [start, end) of the text
        LightweightString<wchar_t> url;
    };

    explicit LinkAwareMultiLineTextBox(const InitArgs& args);
    const char* idstring() const override { return "LinkAwareMultiLineTextBox"; }

    using TextBoxBase::setString;
    void setString(const LightweightString<wchar_t>& text, eRedrawFlag flag = kRedraw) override;
    const std::vector<Link>& getLinks() const { return links_; }
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
    void drawText() override;
    void decorateText(const BoxInt& clip) override;
    void textEdited() override;

private:
    bool opensOnClick(unsigned modifiers) const;
    bool showsMarkup() const;

    std::vector<Link> links_;
    int pressed_ = -1; // the link the button went down on
};
