#include "Logger.h"

#include "LogFileFormat.h"
#include "LogItemField.h"
#include "controls/Gauge.h"
#include "controls/ScrollBar.h"
#include "controls/TableWidget.h"
#include "core/Utf8.h"
#include "core/splitIf.h"
#include "draw/Canvas.h"
#include "draw/StateSaver.h"
#include "draw/TextAdvanceCache.h"
#include "draw/UifStd.h"
#include "draw/WordWrappingTextRenderer.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "platform/Clock.h"
#include "platform/OS.h"
#include "platform/Paths.h"
#include "platform/ResourceStrings.h"
#include "platform/SystemWatchdog.h"
#include "platform/getSystemLogDirectory.h"
#include "tasks/HyperLink.h"
#include "tasks/TaskLog.h"
#include "value/UIThreadCallback.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr ResId kElapsedTimeText = 300;
constexpr ResId kTimeLeftText = 301;
constexpr unsigned short kMaxRows = 0xFFFF;

unsigned short headerLinesFor(unsigned int flags) { return (flags & Logger::kNoHeader) ? 0 : 2; }

int rowHeight() { return UifStd::instance().getRowHeight(); }

// The width of one line in pixels: the fast measure for plain text, Pango for the rest.
int measureWidth(const LightweightString<wchar_t>& text, const Glib::FontDesc& font) {
    std::int64_t units = Glib::TextAdvanceCache::forThisThread().measure(text.view(), font);
    if (units >= 0) return static_cast<int>((units + Glib::TextAdvanceCache::kUnitsPerPixel - 1) / Glib::TextAdvanceCache::kUnitsPerPixel);
    return Glib::measureText(text, font).x;
}

LightweightString<wchar_t> withTime(ResId text, long seconds) {
    char buffer[256];
    std::snprintf(buffer, sizeof buffer, "%02d:%02d:%02d", int(seconds / 3600), int(seconds / 60 % 60), int(seconds % 60));
    LightweightString<wchar_t> s = resourceStrW(text);
    std::size_t at = s.find(L"$TIME$");
    if (at != LightweightString<wchar_t>::npos) s.replace(at, 6, fromUTF8(LightweightString<char>(buffer)).view());
    return s;
}

} // namespace

Logger::InitArgs::InitArgs(unsigned short rows, unsigned short w, unsigned int f) : flags(f), numRows(rows) {
    border = Border(Border::kNoBorder, 0, 15);
    width = w ? w : 30 * rowHeight();
    height = getInitialHeight(rows, f);
}

Logger::Logger(const InitArgs& args) : StandardPanel(args), title_(args.title.getString()), flags_(args.flags) {
    {
        Glib::StateSaver saver;
        setBorder(StandardPanel::getDefaultBorder());
        applyFlags();
    }
    StandardPanel::setTitle(args.title, UifStd::instance().getTitleFont(), kRedraw);
    setMinSize(static_cast<unsigned short>(args.width), static_cast<unsigned short>(std::min(args.height, 10 * rowHeight())));
    listen(args.taskLog);
    if (!args.filename.empty()) {
        autoSave_ = true;
        autoSavePath_ = joinPaths(getSystemLogDirectory(), args.filename);
    }
    fastScroll_ = true;
    if (!(flags_ & kProgressOnly)) makeTable(args.numRows);
    if (flags_ & kShowProgress) makeGauge();
    addButtons(args.buttons, args.buttonOrigin);
    resize(width(), height());
    if (table_ && (flags_ & kRevealLastRow) && !items_.empty()) table_->revealRow(static_cast<int>(items_.size()) - 1, false, 0);
}

Logger::~Logger() {
    saveAtClose();
    if (dieTarget_ && is_good_glob_ptr(dieTarget_)) sendMsg(dieTarget_, kDiedMsg);
    for (auto& guard : guards_)
        if (guard) guard->release();
    guards_.clear();
}

void Logger::applyFlags() {
    // The panel has a title, and its height counts a title bar (getInitialHeight).
    addStandardWidgets(kTitleBar);
    if (!(flags_ & kNoCloseBox)) addStandardWidgets(kCloseBox);
    if (!(flags_ & kNoResizeGrip)) addStandardWidgets(kResizeGrip);
    if (flags_ & kNotResizable) setResizable(false);
}

void Logger::listen(const Zn::Ptr<iTaskLog>& given) {
    log_ = given ? given : Zn::Ptr<iTaskLog>(new TaskLog);
    std::vector<LoggerBase::Item> sofar;
    if (flags_ & kProgressOnly) {
        log_->getItems(sofar);
    } else {
        // Copying the items and registering in one step: what is replayed and what
        // arrives later neither overlap nor leave a gap.
        guards_.push_back(log_->registerInterest(makeDeferredCallback(this, &Logger::handleLogAddition), iTaskLog::kItemsInterest, sofar));
    }
    for (const auto& item : sofar) addItem(item);
}

void Logger::makeTable(unsigned short numRows) {
    unsigned short header = headerLinesFor(flags_);
    TableWidget::InitArgs a(this, static_cast<unsigned short>(std::abs(getUserArea().width())),
                            static_cast<unsigned short>(TableWidget::calcHeight(numRows, header, theme())), static_cast<unsigned short>(rowHeight()),
                            header);
    a.canvas = canvas();
    a.palette = getPalette();
    table_ = new TableWidget(a);
    addChild(table_, UserTopLeft(0, 0), WidgetSurround());
    table_->hideTextEntryBox(true);
    table_->setHighlightCurrentRow(false);
    table_->registerFieldEditor(DBFieldTypes::kLogItem, Zn::Ptr<iCellEditor>(new LogItemField(&items_)));
}

void Logger::makeGauge() {
    guards_.push_back(log_->registerInterest(makeDeferredCallback(this, &Logger::handleLogProgress), iTaskLog::kProgressInterest));
    int indent = UifStd::instance().getIndentWidth();
    Gauge::InitArgs a(static_cast<unsigned short>(std::max(1, std::abs(getUserArea().width()) - 2 * indent)),
                      static_cast<unsigned short>(rowHeight()));
    a.canvas = canvas();
    a.palette = getPalette();
    gauge_ = new Gauge(a);
    addChild(gauge_, UserBottomLeft(indent, indent), WidgetSurround(1, 15, 0, 0, 0.2f, false));
    gauge_->setMessageColour(getPalette().text(kTextNormal));
    gauge_->setCols(getPalette().selection(kSelectionFocused), getPalette().childWindow(kChildList));
}

// ---- writing ------------------------------------------------------------------

void Logger::write(const LightweightString<wchar_t>& text, eOutputType type) { log_->write(text, type); }
void Logger::incIndent() { log_->incIndent(); }
void Logger::decIndent() { log_->decIndent(); }
void Logger::handleProgressUpdate(const ProgressSnapshot& snapshot) { log_->updateProgress(snapshot); }

void Logger::set_new_title(const LightweightString<wchar_t>& title) {
    title_ = title;
    StandardPanel::setTitle(UIString(title), UifStd::instance().getTitleFont(), kRedraw);
}

void Logger::setButtonActive(unsigned char index, bool active, eRedrawFlag flag) {
    if (index < buttons_.size()) buttons_[index]->setActive(active, flag);
}

// ---- rows -----------------------------------------------------------------------

bool Logger::canWordWrap(const LoggedItem& row) { return row.type != otHyperLink && row.type != otSection; }

unsigned short Logger::getInitialHeight(unsigned short numRows, unsigned int flags) {
    int h = 0;
    if (numRows != 0) h = TableWidget::calcHeight(numRows, headerLinesFor(flags), UifStd::instance().getTheme());
    if (flags & kShowProgress) {
        if (h != 0) h += 2 * UifStd::instance().getWidgetGap();
        h += rowHeight();
    }
    return static_cast<unsigned short>(StandardPanel::calcPanelSize(XY<int>(0, h), kTitleBar, StandardPanel::getDefaultBorder()).y);
}

// Rows come in from the top of a table that shows blank rows below them: with fast
// scrolling the blank rows are added half a screen at a time, and the table's
// position moves only then, rather than on every row.
void Logger::addSpaceFor(unsigned short n) {
    // At least 256 rows at a time, and by half again as the log grows, so that a long
    // log is not copied over and over.
    if (static_cast<unsigned short>(items_.capacity()) == static_cast<unsigned short>(items_.size()) && items_.size() < kMaxRows)
        items_.reserve(std::min<std::size_t>(kMaxRows, std::max(items_.size() + std::max<std::size_t>(n, 256), items_.size() * 3 / 2)));
    const Palette& p = getPalette();
    LoggedItem blank(LightweightString<wchar_t>(), p.text(kTextNormal), p.window(kShadeNormal), Glib::FontDesc(), otNormal);
    std::size_t wanted = std::min<std::size_t>(kMaxRows, std::size_t(rowCount_) + n);
    if (table_) {
        unsigned short step = 1;
        if (fastScroll_) step = table_->numLines() > 1 ? static_cast<unsigned short>(table_->numLines() / 2) : 1;
        if (rowCount_ % step == 0) {
            items_.resize(std::min<std::size_t>(kMaxRows, std::size_t(rowCount_) + step), blank);
            if (table_->numLines() <= items_.size()) table_->setCurPos(XY<int>(0, static_cast<int>(items_.size()) - 1), TableWidget::kRevealCell);
        }
    }
    if (items_.size() < wanted) items_.resize(wanted, blank);
}

void Logger::addItem(const LoggerBase::Item& item) {
    std::vector<LightweightString<wchar_t>> pieces = Zn::splitIf(item.text, L'\n', Zn::kSplitTrimEnds);
    addSpaceFor(static_cast<unsigned short>(std::min<std::size_t>(pieces.size(), kMaxRows)));
    for (const auto& piece : pieces) {
        if (rowCount_ == 0 && piece.empty()) continue; // a log never begins with blank rows
        addRow(piece, item);
    }
}

void Logger::addRow(const LightweightString<wchar_t>& piece, const LoggerBase::Item& item) {
    if (rowCount_ >= kMaxRows) return;
    const Palette& p = getPalette();
    Colour back = p.window(kShadeNormal);
    Glib::FontDesc font = Glib::FontUser::getFont();
    Colour ink = LoggedItem::textColourFor(item.type, p);
    if (item.type == otStatus || item.type == otHeading || item.type == otSection) {
        // The heading row keeps the font of the moment; only the rows after it carry the subheading's size.
        font_.size = UifStd::instance().getSubheadingFont().size;
        if (item.type != otHeading && rowCount_ != 0) {
            items_.insert(items_.begin() + rowCount_, LoggedItem(L" ", ink, back, font, otNormal));
            if (++rowCount_ >= kMaxRows) return;
        }
    }
    if (items_.size() <= rowCount_) items_.resize(std::size_t(rowCount_) + 1);
    LoggedItem& row = items_[rowCount_];
    row = LoggedItem(piece, ink, back, font, item.type);
    row.indent = item.indent;
    if (!piece.empty()) measureRow(row);
    ++rowCount_;
}

void Logger::measureRow(LoggedItem& row) {
    Glib::FontDesc font = Canvas::createFont(row.font);
    int available = std::abs(getUserArea().width());
    LightweightString<wchar_t> shown = row.displayText();
    int width = measureWidth(shown, font);
    row.textWidth = static_cast<unsigned short>(std::clamp(width, 0, 0xFFFF));
    if (available < width) row.numLines = Glib::WordWrappingTextRenderer::calcNumDisplayLines(shown, available, font);
}

int Logger::handleLogAddition(const NotifyMsg& msg) {
    Zn::Ptr<LoggerBase::Item> item = msg.dataAs<LoggerBase::Item>();
    if (!item) return 0;
    LoggerBase::Item copy = *item;
    addItem(copy);
    if (table_ && rowCount_ > 0) table_->setCurPos(XY<int>(0, rowCount_ - 1), TableWidget::kRevealCell);
    requestRepaint();
    return 0;
}

// Rows arrive one notice each; the table is painted once after a run of them.
void Logger::requestRepaint() {
    if (repaintPosted_ || !table_) return;
    repaintPosted_ = true;
    sendMessage(kRepaintMsg, this, this);
}

int Logger::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kRepaintMsg) {
        repaintPosted_ = false;
        if (table_ && table_->isShowing() && GlobManager::instance().isRealized(getRootParent(this))) table_->redraw();
        return 1;
    }
    return StandardPanel::handleMessageEvent(message, sender);
}

int Logger::handleLogProgress(const NotifyMsg& msg) {
    Zn::Ptr<ProgressSnapshot> snapshot = msg.dataAs<ProgressSnapshot>();
    if (snapshot) progress(static_cast<double>(snapshot->fraction));
    return 0;
}

void Logger::progress(double fraction) {
    if (gauge_) {
        LightweightString<wchar_t> text;
        if (std::fabs(fraction) < 1e-6 || progressStart_ == 0.0) {
            progressStart_ = static_cast<double>(msecsNow());
        } else {
            double elapsed = static_cast<double>(msecsNow()) - progressStart_;
            if (std::fabs(fraction - 1.0) < 1e-6) {
                text = withTime(kElapsedTimeText, static_cast<long>((elapsed + 500.0) / 1000.0));
                progressStart_ = 0.0;
            } else {
                // The time left if the rate so far holds; cut, not rounded.
                text = withTime(kTimeLeftText, static_cast<long>((elapsed / fraction - elapsed) / 1000.0));
            }
        }
        gauge_->setMeasure(fraction);
        gauge_->setMessage(text);
        gauge_->display();
    }
    SystemWatchdog::heartbeat();
}

// ---- layout -----------------------------------------------------------------------

BoxInt Logger::getUserArea() const {
    BoxInt area = StandardPanel::getUserArea();
    if (!buttons_.empty()) area.y1 = std::min(area.y2, getBorder().bottom() + buttons_.front()->height() + UifStd::instance().getWidgetGap());
    return area;
}

void Logger::resize(double w, double h) {
    StandardPanel::resize(w, h);
    BoxInt user = getUserArea();
    int userW = std::abs(user.width()), userH = std::abs(user.height());
    const UifStd& u = UifStd::instance();
    if (gauge_) {
        gauge_->resize(std::max(1, userW - 2 * u.getIndentWidth()), gauge_->height());
        userH -= rowHeight() + 2 * u.getWidgetGap();
    }
    auto textW = static_cast<unsigned short>(userW - u.getWidgetGap() - ScrollBar::thickness());
    for (LoggedItem& row : items_) {
        row.numLines = 1;
        auto available = static_cast<unsigned short>(textW - row.indent * rowHeight());
        if (!canWordWrap(row) || row.textWidth <= available) continue;
        row.numLines = Glib::WordWrappingTextRenderer::calcNumDisplayLines(row.text, available, Canvas::createFont(row.font));
    }
    if (table_) {
        table_->resize(userW, std::max(0, userH));
        calcAbsoluteWidgetPositions();
    }
}

// ---- the table's adaptor ----------------------------------------------------------

const LoggedItem* Logger::rowAt(int row) const {
    return row >= 0 && static_cast<std::size_t>(row) < items_.size() ? &items_[static_cast<std::size_t>(row)] : nullptr;
}

std::vector<TableColumnDescription> Logger::getColumnDefinitions() {
    TableColumnDescription column;
    column.setResizeable(true);
    column.setWidth(0);
    if (flags_ & kNoHeader) column.setColour(getPalette().window(kShadeNormal));
    return {column};
}

LightweightString<wchar_t> Logger::getFieldText(const XY<int>& cell) {
    const LoggedItem* row = rowAt(cell.y);
    return row ? row->displayText() : LightweightString<wchar_t>();
}

void Logger::getFieldColours(const XY<int>& cell, Palette& palette) {
    if (const LoggedItem* row = rowAt(cell.y)) palette.setColour(Palette::kText, row->textColour);
}

int Logger::getTextStyle(const XY<int>& cell) {
    const LoggedItem* row = rowAt(cell.y);
    return row && row->type == otHyperLink ? kStyleLink : kStylePlain;
}

Glib::FontDesc Logger::getFont(const XY<int>& cell) {
    const LoggedItem* row = rowAt(cell.y);
    return row ? row->font : Glib::FontDesc();
}

int Logger::getRowHeight(int r) {
    const LoggedItem* row = rowAt(r);
    return (row ? row->numLines : 1) * rowHeight();
}
