// Angles between two vectors of the point classes. They live with the
// transformation classes because they measure the second vector in a frame
// built on the first.
#include "korvex/capi.h"
#include "korvex/classes.hpp"

#include <cmath>

namespace {

// pi and 2*pi as single-precision values.
const float piF = 3.1415927f;
const float twoPiF = 6.2831854820251465f;

// Anticlockwise angle of (x, y) in [0, 2*pi).
float fullTurnAngle(float y, float x)
{
    const float a = std::atan2(y, x);
    return a < 0.0f ? a + twoPiF : a;
}

} // namespace

float point_2d::AngleToVector(point_2d const& b) const
{
    point_2d from = *this;
    point_2d to = b;
    from.Unit();
    to.Unit();
    if (from == to)
        return 0.0f;
    if (from == to * -1.0f)
        return piF;
    // b seen from the frame whose X axis runs along this vector.
    TRANSF_2D frame;
    frame.Define(point_2d(0.0f, 0.0f), from);
    const point_2d local = to * frame.Inverse();
    return fullTurnAngle(local.y, local.x);
}

float point_3d::AngleToVector(point_3d const& b) const
{
    const point_3d n = Xproduct(b);
    if (n.Length() < gmGetAbsDistTol())
        return IsSameDirection(b) ? 0.0f : piF; // parallel vectors
    // In the frame with X along this vector and Z along this x b, the vector
    // b lies on the positive-y side, so the angle comes out in (0, pi).
    TRANSF_3D frame;
    frame.Define(point_3d(0.0f, 0.0f, 0.0f), n, *this);
    const point_3d local = b * frame.Inverse();
    return fullTurnAngle(local.y, local.x);
}
