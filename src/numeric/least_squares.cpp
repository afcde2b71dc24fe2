// Small least-squares problems in space: a scalar multiple, a combination
// of two vectors, and the closest points of two lines.
#include "korvex/capi.h"

#include <cmath>

namespace {

double dot3(const double a[3], const double b[3])
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

} // namespace

int mathSolLeastSquare31(const double a[3], const double b[3], double *x)
{
    const double zeroSquare = 1e-100;
    const double s = dot3(a, a);
    *x = (s > zeroSquare) ? dot3(a, b) / s : 0.0;
    return 1;
}

int mathSolLeastSquare32(const double a[3], const double b[3], const double c[3], double x[2])
{
    const double detGuard = 1e-100;
    const double zeroSquare = 1e-50;
    const double aa = dot3(a, a);
    const double ab = dot3(a, b);
    const double bb = dot3(b, b);
    const double ac = dot3(a, c);
    const double bc = dot3(b, c);
    if (mathSolLineEqua22(aa, ab, ab, bb, ac, bc, detGuard, &x[0], &x[1]) == 1)
        return 1;

    // a and b are parallel: any split along them fits equally well; share
    // it in proportion to their lengths.
    if (bb < zeroSquare) {
        x[0] = 0.0;
        x[1] = 0.0;
        return 1;
    }
    double rho = std::sqrt(std::fabs(aa / bb));
    if (bc * ac < 0.0)
        rho = -rho; // a points against b
    x[1] = bc / bb / (rho * rho + 1.0);
    x[0] = x[1] * rho;
    return 1;
}

int mathSolLeastSquareLin(const double P1[3], const double d1[3], const double P2[3],
                          const double d2[3], double t[2])
{
    const double parallelGuard = 1e-11;
    const double denominatorGuard = 1e-100;

    double n[3];
    mathVProduct(d1, d2, n);
    const double len = std::sqrt(dot3(n, n));
    if (len < parallelGuard) {
        // Parallel lines: take the midpoint of the two base points.
        const double mid[3] = {(P1[0] + P2[0]) / 2.0, (P1[1] + P2[1]) / 2.0,
                               (P1[2] + P2[2]) / 2.0};
        const double m1[3] = {mid[0] - P1[0], mid[1] - P1[1], mid[2] - P1[2]};
        const double m2[3] = {mid[0] - P2[0], mid[1] - P2[1], mid[2] - P2[2]};
        t[0] = dot3(m1, d1);
        t[1] = dot3(m2, d2);
        return 1;
    }
    for (int i = 0; i < 3; ++i)
        n[i] /= len;
    const double w[3] = {P1[0] - P2[0], P1[1] - P2[1], P1[2] - P2[2]};

    // The connecting segment is along n; m1 is normal to the plane spanned
    // by line 2 and n, m2 to that spanned by line 1 and n.
    double m1[3];
    mathVProduct(d2, n, m1);
    const double den1 = dot3(m1, d1);
    if (std::fabs(den1) < denominatorGuard)
        return 0;
    t[0] = -dot3(m1, w) / den1;

    // t0 stays written when the second denominator vanishes: with huge,
    // nearly parallel directions the normal n is mostly rounding noise and
    // the two denominators need not agree.
    double m2[3];
    mathVProduct(d1, n, m2);
    const double den2 = dot3(m2, d2);
    if (std::fabs(den2) < denominatorGuard)
        return 0;
    t[1] = dot3(m2, w) / den2;
    return 1;
}
