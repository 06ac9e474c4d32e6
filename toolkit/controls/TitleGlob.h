#pragma once

#include "StandardPanel.h"
#include "draw/FontDesc.h"
#include "draw/GlibDescriptions.h"
#include "platform/UIString.h"

/// A row of a parameter panel: a legend at the left and a control at the right.
///
/// Geometry, in the row's own coordinates: the legend column runs from x = 0 to
/// getTitleWidth(), the whole height of the row; the legend is drawn in it from
/// UifStd's legend inset, as in every titled row, to a widget gap short of its right
/// side, vertically centred. The control is the first
/// child added to the row (or the one named by setControl); it takes the width the
/// legend column leaves. When the row is resized the legend column keeps its width,
/// the control gains or loses the whole change of width, and a control placed by
/// one of the right-hand origins is centred vertically again. setTitleWidth moves
/// the column's edge and gives the control what is left, so a panel can line up
/// the legends of all its rows by giving each the width of the widest.
///
/// The legend is not a title bar: setTitle on a row changes the legend.
/// setActive passes on to every child and dims the legend. Messages that the
/// control sends to the row go on to the row's owner, with the control as sender.
class TitleGlob : public StandardPanel {
public:
    /// What a titled row is made from: its legend, the legend column's width and its font.
    struct InitArgs : GlobCreationInfo {
        UIString title;
        // The legend column's width; 0 measures it from the title.
        int titleWidth = 0;
        Glib::FontDesc font;
        InitArgs() = default;
        InitArgs(const UIString& title, unsigned short width, unsigned short height) : GlobCreationInfo(width, height), title(title) {}
    };

    explicit TitleGlob(const InitArgs& args);
    const char* idstring() const override { return "TitleGlob"; }

    void setTitle(const UIString& title, const Glib::FontDesc& font = {}, eRedrawFlag flag = kRedraw) override;
    const UIString& getTitle() const { return legend_; }
    // A width below 0 is taken as 0, one beyond the row as the row's width.
    void setTitleWidth(int width, eRedrawFlag flag = kRedraw);
    int getTitleWidth() const;
    // The legend column's width that shows `title` whole in `font`.
    static int calcTitleWidth(const UIString& title, const Glib::FontDesc& font = {});
    void setTitleAlignment(Glib::eHorizontalAlign align);
    Glib::eHorizontalAlign getTitleAlignment() const { return align_; }

    // The legend column, and the room right of it that the control is given.
    BoxInt titleBox() const;
    BoxInt controlBox() const;
    // The row's control; null until a child is added. A glob that is not a child of
    // the row is refused.
    Glob* getControl() const;
    void setControl(Glob* control);

    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    void resize(double width, double height) override;
    void drawBackground() override;
    void handleUIChange(unsigned int what) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    int handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) override;

protected:
    void handleWidgetAdded(const WidgetDetails& details) override;

private:
    // Moves the column's edge; the control gives or takes the difference.
    void applyTitleWidth(int width);
    void centreControl();

    UIString legend_;
    Glib::FontDesc requestedFont_, legendFont_;
    int titleWidth_ = 0;
    bool autoWidth_ = true;
    Glib::eHorizontalAlign align_ = Glib::kAlignLeft;
    Glob* control_ = nullptr;
    IdStamp controlStamp_;
};
