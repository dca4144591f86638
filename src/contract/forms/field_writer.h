#pragma once

#include "contract/text.h"

#include <optional>
#include <string_view>
#include <vector>

namespace zel {

/// A column of a report list or a grid.
struct ColumnView {
    CString title;
    int width = 0;  ///< [pixels]
    bool visible = true;
    std::vector<CString> choices;  ///< where a cell offers a list
};

struct GraphPoint {
    double x = 0.0;
    double y = 0.0;
    bool operator==(const GraphPoint&) const = default;
};

struct Colour {
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
    bool operator==(const Colour&) const = default;
};

/// One shape of a picture, in pixels from its upper left corner.
struct Shape {
    enum class Kind { polygon, ellipse };

    Kind kind = Kind::polygon;
    std::vector<GraphPoint> points;  ///< corners; of an ellipse two opposite corners of the rectangle around it
    Colour pen;
    std::optional<Colour> fill;  ///< none: the outline alone
    bool operator==(const Shape&) const = default;
};

/// Takes the fields of a control's kind, in their order: `"items": [...], "selected": 1`. The script player makes JSON of them.
class IFieldWriter {
public:
    IFieldWriter() = default;
    IFieldWriter(const IFieldWriter&) = delete;
    IFieldWriter& operator=(const IFieldWriter&) = delete;
    virtual ~IFieldWriter() = default;

    virtual void text(std::string_view name, const CString& value) = 0;
    virtual void flag(std::string_view name, bool value) = 0;
    virtual void number(std::string_view name, std::optional<int> value) = 0;  ///< none is null
    virtual void numbers(std::string_view name, const std::vector<int>& values) = 0;
    virtual void keys(std::string_view name, const std::vector<unsigned>& values) = 0;
    virtual void texts(std::string_view name, const std::vector<CString>& values) = 0;
    virtual void columns(std::string_view name, const std::vector<ColumnView>& values) = 0;
    /// A cell of a grid, [row, column] from 0; a row that is none is the one for a new entry: ["append", column].
    virtual void cell(std::string_view name, std::optional<int> row, int column) { numbers(name, {row.value_or(-1), column}); }
    virtual void rows(std::string_view name, const std::vector<std::vector<CString>>& values) = 0;
    virtual void points(std::string_view name, const std::vector<GraphPoint>& values) = 0;
    virtual void shapes(std::string_view name, const std::vector<Shape>& values) = 0;
};

}  // namespace zel
