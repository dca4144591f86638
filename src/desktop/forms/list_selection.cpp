#include "desktop/forms/list_selection.h"

#include <QItemSelectionModel>

#include <algorithm>

namespace zel::desktop {

std::vector<int> selectedRowsOf(const QItemSelectionModel& selection)
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void selectRowsIn(QAbstractItemView& view, std::vector<int> rows)
{
    const QAbstractItemModel& model = *view.model();
    const int columns = model.columnCount();
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    for (std::size_t first = 0; first < rows.size() && columns > 0;) {
        std::size_t last = first;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        selection.select(model.index(rows[first], 0), model.index(rows[last], columns - 1));
        first = last + 1;
    }
    if (selectedRowsOf(*view.selectionModel()) != rows)
        view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

}  // namespace zel::desktop
