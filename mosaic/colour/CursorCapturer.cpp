#include "CursorCapturer.h"

#include "ColEyeDropBase.h"
#include "MagnifyTool.h"
#include "controls/ZnTooltipsEnable.h"
#include "core/MethodCallback.h"
#include "core/WrappedData.h"
#include "draw/StateSaver.h"
#include "glob/CanvasStack.h"
#include "glob/GlobManager.h"
#include "glob/MouseListeners.h"
#include "glob/getEventInterceptStack.h"
#include "glob/glib_setCursor.h"
#include "platform/LogBoth.h"

#include <algorithm>

CursorCapturer::CursorCapturer(const ImageButton::InitArgs& args) : ImageButton(args) { setLatching(true); }

CursorCapturer::~CursorCapturer() { disableCapture(); }

XY<int> CursorCapturer::magnifierPos(XY<int> mouse) { return {mouse.x + kMagnifierOffset, mouse.y - kMagnifierSize}; }

int CursorCapturer::enableCapture() {
    if (capturing_) return 0;
    filterId_ = getEventInterceptStack().push(this, nullptr);
    if (!filterId_.valid()) {
        LogBoth("Failed to enabled cursor capture.");
        return -1;
    }
    capturing_ = true;
    glib_enableMouseContextLogic(false);
    ZnTooltipsEnable(false);
    glib_setCursor(kCursorEyeDropper);
    listeners_.push_back(Glib::addMouseListener(
        Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new MethodCallback<CursorCapturer, NotifyMsg, int>(this, &CursorCapturer::handleGlobalMouseEvent))));
    MagnifyTool::InitArgs args(1, 8);
    args.width = args.height = kMagnifierSize;
    args.border = Border(Border::kNoBorder, 0, 15);
    Drawable::disableRedraws();
    {
        const Glib::StateSaver saver;
        auto* m = new MagnifyTool(args);
        m->setupRootPos(magnifierPos(glib_getMousePos()));
        GlobManager::instance().realize(m);
        magnifier_.reset(m, true);
    }
    Drawable::enableRedraws();
    return 0;
}

int CursorCapturer::disableCapture() {
    if (!capturing_) return 0;
    int result = 0;
    if (getEventInterceptStack().pop(filterId_)) {
        capturing_ = false;
    } else {
        LogBoth("Failed to disable cursor capture.");
        result = -1;
    }
    glib_enableMouseContextLogic(true);
    ZnTooltipsEnable(true);
    start_ = {-1.0, -1.0};
    magnifier_.deleteGlob();
    return result;
}

bool CursorCapturer::cursorOverButton(unsigned short x, unsigned short y) {
    const XY<int> me = screenPos();
    return x >= me.x && x < me.x + width() && y >= me.y && y < me.y + height();
}

Zn::Box<double, Zn::BottomUpTraits> CursorCapturer::getAreaToSample() const {
    const XY<int> m = glib_getMousePos();
    const double mx = m.x, my = m.y;
    return {std::min(mx, start_.x), std::min(my, start_.y), std::max({mx, start_.x, mx + 1.0}), std::max({my, start_.y, my + 1.0})};
}

int CursorCapturer::handleGlobalMouseEvent(const NotifyMsg& msg) {
    MagnifyTool* m = magnifier_.get();
    if (!m) return 0;
    auto data = msg.dataAs<WrappedData<Event>>();
    if (!data) return 0;
    m->setupRootPos(magnifierPos(data->get().screenPos()));
    if (style_ == kSampleArea && start_.x > 0) m->setArea(getAreaToSample());
    glib_setCursor(kCursorEyeDropper);
    return 0;
}

bool CursorCapturer::fsFilterThis(const Event& e, void*) {
    if (!capturing_ || !(mouse_event(e) || key_event(e))) return false;
    Event local = e;
    local.setLocalPos(screenXYToGlobXY(e.screenPos()));
    react(local);
    // While capturing nothing else on the screen sees the mouse or the keys.
    return true;
}

void CursorCapturer::finishArea() {
    const auto area = getAreaToSample();
    if (sampleKind_ == 1) {
        range_ = ColEyeDropBase::getPixelRange(area);
        if (Glob* p = parent()) sendMsg(p, "colour_eye_dropper HSV ");
    } else if (Glob* p = parent()) {
        sendMsg(p, ColEyeDropBase::pixelToMsg(ColEyeDropBase::getPixelColour(area)).c_str());
    }
}

int CursorCapturer::react(const Event& e) {
    if (mouse_event(e) && isActive()) {
        if (!mouse_left_event(e)) return 1;
        const XY<int> at = e.screenPos();
        const bool overButton = cursorOverButton(static_cast<unsigned short>(std::max(0, at.x)), static_cast<unsigned short>(std::max(0, at.y)));
        if (mouse_down_event(e)) {
            if (!capturing_) {
                setState(kButtonDown, 1);
            } else if (!overButton) {
                if (style_ == kSampleArea)
                    start_ = {static_cast<double>(at.x), static_cast<double>(at.y)};
                else
                    evaluatePixelAndNotify(static_cast<unsigned short>(std::max(0, at.x)), static_cast<unsigned short>(std::max(0, at.y)));
            }
            return 1;
        }
        if (mouse_up_event(e)) {
            const GlobHandle<Glob> self(this);
            if (capturing_) {
                if (style_ == kSampleArea && !overButton && start_.x >= 0.0) finishArea();
                setState(kButtonUp, 1);
                disableCapture();
            } else if (getState() == kButtonDown) {
                enableCapture();
            }
            return self ? Button::react(e) : 1;
        }
        return capturing_ ? 1 : Button::react(e);
    }
    if (key_event(e) && capturing_) {
        if (e.type() == Event::kKeyPress && Keys::plain(e.keyCode()) == Keys::Escape) {
            setState(kButtonUp, 1);
            disableCapture();
        }
        return 1;
    }
    return Button::react(e);
}
