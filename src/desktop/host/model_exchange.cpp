#include "desktop/host/model_exchange.h"

#include "desktop/forms/text.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/model_json.h"

#include <QFile>
#include <QSaveFile>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>
#include <stdexcept>

namespace zel::desktop {

namespace {

QString quoted(const QString& path)
{
    return QLatin1Char('"') + path + QLatin1Char('"');
}

[[noreturn]] void fail(const QString& sentence)
{
    throw std::runtime_error(fromQt(sentence));
}

/// The sentence of a fault in a JSON text, with what tables have said about it.
QString sentenceOf(const JsonFault& fault, const HeadlessUserInterface& told)
{
    QString sentence = toQt(fault.what());
    for (const HeadlessUserInterface::Box& box : told.boxes)
        sentence += QStringLiteral(": ") + toQt(box.text);
    if (!sentence.endsWith(QLatin1Char('.')) && !sentence.endsWith(QLatin1Char('?')))
        sentence += QLatin1Char('.');
    return sentence;
}

}  // namespace

void importModelJson(const QString& json, const QString& model, const std::function<void(const QString& step)>& tell)
{
    QFile file(json);
    if (!file.open(QIODevice::ReadOnly))
        fail(quoted(json) + QStringLiteral(" can't be read. Check its name and permissions."));
    tell(QStringLiteral("Reading ") + json + QStringLiteral("..."));
    const CString text = file.readAll().toStdString();
    const HeadlessUserInterface told;  // the tables tell it what they refuse
    try {
        const Json read = parseJson(text);
        const std::unique_ptr<ModelDocument> document = ModelDocument::inMemory(unitsOfModelJson(read));
        tell(QStringLiteral("Checking the records..."));
        storeRows(*document, rowsOfModelJson(read));
        tell(QStringLiteral("Writing ") + model + QStringLiteral("..."));
        document->saveCopy(fromQt(model), true);
    } catch (const JsonFault& fault) {
        fail(quoted(json) + QStringLiteral(": ") + sentenceOf(fault, told) + QStringLiteral(" Nothing was written."));
    }
}

void exportModelJson(ModelDocument& document, const QString& json)
{
    std::ostringstream text;
    printModelJson(document, text);
    const std::string bytes = text.str();
    QSaveFile file(json);
    const auto size = static_cast<qint64>(bytes.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), size) != size || !file.commit())
        fail(quoted(json) + QStringLiteral(" can't be written: ") + file.errorString() + QStringLiteral(". Check the folder and the space on the disk."));
}

void copyModelFile(const QString& from, const QString& to)
{
    namespace fs = std::filesystem;
    const fs::path target = fromQt(to);
    std::error_code error;
    for (const char* suffix : {"", "-wal"}) {  // a log that a crash has left belongs to it
        const fs::path source = fromQt(from) + suffix;
        const fs::path beside = target.string() + suffix;
        if (!fs::exists(source)) {
            fs::remove(beside, error);
            continue;
        }
        fs::copy_file(source, beside, fs::copy_options::overwrite_existing, error);
        if (!error)
            fs::permissions(beside, fs::perms::owner_write, fs::perm_options::add, error);
        if (error)
            throw FileRefusal(FileRefusal::Reason::failed, target, "can't be written (" + error.message() + "). Check the folder and the space on the disk.");
    }
}

}  // namespace zel::desktop
