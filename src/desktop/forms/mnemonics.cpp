#include "desktop/forms/mnemonics.h"

#include <QSet>

namespace zel::desktop {

namespace {

constexpr QLatin1Char mark{'&'};

/// Place of the mark; -1 for none. A doubled one is no mark: it shows one.
qsizetype declaredAt(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != mark)
            continue;
        if (text[i + 1].isLetterOrNumber())
            return i;
        i += text[i + 1] == mark ? 1 : 0;
    }
    return -1;
}

QString withoutMarks(const QString& text)
{
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != mark) {
            plain += text[i];
        } else if (i + 1 < text.size() && text[i + 1] == mark) {
            plain += QStringLiteral("&&");
            ++i;
        }
    }
    return plain;
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
        result[i] = withoutMarks(result[i]);
        open.push_back(i);
    }
    for (const std::size_t i : open) {
        qsizetype at = freePlace(result[i], taken, true);
        if (at < 0)
            at = freePlace(result[i], taken, false);
        if (at < 0)
            continue;
        taken.insert(result[i][at].toLower());
        result[i].insert(at, mark);
    }
    return result;
}

}  // namespace zel::desktop
