#pragma once

#include "contract/text.h"

#include <cstddef>

namespace zel {

/// Why the model refuses a change, told to the user in a message box.
enum class Refusal { duplicateName, emptyName, nameTooLong, keyExists, noRecord, inUse, notFinite, badKind, fileWrite, fileUnsafe, fileRead };

/// Tells the user. `detail` fills the placeholder of a text; `number` that of a numeric one.
/// @return 0, the result of a refused operation
int refuse(Refusal reason, const CString& detail = {}, int number = 0);

/// How many changes of models their files have refused since the program began.
std::size_t refusedFileWrites();

}  // namespace zel
