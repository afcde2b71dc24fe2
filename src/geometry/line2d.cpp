// Lines in the plane: evaluation, distances, projections, side tests,
// normals and intersections.
#include "korvex/capi.h"

#include <cmath>

namespace {

// Below this length two points do not define a direction for the side test,
// the normals and the projections.
const double kMinDirLength = 1e-10;

inline double dot2(const double a[2], const double b[2])
{
    return a[0] * b[0] + a[1] * b[1];
}

// Signed distance of p from the line (l, d): positive on the left of d.
inline double side2(const double p[2], const double l[2], const double d[2])
{
    return d[0] * (p[1] - l[1]) - d[1] * (p[0] - l[0]);
}

// Normalises n in place when it is long enough; otherwise leaves it as it is.
int unitNormal2(double n[2])
{
    const double length = std::sqrt(n[0] * n[0] + n[1] * n[1]);
    if (kMinDirLength > length)
        return 0;
    n[0] /= length;
    n[1] /= length;
    return 1;
}

} // namespace

void mathEvalLin2D(const double l[2], const double d[2], double t, double p[2])
{
    const double x = l[0] + t * d[0];
    const double y = l[1] + t * d[1];
    p[0] = x;
    p[1] = y;
}

double mathDistPntLin2D(const double p[2], const double l[2], const double d[2])
{
    return side2(p, l, d);
}

double mathDistPntLin2DEx(const double p[2], const double a[2], const double b[2])
{
    // A shorter line has no usable direction: fall back to the distance to a.
    const double minLength = 1e-8;
    const double d[2] = {b[0] - a[0], b[1] - a[1]};
    const double length = std::sqrt(d[0] * d[0] + d[1] * d[1]);
    if (minLength > length)
        return mathDist2D(p, a);
    return side2(p, a, d) / length;
}

void mathPrjPntLin2D(const double p[2], const double l[2], const double d[2], double q[2])
{
    const double t = (p[0] - l[0]) * d[0] + (p[1] - l[1]) * d[1];
    const double x = l[0] + t * d[0];
    const double y = l[1] + t * d[1];
    q[0] = x;
    q[1] = y;
}

int mathPrjPntLin2DEx(const double p[2], const double a[2], const double b[2], double q[2])
{
    const double pa[2] = {p[0] - a[0], p[1] - a[1]};
    const double a0[2] = {a[0], a[1]};
    double u[2] = {b[0] - a[0], b[1] - a[1]};
    if (!mathUniVec2D(u, kMinDirLength)) {
        // a and b coincide: the only point the line offers is a.
        q[0] = a0[0];
        q[1] = a0[1];
        return 0;
    }
    const double t = dot2(pa, u);
    q[0] = a0[0] + t * u[0];
    q[1] = a0[1] + t * u[1];
    return 1;
}

int mathChkPntLin2D(const double p[2], const double a[2], const double b[2], double tol)
{
    // Below this length the two points do not define a direction.
    const double minLength = 1e-10;
    const double dx = b[0] - a[0];
    const double dy = b[1] - a[1];
    const double length = std::sqrt(dx * dx + dy * dy);
    if (length < minLength)
        return 800;
    // Positive on the left of a -> b.
    const double side = (dx * (p[1] - a[1]) - dy * (p[0] - a[0])) / length;
    if (tol > std::fabs(side))
        return 2;
    return side > 0.0 ? 3 : 4;
}

int mathGetLinLeftDir2D(const double a[2], const double b[2], double n[2])
{
    const double x = a[1] - b[1];
    const double y = b[0] - a[0];
    n[0] = x;
    n[1] = y;
    return unitNormal2(n);
}

int mathGetLinRightDir2D(const double a[2], const double b[2], double n[2])
{
    const double x = b[1] - a[1];
    const double y = a[0] - b[0];
    n[0] = x;
    n[1] = y;
    return unitNormal2(n);
}

int mathGetLinDirLen2D(const double a[2], const double b[2], double tol, double d[2], double *len)
{
    const double x = b[0] - a[0];
    const double y = b[1] - a[1];
    const double length = std::sqrt(x * x + y * y);
    d[0] = x;
    d[1] = y;
    *len = length;
    if (tol > length)
        return 0;
    d[0] /= length;
    d[1] /= length;
    return 1;
}

int mathIntLin2D(const double l1[2], const double d1[2], const double l2[2], const double d2[2],
                 double distTol, double paraTol, double x[2])
{
    // Signed distances of l1 and of l1 + d1 from line 2.
    const double s0 = side2(l1, l2, d2);
    const double s1 = s0 + (d2[0] * d1[1] - d2[1] * d1[0]);
    if (paraTol > std::fabs(s1 - s0)) {
        // Parallel: drop the midpoint of l1 and l2 onto both lines and see
        // whether the two feet coincide.
        const double w12[2] = {l2[0] - l1[0], l2[1] - l1[1]};
        const double w21[2] = {l1[0] - l2[0], l1[1] - l2[1]};
        const double h1 = 0.5 * dot2(w12, d1);
        const double h2 = 0.5 * dot2(w21, d2);
        const double m1[2] = {l1[0] + h1 * d1[0], l1[1] + h1 * d1[1]};
        const double m2[2] = {l2[0] + h2 * d2[0], l2[1] + h2 * d2[1]};
        if (distTol > mathDist2D(m2, m1)) {
            x[0] = (m1[0] + m2[0]) / 2.0;
            x[1] = (m1[1] + m2[1]) / 2.0;
            return 4;
        }
        return 2;
    }
    const double t = s0 / (s0 - s1);
    mathEvalLin2D(l1, d1, t, x);
    return 1;
}

int mathIntLin2DEx(const double a1[2], const double b1[2], const double a2[2], const double b2[2],
                   double distTol, double paraTol, double x[2])
{
    const double p1[2] = {a1[0], a1[1]};
    const double p2[2] = {a2[0], a2[1]};
    double u1[2] = {b1[0] - a1[0], b1[1] - a1[1]};
    double u2[2] = {b2[0] - a2[0], b2[1] - a2[1]};
    const int ok1 = mathUniVec2D(u1, distTol);
    const int ok2 = mathUniVec2D(u2, distTol);
    if (!ok1 || !ok2)
        return 800;
    return mathIntLin2D(p1, u1, p2, u2, distTol, paraTol, x);
}
