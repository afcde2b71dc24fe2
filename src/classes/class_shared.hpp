// Helpers shared by the point and box classes. Private to the library.
#ifndef KORVEX_SRC_CLASSES_CLASS_SHARED_HPP
#define KORVEX_SRC_CLASSES_CLASS_SHARED_HPP

#include <cmath>

namespace korvex_classes {

// Angles of the class interface are measured against single-precision
// constants: these are the float values of 2*pi and pi/2, widened to double.
const double kTwoPiF = 6.2831854820251465;
const double kHalfPiF = 1.5707963705062866;

// Shortest vector that Unit() still normalises; fixed, independent of the
// global tolerances.
const double kUnitMinLength = 1e-9;

// Bound on the cosine of two unit vectors that counts as one direction.
// Fixed on purpose: it does not follow the parallelism tolerance.
const double kSameDirectionCos = 0.9999;

// Widens the interval [lo, hi] of one box axis so that it holds v.
inline void stretchAxis(float& lo, float& hi, float v)
{
    if (lo > v)
        lo = v;
    if (v > hi)
        hi = v;
}

// Anticlockwise angle of the planar vector (x, y), measured from the axis at
// angle `axis` (0 for the x axis, pi/2 for the y axis), in [0, 2*pi].
// Angles within tol of 0 snap to 0 and within tol of 2*pi snap to 2*pi,
// both bounds inclusive; the planar and the spatial classes pass different
// tolerances.
inline double axisAngle(float x, float y, double axis, double tol)
{
    double a = static_cast<double>(std::atan2(y, x)) - axis;
    if (a < 0.0)
        a += kTwoPiF;
    if (std::fabs(a) <= tol)
        a = 0.0;
    if (std::fabs(a - kTwoPiF) <= tol)
        return kTwoPiF;
    return a;
}

// Cosine of the angle between a and b from their unit copies, for the
// direction predicates. Returns false when either vector is shorter than
// minLength (no direction to compare).
template <class Point>
bool unitCosine(Point a, Point b, double minLength, float& cosine)
{
    const float lenA = a.Unit();
    const float lenB = b.Unit();
    if (static_cast<double>(lenA) < minLength || static_cast<double>(lenB) < minLength)
        return false;
    cosine = a.Iproduct(b);
    return true;
}

// Four floats stored in argument order: the body of point_4d::Set and of
// Box2D::DefineBox from four values.
inline void storeFour(float& d0, float& d1, float& d2, float& d3,
                      float v0, float v1, float v2, float v3)
{
    d0 = v0;
    d1 = v1;
    d2 = v2;
    d3 = v3;
}

// Point test of the planar boxes with a tolerance, in the precision of T.
// The upper x bound is inclusive and the upper y bound exclusive; hosts rely
// on that asymmetry, so it stays.
template <class T>
int inFlatBox(T xmin, T ymin, T xmax, T ymax, T px, T py, T tol)
{
    return (xmin - tol <= px && px <= xmax + tol &&
            ymin - tol <= py && py < ymax + tol) ? 1 : 0;
}

// Closed overlap of the intervals [amin, amax] and [bmin, bmax].
inline bool axisMeets(float amin, float amax, float bmin, float bmax)
{
    const float lo = amin > bmin ? amin : bmin;
    const float hi = amax < bmax ? amax : bmax;
    return !(lo > hi);
}

// Overlap of two intervals allowing a gap of at most tol between them.
inline bool axisNear(float amin, float amax, float bmin, float bmax, float tol)
{
    const float lo = amin > bmin ? amin : bmin;
    const float hi = amax < bmax ? amax : bmax;
    return !(hi - lo < -tol);
}

// Segment-against-box test of both box classes. It has never been more than
// a placeholder: it reports a possible intersection for any input.
inline int segmentMayCross()
{
    return 1;
}

} // namespace korvex_classes

#endif // KORVEX_SRC_CLASSES_CLASS_SHARED_HPP
