#include <korvex/capi.h>

#include <gtest/gtest.h>

#include "core/checks.hpp"

TEST(Complex, ArithmeticAndGuardedDivision)
{
    double a[2] = {1.0, 2.0};
    const double b[2] = {3.0, -1.0};
    EXPECT_EQ(mathCompMult(a, b, a), 1);
    expectNear(a, {5.0, 5.0}, 0.0);

    const double one[2] = {1.0, 0.0}, i[2] = {0.0, 1.0};
    double out[2];
    EXPECT_EQ(mathCompDivi(one, i, out), 1);
    expectNear(out, {0.0, -1.0}, 0.0);

    const double tiny[2] = {1e-11, 0.0}, small[2] = {1e-9, 0.0};
    double keep[2] = {7.0, 8.0};
    EXPECT_EQ(mathCompDivi(one, tiny, keep), 0);
    expectNear(keep, {7.0, 8.0}, 0.0);
    EXPECT_EQ(mathCompDivi(one, small, keep), 1);
    EXPECT_NEAR(keep[0], 1e9, 1e-3);
}

TEST(Complex, LagrangeInterpolation)
{
    double out[2] = {9.0, 9.0};
    const double origin[2] = {0.0, 0.0};
    EXPECT_EQ(mathIntpComp(0, nullptr, nullptr, origin, out), 1);
    expectNear(out, {0.0, 0.0}, 0.0);

    const double z1[2] = {3.0, 4.0}, w1[2] = {-1.0, 2.0}, anywhere[2] = {-20.0, 7.5};
    EXPECT_EQ(mathIntpComp(1, z1, w1, anywhere, out), 1);
    expectNear(out, {-1.0, 2.0}, 0.0);

    const double z[4] = {0.0, 0.0, 1.0, 0.0}, w[4] = {0.0, 0.0, 0.0, 1.0};
    const double mid[2] = {0.5, 0.0};
    EXPECT_EQ(mathIntpComp(2, z, w, mid, out), 1);
    expectNear(out, {0.0, 0.5}, 1e-15);
    // The result may overwrite the evaluation point or a value.
    double xInOut[2] = {0.5, 0.0};
    EXPECT_EQ(mathIntpComp(2, z, w, xInOut, xInOut), 1);
    expectNear(xInOut, {0.0, 0.5}, 1e-15);
    double wInOut[4] = {0.0, 0.0, 0.0, 1.0};
    EXPECT_EQ(mathIntpComp(2, z, wInOut, mid, wInOut + 2), 1);
    expectNear(wInOut + 2, {0.0, 0.5}, 1e-15);

    // Three nodes through z^2 reproduce it anywhere in the plane.
    const double zq[6] = {0.0, 0.0, 1.0, 0.0, 0.0, 1.0}, wq[6] = {0.0, 0.0, 1.0, 0.0, -1.0, 0.0};
    const double x[2] = {1.0, 2.0};
    EXPECT_EQ(mathIntpComp(3, zq, wq, x, out), 1);
    expectNear(out, {-3.0, 4.0});

    // Nodes 1 and 2 coincide: the first term is complete, the second fails.
    const double zd[6] = {0.0, 0.0, 1.0, 0.0, 1.0, 0.0}, wd[6] = {1.0, 0.0, 5.0, 0.0, 6.0, 0.0};
    const double at[2] = {2.0, 0.0};
    EXPECT_EQ(mathIntpComp(3, zd, wd, at, out), 0);
    expectNear(out, {1.0, 0.0}, 1e-15);
}
