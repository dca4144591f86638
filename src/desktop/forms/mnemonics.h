#pragma once

#include <QString>

#include <vector>

namespace zel::desktop {

/// Gives each text of a form a mnemonic of its own: the letter behind a "&" that it bears already, else the first free letter of its words, else any
/// free letter or digit in it. A text for which none is left gets none; so does the second of two that bear the same.
std::vector<QString> withMnemonics(const std::vector<QString>& texts);

}  // namespace zel::desktop
