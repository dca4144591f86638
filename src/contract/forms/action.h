#pragma once

#include <concepts>
#include <functional>
#include <utility>

class CDialog;

namespace zel {

/// What a control does when the user has acted on it: a member function of its dialog, or any callable.
///
///     CButton add{*this, "add", "Add", &CCMLoadCaseDlg::OnAdd};
///     CButton close{*this, "close", "Close", [this] { DestroyWindow(); }};
///
/// The member function may belong to any class on the way from the dialog to CDialog; its result is not looked at.
template <class... Arguments> class Action {
public:
    Action() = default;

    template <class Dialog, class Result> Action(Result (Dialog::*handler)(Arguments...))  // NOLINT: implicit, so that a declaration reads well
        : m_call([handler](CDialog& dialog, Arguments... arguments) { (void)(static_cast<Dialog&>(dialog).*handler)(arguments...); })
    {
    }

    template <class Callable>
        requires std::invocable<Callable&, Arguments...> &&(!std::same_as<std::remove_cvref_t<Callable>, Action>)Action(Callable handler)  // NOLINT: as above
            : m_call([handler = std::move(handler)](CDialog&, Arguments... arguments) mutable { (void)handler(arguments...); })
        {
        }

        explicit operator bool() const
        {
            return static_cast<bool>(m_call);
        }
        void operator()(CDialog& dialog, Arguments... arguments) const
        {
            m_call(dialog, arguments...);
        }

    private:
        std::function<void(CDialog&, Arguments...)> m_call;
};

}  // namespace zel
