// Inline points and a coordinate comparison shared by the geometry tests.
#ifndef KORVEX_TESTS_GEOMETRY_CHECKS_HPP
#define KORVEX_TESTS_GEOMETRY_CHECKS_HPP

#include <gtest/gtest.h>

#include <initializer_list>

// Points and directions written inline where a double[2] or double[3] is
// expected, e.g. f(P3{1, 2, 3}).
struct P2 {
    double v[2];
    operator const double *() const { return v; }
};
struct P3 {
    double v[3];
    operator const double *() const { return v; }
};

// Compares got[0 .. want.size() - 1] with want; tol 0 asks for exact values.
inline void expectNear(const double *got, std::initializer_list<double> want, double tol = 1e-12)
{
    int i = 0;
    for (double w : want) {
        EXPECT_NEAR(got[i], w, tol) << "coordinate " << i;
        ++i;
    }
}

#endif
