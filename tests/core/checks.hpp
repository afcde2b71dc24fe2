// Angle constants and a coordinate comparison shared by the core tests.
#ifndef KORVEX_TESTS_CORE_CHECKS_HPP
#define KORVEX_TESTS_CORE_CHECKS_HPP

#include <gtest/gtest.h>

#include <initializer_list>

const double kPi = 3.141592653589793;
const double kHalfPi = 1.5707963267948966;
const double kTwoPi = 6.283185307179586;

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
