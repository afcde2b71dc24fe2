// Intersection of a segment with a triangle in space.
#include "korvex/capi.h"

#include <cmath>

namespace {

// Position of the point x of the triangle's plane against the triangle,
// judged in a frame of that plane: 1 inside or on the boundary (within tol),
// 0 outside, 800 when an edge is too short to give the plane a direction.
int inTriangle(const double x[3], const double t0[3], const double t1[3], const double t2[3],
               const double n[3], double tol)
{
    const int degenerate = 800;
    double edge[3];
    mathGetVec(t0, t1, edge);
    MathRFrame f;
    if (!mathDerivFrame(t0, n, edge, &f))
        return degenerate;
    double p[2], a[2], b[2], c[2];
    mathTransWorldPnt3DTo2D(&f, x, p);
    mathTransWorldPnt3DTo2D(&f, t0, a);
    mathTransWorldPnt3DTo2D(&f, t1, b);
    mathTransWorldPnt3DTo2D(&f, t2, c);
    const int r = mathChkPntTri2D(p, a, b, c, tol);
    if (r == degenerate)
        return degenerate;
    return r == 1 || r == 2 ? 1 : 0;
}

// Segment a -> b lying in the triangle's plane: the chord that the segment's
// line cuts from the triangle, clipped to the segment.
int coplanarOverlap(const double a[3], const double b[3], const double t0[3], const double t1[3],
                    const double t2[3], const double n[3], double tol, double p1[3], double p2[3])
{
    double d[3];
    mathGetVec(a, b, d);
    const double len = mathVecLen(d);
    // Signed distance from the segment's line, within the plane.
    double across[3];
    if (!mathVProductUnit(n, d, across))
        return 800;
    const double* t[3] = {t0, t1, t2};
    double f[3];
    for (int i = 0; i < 3; ++i) {
        double v[3];
        mathGetVec(a, t[i], v);
        f[i] = mathOProduct(v, across);
    }
    // Accept a chord of any length, a single touching vertex included.
    const double anyLength = -1.0;
    double va[3], vb[3];
    if (!mathEvalTriContLin(3, t0, t1, t2, f[0], f[1], f[2], tol, anyLength, va, vb))
        return 0;

    // Parameters of the chord's ends along the segment (0 at a, 1 at b).
    double wa[3], wb[3];
    mathGetVec(a, va, wa);
    mathGetVec(a, vb, wb);
    const double lenSq = len * len;
    double lo = mathOProduct(wa, d) / lenSq;
    double hi = mathOProduct(wb, d) / lenSq;
    if (lo > hi)
        mathSwapDbl(&lo, &hi);
    lo = std::fmax(lo, 0.0);
    hi = std::fmin(hi, 1.0);
    const double overlap = (hi - lo) * len;
    // The chord and the segment are apart by more than tol.
    if (overlap < -tol)
        return 0;
    // They meet in a point (or overlap by less than tol).
    if (overlap < tol) {
        const double s = mathClamp01(0.5 * (lo + hi));
        mathAddVec(a, d, s, p1);
        return 1;
    }
    mathAddVec(a, d, lo, p1);
    mathAddVec(a, d, hi, p2);
    return 4;
}

} // namespace

int mathIntSegmTri(const double a[3], const double b[3], const double t0[3], const double t1[3],
                   const double t2[3], double tol, double p1[3], double p2[3])
{
    const double minLen = 1e-8; // shorter segments have no direction
    if (mathDist(a, b) < minLen)
        return 800;
    double n[3];
    if (mathGetTriNormal(t0, t1, t2, tol, n) != 1)
        return 800;

    double x1[3], x2[3];
    double s1 = 0.0, s2 = 0.0;
    switch (mathIntSegmPln(a, b, t0, n, tol, x1, x2, &s1, &s2)) {
    case 1: { // the segment meets the plane in one point
        const int in = inTriangle(x1, t0, t1, t2, n, tol);
        if (in != 1)
            return in;
        mathCpyPnt(x1, p1);
        return 1;
    }
    case 4: // the segment lies in the plane
        return coplanarOverlap(a, b, t0, t1, t2, n, tol, p1, p2);
    default:
        return 0;
    }
}
