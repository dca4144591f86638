#pragma once

#include "platform/modeldb/model_document.h"

#include <QString>

#include <functional>

/// Models to and from other files. A fault is a std::exception whose text names the file and the place of the fault.
namespace zel::desktop {

/// Reads a model from JSON into a new model file; nothing is written when there is a fault in it.
/// @param tell  called with what is being done
/// @throws FileRefusal, std::runtime_error
void importModelJson(const QString& json, const QString& model, const std::function<void(const QString& step)>& tell);

/// Writes the whole model as JSON; a file of that name is replaced when everything is written.
/// @throws std::runtime_error
void exportModelJson(ModelDocument& document, const QString& json);

/// Copies a model file that nobody has open, and makes the copy writable. A file of that name is replaced.
/// @throws FileRefusal
void copyModelFile(const QString& from, const QString& to);

}  // namespace zel::desktop
