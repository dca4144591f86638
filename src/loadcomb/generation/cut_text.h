#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zel::loadcomb {

/// A text cut at a token, to be put together with many replacements. It refers to the text that it was made of.
class CutText {
public:
    CutText(std::string_view text, std::string_view token)
    {
        std::size_t from = 0;
        for (std::size_t at = text.find(token); at != std::string_view::npos; at = text.find(token, from)) {
            m_pieces.push_back(text.substr(from, at - from));
            from = at + token.size();
        }
        m_pieces.push_back(text.substr(from));
        m_size = text.size() - token.size() * (m_pieces.size() - 1);
    }

    void joinWith(std::string_view replacement, std::string& joined) const
    {
        joined.reserve(m_size + replacement.size() * (m_pieces.size() - 1));
        joined.assign(m_pieces.front());
        for (std::size_t i = 1; i < m_pieces.size(); ++i)
            joined.append(replacement).append(m_pieces[i]);
    }

private:
    std::vector<std::string_view> m_pieces;
    std::size_t m_size = 0;  ///< of all pieces
};

}  // namespace zel::loadcomb
