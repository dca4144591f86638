#pragma once

#include <compare>
#include <cstddef>

namespace zel {

/// A number of a row or a column of a grid. What it counts is part of its type, so that none is taken for another one.
///
/// A constant may stand for any of them: `SetCurrentCell(1, 2)`. A number that was computed says what it is: `Row::of(count)`. The numbers of
/// the user's channel come from journals and from widgets, so they are made of any number. None turns back into an `int` by itself.
template <class Kind> class GridNumber {
public:
    constexpr GridNumber() = default;                                                    ///< 0
    consteval GridNumber(int constant) requires(!Kind::isUsers) : m_number(constant) {}  // NOLINT(google-explicit-constructor): see above
    constexpr GridNumber(int number) requires(Kind::isUsers) : m_number(number) {}       // NOLINT(google-explicit-constructor)

    [[nodiscard]] static constexpr GridNumber of(int number)
    {
        GridNumber made;
        made.m_number = number;
        return made;
    }
    /// The one at a place in a list that has an element for each.
    [[nodiscard]] static constexpr GridNumber at(std::size_t place) { return of(static_cast<int>(place) + Kind::first); }

    [[nodiscard]] constexpr int number() const { return m_number; }
    /// Its place in such a list. It must have one.
    [[nodiscard]] constexpr std::size_t place() const { return static_cast<std::size_t>(m_number - Kind::first); }

    constexpr GridNumber& operator++()
    {
        ++m_number;
        return *this;
    }
    constexpr GridNumber& operator--()
    {
        --m_number;
        return *this;
    }
    friend constexpr GridNumber operator+(GridNumber from, int step) { return of(from.m_number + step); }
    friend constexpr GridNumber operator-(GridNumber from, int step) { return of(from.m_number - step); }
    friend constexpr int operator-(GridNumber to, GridNumber from) { return to.m_number - from.m_number; }

    friend constexpr bool operator==(GridNumber, GridNumber) = default;
    friend constexpr auto operator<=>(GridNumber, GridNumber) = default;
    // With a count of rows or columns.
    friend constexpr bool operator==(GridNumber left, int right) { return left.m_number == right; }
    friend constexpr auto operator<=>(GridNumber left, int right) { return left.m_number <=> right; }

private:
    int m_number = 0;
};

struct RowKind {
    static constexpr bool isUsers = false;
    static constexpr int first = 1;
};
struct ColumnIndexKind {
    static constexpr bool isUsers = false;
    static constexpr int first = 0;
};
struct ColumnPlaceKind {
    static constexpr bool isUsers = false;
    static constexpr int first = 1;
};
struct UserRowKind {
    static constexpr bool isUsers = true;
    static constexpr int first = 0;
};
struct UserColumnKind {
    static constexpr bool isUsers = true;
    static constexpr int first = 0;
};

/// A row of a grid as the program counts: 0 is the header row, 1 the first data row. 0 is also "none", and -1 "outside".
using Row = GridNumber<RowKind>;
/// A column by its fixed index, from 0 in the order of AddColInfo; -1 is none. It addresses the fields of a record.
using ColumnIndex = GridNumber<ColumnIndexKind>;
/// A column by where it stands on screen, from 1, hidden ones included; 0 is the row header, and none.
using ColumnPlace = GridNumber<ColumnPlaceKind>;

/// A data row as the user and journals count, from 0; CTBGrid::append is the row for a new entry.
using UserRow = GridNumber<UserRowKind>;
/// A column on screen as the user and journals count, from 0, hidden ones included; -1 is none.
using UserColumn = GridNumber<UserColumnKind>;

}  // namespace zel
