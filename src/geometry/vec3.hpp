// Small inline vector helpers shared by the line and plane sources. They are
// internal: the public vector functions stay the interface for hosts, these
// only spare the inner computations a call through the library's symbols.
#ifndef KORVEX_GEOMETRY_VEC3_HPP
#define KORVEX_GEOMETRY_VEC3_HPP

namespace korvex_geometry {

inline double dot3(const double a[3], const double b[3])
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

inline void copy3(const double s[3], double t[3])
{
    t[0] = s[0];
    t[1] = s[1];
    t[2] = s[2];
}

} // namespace korvex_geometry

#endif // KORVEX_GEOMETRY_VEC3_HPP
