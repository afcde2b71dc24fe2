// point_2d and nd_point_2d: arithmetic, products and the tolerance-based
// predicates of the planar point class.
#include <korvex/capi.h>
#include <korvex/classes.hpp>

#include <cmath>

#include "classes/class_shared.hpp"

using namespace korvex_classes;

// ---------------------------------------------------------------------------
// Assignment. Every cross-class assignment copies x and y and nothing else.
// ---------------------------------------------------------------------------

point_2d& point_2d::operator=(nd_point_2d const& p)
{
    Set(p.x, p.y);
    return *this;
}

point_2d& point_2d::operator=(point_3d const& p)
{
    Set(p.x, p.y);
    return *this;
}

nd_point_2d& nd_point_2d::operator=(point_2d const& p)
{
    Set(p.x, p.y);
    return *this;
}

nd_point_2d& nd_point_2d::operator=(point_3d const& p)
{
    Set(p.x, p.y);
    return *this;
}

// ---------------------------------------------------------------------------
// Arithmetic
// ---------------------------------------------------------------------------

point_2d point_2d::operator+(point_2d const& b) const
{
    return point_2d(x + b.x, y + b.y);
}

point_2d point_2d::operator-(point_2d const& b) const
{
    return point_2d(x - b.x, y - b.y);
}

point_2d& point_2d::operator+=(point_2d const& b)
{
    x += b.x;
    y += b.y;
    return *this;
}

point_2d& point_2d::operator-=(point_2d const& b)
{
    x -= b.x;
    y -= b.y;
    return *this;
}

point_2d point_2d::operator*(float s) const
{
    return point_2d(x * s, y * s);
}

point_2d& point_2d::operator*=(float s)
{
    x *= s;
    y *= s;
    return *this;
}

point_2d operator*(float const& s, point_2d const& p)
{
    return p * s;
}

// Row vector (x, y, 1) times the 3x3 matrix; the third column is not used.
point_2d point_2d::operator*(float const* m) const
{
    return point_2d(x * m[0] + y * m[3] + m[6],
                    x * m[1] + y * m[4] + m[7]);
}

point_2d point_2d::operator*(float const (*m)[3]) const
{
    return *this * m[0];
}

point_2d& point_2d::operator*=(float const* m)
{
    *this = *this * m;
    return *this;
}

point_2d operator*(float const* m, point_2d const& p)
{
    return p * m;
}

point_2d operator*(float const (*m)[3], point_2d const& p)
{
    return p * m[0];
}

point_2d point_2d::operator/(float s) const
{
    // A divisor that is zero for all practical purposes leaves the point as
    // it is rather than producing infinities.
    if (std::fabs(static_cast<double>(s)) > gmGetAbsZero())
        return point_2d(x / s, y / s);
    return *this;
}

point_2d& point_2d::operator/=(float s)
{
    *this = *this / s;
    return *this;
}

point_2d point_2d::operator-() const
{
    return point_2d(-x, -y);
}

point_2d point_2d::Inverse() const
{
    return -*this;
}

point_2d& point_2d::Reverse()
{
    x = -x;
    y = -y;
    return *this;
}

// ---------------------------------------------------------------------------
// Products and lengths
// ---------------------------------------------------------------------------

float point_2d::Iproduct(point_2d const& b) const
{
    return x * b.x + y * b.y;
}

float point_2d::Xproduct(point_2d const& b) const
{
    return x * b.y - y * b.x;
}

point_2d point_2d::Xproduct(point_2d const& b, point_2d const& c) const
{
    const float z = x * b.y - y * b.x; // this x b points along z
    return point_2d(-z * c.y, z * c.x);
}

float point_2d::Length() const
{
    return std::sqrt(x * x + y * y);
}

float point_2d::DistFrom(point_2d const& b) const
{
    return std::sqrt(DistFrom2(b));
}

float point_2d::DistFrom2(point_2d const& b) const
{
    const float dx = x - b.x;
    const float dy = y - b.y;
    return dx * dx + dy * dy;
}

// ---------------------------------------------------------------------------
// Tolerance-based members
// ---------------------------------------------------------------------------

int point_2d::operator==(point_2d const& b) const
{
    // Planar points get ten times the absolute distance tolerance.
    const double equalFactor = 10.0;
    return static_cast<double>(DistFrom(b)) < equalFactor * gmGetAbsDistTol() ? 1 : 0;
}

int point_2d::operator!=(point_2d const& b) const
{
    return (*this == b) ? 0 : 1;
}

float point_2d::Unit()
{
    const float len = Length();
    if (static_cast<double>(len) < kUnitMinLength) {
        x = 0.0f;
        y = 0.0f;
        return 0.0f;
    }
    x /= len;
    y /= len;
    return len;
}

int point_2d::IsSameDirection(point_2d const& b) const
{
    float c = 0.0f;
    if (!unitCosine(*this, b, gmGetAbsDistTol(), c))
        return 0;
    return static_cast<double>(c) > kSameDirectionCos ? 1 : 0;
}

int point_2d::IsParallel(point_2d const& b) const
{
    float c = 0.0f;
    if (!unitCosine(*this, b, gmGetAbsDistTol(), c))
        return 0;
    const double cd = static_cast<double>(c);
    return (cd > kSameDirectionCos || cd < -kSameDirectionCos) ? 1 : 0;
}

int point_2d::IsPerpendicular(point_2d const& b) const
{
    // The raw dot product against a length tolerance: long vectors need a
    // proportionally smaller angle to pass.
    return std::fabs(static_cast<double>(Iproduct(b))) < gmGetDistTol() ? 1 : 0;
}

double point_2d::AngleToXAxis() const
{
    return axisAngle(x, y, 0.0, gmGetParaTol());
}

double point_2d::AngleToYAxis() const
{
    return axisAngle(x, y, kHalfPiF, gmGetParaTol());
}

// ---------------------------------------------------------------------------
// Distances to lines and segments
// ---------------------------------------------------------------------------

namespace {

// Foot point, parameter and distance of a projection, computed before any
// output is written: the caller's foot, t or dist may be this point or one of
// the end points (projecting a point onto a line in place).
struct Projection {
    point_2d foot;
    float t;
    float dist;
};

// Shared start of the segment and line projections: when a-b is shorter than
// the distance tolerance the segment is the point a. Returns true when it
// filled out for that case; d receives b - a and lenSq |d|^2.
bool projectOnPoint(point_2d const& p, point_2d const& a, point_2d const& b,
                    Projection& out, point_2d& d, float& lenSq)
{
    d = b - a;
    lenSq = d.Iproduct(d);
    const float len = std::sqrt(lenSq);
    if (static_cast<double>(len) < gmGetDistTol()) {
        out.foot = a;
        out.t = 0.0f;
        out.dist = p.DistFrom(a);
        return true;
    }
    return false;
}

int deliver(Projection const& r, float& t, point_2d& foot, float& dist)
{
    foot = r.foot;
    t = r.t;
    dist = r.dist;
    return 1;
}

} // namespace

int point_2d::GetDistLineSeg(point_2d const& a, point_2d const& b, float& t,
                             point_2d& foot, float& dist) const
{
    Projection r;
    point_2d d;
    float lenSq = 0.0f;
    if (projectOnPoint(*this, a, b, r, d, lenSq))
        return deliver(r, t, foot, dist);

    const float tp = (*this - a).Iproduct(d) / lenSq;
    const double slack = gmGetParaTol();
    const double td = static_cast<double>(tp);
    if (td > -slack && td <= 1.0 + slack) {
        // The perpendicular foot lies on the segment, give or take the slack.
        r.foot = a + d * tp;
        r.dist = DistFrom(r.foot);
        r.t = tp;
        return deliver(r, t, foot, dist);
    }

    // The foot lies beyond an end: the nearer end point wins, b on a tie.
    const float da = DistFrom(a);
    const float db = DistFrom(b);
    if (db > da) {
        r.dist = da;
        r.foot = a;
        r.t = 0.0f;
    } else {
        r.dist = db;
        r.foot = b;
        r.t = 1.0f;
    }
    return deliver(r, t, foot, dist);
}

int point_2d::GetProjectPoint(point_2d const& a, point_2d const& b, float& t,
                              point_2d& foot, float& dist) const
{
    Projection r;
    point_2d d;
    float lenSq = 0.0f;
    if (projectOnPoint(*this, a, b, r, d, lenSq))
        return deliver(r, t, foot, dist);

    r.t = (*this - a).Iproduct(d) / lenSq;
    r.foot = a + d * r.t;
    r.dist = DistFrom(r.foot);
    return deliver(r, t, foot, dist);
}

float point_2d::GetDistLineSeg(point_2d const& a, point_2d const& b) const
{
    float t = 0.0f;
    float dist = 0.0f;
    point_2d foot;
    GetDistLineSeg(a, b, t, foot, dist);
    return dist;
}

float point_2d::GetDistLine(point_2d const& a, point_2d const& b) const
{
    const point_2d u = b - a;
    const point_2d w = *this - a;
    const float lenSq = u.Iproduct(u);
    // The squared length meets the tolerance here, unlike the segment
    // functions.
    if (static_cast<double>(lenSq) < gmGetAbsDistTol())
        return w.Length();
    const float cross = w.y * u.x - w.x * u.y;
    return std::sqrt(cross * cross / lenSq);
}

float point_2d::GetDistLine(point_3d const& a, point_3d const& d, float& t) const
{
    return point_3d(x, y, 0.0f).GetDistLine(a, d, t);
}

int point_2d::IsOn(point_2d const& a, point_2d const& b) const
{
    return static_cast<double>(GetDistLine(a, b)) < gmGetAbsDistTol() ? 1 : 0;
}

int point_2d::IsOnSeg(point_2d const& a, point_2d const& b) const
{
    return static_cast<double>(GetDistLineSeg(a, b)) < gmGetAbsDistTol() ? 1 : 0;
}

int point_2d::IsConLine(point_2d const& a, point_2d const& b) const
{
    point_2d u = a - *this;
    point_2d w = b - *this;
    const double tol = gmGetAbsDistTol();
    const float lenU = u.Unit();
    const float lenW = w.Unit();
    // An end point on top of this point gives no direction: not collinear.
    if (static_cast<double>(lenU) < tol || static_cast<double>(lenW) < tol)
        return 0;
    return std::fabs(static_cast<double>(u.Xproduct(w))) < tol ? 1 : 0;
}

int IsPtsColine(point_2d* pts, int n, float tol)
{
    if (n <= 2)
        return 1;
    const point_2d& first = pts[0];
    const point_2d& last = pts[n - 1];
    for (int i = 1; i <= n - 2; ++i) {
        if (pts[i].GetDistLineSeg(first, last) > tol)
            return 0;
    }
    return 1;
}
