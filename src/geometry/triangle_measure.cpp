// Measures of triangles: quality, centres, area, volume, normal, distance
// to a plane.
#include "korvex/capi.h"

#include <cmath>

namespace {

// (longest - shortest) / middle of three edge lengths.
double edgeRatio(double e0, double e1, double e2)
{
    double lo = e0;
    double mid = e1;
    double hi = e2;
    if (lo > mid)
        mathSwapDbl(&lo, &mid);
    if (mid > hi)
        mathSwapDbl(&mid, &hi);
    if (lo > mid)
        mathSwapDbl(&lo, &mid);
    return (hi - lo) / mid;
}

const double minEdge = 1e-20; // shorter edges make the ratio meaningless

} // namespace

int mathChkTriQuality2D(const double a[2], const double b[2], const double c[2], double* q)
{
    const double e0 = mathDist2D(a, b);
    const double e1 = mathDist2D(b, c);
    const double e2 = mathDist2D(c, a);
    if (e0 < minEdge || e1 < minEdge || e2 < minEdge)
        return 0;
    *q = edgeRatio(e0, e1, e2);
    return 1;
}

int mathChkTriQuality(const double a[3], const double b[3], const double c[3], double* q)
{
    const double e0 = mathDist(a, b);
    const double e1 = mathDist(b, c);
    const double e2 = mathDist(c, a);
    if (e0 < minEdge || e1 < minEdge || e2 < minEdge)
        return -4;
    *q = edgeRatio(e0, e1, e2);
    return 1;
}

int mathChkXRatio3Edge(double e0, double e1, double e2, double minLen, double* q)
{
    if (e0 < minLen || e1 < minLen || e2 < minLen)
        return 0;
    *q = edgeRatio(e0, e1, e2);
    return 1;
}

int mathCalTriIncenter2D(const double a[2], const double b[2], const double c[2], double in[2])
{
    const double minPerimeter = 1e-8; // the three vertices coincide
    const double la = mathDist2D(b, c);
    const double lb = mathDist2D(a, c);
    const double lc = mathDist2D(a, b);
    const double perimeter = la + lb + lc;
    if (perimeter < minPerimeter)
        return -4;
    for (int i = 0; i < 2; ++i)
        in[i] = (la * a[i] + lb * b[i] + lc * c[i]) / perimeter;
    return 1;
}

int mathCalTriIncenter(const double a[3], const double b[3], const double c[3], double in[3])
{
    const double minPerimeter = 1e-8; // the three vertices coincide
    const double la = mathDist(b, c);
    const double lb = mathDist(a, c);
    const double lc = mathDist(a, b);
    const double perimeter = la + lb + lc;
    if (perimeter < minPerimeter)
        return -4;
    double centre[3];
    for (int i = 0; i < 3; ++i)
        centre[i] = (la * a[i] + lb * b[i] + lc * c[i]) / perimeter;
    mathCpyPnt(centre, in);
    return 1;
}

void mathCalTriBarycenter(const double a[3], const double b[3], const double c[3], double g[3])
{
    double centre[3];
    for (int i = 0; i < 3; ++i)
        centre[i] = (a[i] + b[i] + c[i]) / 3.0;
    mathCpyPnt(centre, g);
}

int mathCalTriCircumcenter(const double a[3], const double b[3], const double c[3], double o[3])
{
    const double unitTol = 1e-20;  // only truly collinear vertices fail
    const double distTol = 1e-8;   // the two bisectors must meet this closely
    const double paraTol = 1e-11;

    double e1[3];
    double e2[3];
    double m1[3];
    double m2[3];
    mathGetVec(a, b, e1);
    mathGetVec(a, c, e2);
    mathMidPnt(a, b, m1);
    mathMidPnt(a, c, m2);

    double n[3];
    mathVProduct(e1, e2, n);
    if (!mathUniVec(n, unitTol))
        return -4;
    // In-plane directions of the perpendicular bisectors of AB and AC.
    double d1[3];
    double d2[3];
    mathVProduct(n, e1, d1);
    if (!mathUniVec(d1, unitTol))
        return -4;
    mathVProduct(n, e2, d2);
    if (!mathUniVec(d2, unitTol))
        return -4;

    double c1[3];
    double c2[3];
    if (mathIntLin(m1, d1, m2, d2, distTol, paraTol, c1, c2) != 1)
        return 0;
    mathCpyPnt(c1, o);
    return 1;
}

double mathCalTriArea(const double a[3], const double b[3], const double c[3])
{
    double ab[3];
    double bc[3];
    double n[3];
    mathGetVec(a, b, ab);
    mathGetVec(b, c, bc);
    mathVProduct(ab, bc, n);
    return 0.5 * mathVecLen(n);
}

double mathCalTriAreaBy3Edge(double a, double b, double c)
{
    const double s = (a + b + c) / 2.0;
    // An edge longer than half the perimeter violates the triangle inequality.
    if (a > s || b > s || c > s)
        return 0.0;
    return std::sqrt(std::fabs((s - a) * s * (s - b) * (s - c)));
}

double mathCalPyramidVolume(const double a[3], const double b[3], const double c[3], const double d[3])
{
    double ab[3];
    double ac[3];
    double ad[3];
    double n[3];
    mathGetVec(a, b, ab);
    mathGetVec(a, c, ac);
    mathGetVec(a, d, ad);
    mathVProduct(ab, ac, n);
    return mathOProduct(n, ad) / 6.0;
}

int mathGetTriNormal(const double a[3], const double b[3], const double c[3], double tol, double n[3])
{
    const double unitTol = 1e-20;
    // A vertex on the line of the other two: the triangle has no plane.
    if (tol > mathDistPntLinEx(a, b, c) || tol > mathDistPntLinEx(b, c, a) || tol > mathDistPntLinEx(c, a, b))
        return 0;
    double ab[3];
    double bc[3];
    mathGetVec(a, b, ab);
    mathGetVec(b, c, bc);
    mathVProduct(ab, bc, n);
    return mathUniVec(n, unitTol);
}

double mathDistTriPln(const double a[3], const double b[3], const double c[3], const double p0[3],
                      const double n[3])
{
    // Deliberately the sum of the three signed distances, not their mean.
    const double* v[3] = {a, b, c};
    double sum = 0.0;
    for (int i = 0; i < 3; ++i) {
        double d[3];
        mathGetVec(p0, v[i], d);
        sum += mathOProduct(d, n);
    }
    return sum;
}
