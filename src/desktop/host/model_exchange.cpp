#include "desktop/host/model_exchange.h"

#include "desktop/forms/text.h"
#include "platform/forms/headless_user_interface.h"
#include "platform/modeldb/file_header.h"
#include "platform/modeldb/model_json.h"
#include "platform/os/file_writer.h"

#include <QFile>

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <system_error>

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
    try {
        if (isModelFile(fromQt(json)))
            fail(quoted(json) + QStringLiteral(" is a model file, which would be lost. Choose another name."));
        os::FileWriter file(fromQt(json));
        printModelJson(document, file.stream());
        file.finish();
    } catch (const std::system_error& error) {
        fail(quoted(json) + QStringLiteral(" can't be written: ") + toQt(error.code().message()) +
             QStringLiteral(". Check the folder and the space on the disk."));
    }
}

void copyModelFile(const QString& from, const QString& to)
{
    ModelDocument::open(fromQt(from), ModelFile::Access::readOnly)->saveCopy(fromQt(to), true);
}

}  // namespace zel::desktop
