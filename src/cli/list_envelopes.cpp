#include "cli/commands.h"
#include "cli/output.h"
#include "contract/tables/envelope_table.h"
#include "cli/shown_text.h"

#include "loadcomb/envelopes/envelope_item.h"
#include "platform/modeldb/model_document.h"

#include <ostream>

namespace zel::cli {

/// One line an envelope, then one line an item with its type; an item whose load case or combination is gone says so.
int listEnvelopes(const ListEnvelopes& job)
{
    const std::unique_ptr<ModelDocument> document = ModelDocument::open(job.model, ModelFile::Access::readOnly);
    Output output("-");
    std::vector<Key> keys;
    std::vector<T_ENVL_D> envelopes;
    CDataEnvl().GetList(keys, envelopes);
    for (const T_ENVL_D& envelope : envelopes) {
        output.stream() << shownText(envelope.name + (envelope.description.empty() ? "" : ": " + envelope.description)) << '\n';
        for (const T_ENVL_BASE& item : envelope.items) {
            const CString name = loadcomb::envelopeItemName(item);
            CString label = loadcomb::envelopeTypeLabel(item.type);
            label.resize(std::max<std::size_t>(label.size(), 3), ' ');
            output.stream() << "  " << label << "  " << (name.empty() ? "(no longer in the model)" : shownText(name)) << '\n';
        }
    }
    output.finish();
    return succeeded;
}

}  // namespace zel::cli
