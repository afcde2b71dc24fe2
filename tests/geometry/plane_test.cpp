#include <korvex/capi.h>

#include <gtest/gtest.h>

#include "geometry/checks.hpp"

namespace {

const double kOrigin[3] = {0.0, 0.0, 0.0};
const double kX[3] = {1.0, 0.0, 0.0}, kY[3] = {0.0, 1.0, 0.0}, kUp[3] = {0.0, 0.0, 1.0};

} // namespace

TEST(Plane, LineInPlaneAndCrossing)
{
    // The in-plane test probes the line at parameter 100: a slope of 1e-3
    // lifts it by 0.1, whatever the tolerance at the start point.
    const double slope[3] = {1.0, 0.0, 0.001};
    EXPECT_EQ(mathIsLinOnPln(kOrigin, slope, kOrigin, kUp, 0.05), 0);
    EXPECT_EQ(mathIsLinOnPln(kOrigin, slope, kOrigin, kUp, 0.2), 1);
    EXPECT_EQ(mathIsLinOnPln(P3{0.0, 0.0, 0.2}, kX, kOrigin, kUp, 0.2), 0);

    const double l[3] = {1.0, 1.0, 4.0}, d[3] = {0.0, 0.6, -0.8};
    double x[3];
    EXPECT_EQ(mathIntLinPln(l, d, kOrigin, kUp, 1e-6, 1e-6, x), 1);
    expectNear(x, {1.0, 4.0, 0.0});

    // Parallel: x is the line's own point; in the plane (4) or off it (2).
    EXPECT_EQ(mathIntLinPln(P3{7.0, 8.0, 0.0005}, kX, kOrigin, kUp, 0.001, 1e-6, x), 4);
    expectNear(x, {7.0, 8.0, 0.0005});
    EXPECT_EQ(mathIntLinPln(l, kX, kOrigin, kUp, 0.001, 1e-6, x), 2);
    expectNear(x, {1.0, 1.0, 4.0});
    // Both tests are strict: |d . n| = 0.8 is not parallel for paraTol 0.8,
    // a height of 0.25 is not in the plane for distTol 0.25.
    EXPECT_EQ(mathIntLinPln(l, d, kOrigin, kUp, 1e-6, 0.8, x), 1);
    EXPECT_EQ(mathIntLinPln(P3{7.0, 8.0, 0.25}, kX, kOrigin, kUp, 0.25, 1e-6, x), 2);
}

TEST(Plane, SegmentIntersectionCodes)
{
    const double tol = 0.01;
    const double a[3] = {0.0, 0.0, -1.0}, b[3] = {0.0, 0.0, 3.0};
    const double c[3] = {1.0, 0.0, 0.005}, e[3] = {2.0, 0.0, -0.005};
    double x[6], t1 = -1.0, t2 = -1.0; // x1, then x2

    // Both ends within tol: the whole segment, parameters 0 and 1.
    EXPECT_EQ(mathIntSegmPln(c, e, kOrigin, kUp, tol, x, x + 3, &t1, &t2), 4);
    expectNear(x, {1.0, 0.0, 0.005, 2.0, 0.0, -0.005});
    EXPECT_EQ(t1, 0.0);
    EXPECT_EQ(t2, 1.0);

    // One end within tol: that end, whichever side the other end is on.
    t2 = 42.0;
    EXPECT_EQ(mathIntSegmPln(b, c, kOrigin, kUp, tol, x, x + 3, &t1, &t2), 1);
    expectNear(x, {1.0, 0.0, 0.005});
    EXPECT_EQ(t1, 1.0);
    EXPECT_EQ(mathIntSegmPln(e, a, kOrigin, kUp, tol, x, x + 3, &t1, &t2), 1);
    expectNear(x, {2.0, 0.0, -0.005});
    EXPECT_EQ(t1, 0.0);
    EXPECT_EQ(t2, 42.0);

    // An end exactly at tol is not on the plane; both above: no contact.
    x[0] = 42.0;
    EXPECT_EQ(mathIntSegmPln(P3{0.0, 0.0, 0.25}, b, kOrigin, kUp, 0.25, x, x + 3, &t1, &t2), 0);
    EXPECT_EQ(x[0], 42.0);

    // The crossing point may replace an end point.
    double aa[3] = {0.0, 0.0, -1.0};
    EXPECT_EQ(mathIntSegmPln(aa, b, kOrigin, kUp, tol, aa, x + 3, &t1, &t2), 1);
    expectNear(aa, {0.0, 0.0, 0.0});
    EXPECT_DOUBLE_EQ(t1, 0.25);
}

TEST(Plane, TwoPlanes)
{
    const double p1[3] = {0.0, 0.0, 2.0}, p2[3] = {3.0, 5.0, 7.0};
    double x[3] = {42.0, 42.0, 42.0}, d[3];
    // Dx = 0, so the point is taken on y = 0.
    EXPECT_EQ(mathIntPln(p1, kUp, p2, kX, 1e-6, 1e-6, x, d), 1);
    expectNear(d, {0.0, 1.0, 0.0});
    expectNear(x, {3.0, 0.0, 2.0});

    // D = (0.6, 0.8, 0): x is the first axis above half the length, so the
    // point goes on x = 0 although y is the larger component.
    EXPECT_EQ(mathIntPln(p1, kUp, P3{3.0, 0.0, 0.0}, P3{0.8, -0.6, 0.0}, 1e-6, 1e-6, x, d), 1);
    expectNear(d, {0.6, 0.8, 0.0});
    expectNear(x, {0.0, -4.0, 2.0});

    // Parallel planes: x untouched, d the short raw cross product.
    const double tilt[3] = {0.0, 1e-9, 1.0}, p4[3] = {9.0, 9.0, 2.0000005};
    x[0] = 42.0;
    EXPECT_EQ(mathIntPln(p1, kUp, kOrigin, tilt, 1e-6, 1e-6, x, d), 2);
    EXPECT_EQ(x[0], 42.0);
    EXPECT_NEAR(d[0], -1e-9, 1e-24);
    EXPECT_EQ(mathIntPln(p1, kUp, p4, tilt, 1e-6, 1e-6, x, d), 4);

    EXPECT_EQ(mathIsPlnOverlap(p1, kUp, p4, tilt, 1e-6, 1e-6), 1);
    EXPECT_EQ(mathIsPlnOverlap(p1, kUp, p4, tilt, 4e-7, 1e-6), 0);
    EXPECT_EQ(mathIsPlnOverlap(p1, kUp, p4, tilt, 1e-6, 1e-9), 0);
}

TEST(Plane, ThreePlanesAlwaysReport801)
{
    const double p[3] = {1.0, 2.0, 3.0}, q[3] = {0.0, 0.0, 5.0}, nz[3] = {0.0, 0.0, 1e-4};
    double x[3] = {42.0, 42.0, 42.0};
    EXPECT_EQ(mathInt3Pln(p, kX, p, kY, p, kUp, 1e-6, x), 801);
    expectNear(x, {1.0, 2.0, 3.0});

    // Three parallel planes: the system is singular, x is left alone, and
    // the code is the same.
    x[0] = x[1] = x[2] = 42.0;
    EXPECT_EQ(mathInt3Pln(kOrigin, kUp, p, kUp, q, kUp, 1e-6, x), 801);
    expectNear(x, {42.0, 42.0, 42.0});

    // The determinant tolerance is tol squared: a determinant of 1e-4 is
    // singular for tol 0.0101 but not for tol 0.0099.
    x[0] = 42.0;
    EXPECT_EQ(mathInt3Pln(p, kX, p, kY, kOrigin, nz, 0.0101, x), 801);
    EXPECT_EQ(x[0], 42.0);
    EXPECT_EQ(mathInt3Pln(p, kX, p, kY, kOrigin, nz, 0.0099, x), 801);
    expectNear(x, {1.0, 2.0, 0.0});
}
