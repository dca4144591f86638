#pragma once

#include "contract/text.h"

#include <QString>

namespace zel::desktop {

inline QString toQt(const CString& text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline CString fromQt(const QString& text)
{
    return text.toStdString();
}

/// A label as it is drawn: runs of blanks folded, none at the ends and before a colon, "&" before the mnemonic kept.
QString drawnLabel(const CString& label);

/// The same without mnemonic and colon, for assistive tools.
QString spokenLabel(const CString& label);

}  // namespace zel::desktop
