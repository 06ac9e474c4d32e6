#pragma once

#include "CellContext.h"
#include "DBFieldTypes.h"
#include "StandardPanel.h"
#include "iCellEditor.h"
#include "iTableAdaptor.h"

#include <map>
#include <vector>

class CanvasRenderer;
class ScrollBar;

/// A table of rows and columns from an iTableAdaptor, with a header of column
/// titles, a vertical ScrollBar, rows of varying height, a current cell, and
/// editing in place. Only the rows in view are asked of the adaptor and painted, so
/// a table of a hundred thousand rows scrolls as fast as one of a hundred.
///
/// Each cell is painted and edited by the cell editor registered for its field
/// kind, or by a WStringEditor. The mouse and the arrow, page, Home and End keys
/// move the current cell; a double click, Return or F2 edits an editable cell in
/// place (Return or leaving keeps the text, Escape drops it), or, on a cell that
/// cannot be edited, activates it. The header's column edges can be dragged.
///
/// The owner hears, by posted message: currentCellChangedMsg when the user moves
/// the current cell, cellActivatedMsg, and cellEditedMsg after an edit reached the
/// adaptor. The adaptor is not owned and must outlive the table.
class TableWidget : public StandardPanel, public TabOrderable {
public:
    using iCellEditor = ::iCellEditor;

    /// What a TableWidget is made from: its adaptor (not owned), its row height and its header's height.
    struct InitArgs : GlobCreationInfo {
        iTableAdaptor* adaptor = nullptr;
        // 0: UifStd's row height.
        unsigned short rowHeight = 0;
        // The header's height in half rows: 0 for none, 2 for one row.
        unsigned short headerLines = 2;
        InitArgs() = default;
        InitArgs(iTableAdaptor* a, unsigned short w, unsigned short h, unsigned short rowH = 0, unsigned short header = 2)
            : GlobCreationInfo(w, h), adaptor(a), rowHeight(rowH), headerLines(header) {}
    };

    // Bits of setCurPos.
    enum eCurPosFlags : int { kRevealCell = 1, kNotify = 2, kRedrawTable = 4, kRedrawRow = 8 };

    static constexpr const char* currentCellChangedMsg = "TableCurrentCellChanged";
    static constexpr const char* cellActivatedMsg = "TableCellActivated";
    static constexpr const char* cellEditedMsg = "TableCellEdited";
    // What the in-place editing widget tells the table.
    static constexpr const char* cellCommitMsg = "TableCellCommit";
    static constexpr const char* cellCancelMsg = "TableCellCancel";

    explicit TableWidget(const InitArgs& args);
    ~TableWidget() override;
    const char* idstring() const override { return "TableWidget"; }

    // The height of a table that shows `numRows` rows of the standard height under a
    // header of `headerLines` half rows.
    static int calcHeight(unsigned numRows, unsigned headerLines, int theme = 0);

    void setAdaptor(iTableAdaptor* adaptor);
    iTableAdaptor* getAdaptor() const { return adaptor_; }
    // Reads the columns again (their user-dragged widths are kept when the count is
    // the same), puts the view and the current cell back in range and repaints.
    void refresh();
    void registerFieldEditor(DBFieldTypes::eType type, const Zn::Ptr<iCellEditor>& editor);
    Zn::Ptr<iCellEditor> getFieldEditor(DBFieldTypes::eType type) const;

    int getRowHeight() const { return rowHeight_; }
    void setRowHeight(unsigned short h);
    int getHeaderHeight() const { return headerHeight_; }
    // The height of one row as the adaptor gives it.
    int rowHeightOf(int row) const;
    int numColumns() const { return static_cast<int>(columns_.size()); }
    const TableColumnDescription* getColumn(int col) const;
    int getColumnWidth(int col) const;
    void setColumnWidth(int col, int width);

    // Rows of the standard height that fit in the view.
    unsigned short numLines() const;
    int getFirstVisibleRow() const { return first_; }
    // The rows at least partly in view: first to last inclusive; last < first when none.
    int getLastVisibleRow() const;
    void scrollToRow(int row);
    // Scrolls as little as needed to show `row` whole, or so that it is in the middle.
    void revealRow(int row, bool centre = false, int redraw = kRedraw);

    XY<int> getCurPos() const { return cur_; }
    // Moves the current cell (clamped to the table) as `flags` say: kRevealCell
    // scrolls it into view, kNotify tells the owner, kRedrawTable and kRedrawRow
    // repaint now (the table paints its whole view either way).
    void setCurPos(const XY<int>& cell, int flags = kRevealCell | kRedrawTable);
    void setHighlightCurrentRow(bool h);
    bool getHighlightCurrentRow() const { return highlight_; }
    // With true no cell is edited in place, whatever the adaptor allows.
    void hideTextEntryBox(bool hide);
    bool isTextEntryBoxHidden() const { return noEditing_; }

    // The cell (column, row) under a point of this table or under the mouse of an
    // event; the row is -1 in the header, and both are -1 outside the cells.
    XY<int> getCellAt(XY<int> local) const;
    XY<int> getCellForMouseEvent(const Event& e) const;
    // Where a cell is, in this table's coordinates; empty when it is not in view.
    BoxInt getCellBox(const XY<int>& cell) const;
    BoxInt bodyBox() const;
    BoxInt headerBox() const;
    ScrollBar* scrollBar() const { return bar_; }

    // In-place editing of the current cell or any other.
    bool startEditing(const XY<int>& cell);
    bool isEditing() const { return editing_.y >= 0; }
    XY<int> getEditingCell() const { return editing_; }
    void stopEditing(bool keep);

    void resize(double w, double h) override;
    void drawBackground() override;
    int handleMouseEvent(const Event& e) override;
    int handleKeyboardEvent(int key) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    MouseCursorID contextCursor(const XY<int>& p) const override;
    UIString contextString() const override;
    bool acceptsKbdFocus() const override { return isActive() && isVisible(); }
    void handleKbdFocus(bool) override { redraw(); }
    Glob* tabGlob() override { return this; }
    bool canTakeTabFocus() override { return acceptsKbdFocus(); }

private:
    CellContext makeContext(const XY<int>& cell, const BoxInt& box) const;
    Zn::Ptr<iCellEditor> editorFor(const XY<int>& cell) const;
    void setFirst(int row);
    void layoutColumns();
    int rows() const;
    int maxFirstRow() const;
    void updateBar();
    void notify(const char* message);
    void paintHeader(const CanvasRenderer& r);
    void paintRow(const CanvasRenderer& r, int row, const BoxInt& rowBox);
    // The column whose right edge is within reach of x in the header, or -1.
    int columnEdgeAt(int x) const;

    iTableAdaptor* adaptor_ = nullptr;
    std::vector<TableColumnDescription> columns_;
    std::vector<int> widths_;
    std::vector<bool> userSized_;
    std::map<int, Zn::Ptr<iCellEditor>> editors_;
    Zn::Ptr<iCellEditor> textEditor_;
    ScrollBar* bar_ = nullptr;
    int rowHeight_;
    int headerHeight_;
    int first_ = 0;
    XY<int> cur_{0, -1};
    XY<int> editing_{-1, -1};
    Zn::Ptr<iCellEditor> editingEditor_;
    XY<int> pressed_{-1, -1};
    int sizingColumn_ = -1;
    bool highlight_ = true;
    bool noEditing_ = false;
};
