// point_3d and nd_point_3d: arithmetic, products and the tolerance-based
// predicates of the spatial point class.
//
// Several predicates deliberately decide differently from their planar
// namesakes: equality uses the bare absolute distance tolerance,
// perpendicularity compares with the absolute distance tolerance, the axis
// angles snap with the absolute parallelism tolerance, and a coincident end
// point counts as collinear.
#include <korvex/capi.h>
#include <korvex/classes.hpp>

#include <cmath>

#include "classes/class_shared.hpp"

using namespace korvex_classes;

// ---------------------------------------------------------------------------
// Assignment
// ---------------------------------------------------------------------------

point_3d& point_3d::operator=(nd_point_3d const& p)
{
    Set(p.x, p.y, p.z);
    return *this;
}

nd_point_3d& nd_point_3d::operator=(point_3d const& p)
{
    Set(p.x, p.y, p.z);
    return *this;
}

point_3d& point_3d::operator=(point_2d const& p)
{
    Set(p.x, p.y, 0.0f);
    return *this;
}

// ---------------------------------------------------------------------------
// Arithmetic
// ---------------------------------------------------------------------------

point_3d point_3d::operator+(point_3d const& b) const
{
    return point_3d(x + b.x, y + b.y, z + b.z);
}

point_3d point_3d::operator-(point_3d const& b) const
{
    return point_3d(x - b.x, y - b.y, z - b.z);
}

point_3d& point_3d::operator+=(point_3d const& b)
{
    x += b.x;
    y += b.y;
    z += b.z;
    return *this;
}

point_3d& point_3d::operator-=(point_3d const& b)
{
    x -= b.x;
    y -= b.y;
    z -= b.z;
    return *this;
}

point_3d point_3d::operator*(float s) const
{
    return point_3d(x * s, y * s, z * s);
}

point_3d& point_3d::operator*=(float s)
{
    x *= s;
    y *= s;
    z *= s;
    return *this;
}

point_3d operator*(float const& s, point_3d const& p)
{
    return p * s;
}

namespace {

// Row vector (x, y, z, 1) times the row-major 4x4 matrix m[16]; the fourth
// column is not used.
point_3d transformed(point_3d const& p, float const* m)
{
    return point_3d(p.x * m[0] + p.y * m[4] + p.z * m[8] + m[12],
                    p.x * m[1] + p.y * m[5] + p.z * m[9] + m[13],
                    p.x * m[2] + p.y * m[6] + p.z * m[10] + m[14]);
}

} // namespace

point_3d point_3d::operator*(float* const m) const
{
    return transformed(*this, m);
}

point_3d point_3d::operator*(float (*m)[4]) const
{
    return transformed(*this, m[0]);
}

point_3d& point_3d::operator*=(float* const m)
{
    *this = transformed(*this, m);
    return *this;
}

point_3d operator*(float const (*m)[4], point_3d const& p)
{
    return transformed(p, m[0]);
}

point_3d point_3d::operator/(float s) const
{
    // A divisor that is zero for all practical purposes leaves the point as
    // it is rather than producing infinities.
    if (std::fabs(static_cast<double>(s)) > gmGetAbsZero())
        return point_3d(x / s, y / s, z / s);
    return *this;
}

point_3d& point_3d::operator/=(float s)
{
    *this = *this / s;
    return *this;
}

point_3d point_3d::operator-() const
{
    return point_3d(-x, -y, -z);
}

point_3d point_3d::Inverse() const
{
    return -*this;
}

point_3d& point_3d::Reverse()
{
    x = -x;
    y = -y;
    z = -z;
    return *this;
}

// ---------------------------------------------------------------------------
// Products and lengths
// ---------------------------------------------------------------------------

float point_3d::Iproduct(point_3d const& b) const
{
    return x * b.x + y * b.y + z * b.z;
}

point_3d point_3d::Xproduct(point_3d const& b) const
{
    return point_3d(y * b.z - z * b.y,
                    z * b.x - x * b.z,
                    x * b.y - y * b.x);
}

float point_3d::HybridProduct(point_3d const& b, point_3d const& c) const
{
    return Xproduct(b).Iproduct(c);
}

float point_3d::Length() const
{
    return std::sqrt(x * x + y * y + z * z);
}

float point_3d::DistFrom(point_3d const& b) const
{
    return std::sqrt(DistFrom2(b));
}

float point_3d::DistFrom2(point_3d const& b) const
{
    const float dx = x - b.x;
    const float dy = y - b.y;
    const float dz = z - b.z;
    return dx * dx + dy * dy + dz * dz;
}

// ---------------------------------------------------------------------------
// Tolerance-based members
// ---------------------------------------------------------------------------

int point_3d::operator==(point_3d const& b) const
{
    return static_cast<double>(DistFrom(b)) < gmGetAbsDistTol() ? 1 : 0;
}

int point_3d::operator!=(point_3d const& b) const
{
    // Both strict: a distance of exactly the tolerance is neither equal nor
    // unequal.
    return static_cast<double>(DistFrom(b)) > gmGetAbsDistTol() ? 1 : 0;
}

float point_3d::Unit()
{
    const float len = Length();
    if (static_cast<double>(len) < kUnitMinLength) {
        x = 0.0f;
        y = 0.0f;
        z = 0.0f;
        return 0.0f;
    }
    x /= len;
    y /= len;
    z /= len;
    return len;
}

int point_3d::IsSameDirection(point_3d const& b) const
{
    float c = 0.0f;
    if (!unitCosine(*this, b, gmGetAbsDistTol(), c))
        return 0;
    return static_cast<double>(c) > kSameDirectionCos ? 1 : 0;
}

int point_3d::IsParallel(point_3d const& b) const
{
    float c = 0.0f;
    if (!unitCosine(*this, b, gmGetAbsDistTol(), c))
        return 0;
    const double cd = static_cast<double>(c);
    return (cd > kSameDirectionCos || cd < -kSameDirectionCos) ? 1 : 0;
}

int point_3d::IsPerpendicular(point_3d const& b) const
{
    return std::fabs(static_cast<double>(Iproduct(b))) < gmGetAbsDistTol() ? 1 : 0;
}

double point_3d::AngleToXAxis() const
{
    return axisAngle(x, y, 0.0, gmGetAbsParaTol());
}

double point_3d::AngleToYAxis() const
{
    return axisAngle(x, y, kHalfPiF, gmGetAbsParaTol());
}

double point_3d::AngleToZAxis() const
{
    const float elevation = std::atan2(z, std::sqrt(x * x + y * y));
    return kHalfPiF - static_cast<double>(elevation);
}

// ---------------------------------------------------------------------------
// Distances to lines and segments
// ---------------------------------------------------------------------------

int point_3d::GetMinDistance(point_3d const& a, point_3d const& b, float& t,
                             point_3d& foot, float& dist) const
{
    const point_3d d = b - a;
    const float lenSq = d.Iproduct(d);
    // Everything is computed before the outputs are written: foot, t or dist
    // may be this point or an end point (projecting a point in place).
    float tp = 0.0f;
    point_3d fp;
    // The squared length meets the tolerance: a very short line is its
    // start point.
    if (static_cast<double>(lenSq) < gmGetAbsDistTol()) {
        fp = a;
    } else {
        tp = (*this - a).Iproduct(d) / lenSq;
        fp = a + d * tp;
    }
    const float dp = DistFrom(fp);
    foot = fp;
    t = tp;
    dist = dp;
    return 1;
}

float point_3d::GetDistLine(point_3d const& a, point_3d const& d, float& t) const
{
    // t is written last: it may be one of the coordinates read here.
    const float tp = (*this - a).Iproduct(d);
    const point_3d foot = a + d * tp;
    const float dist = DistFrom(foot);
    t = tp;
    return dist;
}

int point_3d::IsOnSeg(point_3d const& a, point_3d const& b) const
{
    const double tol = gmGetAbsDistTol();
    // Quick rejection: outside the box of a and b widened by the tolerance.
    for (int axis = 0; axis < 3; ++axis) {
        const float pa = a[axis];
        const float pb = b[axis];
        const double lo = static_cast<double>(pa < pb ? pa : pb);
        const double hi = static_cast<double>(pa < pb ? pb : pa);
        const double p = static_cast<double>((*this)[axis]);
        if (!(p > lo - tol && hi + tol > p))
            return 0;
    }
    // On the segment the detour via this point vanishes.
    const float detour = (DistFrom(a) + DistFrom(b)) - a.DistFrom(b);
    return std::fabs(static_cast<double>(detour)) < tol ? 1 : 0;
}

int point_3d::IsConLine(point_3d const& a, point_3d const& b) const
{
    point_3d u = a - *this;
    point_3d w = b - *this;
    u.Unit();
    w.Unit();
    // A coincident end point leaves a zero vector, a zero cross product and
    // so counts as collinear.
    point_3d n = u.Xproduct(w);
    return static_cast<double>(n.Unit()) < gmGetAbsDistTol() ? 1 : 0;
}
