#include "MagnifyTool.h"

#include "controls/Slider.h"
#include "draw/CanvasRenderer.h"
#include "draw/StateSaver.h"
#include "draw/UifStd.h"
#include "draw/drawDepthBox.h"
#include "draw/drawRoundedRectOutline.h"
#include "glob/CanvasStack.h"
#include "glob/GlobManager.h"
#include "glob/glib_getScreenRect.h"
#include "platform/CommandRegistrar.h"
#include "platform/EditorPreferences.h"
#include "platform/ResourceStrings.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {
constexpr int kDefaultWidth = 200, kDefaultHeight = 220, kDefaultLevel = 2;
constexpr int kMinSide = 150;
constexpr double kMaxLevel = 16.0;

CommandRegistrar showMagnifierCommand("Show Magnifier", [](const Zn::Ptr<iObject>&) { showMagnifier(); });
GlobKindRegistration magnifyToolKind("MagnifyTool", [](const GlobCreationInfo& info) { return new MagnifyTool(info); });

MagnifyTool::InitArgs toolRecord(const GlobCreationInfo& info) {
    MagnifyTool::InitArgs args(MagnifyTool::kToolWindow, 0);
    static_cast<GlobCreationInfo&>(args) = info;
    args.border = StandardPanel::getDefaultBorder();
    return args;
}
} // namespace

MagnifyTool::MagnifyTool(const InitArgs& args)
    : StandardPanel(args), level_(args.level > 0 ? args.level : getDefaultMagLevel()), style_(args.style == kBareFrame ? kBareFrame : kToolWindow) {
    init();
}

MagnifyTool::MagnifyTool(const GlobCreationInfo& info) : MagnifyTool(toolRecord(info)) {}

MagnifyTool::~MagnifyTool() {
    if (style_ != kToolWindow) return;
    prefs().setPreference(levelPref, level_);
    prefs().setPreference(widthPref, width());
    prefs().setPreference(heightPref, height());
}

Glob* MagnifyTool::create(GlobCreationInfo* info) { return info ? new MagnifyTool(*info) : nullptr; }

int MagnifyTool::getDefaultMagWidth() { return prefs().getPreference(widthPref, kDefaultWidth); }
int MagnifyTool::getDefaultMagHeight() { return prefs().getPreference(heightPref, kDefaultHeight); }
int MagnifyTool::getDefaultMagLevel() { return std::clamp(prefs().getPreference(levelPref, kDefaultLevel), 1, static_cast<int>(kMaxLevel)); }
XY<int> MagnifyTool::calcSize() { return {getDefaultMagWidth(), getDefaultMagHeight()}; }

void MagnifyTool::init() {
    const Glib::StateSaver saver;
    if (style_ == kToolWindow) {
        setBorder(getDefaultBorder());
        addStandardWidgets(kCloseBox);
        setTitle(buildTitleStr(), UifStd::instance().getTitleFont(), kNoRedraw);
        setMinSize(kMinSide, kMinSide);
        Slider::InitArgs args(getPalette().selection(), static_cast<unsigned short>(getUserArea().width()));
        args.height = static_cast<unsigned short>(UifStd::instance().getRowHeight());
        slider_ = createWidget<Slider>(args, Glob::UserBottomLeft(0, 0));
        slider_->setName("Magnifier level");
        slider_->setValueRange(1.0, kMaxLevel);
        slider_->setValueIncrement(1.0);
        slider_->setPosition(level_, kNoRedraw);
        slider_->setCallback(WidgetCallback(sliderMsg));
    } else {
        setBorder(Border(Border::kNoBorder, static_cast<unsigned short>(UifStd::instance().getWidgetGap()), 15));
    }
    setInterest(Event::kTimer);
    resize(width(), height());
}

void MagnifyTool::resize(double width, double height) {
    StandardPanel::resize(width, height);
    const BoxInt user = getUserArea();
    imageWidth_ = std::abs(user.width());
    imageHeight_ = std::abs(user.height());
    if (slider_) {
        slider_->resize(user.width(), UifStd::instance().getRowHeight());
        imageHeight_ = std::max(0, imageHeight_ - slider_->height() - UifStd::instance().getWidgetGap());
    }
}

void MagnifyTool::setVisible(bool visible) {
    Glob::setVisible(visible);
    if (visible)
        setInterest(Event::kTimer);
    else
        clearInterest(Event::kTimer);
}

BoxInt MagnifyTool::pictureBox() const {
    const BoxInt user = getUserArea();
    return BoxInt(user.x1, user.y2 - imageHeight_, user.x1 + imageWidth_, user.y2);
}

void MagnifyTool::drawBackground() {
    if (!canDraw()) return;
    StandardPanel::drawBackground();
    const XY<int> at = canvasPos();
    if (style_ == kToolWindow) {
        const BoxInt u = getUserArea();
        Glib::drawDepthBox(canvas(), BoxInt(at.x + u.x1 - 1, at.y + u.y1 - 1, at.x + u.x2 + 1, at.y + u.y2 + 1), getCol(), 1, Glib::kSunkenDepth);
    } else {
        Glib::drawRoundedRectOutline(canvas(), BoxInt(at.x, at.y, at.x + width(), at.y + height()), 2, 15, Glib::kOutlineInside,
                                     scale(getCol(), 0.2));
    }
    drawMagnified();
}

int MagnifyTool::handleTimerEvent() {
    drawMagnified();
    return 1;
}

int MagnifyTool::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (!message.startsWith(sliderMsg)) return 0;
    if (slider_) level_ = std::clamp(static_cast<int>(std::trunc(slider_->getPosition() + 0.5)), 1, static_cast<int>(kMaxLevel));
    if (style_ == kToolWindow) {
        setTitle(buildTitleStr(), UifStd::instance().getTitleFont(), kRedraw);
        slider_->redraw();
    }
    return 1;
}

UIString MagnifyTool::buildTitleStr() const {
    LightweightString<wchar_t> title = resourceStrW(kTitle);
    title += L" (";
    title += std::to_wstring(level_).c_str();
    title += L" : 1)";
    return UIString(title);
}

void MagnifyTool::drawMagnified() {
    if (!canDraw() || imageWidth_ <= 0 || imageHeight_ <= 0) return;
    // The pointer's pixel sits in the middle: odd counts of screen pixels.
    int cols = imageWidth_ / level_, rows = imageHeight_ / level_;
    if (imageWidth_ % level_) ++cols, ++rows;
    if (cols % 2 == 0) ++cols;
    if (rows % 2 == 0) ++rows;
    const XY<int> mouse(mouse_get_current_x(), mouse_get_current_y());
    source_ = BoxInt(mouse.x - cols / 2, mouse.y - rows / 2, mouse.x - cols / 2 + cols, mouse.y - rows / 2 + rows);
    const Zn::Ptr<iImage> grab = glib_getScreenRect(source_);
    if (!grab) return;
    const BoxInt picture = pictureBox();
    const XY<int> at = canvasPos() + XY<int>(picture.x1, picture.y1);
    const int cutX = (cols * level_ - imageWidth_) / 2, cutY = (rows * level_ - imageHeight_) / 2;
    canvas()->pushOrigin(at, BoxInt(at.x, at.y, at.x + imageWidth_, at.y + imageHeight_));
    Glib::ImageDescription image(grab, BoxInt(-cutX, -cutY, cols * level_ - cutX, rows * level_ - cutY));
    image.from = BoxInt(0, 0, cols, rows);
    image.smooth = false;
    const CanvasRenderer r(canvas());
    r.render(image);
    const XY<int> marker(imageWidth_ / 2 - level_ / 2, imageHeight_ / 2 - level_ / 2);
    Glib::drawDepthBox(canvas(), BoxInt(marker.x, marker.y, marker.x + level_, marker.y + level_), getCol(), 1, Glib::kSunkenDepth);
    if (area_.x2 != area_.x1 && area_.y2 != area_.y1) {
        const double cx = source_.x1 + std::abs(source_.x2 - source_.x1) / 2.0, cy = source_.y1 + std::abs(source_.y2 - source_.y1) / 2.0;
        auto map = [&](double v, double c, int m) { return static_cast<int>((v - c) * level_ + m); };
        const BoxInt box(map(area_.x1, cx, marker.x), map(area_.y1, cy, marker.y), map(area_.x2, cx, marker.x), map(area_.y2, cy, marker.y));
        Glib::drawRoundedRectOutline(canvas(), box, 2, 0, Glib::kOutlineOnEdge, Colour(0.9, 0.0, 0.0));
    }
    canvas()->popOrigin();
    GlobManager::instance().screenChanged();
}

void showMagnifier() {
    MagnifyTool::InitArgs args(MagnifyTool::kToolWindow, 0);
    const XY<int> size = MagnifyTool::calcSize();
    args.width = static_cast<unsigned short>(size.x);
    args.height = static_cast<unsigned short>(size.y);
    args.border = Border(Border::kNoBorder, 0, 15);
    GlobManager& gm = GlobManager::instance();
    const XY<int> pos = gm.getSafePosForGlob(nullptr, glib_getMousePos(), size);
    auto* tool = new MagnifyTool(args);
    tool->setName("MagnifyTool");
    tool->setupRootPos(pos);
    gm.realize(tool);
}
