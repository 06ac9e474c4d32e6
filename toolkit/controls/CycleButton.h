#pragma once

#include "Button.h"
#include "image/iHostImage.h"

#include <vector>

/// A button that steps through a list of states, one label each, on every click,
/// and fires its callback after the step. Shift+click or the Up key steps back.
/// States may show icons instead of labels: a state with an icon that can be read
/// shows the icon, any other its label.
class CycleButton : public Button {
public:
    /// What a CycleButton is made from: the label of each state, the state shown first, and what a click does.
    struct InitArgs : GlobCreationInfo {
        std::vector<UIString> labels;
        unsigned short state = 0;
        WidgetCallback callback;
        InitArgs() = default;
        InitArgs(const std::vector<UIString>& labels, const WidgetCallback& callback = {}, unsigned short width = 0, unsigned short height = 0)
            : GlobCreationInfo(width, height), labels(labels), callback(callback) {}
    };

    explicit CycleButton(const InitArgs& args);
    const char* idstring() const override { return "CycleButton"; }

    void setPickStrings(const std::vector<UIString>& labels, eRedrawFlag flag = kRedraw);
    const std::vector<UIString>& getPickStrings() const { return labels_; }
    // States past the end are held to the last one.
    void setPickState(unsigned short state, eRedrawFlag flag = kRedraw);
    unsigned short getPickState() const { return state_; }
    // Icons by path, one per state, in state order; there are as many states as
    // there are labels or icons, whichever is more.
    void setPickIcons(const std::vector<LightweightString<wchar_t>>& paths, eRedrawFlag flag = kRedraw);
    bool showsIcon() const { return static_cast<bool>(currentIcon()); }
    std::size_t numStates() const { return std::max(labels_.size(), icons_.size()); }

    void drawBackground() override;

protected:
    void clicked() override;
    int handleKey(int key) override;

private:
    void step(int by);
    void showState(eRedrawFlag flag);
    Zn::Ptr<iHostImage> currentIcon() const;

    std::vector<UIString> labels_;
    std::vector<Zn::Ptr<iHostImage>> icons_;
    unsigned short state_ = 0;
};
