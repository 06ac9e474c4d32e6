#pragma once

#include "FolderListing.h"
#include "TableWidget.h"
#include "core/WidgetCallback.h"
#include "core/WrappedData.h"

#include <set>
#include <vector>

class Button;
class DropDownMenuButton;
class PushButton;
class TextBox;

/// The behaviour of a file browser: a panel that lists a real folder in a table
/// (folders first, then the files that pass the chosen filter, by name without
/// regard to case), with a path box above it, an up button, a filter drop-down when
/// there are filters, and Cancel and OK. It lets the user choose one file, several
/// files, or a folder, and it is its own iTableAdaptor: a subclass decides the
/// columns through getColumnDefinitions, whose sort keys "name", "size" and "date"
/// say what a column shows.
///
/// The answer is a WrappedData<PathList> of full paths. OK (or a double click or
/// Return on a file) hides the browser, posts fileBrowserSelectedMsg with the
/// answer to the owner, calls the callback at once with a NotifyMsg carrying it, and
/// deletes the browser after the owner's message has been delivered, so the owner
/// may still ask getSelectedFiles() of the sender or delete the browser itself.
/// Cancel, Escape and the close box call the callback with an empty list, send no
/// fileBrowserSelectedMsg and delete the browser at the next safe moment. The
/// callback may delete the browser.
///
/// Only entries whose wide path names them exactly can be chosen: a name that is not
/// valid UTF-8 is shown with U+FFFD in place of its bad bytes and can be browsed
/// into, but it never goes out in an answer.
class FileBrowserBase : public StandardPanel, public iTableAdaptor {
public:
    using PathList = LightweightVector<LightweightString<wchar_t>>;
    using Answer = WrappedData<PathList>;

    enum eSelectionMode { kSingleFile = 0, kMultipleFiles = 1, kFolder = 2 };
    // Bits of init's flags: a title bar that moves the panel, with a close box; a
    // resize grip.
    enum eInitFlags { kFrameFlag = 0x02, kResizableFlag = 0x40, kDefaultFlags = kFrameFlag | kResizableFlag };
    // How selectRow changes the selection.
    enum eSelectHow { kReplace = 0, kToggle = 1, kExtend = 2 };

    /// What a file browser is made from: its title, filters, starting folder, what it
    /// lets the user choose, and who hears the answer.
    struct InitArgs : GlobCreationInfo {
        UIString title;
        // Extensions ("png") or patterns ("*.png"); empty for all files.
        std::vector<LightweightString<wchar_t>> filters;
        WidgetCallback callback;
        // Where browsing starts; a file here starts in its folder with it selected. A
        // missing or unreadable folder falls back to the home folder, then to "/".
        LightweightString<wchar_t> startDirectory;
        eSelectionMode selectionMode = kSingleFile;
        // Who hears fileBrowserSelectedMsg, kept by stamp; null for the logical parent.
        EventHandler* owner = nullptr;
        bool showHidden = false;
        InitArgs() = default;
        // A size of 0 takes calcSize()'s.
        explicit InitArgs(const UIString& title, eSelectionMode mode = kSingleFile, unsigned short width = 0, unsigned short height = 0)
            : GlobCreationInfo(width, height), title(title), selectionMode(mode) {}
    };

    static constexpr const char* fileBrowserSelectedMsg = "fileBrowserSelectedMsg";

    ~FileBrowserBase() override;
    const char* idstring() const override { return "FileBrowser"; }

    // Builds the controls and shows the start folder. The concrete browser calls it
    // from its constructor, when its getColumnDefinitions is in place.
    void init(const InitArgs& args, int flags = kDefaultFlags);
    // The default size of a browser.
    static XY<int> calcSize();

    // The answer: after OK what was chosen, after Cancel nothing; before either, what
    // OK would choose now.
    PathList getSelectedFiles() const;
    // The chosen folder in folder mode (the selected subfolder, else the one shown);
    // in the file modes the folder of the files. Empty after Cancel.
    LightweightString<wchar_t> getSelectedDirW() const;
    bool hasChosen() const { return state_ == kChosen; }
    bool wasCancelled() const { return state_ == kCancelled; }
    eSelectionMode getSelectionMode() const { return mode_; }

    // Browsing. Each returns false, and leaves the browser where it was, when the
    // folder cannot be read. goToTyped takes what a user types: absolute, relative to
    // the folder shown, or from "~"; a file goes to its folder and selects it.
    LightweightString<wchar_t> getCurrentFolder() const;
    bool setCurrentFolder(const LightweightString<wchar_t>& folder);
    bool goUp();
    bool goToTyped(const LightweightString<wchar_t>& text);
    // Reads the folder shown again, keeping the selection of entries that remain.
    void refreshListing();
    const FolderListing& listing() const { return listing_; }

    // The selection, by shown row. Single-file and folder modes hold one row at most.
    void selectRow(int row, eSelectHow how = kReplace);
    void clearSelection();
    bool isRowSelected(int row) const;
    std::vector<int> getSelectedRows() const;
    // Enters a folder; chooses a file (with the rest of the selection in multiple mode).
    void activateRow(int row);

    // The filter choices of the drop-down: the given filters together, each alone
    // when there are several, and all files. None without filters.
    int numFilterChoices() const { return static_cast<int>(filterChoices_.size()); }
    int getFilterChoice() const { return filterChoice_; }
    void setFilterChoice(int index);

    // OK: false, doing nothing, when there is nothing to choose.
    bool accept();
    void cancel();

    TableWidget* table() const { return table_; }
    TextBox* pathBox() const { return pathBox_; }
    Button* upButton() const { return upButton_; }
    PushButton* okButton() const { return okButton_; }
    PushButton* cancelButton() const { return cancelButton_; }
    DropDownMenuButton* filterButton() const { return filterButton_; }

    // The list's columns: here only the name, resizable, with the sort key "name".
    std::vector<TableColumnDescription> getColumnDefinitions() override;
    unsigned getSize() override;
    LightweightString<wchar_t> getFieldText(const XY<int>& cell) override;
    DBFieldTypes::eType getFieldType(const XY<int>&) override { return DBFieldTypes::kPath; }
    int getTextStyle(const XY<int>& cell) override;
    Glib::TextAlignment getTextAlignment(const XY<int>& cell) override;
    int handleMouseClickEvent(const XY<int>& cell, const Event& e) override;
    // Sorts by the column's key; the same column again reverses the order.
    void handleHeaderClick(int col) override;

    void resize(double width, double height) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    int handleKeyboardEvent(int key) override;
    void handlePoot() override;

protected:
    explicit FileBrowserBase(const InitArgs& args);

private:
    enum eState { kBrowsing, kChosen, kCancelled };

    void buildControls(int flags);
    void buildFilters(const std::vector<LightweightString<wchar_t>>& filters);
    void layout();
    bool showStartFolder(const LightweightString<wchar_t>& start);
    // Shows `folder`, with the row of `focus` current (and selected with `select`). The
    // paths are taken by value: callers pass paths of entries that this replaces.
    bool showFolder(LightweightString<char> folder, LightweightString<char> focus = {}, bool select = false);
    // Goes to an existing path: a folder, or a file's folder with the file selected.
    bool showPath(const LightweightString<char>& path);
    void listingChanged(int currentRow);
    void pruneSelection();
    LightweightString<char> columnKey(int col) const;
    PathList pendingAnswer() const;
    LightweightString<wchar_t> pendingDir() const;
    void okPressed();
    void deliver(const PathList& answer);
    EventHandler* ownerHandler() const;

    FolderListing listing_;
    LightweightString<char> folder_;
    eSelectionMode mode_ = kSingleFile;
    WidgetCallback callback_;
    EventHandler* owner_ = nullptr;
    IdStamp ownerStamp_;
    bool showHidden_ = false;
    std::vector<FileFilter> filterChoices_;
    int filterChoice_ = -1;
    std::set<LightweightString<char>> selected_;
    int anchor_ = -1;
    eState state_ = kBrowsing;
    PathList chosen_;
    LightweightString<wchar_t> chosenDir_;

    TableWidget* table_ = nullptr;
    TextBox* pathBox_ = nullptr;
    Button* upButton_ = nullptr;
    PushButton* okButton_ = nullptr;
    PushButton* cancelButton_ = nullptr;
    DropDownMenuButton* filterButton_ = nullptr;
};
