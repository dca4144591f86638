#include "desktop/host/recent_files.h"

#include "desktop/host/settings.h"

#include <QFileInfo>

namespace zel::desktop::recentFiles {

namespace {

const QString place = QStringLiteral("files/recent");

}  // namespace

QStringList list()
{
    return remembered(place).toStringList().mid(0, mostFiles);
}

void add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = list();
    files.removeAll(absolute);
    files.prepend(absolute);
    remember(place, files.mid(0, mostFiles));
}

void remove(const QString& path)
{
    QStringList files = list();
    files.removeAll(QFileInfo(path).absoluteFilePath());
    remember(place, files);
}

void clear()
{
    remember(place, QStringList());
}

}  // namespace zel::desktop::recentFiles
