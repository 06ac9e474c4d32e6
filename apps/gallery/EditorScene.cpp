// The code editor holding a panel description in JSON, as a developer writes one:
// scrolled a little way in, with the caret on a line of the description.
#include "GalleryScene.h"

#include "controls/CodeEditor.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"

namespace {

const wchar_t* const kDescription = LR"json({
    "rows": [
        { "type": "heading", "legend": "Export" },
        { "type": "text", "name": "title", "legend": "Title", "value": "Interview, take 3", "hint": "A name for the file" },
        { "type": "bool", "name": "audio", "legend": "Include audio", "default": true },
        {
            "type": "int",
            "name": "channels",
            "legend": "Channels",
            "values": { "Mono": 1, "Stereo": 2, "Surround 5.1": 6 },
            "choice": "2",
            "active if": "audio=1"
        },
        { "type": "float", "name": "gain", "legend": "Gain (dB)", "min": -24.0, "max": 12.0, "default": 0.0 },
        { "type": "int", "name": "quality", "legend": "Quality", "min": 1, "max": 100, "default": 80 },
        { "type": "label", "legend": "Files are written beside the project, in a folder named after the <b>title</b>." }
    ]
})json";

void buildEditor() {
    const UifStd& u = UifStd::instance();
    const Screen& screen = GlobManager::instance().screen();
    int w = 640, h = 420;
    StandardPanel* p = GalleryScene::makePanel(w, h, L"Code editor", {40, screen.height() - 40 - h});
    BoxInt user = p->getUserArea();
    int gap = u.getWidgetGap();
    CodeEditor::InitArgs args(LightweightString<wchar_t>(kDescription), static_cast<unsigned short>(user.width() - 2 * gap),
                              static_cast<unsigned short>(user.height() - 2 * gap));
    auto* editor = p->createWidget<CodeEditor>(args, Glob::UserTopLeft(gap, gap));
    p->tabOrder().addTabStop(*editor);
    GlobManager::instance().realize(p);
    set_kbd_focus(editor);
    editor->setCursorPosition(editor->indexOf(6, 12));
}

GallerySceneRegistration editor("code-editor", "A JSON panel description in the code editor, with line numbers", buildEditor);

} // namespace
