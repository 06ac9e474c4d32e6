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
    static int pixelsLike(const Glob* g, const BoxInt& box, const Colour& colour, int tolerance = 40) {
        return TestKit::countPixels(g, box, colour, tolerance);
    }
    static bool alive(const Glob* g, const IdStamp& s) { return EventHandler::valid(g, s); }
};
