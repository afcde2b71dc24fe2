// Spatial vector algebra on double[3] arrays: products, normalisation,
// direction tests, rotation and the angle functions.
#include "korvex/capi.h"

#include <cmath>

namespace {

const double halfPi = 1.5707963267948966;
const double pi = 3.141592653589793;
const double twoPi = 6.283185307179586;

// Fixed length tolerance of the functions that normalise internally.
const double unitTol = 1e-10;

// Guard of the divisions by a length or step that the caller supplies.
const double divGuard = 1e-20;

double length3(const double v[3])
{
    return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
}

double dot3(const double a[3], const double b[3])
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

} // namespace

int mathUniVec(double v[3], double tol)
{
    const double len = length3(v);
    if (tol > len) {
        v[0] = 0.0;
        v[1] = 0.0;
        v[2] = 0.0;
        return 0;
    }
    v[0] /= len;
    v[1] /= len;
    v[2] /= len;
    return 1;
}

double mathVecLen(const double v[3])
{
    return length3(v);
}

double mathOProduct(const double a[3], const double b[3])
{
    return dot3(a, b);
}

double mathWProduct(const double a[3], const double b[3])
{
    // Deliberately not the dot product: y with y, x with z, z with x.
    return a[1] * b[1] + a[0] * b[2] + a[2] * b[0];
}

void mathVProduct(const double a[3], const double b[3], double out[3])
{
    const double x = a[1] * b[2] - a[2] * b[1];
    const double y = a[2] * b[0] - a[0] * b[2];
    const double z = a[0] * b[1] - a[1] * b[0];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

int mathVProductUnit(const double a[3], const double b[3], double out[3])
{
    double n[3];
    mathVProduct(a, b, n);
    // Parallel or zero inputs: no normal, out keeps its old value.
    if (!mathUniVec(n, unitTol))
        return 0;
    out[0] = n[0];
    out[1] = n[1];
    out[2] = n[2];
    return 1;
}

double mathMProduct(const double a[3], const double b[3], const double c[3])
{
    double n[3];
    mathVProduct(a, b, n);
    return dot3(n, c);
}

void mathRevVec(double v[3])
{
    v[0] = -v[0];
    v[1] = -v[1];
    v[2] = -v[2];
}

void mathGetVec(const double p0[3], const double p1[3], double out[3])
{
    const double x = p1[0] - p0[0];
    const double y = p1[1] - p0[1];
    const double z = p1[2] - p0[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

int mathGetVecUnit(const double p0[3], const double p1[3], double out[3])
{
    mathGetVec(p0, p1, out);
    return mathUniVec(out, unitTol);
}

int mathChnVecLen(double v[3], double length)
{
    const double len = length3(v);
    if (len < divGuard)
        return 0;
    const double factor = length / len;
    v[0] *= factor;
    v[1] *= factor;
    v[2] *= factor;
    return 1;
}

void mathRefVec(const double v[3], const double n[3], double out[3])
{
    const double k = 2.0 * dot3(v, n);
    const double x = k * n[0] - v[0];
    const double y = k * n[1] - v[1];
    const double z = k * n[2] - v[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

void mathPrjVecVec(const double v[3], const double u[3], double out[3])
{
    const double k = dot3(v, u);
    const double x = k * u[0];
    const double y = k * u[1];
    const double z = k * u[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
}

int mathIsParallel(const double a[3], const double b[3], double tol)
{
    double n[3];
    mathVProduct(a, b, n);
    return length3(n) < tol ? 1 : 0;
}

int mathIsPerpendicular(const double a[3], const double b[3], double tol)
{
    return std::fabs(dot3(a, b)) < tol ? 1 : 0;
}

int mathChkAng(const double a[3], const double b[3], double tol, int opposite)
{
    double d[3];
    if (opposite) {
        d[0] = a[0] + b[0];
        d[1] = a[1] + b[1];
        d[2] = a[2] + b[2];
    } else {
        d[0] = b[0] - a[0];
        d[1] = b[1] - a[1];
        d[2] = b[2] - a[2];
    }
    return length3(d) < tol ? 1 : 0;
}

void mathRotVecXY(const double x[3], const double y[3], double angle, double out[3])
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const double r0 = c * x[0] + s * y[0];
    const double r1 = c * x[1] + s * y[1];
    const double r2 = c * x[2] + s * y[2];
    out[0] = r0;
    out[1] = r1;
    out[2] = r2;
}

void mathRotVecXZ(const double x[3], const double z[3], double angle, double out[3])
{
    double y[3];
    mathVProduct(z, x, y);
    mathRotVecXY(x, y, angle, out);
}

void mathRotVec(const double d[3], const double q[3], double angle, const double v[3], double out[3])
{
    const double q0 = q[0], q1 = q[1], q2 = q[2];
    const double tip[3] = {q0 + v[0], q1 + v[1], q2 + v[2]};
    double turned[3];
    mathRotPnt(d, q, angle, tip, turned);
    out[0] = turned[0] - q0;
    out[1] = turned[1] - q1;
    out[2] = turned[2] - q2;
}

void mathMirVec(const double q[3], const double n[3], const double v[3], double out[3])
{
    const double q0 = q[0], q1 = q[1], q2 = q[2];
    const double tip[3] = {q0 + v[0], q1 + v[1], q2 + v[2]};
    double mirrored[3];
    mathMirPnt(q, n, tip, mirrored);
    out[0] = mirrored[0] - q0;
    out[1] = mirrored[1] - q1;
    out[2] = mirrored[2] - q2;
}

int mathGetVecMinComSub(int n, const double *a)
{
    if (n < 2)
        return 0;
    int best = 0;
    double bestAbs = std::fabs(a[0]);
    for (int i = 1; i < n; ++i) {
        // Strictly smaller only: ties keep the earlier index.
        const double m = std::fabs(a[i]);
        if (m < bestAbs) {
            bestAbs = m;
            best = i;
        }
    }
    return best;
}

int mathGetXYFromZ(const double z[3], double x[3], double y[3])
{
    x[0] = 0.0;
    x[1] = 0.0;
    x[2] = 0.0;
    // Dropping the smallest component of z and swapping the other two gives
    // the best-conditioned perpendicular.
    switch (mathGetVecMinComSub(3, z)) {
    case 0:
        x[1] = z[2];
        x[2] = -z[1];
        break;
    case 1:
        x[0] = -z[2];
        x[2] = z[0];
        break;
    default:
        x[0] = z[1];
        x[1] = -z[0];
        break;
    }
    if (!mathUniVec(x, unitTol))
        return 0;
    mathVProduct(z, x, y);
    return 1;
}

int mathAdjVecDir(const double p0[3], double dir[3], const double p1[3])
{
    const int degenerate = -4;
    // Within this of perpendicular the direction is left alone.
    const double oppositeTol = 1e-10;
    double d[3];
    mathGetVec(p0, p1, d);
    if (!mathUniVec(d, unitTol))
        return degenerate;
    if (dot3(d, dir) < -oppositeTol)
        mathRevVec(dir);
    return 1;
}

int mathAngleBisector(const double a[3], const double b[3], double out[3])
{
    const int degenerate = -4;
    const double x = a[0] + b[0];
    const double y = a[1] + b[1];
    const double z = a[2] + b[2];
    out[0] = x;
    out[1] = y;
    out[2] = z;
    // Opposite directions: no bisector, out is left zeroed.
    return mathUniVec(out, unitTol) ? 1 : degenerate;
}

double mathGetAngle(const double a[3], const double b[3], double tol)
{
    const double la = length3(a);
    const double lb = length3(b);
    if (tol > la || tol > lb)
        return -1.0;
    return mathACos(dot3(a, b) / (la * lb));
}

double mathGetAngleUnit(const double a[3], const double b[3])
{
    return mathACos(dot3(a, b));
}

double mathGetAcuteAngleUnit(const double a[3], const double b[3])
{
    const double theta = mathGetAngleUnit(a, b);
    return theta > halfPi ? pi - theta : theta;
}

double mathGetAngle3P(const double p0[3], const double p1[3], const double p2[3])
{
    double a[3];
    double b[3];
    mathGetVec(p1, p0, a);
    mathGetVec(p1, p2, b);
    return mathGetAngle(a, b, unitTol);
}

double mathGetRAngleXY(const double x[3], const double y[3], const double v[3])
{
    const double a = std::atan2(dot3(v, y), dot3(v, x));
    return a < 0.0 ? a + twoPi : a;
}

double mathGetRAngleXZ(const double x[3], const double z[3], const double v[3])
{
    // Stays zero when z and x are parallel: the angle then only tells the
    // side of v along x.
    double y[3] = {0.0, 0.0, 0.0};
    mathVProductUnit(z, x, y);
    return mathGetRAngleXY(x, y, v);
}

int mathNumDer(const double p0[3], const double p1[3], double h, double out[3])
{
    if (std::fabs(h) < divGuard)
        return 0;
    const double x = (p1[0] - p0[0]) / h;
    const double y = (p1[1] - p0[1]) / h;
    const double z = (p1[2] - p0[2]) / h;
    out[0] = x;
    out[1] = y;
    out[2] = z;
    return 1;
}
