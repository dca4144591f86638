#pragma once

#include "contract/forms/db_dlg_base.h"
#include "contract/forms/dialog.h"
#include "contract/table_store.h"

#include <memory>
#include <string_view>
#include <typeinfo>

/// How a dialog makes itself known to the entries of this library. Its source file says
///
///     ZEL_DIALOG(CCMLoadCaseDlg)
///
/// at namespace scope, and the rows of that class in `dialog_table.h` work.
namespace zel {

/// What a modal command hands to an item dialog: a record of the model, or a key for a new one. The record type is that of
/// the command's row; the dialog copies the record.
class IItemArguments {
public:
    IItemArguments() = default;
    IItemArguments(const IItemArguments&) = delete;
    IItemArguments& operator=(const IItemArguments&) = delete;
    virtual ~IItemArguments() = default;

    /// Shows this record; OK modifies the one stored under `key`, or under the record's name where names are addresses.
    virtual void openToModify(Key key, const void* record) = 0;
    /// Starts from defaults under this key; OK adds.
    virtual void openToAddUnder(Key key) = 0;
};

/// A dialog of scale factors, which may open on the factors of one object.
class IScaleFactorsOfKey {
public:
    IScaleFactorsOfKey() = default;
    IScaleFactorsOfKey(const IScaleFactorsOfKey&) = delete;
    IScaleFactorsOfKey& operator=(const IScaleFactorsOfKey&) = delete;
    virtual ~IScaleFactorsOfKey() = default;

    virtual void SetModifyData(Key key) = 0;
};

/// A dialog that is modeless by itself and can run modally in one of two modes.
class IModalMode {
public:
    IModalMode() = default;
    IModalMode(const IModalMode&) = delete;
    IModalMode& operator=(const IModalMode&) = delete;
    virtual ~IModalMode() = default;

    virtual void setModalMode(int mode) = 0;
};

/// A dialog class of this library.
struct DialogClass {
    std::string_view name;
    const std::type_info* type;
    std::unique_ptr<CInternationalDlg> (*make)();  ///< with no parent
};

/// The dialog class of that name; null if it is not built yet.
const DialogClass* findDialogClass(std::string_view name);

/// Enters a dialog class, and its name for journals. Always true, so that a constant can stand for it.
bool enterDialogClass(const DialogClass& dialogClass);

}  // namespace zel

#define ZEL_DIALOG(Class)                                                                                                                                      \
    namespace {                                                                                                                                                \
    [[maybe_unused]] const bool entered##Class =                                                                                                               \
        zel::enterDialogClass({#Class, &typeid(Class), []() -> std::unique_ptr<CInternationalDlg> { return std::make_unique<Class>(); }});                     \
    }
