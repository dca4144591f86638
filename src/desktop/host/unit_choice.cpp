#include "desktop/host/unit_choice.h"

#include "contract/units.h"
#include "desktop/forms/text.h"

#include <QComboBox>

namespace zel::desktop {

void fillLengthUnits(QComboBox& choice)
{
    for (int i = 0; i < lengthUnitCount; ++i)
        choice.addItem(toQt(unitText(Unit::length, {i, 0})));
}

void fillForceUnits(QComboBox& choice)
{
    for (int i = 0; i < forceUnitCount; ++i)
        choice.addItem(toQt(unitText(Unit::force, {0, i})));
}

}  // namespace zel::desktop
