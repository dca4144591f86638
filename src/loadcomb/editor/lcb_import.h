#pragma once

#include "contract/export.h"
#include "contract/records/lcom.h"
#include "contract/table_store.h"
#include "contract/text.h"

#include <istream>
#include <optional>
#include <vector>

/// Load combinations out of LCB files: text with one combination a line, "ID, any text, case, factor, case, factor, ...". A load case
/// is named by its place in the sequence of the static load cases, from 1. Lines of one ID make one combination; "**" begins a comment.
namespace zel::lcb {

/// The first thing that is wrong with a file.
struct Fault {
    const char* key = nullptr;  ///< of the message
    CString text;               ///< the message, with the line and the field where it names them
};

struct Contents {
    std::vector<T_LCOM_D> combinations;  ///< one an ID, "LCB%d", in the order of first mention; none where there is a fault
    std::optional<Fault> fault;
    int firstIdleLine = 0;  ///< the first line, from 1, whose factors are all 0; 0 for none. Its combination has no items of it.
};

/// Reads a file to its end or its first fault. What it holds meanwhile is one line and the combinations.
///
/// @param cases  keys of the static load cases in their sequence
/// @pre  a model is open: its table of load combinations merges the lines of one ID
ZEL_CMD_API Contents read(std::istream& file, const std::vector<Key>& cases);

/// Reads a file and adds its combinations to those of a design kind, in one change of the model. A fault is shown as a message, and
/// nothing is stored then. A file without combinations changes nothing.
///
/// @param kind  1 general, 2 steel, 3 concrete, 4 footing, 5 SRC
/// @return  1, or 0 for a fault or where the model refused, which it has told itself
ZEL_CMD_API int importFile(int kind, std::istream& file);
/// The same by the name of the file, which may be one that can't be read.
ZEL_CMD_API int importFile(int kind, const CString& path);

/// Asks the user for the file; cancelled, it returns 0 and does nothing. What "Import..." of the editor does.
ZEL_CMD_API int importFile(int kind);

}  // namespace zel::lcb
