#pragma once

#include "contract/forms/grid_browser_ex.h"

#include <array>

/// The base of the program's grids.
class CTBCommon : public CTBBrowserWndEx {
public:
    using CTBBrowserWndEx::CTBBrowserWndEx;

protected:
    enum class Fields { passOver, validate };

    /// The usual test of a row. Each of `columns` whose text is empty adds a line of the column's title and `missing`; with
    /// `Fields::validate` each other one passes ValidateField, and the first that fails ends the test. The lines are the warning.
    bool ValidateTexts(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, const CString& missing, Fields fields);

    /// Warning texts for a bad formula, a stray character and a number too big.
    using NumberWarnings = std::array<CString, 3>;
    /// The usual test of a number cell: IsValidDoubleNumber, with its warning.
    bool ValidateNumber(const CString& text, const NumberWarnings& warnings);

    /// The value of a cell's text, a formula included; 0 for one that is no number.
    [[nodiscard]] static double RealOf(const CString& text);
    /// "%.15g", as real cells keep their numbers.
    [[nodiscard]] static CString RealText(double value);
};
