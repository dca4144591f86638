#include "journal/form_json.h"

#include "contract/forms/control.h"
#include "contract/forms/field_writer.h"

#include <nlohmann/json.hpp>

namespace zel {

namespace {

Json toJson(const Colour& colour)
{
    return Json::array({colour.red, colour.green, colour.blue});
}

Json toJson(const std::vector<GraphPoint>& points)
{
    Json list = Json::array();
    for (const GraphPoint& point : points)
        list.push_back(Json::array({point.x, point.y}));
    return list;
}

class JsonWriter final : public IFieldWriter {
public:
    explicit JsonWriter(Json& control) : m_control(control) {}

    void text(std::string_view name, const CString& value) override { put(name, value); }
    void flag(std::string_view name, bool value) override { put(name, value); }
    void number(std::string_view name, std::optional<int> value) override { put(name, value ? Json(*value) : Json()); }
    void numbers(std::string_view name, const std::vector<int>& values) override { put(name, values); }
    void keys(std::string_view name, const std::vector<unsigned>& values) override { put(name, values); }
    void texts(std::string_view name, const std::vector<CString>& values) override { put(name, values); }
    void cell(std::string_view name, std::optional<int> row, int column) override { put(name, Json::array({row ? Json(*row) : Json("append"), column})); }
    void rows(std::string_view name, const std::vector<std::vector<CString>>& values) override { put(name, values); }
    void points(std::string_view name, const std::vector<GraphPoint>& values) override { put(name, toJson(values)); }

    void columns(std::string_view name, const std::vector<ColumnView>& values) override
    {
        Json list = Json::array();
        for (const ColumnView& column : values) {
            Json object{{"title", column.title}, {"width", column.width}, {"visible", column.visible}};
            if (!column.choices.empty())
                object["choices"] = column.choices;
            list.push_back(std::move(object));
        }
        put(name, std::move(list));
    }

    void shapes(std::string_view name, const std::vector<Shape>& values) override
    {
        Json list = Json::array();
        for (const Shape& shape : values) {
            list.push_back({{"shape", shape.kind == Shape::Kind::polygon ? "polygon" : "ellipse"},
                            {"points", toJson(shape.points)},
                            {"pen", toJson(shape.pen)},
                            {"fill", shape.fill ? toJson(*shape.fill) : Json()}});
        }
        put(name, std::move(list));
    }

private:
    template <class Value> void put(std::string_view name, Value&& value) { m_control[std::string(name)] = std::forward<Value>(value); }

    Json& m_control;
};

}  // namespace

Json formToJson(const CDialog& dialog)
{
    Json controls = Json::array();
    for (const Control* control : dialog.controls()) {
        if (control->isListed())
            controls.push_back(controlToJson(*control));
    }
    return {{"dialog", dialog.ClassName()},
            {"template", dialog.templateId()},
            {"title", dialog.GetWindowText()},
            {"modal", dialog.isModal()},
            {"controls", std::move(controls)}};
}

Json controlToJson(const Control& control)
{
    Json json{{"id", control.id()},
              {"label", control.label()},
              {"kind", kindName(control.kind())},
              {"group", control.group() != nullptr ? control.group()->GetWindowText() : CString()},
              {"page", control.page()},
              {"enabled", control.IsWindowEnabled()},
              {"visible", control.IsWindowVisible()}};
    JsonWriter writer(json);
    control.describe(writer);
    return json;
}

}  // namespace zel
