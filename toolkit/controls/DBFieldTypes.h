#pragma once

/// The kinds of field a table cell can hold. A TableWidget paints and edits a cell
/// with the cell editor registered for the kind its adaptor reports; kinds from
/// kApplication up are the application's own.
struct DBFieldTypes {
    enum eType : int {
        kUnknown = 0,
        kText = 1,
        kInteger = 2,
        kDouble = 3,
        kBool = 4,
        kDate = 5,
        kTime = 6,
        kTimecode = 7,
        kPath = 8,
        kColour = 9,
        kApplication = 100,
        // A row of a task log, painted by the log panel's own editor.
        kLogItem = 117,
    };
};
