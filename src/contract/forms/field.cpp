#include "contract/forms/field.h"

#include "contract/messages.h"

#include <cassert>

namespace zel {

namespace {

/// The description of what lies at a place of a record: a plain field of it, or of a record inside it.
const FieldInfo* fieldAt(const RecordInfo& record, std::size_t offset)
{
    for (const FieldInfo& field : record.fields) {
        const std::size_t size = field.stride * field.count;
        if (field.shape == FieldShape::list || offset < field.offset || offset >= field.offset + size)
            continue;
        return field.type == FieldType::record ? fieldAt(*field.inner, (offset - field.offset) % field.stride) : &field;
    }
    return nullptr;
}

}  // namespace

CString choiceText(const Choice& choice)
{
    const std::string_view text = choice.text;
    return text.starts_with("IDS_") ? CMsgDll::pfuncLoadStr(choice.text, 0) : choice.text;
}

Field::Field(const std::type_info& record, const RecordInfo& info, std::size_t offset) : m_record(&record), m_info(fieldAt(info, offset)), m_offset(offset)
{
    assert(m_info != nullptr && "a control shows a single value that its record's visit names");
}

void Field::setInteger(void* record, std::int64_t value) const
{
    if (type() == FieldType::int32)
        *at<std::int32_t>(record) = static_cast<std::int32_t>(value);
    else
        *at<std::uint32_t>(record) = static_cast<std::uint32_t>(value);
}

}  // namespace zel
