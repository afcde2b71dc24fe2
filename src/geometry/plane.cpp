// Planes in space: distances, projections and intersections with lines,
// segments and other planes.
#include "korvex/capi.h"
#include "geometry/vec3.hpp"

#include <cmath>

using korvex_geometry::copy3;
using korvex_geometry::dot3;

double mathDistPntPln(const double p[3], const double p0[3], const double n[3])
{
    return std::fabs(mathDistPntPlnSide(p, p0, n));
}

double mathDistPntPlnSide(const double p[3], const double p0[3], const double n[3])
{
    double w[3];
    mathGetVec(p0, p, w);
    return dot3(w, n);
}

void mathPrjPntPln(const double p[3], const double p0[3], const double n[3], double q[3])
{
    double w[3];
    mathGetVec(p, p0, w); // p0 - p
    mathAddVec(p, n, dot3(w, n), q);
}

void mathPrjVecPln(const double v[3], const double n[3], double w[3])
{
    const double s = dot3(v, n);
    const double x = v[0] - s * n[0];
    const double y = v[1] - s * n[1];
    const double z = v[2] - s * n[2];
    w[0] = x;
    w[1] = y;
    w[2] = z;
}

int mathIsLinOnPln(const double l[3], const double d[3], const double p0[3], const double n[3], double tol)
{
    // The second test point sits at parameter 100, not at a fixed distance:
    // the reach of the test grows with the length of d, on purpose.
    const double farParam = 100.0;
    if (!(tol > mathDistPntPln(l, p0, n)))
        return 0;
    double farPoint[3];
    mathAddVec(l, d, farParam, farPoint);
    return tol > mathDistPntPln(farPoint, p0, n) ? 1 : 0;
}

int mathIntLinPln(const double l[3], const double d[3], const double p0[3], const double n[3],
                  double distTol, double paraTol, double x[3])
{
    double w[3];
    mathGetVec(p0, l, w);
    const double s = dot3(w, n); // signed height of l above the plane
    const double e = dot3(d, n);
    if (paraTol > std::fabs(e)) {
        // The line runs parallel to the plane: it lies in it or misses it.
        const int result = distTol > std::fabs(s) ? 4 : 2;
        copy3(l, x);
        return result;
    }
    mathAddVec(l, d, -(s / e), x);
    return 1;
}

int mathIntSegmPln(const double a[3], const double b[3], const double p0[3], const double n[3],
                   double tol, double x1[3], double x2[3], double *t1, double *t2)
{
    const double sa = mathDistPntPlnSide(a, p0, n);
    const double sb = mathDistPntPlnSide(b, p0, n);
    // Both ends clearly on the same side: the segment cannot reach the plane.
    if ((sa > tol && sb > tol) || (-tol > sa && -tol > sb))
        return 0;
    const bool onA = tol > std::fabs(sa);
    const bool onB = tol > std::fabs(sb);
    if (onA && onB) {
        // The whole segment lies in the plane.
        double pa[3], pb[3];
        copy3(a, pa);
        copy3(b, pb);
        copy3(pa, x1);
        copy3(pb, x2);
        *t1 = 0.0;
        *t2 = 1.0;
        return 4;
    }
    if (onA) {
        copy3(a, x1);
        *t1 = 0.0;
        return 1;
    }
    if (onB) {
        copy3(b, x1);
        *t1 = 1.0;
        return 1;
    }
    if (sa * sb < 0.0) {
        // The ends lie on opposite sides: the segment crosses the plane.
        const double t = sa / (sa - sb);
        mathMixPnt(a, b, 1.0 - t, t, x1);
        *t1 = t;
        return 1;
    }
    return 0;
}

int mathIsPlnOverlap(const double p1[3], const double n1[3], const double p2[3], const double n2[3],
                     double distTol, double paraTol)
{
    double cross[3];
    mathVProduct(n1, n2, cross);
    if (!(paraTol > mathVecLen(cross)))
        return 0;
    double w[3];
    mathGetVec(p2, p1, w); // p1 - p2
    return distTol > std::fabs(dot3(w, n1)) ? 1 : 0;
}

int mathIntPln(const double p1[3], const double n1[3], const double p2[3], const double n2[3],
               double distTol, double paraTol, double x[3], double d[3])
{
    double a[3], na[3], b[3], nb[3];
    copy3(p1, a);
    copy3(n1, na);
    copy3(p2, b);
    copy3(n2, nb);

    double dir[3];
    mathVProduct(na, nb, dir);
    copy3(dir, d);
    const double c = mathVecLen(dir);
    if (paraTol > c) {
        // Parallel planes: they coincide or do not meet; d keeps the short
        // cross product.
        double w[3];
        mathGetVec(b, a, w); // p1 - p2
        return distTol > std::fabs(dot3(w, na)) ? 4 : 2;
    }

    // Put the point of the line on the coordinate plane that the line
    // crosses most steeply, and solve the two plane equations there.
    const double h1 = dot3(a, na);
    const double h2 = dot3(b, nb);
    const double steep = 0.5 * c;
    double px, py, pz;
    if (std::fabs(dir[0]) > steep) {
        px = 0.0;
        py = (h1 * nb[2] - h2 * na[2]) / dir[0];
        pz = (h2 * na[1] - h1 * nb[1]) / dir[0];
    } else if (std::fabs(dir[1]) > steep) {
        px = (h2 * na[2] - h1 * nb[2]) / dir[1];
        py = 0.0;
        pz = (h1 * nb[0] - h2 * na[0]) / dir[1];
    } else {
        px = (h1 * nb[1] - h2 * na[1]) / dir[2];
        py = (h2 * na[0] - h1 * nb[0]) / dir[2];
        pz = 0.0;
    }
    x[0] = px;
    x[1] = py;
    x[2] = pz;
    d[0] = dir[0] / c;
    d[1] = dir[1] / c;
    d[2] = dir[2] / c;
    return 1;
}
