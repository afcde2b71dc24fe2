// Coordinate access shared by the picking functions, so that one template
// serves the point_2d, nd_point_2d and point_3d arrays.
#ifndef KORVEX_SRC_PICK_PICK_POINTS_HPP
#define KORVEX_SRC_PICK_PICK_POINTS_HPP

#include "korvex/classes.hpp"

namespace pick {

// Planar points lie in the plane z = 0; nd_point_2d binds here as well.
inline double ZOf(const point_2d&) { return 0.0; }
inline double ZOf(const point_3d& p) { return p.z; }

} // namespace pick

#endif // KORVEX_SRC_PICK_PICK_POINTS_HPP
