#include "contract/forms/picked_objects.h"

#include "contract/forms/mouse_edit.h"

namespace zel {

Taken pickObjects(Control& control, const PickedObjects& objects, bool closed)
{
    if (auto* several = dynamic_cast<ITakesObjects*>(&control))
        return several->pickObjects(objects, closed);
    const auto* field = dynamic_cast<const CMouseEdit*>(&control);
    if (field != nullptr && field->takesNodes())
        return {"\"" + control.name() + "\" takes nodes, no objects"};
    if (field != nullptr && !(objects.lines.empty() && objects.areas.empty()))
        return {"\"" + control.name() + "\" takes points, no lines and no areas"};
    return control.pick(objects.points, closed);
}

}  // namespace zel
