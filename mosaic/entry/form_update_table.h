#pragma once

#include <cstdint>

class form;

/// One row of a table that copies an element's new text to an element of another
/// form; a row whose source element is -1 ends the table.
struct form_update_table {
    form* sourceForm = nullptr;
    std::int32_t sourceElement = -1;
    form* targetForm = nullptr;
    std::int32_t targetElement = 0;
};
