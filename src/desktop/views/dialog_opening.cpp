#include "desktop/views/dialog_opening.h"

#include "journal/user_hand.h"

namespace zel::desktop {

std::string_view DialogOpening::title() const
{
    const bool isNamed = row != nullptr && (row->way.id != nullptr || row->way.number != 0);
    return isNamed ? row->title : std::string_view();
}

void DialogOpening::run(UserHand& hand) const
{
    if (row->way.id != nullptr)
        hand.modeless(*row->way.id);
    else if (row->way.number != 0)
        hand.modal(row->way.number);
    else
        hand.open(row->dialogClass);
}

}  // namespace zel::desktop
