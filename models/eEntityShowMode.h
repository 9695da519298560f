#pragma once

/// What an expression list shows of its items. Value labels show the same in every mode; a value that is none
/// of these shows nothing.
enum eEntityShowMode : int {
    ShowName = 0,
    ShowLabel = 1,
    ShowNameAndLabel = 2,
};
