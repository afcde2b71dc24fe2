// Lines in space: distances, projections, directions and parameters.
#include "korvex/capi.h"
#include "geometry/vec3.hpp"

#include <cmath>

using korvex_geometry::dot3;

namespace {

// Below this length two points do not define a direction for the distance
// and projection functions.
const double kMinDirLength = 1e-10;

} // namespace

double mathDistPntLin(const double p[3], const double l[3], const double d[3])
{
    double foot[3];
    mathPrjPntLin(p, l, d, foot);
    return mathDist(foot, p);
}

double mathDistPntLinEx(const double p[3], const double a[3], const double b[3])
{
    double e[3];
    mathGetVec(a, b, e);
    if (kMinDirLength > mathVecLen(e))
        return mathDist(p, a); // a and b coincide: distance to the point a
    double w[3];
    mathGetVec(p, a, w);
    const double we = dot3(w, e);
    // Squared distance by Pythagoras; rounding can push it just below zero.
    return std::sqrt(std::fabs(dot3(w, w) - we * we / dot3(e, e)));
}

int mathChkPntLin(const double p[3], const double a[3], const double b[3], double tol)
{
    return tol > mathDistPntLinEx(p, a, b) ? 1 : 0;
}

int mathGetLinDirLen(const double a[3], const double b[3], double tol, double d[3], double *len)
{
    // Coincident points are impossible geometry here, hence -4 rather than
    // the 0 of the planar form.
    const int degenerate = -4;
    double e[3];
    mathGetVec(a, b, e);
    const double length = mathVecLen(e);
    d[0] = e[0];
    d[1] = e[1];
    d[2] = e[2];
    *len = length;
    if (tol > length)
        return degenerate;
    d[0] /= length;
    d[1] /= length;
    d[2] /= length;
    return 1;
}

void mathPrjPntLin(const double p[3], const double l[3], const double d[3], double q[3])
{
    const double t = (p[0] - l[0]) * d[0] + (p[1] - l[1]) * d[1] + (p[2] - l[2]) * d[2];
    const double l0 = l[0], l1 = l[1], l2 = l[2];
    const double d0 = d[0], d1 = d[1], d2 = d[2];
    q[0] = l0 + t * d0;
    q[1] = l1 + t * d1;
    q[2] = l2 + t * d2;
}

int mathPrjPntLinEx(const double p[3], const double a[3], const double b[3], double q[3])
{
    double pa[3];
    mathGetVec(a, p, pa);
    const double a0[3] = {a[0], a[1], a[2]};
    double u[3];
    mathGetVec(a, b, u);
    if (!mathUniVec(u, kMinDirLength)) {
        // a and b coincide: the only point the line offers is a.
        mathCpyPnt(a0, q);
        return 0;
    }
    mathAddVec(a0, u, dot3(pa, u), q);
    return 1;
}

void mathPrjPntLineEx(const double p[3], const double a[3], const double b[3], double q[3], double *t)
{
    double pa[3];
    mathGetVec(a, p, pa);
    const double a0[3] = {a[0], a[1], a[2]};
    double u[3];
    mathGetVec(a, b, u);
    const double length = mathVecLen(u);
    if (kMinDirLength > length) {
        // a and b coincide: the foot is a, at parameter 0.
        *t = 0.0;
        mathCpyPnt(a0, q);
        return;
    }
    u[0] /= length;
    u[1] /= length;
    u[2] /= length;
    const double s = dot3(pa, u);
    mathAddVec(a0, u, s, q);
    *t = s / length;
}

double mathCalPntLinPara(const double p[3], const double l[3], const double d[3])
{
    // A unit vector has at least one component above 1/sqrt(3) in size, so
    // this threshold always finds a well-conditioned axis.
    const double minComponent = 0.5;
    for (int k = 0; k < 3; ++k) {
        if (std::fabs(d[k]) > minComponent)
            return (p[k] - l[k]) / d[k];
    }
    return 0.0;
}

double mathCalPntLinSegPara(const double p[3], const double a[3], const double b[3])
{
    const double minDiff = 1e-8;
    // The kept difference m stays signed and a later axis wins whenever its
    // absolute difference exceeds m; a negative difference on x or y is
    // therefore always replaced by the next axis. Hosts rely on this choice.
    const double dx = b[0] - a[0];
    double m = std::fabs(dx) > 0.0 ? dx : 0.0;
    int axis = 0;
    for (int k = 1; k < 3; ++k) {
        const double dk = b[k] - a[k];
        if (std::fabs(dk) > m) {
            m = dk;
            axis = k;
        }
    }
    if (std::fabs(m) > minDiff)
        return (p[axis] - a[axis]) / m;
    return 0.0;
}
