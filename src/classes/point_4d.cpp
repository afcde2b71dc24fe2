// point_4d: homogeneous single-precision point. Every operation acts on all
// four fields, w included.
#include <korvex/classes.hpp>

#include <cmath>

#include "classes/class_shared.hpp"

using namespace korvex_classes;

void point_4d::Set(float px, float py, float pz, float pw)
{
    storeFour(x, y, z, w, px, py, pz, pw);
}

point_4d& point_4d::operator=(point_2d const& p)
{
    Set(p.x, p.y, 0.0f, 1.0f);
    return *this;
}

point_4d& point_4d::operator=(point_3d const& p)
{
    Set(p.x, p.y, p.z, 1.0f);
    return *this;
}

point_4d& point_4d::operator=(nd_point_3d const& p)
{
    return *this = static_cast<point_3d const&>(p);
}

point_4d point_4d::operator+(point_4d const& b) const
{
    return point_4d(x + b.x, y + b.y, z + b.z, w + b.w);
}

point_4d point_4d::operator-(point_4d const& b) const
{
    return point_4d(x - b.x, y - b.y, z - b.z, w - b.w);
}

point_4d& point_4d::operator+=(point_4d const& b)
{
    x += b.x;
    y += b.y;
    z += b.z;
    w += b.w;
    return *this;
}

point_4d& point_4d::operator-=(point_4d const& b)
{
    x -= b.x;
    y -= b.y;
    z -= b.z;
    w -= b.w;
    return *this;
}

point_4d point_4d::operator*(float s) const
{
    return point_4d(x * s, y * s, z * s, w * s);
}

point_4d& point_4d::operator*=(float s)
{
    *this = *this * s;
    return *this;
}

point_4d point_4d::operator/(float s) const
{
    // Homogeneous points guard their divisor with a fixed bound of their
    // own, not with the absolute-zero tolerance of the other point classes.
    const double minDivisor = 1e-7;
    if (std::fabs(static_cast<double>(s)) > minDivisor)
        return point_4d(x / s, y / s, z / s, w / s);
    return *this;
}

point_4d& point_4d::operator/=(float s)
{
    *this = *this / s;
    return *this;
}
