#pragma once

#include "object_style/jhload_combination.h"
#include "object_style/jhloadcase.h"

/// The link between a combination and a load case, with the factor. Each side that is set lists the link.
class JhassoLoadcombLoadcase : public Jhobject {
public:
    explicit JhassoLoadcombLoadcase(std::uint32_t number) : Jhobject("JhassoLoadcombLoadcase", number) {}

    [[nodiscard]] JhloadCombination* combination() const { return m_combination; }
    [[nodiscard]] Jhloadcase* loadcase() const { return m_loadcase; }

    /// Set a side; the link leaves the list of a former one. False for null, with nothing changed.
    bool setCombination(JhloadCombination* combination) { return set(m_combination, combination, &JhloadCombination::cases); }
    bool setLoadcase(Jhloadcase* loadcase) { return set(m_loadcase, loadcase, &Jhloadcase::combinations); }

    /// Take a side away; the link leaves its list.
    void clearCombination() { clear(m_combination, &JhloadCombination::cases); }
    void clearLoadcase() { clear(m_loadcase, &Jhloadcase::combinations); }

    std::int32_t type = 1;  ///< what the case is; 1 static load case
    float factor = 1.0F;

private:
    template <class Side> using Links = zel::object_style::ObjectList<JhassoLoadcombLoadcase> Side::*;

    template <class Side> bool set(Side*& side, Side* to, Links<Side> links)
    {
        if (to == nullptr)
            return false;
        if (to == side)
            return true;
        clear(side, links);
        side = to;
        return (to->*links).add(*this);
    }

    template <class Side> void clear(Side*& side, Links<Side> links)
    {
        if (side != nullptr)
            (side->*links).remove(*this);
        side = nullptr;
    }

    JhloadCombination* m_combination = nullptr;
    Jhloadcase* m_loadcase = nullptr;
};
