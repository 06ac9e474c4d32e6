#pragma once

#include "ColourDataValWidget.h"
#include "controls/StandardPanel.h"
#include "core/NormalisedRGB.h"
#include "image/iHostImage.h"

/// A round hue-saturation chooser: the angle on the disc is hue, the distance from
/// the centre saturation, and a small ring marks the bound colour. Drag the marker
/// (left or right button, or a chord anywhere in the chord area), or click beside it
/// to reset to the centre. Bound like any value widget: the colour goes to the
/// adaptor, and what comes back moves the marker.
///
/// The disc's picture is costly, so it is kept by each wheel and once more for all
/// wheels: a wheel of the size and background of the last picture built shares it.
/// Everything here belongs to the user-interface thread.
class HSColourWheel : public StandardPanel, public ColourDataValWidget {
public:
    /// What an HSColourWheel is made from: a panel's record.
    struct InitArgs : StandardPanel::InitArgs {
        using StandardPanel::InitArgs::InitArgs;
    };

    explicit HSColourWheel(const InitArgs& args);
    // A square wheel of `size` on `canvas` in the scheme's colours, its disc painted
    // with the value `value` and inset by `gap`.
    HSColourWheel(Canvas* canvas, unsigned short size, double value, unsigned short gap);
    const char* idstring() const override { return "HSColourWheel"; }

    MouseCursorID contextCursor(const XY<int>& p) const override;
    void resize(double width, double height) override;
    void setCol(const Colour& c, bool redrawNow) override;
    void setPalette(const Palette& p) override;
    void drawBackground() override;
    int handleMouseEvent(const Event& e) override;

    void setNewWidgetValue(ColourData& c, eRedrawFlag flag) override;
    ColourData getWidgetValue() const override;

    // Hooks for a wheel that shows another colour than it stores; both give their argument.
    virtual ColourData UIColourToDataColour(const ColourData& c) const { return c; }
    virtual ColourData UIColourFromDataColour(const ColourData& c) const { return c; }

    // The colour at a point of the disc (relative to its centre, y up) goes to the
    // adaptor; a point outside is pulled onto the rim first. A move of less than a
    // whole pixel sends nothing, except for a kChangeStart.
    void setFromXY(double x, double y, DataChangeType type);
    // To the adaptor, or with none only repainted: the colour is then lost.
    void setFromColour(const ColourData& colour, DataChangeType type);
    // Moves the marker; -1 when the point is the present one or not on the disc.
    int setCursor(double x, double y);
    XY<double> cursor() const { return {cursorX_, cursorY_}; }

    bool validColourPoint(double x, double y) const;
    // The square around the disc.
    bool pointOfInterest(double x, double y) const;
    // Pulls a point outside the disc onto its rim; true when it did.
    bool snapPoint(double& x, double& y, bool unused) const;
    // -1, leaving x and y, for a hue outside 0 to 360 or a saturation outside 0 to 1.
    int convertHStoXY(double h, double s, double& x, double& y) const;
    // -1 for a point whose whole-pixel distance reaches the radius.
    int convertXYtoHS(double x, double y, double& h, double& s) const;
    // The disc is turned and mirrored against the hue circle; display angles run
    // clockwise from straight up.
    static double convertHueToDisplayAngle(double h);
    static double convertDisplayToHueAngle(double a);
    // The marker's box, in the widget's coordinates.
    BoxInt getAreaForCrosshair() const;

    double radius() const { return radius_; }
    XY<double> centre() const { return centre_; }
    bool isDragging() const { return dragging_; }
    // The picture this wheel paints, null until it has painted.
    const Zn::Ptr<iHostImage>& wheelImage() const { return wheelImage_; }

    static Zn::Ptr<iHostImage> lastWheelImage_;
    static NormalisedRGB lastBgColour_;

private:
    void computeGeometry();
    void buildWheelImage(int side, const NormalisedRGB& bg);
    void drawCursor();
    // Whether the event moves the marker; `x`, `y` (the marker in widget
    // coordinates) become the pointer when it does.
    bool handleMouseCursorEvent(const Event& e, double& x, double& y);
    double boundAlpha() const { return getDataValue().getAlpha(); }

    double radius_ = 0.0;
    XY<double> centre_;
    double initialValue_;
    double lastValue_;
    unsigned short gap_;
    double cursorX_ = 0.0, cursorY_ = 0.0;
    XY<int> grabOffset_;
    bool dragging_ = false;
    bool justGrabbed_ = false;
    int chordX1_ = 0, chordX2_ = 0, chordY1_ = 0, chordY2_ = 0;
    Zn::Ptr<iHostImage> wheelImage_;
};
