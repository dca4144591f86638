#pragma once

#include "contract/forms/edit.h"
#include "contract/notices.h"
#include "contract/records/unit_index.h"
#include "contract/unit_types.h"

/// A numeric edit field bound to a unit type. It takes numbers and expressions of them: "1.2*2", "(3+4)/2", "1e-3".
///
/// On a change of units it converts the number that it shows, by itself: the number last set, or what the user has typed
/// since. A text that is no number stays.
class CEditUnit : public CEdit, private CDBUpdateConnector {
public:
    /// @param unitType  a type of `Unit`
    CEditUnit(const zel::Place& place, std::string_view id, CString label, int unitType = Unit::none, zel::Action<> onChange = {});

    /// Shows a real field, in the unit that its record gives it, or a whole number.
    CEditUnit(const zel::Place& place, std::string_view id, CString label, const zel::Field& field, zel::Action<> onChange = {});

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::number; }

    void showField(const void* record) override;

    void SetUnitType(int unitType) { m_unitType = unitType; }
    [[nodiscard]] int unitType() const { return m_unitType; }

    /// Shows `value`, a number in the current unit system, with "%g".
    void SetEditUnit(double value);
    /// Shows a text formatted as printf does.
    void SetEditText(const char* format, ...);

    /// Reads the field. Returns 0, and leaves `value` alone, if it does not hold a finite number.
    int GetEditValue(double& value) const;
    /// The same for a whole number: blanks, an optional sign, digits, and nothing else.
    int GetEditValue(int& value) const;
    /// The number; 0 if there is none. After SetEditUnit it is the number that was set, with all its digits.
    [[nodiscard]] double GetEditValue() const;

    /// The same parsing on a text, and on any field.
    static int GetEditValue(const CString& text, double& value);
    static int GetEditValue(const CString& text, int& value);
    static int GetEditValue(const CWnd* field, int& value);

    void SetWindowText(const CString& text) override;

private:
    void OnUpdate(CView* sender, long long hint, CObject* object) override;
    void convert();
    int readNumber(double& value) const override { return GetEditValue(value); }

    int m_unitType;
    double m_value = 0.0;     ///< the number that SetEditUnit was given
    bool m_hasValue = false;  ///< whether the text is still that of m_value
    T_UNIT_INDEX m_units;     ///< the unit system in which the text is to be read
};

/// A label that shows the current unit of its type, and follows a change of units by itself.
class CTextUnit : public CStatic, private CDBUpdateConnector {
public:
    CTextUnit(const zel::Place& place, std::string_view id, int unitType = Unit::none);
    /// The unit of a field.
    CTextUnit(const zel::Place& place, std::string_view id, const zel::Field& field);

    [[nodiscard]] zel::Kind kind() const override { return zel::Kind::unit; }
    void SetUnitType(int unitType);
    [[nodiscard]] int unitType() const { return m_unitType; }

private:
    void OnUpdate(CView* sender, long long hint, CObject* object) override;

    int m_unitType = Unit::none;
};
