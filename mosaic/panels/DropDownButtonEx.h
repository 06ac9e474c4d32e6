#pragma once

#include "DropDownButton.h"
#include "DropDownWidgetWithDtorNotify.h"
#include "calcDropDownPos.h"

/// A drop-down button that makes its widget from a stored T::InitArgs and lets it
/// be torn off. Drop modes: kPlainDrop; kDetachableDrop, the widget can be torn off
/// and lives on by itself (the button then forgets it and can open another);
/// kMovableDrop, the widget is a movable panel from the start, not modal, and the
/// button does not latch. The button's parent hears "ddBtnClickMsg" (at once)
/// before the widget opens, and every message the widget sends the button.
/// The widget opens below the button, or above it where there is no room below.
template <class T>
class DropDownButtonEx : public DropDownButton<T> {
public:
    /// What a DropDownButtonEx is made from: a button's record and the record of the widget it drops down.
    struct InitArgs : DropDownButtonInitArgs {
        typename T::InitArgs dropDownArgs;
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height, const typename T::InitArgs& args) : dropDownArgs(args) {
            this->width = width;
            this->height = height;
        }
    };
    enum eDropMode { kPlainDrop = 0, kDetachableDrop = 1, kMovableDrop = 2 };
    static constexpr const char* clickMsg = "ddBtnClickMsg";

    explicit DropDownButtonEx(const InitArgs& args) : DropDownButton<T>(args) {
        setDropDownArgs(args.dropDownArgs);
        this->setLatching(true);
    }

    void setDropMode(eDropMode mode) {
        dropMode_ = mode;
        this->setLatching(mode != kMovableDrop);
    }
    eDropMode getDropMode() const { return dropMode_; }
    void setDropDownArgs(const typename T::InitArgs& args) {
        args_ = args;
        args_.palette = makeWindowPalette(this->getCol(), this->getPalette());
    }
    const typename T::InitArgs& getDropDownArgs() const { return args_; }
    void setPalette(const Palette& p) override {
        Button::setPalette(p);
        args_.palette = makeWindowPalette(this->getCol(), p);
    }

    int react(const Event& e) override {
        if (e.isMessage() && e.messageText() == "detach") {
            // The widget lives on by itself; the button no longer speaks for it.
            this->forgetDropDown();
            this->setLatching(false, false);
            this->setState(Button::kButtonUp, 1);
            return 1;
        }
        if (e.isMessage() && e.messageText() == DropDownButton<T>::goneMsg && !this->isStaleGoneMsg(e)) {
            // Dismissed by the toolkit while it still stands: its own notice would come twice.
            if (auto* w = dynamic_cast<DropDownWidgetWithDtorNotify<T>*>(event_to_sender_glob(e)); w && this->isDroppedWidget(w)) w->forgetOwner();
            this->setLatching(dropMode_ != kMovableDrop, false);
        }
        return DropDownButton<T>::react(e);
    }

protected:
    bool handleDropDownMessage(const char* message) override {
        if (Glob* p = this->parent()) this->sendMsg(p, message);
        return false;
    }

    T* generateDropDown() override {
        if (Glob* p = this->parent()) callMessage(clickMsg, p, this);
        typename T::InitArgs args = args_;
        args.canvas = nullptr;
        args.isChild = false;
        args.width = std::max<int>(args.width, this->width());
        auto* w = new DropDownWidgetWithDtorNotify<T>(args, this);
        if (dropMode_ == kMovableDrop) w->setMovable(true);
        if (!w->isMovable() && !w->isPinned()) this->setModalContextGlob(w, this);
        w->setDetachable(dropMode_ == kDetachableDrop);
        bool moved = false;
        const XY<int> pos = calcDropDownPos(this, w->size(), this->getDropSide(), this->getDropAlignment(), &moved);
        if (moved && w->getBorder().type() == Border::kDropMenuBorder)
            w->addSurround(Colour(0.0, 0.0, 0.0), 2 * UifStd::instance().getWidgetGap(), 0.35f, pos.y == 0 ? 15 : 13);
        w->setupRootPos(pos);
        w->setLogicalParent(this);
        GlobManager::instance().realize(w);
        return w;
    }

private:
    typename T::InitArgs args_;
    eDropMode dropMode_ = kPlainDrop;
};
