// Box3D: single-precision spatial axis-aligned box.
#include <korvex/classes.hpp>

#include "classes/class_shared.hpp"

using namespace korvex_classes;

namespace {

inline float lesser(float a, float b)
{
    return a < b ? a : b;
}

inline float greater(float a, float b)
{
    return a < b ? b : a;
}

inline void swapIfInverted(float& lo, float& hi)
{
    if (lo > hi) {
        const float t = lo;
        lo = hi;
        hi = t;
    }
}

} // namespace

// ---------------------------------------------------------------------------
// Definition
// ---------------------------------------------------------------------------

Box3D::Box3D(point_2d const& a, point_2d const& b)
    : min(lesser(a.x, b.x), lesser(a.y, b.y), 0.0f),
      max(greater(a.x, b.x), greater(a.y, b.y), 0.0f)
{
}

Box3D::Box3D(Box2D const& b)
{
    DefineBox(b, 0.0f);
}

void Box3D::DefineBox(Box3D const& b)
{
    *this = b;
}

void Box3D::DefineBox(Box2D const& b, float z)
{
    min.Set(b.min.x, b.min.y, z);
    max.Set(b.max.x, b.max.y, z);
}

void Box3D::DefineBox(point_3d const& a, point_3d const& b)
{
    min.Set(lesser(a.x, b.x), lesser(a.y, b.y), lesser(a.z, b.z));
    max.Set(greater(a.x, b.x), greater(a.y, b.y), greater(a.z, b.z));
}

// ---------------------------------------------------------------------------
// Changes
// ---------------------------------------------------------------------------

void Box3D::Move(float dx, float dy, float dz)
{
    const point_3d d(dx, dy, dz);
    min += d;
    max += d;
}

void Box3D::Grow(float dx, float dy, float dz)
{
    const point_3d d(dx, dy, dz);
    min -= d;
    max += d;
}

void Box3D::Adjust()
{
    swapIfInverted(min.x, max.x);
    swapIfInverted(min.y, max.y);
    swapIfInverted(min.z, max.z);
}

void Box3D::Intersect(Box3D const& b)
{
    min.Set(greater(min.x, b.min.x), greater(min.y, b.min.y), greater(min.z, b.min.z));
    max.Set(lesser(max.x, b.max.x), lesser(max.y, b.max.y), lesser(max.z, b.max.z));
}

void Box3D::Union(Box3D const& b)
{
    min.Set(lesser(min.x, b.min.x), lesser(min.y, b.min.y), lesser(min.z, b.min.z));
    max.Set(greater(max.x, b.max.x), greater(max.y, b.max.y), greater(max.z, b.max.z));
}

Box3D& Box3D::operator+=(Box3D const& b)
{
    // Unlike Union, an empty operand contributes nothing.
    if (IsEmpty())
        *this = b;
    else if (!b.IsEmpty())
        Union(b);
    return *this;
}

Box3D Box3D::operator+(Box3D const& b) const
{
    Box3D r(*this);
    r += b;
    return r;
}

void Box3D::AddPt(point_3d& p)
{
    if (IsEmpty()) {
        min = p;
        max = p;
        return;
    }
    stretchAxis(min.x, max.x, p.x);
    stretchAxis(min.y, max.y, p.y);
    stretchAxis(min.z, max.z, p.z);
}

// ---------------------------------------------------------------------------
// Queries
// ---------------------------------------------------------------------------

int Box3D::operator==(Box3D const& b) const
{
    return (min.x == b.min.x && min.y == b.min.y && min.z == b.min.z &&
            max.x == b.max.x && max.y == b.max.y && max.z == b.max.z) ? 1 : 0;
}

int Box3D::IsEmpty() const
{
    return (min.x > max.x || min.y > max.y || min.z > max.z) ? 1 : 0;
}

int Box3D::Contains(point_3d const& p) const
{
    return (min.x <= p.x && p.x < max.x &&
            min.y <= p.y && p.y < max.y &&
            min.z <= p.z && p.z < max.z) ? 1 : 0;
}

int Box3D::IsIn(point_3d const& p) const
{
    return Contains(p);
}

int Box3D::IsIn(point_3d const& p, float tol) const
{
    // The planar rule (upper x inclusive, upper y exclusive), and z like y.
    return (inFlatBox<float>(min.x, min.y, max.x, max.y, p.x, p.y, tol) &&
            min.z - tol <= p.z && p.z < max.z + tol) ? 1 : 0;
}

int Box3D::IsIn(point_2d const& p, float tol) const
{
    return inFlatBox<float>(min.x, min.y, max.x, max.y, p.x, p.y, tol);
}

int Box3D::IsIn2D(double* p, double tol) const
{
    return inFlatBox<double>(min.x, min.y, max.x, max.y, p[0], p[1], tol);
}

int Box3D::IsIntersect(Box3D const& b) const
{
    // Open boxes: a shared face is not an overlap.
    if (min.x >= b.max.x || min.y >= b.max.y || min.z >= b.max.z ||
        b.min.x >= max.x || b.min.y >= max.y || b.min.z >= max.z)
        return 0;
    return 1;
}

int Box3D::CanIntersect(Box3D const& b) const
{
    return (axisMeets(min.x, max.x, b.min.x, b.max.x) &&
            axisMeets(min.y, max.y, b.min.y, b.max.y) &&
            axisMeets(min.z, max.z, b.min.z, b.max.z)) ? 1 : 0;
}

int Box3D::CanIntersect(Box3D const& b, float tol) const
{
    return (axisNear(min.x, max.x, b.min.x, b.max.x, tol) &&
            axisNear(min.y, max.y, b.min.y, b.max.y, tol) &&
            axisNear(min.z, max.z, b.min.z, b.max.z, tol)) ? 1 : 0;
}

int Box3D::CanIntersect(Box2D const& b, float tol) const
{
    return Box2D(*this).CanIntersect(b, tol);
}

int Box3D::CanInclude(Box3D const& b) const
{
    return (b.min.x >= min.x && b.min.y >= min.y && b.min.z >= min.z &&
            max.x >= b.max.x && max.y >= b.max.y && max.z >= b.max.z) ? 1 : 0;
}

point_3d Box3D::GetCenter() const
{
    return point_3d((min.x + max.x) * 0.5f, (min.y + max.y) * 0.5f, (min.z + max.z) * 0.5f);
}

float Box3D::GetXWidth() const
{
    return max.x - min.x;
}

float Box3D::GetYWidth() const
{
    return max.y - min.y;
}

float Box3D::GetZWidth() const
{
    return max.z - min.z;
}

int Box3D::GetCorner(point_3d* out) const
{
    if (IsEmpty())
        return 0;
    // The bottom face anticlockwise from the minimum corner, then the top.
    const float z[2] = {min.z, max.z};
    for (int face = 0; face < 2; ++face) {
        point_3d* c = out + 4 * face;
        c[0].Set(min.x, min.y, z[face]);
        c[1].Set(max.x, min.y, z[face]);
        c[2].Set(max.x, max.y, z[face]);
        c[3].Set(min.x, max.y, z[face]);
    }
    return 1;
}

int Box3D::CheckInter(point_3d const&, point_3d const&, float) const
{
    return segmentMayCross();
}
