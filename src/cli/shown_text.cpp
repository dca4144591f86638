#include "cli/shown_text.h"

namespace zel::cli {

namespace {

constexpr unsigned char leadOfLatin1 = 0xC2;  // in UTF-8 the first byte of U+0080 to U+00BF

void writeOut(std::string& out, unsigned char byte)
{
    static constexpr std::string_view digits = "0123456789ABCDEF";
    out += "\\x";
    out += digits[byte >> 4U];
    out += digits[byte & 15U];
}

}  // namespace

std::string shownText(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : '\0');
        if (byte == '\n')
            out += "\\n";
        else if (byte == '\r')
            out += "\\r";
        else if (byte == '\t')
            out += "\\t";
        else if (byte < 0x20 || byte == 0x7F)
            writeOut(out, byte);
        else if (byte == leadOfLatin1 && next >= 0x80 && next < 0xA0)
            writeOut(out, static_cast<unsigned char>(text[++i]));
        else
            out += text[i];
    }
    return out;
}

}  // namespace zel::cli
