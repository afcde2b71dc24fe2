// Box2D: single-precision planar axis-aligned box.
#include <korvex/classes.hpp>

#include "classes/class_shared.hpp"

using namespace korvex_classes;

namespace {

// The box spanned by two corners given in any order.
void spanXY(Box2D& box, float ax, float ay, float bx, float by)
{
    box.min.x = ax < bx ? ax : bx;
    box.max.x = ax < bx ? bx : ax;
    box.min.y = ay < by ? ay : by;
    box.max.y = ay < by ? by : ay;
}

// Per-axis union as the bounds stand: an empty operand is not skipped.
void unite(Box2D& box, Box2D const& b)
{
    if (b.min.x < box.min.x)
        box.min.x = b.min.x;
    if (b.min.y < box.min.y)
        box.min.y = b.min.y;
    if (b.max.x > box.max.x)
        box.max.x = b.max.x;
    if (b.max.y > box.max.y)
        box.max.y = b.max.y;
}

} // namespace

// ---------------------------------------------------------------------------
// Definition
// ---------------------------------------------------------------------------

Box2D::Box2D(Box3D const& b)
{
    DefineBox(b);
}

Box2D& Box2D::operator=(Box3D const& b)
{
    DefineBox(b);
    return *this;
}

void Box2D::DefineBox(float xmin, float ymin, float xmax, float ymax)
{
    storeFour(min.x, min.y, max.x, max.y, xmin, ymin, xmax, ymax);
}

void Box2D::DefineBox(Box2D const& b)
{
    *this = b;
}

void Box2D::DefineBox(Box3D const& b)
{
    min.Set(b.min.x, b.min.y);
    max.Set(b.max.x, b.max.y);
}

void Box2D::DefineBox(point_2d const& a, point_2d const& b)
{
    spanXY(*this, a.x, a.y, b.x, b.y);
}

void Box2D::DefineBox(point_3d const& a, point_3d const& b)
{
    spanXY(*this, a.x, a.y, b.x, b.y);
}

// ---------------------------------------------------------------------------
// Changes
// ---------------------------------------------------------------------------

void Box2D::Move(float dx, float dy)
{
    min.x += dx;
    min.y += dy;
    max.x += dx;
    max.y += dy;
}

void Box2D::Grow(float dx, float dy)
{
    min.x -= dx;
    min.y -= dy;
    max.x += dx;
    max.y += dy;
}

void Box2D::Adjust()
{
    if (min.x > max.x) {
        const float t = min.x;
        min.x = max.x;
        max.x = t;
    }
    if (min.y > max.y) {
        const float t = min.y;
        min.y = max.y;
        max.y = t;
    }
}

void Box2D::Intersect(Box2D const& b)
{
    if (b.min.x > min.x)
        min.x = b.min.x;
    if (b.min.y > min.y)
        min.y = b.min.y;
    if (b.max.x < max.x)
        max.x = b.max.x;
    if (b.max.y < max.y)
        max.y = b.max.y;
}

Box2D& Box2D::operator+=(Box2D const& b)
{
    unite(*this, b);
    return *this;
}

void Box2D::Union(Box2D const& b)
{
    unite(*this, b);
}

Box2D Box2D::operator+(Box2D const& b) const
{
    Box2D r(*this);
    unite(r, b);
    return r;
}

void Box2D::AddPt(point_2d& p)
{
    if (IsEmpty()) {
        min = p;
        max = p;
        return;
    }
    stretchAxis(min.x, max.x, p.x);
    stretchAxis(min.y, max.y, p.y);
}

void Box2D::AddPt(nd_point_2d& p)
{
    AddPt(static_cast<point_2d&>(p));
}

// ---------------------------------------------------------------------------
// Queries
// ---------------------------------------------------------------------------

int Box2D::operator==(Box2D const& b) const
{
    return (min.x == b.min.x && min.y == b.min.y &&
            max.x == b.max.x && max.y == b.max.y) ? 1 : 0;
}

int Box2D::IsEmpty() const
{
    return (min.x > max.x || min.y > max.y) ? 1 : 0;
}

int Box2D::Contains(point_2d const& p) const
{
    // Half-open, so that boxes tiling the plane claim each point once.
    return (min.x <= p.x && p.x < max.x && min.y <= p.y && p.y < max.y) ? 1 : 0;
}

int Box2D::IsIn(point_2d const& p) const
{
    return Contains(p);
}

int Box2D::IsIn(point_2d const& p, float tol) const
{
    return inFlatBox<float>(min.x, min.y, max.x, max.y, p.x, p.y, tol);
}

int Box2D::IsIn2D(double* p, double tol) const
{
    return inFlatBox<double>(min.x, min.y, max.x, max.y, p[0], p[1], tol);
}

int Box2D::IsIntersect(Box2D const& b) const
{
    // Open boxes: a shared edge is not an overlap.
    if (min.x >= b.max.x || min.y >= b.max.y || b.min.x >= max.x || b.min.y >= max.y)
        return 0;
    return 1;
}

int Box2D::CanIntersect(Box2D const& b) const
{
    return (axisMeets(min.x, max.x, b.min.x, b.max.x) &&
            axisMeets(min.y, max.y, b.min.y, b.max.y)) ? 1 : 0;
}

int Box2D::CanIntersect(Box2D const& b, float tol) const
{
    return (axisNear(min.x, max.x, b.min.x, b.max.x, tol) &&
            axisNear(min.y, max.y, b.min.y, b.max.y, tol)) ? 1 : 0;
}

int Box2D::CanIntersect(Box3D const& b, float tol) const
{
    return CanIntersect(Box2D(b), tol);
}

int Box2D::CanInclude(Box2D const& b) const
{
    return (b.min.x >= min.x && b.min.y >= min.y &&
            max.x >= b.max.x && max.y >= b.max.y) ? 1 : 0;
}

int Box2D::CanInclude(Box3D const& b) const
{
    return CanInclude(Box2D(b));
}

point_2d Box2D::GetCenter() const
{
    return point_2d((min.x + max.x) * 0.5f, (min.y + max.y) * 0.5f);
}

float Box2D::GetWidth() const
{
    return max.x - min.x;
}

float Box2D::GetHeight() const
{
    return max.y - min.y;
}

int Box2D::GetCorner(point_2d* out) const
{
    if (IsEmpty())
        return 0;
    out[0].Set(min.x, min.y);
    out[1].Set(max.x, min.y);
    out[2].Set(max.x, max.y);
    out[3].Set(min.x, max.y);
    return 1;
}

int Box2D::CheckInter(point_3d const&, point_3d const&, float) const
{
    return segmentMayCross();
}
