#include "UIBuilderTestPanel.h"

#include "controls/CodeEditor.h"
#include "controls/PushButton.h"
#include "draw/UifStd.h"
#include "glob/makeTopLevel.h"
#include "platform/CommandRegistrar.h"
#include "platform/JSON.h"

namespace {

const wchar_t* kStarter = LR"({"params": [
    {"type": "bool", "name": "on", "legend": "On", "default": true},
    {"type": "float", "name": "gain", "legend": "Gain", "min": 0, "max": 2, "default": 1, "active if": "on=true"}
]})";

const CommandRegistrar command("makeUIBuilderTestPanel", [](const Zn::Ptr<iObject>&) { UIBuilderTestPanel::make(); });

} // namespace

UIBuilderTestPanel::UIBuilderTestPanel(const InitArgs& args) : StandardPanel(args) {
    setBorder(getDefaultBorder());
    addStandardWidgets(kCloseBox | kTitleBar | kDoItButton);
    setTitle(UIString(L"UIBuilder Test Panel"), UifStd::instance().getTitleFont(), kNoRedraw);
    const UifStd& u = UifStd::instance();
    PushButton::InitArgs buttonArgs(UIString(L"Build"), WidgetCallback(doItMsg), 0, static_cast<unsigned short>(u.getRowHeight()));
    buttonArgs.width = static_cast<unsigned short>(Button::calcWidth(UIString(L"Build")));
    auto* button = createWidget<PushButton>(buttonArgs, Glob::UserBottomRight(0, 0));
    const BoxInt user = getUserArea();
    CodeEditor::InitArgs editorArgs(kStarter, static_cast<unsigned short>(user.width()),
                                    static_cast<unsigned short>(user.height() - button->height() - u.getWidgetGap()));
    editor_ = createWidget<CodeEditor>(editorArgs, Glob::UserTopLeft(0, 0));
}

UIBuilderTestPanel* UIBuilderTestPanel::make() { return makeTopLevel<UIBuilderTestPanel>(InitArgs(800, 600), Glob::Centre(0, 0)); }

int UIBuilderTestPanel::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == doItMsg) {
        build();
        return 1;
    }
    return StandardPanel::handleMessageEvent(message, sender);
}

void UIBuilderTestPanel::build() {
    host_.deleteGlob();
    Zn::Ptr<JSON::Element> description = JSON::parse(editor_->getText());
    if (!description) return;
    HostPanel::InitArgs args(400, 300);
    args.border = Border(Border::kNoBorder, 0, 15);
    args.description = description;
    args.position = Glob::RightOf(10, this, kAlignCentre);
    host_.reset(HostPanel::make(args));
}
