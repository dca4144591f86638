#pragma once

#include "contract/text.h"

#include <filesystem>
#include <stdexcept>

namespace zel {

/// A model file that can't be opened, made or written. `what()` is a plain sentence that names the file and the way out.
class FileRefusal : public std::runtime_error {
public:
    enum class Reason {
        missing,
        exists,
        notAModel,
        newer,
        damaged,
        companion,  ///< a log or journal beside it is not its own
        locked,
        readOnly,
        moved,   ///< the path no longer leads to the file that was opened
        unsafe,  ///< a change may be in the file or not
        failed,
    };

    FileRefusal(Reason reason, const std::filesystem::path& path, const CString& sentence)
        : std::runtime_error("\"" + path.string() + "\" " + sentence), m_reason(reason), m_sentence(sentence)
    {
    }

    [[nodiscard]] Reason reason() const { return m_reason; }
    /// The sentence without the file's name.
    [[nodiscard]] const CString& sentence() const { return m_sentence; }

private:
    Reason m_reason;
    CString m_sentence;
};

}  // namespace zel
