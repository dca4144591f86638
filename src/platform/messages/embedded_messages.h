#pragma once

#include <span>

namespace zel {

/// The bytes of the compiled catalogue en.po; the build makes their source.
std::span<const unsigned char> embeddedMessages();

}  // namespace zel
