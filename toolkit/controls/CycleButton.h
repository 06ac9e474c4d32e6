#pragma once

#include "Button.h"

#include <vector>

// A button that steps through a list of states, one label each, on every click,
// and fires its callback after the step. Shift+click or the Up key steps back.
class CycleButton : public Button {
public:
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
    std::size_t numStates() const { return labels_.size(); }

protected:
    void clicked() override;
    int handleKey(int key) override;

private:
    void step(int by);
    void showState(eRedrawFlag flag);

    std::vector<UIString> labels_;
    unsigned short state_ = 0;
};
