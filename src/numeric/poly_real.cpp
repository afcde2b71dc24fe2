// Closed-form real roots of quadratics, cubics and quartics, and the
// trigonometric equation a cos t + b cos t sin t + c sin t = 0 built on them.
#include "korvex/capi.h"

#include <cmath>

namespace {

const double negligible = 1e-20; // leading coefficient counts as zero below this share
const int identity = 100;        // every x solves

// Cube root of a non-negative value. The exponent is short of a third in the
// fourteenth digit; the roots of the cubic solver are calibrated with it.
double cubeRootOfPositive(double v)
{
    const double third = 0.33333333333333;
    return std::pow(v, third);
}

} // namespace

int mathSolQuadEqua(double a, double b, double c, double tol, double x[2])
{
    x[0] = 1.0;
    x[1] = 1.0;
    // An all-zero equation also takes this branch: 0 > 0 alone would send it
    // on to a division by zero.
    if (a == 0.0 || (std::fabs(c) + std::fabs(b)) * negligible > std::fabs(a)) {
        if (std::fabs(b) > negligible) {
            x[0] = x[1] = -c / b;
            return 1;
        }
        return std::fabs(c) < tol ? identity : 0;
    }

    const double vertexValue = c - b * b / (4.0 * a);
    x[0] = x[1] = -b / (2.0 * a);
    if (a > 0.0) {
        if (vertexValue > tol)
            return 0; // opens upwards with its vertex above the axis
        if (vertexValue > -tol)
            return 1; // vertex touches the axis: double root
    } else {
        if (vertexValue < -tol)
            return 0;
        if (vertexValue < tol)
            return 1;
    }

    // Two roots; the larger-magnitude one first, the other from the product
    // of the roots, which avoids cancellation.
    const double s = std::sqrt(std::fabs(4.0 * a * vertexValue));
    const double q = b > 0.0 ? -b - s : s - b;
    x[0] = q / (2.0 * a);
    x[1] = 2.0 * c / q;
    return 2;
}

int mathSolTriaEqua(const double coef[4], double tol, double x[3])
{
    const double a = coef[0];
    const double b = coef[1];
    const double c = coef[2];
    const double d = coef[3];
    if (a == 0.0 || (std::fabs(b) + std::fabs(c) + std::fabs(d)) * negligible > std::fabs(a))
        return mathSolQuadEqua(b, c, d, tol, x);

    // Depressed cubic t^3 + 3P t + Q with x = t - h.
    const double h = b / (3.0 * a);
    const double ca = c / a;
    const double P = ca / 3.0 - h * h;
    const double Q = 2.0 * h * h * h - ca * h + d / a;
    const double disc = P * P * P + Q * Q / 4.0;
    const double discZero = 1e-30;
    const double sqrt3 = 1.73205080756888;

    if (std::fabs(disc) < discZero) {
        // A simple and a double root. For a pure cube P = Q = 0 and the
        // quotient below is 0/0.
        double u, v;
        if (Q > 0.0) {
            v = -cubeRootOfPositive(Q / 2.0);
            u = -P / v;
        } else {
            u = cubeRootOfPositive(-Q / 2.0);
            v = -P / u;
        }
        x[0] = u + v - h;
        x[1] = x[2] = -(u + v) / 2.0 - h;
        return 3;
    }
    if (disc > 0.0) {
        // One real root; the cube root is taken of the larger-magnitude sum.
        const double s = std::sqrt(disc);
        double u, v;
        if (Q > 0.0) {
            u = -cubeRootOfPositive(Q / 2.0 + s);
            v = -P / u;
        } else {
            v = cubeRootOfPositive(s - Q / 2.0);
            u = -P / v;
        }
        x[0] = u + v - h;
        return 1;
    }

    // Three distinct real roots: trigonometric form.
    const double theta = std::atan2(std::sqrt(std::fabs(disc)), -Q / 2.0);
    const double r = std::sqrt(std::fabs(P));
    const double ct = std::cos(theta / 3.0);
    const double st = std::sin(theta / 3.0);
    x[0] = 2.0 * r * ct - h;
    x[1] = (-ct - sqrt3 * st) * r - h;
    x[2] = (sqrt3 * st - ct) * r - h;
    return 3;
}

int mathSolQuarEqua(const double coef[5], double tol, double x[4])
{
    const double a = coef[0];
    if (a == 0.0 || (std::fabs(coef[1]) + std::fabs(coef[2]) + std::fabs(coef[3]) +
                     std::fabs(coef[4])) * negligible > std::fabs(a))
        return mathSolTriaEqua(coef + 1, tol, x);

    const double B = coef[1] / a;
    const double C = coef[2] / a;
    const double D = coef[3] / a;
    const double E = coef[4] / a;
    x[0] = 0.0;

    // Resolvent cubic: its largest root y splits the quartic into two
    // quadratic factors x^2 + (B +- R)/2 x + y +- k.
    const double resolventTol = 1e-10;
    const double resolvent[4] = {8.0, -4.0 * C, 2.0 * B * D - 8.0 * E, (4.0 * C - B * B) * E - D * D};
    double y3[3];
    const int ny = mathSolTriaEqua(resolvent, resolventTol, y3);
    if (ny == 0)
        return 0;
    const double noRoot = -1e10;
    const double noRootLimit = -9999999999.5; // 0.5 above the start value
    double y = noRoot;
    for (int i = 0; i < ny && i < 3; ++i)
        if (y3[i] > y)
            y = y3[i];
    if (y < noRootLimit)
        return 0;

    const double R = std::sqrt(std::fabs(8.0 * y + B * B - 4.0 * C));
    const double splitZero = 1e-32;
    if (R < splitZero)
        return 0; // the two factors would share their linear term: not resolved here
    const double k = (y * B - D) / R;
    const double factorTol = tol / std::fabs(a);
    const int k1 = mathSolQuadEqua(1.0, (B + R) / 2.0, y + k, factorTol, x);
    if (k1 == identity)
        return identity;
    const int k2 = mathSolQuadEqua(1.0, (B - R) / 2.0, y - k, factorTol, x + k1);
    if (k2 == identity)
        return identity;
    return k1 + k2;
}

int mathSolAngleByCCSS(double a, double b, double c, double tol, double t[4])
{
    const double pi = 3.141592653589793;
    const double twoPi = 6.283185307179586;
    // The substitution u = tan(t/2) covers |t| <= pi/2 (slightly beyond, so
    // that +-pi/2 is kept here); u = cot(t/2) with t = pi - 2 atan(u) covers
    // the rest, with a range just short of pi/2 so nothing is counted twice.
    const double nearRange = 1.0000000001;
    const double farRange = 0.9999999999;
    const double quarTol = 2.0 * tol;
    const int maxAngles = 4;

    double u[4];
    int count = 0;

    const double nearCoef[5] = {a, 2.0 * (b - c), 0.0, -2.0 * (b + c), -a};
    int nu = mathSolQuarEqua(nearCoef, quarTol, u);
    if (nu == identity) {
        t[0] = 0.0;
        return identity;
    }
    for (int i = 0; i < nu; ++i) {
        if (std::fabs(u[i]) < nearRange) {
            if (count == maxAngles)
                return maxAngles;
            double angle = 2.0 * std::atan(u[i]);
            if (angle < 0.0)
                angle += twoPi;
            t[count++] = angle;
        }
    }

    const double farCoef[5] = {a, 2.0 * (b + c), 0.0, -2.0 * (b - c), -a};
    nu = mathSolQuarEqua(farCoef, quarTol, u);
    if (nu == identity) {
        t[0] = 0.0;
        return identity;
    }
    for (int i = 0; i < nu; ++i) {
        if (std::fabs(u[i]) < farRange) {
            if (count == maxAngles)
                return maxAngles;
            t[count++] = pi - 2.0 * std::atan(u[i]);
        }
    }
    return count;
}
