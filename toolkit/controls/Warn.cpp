#include "Warn.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

#include <algorithm>

namespace {
constexpr ResId kWarningId = 9;
}

Warn::Warn(const InitArgs& args) : Message(args, args.labels, args.callbacks) {
    if (args.title.empty()) setTitle(UIString(kWarningId), {}, kNoRedraw);
}

BoxInt Warn::stripeBox() const {
    const BoxInt ua = getUserArea();
    // Half the text's indent, so the text keeps clear of it.
    const int w = std::max(2, UifStd::instance().getTextIndent() / 2);
    return BoxInt(ua.x1, ua.y1, std::min(ua.x2, ua.x1 + w), ua.y2);
}

void Warn::drawBackground() {
    Message::drawBackground();
    CanvasRenderer(canvas()).render(Glib::RectDescription(stripeBox(), getPalette().warning()));
}

Warn* make_warn(const UIString& title, const UIString& text, const std::vector<UIString>& labels, const std::vector<WidgetCallback>& callbacks,
                EventHandler* client, bool modal) {
    Warn::InitArgs args(title, text, labels, callbacks);
    args.palette = UifStd::instance().getColourScheme();
    args.client = client;
    args.modal = modal;
    Drawable::disableRedraws();
    auto* w = new Warn(args);
    Message::show(w);
    Drawable::enableRedraws();
    return w;
}
