// Tracks: a column of track headers (one latched with a glow, one of two stacked
// channels), an angle dial holding its own value, bookmark ribbons and a corner
// highlight.
#include "GalleryScene.h"

#include "controls/StandardPanel.h"
#include "glob/GlobManager.h"
#include "imaging/AngleIndicatorWidget.h"
#include "imaging/CornerHighlightWidget.h"
#include "imaging/RibbonWidget.h"
#include "imaging/TrackButton.h"

#include <string>
#include <vector>

namespace {

// A dial that keeps its angle itself, as a panel's value would.
class SceneDial : public AngleIndicatorWidget {
public:
    using AngleIndicatorWidget::AngleIndicatorWidget;
    Angle getAngle() const override { return angle_; }
    void setAngle(int, Angle a) override { angle_ = a; }
    Angle getDefaultAngle() const override { return 0.0; }

private:
    Angle angle_ = 60.0;
};

void buildTracks() {
    const UifStd& u = UifStd::instance();
    const int row = u.getRowHeight(), gap = u.getWidgetGap();
    auto* p = GalleryScene::makePanel(22 * row, 14 * row, L"Tracks", {300, 250});
    Drawable::disableRedraws();

    const std::vector<std::vector<LightweightString<wchar_t>>> tracks = {{L"V2"}, {L"V1"}, {L"A1", L"A2"}, {L"A3"}};
    Glob* above = nullptr;
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        TrackButton::InitArgs args({}, {}, static_cast<unsigned short>(6 * row), static_cast<unsigned short>(tracks[i].size() * 2 * row));
        const WidgetPosition at = above ? Glob::Below(gap, above) : Glob::UserTopLeft(gap, gap);
        auto* t = p->createWidget<TrackButton>(args, at);
        t->setName(LightweightString<char>("track") + LightweightString<char>(std::to_string(i + 1).c_str()));
        t->setTrackName(tracks[i]);
        t->setResizeAllowed(true);
        t->setSelected(i == 1 || i == 2, kNoRedraw);
        if (i == 1) t->setGlowColour(TrackButton::defaultGlowColour());
        above = t;
    }

    StandardPanel::InitArgs dialArgs(static_cast<unsigned short>(4 * row), static_cast<unsigned short>(4 * row));
    p->createWidget<SceneDial>(dialArgs, Glob::UserTopRight(2 * gap, gap))->setName("dial");
    RibbonWidget::InitArgs ribbon(static_cast<unsigned short>(3 * gap), static_cast<unsigned short>(row), Colour(0.85, 0.2, 0.2, true), true);
    p->createWidget<RibbonWidget>(ribbon, Glob::UserBottomRight(8 * row, 2 * gap))->setName("ribbon");
    CornerHighlightWidget::InitArgs corner(static_cast<unsigned short>(row), static_cast<unsigned short>(row), Colour(0.95, 0.7, 0.1, true));
    p->createWidget<CornerHighlightWidget>(corner, Glob::UserBottomRight(4 * row, 2 * gap))->setName("corner");

    GlobManager::instance().realize(p);
    Drawable::enableRedraws();
}

GallerySceneRegistration tracks("tracks", "Track headers, latched, glowing and stacked; an angle dial, bookmark ribbons and a corner highlight",
                                buildTracks);

} // namespace
