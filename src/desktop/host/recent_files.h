#pragma once

#include <QStringList>

/// The model files that were opened last, kept between runs.
namespace zel::desktop::recentFiles {

inline constexpr int mostFiles = 10;

/// Absolute paths, the last opened first.
QStringList list();
void add(const QString& path);
void remove(const QString& path);
void clear();

}  // namespace zel::desktop::recentFiles
