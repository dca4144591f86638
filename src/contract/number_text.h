#pragma once

#include "contract/text.h"

#include <cstddef>
#include <optional>
#include <string_view>

/// Numbers out of texts, whatever the locale of the process is.
namespace zel::number {

/// The finite number that the whole text is: blanks around it, an optional sign, digits with an optional point, and an
/// optional exponent ("1.5e-3"). Nothing for any other text, and for a number beyond the range of a double.
[[nodiscard]] std::optional<double> read(std::string_view text);

/// The whole number that the text is: blanks around it, an optional sign, digits. Nothing if it does not fit an int.
[[nodiscard]] std::optional<int> readInteger(std::string_view text);

/// The text without the blanks at its ends.
[[nodiscard]] std::string_view trim(std::string_view text);

}  // namespace zel::number

class CStrParser {
public:
    /// Reads the whole text as a number. Returns 0, and leaves `value` alone, if it is none.
    static int GetFloatNumber(const CString& text, double& value);
};

/// Splits a text into numbers, which are then taken one by one. Numbers are separated by blanks, "," or ";".
class MyParser {
public:
    /// Reads all numbers of `text` and starts again at the first. Returns how many there are; 0 if any part is no number.
    int ParsingNumberArg(const CString& text);
    /// The same for whole numbers.
    int ParsingINumberArg(const CString& text);

    /// Takes the next number. Returns 0, and leaves `value` alone, when there is none left.
    int GetNumberData(double& value);
    int GetINumberData(int& value);

private:
    CArray<double> numbers_;
    CArray<int> integers_;
    std::size_t nextNumber_ = 0;
    std::size_t nextInteger_ = 0;
};
