#include "contract/forms/grid_row_edit.h"

#include <cassert>
#include <utility>

namespace zel {

void RowEdit::start(Row row, bool isAdded, CArray<CString>&& texts)
{
    assert(isNone());
    m_state = State::untouched;
    m_isAdded = isAdded;
    m_row = row;
    m_texts = std::move(texts);
}

void RowEdit::begin(Row dataRow, CArray<CString> texts)
{
    start(dataRow, false, std::move(texts));
}

void RowEdit::beginNew(CArray<CString> texts)
{
    start(0, true, std::move(texts));
}

void RowEdit::end()
{
    *this = {};
}

void RowEdit::openCell(ColumnIndex index)
{
    assert(isEditing() && !hasOpenCell());
    m_openCell = index;
    m_cell = m_texts[index.place()];
    m_isCellTyped = false;
}

void RowEdit::type(const CString& text)
{
    assert(hasOpenCell());
    m_cell = text;
    m_isCellTyped = true;
}

void RowEdit::keepCell()
{
    assert(isEditing() && hasOpenCell());
    m_texts[m_openCell.place()] = std::exchange(m_cell, {});
    m_openCell = -1;
}

void RowEdit::dropCell()
{
    assert(isEditing() && hasOpenCell());
    m_cell.clear();
    m_openCell = -1;
    if (m_state == State::untouched)
        end();
}

void RowEdit::settle(bool differs)
{
    assert(isEditing() && !hasOpenCell());
    if (differs)
        m_state = State::typed;
    else
        end();
}

void RowEdit::beginWriting()
{
    assert(isTyped() && !hasOpenCell());
    m_state = State::writing;
}

void RowEdit::refuseWriting()
{
    assert(isWriting());
    m_state = State::typed;
    if (!m_isAdded && m_row == 0)
        end();
}

void RowEdit::replaceText(ColumnIndex index, const CString& text)
{
    assert(isEditing());
    m_texts[index.place()] = text;
    if (isOpen(index))
        m_cell = text;
}

// Following the rows

void RowEdit::loseRow()
{
    if (isWriting())
        m_row = 0;  // what was typed is still being written
    else
        end();
}

void RowEdit::rowInserted(Row row)
{
    if (m_row >= row)
        ++m_row;
}

void RowEdit::rowDeleted(Row row)
{
    if (m_row == row)
        loseRow();
    else if (m_row > row)
        --m_row;
}

void RowEdit::rowsMoved(const CArray<Row>& place)
{
    if (m_row > 0)
        m_row = place[m_row.place()];
}

void RowEdit::rowsReset(int kept)
{
    if (m_row > 0 && (isWriting() || m_row > kept))
        loseRow();
}

}  // namespace zel
