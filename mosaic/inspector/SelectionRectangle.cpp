#include "SelectionRectangle.h"

#include "draw/CanvasRenderer.h"
#include "glob/makeTopLevel.h"

SelectionRectangle::SelectionRectangle(const InitArgs& args) : StandardPanel(args) {
    setPassesInput(true);
    setOpacity(args.opacity);
}

SelectionRectangle* SelectionRectangle::showOver(Glob* target) {
    if (!is_good_glob_ptr(target)) return nullptr;
    InitArgs args(static_cast<unsigned short>(target->width()), static_cast<unsigned short>(target->height()));
    return makeTopLevel<SelectionRectangle>(args, Glob::BottomLeft(target->screenPos()));
}

void SelectionRectangle::drawBackground() {
    CanvasRenderer(canvas()).render(Glib::RectDescription(BoxInt(0, 0, width(), height()), getPalette().selection(kSelectionFocused)));
}
