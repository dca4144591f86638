#pragma once

#include "contract/export.h"
#include "contract/text.h"

#include <initializer_list>
#include <variant>

/// Texts for users, by the keys of the message catalogue.
namespace zel {

/// The text of a message key.
CString loadText(const char* key);

using TextArgument = std::variant<CString, int, double>;

/// `format` with its placeholders %s, %d and %g replaced by the arguments in turn; "%%" is a percent sign. What an argument
/// holds is never read as a format. A placeholder without an argument stays as it is.
CString formatText(const CString& format, std::initializer_list<TextArgument> arguments);

/// A number as a printf format shows it: numberText("%10.3f", 1.5).
CString numberText(const char* format, double value);

/// Shows a message with an OK button.
ZEL_CMD_API void showMessage(const char* key);
ZEL_CMD_API void showMessage(const char* key, std::initializer_list<TextArgument> arguments);

/// Asks with Yes and No; true for Yes.
bool askYesNo(const char* key);

}  // namespace zel
