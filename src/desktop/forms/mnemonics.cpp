#include "desktop/forms/mnemonics.h"

#include <QSet>

namespace zel::desktop {

namespace {

qsizetype declaredAt(const QString& text)
{
    const qsizetype at = text.indexOf(QLatin1Char('&'));
    return at >= 0 && at + 1 < text.size() && text[at + 1].isLetterOrNumber() ? at : -1;
}

qsizetype freePlace(const QString& text, const QSet<QChar>& taken, bool atWords)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool wordBegins = i == 0 || !text[i - 1].isLetterOrNumber();
        // A letter of another script is on no key that Alt is pressed with.
        if (text[i].isLetterOrNumber() && text[i].unicode() < 128 && (!atWords || wordBegins) && !taken.contains(text[i].toLower()))
            return i;
    }
    return -1;
}

}  // namespace

std::vector<QString> withMnemonics(const std::vector<QString>& texts)
{
    std::vector<QString> result = texts;
    QSet<QChar> taken;
    std::vector<std::size_t> open;
    for (std::size_t i = 0; i < result.size(); ++i) {
        const qsizetype at = declaredAt(result[i]);
        if (at >= 0 && !taken.contains(result[i][at + 1].toLower())) {
            taken.insert(result[i][at + 1].toLower());
            continue;
        }
        result[i].remove(QLatin1Char('&'));
        open.push_back(i);
    }
    for (const std::size_t i : open) {
        qsizetype at = freePlace(result[i], taken, true);
        if (at < 0)
            at = freePlace(result[i], taken, false);
        if (at < 0)
            continue;
        taken.insert(result[i][at].toLower());
        result[i].insert(at, QLatin1Char('&'));
    }
    return result;
}

}  // namespace zel::desktop
