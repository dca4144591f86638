#pragma once

#include "contract/forms/field_writer.h"
#include "contract/text.h"

#include <optional>
#include <vector>

namespace zel {

/// What a cell takes. The first three are the kinds of AddColInfo.
enum class GridKind {
    integer = 1,
    real = 2,
    text = 3,
    check = 4,    ///< "1" or "0"
    button = 5,   ///< is pressed, takes no text
    heading = 6,  ///< only shows its text
};

enum class GridAlign { left, centre, right };

/// How a number is shown. The cell keeps its text as it was put in.
struct GridNumberStyle {
    enum class Form { asKept, fixed, general, scientific };

    Form form = Form::asKept;
    int places = 0;  ///< decimals of fixed and scientific, significant digits of general
};

/// The text as the style shows it; a text that is no number stays as it is.
CString gridNumberText(const CString& text, const GridNumberStyle& style);

/// A column. Its fixed index is the order of AddColInfo, from 0; its number on screen changes when columns are moved.
struct GridColumn {
    CString title;  ///< as given to AddColInfo
    GridKind kind = GridKind::text;
    int unitType = 0;
    CString header;  ///< what stands above the column
    int width = 60;  ///< [pixels]
    GridAlign align = GridAlign::left;
    GridNumberStyle number;
    bool hidden = false;
    bool frozen = false;    ///< stays in sight; a click into it selects the whole row
    bool disabled = false;  ///< takes neither the current cell nor a text
    bool readOnly = false;  ///< takes the current cell, but no text
    bool resizable = true;
    std::vector<CString> choices;
    bool choicesOnly = true;  ///< only the texts in `choices` are taken, where there are any
};

/// What one cell has different from its column.
struct GridCellStyle {
    std::optional<GridKind> kind{};
    std::optional<bool> disabled{};
    std::optional<bool> readOnly{};
    std::optional<GridNumberStyle> number{};
    std::optional<std::vector<CString>> choices{};
    int span = 1;  ///< columns that it covers, to the right
    std::optional<Colour> background{};
    std::optional<Colour> foreground{};
};

}  // namespace zel
