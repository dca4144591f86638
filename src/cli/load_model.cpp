#include "cli/commands.h"
#include "cli/console.h"
#include "cli/input.h"
#include "cli/run_monitor.h"

#include "platform/modeldb/file_header.h"
#include "platform/modeldb/model_document.h"
#include "platform/modeldb/model_json.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace zel::cli {

namespace {

/// A file may be replaced only if it is a model: a mistyped name must not cost a drawing. A damaged model may go too.
void checkReplaceable(const std::filesystem::path& path)
{
    if (!std::filesystem::exists(path))
        return;
    try {
        checkFileHeader(path);
    } catch (const FileRefusal& refusal) {
        if (refusal.reason() != FileRefusal::Reason::damaged)
            throw;
    }
}

}  // namespace

int loadModel(const LoadModel& job)
{
    if (job.replace)
        checkReplaceable(job.model);
    else if (std::filesystem::exists(job.model))
        throw FileRefusal(FileRefusal::Reason::exists, job.model, "exists already. Give another name, or --replace to replace it.");

    Input input(job.file);
    Console console;
    try {
        const std::string text = input.text();
        const RunMonitor monitor;
        const Json json = parseJson(text);
        const std::unique_ptr<ModelDocument> document = ModelDocument::inMemory(unitsOfModelJson(json));
        storeRows(*document, rowsOfModelJson(json));
        document->saveCopy(job.model, job.replace);
    } catch (const JsonFault& fault) {
        std::string sentence = input.name() + ": " + fault.what();
        if (const std::string told = console.told(); !told.empty())
            sentence += ": " + told;
        if (!sentence.ends_with('.') && !sentence.ends_with('?'))
            sentence += '.';
        throw std::runtime_error(sentence + " Nothing was written.");
    }
    return succeeded;
}

}  // namespace zel::cli
