#pragma once

#include <QAbstractItemView>

#include <vector>

namespace zel::desktop {

/// The selected rows, ascending.
[[nodiscard]] std::vector<int> selectedRowsOf(const QItemSelectionModel& selection);

/// Selects these rows as a whole, and no others; neighbours as one range.
void selectRowsIn(QAbstractItemView& view, std::vector<int> rows);

}  // namespace zel::desktop
