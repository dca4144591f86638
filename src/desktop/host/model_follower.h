#pragma once

#include "contract/notices.h"

#include <functional>
#include <utility>

namespace zel::desktop {

/// Calls a function with the hint of each notice of the document that was current when it was made. It must go before that document does.
class ModelFollower final : public CDBUpdateConnector {
public:
    explicit ModelFollower(std::function<void(long long hint)> told) : m_told(std::move(told)) {}

    void OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/) override { m_told(hint); }

private:
    std::function<void(long long)> m_told;
};

}  // namespace zel::desktop
