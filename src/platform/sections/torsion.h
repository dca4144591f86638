#pragma once

#include "platform/sections/outline.h"

namespace zel::sections {

/// Torsional constant of a solid rectangle [length^4], to 1e-9 of it.
/// @pre     both sides above 0
/// @source  Timoshenko and Goodier, Theory of Elasticity, art. 109
double rectangleTorsion(double side, double other);

/// Torsional constant of a section whose outline has horizontal and vertical edges alone, with one void or none [length^4].
///
/// J = 2 integral(phi) + 2 K Av, where phi solves Prandtl's equation laplace(phi) = -2 with phi = 0 on the outer outline and phi = K on the
/// void's, whose circulation condition gives K: integral(d phi/dn) = -2 Av (Timoshenko and Goodier, art. 105 and 115). Finite volumes on a grid
/// that is fitted to the outline and finer towards its corners, on two grids of which the second has half the cells' size, extrapolated.
/// Within 0.5 % of the converged value, also for plates as thin as 1/500 of the depth. The result scales with the fourth power of the sizes.
/// @pre  the outline encloses an area; edges are horizontal or vertical
double torsionOfPlates(const std::vector<Loop>& loops);

}  // namespace zel::sections
