#include "contract/records/all.h"
#include "contract/table_list.h"

#include <array>

namespace zel {

namespace {

/// The rows, in the order of `Table`.
///   table         code    noun of one record   record   shape   names   codes   fields that the table keeps: place, key, kind
std::array<TableInfo, tableCount> makeList()
{
    using enum TableShape;
    constexpr auto all = Codes::all;
    constexpr auto none = Codes::none;
    return {{
        {Table::STLD, "STLD", "static load case", &describe<T_STLD_D>(), keyed, NameRule::filled, all, "no", "", ""},
        {Table::LCOM, "LCOM", "load combination", &describe<T_LCOM_D>(), kinded, NameRule::any, all, "number", "", "kind"},
        {Table::ENVL, "ENVL", "envelope", &describe<T_ENVL_D>(), keyed, NameRule::notEmpty, all, "", "", ""},
        {Table::SPDI, "SPDI", "specified displacement interpolation", &describe<T_SPDI_D>(), keyed, NameRule::none, all, "", "", ""},
        {Table::LNLD, "LNLD", "line load type", &describe<T_LNLD_D>(), keyed, NameRule::filled, all, "", "", ""},
        {Table::ARLD, "ARLD", "area load type", &describe<T_ARLD_D>(), keyed, NameRule::filled, all, "", "", ""},
        {Table::THFC, "THFC", "time history function", &describe<T_THFC_D>(), keyed, NameRule::filled, all, "", "", ""},
        {Table::THLD, "THLD", "time history load case", &describe<T_THLD_D>(), keyed, NameRule::filled, all, "", "key", ""},

        {Table::MATL, "MATL", "material", &describe<T_MATL_D>(), keyed, NameRule::any, all, "", "", ""},
        {Table::SECT, "SECT", "section", &describe<T_SECT_D>(), keyed, NameRule::any, all, "", "", ""},
        {Table::THIK, "THIK", "thickness", &describe<T_THIK_D>(), keyed, NameRule::any, all, "", "", ""},
        {Table::SECF, "SECF", "section stiffness scale factor", &describe<T_SECF_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::THKF, "THKF", "thickness stiffness scale factor", &describe<T_THKF_D>(), keyed, NameRule::none, none, "", "", ""},

        {Table::COSD, "COSD", "column support type", &describe<T_COSD_D>(), keyed, NameRule::filled, all, "", "", ""},
        {Table::PISD, "PISD", "pile support type", &describe<T_PISD_D>(), keyed, NameRule::filled, all, "", "", ""},
        {Table::WASD, "WASD", "wall support type", &describe<T_WASD_D>(), keyed, NameRule::filled, all, "", "", ""},
        {Table::SOSD, "SOSD", "soil support type", &describe<T_SOSD_D>(), keyed, NameRule::filled, all, "", "", ""},
        {Table::GSPD, "GSPD", "general spring type", &describe<T_GSPD_D>(), keyed, NameRule::filled, all, "", "", ""},

        {Table::WKAR, "WKAR", "domain", &describe<T_WKAR_D>(), keyed, NameRule::filled, all, "", "key", ""},
        {Table::WDIR, "WDIR", "major direction of a wall", &describe<T_WDIR_D>(), keyed, NameRule::none, all, "", "", ""},

        {Table::SLCF, "SLCF", "seismic design factors", &describe<T_SLCF_D>(), single, NameRule::none, Codes::addAndDelete, "", "", ""},
        {Table::SIFT, "SIFT", "seismic factors for underground loads", &describe<T_SIFT_D>(), single, NameRule::none, Codes::addAndDelete, "", "", ""},
        {Table::LCUG, "LCUG", "load-case set for underground loads", &describe<T_LCUG_D>(), single, NameRule::none, none, "", "", ""},
        {Table::LCWD, "LCWD", "load-case set for wind directions", &describe<T_LCWD_D>(), single, NameRule::none, none, "", "", ""},
        {Table::LCOE, "LCOE", "load-case set for the orthogonal effect", &describe<T_LCOE_D>(), single, NameRule::none, none, "", "", ""},
        {Table::SURS, "SURS", "selections of the default load combination form", &describe<T_SURS_D>(), single, NameRule::none, none, "", "", ""},
        {Table::LTOM, "LTOM", "loads-to-masses data", &describe<T_LTOM_D>(), single, NameRule::none, none, "", "", ""},
        {Table::EIGV, "EIGV", "eigenvalue control", &describe<T_EIGV_D>(), single, NameRule::none, none, "", "", ""},
        {Table::MCTL, "MCTL", "model control data", &describe<T_MCTL_D>(), single, NameRule::none, none, "", "", ""},
        {Table::ACTL, "ACTL", "main control data", &describe<T_ACTL_D>(), single, NameRule::none, none, "", "", ""},
        {Table::CSDD, "CSDD", "strip design control data", &describe<T_CSDD_D>(), single, NameRule::none, none, "", "", ""},
        {Table::PJCF, "PJCF", "project information", &describe<T_PJCF_D>(), single, NameRule::none, none, "", "", ""},

        {Table::PONT, "PONT", "point", &describe<T_PONT_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::LINE, "LINE", "line", &describe<T_LINE_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::AREA, "AREA", "area", &describe<T_AREA_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::BEAM, "BEAM", "beam", &describe<T_BEAM_D>(), keyed, NameRule::none, all, "", "", ""},
        {Table::SLAB, "SLAB", "slab", &describe<T_SLAB_D>(), keyed, NameRule::none, all, "", "", ""},
        {Table::OPEN, "OPEN", "opening", &describe<T_OPEN_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::MSLN, "MSLN", "mesh line dimension", &describe<T_MSLN_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::COSA, "COSA", "column support", &describe<T_COSA_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::PISA, "PISA", "pile support", &describe<T_PISA_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::WASA, "WASA", "wall support", &describe<T_WASA_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::SOSA, "SOSA", "soil support", &describe<T_SOSA_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::BRLS, "BRLS", "beam end release", &describe<T_BRLS_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::OFFS, "OFFS", "beam end offset", &describe<T_OFFS_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::SRLS, "SRLS", "slab end release", &describe<T_SRLS_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::COIF, "COIF", "punching check size", &describe<T_COIF_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::GDLN, "GDLN", "grid line", &describe<T_GDLN_D>(), keyed, NameRule::filled, none, "", "", ""},
        {Table::NUCS, "NUCS", "named coordinate system", &describe<T_NUCS_D>(), keyed, NameRule::filled, none, "", "", ""},
        {Table::GRUP, "GRUP", "group", &describe<T_GRUP_D>(), keyed, NameRule::filled, all, "", "", ""},

        {Table::OMAS, "OMAS", "mass", &describe<T_OMAS_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::PTLA, "PTLA", "point load", &describe<T_PTLA_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::SPDP, "SPDP", "specified displacement", &describe<T_SPDP_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::LNLA, "LNLA", "line load", &describe<T_LNLA_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::ARLA, "ARLA", "area load", &describe<T_ARLA_D>(), keyed, NameRule::none, none, "", "", ""},
        {Table::THPL, "THPL", "dynamic point load", &describe<T_THPL_D>(), keyed, NameRule::none, none, "", "", ""},

        {Table::NODE, "NODE", "node", &describe<T_NODE>(), keyed, NameRule::none, none, "", "", ""},
        {Table::ELEM, "ELEM", "element", &describe<T_ELEM>(), keyed, NameRule::none, none, "", "", ""},
    }};
}

}  // namespace

std::span<const TableInfo> tableList()
{
    static const std::array<TableInfo, tableCount> list = makeList();
    return list;
}

const TableInfo* findTable(std::string_view code)
{
    for (const TableInfo& table : tableList()) {
        if (table.code == code)
            return &table;
    }
    return nullptr;
}

}  // namespace zel
