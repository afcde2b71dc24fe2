#include <korvex/capi.h>

#include <gtest/gtest.h>

TEST(LineSide2D, CodesAndStrictTolerance)
{
    const double a[2] = {0.0, 0.0};
    const double b[2] = {2.0, 0.0};
    const double left[2] = {1.0, 1.0};
    const double right[2] = {1.0, -1.0};
    const double on[2] = {5.0, 0.0005};
    const double atTol[2] = {1.0, 0.25};
    EXPECT_EQ(mathChkPntLin2D(left, a, b, 0.001), 3);
    EXPECT_EQ(mathChkPntLin2D(right, a, b, 0.001), 4);
    EXPECT_EQ(mathChkPntLin2D(on, a, b, 0.001), 2);
    // exactly at the tolerance is not on the line
    EXPECT_EQ(mathChkPntLin2D(atTol, a, b, 0.25), 3);
    EXPECT_EQ(mathChkPntLin2D(left, a, a, 0.001), 800);
}

TEST(LineProject3D, FootAndAliasing)
{
    const double l[3] = {1.0, 1.0, 0.0};
    const double d[3] = {0.0, 0.0, 1.0};
    double p[3] = {4.0, -2.0, 7.5};
    mathPrjPntLin(p, l, d, p);
    EXPECT_DOUBLE_EQ(p[0], 1.0);
    EXPECT_DOUBLE_EQ(p[1], 1.0);
    EXPECT_DOUBLE_EQ(p[2], 7.5);
}

TEST(LineDistance2D, SignedAndDegenerate)
{
    const double l[2] = {1.0, 1.0};
    const double d[2] = {0.6, 0.8};
    const double left[2] = {1.0 - 0.8 * 2.0, 1.0 + 0.6 * 2.0};
    EXPECT_NEAR(mathDistPntLin2D(left, l, d), 2.0, 1e-12);

    // The two-point form divides by the length and stays signed.
    const double a[2] = {0.0, 0.0};
    const double b[2] = {4.0, 0.0};
    const double below[2] = {7.0, -3.0};
    EXPECT_DOUBLE_EQ(mathDistPntLin2DEx(below, a, b), -3.0);
    // A line shorter than 1e-8 falls back to the unsigned distance to a.
    const double nearA[2] = {5e-9, 0.0};
    const double p[2] = {-3.0, -4.0};
    EXPECT_DOUBLE_EQ(mathDistPntLin2DEx(p, a, nearA), 5.0);
}

TEST(LineProject2D, FootDegenerateAndAliasing)
{
    const double a[2] = {1.0, 0.0};
    const double b[2] = {1.0, 3.0};
    double q[2] = {9.0, 9.0};
    const double p[2] = {5.0, 2.0};
    EXPECT_EQ(mathPrjPntLin2DEx(p, a, b, q), 1);
    EXPECT_DOUBLE_EQ(q[0], 1.0);
    EXPECT_DOUBLE_EQ(q[1], 2.0);

    // Output in place of the point, and in place of a.
    double pp[2] = {5.0, 2.0};
    EXPECT_EQ(mathPrjPntLin2DEx(pp, a, b, pp), 1);
    EXPECT_DOUBLE_EQ(pp[0], 1.0);
    EXPECT_DOUBLE_EQ(pp[1], 2.0);
    double aa[2] = {1.0, 0.0};
    EXPECT_EQ(mathPrjPntLin2DEx(p, aa, b, aa), 1);
    EXPECT_DOUBLE_EQ(aa[1], 2.0);

    // Coincident points: the foot is a.
    EXPECT_EQ(mathPrjPntLin2DEx(p, a, a, q), 0);
    EXPECT_DOUBLE_EQ(q[0], 1.0);
    EXPECT_DOUBLE_EQ(q[1], 0.0);

    const double d[2] = {0.0, 1.0};
    mathPrjPntLin2D(p, a, d, q);
    EXPECT_DOUBLE_EQ(q[0], 1.0);
    EXPECT_DOUBLE_EQ(q[1], 2.0);
    mathEvalLin2D(a, d, -2.5, q);
    EXPECT_DOUBLE_EQ(q[1], -2.5);
}

TEST(LineNormals2D, LeftRightAndShortLines)
{
    const double a[2] = {1.0, 1.0};
    const double b[2] = {4.0, 5.0};
    double n[2];
    EXPECT_EQ(mathGetLinLeftDir2D(a, b, n), 1);
    EXPECT_DOUBLE_EQ(n[0], -0.8);
    EXPECT_DOUBLE_EQ(n[1], 0.6);
    EXPECT_EQ(mathGetLinRightDir2D(a, b, n), 1);
    EXPECT_DOUBLE_EQ(n[0], 0.8);
    EXPECT_DOUBLE_EQ(n[1], -0.6);

    // Too short: the raw normal is left in place, not zeroed.
    const double c[2] = {1.0 + 5e-11, 1.0};
    EXPECT_EQ(mathGetLinLeftDir2D(a, c, n), 0);
    EXPECT_EQ(n[0], 0.0);
    EXPECT_GT(n[1], 0.0);

    double d[2];
    double len = -1.0;
    EXPECT_EQ(mathGetLinDirLen2D(a, b, 5.0, d, &len), 1);
    EXPECT_DOUBLE_EQ(len, 5.0);
    EXPECT_DOUBLE_EQ(d[0], 0.6);
    // Length below the tolerance: 0, raw direction, length still written.
    EXPECT_EQ(mathGetLinDirLen2D(a, b, 5.000001, d, &len), 0);
    EXPECT_DOUBLE_EQ(d[0], 3.0);
    EXPECT_DOUBLE_EQ(len, 5.0);
}

TEST(LineIntersect2D, CrossingParallelCoincident)
{
    const double l1[2] = {0.0, 0.0};
    const double d1[2] = {1.0, 0.0};
    const double l2[2] = {3.0, -4.0};
    const double d2[2] = {0.6, 0.8};
    double x[2] = {0.0, 0.0};
    EXPECT_EQ(mathIntLin2D(l1, d1, l2, d2, 1e-6, 1e-6, x), 1);
    EXPECT_NEAR(x[0], 6.0, 1e-12);
    EXPECT_NEAR(x[1], 0.0, 1e-12);

    // |d1 x d2| = 0.8 exactly here: a parallelism tolerance just above it
    // makes the lines parallel (apart), one equal to it does not.
    const double l5[2] = {-3.0, 0.0};
    x[0] = x[1] = 42.0;
    EXPECT_EQ(mathIntLin2D(l1, d2, l5, d1, 1e-6, 0.8000001, x), 2);
    EXPECT_EQ(x[0], 42.0);
    EXPECT_EQ(mathIntLin2D(l1, d2, l5, d1, 1e-6, 0.8, x), 1);
    EXPECT_EQ(x[0], 0.0);
    EXPECT_EQ(x[1], 0.0);

    // Same line given by two different points: the mean of the two feet of
    // the midpoint (2, 0) on both lines.
    const double l3[2] = {4.0, 0.0};
    EXPECT_EQ(mathIntLin2D(l1, d1, l3, d1, 1e-6, 1e-6, x), 4);
    EXPECT_DOUBLE_EQ(x[0], 2.0);
    EXPECT_DOUBLE_EQ(x[1], 0.0);

    // Parallel at twice the distance tolerance: apart, x untouched.
    const double l4[2] = {4.0, 0.002};
    x[0] = x[1] = 42.0;
    EXPECT_EQ(mathIntLin2D(l1, d1, l4, d1, 0.001, 1e-6, x), 2);
    EXPECT_EQ(x[0], 42.0);
    EXPECT_EQ(x[1], 42.0);
}

TEST(LineIntersect2D, TwoPointForm)
{
    double a1[2] = {0.0, 0.0};
    const double b1[2] = {10.0, 0.0};
    const double a2[2] = {3.0, -4.0};
    const double b2[2] = {6.0, 0.0};
    double x[2] = {42.0, 42.0};
    EXPECT_EQ(mathIntLin2DEx(a1, b1, a2, a2, 1e-6, 1e-6, x), 800);
    EXPECT_EQ(x[0], 42.0);
    // The result may overwrite a1.
    EXPECT_EQ(mathIntLin2DEx(a1, b1, a2, b2, 1e-6, 1e-6, a1), 1);
    EXPECT_NEAR(a1[0], 6.0, 1e-12);
    EXPECT_NEAR(a1[1], 0.0, 1e-12);
}
