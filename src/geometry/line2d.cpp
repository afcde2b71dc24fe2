// Lines in the plane: side tests, distances, projections, intersections.
#include "korvex/capi.h"

#include <cmath>

int mathChkPntLin2D(const double p[2], const double a[2], const double b[2], double tol)
{
    // Below this length the two points do not define a direction.
    const double minLength = 1e-10;
    const double dx = b[0] - a[0];
    const double dy = b[1] - a[1];
    const double length = std::sqrt(dx * dx + dy * dy);
    if (length < minLength)
        return 800;
    // Positive on the left of a -> b.
    const double side = (dx * (p[1] - a[1]) - dy * (p[0] - a[0])) / length;
    if (tol > std::fabs(side))
        return 2;
    return side > 0.0 ? 3 : 4;
}
