#include "journal/open_commands.h"

#include "command/command.h"
#include "command/dialog_class.h"
#include "command/dialog_table.h"
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

/// The key that `args` name; 0 for none.
Key keyOfArgs(const JournalCommand& command)
{
    if (!command.has("args") || command.at("args").is_null())
        return 0;
    const Json& args = command.at("args");
    if (!args.is_object() || args.size() != 1 || !args.contains("key"))
        throw JsonFault("args", "must be an object with the key of an object");
    return keyFromJson(args.at("key"), "args.key");
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
    openDialogOfClass(command.text("class"), keyOfArgs(command));
}

void openDialogOfClass(const std::string& name, Key key)
{
    const ModelessDialog* modeless = modelessOfClass(name);
    if (modeless != nullptr && key == 0 && CMD_DoModeless(*modeless->id, nullptr) != nullptr)
        return;
    std::unique_ptr<CInternationalDlg> dialog = makeExported(name);
    auto* ofKey = dynamic_cast<IScaleFactorsOfKey*>(dialog.get());
    if (key != 0 && ofKey == nullptr)
        throw JsonFault("args", name + " takes no key");
    if (key != 0)
        ofKey->SetModifyData(key);
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
