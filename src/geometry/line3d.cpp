// Lines and planes in space: distances, projections, intersections.
#include "korvex/capi.h"

void mathPrjPntLin(const double p[3], const double l[3], const double d[3], double q[3])
{
    const double t = (p[0] - l[0]) * d[0] + (p[1] - l[1]) * d[1] + (p[2] - l[2]) * d[2];
    const double l0 = l[0], l1 = l[1], l2 = l[2];
    const double d0 = d[0], d1 = d[1], d2 = d[2];
    q[0] = l0 + t * d0;
    q[1] = l1 + t * d1;
    q[2] = l2 + t * d2;
}
