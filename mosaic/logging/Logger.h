#pragma once

#include "LoggedItem.h"
#include "controls/PushButton.h"
#include "controls/StandardPanel.h"
#include "controls/iTableAdaptor.h"
#include "core/Guard.h"
#include "core/NotifyMsg.h"
#include "tasks/iTaskLog.h"

#include <vector>

class Gauge;
class TableWidget;

/// The panel that shows the text log of a task: a scrolling, word-wrapping table of
/// coloured rows, an optional progress gauge under it and an optional row of push
/// buttons. The task log, not the panel, holds the text: write() goes to the log,
/// and the log's notices, carried to the user-interface thread, add the rows. So
/// tasks on any thread may write while the panel shows, and a panel opened on a log
/// that already holds items shows them all first.
///
/// Rows are made and measured once, when they arrive, and wrapped again only when
/// the panel is resized. A panel holds at most 65,535 rows; later ones are dropped.
class Logger : public StandardPanel, public LoggerBase, public iTableAdaptor {
public:
    using LoggedItem = ::LoggedItem;

    enum Flags : unsigned {
        kMadeByFunction = 0x01,
        kShowProgress = 0x04,
        kRevealLastRow = 0x08,
        kNoHeader = 0x10,
        kNoCloseBox = 0x20,
        kNoResizeGrip = 0x40,
        kNotResizable = 0x80,
        kProgressOnly = 0x100,
    };

    /// What a Logger is made from: the log it shows, its title, its size in rows, the
    /// flags above, the file its rows are saved to, and its buttons.
    struct InitArgs : StandardPanel::InitArgs {
        InitArgs(unsigned short numRows, unsigned short width, unsigned int flags);
        // The log shown; null makes the panel a TaskLog of its own.
        Zn::Ptr<iTaskLog> taskLog;
        UIString title;
        // A bare file name in getSystemLogDirectory(): the rows are saved there when the panel goes.
        LightweightString<wchar_t> filename;
        unsigned int flags;
        unsigned short numRows;
        std::vector<PushButton::InitArgs> buttons;
        // kBottomLeft lays the buttons out from the left; anything else from the right.
        eCoordinateOrigin buttonOrigin = kBottomRight;
    };

    // The notice names the panel posts to itself.
    static constexpr const char* kRepaintMsg = "loggerRepaint";
    // What dieTarget hears when the panel goes.
    static constexpr const char* kDiedMsg = "logger_died";

    explicit Logger(const InitArgs& args);
    ~Logger() override;
    // The panel's font, beside the table adaptor's font of a cell.
    using Glib::FontUser::getFont;
    const char* idstring() const override { return "logger"; }

    // Goes to the task log; the row appears when the log's notice arrives.
    void write(const LightweightString<wchar_t>& text, eOutputType type) override;
    void incIndent() override;
    void decIndent() override;
    void handleProgressUpdate(const ProgressSnapshot& snapshot) override;
    // Only InitArgs.filename makes a panel save itself; these change nothing.
    void setFilename(const LightweightString<wchar_t>&) override {}
    void setFilename(const LightweightString<wchar_t>&, const LightweightString<wchar_t>&) override {}

    void set_new_title(const LightweightString<wchar_t>& title);
    // Enables or disables a button of addButtons; an index past the end is ignored.
    void setButtonActive(unsigned char index, bool active, eRedrawFlag flag = kRedraw);
    // With fast scrolling the table moves half a screen at a time, not on every row.
    void setFastScroll(bool on) { fastScroll_ = on; }
    // The glob told kDiedMsg when the panel goes; not owned, checked before use.
    void setDieTarget(Glob* target) { dieTarget_ = target; }

    static bool canWordWrap(const LoggedItem& row);
    static unsigned short getInitialHeight(unsigned short numRows, unsigned int flags);
    void addButtons(const std::vector<PushButton::InitArgs>& buttons, eCoordinateOrigin origin);
    // Shows the fraction done on the gauge with the time taken or the time left.
    // On the user-interface thread only.
    void progress(double fraction);
    // Writes every row as text into the user's folder and shows where it went.
    int saveToFile(const NotifyMsg&);

    // Rows, blank ones past rowCount() included.
    const std::vector<LoggedItem>& rows() const { return items_; }
    unsigned short rowCount() const { return rowCount_; }
    TableWidget* table() const { return table_; }
    Gauge* gauge() const { return gauge_; }
    const Zn::Ptr<iTaskLog>& taskLog() const { return log_; }
    const LightweightString<wchar_t>& autoSavePath() const { return autoSave_ ? autoSavePath_ : empty_; }

    // The table's adaptor.
    std::vector<TableColumnDescription> getColumnDefinitions() override;
    unsigned getSize() override { return static_cast<unsigned>(items_.size()); }
    LightweightString<wchar_t> getFieldText(const XY<int>& cell) override;
    DBFieldTypes::eType getFieldType(const XY<int>&) override { return DBFieldTypes::kLogItem; }
    void getFieldColours(const XY<int>& cell, Palette& palette) override;
    int getTextStyle(const XY<int>& cell) override;
    Glib::FontDesc getFont(const XY<int>& cell) override;
    int getRowHeight(int row) override;
    // A drag of a link row, far enough, hands its files to the system's drag and
    // drop; the release that ends it answers 1.
    int handleMouseClickEvent(const XY<int>& cell, const Event& e) override;

    BoxInt getUserArea() const override;
    void resize(double width, double height) override;
    void reviewMenu(const Event* e) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

    // The context menu's actions; the message is a list of paths in UTF-8 parted by ",".
    int copyToClipboard(const NotifyMsg& msg);
    int openFile(const NotifyMsg& msg);
    int revealInOS(const NotifyMsg& msg);

protected:
    // Makes room for `n` more rows; see the notes in Logger.cpp.
    void addSpaceFor(unsigned short n);
    void addItem(const LoggerBase::Item& item);
    int handleLogAddition(const NotifyMsg& msg);
    int handleLogProgress(const NotifyMsg& msg);

private:
    void applyFlags();
    void listen(const Zn::Ptr<iTaskLog>& given);
    void makeTable(unsigned short numRows);
    void makeGauge();
    void addRow(const LightweightString<wchar_t>& piece, const LoggerBase::Item& item);
    void measureRow(LoggedItem& row);
    void requestRepaint();
    void saveAtClose();
    const LoggedItem* rowAt(int row) const;

    TableWidget* table_ = nullptr;
    Zn::Ptr<iTaskLog> log_;
    Gauge* gauge_ = nullptr;
    double progressStart_ = 0.0;
    LightweightString<wchar_t> autoSavePath_;
    bool autoSave_ = false;
    std::vector<LoggedItem> items_;
    Glob* dieTarget_ = nullptr;
    std::vector<PushButton*> buttons_;
    LightweightString<wchar_t> title_;
    unsigned short rowCount_ = 0;
    bool fastScroll_ = true;
    std::vector<Zn::Ptr<Zn::Guard>> guards_;
    unsigned int flags_ = 0;
    bool repaintPosted_ = false;
    XY<int> pressedAt_{kUnset, kUnset};
    bool dragged_ = false;
    LightweightString<wchar_t> empty_;
};

// The free functions through which any code writes to a logger. Each first checks
// that the pointer names a live logger and otherwise does nothing. The formatting
// ones format printf-style into a buffer of 1,024 bytes: a longer message is cut
// to the 1,023 bytes that fit.
void logger_write(Logger* logger, const char* format, ...) __attribute__((format(printf, 2, 3)));
void logger_error(Logger* logger, const char* format, ...) __attribute__((format(printf, 2, 3)));
void logger_warning(Logger* logger, const char* format, ...) __attribute__((format(printf, 2, 3)));
void logger_status_line(Logger* logger, const char* format, ...) __attribute__((format(printf, 2, 3)));
void loggerWrite(Logger* logger, const LightweightString<wchar_t>& text, LoggerBase::eOutputType type);
// The colour is not used: rows take their colours from their kinds.
void logger_setFont(Logger* logger, LightweightString<char> name, Colour colour);
void logger_set_new_title(Logger* logger, LightweightString<wchar_t> title);
void logger_display_progress(Logger* logger, double fraction);
// Makes and realizes a logger on a log of its own: centred when x is negative,
// else with its bottom left at (x, y). `filename` is not used: such a logger never
// saves itself.
Logger* make_logger(LightweightString<wchar_t> title, bool flag1, LightweightString<wchar_t> filename, bool showProgress, unsigned short numRows,
                    unsigned short width, int x, int y);
// True when `g` is a live logger; safe on a dangling pointer.
bool is_good_logger_ptr(const Glob* g);
