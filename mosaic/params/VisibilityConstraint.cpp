#include "VisibilityConstraint.h"

#include "glob/Glob.h"

void VisibilityConstraint::valueChanged(const LightweightString<char>&, const LightweightString<wchar_t>& value) {
    if (!is_good_glob_ptr(widget_)) return;
    widget_->setVisible(value == required_);
    // The place a hidden row leaves must be repainted, which is its whole window's business.
    if (!widget_->isVisible() && widget_->parent())
        getRootParent(widget_)->redraw();
    else
        widget_->redraw();
}
