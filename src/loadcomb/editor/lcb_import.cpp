#include "loadcomb/editor/lcb_import.h"

#include "command/guarded.h"
#include "command/messages.h"
#include "contract/forms/edit_unit.h"
#include "contract/number_text.h"
#include "contract/tables/load_combination_table.h"
#include "contract/tables/static_load_case_table.h"
#include "contract/user_interface.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <unordered_map>

namespace zel::lcb {

namespace {

constexpr std::size_t tooLong = 1020;     // bytes of a line that is refused
constexpr std::size_t lineBuffer = 1024;  // of a line, its end included
constexpr std::size_t fewestFields = 4;
constexpr std::size_t mostPairs = CDataLcom::mergeLimit;
constexpr std::int32_t staticCase = 1;
constexpr std::string_view delimiters = ",\r\n";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr const char* fileFilter = "Load Combination File(*.lcb)|*.lcb|All File(*.*)|*.*||";
constexpr const char* defaultExtension = ".lcb";

using Fields = std::vector<std::string_view>;

/// The lines of a file, of which it holds one at a time. A line that is too long is cut, and then the file goes no further.
class Lines {
public:
    explicit Lines(std::istream& file) : m_file(file) {}

    bool next()
    {
        if (!m_file.getline(m_buffer.data(), static_cast<std::streamsize>(m_buffer.size())) && m_file.gcount() == 0)
            return false;
        ++m_number;
        const bool hasEnd = m_file.good();  // an end of line was read, which counts as taken
        m_line = {m_buffer.data(), static_cast<std::size_t>(m_file.gcount()) - (hasEnd ? 1 : 0)};
        if (m_number == 1 && m_line.starts_with(byteOrderMark))
            m_line.remove_prefix(byteOrderMark.size());
        if (m_line.ends_with('\r'))
            m_line.remove_suffix(1);
        return true;
    }

    [[nodiscard]] std::string_view line() const { return m_line; }
    [[nodiscard]] int number() const { return m_number; }  ///< from 1
    /// The file could not be read to its end.
    [[nodiscard]] bool broken() const { return m_file.bad(); }

private:
    std::istream& m_file;
    std::array<char, lineBuffer> m_buffer{};
    std::string_view m_line;
    int m_number = 0;
};

/// Whether the first word of a field is "**".
bool beginsComment(std::string_view field)
{
    return field.starts_with("**") && (field.size() == 2 || std::string_view(" \t\v\f").find(field[2]) != std::string_view::npos);
}

/// The fields of a line up to a comment, without blanks at their ends. Fields without a character between two delimiters, and those
/// of blanks at the end, are none.
void split(std::string_view line, Fields& fields)
{
    fields.clear();
    std::size_t end = 0;
    for (std::size_t begin = line.find_first_not_of(delimiters); begin != std::string_view::npos; begin = line.find_first_not_of(delimiters, end)) {
        end = std::min(line.find_first_of(delimiters, begin), line.size());
        const std::string_view field = number::trim(line.substr(begin, end - begin));
        if (beginsComment(field))
            break;
        fields.push_back(field);
    }
    while (!fields.empty() && fields.back().empty())
        fields.pop_back();
}

Fault fault(const char* key, std::initializer_list<TextArgument> arguments = {})
{
    return {key, formatText(loadText(key), arguments)};
}

/// Takes a file line by line.
class Reader {
public:
    Reader(std::istream& file, const std::vector<Key>& cases) : m_lines(file), m_cases(cases) {}

    std::optional<Fault> read()
    {
        while (m_lines.next()) {
            if (m_lines.line().size() >= tooLong)
                return fault("IDS_ZEL_CMD__Error___Invalid_LCB_file_format_");
            split(m_lines.line(), m_fields);
            if (m_fields.empty())
                continue;
            if (const std::optional<Fault> found = takeLine())
                return found;
        }
        if (m_lines.broken())
            return fault("IDS_ZEL_CMD__Error___Invalid_LCB_file_format_");
        return std::nullopt;
    }

    std::vector<T_LCOM_D>& combinations() { return m_combinations; }
    [[nodiscard]] int firstIdleLine() const { return m_firstIdleLine; }

private:
    std::optional<Fault> takeLine()
    {
        const int line = m_lines.number();
        const std::size_t pairs = (m_fields.size() - 2) / 2;
        int id = 0;
        if (m_fields.size() < fewestFields)
            return fault("IDS_ZEL_CMD__Error___No_load_case_and_factor_in_lin", {line});
        if (m_fields.size() % 2 != 0)
            return fault("IDS_ZEL_CMD__Error___Mismatched_load_case_and_facto", {line});
        if (pairs > mostPairs)
            return fault("IDS_ZEL_CMD__Error___Number_of_load_case__d__exceed", {static_cast<int>(pairs), static_cast<int>(mostPairs)});
        if (CEditUnit::GetEditValue(text(0), id) == 0)
            return fault("IDS_ZEL_CMD__Error___Invalid_load_combination_ID__s", {text(0), line});

        T_LCOM_D combination;
        combination.name = formatText("LCB%d", {id});
        combination.number = id;
        for (std::size_t field = 2; field < m_fields.size(); field += 2) {
            if (std::optional<Fault> found = takePair(field, combination.items))
                return found;
        }
        if (combination.items.empty() && m_firstIdleLine == 0)
            m_firstIdleLine = line;
        return keep(std::move(combination));
    }

    std::optional<Fault> takePair(std::size_t field, std::vector<T_LCOM_ITEM>& items)
    {
        const int line = m_lines.number();
        int place = 0;
        double factor = 0.0;
        if (CEditUnit::GetEditValue(text(field), place) == 0)
            return fault("IDS_ZEL_CMD__Error___Invalid_load_case__s__in_line_", {text(field), line});
        if (place < 1 || static_cast<std::size_t>(place) > m_cases.size())
            return fault("IDS_ZEL_CMD__Error___Load_case__d_in_line__d_does_n", {place, line});
        if (CEditUnit::GetEditValue(text(field + 1), factor) == 0)
            return fault("IDS_ZEL_CMD__Error___Invalid_load_case_factor__s__i", {text(field + 1), line});
        if (factor != 0.0)
            items.push_back({staticCase, m_cases[static_cast<std::size_t>(place) - 1], factor});
        return std::nullopt;
    }

    std::optional<Fault> keep(T_LCOM_D&& combination)
    {
        const auto [seen, isNew] = m_places.try_emplace(combination.number, m_combinations.size());
        if (isNew)
            m_combinations.push_back(std::move(combination));
        else if (m_table.Merge(m_combinations[seen->second], combination) == 0)
            return fault("IDS_ZEL_CMD__Error___Number_of_load_case_exceeds_li", {CDataLcom::mergeLimit});
        return std::nullopt;
    }

    [[nodiscard]] CString text(std::size_t field) const { return CString(m_fields[field]); }

    Lines m_lines;
    const std::vector<Key>& m_cases;
    CDataLcom m_table;  // merges
    Fields m_fields;
    std::vector<T_LCOM_D> m_combinations;
    int m_firstIdleLine = 0;
    std::unordered_map<std::int32_t, std::size_t> m_places;  ///< of the combinations by ID
};

int add(int kind, std::istream& file)
{
    std::vector<Key> cases;
    CDataStld().GetKeyList(cases);
    Contents contents = read(file, cases);
    if (contents.fault) {
        AfxMessageBox(contents.fault->text, MB_OK, 0);
        return 0;
    }
    return contents.combinations.empty() || CDataLcom().Add(kind, std::move(contents.combinations)) != 0 ? 1 : 0;
}

int cannotOpen(const CString& path)
{
    showMessage("IDS_ZEL_CMD__Error___Can_t_open___s__file_", {path});
    return 0;
}

int addFile(int kind, const CString& path)
{
    std::error_code error;
    if (std::filesystem::is_directory(path, error))
        return cannotOpen(path);
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    return file.is_open() ? add(kind, file) : cannotOpen(path);
}

/// A name without an extension that is none of a file gets the default one.
CString withExtension(const CString& path)
{
    std::error_code error;
    const bool complete = std::filesystem::path(path).has_extension() || std::filesystem::exists(path, error);
    return complete ? path : path + defaultExtension;
}

}  // namespace

Contents read(std::istream& file, const std::vector<Key>& cases)
{
    Reader reader(file, cases);
    if (std::optional<Fault> found = reader.read())
        return {{}, std::move(found), 0};
    return {std::move(reader.combinations()), std::nullopt, reader.firstIdleLine()};
}

int importFile(int kind, std::istream& file)
{
    return guarded(0, [&] { return add(kind, file); });
}

int importFile(int kind, const CString& path)
{
    return guarded(0, [&] { return addFile(kind, path); });
}

int importFile(int kind)
{
    IUserInterface* host = userInterface();
    CString path;
    if (host == nullptr || !host->openFile(fileFilter, path))
        return 0;
    return guarded(0, [&] { return addFile(kind, withExtension(path)); });
}

}  // namespace zel::lcb
