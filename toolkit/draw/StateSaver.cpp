#include "StateSaver.h"

#include "Canvas.h"

#include <cairo.h>

namespace Glib {

namespace {
thread_local Canvas* current = nullptr;
}

Canvas* currentCanvas() { return current; }
void setCurrentCanvas(Canvas* c) { current = c; }

StateSaver::StateSaver() : canvas_(current) {
    if (canvas_) cairo_save(canvas_->context());
}

StateSaver::~StateSaver() {
    if (canvas_) cairo_restore(canvas_->context());
    current = canvas_;
}

} // namespace Glib
