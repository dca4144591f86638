#include "desktop/forms/text.h"

#include "contract/forms/find_control.h"

namespace zel::desktop {

namespace {

constexpr QChar shownAmpersand{0xE000};

}  // namespace

QString drawnLabel(const CString& label)
{
    QString drawn = toQt(label).simplified();
    drawn.replace(QStringLiteral(" :"), QStringLiteral(":"));
    return drawn;
}

QString spokenLabel(const CString& label)
{
    // A doubled "&" is one that is shown; the normal form of names drops both.
    QString text = toQt(label);
    text.replace(QStringLiteral("&&"), QString(shownAmpersand));
    return toQt(normalisedLabel(fromQt(text))).replace(shownAmpersand, QLatin1Char('&'));
}

}  // namespace zel::desktop
