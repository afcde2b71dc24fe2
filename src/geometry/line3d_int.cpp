// Intersections of lines in space and the common plane of two lines.
#include "korvex/capi.h"
#include "geometry/vec3.hpp"

#include <cmath>

using korvex_geometry::copy3;
using korvex_geometry::dot3;

int mathIntLin(const double l1[3], const double d1[3], const double l2[3], const double d2[3],
               double distTol, double paraTol, double c1[3], double c2[3])
{
    // Denominators below this mean the closest-point planes are degenerate.
    const double minDenominator = 1e-100;
    // Work on copies so that the outputs may share arrays with the inputs.
    double p1[3], u1[3], p2[3], u2[3];
    copy3(l1, p1);
    copy3(d1, u1);
    copy3(l2, p2);
    copy3(d2, u2);

    double cross[3];
    mathVProduct(u1, u2, cross);
    const double c = mathVecLen(cross);
    if (paraTol > c) {
        // Parallel: the feet of the midpoint of l1 and l2 on both lines tell
        // whether the lines coincide.
        double mid[3];
        mathMidPnt(p1, p2, mid);
        mathPrjPntLin(mid, p1, u1, c1);
        mathPrjPntLin(mid, p2, u2, c2);
        return distTol > mathDist(c1, c2) ? 4 : 2;
    }

    const double nn[3] = {cross[0] / c, cross[1] / c, cross[2] / c};
    double w[3];
    mathGetVec(p2, p1, w); // l1 - l2

    // c1 lies in the plane spanned by line 2 and the common normal.
    double q1[3];
    mathVProduct(u2, nn, q1);
    const double den1 = dot3(q1, u1);
    if (std::fabs(den1) < minDenominator)
        return 800;
    mathAddVec(p1, u1, -dot3(q1, w) / den1, c1);

    // c2 lies in the plane spanned by line 1 and the common normal.
    double q2[3];
    mathVProduct(u1, nn, q2);
    const double den2 = dot3(q2, u2);
    if (std::fabs(den2) < minDenominator)
        return 800;
    mathAddVec(p2, u2, dot3(q2, w) / den2, c2);

    // c1 and c2 are the mutually closest points; when they agree the caller
    // takes c1 as the intersection.
    return distTol > mathDist(c1, c2) ? 1 : 5;
}

int mathIntLinEx(const double a1[3], const double b1[3], const double a2[3], const double b2[3],
                 double distTol, double paraTol, double c1[3], double c2[3])
{
    double p1[3], p2[3], u1[3], u2[3];
    copy3(a1, p1);
    copy3(a2, p2);
    mathGetVec(a1, b1, u1);
    mathGetVec(a2, b2, u2);
    const int ok1 = mathUniVec(u1, distTol);
    const int ok2 = mathUniVec(u2, distTol);
    if (!ok1 || !ok2)
        return 800; // a line whose two points coincide
    return mathIntLin(p1, u1, p2, u2, distTol, paraTol, c1, c2);
}

int mathIntLine(const double a1[3], const double b1[3], const double a2[3], const double b2[3],
                double distTol, double paraTol, double c1[3], double c2[3],
                double *t1, double *t2, double *dist)
{
    double p1[3], p2[3], e1[3], e2[3];
    copy3(a1, p1);
    copy3(a2, p2);
    mathGetVec(a1, b1, e1);
    mathGetVec(a2, b2, e2);
    if (distTol > mathVecLen(e1) || distTol > mathVecLen(e2))
        return 800; // a line whose two points coincide

    // The raw cross product of the unnormalised directions decides
    // parallelism here, unlike mathIntLin.
    double cross[3];
    mathVProduct(e1, e2, cross);
    const double c = mathVecLen(cross);
    if (c >= paraTol) {
        const double c2sq = c * c;
        double w[3], we2[3], e1w[3];
        mathGetVec(p1, p2, w); // a2 - a1
        mathVProduct(w, e2, we2);
        mathVProduct(e1, w, e1w);
        const double s1 = dot3(we2, cross) / c2sq;
        const double s2 = -dot3(e1w, cross) / c2sq;
        mathAddVec(p1, e1, s1, c1);
        mathAddVec(p2, e2, s2, c2);
        *t1 = s1;
        *t2 = s2;
        const double gap = mathDist(c1, c2);
        *dist = gap;
        return distTol > gap ? 1 : 5;
    }

    // Parallel: the midpoint of a1 and a2 is dropped onto both lines with
    // the raw directions used as if they were unit vectors. The feet are
    // exact only for unit-length directions; hosts depend on these points
    // as they are, so they are not corrected.
    double mid[3];
    mathMidPnt(p1, p2, mid);
    mathPrjPntLin(mid, p1, e1, c1);
    mathPrjPntLin(mid, p2, e2, c2);
    const double gap = mathDist(c1, c2);
    *dist = gap;
    return distTol > gap ? 4 : 2;
}

int mathIsLinCoplanar(const double l1[3], const double d1[3], const double l2[3], const double d2[3],
                      double distTol, double paraTol, double p[3], double n[3])
{
    double c1[3], c2[3];
    const int crossing = mathIntLin(l1, d1, l2, d2, distTol, paraTol, c1, c2);
    if (crossing == 1) {
        // The lines meet: their directions span the plane.
        double normal[3];
        if (mathVProductUnit(d1, d2, normal))
            copy3(normal, n);
        copy3(c1, p);
        return 1;
    }
    if (crossing == 2) {
        // Distinct parallel lines: the plane holds d1 and the step from l1
        // to l2.
        double w[3], normal[3];
        if (!mathGetVecUnit(l1, l2, w) || !mathVProductUnit(d1, w, normal))
            return 2;
        copy3(l1, p);
        copy3(normal, n);
        return 1;
    }
    if (crossing == 4)
        return 2; // coincident lines: coplanar, but the plane is not fixed
    return 0; // skew lines or a degenerate configuration
}
