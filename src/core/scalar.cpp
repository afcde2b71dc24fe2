// Scalar helpers: 16-bit packing, clamping, random numbers, swaps and the
// guarded inverse trigonometric functions.
#include "korvex/capi.h"

#include <cmath>
#include <cstdlib>

namespace {

const unsigned int lowMask = 0xFFFFu;
const unsigned int highMask = 0xFFFF0000u;

// Arguments beyond 1 - 1e-12 are taken as the end values, so cosines that
// rounding pushed just outside [-1, 1] give 0 or pi instead of NaN.
const double arcGuard = 0.999999999999;

const double pi = 3.141592653589793;
const double halfPi = 1.5707963267948966;
const double twoPi = 6.283185307179586;

} // namespace

unsigned int mathGetHigh16(unsigned int value)
{
    return value >> 16;
}

unsigned int mathGetLow16(unsigned int value)
{
    return value & lowMask;
}

unsigned int mathSetHigh16(unsigned int value, unsigned int high)
{
    return ((high & lowMask) << 16) | (value & lowMask);
}

unsigned int mathSetLow16(unsigned int value, unsigned int low)
{
    return (value & highMask) | (low & lowMask);
}

unsigned int mathMerge16(unsigned int high, unsigned int low)
{
    return ((high & lowMask) << 16) | (low & lowMask);
}

double mathClamp(double low, double high, double x)
{
    // The lower bound wins for an inverted range.
    if (low > x)
        return low;
    if (x <= high)
        return x;
    return high;
}

double mathClamp01(double x)
{
    if (x < 0.0)
        return 0.0;
    if (x > 1.0)
        return 1.0;
    return x;
}

double mathClamp0PI2(double angle)
{
    if (angle >= 0.0 && angle <= twoPi)
        return angle;
    const double r = angle - std::floor(angle / twoPi) * twoPi;
    // Only rounding can leave r outside the full turn.
    if (r < 0.0)
        return 0.0;
    if (r > twoPi)
        return twoPi;
    return r;
}

double mathClampPeriodic(double low, double high, double x)
{
    // Below this the range has no usable period.
    const double minPeriod = 1e-10;
    const double period = high - low;
    if (period < minPeriod)
        return (low + high) * 0.5;
    if (x >= low && x <= high)
        return x;
    // No final clamp here: callers get the raw reduction, rounding included.
    return x - std::floor((x - low) / period) * period;
}

double mathRand01(void)
{
    const int steps = 10000;
    const double step = 0.0001;
    return (std::rand() % steps) * step;
}

void mathSwapInt(int *a, int *b)
{
    const int t = *a;
    *a = *b;
    *b = t;
}

void mathSwapDbl(double *a, double *b)
{
    const double t = *a;
    *a = *b;
    *b = t;
}

void mathSwapDblN(double *a, double *b, int n)
{
    for (int i = 0; i < n; ++i) {
        const double t = a[i];
        a[i] = b[i];
        b[i] = t;
    }
}

void mathSwapPnt2D(double a[2], double b[2])
{
    mathSwapDblN(a, b, 2);
}

void mathSwapPnt3D(double a[3], double b[3])
{
    mathSwapDblN(a, b, 3);
}

double mathACos(double x)
{
    if (x > arcGuard)
        return 0.0;
    if (x < -arcGuard)
        return pi;
    return std::acos(x);
}

double mathASin(double x)
{
    if (x > arcGuard)
        return halfPi;
    if (x < -arcGuard)
        return -halfPi;
    return std::asin(x);
}

double mathSolAngleByCS(double c, double s)
{
    // Both parts vanishing: no direction, the angle is taken as 0.
    const double minMagnitude = 1e-20;
    if (std::fabs(c) + std::fabs(s) < minMagnitude)
        return 0.0;
    const double a = std::atan2(s, c);
    return a < 0.0 ? a + twoPi : a;
}
