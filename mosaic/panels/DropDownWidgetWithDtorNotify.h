#pragma once

#include "controls/StandardPanel.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobHandle.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "glob/Messaging.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

template <class T>
class DropDownButtonEx;

/// The widget a DropDownButtonEx<T> opens: a T that tells its button when it goes
/// ("menu_poot", posted; not once torn off or when the button has heard it), and that can be torn off: dragged further than a row's
/// height, a detachable widget leaves its button ("detach", at once) and goes on as
/// a free panel that follows the pointer until the button is released.
template <class T>
class DropDownWidgetWithDtorNotify : public T {
    static_assert(std::is_base_of_v<StandardPanel, T>, "a dropped widget is a panel");

public:
    DropDownWidgetWithDtorNotify(const typename T::InitArgs& args, DropDownButtonEx<T>* owner) : T(args), owner_(owner) {}
    ~DropDownWidgetWithDtorNotify() override {
        if (DropDownButtonEx<T>* owner = owner_.get()) sendMessage(GlobManager::dismissedMsg, owner, this);
    }

    void setDetachable(bool d) { detachable_ = d; }
    bool isDetachable() const { return detachable_; }
    DropDownButtonEx<T>* owner() const { return owner_.get(); }
    // The button has heard of this widget's end already: the destructor tells it nothing.
    void forgetOwner() { owner_.reset(nullptr); }

    int handleMouseEvent(const Event& e) override {
        if (mouse_down_event(e)) pressedAt_ = e.screenPos();
        if (mouse_up_event(e)) pressedAt_ = XY<int>(Glob::kUnset, Glob::kUnset);
        if (detachable_ && !this->isMovable() && mouse_move_event(e) && pressedAt_.x != Glob::kUnset) {
            const double dx = e.screenPos().x - pressedAt_.x, dy = e.screenPos().y - pressedAt_.y;
            if (static_cast<int>(std::pow(dx * dx + dy * dy, 0.5)) > UifStd::instance().getRowHeight()) setAttached(false);
        }
        return T::handleMouseEvent(e);
    }

    // Detached, the widget is a free, movable panel that follows the pointer for now.
    void setAttached(bool attached) {
        if (DropDownButtonEx<T>* owner = owner_.get()) callMessage("detach", owner, this);
        if (!attached) owner_.reset(nullptr);
        this->setMovable(!attached);
        this->unsetModalContextGlob(this);
        GlobManager::instance().redisplay(this, XY<int>(this->getX(), this->getY()), kBottomLeft, true);
        if (!attached) this->startMoving(GlobManager::instance().input().mousePos(), false);
    }

    // A pinned widget stays when the user presses elsewhere.
    void handlePinned(bool pinned) override {
        T::handlePinned(pinned);
        if (pinned)
            this->unsetModalContextGlob(this);
        else if (DropDownButtonEx<T>* owner = owner_.get())
            owner->setModalContextGlob(this, owner);
    }

    // Hides the edge shared with the button, so that the two read as one shape.
    void drawBorder() override {
        T::drawBorder();
        DropDownButtonEx<T>* owner = owner_.get();
        if (!owner || this->isMovable()) return;
        const int t = UifStd::instance().getIndentWidth();
        const XY<int> b = owner->screenPos();
        const int bw = owner->width(), bh = owner->height(), W = this->width(), H = this->height();
        BoxInt edge;
        if (owner->getDropSide() == kRightOf) {
            edge = this->getY() == b.y ? BoxInt(0, 0, t, std::min(bh, H)) : BoxInt(0, std::max(0, H - bh), t, H);
        } else if (owner->getDropSide() == kBelow && bw != W) {
            const int x = std::clamp(b.x - this->getX(), 0, W);
            edge = this->getY() < b.y ? BoxInt(x, H - t, std::min(W, x + bw), H) : BoxInt(x, 0, std::min(W, x + bw), t);
        }
        if (!edge.isEmpty()) CanvasRenderer(this->canvas()).render(Glib::RectDescription(edge, this->getPalette().window(kShadeNormal)));
    }

private:
    GlobHandle<DropDownButtonEx<T>> owner_;
    bool detachable_ = false;
    XY<int> pressedAt_{Glob::kUnset, Glob::kUnset};
};
