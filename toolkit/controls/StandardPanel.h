#pragma once

#include "MenuGlob.h"
#include "draw/FontDesc.h"
#include "glob/Border.h"
#include "glob/Glob.h"
#include "glob/TabOrderManager.h"

/// The toolkit's panel: a glob with a border, an optional title bar with window
/// furniture, a user area for its children, a tab order, a context menu, and a
/// dispatch of events to the handle... family. Most widgets derive from it.
class StandardPanel : public Glob, public Glib::FontUser, public MenuGlob {
public:
    /// What a StandardPanel is made from: a glob's record and a border (none by default).
    struct InitArgs : GlobCreationInfo {
        Border border{Border::kNoBorder, 0, 15};
        InitArgs() = default;
        InitArgs(unsigned short w, unsigned short h) : GlobCreationInfo(w, h) {}
        InitArgs(const GlobCreationInfo& info, const Border& b) : GlobCreationInfo(info), border(b) {}
    };

    // Furniture bits of addStandardWidgets (NUMBERS.md). The buttons sit in the title
    // bar: the close box calls handlePoot, the cogs open the panel's menu, the flip
    // button handleFlipSize, the do-it button posts doItMsg to the panel, the pin
    // handlePinned. kTitleBar gives a title bar even with no title, and the panel
    // moves by it; the grip at the bottom right resizes the panel.
    enum StandardWidgets : int {
        kCloseBox = 1,
        kCogsButton = 2,
        kFlipSizeButton = 4,
        kDoItButton = 8,
        kPinButton = 16,
        kTitleBar = 32,
        kResizeGrip = 0x80,
    };
    // The word for one bit, as a menu of the furniture names it: "Title", "Poot",
    // "Pin", "Cogs", "DoIt"; empty for any other number.
    static const char* standardWidgetName(int bit);
    enum eSpacing { kCompact = 0, kNormal = 1, kSpacious = 2 };
    // The name of the message that a panel's main action sends.
    static constexpr const char* doItMsg = "doIt";
    // The message that closes a panel as its close box does.
    static constexpr const char* pootMsg = "poot";

    explicit StandardPanel(const InitArgs& args);
    StandardPanel(unsigned short width, unsigned short height);
    StandardPanel(unsigned short width, unsigned short height, const Palette& palette, bool child, Canvas* canvas);
    ~StandardPanel() override;

    const char* idstring() const override { return "StandardPanel"; }

    // Makes a child from its record, the idiom of every compound widget: a width of
    // 0 becomes the width of this panel's user area; canvas and palette come from here.
    template <class T>
    T* createWidget(typename T::InitArgs& args, const WidgetPosition& position, WidgetSurround surround = {}) {
        if (args.width == 0) args.width = getUserArea().width();
        args.canvas = canvas();
        args.palette = getPalette();
        T* child = new T(args);
        addChild(child, position, surround);
        return child;
    }

    // Border and title.
    virtual void setBorder(const Border& b);
    const Border& getBorder() const { return border_; }
    virtual void setBorderStyle(Border::eType type);
    static Border getDefaultBorder();
    virtual void setTitle(const UIString& title, const Glib::FontDesc& font = {}, eRedrawFlag flag = kRedraw);
    const UIString& getTitle() const { return title_; }
    bool hasTitleBar() const;
    // The title bar's box, empty when there is none.
    BoxInt titleBarBox() const;

    // Window furniture.
    void addStandardWidgets(int bits);
    void removeStandardWidgets(int bits, bool redrawNow = true);
    int standardWidgets() const { return standardWidgets_; }
    bool isPinned() const { return pinned_; }

    // The user area of a panel of `size` with the given furniture and border, and
    // the panel size that gives a user area of `userSize`.
    BoxInt getUserArea() const override;
    static BoxInt getUserArea(int standardWidgets, const XY<int>& size, const Border& border);
    static BoxInt getUserAreaBorders(int standardWidgets, const Border& border);
    static XY<int> calcPanelSize(const XY<int>& userSize, int standardWidgets, const Border& border);
    static XY<int> calcSize(eSpacing spacing, const Border& border);
    XY<int> getOriginXY(eCoordinateOrigin origin) const;

    TabOrderManager& tabOrder() { return tabOrder_; }

    // Painting.
    void drawBackground() override;
    void drawBorder() override;
    virtual void drawTitleSeparator();

    // Events.
    int react(const Event& e) override;
    virtual int handleMessageEvent(const LightweightString<char>& message, Glob* sender);
    virtual int handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data);
    virtual int handleKeyboardEvent(int keyCode);
    virtual int handleKeyReleaseEvent(int keyCode);
    virtual int handleMouseEvent(const Event& e);
    virtual int handleTimerEvent();
    virtual int handleZoom(int) { return 0; }
    // The close box: by default the panel asks to be deleted.
    virtual void handlePoot();
    virtual void handleFlipSize();
    virtual void handlePinned(bool pinned) { pinned_ = pinned; }
    virtual void handleTitleChange() {}
    virtual void handleTitleWidgetResize() {}
    virtual void resizeChildren(int) { calcAbsoluteWidgetPositions(); }
    virtual int calcMaxTitleWidgetWidth() const;
    void resize(double width, double height) override;

    // The modifiers held with the key now being handled.
    unsigned currentModifiers() const { return modifiers_; }

private:
    void layoutFurniture();
    bool dragFrame(const Event& e);

    Border border_;
    UIString title_;
    Glib::FontDesc titleFont_;
    int standardWidgets_ = 0;
    std::vector<Glob*> furniture_;
    TabOrderManager tabOrder_;
    bool pinned_ = false;
    XY<int> flipSize_{-1, -1};
    enum { kNoDrag, kMoving, kResizing } drag_ = kNoDrag;
    XY<int> dragStart_, dragOrigin_, dragSize_;
    unsigned modifiers_ = 0;
};
