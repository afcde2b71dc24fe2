// Point functions on double[2] and double[3] arrays: initialisation,
// copying, distances, combinations and Cartesian transformations.
#include "korvex/capi.h"

#include <cmath>

namespace {

// Weights closer to zero than this stand for points at infinity.
const double weightTol = 1e-10;

} // namespace

int mathInitPnt2D(double p[2])
{
    p[0] = 0.0;
    p[1] = 0.0;
    return 0;
}

void mathInitPnt(double p[3])
{
    p[0] = 0.0;
    p[1] = 0.0;
    p[2] = 0.0;
}

void mathCpyPnt2D(const double source[2], double target[2])
{
    target[0] = source[0];
    target[1] = source[1];
}

void mathCpyPnt2DTo3D(const double source[2], double target[3])
{
    target[0] = source[0];
    target[1] = source[1];
    target[2] = 0.0;
}

void mathCpyPnt(const double source[3], double target[3])
{
    target[0] = source[0];
    target[1] = source[1];
    target[2] = source[2];
}

void mathCpyPnt4(const double source[4], double target[4])
{
    target[0] = source[0];
    target[1] = source[1];
    target[2] = source[2];
    target[3] = source[3];
}

double mathDist2D(const double p[2], const double q[2])
{
    const double dx = p[0] - q[0];
    const double dy = p[1] - q[1];
    return std::sqrt(dx * dx + dy * dy);
}

double mathDist(const double p[3], const double q[3])
{
    const double dx = p[0] - q[0];
    const double dy = p[1] - q[1];
    const double dz = p[2] - q[2];
    return std::sqrt(dx * dx + dy * dy + dz * dz);
}

double mathDistXD(int n, const double *p, const double *q)
{
    double sum = 0.0;
    for (int i = 0; i < n; ++i) {
        const double d = p[i] - q[i];
        sum += d * d;
    }
    return std::sqrt(std::fabs(sum));
}

double mathDist3H(const double p[4], const double q[4])
{
    // Signed test: a negative weight also gives 0, which callers rely on.
    if (p[3] < weightTol || q[3] < weightTol)
        return 0.0;
    const double a[3] = {p[0] / p[3], p[1] / p[3], p[2] / p[3]};
    const double b[3] = {q[0] / q[3], q[1] / q[3], q[2] / q[3]};
    return mathDist(a, b);
}

void mathMidPnt2D(const double p[2], const double q[2], double out[2])
{
    const double x = (p[0] + q[0]) * 0.5;
    const double y = (p[1] + q[1]) * 0.5;
    out[0] = x;
    out[1] = y;
}

void mathMidPnt(const double p[3], const double q[3], double out[3])
{
    const double x = (p[0] + q[0]) * 0.5;
    const double y = (p[1] + q[1]) * 0.5;
    const double z = (p[2] + q[2]) * 0.5;
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

double *mathMixPnt2D(const double p[2], const double q[2], double s, double t, double out[2])
{
    const double x = s * p[0] + t * q[0];
    const double y = s * p[1] + t * q[1];
    out[0] = x;
    out[1] = y;
    return out;
}

double *mathMixPnt(const double p[3], const double q[3], double s, double t, double out[3])
{
    const double x = s * p[0] + t * q[0];
    const double y = s * p[1] + t * q[1];
    const double z = s * p[2] + t * q[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
    return out;
}

double *mathMixP4D(double s, double t, const double p[4], const double q[4], double out[4])
{
    double r[4];
    for (int i = 0; i < 4; ++i)
        r[i] = s * p[i] + t * q[i];
    mathCpyPnt4(r, out);
    return out;
}

void mathAddVec(const double p[3], const double v[3], double t, double out[3])
{
    const double x = p[0] + t * v[0];
    const double y = p[1] + t * v[1];
    const double z = p[2] + t * v[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

int mathGetPnt3(const double h[3], double out[2])
{
    const double w = h[2];
    if (std::fabs(w) < weightTol)
        return 0;
    const double x = h[0] / w;
    const double y = h[1] / w;
    out[0] = x;
    out[1] = y;
    return 1;
}

int mathGetPnt4(const double h[4], double out[3])
{
    const double w = h[3];
    if (std::fabs(w) < weightTol)
        return 0;
    const double x = h[0] / w;
    const double y = h[1] / w;
    const double z = h[2] / w;
    out[0] = x;
    out[1] = y;
    out[2] = z;
    return 1;
}

void mathRotPnt2D(const double c[2], double angle, const double p[2], double out[2])
{
    const double cs = std::cos(angle);
    const double sn = std::sin(angle);
    const double dx = p[0] - c[0];
    const double dy = p[1] - c[1];
    const double x = c[0] + (cs * dx - sn * dy);
    const double y = c[1] + (sn * dx + cs * dy);
    out[0] = x;
    out[1] = y;
}

void mathRotPnt(const double d[3], const double q[3], double angle, const double p[3], double out[3])
{
    // Foot of p on the axis, the radius from it and the radius turned a
    // quarter about the axis span the circle that p travels on.
    double foot[3];
    mathPrjPntLin(p, q, d, foot);
    const double r[3] = {p[0] - foot[0], p[1] - foot[1], p[2] - foot[2]};
    double w[3];
    mathVProduct(d, r, w);
    const double cs = std::cos(angle);
    const double sn = std::sin(angle);
    for (int i = 0; i < 3; ++i)
        out[i] = foot[i] + cs * r[i] + sn * w[i];
}

void mathMirPnt(const double q[3], const double n[3], const double p[3], double out[3])
{
    const double dist = n[0] * (p[0] - q[0]) + n[1] * (p[1] - q[1]) + n[2] * (p[2] - q[2]);
    const double k = 2.0 * dist;
    const double x = p[0] - k * n[0];
    const double y = p[1] - k * n[1];
    const double z = p[2] - k * n[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

void mathSymPnt(const double c[3], const double p[3], double out[3])
{
    // Every coordinate is mirrored about the centre's x: hosts depend on this
    // formula. c.x is read for each coordinate, so out must not be c.
    out[0] = 2.0 * c[0] - p[0];
    out[1] = 2.0 * c[0] - p[1];
    out[2] = 2.0 * c[0] - p[2];
}

void mathScalePnt(const double c[3], const double f[3], const double p[3], double out[3])
{
    const double x = (p[0] - c[0]) * f[0] + c[0];
    const double y = (p[1] - c[1]) * f[1] + c[1];
    const double z = (p[2] - c[2]) * f[2] + c[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}
