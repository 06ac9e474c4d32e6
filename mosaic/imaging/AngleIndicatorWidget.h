#pragma once

#include "controls/StandardPanel.h"

// An angle in degrees, clockwise from straight up.
using Angle = double;

// How far apart two angles are the short way round: 0 to 180.
Angle calcSmallestDifference(Angle a, Angle b);

/// A dial for one angle: a needle from the hub, a reset mark at the default angle and
/// eight ticks. Dragging the needle turns it, a left click away from it resets the
/// dial, the wheel steps it by a degree. The value lives in the subclass, which is
/// told of every change with its kind (the DataChangeType numbers 0 to 3).
class AngleIndicatorWidget : public StandardPanel {
public:
    AngleIndicatorWidget(unsigned short size, const Palette& palette, Canvas* canvas);
    explicit AngleIndicatorWidget(const StandardPanel::InitArgs& args);
    const char* idstring() const override { return "AngleIndicatorWidget"; }

    virtual Angle getAngle() const = 0;
    virtual void setAngle(int changeKind, Angle angle) = 0;
    virtual Angle getDefaultAngle() const = 0;
    virtual Colour getCentreColour() const { return getCol(); }

    XY<int> getCentre() const;
    int getRadius() const;
    // The angle of a point of the widget as seen from the centre; the centre itself is 270.
    Angle calcAngleToPos(const XY<int>& p) const;
    // The point at `radius` from the centre in the direction `angle`.
    XY<double> pointAt(double radius, Angle angle) const;

    MouseCursorID contextCursor(const XY<int>& p) const override;
    int handleMouseEvent(const Event& e) override;
    void handleMouseContainment(bool inside) override;
    void drawBackground() override;

    // How near the needle a press must be to take it.
    static constexpr Angle kGrabAngle = 20.0;

private:
    bool dragging_ = false;
    bool mouseInside_ = false;
};
