#pragma once

#include "platform/modeldb/file_refusal.h"

class QString;
class QWidget;

namespace zel::desktop {

/// What the user chose to do about a file that was refused.
enum class WayOut { none, openAnother, retry, readOnly, openCopy, forget };

/// Tells why a model file can't be opened, with the ways out as buttons: another file always, the same once more or for reading only where it
/// is locked, for reading only or as a copy where it is read-only, and out of the list of recent files where it is missing and came from there.
WayOut tellRefusal(QWidget* parent, const FileRefusal& refusal, bool isRecent);

/// Tells that something did not work, with nothing to choose.
void tellFault(QWidget* parent, const QString& heading, const QString& reason);

}  // namespace zel::desktop
