#include "platform/modeldb/flat_layout.h"

#include <unordered_map>

namespace zel {

namespace {

void flatten(const RecordInfo& info, const CString& prefix, std::size_t base, FlatLayout& layout);

void flattenList(const FieldInfo& field, const CString& name, std::size_t offset, FlatLayout& layout)
{
    FlatList list{name, offset, field.list, std::make_unique<FlatLayout>()};
    if (field.inner != nullptr)
        flatten(*field.inner, "", 0, *list.element);
    else
        list.element->columns.push_back({"value", field.name, 0, field.type, 0, field.unit});
    layout.lists.push_back(std::move(list));
}

void flatten(const RecordInfo& info, const CString& prefix, std::size_t base, FlatLayout& layout)
{
    for (const FieldInfo& field : info.fields) {
        const CString name = prefix + CString(field.name);
        if (field.shape == FieldShape::list) {
            flattenList(field, name, base + field.offset, layout);
            continue;
        }
        for (std::size_t index = 0; index < field.count; ++index) {
            const CString place = field.shape == FieldShape::array ? name + "_" + std::to_string(index + 1) : name;
            const std::size_t offset = base + field.offset + index * field.stride;
            if (field.inner != nullptr)
                flatten(*field.inner, place + "_", offset, layout);
            else
                layout.columns.push_back({place, field.name, index, field.type, offset, field.unit});
        }
    }
}

}  // namespace

const FlatLayout& flatLayout(const RecordInfo& info)
{
    static std::unordered_map<const RecordInfo*, std::unique_ptr<FlatLayout>> made;
    std::unique_ptr<FlatLayout>& layout = made[&info];
    if (!layout) {
        layout = std::make_unique<FlatLayout>();
        flatten(info, "", 0, *layout);
    }
    return *layout;
}

}  // namespace zel
