#pragma once

#include "controls/StandardPanel.h"
#include "core/Box.h"

class Slider;

/// A window that shows the screen around the pointer enlarged, grabbing it anew at
/// every timer tick while it is visible. Style 0 is a tool window with a title, a
/// close box and a slider for the level, which it keeps in the preferences
/// "Magnifier width", "Magnifier height" and "Magnifier level"; style 1 is the bare
/// frame that follows the eye dropper, with a marked area. User-interface thread.
class MagnifyTool : public StandardPanel {
public:
    enum eStyle { kToolWindow = 0, kBareFrame = 1 };
    static constexpr ResId kTitle = 470;
    static constexpr const char* sliderMsg = "slider";
    static constexpr const char* widthPref = "Magnifier width";
    static constexpr const char* heightPref = "Magnifier height";
    static constexpr const char* levelPref = "Magnifier level";

    /// What a MagnifyTool is made from: a panel's record, its style and its level (0: the preference).
    struct InitArgs : StandardPanel::InitArgs {
        int style = kToolWindow;
        int level = 0;
        InitArgs() = default;
        InitArgs(int style, int level) : style(style), level(level) {}
    };

    explicit MagnifyTool(const InitArgs& args);
    explicit MagnifyTool(const GlobCreationInfo& info);
    ~MagnifyTool() override;
    const char* idstring() const override { return "MagnifyTool"; }
    static Glob* create(GlobCreationInfo* info);

    static XY<int> calcSize();
    static int getDefaultMagWidth();
    static int getDefaultMagHeight();
    static int getDefaultMagLevel();

    void resize(double width, double height) override;
    void setVisible(bool visible) override;
    void drawBackground() override;
    int handleTimerEvent() override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    void drawMagnified();
    UIString buildTitleStr() const;

    int level() const { return level_; }
    XY<int> imageSize() const { return {imageWidth_, imageHeight_}; }
    // The screen area the last picture showed, around the pointer.
    const BoxInt& sourceBox() const { return source_; }
    void setArea(const Zn::Box<double, Zn::BottomUpTraits>& area) { area_ = area; }
    Slider* levelSlider() const { return slider_; }

private:
    void init();
    // The picture's box in this glob's coordinates: the top of the user area.
    BoxInt pictureBox() const;

    int imageWidth_ = 0, imageHeight_ = 0;
    Slider* slider_ = nullptr;
    int level_;
    int style_;
    Zn::Box<double, Zn::BottomUpTraits> area_{};
    BoxInt source_;
};

// Opens a style 0 magnifier at the pointer: the command "Show Magnifier".
void showMagnifier();
