// Planar vector algebra on double[2] arrays.
#include "korvex/capi.h"

#include <cmath>

namespace {

const double pi = 3.141592653589793;
const double twoPi = 6.283185307179586;

// Legs shorter than this do not define a direction at a vertex.
const double legTol = 1e-10;

} // namespace

int mathUniVec2D(double v[2], double tol)
{
    const double len = std::sqrt(v[0] * v[0] + v[1] * v[1]);
    if (tol > len) {
        v[0] = 0.0;
        v[1] = 0.0;
        return 0;
    }
    v[0] /= len;
    v[1] /= len;
    return 1;
}

double mathVecLen2D(const double v[2])
{
    return std::sqrt(v[0] * v[0] + v[1] * v[1]);
}

double mathOProduct2D(const double a[2], const double b[2])
{
    return a[0] * b[0] + a[1] * b[1];
}

double mathVProduct2D(const double a[2], const double b[2])
{
    return a[0] * b[1] - a[1] * b[0];
}

void mathRevVec2D(double v[2])
{
    v[0] = -v[0];
    v[1] = -v[1];
}

void mathGetVec2D(const double p0[2], const double p1[2], double out[2])
{
    const double dx = p1[0] - p0[0];
    const double dy = p1[1] - p0[1];
    out[0] = dx;
    out[1] = dy;
}

int mathGetVecByPP2D(const double p0[2], const double p1[2], double tol, double out[2])
{
    const double dx = p1[0] - p0[0];
    const double dy = p1[1] - p0[1];
    out[0] = dx;
    out[1] = dy;
    const double len = std::sqrt(dx * dx + dy * dy);
    // Coincident points: the raw difference stays in out.
    if (tol > len)
        return 0;
    out[0] = dx / len;
    out[1] = dy / len;
    return 1;
}

void mathRotVec2D(double angle, const double v[2], double out[2])
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    // v is read again after out[0] is written; out must be another array.
    out[0] = c * v[0] - s * v[1];
    out[1] = s * v[0] + c * v[1];
}

double mathGetAngle2D(const double a[2], const double b[2], double tol)
{
    const double la = std::sqrt(a[0] * a[0] + a[1] * a[1]);
    const double lb = std::sqrt(b[0] * b[0] + b[1] * b[1]);
    if (tol > la || tol > lb)
        return -1.0;
    return mathACos((a[0] * b[0] + a[1] * b[1]) / (la * lb));
}

double mathGetAngle2DUnit(const double a[2], const double b[2])
{
    return mathACos(a[0] * b[0] + a[1] * b[1]);
}

double mathGetAngle2DUnitEx(const double a[2], const double b[2])
{
    const double s = a[0] * b[1] - a[1] * b[0];
    const double t = mathASin(s);
    const double c = a[0] * b[0] + a[1] * b[1];
    double r = std::fabs(t);
    // b lies in the half-plane behind a: the angle is obtuse.
    if (c < 0.0)
        r = pi - std::fabs(t);
    // A zero sine counts as clockwise, so opposite vectors give -pi.
    if (s <= 0.0)
        r = -r;
    return r;
}

double mathGetAngleX2D(const double v[2])
{
    const double a = std::atan2(v[1], v[0]);
    return a < 0.0 ? a + twoPi : a;
}

double mathGetAngle3P2D(const double p0[2], const double p1[2], const double p2[2])
{
    const double a[2] = {p0[0] - p1[0], p0[1] - p1[1]};
    const double b[2] = {p2[0] - p1[0], p2[1] - p1[1]};
    return mathGetAngle2D(a, b, legTol);
}

double mathGetACWAngle3P2D(const double p0[2], const double p1[2], const double p2[2])
{
    // Failure of the unsigned angle is -1; anything below -0.5 is that.
    const double failed = -0.5;
    const int rightSide = 4;
    const double theta = mathGetAngle3P2D(p0, p1, p2);
    if (theta < failed)
        return theta;
    // p2 to the right of p0 -> p1: the anticlockwise turn exceeds a half turn.
    if (mathChkPntLin2D(p2, p0, p1, legTol) == rightSide)
        return twoPi - theta;
    return theta;
}

double mathGetACWAngle2D(const double a[2], const double b[2])
{
    const double origin[2] = {0.0, 0.0};
    return mathGetACWAngle3P2D(a, origin, b);
}
