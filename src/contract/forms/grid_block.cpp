#include "contract/forms/grid_block.h"

namespace zel {

namespace {

/// Reads a quoted cell from behind its opening quote; returns the place behind its closing one.
std::size_t readQuoted(std::string_view text, std::size_t at, CString& cell)
{
    while (at < text.size()) {
        if (text[at] != '"') {
            cell += text[at++];
        } else if (at + 1 < text.size() && text[at + 1] == '"') {
            cell += '"';
            at += 2;
        } else {
            return at + 1;
        }
    }
    return at;
}

}  // namespace

GridBlock readGridBlock(std::string_view text)
{
    GridBlock block;
    std::size_t at = 0;
    while (at < text.size()) {
        CArray<CString>& line = block.emplace_back();
        bool lineEnds = false;
        while (!lineEnds) {
            CString& cell = line.emplace_back();
            if (at < text.size() && text[at] == '"')
                at = readQuoted(text, at + 1, cell);
            while (at < text.size() && text[at] != '\t' && text[at] != '\n' && text[at] != '\r')
                cell += text[at++];
            lineEnds = at >= text.size() || text[at] != '\t';
            if (at < text.size() && text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n')
                ++at;
            if (at < text.size())
                ++at;
        }
    }
    return block;
}

CString writeGridBlock(const GridBlock& block)
{
    CString text;
    for (const CArray<CString>& line : block) {
        for (std::size_t column = 0; column < line.size(); ++column) {
            const CString& cell = line[column];
            if (column > 0)
                text += '\t';
            if (cell.find_first_of("\t\r\n\"") == CString::npos) {
                text += cell;
                continue;
            }
            text += '"';
            for (const char character : cell)
                text.append(character == '"' ? 2 : 1, character);
            text += '"';
        }
        text += "\r\n";
    }
    return text;
}

}  // namespace zel
