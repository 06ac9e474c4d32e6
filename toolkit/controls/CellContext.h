#pragma once

#include "core/Box.h"
#include "core/Palette.h"

class Canvas;
class TableColumnDescription;
class TableWidget;
class iTableAdaptor;

/// What a cell editor is told about the cell it paints, measures or edits. `cell`
/// is (column, row). `box` is the cell in the table's coordinates; drawing stays
/// inside `clip` when that is not empty. The palette starts as the table's, with
/// the selection's colours on a highlighted row, and the adaptor's getFieldColours
/// may change it before the editor paints. With `draw` false the editor only measures.
struct CellContext {
    TableWidget* table = nullptr;
    iTableAdaptor* adaptor = nullptr;
    const TableColumnDescription* column = nullptr;
    Canvas* canvas = nullptr;
    XY<int> cell{-1, -1};
    BoxInt box;
    BoxInt clip;
    Palette palette;
    bool draw = true;
    bool highlighted = false;
    bool current = false;

    int col() const { return cell.x; }
    int row() const { return cell.y; }
};
