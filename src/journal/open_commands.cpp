#include "journal/open_commands.h"

#include "command/command.h"
#include "command/dialog_class.h"
#include "command/dialog_table.h"
#include "command/paged_dialog.h"
#include "contract/forms/db_dlg_base.h"
#include "contract/forms/dialog.h"
#include "contract/nearest.h"
#include "contract/record.h"
#include "platform/modeldb/record_json.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace zel {

namespace {

/// The `args` of a command that opens an item dialog, in the form in which CMD_DoModal reads them.
class ItemArgs {
public:
    ItemArgs(CDBDoc& document, const Json& args, std::string_view tableCode)
    {
        if (!args.is_object())
            throw JsonFault("args", std::string("must be an object, not ") + jsonKind(args));
        for (const auto& member : args.get_ref<const Json::object_t&>()) {
            if (member.first != "key" && member.first != "record")
                throw JsonFault(memberPath("args", member.first), "is unknown; args have key and record");
        }
        if (const auto key = args.find("key"); key != args.end())
            m_key = keyFromJson(*key, "args.key");
        m_pointers.push_back(&m_key);
        if (!tableCode.empty())
            readRecord(document, args, *findTable(tableCode));
    }

    [[nodiscard]] CArray<void*, void*>* pointers() { return &m_pointers; }

private:
    void readRecord(CDBDoc& document, const Json& args, const TableInfo& table)
    {
        const RecordPtr stored = m_key != 0 ? document.table(table.table).find(0, m_key) : nullptr;
        if (const auto record = args.find("record"); record != args.end()) {
            const JsonRecord read = recordFromJson(table, *record, "args.record");
            if (m_key == 0)
                m_key = read.key;
            m_record = read.record;
        } else {
            m_record = stored ? table.record->copy(stored.get()) : table.record->create();
        }
        m_pointers.push_back(m_record.get());
    }

    Key m_key = 0;
    std::shared_ptr<void> m_record;
    CArray<void*, void*> m_pointers;
};

const ModelessDialog* modelessOfClass(const std::string& name)
{
    const auto* row = std::find_if(modelessDialogs.begin(), modelessDialogs.end(), [&name](const ModelessDialog& each) { return each.dialogClass == name; });
    return row != modelessDialogs.end() ? row : nullptr;
}

std::unique_ptr<CInternationalDlg> makeExported(const std::string& name)
{
    if (std::unique_ptr<CInternationalDlg> made = makeExportedDialog(name))
        return made;
    std::vector<std::string_view> names = exportedDialogs();
    for (const ModelessDialog& each : modelessDialogs)
        names.push_back(each.dialogClass);
    throw JsonFault("class", "there is no dialog class \"" + name + "\" that a host can build" + didYouMean(name, names));
}

OpenArgs readArgs(const JournalCommand& command)
{
    OpenArgs read;
    if (!command.has("args") || command.at("args").is_null())
        return read;
    const Json& args = command.at("args");
    if (!args.is_object() || args.size() != 1 || !(args.contains("key") || args.contains("page")))
        throw JsonFault("args", "must be an object with the key of an object or with a page");
    if (args.contains("key"))
        read.key = keyFromJson(args.at("key"), "args.key");
    else
        read.page = static_cast<int>(integerFromJson(args.at("page"), "args.page", 0, std::numeric_limits<int>::max()));
    return read;
}

/// Hands the arguments over.
/// @throws JsonFault  when the dialog does not take one of them
void handOver(CDialog& dialog, const OpenArgs& args)
{
    auto* ofKey = dynamic_cast<IScaleFactorsOfKey*>(&dialog);
    auto* paged = dynamic_cast<IPagedDialog*>(&dialog);
    if (args.key != 0 && ofKey == nullptr)
        throw JsonFault("args", dialog.ClassName() + " takes no key");
    if (args.page && paged == nullptr)
        throw JsonFault("args", dialog.ClassName() + " takes no page");
    if (args.key != 0)
        ofKey->SetModifyData(args.key);
    if (args.page)
        paged->ActivateTab(*args.page);
}

}  // namespace

int runModalDialog(CDBDoc& document, const JournalCommand& command)
{
    const auto number = static_cast<unsigned>(integerFromJson(command.at("number"), "number", 0, std::numeric_limits<unsigned>::max()));
    const int flag = command.integer("flag", 0);
    const ModalCommand* row = findModalCommand(number);
    std::optional<ItemArgs> args;
    if (row != nullptr && command.has("args") && !command.at("args").is_null())
        args.emplace(document, command.at("args"), row->record);
    return CMD_DoModal(number, args ? args->pointers() : nullptr, flag);
}

Json openModelessDialog(const JournalCommand& command)
{
    const std::string& id = command.text("id");
    const auto row = std::find_if(modelessDialogs.begin(), modelessDialogs.end(), [&id](const ModelessDialog& each) { return each.name == id; });
    if (row == modelessDialogs.end())
        return nullptr;
    const CDialog* dialog = CMD_DoModeless(*row->id, nullptr);
    return dialog != nullptr ? Json(dialog->ClassName()) : Json();
}

void openDialogOfClass(const JournalCommand& command)
{
    openDialogOfClass(command.text("class"), readArgs(command));
}

void openDialogOfClass(const std::string& name, const OpenArgs& args)
{
    const ModelessDialog* modeless = modelessOfClass(name);
    if (modeless != nullptr && args.key == 0) {
        if (args.page)
            handOver(*makeExported(name), args);  // tells whether the class takes a page, before anything is opened
        if (CDialog* dialog = CMD_DoModeless(*modeless->id, nullptr)) {
            handOver(*dialog, args);
            return;
        }
    }
    openDialog(makeExported(name), args);
}

void openDialog(std::unique_ptr<CInternationalDlg> dialog, const OpenArgs& args)
{
    handOver(*dialog, args);
    auto* global = dynamic_cast<CGlobalModeless*>(dialog.get());
    if (global == nullptr) {
        dialog->DoModal();
        return;
    }
    (void)dialog.release();  // from here on its window frees it
    global->Create();
    global->ShowWindow();
    global->SetActiveWindow();
}

}  // namespace zel
