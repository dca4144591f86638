#pragma once

#include <istream>
#include <string>

namespace zel {

/// The lines of a journal that hold commands.
class JournalScript {
public:
    explicit JournalScript(std::istream& source) : m_source(source) {}

    /// Goes on to the next command; empty lines and those that begin with "#" are passed over. False at the end.
    bool next()
    {
        while (std::getline(m_source, m_text)) {
            ++m_line;
            if (m_line == 1 && m_text.starts_with("\xEF\xBB\xBF"))  // the mark that some editors put in front of UTF-8
                m_text.erase(0, 3);
            if (m_text.ends_with('\r'))
                m_text.pop_back();
            if (m_text.find_first_not_of(" \t") != std::string::npos && !m_text.starts_with('#'))
                return true;
        }
        return false;
    }

    [[nodiscard]] const std::string& text() const { return m_text; }
    [[nodiscard]] long line() const { return m_line; }  ///< from 1

private:
    std::istream& m_source;
    std::string m_text;
    long m_line = 0;
};

}  // namespace zel
