#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <cmath>

#include "geometry/checks.hpp"

TEST(Line3D, DegenerateAndStrictCases)
{
    const double a[3] = {1.0, 1.0, 1.0}, b[3] = {1.0, 1.0, 5.0}, p[3] = {4.0, 5.0, -7.0};
    EXPECT_NEAR(mathDistPntLinEx(p, a, b), 5.0, 1e-12);
    EXPECT_NEAR(mathDistPntLinEx(p, a, a), std::sqrt(89.0), 1e-12);
    EXPECT_EQ(mathChkPntLin(P3{1.25, 1.0, 3.0}, a, b, 0.25), 0); // at the tolerance: off the line
    EXPECT_EQ(mathChkPntLin(P3{1.25, 1.0, 3.0}, a, b, 0.2500001), 1);

    // A length equal to the tolerance passes; the unit direction then serves
    // a projection in place.
    double d[3], len = 0.0, r[3] = {4.0, 5.0, 7.5};
    EXPECT_EQ(mathGetLinDirLen(a, b, 4.0, d, &len), 1);
    expectNear(d, {0.0, 0.0, 1.0});
    mathPrjPntLin(r, a, d, r);
    expectNear(r, {1.0, 1.0, 7.5});
    // Too short: -4 in space (0 in the plane), raw direction, length written.
    EXPECT_EQ(mathGetLinDirLen(a, b, 4.5, d, &len), -4);
    expectNear(d, {0.0, 0.0, 4.0});
    EXPECT_EQ(mathGetLinDirLen(a, a, 1e-10, d, &len), -4);
    EXPECT_EQ(len, 0.0);

    double q[3], t = -1.0, pp[3] = {4.0, 5.0, 3.0};
    mathPrjPntLineEx(p, a, b, q, &t);
    expectNear(q, {1.0, 1.0, -7.0});
    EXPECT_DOUBLE_EQ(t, -2.0);
    mathPrjPntLineEx(p, b, b, q, &t);
    expectNear(q, {1.0, 1.0, 5.0});
    EXPECT_EQ(t, 0.0);
    EXPECT_EQ(mathPrjPntLinEx(pp, a, b, pp), 1);
    expectNear(pp, {1.0, 1.0, 3.0});
    EXPECT_EQ(mathPrjPntLinEx(p, a, a, q), 0);
    expectNear(q, {1.0, 1.0, 1.0});
}

TEST(Line3D, ParameterAxisChoice)
{
    const double l[3] = {1.0, 1.0, 1.0}, d[3] = {0.48, 0.6, 0.64};
    const double p[3] = {1.0 + 2.0 * 0.48, 1.0 + 2.0 * 0.6, 1.0 + 2.0 * 0.64};
    const double h = std::sqrt(0.5);
    EXPECT_NEAR(mathCalPntLinPara(p, l, d), 2.0, 1e-12);
    // A component of exactly 0.5 does not qualify: z is used, not x.
    EXPECT_NEAR(mathCalPntLinPara(P3{8.0, 2.0, 1.0 + 2.0 * h}, l, P3{0.5, 0.5, h}), 2.0, 1e-12);
    EXPECT_EQ(mathCalPntLinPara(p, l, P3{0.1, 0.1, 0.1}), 0.0); // too short a direction

    const P3 o = {0.0, 0.0, 0.0};
    EXPECT_DOUBLE_EQ(mathCalPntLinSegPara(P3{2.0, 1.0, 0.0}, o, P3{4.0, 2.0, 0.0}), 0.5);
    // A negative x difference gives way to y even along a pure x line, and
    // the zero y difference then yields 0.
    EXPECT_EQ(mathCalPntLinSegPara(P3{-2.0, 0.0, 0.0}, o, P3{-4.0, 0.0, 0.0}), 0.0);
    // x (-4) gives way to y (-2), which gives way to z (2); the point is off
    // the line so that only the z axis yields 0.75.
    EXPECT_DOUBLE_EQ(mathCalPntLinSegPara(P3{-1.0, -0.5, 1.5}, o, P3{-4.0, -2.0, 2.0}), 0.75);
}

TEST(LineIntersect3D, CrossingSkewParallel)
{
    const double l1[3] = {0.0, 0.0, 0.0}, d1[3] = {1.0, 0.0, 0.0};
    const double l2[3] = {3.0, -2.0, 1.0}, d2[3] = {0.0, 1.0, 0.0}, l3[3] = {4.0, 0.0, 0.001};
    double c[6]; // c1, then c2
    // Skew at distance 1: the feet of the common perpendicular.
    EXPECT_EQ(mathIntLin(l1, d1, l2, d2, 0.002, 1e-6, c, c + 3), 5);
    expectNear(c, {3.0, 0.0, 0.0, 3.0, 0.0, 1.0});
    EXPECT_EQ(mathIntLin(l1, d1, l2, d2, 1.0000001, 1e-6, c, c + 3), 1);

    // Parallel lines: both feet of the midpoint are written either way.
    EXPECT_EQ(mathIntLin(l1, d1, l3, d1, 0.002, 1e-6, c, c + 3), 4);
    expectNear(c, {2.0, 0.0, 0.0, 2.0, 0.0, 0.001});
    EXPECT_EQ(mathIntLin(l1, d1, l3, d1, 0.001, 1e-6, c, c + 3), 2);

    // With paraTol out of the way, the closest-point denominators (|d1 x d2|
    // in size) are guarded at 1e-100: below it 800 with nothing written.
    EXPECT_EQ(mathIntLin(l1, d1, l1, P3{1.0, 1e-99, 0.0}, 1e-6, 1e-300, c, c + 3), 1);
    c[0] = c[3] = 42.0;
    EXPECT_EQ(mathIntLin(l1, d1, l1, P3{1.0, 1e-101, 0.0}, 1e-6, 1e-300, c, c + 3), 800);
    EXPECT_EQ(c[0], 42.0);
    EXPECT_EQ(c[3], 42.0);

    // Two-point form: degenerate line, and outputs over the inputs.
    double a1[3] = {0.0, 0.0, 0.0}, b1[3] = {5.0, 0.0, 0.0};
    const double a2[3] = {3.0, -2.0, 0.0}, b2[3] = {3.0, 2.0, 0.0};
    EXPECT_EQ(mathIntLinEx(a1, b1, a2, a2, 1e-6, 1e-6, c, c + 3), 800);
    EXPECT_EQ(mathIntLinEx(a1, b1, a2, b2, 1e-6, 1e-6, a1, b1), 1);
    expectNear(a1, {3.0, 0.0, 0.0});
    expectNear(b1, {3.0, 0.0, 0.0});
}

TEST(LineIntersect3D, RawDirectionsWithParameters)
{
    const double a1[3] = {0.0, 0.0, 0.0}, b1[3] = {4.0, 0.0, 0.0};
    const double a2[3] = {2.0, -1.0, 0.5}, b2[3] = {2.0, 3.0, 0.5};
    double c[6], t1 = 0.0, t2 = 0.0, dist = 0.0;
    EXPECT_EQ(mathIntLine(a1, b1, a2, b2, 0.1, 1e-6, c, c + 3, &t1, &t2, &dist), 5);
    EXPECT_DOUBLE_EQ(t1, 0.5);
    EXPECT_DOUBLE_EQ(t2, 0.25);
    EXPECT_DOUBLE_EQ(dist, 0.5);
    expectNear(c + 3, {2.0, 0.0, 0.5});
    EXPECT_EQ(mathIntLine(a1, b1, a2, b2, 0.6, 1e-6, c, c + 3, &t1, &t2, &dist), 1);

    // Parallel lines of length 2: the raw directions overshoot the feet,
    // and the parameters stay untouched.
    const double a3[3] = {1.0, 1.0, 0.0}, b3[3] = {3.0, 1.0, 0.0}, b4[3] = {2.0, 0.0, 0.0};
    t1 = t2 = 42.0;
    EXPECT_EQ(mathIntLine(a1, b4, a3, b3, 0.01, 1e-6, c, c + 3, &t1, &t2, &dist), 2);
    expectNear(c, {2.0, 0.0, 0.0, -1.0, 1.0, 0.0});
    EXPECT_DOUBLE_EQ(dist, std::sqrt(10.0));
    EXPECT_EQ(t1, 42.0);
    EXPECT_EQ(t2, 42.0);

    // The raw cross product |(4,0,0) x (0,4,0)| = 16 meets paraTol 16 (not
    // parallel) but not 16.0001.
    const double a5[3] = {2.0, -2.0, 0.0}, b5[3] = {2.0, 2.0, 0.0};
    EXPECT_EQ(mathIntLine(a1, b1, a5, b5, 0.01, 16.0, c, c + 3, &t1, &t2, &dist), 1);
    EXPECT_EQ(mathIntLine(a1, b1, a5, b5, 0.01, 16.0001, c, c + 3, &t1, &t2, &dist), 2);

    dist = 42.0;
    EXPECT_EQ(mathIntLine(a1, a1, a2, b2, 0.01, 1e-6, c, c + 3, &t1, &t2, &dist), 800);
    EXPECT_EQ(dist, 42.0);
}

TEST(LineIntersect3D, CommonPlane)
{
    const double l1[3] = {0.0, 0.0, 2.0}, d1[3] = {1.0, 0.0, 0.0};
    const double l2[3] = {3.0, -2.0, 2.0}, d2[3] = {0.0, 1.0, 0.0};
    double p[3] = {9.0, 9.0, 9.0}, n[3] = {9.0, 9.0, 9.0};
    EXPECT_EQ(mathIsLinCoplanar(l1, d1, l2, d2, 1e-6, 1e-6, p, n), 1);
    expectNear(p, {3.0, 0.0, 2.0});
    expectNear(n, {0.0, 0.0, 1.0});

    // Crossing at an angle too small for a unit normal: still 1, the point
    // is written and the normal is left as it was.
    p[0] = n[2] = 9.0;
    EXPECT_EQ(mathIsLinCoplanar(l1, d1, l1, P3{1.0, 1e-11, 0.0}, 1e-6, 1e-12, p, n), 1);
    EXPECT_EQ(p[0], 0.0);
    EXPECT_EQ(n[2], 9.0);

    // Distinct parallel lines: the plane through l1 holding both.
    EXPECT_EQ(mathIsLinCoplanar(l1, d1, P3{5.0, 0.0, 5.0}, d1, 1e-6, 1e-6, p, n), 1);
    expectNear(p, {0.0, 0.0, 2.0});
    expectNear(n, {0.0, -1.0, 0.0});

    // Coincident lines leave the plane open; skew lines have none.
    p[0] = 9.0;
    EXPECT_EQ(mathIsLinCoplanar(l1, d1, P3{-7.0, 0.0, 2.0}, d1, 1e-6, 1e-6, p, n), 2);
    EXPECT_EQ(p[0], 9.0);
    EXPECT_EQ(mathIsLinCoplanar(l1, d1, P3{3.0, -2.0, 3.0}, d2, 1e-6, 1e-6, p, n), 0);
    EXPECT_EQ(p[0], 9.0);
}
