#include "desktop/forms/text.h"

#include "contract/forms/find_control.h"

namespace zel::desktop {

QString drawnLabel(const CString& label)
{
    QString drawn = toQt(label).simplified();
    drawn.replace(QStringLiteral(" :"), QStringLiteral(":"));
    return drawn;
}

QString spokenLabel(const CString& label)
{
    return toQt(normalisedLabel(label));
}

}  // namespace zel::desktop
