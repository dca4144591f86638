#pragma once

#include "contract/notices.h"

#include <functional>
#include <utility>

namespace zel::desktop {

/// Hands the notices of the model that is current when it is made to a view.
class ModelWatch final : public CDBUpdateConnector {
public:
    explicit ModelWatch(std::function<void(long long hint)> take) : m_take(std::move(take)) {}

    void OnUpdate(CView* /*sender*/, long long hint, CObject* /*object*/) override { m_take(hint); }

private:
    std::function<void(long long)> m_take;
};

}  // namespace zel::desktop
