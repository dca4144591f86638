#pragma once

#include "contract/records/unit_index.h"
#include "platform/modeldb/change.h"

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <vector>

namespace zel {

/// Something in a model file that is not as the program stores it.
struct FileFault {
    std::string_view table;  ///< four letters; empty: the file as a whole
    int kind = 0;            ///< design kind of a kinded table
    Key key = 0;             ///< 0: the table as a whole
    CString field;           ///< empty: the record as a whole
    CString what;            ///< "is not a finite number"
    bool leftOut = false;    ///< what it concerns is not among what could be read
};

/// What a model file holds, as far as it can be read.
struct ExaminedFile {
    T_UNIT_INDEX units;
    std::vector<FileFault> faults;
    std::vector<Batch> records;  ///< as additions: what `ModelFile::create` takes

    [[nodiscard]] std::size_t recordCount() const;
};

/// Looks for every fault of a model file, and reads what can be read: a record is left out as a whole when one of its values can't be
/// read or is none that its table takes, since a default in its place would be a number that nobody gave. Records that come through
/// with a changed number can't be told one by one; their table's hash tells that there are some.
///
/// The file is not altered: a copy of it in the folder for temporary files is read, with the write-ahead log that stands beside it.
/// @throws FileRefusal  for a file that can't be read at all: none there, no model, of a newer version, without a readable list of tables
ExaminedFile examineModelFile(const std::filesystem::path& path);

}  // namespace zel
