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
