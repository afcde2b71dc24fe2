// Common point of three planes.
#include "korvex/capi.h"
#include "geometry/vec3.hpp"

using korvex_geometry::dot3;

int mathInt3Pln(const double p1[3], const double n1[3], const double p2[3], const double n2[3],
                const double p3[3], const double n3[3], double tol, double x[3])
{
    // The result does not tell a singular system from a solved one: hosts
    // test the point itself, and they expect this code either way.
    const int solverDegenerate = 800;
    const int result = 801;
    const double h1 = dot3(n1, p1);
    const double h2 = dot3(n2, p2);
    const double h3 = dot3(n3, p3);
    const int solved = mathSolLineEqua33(n1[0], n1[1], n1[2],
                                         n2[0], n2[1], n2[2],
                                         n3[0], n3[1], n3[2],
                                         h1, h2, h3, tol * tol, &x[0], &x[1], &x[2]);
    return solved == solverDegenerate ? solverDegenerate : result;
}
