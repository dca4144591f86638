#include "cli/commands.h"
#include "cli/input.h"

#include "journal/dialog_commands.h"
#include "journal/journal_player.h"
#include "platform/messages/message_catalogue.h"
#include "platform/modeldb/file_header.h"
#include "platform/modeldb/model_document.h"

#include <fstream>
#include <iostream>
#include <stdexcept>

namespace zel::cli {

namespace {

bool sameFile(const std::filesystem::path& left, const std::filesystem::path& right)
{
    std::error_code error;
    return std::filesystem::equivalent(left, right, error);
}

/// The transcript, which must not wipe out what is read.
std::unique_ptr<std::ostream> openTranscript(const PlayJournal& job)
{
    if (job.transcript == "-")
        return nullptr;
    if ((job.script != "-" && sameFile(job.script, job.transcript)) || (job.model && sameFile(*job.model, job.transcript)))
        throw std::runtime_error("the transcript \"" + job.transcript + "\" would overwrite what is read. Give it a name of its own.");
    if (isModelFile(job.transcript))
        throw std::runtime_error("the transcript \"" + job.transcript + "\" is a model file, which would be lost. Give it a name of its own.");
    auto file = std::make_unique<std::ofstream>(job.transcript, std::ios::binary | std::ios::trunc);
    if (!*file)
        throw std::runtime_error("the transcript \"" + job.transcript + "\" can't be written. Check the folder and its permissions.");
    return file;
}

}  // namespace

int playJournal(const PlayJournal& job)
{
    MessageCatalogue::builtIn().showKeys(job.showKeys);
    Input script(job.script);
    const std::unique_ptr<ModelDocument> document = job.model ? ModelDocument::open(*job.model) : ModelDocument::inMemory();
    const std::unique_ptr<std::ostream> transcript = openTranscript(job);
    JournalPlayer player(*document, script.stream(), transcript ? *transcript : std::cout, {job.runHostCommands, job.strict});
    const JournalPlayer::Status status = player.play();
    closeAllDialogs();
    if (player.fileRefused())
        std::cerr << "zel: the model's file refused a write; the messages in the transcript tell which, and why.\n";
    script.check();
    document->close();
    return static_cast<int>(status);
}

}  // namespace zel::cli
