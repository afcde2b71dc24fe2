// Containment tests in planar triangles and quadrilaterals, and barycentric
// weights.
#include "korvex/capi.h"

#include <cmath>

namespace {

// Whether the box of the n vertices misses the origin by more than tol on
// some side.
bool boxMissesOrigin(const double* const* v, int n, double tol)
{
    bool allRight = true;
    bool allLeft = true;
    bool allAbove = true;
    bool allBelow = true;
    for (int i = 0; i < n; ++i) {
        allRight = allRight && v[i][0] > tol;
        allLeft = allLeft && v[i][0] < -tol;
        allAbove = allAbove && v[i][1] > tol;
        allBelow = allBelow && v[i][1] < -tol;
    }
    return allRight || allLeft || allAbove || allBelow;
}

// Side of a vertex with respect to the x axis: 0 on it (within tol),
// +1 above, -1 below.
int axisSide(const double v[2], double tol)
{
    if (std::fabs(v[1]) < tol)
        return 0;
    return v[1] > 0.0 ? 1 : -1;
}

// Collects where the closed polygon v[0..n-1] meets the x axis: first the x
// of every vertex on the axis (in vertex order), then the crossings of the
// edges whose ends lie strictly on opposite sides (in edge order). Returns
// the number of values written to xs (at most 2 n), or -1 when every vertex
// lies on the axis.
int axisCrossings(const double* const* v, int n, double tol, double* xs)
{
    int side[4];
    int count = 0;
    for (int i = 0; i < n; ++i) {
        side[i] = axisSide(v[i], tol);
        if (side[i] == 0)
            xs[count++] = v[i][0];
    }
    if (count == n)
        return -1;
    for (int i = 0; i < n; ++i) {
        const int j = (i + 1) % n;
        if (side[i] * side[j] < 0) {
            const double* p = v[i];
            const double* q = v[j];
            xs[count++] = p[0] + (q[0] - p[0]) * p[1] / (p[1] - q[1]);
        }
    }
    return count;
}

// The origin lies on the x axis between the two crossings, or on one of them.
bool originBetween(double x0, double x1, double tol)
{
    return x0 * x1 < 0.0 || std::fabs(x0) < tol || std::fabs(x1) < tol;
}

// The origin lies on the segment p q when the detour through it is no longer
// than the segment (within tol).
bool originOnSegment(const double p[2], const double q[2], double lp, double lq, double tol)
{
    return mathDist2D(p, q) + tol > lp + lq;
}

} // namespace

int mathChkOriInTri2D(const double a[2], const double b[2], const double c[2], double tol)
{
    const double* v[3] = {a, b, c};
    if (boxMissesOrigin(v, 3, tol))
        return 0;
    double xs[6];
    const int count = axisCrossings(v, 3, tol, xs);
    if (count < 0)
        return 800;
    if (count != 2)
        return 0;
    return originBetween(xs[0], xs[1], tol) ? 1 : 0;
}

int mathChkOriInQuad2D(const double a[2], const double b[2], const double c[2], const double d[2], double tol)
{
    const double* v[4] = {a, b, c, d};
    if (boxMissesOrigin(v, 4, tol))
        return 0;
    double xs[8];
    const int count = axisCrossings(v, 4, tol, xs);
    if (count < 0)
        return 800;
    if (count < 2 || count > 4)
        return 0;
    if (count > 2)
        mathSortDblArray(count, xs);
    // With three values the outer two bound the stretch of the axis inside.
    const double upper = count == 3 ? xs[2] : xs[1];
    if (originBetween(xs[0], upper, tol))
        return 1;
    // A concave quadrilateral may cross the axis twice more.
    if (count == 4)
        return originBetween(xs[2], xs[3], tol) ? 1 : 0;
    return 0;
}

int mathChkOriInTri2DEx(const double a[2], const double b[2], const double c[2], double tol, double w[3])
{
    const double* v[3] = {a, b, c};
    if (boxMissesOrigin(v, 3, tol))
        return 0;

    // The origin at a vertex.
    const double la = mathVecLen2D(a);
    const double lb = mathVecLen2D(b);
    const double lc = mathVecLen2D(c);
    if (la < tol) {
        w[0] = 1.0, w[1] = 0.0, w[2] = 0.0;
        return 1;
    }
    if (lb < tol) {
        w[0] = 0.0, w[1] = 1.0, w[2] = 0.0;
        return 1;
    }
    if (lc < tol) {
        w[0] = 0.0, w[1] = 0.0, w[2] = 1.0;
        return 1;
    }

    // The origin on an edge: the weights split by the distances to its ends.
    if (originOnSegment(a, b, la, lb, tol)) {
        w[0] = lb / (la + lb);
        w[1] = 1.0 - w[0];
        w[2] = 0.0;
        return 1;
    }
    if (originOnSegment(a, c, la, lc, tol)) {
        w[0] = lc / (la + lc);
        w[1] = 0.0;
        w[2] = 1.0 - w[0];
        return 1;
    }
    if (originOnSegment(c, b, lc, lb, tol)) {
        w[0] = 0.0;
        w[1] = lc / (lb + lc);
        w[2] = 1.0 - w[1];
        return 1;
    }

    if (!mathCalTri2DGCO(a, b, c, w))
        return 0;
    for (int i = 0; i < 3; ++i) {
        if (w[i] < 0.0 || w[i] > 1.0)
            return 0;
    }
    return 1;
}

int mathCalTri2DGCP(const double a[2], const double b[2], const double c[2], const double p[2], double w[3])
{
    const double minDet = 1e-20; // below this the triangle has no area to speak of
    const double det = (b[1] - c[1]) * (a[0] - c[0]) - (a[1] - c[1]) * (b[0] - c[0]);
    if (std::fabs(det) < minDet)
        return 0;
    const double w0 = ((c[1] - p[1]) * (b[0] - c[0]) - (c[0] - p[0]) * (b[1] - c[1])) / det;
    const double w1 = ((c[0] - p[0]) * (a[1] - c[1]) - (c[1] - p[1]) * (a[0] - c[0])) / det;
    w[0] = w0;
    w[1] = w1;
    w[2] = 1.0 - w0 - w1;
    return 1;
}

int mathCalTri2DGCO(const double a[2], const double b[2], const double c[2], double w[3])
{
    const double origin[2] = {0.0, 0.0};
    return mathCalTri2DGCP(a, b, c, origin, w);
}

int mathChkPntTri2D(const double p[2], const double a[2], const double b[2], const double c[2], double tol)
{
    const double minX = std::fmin(a[0], std::fmin(b[0], c[0]));
    const double minY = std::fmin(a[1], std::fmin(b[1], c[1]));
    const double maxX = std::fmax(a[0], std::fmax(b[0], c[0]));
    const double maxY = std::fmax(a[1], std::fmax(b[1], c[1]));
    if (minX > p[0] + tol || minY > p[1] + tol || p[0] - tol > maxX || p[1] - tol > maxY)
        return 0;

    // Side codes: 2 on the line, 3 left, 4 right, 800 degenerate edge.
    const int onLine = 2;
    const int degenerate = 800;
    const int r1 = mathChkPntLin2D(p, a, b, tol);
    if (r1 == degenerate)
        return degenerate;
    const int r2 = mathChkPntLin2D(p, b, c, tol);
    if (r2 == degenerate)
        return degenerate;
    // On the lines of both AB and BC: at the corner B.
    if (r1 == onLine && r2 == onLine)
        return onLine;
    // Strictly on opposite sides of two edges: outside.
    if ((r1 == 3 && r2 == 4) || (r1 == 4 && r2 == 3))
        return 0;
    const int r3 = mathChkPntLin2D(p, c, a, tol);
    if (r3 == degenerate)
        return degenerate;
    // Only the line of CA reports the boundary; a point on AB or BC alone is
    // decided by the sides of the other edges and so counts as inside.
    if (r3 == onLine)
        return onLine;
    const int side = r2 == onLine ? r1 : r2;
    return r3 == side ? 1 : 0;
}

int mathChkTriDir2D(const double a[2], const double b[2], const double c[2], double tol)
{
    switch (mathChkPntLin2D(c, a, b, tol)) {
    case 3: // left: counter-clockwise
        return 1;
    case 4: // right: clockwise
        return 0;
    default: // on the line, or A and B coincide
        return 800;
    }
}
