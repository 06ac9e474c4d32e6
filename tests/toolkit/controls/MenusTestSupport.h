#pragma once

#include "ControlsTestSupport.h"
#include "controls/Menu.h"

// Helpers for tests of menus and the controls that open them.
class MenusTest : public ControlsTest {
protected:
    // Pops a menu up at `topLeft` on the screen with the host as its owner.
    Menu* popUp(const std::vector<MenuItem>& rows, XY<int> topLeft = {700, 800}, int highlighted = -1) {
        Menu::InitArgs args(rows);
        args.palette = host->getPalette();
        args.highlighted = highlighted;
        auto* menu = new Menu(args);
        menu->popUpAt(host, topLeft);
        TestKit::pump();
        return menu;
    }
    // The screen point in the middle of a row of a menu.
    static XY<int> rowCentre(const Menu* m, int row) {
        BoxInt b = m->rowBox(row);
        return TestKit::screenPointOf(m, {(b.x1 + b.x2) / 2, (b.y1 + b.y2) / 2});
    }
    // How many pixels of `g` inside `box` are within `tolerance` of `colour`.
    static int pixelsLike(const Glob* g, const BoxInt& box, const Colour& colour, int tolerance = 40) {
        const std::uint32_t want = TestKit::argb(colour);
        int n = 0;
        for (int y = box.y1; y < box.y2; ++y)
            for (int x = box.x1; x < box.x2; ++x)
                if (similar(TestKit::globPixel(g, x, y), want, tolerance)) ++n;
        return n;
    }
    static bool alive(const Glob* g, const IdStamp& s) { return EventHandler::valid(g, s); }
};
