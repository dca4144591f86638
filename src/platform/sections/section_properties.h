#pragma once

#include "contract/records/sect_stiffness.h"
#include "platform/sections/section_shape.h"

#include <optional>

namespace zel::sections {

/// What a section is worth.
///
/// y runs to the right and z up through the centroid. Iyy is about y (B H^3 / 12 of a rectangle whose first size is H), Izz about z. Cyp and Cym
/// are the extreme fibres right and left, Czp and Czm up and down. Qyb is the first moment about y of the half beyond that axis, Qzb about z.
struct Properties {
    T_SECT_STIFFNESS stiffness;
    double perimeter = 0.0;  ///< of the outer outlines [length]
    double yBar = 0.0;       ///< centroid from the left top corner of the outline, to the right [length]
    double zBar = 0.0;       ///< centroid from there, downwards [length]
};

/// The properties of a shape by its sizes, in powers of the sizes' unit; empty when the sizes are not valid.
///
/// - Area, centroid, moments of inertia, fibres, first moments, perimeter: exact by the outline (relative error below 1e-9); circles in closed form,
///   the corners of a rounded channel as true arcs.
/// - Ixx: Saint-Venant's constant. Rectangle by its series, circle and pipe polar, profiles of plates by `torsionOfPlates`; double shapes twice the
///   single, as they are not joined; rounded channel: developed middle line times t^3 / 3.
/// - Asy, Asz: solid rectangle 5/6 A (Timoshenko's shear coefficient for nu = 0), solid round 0.9 A, pipe A / 2. H, T, composite T, channel: Asz = H tw,
///   Asy = 5/6 of the flanges. Box: Asz = 2 H tw, Asy = B (tf1 + tf2). Angle: Asz = 2/3 H tw, Asy = 2/3 B tf. Rounded channel: Asz = H t,
///   Asy = 5/6 2 B t. Double shapes twice the single.
std::optional<Properties> propertiesOf(Shape shape, const Sizes& sizes);

}  // namespace zel::sections
