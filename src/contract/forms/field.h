#pragma once

#include "contract/record.h"

#include <cstdint>
#include <span>
#include <type_traits>
#include <typeinfo>

namespace zel {

/// A stored code and the text that shows it. Codes are in files: they may have gaps and never move. Texts may change.
struct Choice {
    int code = 0;
    const char* text = "";  ///< as it is shown, or a message key "IDS_..."
};

/// The text of a choice, read from the message catalogue where it is a key.
CString choiceText(const Choice& choice);

// What a declaration may say beyond the member.
struct OrZero {};
struct Trimmed {};
struct Required {};
struct IfEnabled {};
inline constexpr OrZero orZero{};        ///< a text that is no number counts as 0
inline constexpr Trimmed trimmed{};      ///< a text is taken without the blanks at its ends
inline constexpr Required required{};    ///< an empty text, and a list without a selection, can't be taken
inline constexpr IfEnabled ifEnabled{};  ///< the field is read only while its control is enabled

/// The field of a record that a control shows: which member of which record, with the type and unit that the record's description
/// gives it, and what becomes of an entry that can't be taken. A control's declaration names it by member pointers:
///
///     CEditUnit reach{group, "reach", "Reach :", &T_X::reach};
///     CEditUnit depth{group, "depth", "Depth :", {&T_X::depth, "IDS_..."}};               // the message when it is no number
///     CEdit     name{*this, "name", "Name :", {&T_X::name, zel::trimmed, zel::required, "IDS_..."}};
///     CEditUnit modulus{group, "modulus", "Modulus :", {&T_X::inner, &T_Y::modulus}};     // of a record inside the record
///     CComboBox shape{group, "shape", "Shape :", {&T_X::shape, shapes}};                  // const zel::Choice shapes[]
class Field {
public:
    Field() = default;

    template <class Record, class Value, class... Options>
        requires(std::is_object_v<Value> && !(std::is_member_pointer_v<Options> || ...))
    Field(Value Record::*member, const Options&... options)  // NOLINT: implicit, so that a declaration reads well
        : Field(typeid(Record), describe<Record>(), placeOf(member))
    {
        (take(options), ...);
    }

    template <class Record, class Inner, class Value, class... Options>
        requires(std::is_object_v<Value> && !(std::is_member_pointer_v<Options> || ...))
    Field(Inner Record::*outer, Value Inner::*member, const Options&... options) : Field(typeid(Record), describe<Record>(), placeOf(outer) + placeOf(member))
    {
        (take(options), ...);
    }

    explicit operator bool() const { return m_record != nullptr; }
    /// Whether it is a field of that record type.
    template <class Record> [[nodiscard]] bool isOf() const { return m_record != nullptr && *m_record == typeid(Record); }

    [[nodiscard]] FieldType type() const { return m_info->type; }
    [[nodiscard]] std::string_view name() const { return m_info->name; }
    /// Unit type of a real field; Unit::byRecord where the record decides.
    [[nodiscard]] int unit() const { return m_info->unit; }

    // The value in a record of the field's record type. Each is for a field of its type alone.
    [[nodiscard]] double real(const void* record) const { return *at<double>(record); }
    [[nodiscard]] std::int64_t integer(const void* record) const
    {
        return type() == FieldType::int32 ? std::int64_t{*at<std::int32_t>(record)} : *at<std::uint32_t>(record);
    }
    [[nodiscard]] const CString& text(const void* record) const { return *at<CString>(record); }
    void setReal(void* record, double value) const { *at<double>(record) = value; }
    void setInteger(void* record, std::int64_t value) const;
    void setText(void* record, const CString& value) const { *at<CString>(record) = value; }

    // What the declaration says beyond the member.
    [[nodiscard]] const char* message() const { return m_message; }  ///< key of the message when an entry can't be taken; empty: none is shown
    [[nodiscard]] bool isZeroIfUnread() const { return m_orZero; }
    [[nodiscard]] bool isTrimmed() const { return m_trimmed; }
    [[nodiscard]] bool isRequired() const { return m_required; }
    [[nodiscard]] bool isReadIfEnabled() const { return m_ifEnabled; }
    [[nodiscard]] std::span<const Choice> choices() const { return m_choices; }

private:
    Field(const std::type_info& record, const RecordInfo& info, std::size_t offset);

    template <class Record, class Value> static std::size_t placeOf(Value Record::*member)
    {
        static const Record sample{};
        return static_cast<std::size_t>(reinterpret_cast<const std::byte*>(&(sample.*member)) - reinterpret_cast<const std::byte*>(&sample));
    }

    template <class Value> [[nodiscard]] const Value* at(const void* record) const
    {
        return reinterpret_cast<const Value*>(static_cast<const std::byte*>(record) + m_offset);
    }
    template <class Value> [[nodiscard]] Value* at(void* record) const { return reinterpret_cast<Value*>(static_cast<std::byte*>(record) + m_offset); }

    void take(const char* message) { m_message = message; }
    void take(OrZero /*option*/) { m_orZero = true; }
    void take(Trimmed /*option*/) { m_trimmed = true; }
    void take(Required /*option*/) { m_required = true; }
    void take(IfEnabled /*option*/) { m_ifEnabled = true; }
    void take(std::span<const Choice> choices) { m_choices = choices; }

    const std::type_info* m_record = nullptr;
    const FieldInfo* m_info = nullptr;
    std::size_t m_offset = 0;  ///< from the beginning of the record [bytes]
    const char* m_message = "";
    std::span<const Choice> m_choices;
    bool m_orZero = false;
    bool m_trimmed = false;
    bool m_required = false;
    bool m_ifEnabled = false;
};

}  // namespace zel
