#pragma once

#include "DBFieldTypes.h"
#include "TableColumnDescription.h"
#include "core/Event.h"
#include "core/Palette.h"
#include "draw/FontDesc.h"
#include "draw/GlibDescriptions.h"
#include "glob/MouseCursor.h"

#include <utility>
#include <vector>

/// What a TableWidget shows: its columns, its number of rows and, cell by cell,
/// the text and its look. Cells are (column, row). The table asks only for the rows
/// it shows, so the data may be as long as it likes; a row past the data an adaptor
/// really has should simply answer with empty text.
///
/// Everything but the columns, the size and the text has an inert default.
class iTableAdaptor {
public:
    // Text styles of getTextStyle; 0 leaves the column's plain style.
    enum eTextStyle { kStyleDefault = 0, kStylePlain = 1, kStyleBold = 2, kStyleItalic = 3, kStyleLink = 4 };

    virtual ~iTableAdaptor() = default;

    virtual std::vector<TableColumnDescription> getColumnDefinitions() = 0;
    virtual unsigned getSize() = 0;
    virtual LightweightString<wchar_t> getFieldText(const XY<int>& cell) = 0;

    // Editing: a cell may be edited in place when canEdit says so; setFieldText
    // takes the new text and returns true when it kept it.
    virtual bool canEdit(const XY<int>&) { return false; }
    virtual bool setFieldText(const XY<int>&, const LightweightString<wchar_t>&) { return false; }

    virtual DBFieldTypes::eType getFieldType(const XY<int>&) { return DBFieldTypes::kUnknown; }
    virtual int getTag(const XY<int>&) { return 0; }
    // May change the colours a cell is painted in; text(0) is its text colour.
    virtual void getFieldColours(const XY<int>&, Palette&) {}
    virtual int getTextStyle(const XY<int>&) { return kStyleDefault; }
    // An empty description means the table's font.
    virtual Glib::FontDesc getFont(const XY<int>&) { return {}; }
    // Top puts the first line in the top row's height of a taller cell.
    virtual Glib::TextAlignment getTextAlignment(const XY<int>&) { return {Glib::kAlignDefault, Glib::kAlignTop}; }
    // A row's height in pixels; 0 (or less) for the table's row height.
    virtual int getRowHeight(int) { return 0; }
    virtual MouseCursorID contextCursor(const XY<int>&) { return kCursorArrow; }
    // Mouse events on a cell after its editor passed them over: press, release and
    // drag. Non-zero takes the event, and the table then does not select.
    virtual int handleMouseClickEvent(const XY<int>&, const Event&) { return 0; }
    virtual void handleHeaderClick(int) {}
};

namespace Glib {

// The FontDesc style bits for an iTableAdaptor text style; the link style and every
// other value are plain, since links are underlined, not restyled.
inline unsigned mapTextStyle(int tableTextStyle) {
    switch (tableTextStyle) {
    case iTableAdaptor::kStyleBold: return FontDesc::kBold;
    case iTableAdaptor::kStyleItalic: return FontDesc::kItalic;
    default: return FontDesc::kPlain;
    }
}

} // namespace Glib
