// Gravity frames: a reference tetrahedron built on a triangle, converting
// between Cartesian and barycentric coordinates.
#include "korvex/capi.h"
#include "transform/frame_homogeneous.hpp"

#include <cmath>

using korvex_frame::convertHomogeneous;

int mathGetGFrame3Pnt(const double p0[3], const double p1[3], const double p2[3], MathGFrame* g)
{
    const double minHeight = 1e-20; // the three points are collinear
    // The vertices are read before g is written, so they may be taken from g
    // itself in any order.
    double v0[3];
    double v1[3];
    double v2[3];
    mathCpyPnt(p0, v0);
    mathCpyPnt(p1, v1);
    mathCpyPnt(p2, v2);
    mathCpyPnt(v0, g->p0);
    mathCpyPnt(v1, g->p1);
    mathCpyPnt(v2, g->p2);
    double e1[3];
    double e2[3];
    double n[3];
    mathGetVec(g->p0, g->p1, e1);
    mathGetVec(g->p0, g->p2, e2);
    mathVProduct(e1, e2, n);
    // The apex stands at height h above the centroid, with h the square root
    // of twice the base area, so the tetrahedron scales like the triangle.
    const double h = std::sqrt(mathVecLen(n));
    if (h < minHeight)
        return 0;
    for (int i = 0; i < 3; ++i)
        g->p3[i] = (g->p0[i] + g->p1[i] + g->p2[i]) / 3.0 + n[i] / h;
    g->volume = h * h * h / 6.0;
    return 1;
}

void mathTransGraviPnt3D(const MathGFrame* g, const double b[3], double q[3])
{
    const double b3 = 1.0 - b[0] - b[1] - b[2];
    double r[3];
    for (int i = 0; i < 3; ++i)
        r[i] = b[0] * g->p0[i] + b[1] * g->p1[i] + b[2] * g->p2[i] + b3 * g->p3[i];
    mathCpyPnt(r, q);
}

void mathTransRectaPnt3D(const MathGFrame* g, const double p[3], double q[3])
{
    const double minVolume = 1e-30;
    const double v = g->volume;
    if (std::fabs(v) < minVolume) {
        q[0] = 1.0;
        q[1] = 0.0;
        q[2] = 0.0;
        return;
    }
    // Each weight is the volume of the tetrahedron with p in place of that
    // vertex, relative to the whole.
    const double b0 = mathCalPyramidVolume(p, g->p1, g->p2, g->p3) / v;
    const double b1 = mathCalPyramidVolume(g->p0, p, g->p2, g->p3) / v;
    const double b2 = mathCalPyramidVolume(g->p0, g->p1, p, g->p3) / v;
    q[0] = b0;
    q[1] = b1;
    q[2] = b2;
}

int mathTransGraviStr4D(int n, const MathGFrame* g, const double* in, double* out)
{
    return convertHomogeneous(n, in, out, [g](const double* p, double* q) { mathTransGraviPnt3D(g, p, q); });
}

int mathTransRectaStr4D(int n, const MathGFrame* g, const double* in, double* out)
{
    return convertHomogeneous(n, in, out, [g](const double* p, double* q) { mathTransRectaPnt3D(g, p, q); });
}
