#include <korvex/capi.h>

#include <gtest/gtest.h>

#include "geometry/checks.hpp"

TEST(Line2D, SideDistanceProjectionAndDirections)
{
    const double o[2] = {0.0, 0.0}, e[2] = {2.0, 0.0};
    EXPECT_EQ(mathChkPntLin2D(P2{1.0, 1.0}, o, e, 0.001), 3);
    EXPECT_EQ(mathChkPntLin2D(P2{1.0, -1.0}, o, e, 0.001), 4);
    EXPECT_EQ(mathChkPntLin2D(P2{5.0, 0.0005}, o, e, 0.001), 2);
    EXPECT_EQ(mathChkPntLin2D(P2{1.0, 0.25}, o, e, 0.25), 3); // exactly at the tolerance is not on the line
    EXPECT_EQ(mathChkPntLin2D(P2{1.0, 1.0}, o, o, 0.001), 800);

    const double a[2] = {1.0, 1.0}, b[2] = {4.0, 5.0}, p[2] = {-3.0, 4.0};
    const double nearA[2] = {1.0 + 5e-9, 1.0}, tiny[2] = {1.0 + 5e-11, 1.0};
    // Signed and divided by the length; below 1e-8 it falls back to the
    // unsigned distance to a.
    EXPECT_DOUBLE_EQ(mathDistPntLin2DEx(p, a, b), 5.0);
    EXPECT_DOUBLE_EQ(mathDistPntLin2DEx(p, a, nearA), 5.0);

    // Projection in place of a; a degenerate line gives a.
    double q[2] = {1.0, 1.0};
    EXPECT_EQ(mathPrjPntLin2DEx(P2{0.0, 8.0}, q, b, q), 1);
    expectNear(q, {4.0, 5.0});
    EXPECT_EQ(mathPrjPntLin2DEx(p, a, a, q), 0);
    expectNear(q, {1.0, 1.0});

    double n[2];
    EXPECT_EQ(mathGetLinRightDir2D(a, b, n), 1);
    expectNear(n, {0.8, -0.6});
    // 5e-9 still gives a normal; 5e-11 does not, and the raw normal stays.
    EXPECT_EQ(mathGetLinLeftDir2D(a, nearA, n), 1);
    EXPECT_DOUBLE_EQ(n[1], 1.0);
    EXPECT_EQ(mathGetLinLeftDir2D(a, tiny, n), 0);
    EXPECT_EQ(n[0], 0.0);
    EXPECT_GT(n[1], 0.0);

    // Length equal to the tolerance succeeds; just below fails with the raw
    // direction, the length being written either way.
    double d[2], len = -1.0;
    EXPECT_EQ(mathGetLinDirLen2D(a, b, 5.0, d, &len), 1);
    EXPECT_DOUBLE_EQ(d[0], 0.6);
    EXPECT_EQ(mathGetLinDirLen2D(a, b, 5.000001, d, &len), 0);
    EXPECT_DOUBLE_EQ(d[0], 3.0);
    EXPECT_DOUBLE_EQ(len, 5.0);
}

TEST(LineIntersect2D, CrossingParallelCoincident)
{
    const double l1[2] = {0.0, 0.0}, d1[2] = {1.0, 0.0}, d2[2] = {0.6, 0.8};
    const double l2[2] = {-3.0, 0.0}, l3[2] = {4.0, 0.0}, l4[2] = {4.0, 0.002};
    double x[2] = {42.0, 42.0};

    // |d1 x d2| = 0.8 exactly here: a parallelism tolerance just above it
    // makes the lines parallel (apart), one equal to it does not.
    EXPECT_EQ(mathIntLin2D(l1, d2, l2, d1, 1e-6, 0.8000001, x), 2);
    EXPECT_EQ(x[0], 42.0);
    EXPECT_EQ(mathIntLin2D(l1, d2, l2, d1, 1e-6, 0.8, x), 1);
    expectNear(x, {0.0, 0.0});

    // Same line given by two different points: the mean of the two feet of
    // the midpoint (2, 0) on both lines.
    EXPECT_EQ(mathIntLin2D(l1, d1, l3, d1, 1e-6, 1e-6, x), 4);
    expectNear(x, {2.0, 0.0});

    // Parallel at twice the distance tolerance: apart, x untouched.
    x[0] = x[1] = 42.0;
    EXPECT_EQ(mathIntLin2D(l1, d1, l4, d1, 0.001, 1e-6, x), 2);
    expectNear(x, {42.0, 42.0});

    // Two-point form: a degenerate line, then the result over a1.
    double a1[2] = {0.0, 0.0};
    const double b1[2] = {10.0, 0.0}, a2[2] = {3.0, -4.0}, b2[2] = {6.0, 0.0};
    EXPECT_EQ(mathIntLin2DEx(a1, b1, a2, a2, 1e-6, 1e-6, x), 800);
    EXPECT_EQ(x[0], 42.0);
    EXPECT_EQ(mathIntLin2DEx(a1, b1, a2, b2, 1e-6, 1e-6, a1), 1);
    expectNear(a1, {6.0, 0.0});
}
