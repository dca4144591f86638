#pragma once

#include <string_view>
#include <typeinfo>

namespace zel {

/// Enters the name of a dialog class, as journals know it: the name in the source, without namespaces. Always true, so that a constant can
/// stand for it. What a compiler calls the class is another matter, and differs from one to the next.
bool enterDialogName(const std::type_info& dialogClass, std::string_view name);

/// The name that was entered; empty if none was.
[[nodiscard]] std::string_view dialogName(const std::type_info& dialogClass);

}  // namespace zel

/// At namespace scope, in the source of a dialog that no command opens by itself. ZEL_DIALOG does it for the others.
#define ZEL_DIALOG_NAME(Class)                                                                                                                                 \
    namespace {                                                                                                                                                \
    [[maybe_unused]] const bool named##Class = zel::enterDialogName(typeid(Class), #Class);                                                                    \
    }
