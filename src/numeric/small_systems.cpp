// Closed-form solvers: Cramer's rule for 2x2 and 3x3 systems, the
// homogeneous 2x2 system, the trigonometric equations and the decomposition
// of a vector along three directions.
#include "korvex/capi.h"
#include "numeric/linear_internal.h"

#include <cmath>

int mathSolLineEqua22(double a11, double a12, double a21, double a22,
                      double b1, double b2, double tol, double *x, double *y)
{
    const double det = a11 * a22 - a12 * a21;
    if (tol > std::fabs(det))
        return 0;
    *x = (a22 * b1 - a12 * b2) / det;
    *y = (a11 * b2 - a21 * b1) / det;
    return 1;
}

int mathSolLineEqua33(double a11, double a12, double a13,
                      double a21, double a22, double a23,
                      double a31, double a32, double a33,
                      double b1, double b2, double b3, double tol,
                      double *x, double *y, double *z)
{
    const double det = mathCalDeterm33(a11, a12, a13, a21, a22, a23, a31, a32, a33);
    if (tol > std::fabs(det))
        return 0;
    *x = mathCalDeterm33(b1, a12, a13, b2, a22, a23, b3, a32, a33) / det;
    *y = mathCalDeterm33(a11, b1, a13, a21, b2, a23, a31, b3, a33) / det;
    *z = mathCalDeterm33(a11, a12, b1, a21, a22, b2, a31, a32, b3) / det;
    return 1;
}

int mathSolHomoEqua22(double a, double b, double c, double d, double tol, double v[2])
{
    v[0] = 0.0;
    v[1] = 0.0;
    const double r1 = std::sqrt(a * a + b * b);
    const double r2 = std::sqrt(c * c + d * d);
    if (tol > r1 && tol > r2)
        return 100; // both equations vanish: every vector solves

    // The solution is perpendicular to the longer row; it solves the
    // system when the other row is (nearly) parallel to it.
    if (r1 > r2) {
        v[0] = -b / r1;
        v[1] = a / r1;
        return (std::fabs(c * v[0] + d * v[1]) <= tol) ? 1 : 0;
    }
    v[0] = -d / r2;
    v[1] = c / r2;
    return (std::fabs(a * v[0] + b * v[1]) <= tol) ? 1 : 0;
}

int mathSolExpoEqua(double a, double b, double c, double tol, double t[2])
{
    const double halfPi = 1.5707963267948966;
    const double twoPi = 6.283185307179586;
    // 2 pi - 1e-11: two roots this far apart are one angle seen at both
    // ends of the period.
    const double fullTurn = 6.283185307169586;
    const double zeroAmplitude = 1e-20;

    t[0] = 0.0;
    t[1] = halfPi;

    // a cos t + b sin t = r cos(t - phi)
    const double r = std::sqrt(a * a + b * b);
    if (r < zeroAmplitude)
        return (std::fabs(c) < tol) ? 100 : 0;
    if (std::fabs(c - r) < tol && std::fabs(r + c) < tol)
        return 100;
    if (std::fabs(c / r) > tol / r + 1.0)
        return 0; // the right side lies beyond the amplitude

    const double alpha = mathACos(c / r);
    const double phi = mathSolAngleByCS(a / r, b / r);
    t[0] = mathClamp0PI2(phi + alpha);
    t[1] = mathClamp0PI2(phi + twoPi - alpha);

    // When the midpoint solves too, the two roots are one tangency.
    const double mid = (t[0] + t[1]) / 2.0;
    if (std::fabs(a * std::cos(mid) + b * std::sin(mid) - c) < tol) {
        t[0] = mid;
        t[1] = mid;
        return 1;
    }
    return (std::fabs(t[0] - t[1]) > fullTurn) ? 1 : 2;
}

int mathSolHomoEqua(double a, double b, double c, double tol, double t[2])
{
    // With the double-angle identities the quadratic form becomes
    // ((a - c)/2) cos 2t + (b/2) sin 2t = -(a + c)/2.
    const int count = mathSolExpoEqua((a - c) / 2.0, b / 2.0, -(a + c) / 2.0, tol, t);
    if (count == 100)
        return count;
    for (int i = 0; i < count; ++i)
        t[i] /= 2.0;
    return count;
}

int mathDecVec(const double v[3], const double e1[3], const double e2[3],
               const double e3[3], double *c1, double *c2, double *c3)
{
    // Columns are the three directions.
    const double M[9] = {e1[0], e2[0], e3[0],
                         e1[1], e2[1], e3[1],
                         e1[2], e2[2], e3[2]};
    double c[3];
    if (mathSolMatxEqua(3, 3, M, v, c) != 1)
        return 0;
    *c1 = c[0];
    *c2 = c[1];
    *c3 = c[2];
    return 1;
}
