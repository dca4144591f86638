#include "contract/forms/grid_common.h"

#include "contract/format_text.h"
#include "contract/number_text.h"

bool CTBCommon::ValidateTexts(const CArray<CString>& texts, const CArray<ColumnIndex>& columns, const CString& missing, Fields fields)
{
    CString message;
    for (std::size_t i = 0; i < columns.size() && i < texts.size(); ++i) {
        if (texts[i].empty())
            message += (message.empty() ? "" : "\n") + GetColTitle(columns[i]) + missing;
        else if (fields == Fields::validate && !ValidateField(texts[i], columns[i]))
            return false;
    }
    if (message.empty())
        return true;
    SetWarningText(message);
    return false;
}

bool CTBCommon::ValidateNumber(const CString& text, const NumberWarnings& warnings)
{
    int reason = 0;
    if (IsValidDoubleNumber(text, reason))
        return true;
    SetWarningText(warnings[static_cast<std::size_t>(reason - 1)]);
    return false;
}

double CTBCommon::RealOf(const CString& text)
{
    return zel::number::read(ConvertFormulaToValue(text)).value_or(0.0);
}

CString CTBCommon::RealText(double value)
{
    return zel::formatText("%.15g", value);
}
