#include <korvex/capi.h>
#include <korvex/classes.hpp>

#include <gtest/gtest.h>

#include <cmath>

#include "classes/checks.hpp"

namespace {

const double kTwoPiF = 6.2831854820251465;  // 2*pi as a float, widened
const double kPi = 3.141592653589793;
const double kHalfPiF = 1.5707963705062866; // pi/2 as a float, widened

TEST(Point3D, AccessTagAndMatrix)
{
    point_3d p(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(p[2], 3.0f);
    EXPECT_EQ(p[3], 1.0f);
    EXPECT_EQ(p[-1], 1.0f);
    p = point_2d(4.0f, 5.0f);
    expectPt(p, 4.0f, 5.0f, 0.0f);

    // Assigning a plain point keeps the tag.
    nd_point_3d n;
    EXPECT_EQ(n.tag, 0);
    n.tag = 3;
    n = point_3d(1.0f, 2.0f, 3.0f);
    EXPECT_EQ(n.tag, 3);
    expectPt(n, 1.0f, 2.0f, 3.0f);

    // Shift by (1, 2, 3); the fourth column must be ignored.
    float m[16] = {1, 0, 0, 7, 0, 1, 0, 7, 0, 0, 1, 7, 1, 2, 3, 7};
    float m44[4][4] = {{1, 0, 0, 7}, {0, 1, 0, 7}, {0, 0, 1, 7}, {1, 2, 3, 7}};
    const point_3d q(1.0f, 1.0f, 1.0f);
    for (point_3d r : {q * m, q * m44, m44 * q, point_3d(q) *= m})
        expectPt(r, 2.0f, 3.0f, 4.0f);

    const point_3d ex(1, 0, 0), ey(0, 1, 0), ez(0, 0, 1);
    EXPECT_EQ(ex.HybridProduct(ey, ez), 1.0f);
    expectPt(ex.Xproduct(ey), 0.0f, 0.0f, 1.0f);
    expectPt(q / 0.0f, 1.0f, 1.0f, 1.0f);
}

TEST(Point3D, EqualityIsNotAComplement)
{
    EXPECT_TRUE(point_3d(0, 0, 0) == point_3d(5e-7f, 0, 0));
    EXPECT_FALSE(point_3d(0, 0, 0) == point_3d(5e-6f, 0, 0)); // planar would be equal

    ToleranceGuard guard;
    gmSetAbsDistTol(0.5);
    const point_3d o(0, 0, 0), h(0.5f, 0, 0);
    EXPECT_EQ(o == h, 0);
    EXPECT_EQ(o != h, 0);
    EXPECT_EQ(o != point_3d(0.6f, 0, 0), 1);
}

TEST(Point3D, PredicatesDifferFromPlanar)
{
    // Raw dot 1e-5: too large for the absolute distance tolerance (the
    // planar class would accept it against the distance tolerance).
    EXPECT_EQ(point_3d(1, 0, 0).IsPerpendicular(point_3d(1e-5f, 1, 0)), 0);

    const point_3d o(0, 0, 0);
    EXPECT_EQ(o.IsConLine(o, point_3d(1, 2, 3)), 1); // coincident end point: planar gives 0
    EXPECT_EQ(o.IsConLine(point_3d(1, 1, 1), point_3d(-2, -2, -2)), 1);
    EXPECT_EQ(o.IsConLine(point_3d(1, 0, 0), point_3d(0, 1, 0)), 0);

    EXPECT_EQ(point_3d(1, 0, 0).IsParallel(point_3d(-3, 0, 0)), 1);
    EXPECT_EQ(point_3d(1, 0, 0).IsSameDirection(point_3d(-3, 0, 0)), 0);
    EXPECT_EQ(point_3d().IsSameDirection(point_3d(1, 0, 0)), 0);
}

TEST(Point3D, AxisAnglesSnapWithAbsoluteParallelismTolerance)
{
    EXPECT_EQ(point_3d(0, 0, 5).AngleToXAxis(), 0.0);
    // 1e-5 below the axis: the planar class snaps to 2*pi, the spatial one
    // only snaps within 1e-6.
    EXPECT_NEAR(point_3d(1, -1e-5f, 0).AngleToXAxis(), kTwoPiF - 1e-5, 1e-7);
    EXPECT_EQ(point_3d(1, -1e-7f, 0).AngleToXAxis(), kTwoPiF);
    EXPECT_EQ(point_3d(5e-7f, 1, 0).AngleToYAxis(), kTwoPiF);

    ToleranceGuard guard;
    gmSetAbsParaTol(1e-4);
    EXPECT_EQ(point_3d(1, -1e-5f, 0).AngleToXAxis(), kTwoPiF);
    gmSetParaTol(1e-9); // the spatial class does not read it
    EXPECT_EQ(point_3d(1, 1e-5f, 0).AngleToXAxis(), 0.0);

    EXPECT_EQ(point_3d(1, 0, 0).AngleToZAxis(), kHalfPiF);
    EXPECT_NEAR(point_3d(0, 0, 2).AngleToZAxis(), 0.0, 1e-7);
    EXPECT_NEAR(point_3d(0, 0, -2).AngleToZAxis(), kPi, 1e-6);
}

TEST(Point3D, LineDistancesAndSegmentTest)
{
    const point_3d a(0, 0, 0);
    float t = 9.0f, dist = 9.0f;
    point_3d foot(9, 9, 9);

    // Unclamped projection on the line.
    EXPECT_EQ(point_3d(3, 1, 0).GetMinDistance(a, point_3d(1, 0, 0), t, foot, dist), 1);
    EXPECT_FLOAT_EQ(t, 3.0f);
    expectPt(foot, 3.0f, 0.0f, 0.0f);
    EXPECT_FLOAT_EQ(dist, 1.0f);
    // Squared length 2.5e-7 is below 1e-6: the line is its start point.
    point_3d(1, 1, 0).GetMinDistance(a, point_3d(5e-4f, 0, 0), t, foot, dist);
    EXPECT_EQ(t, 0.0f);
    expectPt(foot, 0.0f, 0.0f, 0.0f);
    EXPECT_FLOAT_EQ(dist, std::sqrt(2.0f));

    EXPECT_FLOAT_EQ(point_3d(2, 3, 0).GetDistLine(point_3d(0, 0, 1), point_3d(1, 0, 0), t),
                    std::sqrt(10.0f));
    EXPECT_FLOAT_EQ(t, 2.0f);

    // In place: foot (or t) may be the projected point itself.
    point_3d p(2, 3, 0);
    p.GetMinDistance(a, point_3d(4, 0, 0), t, p, dist);
    expectPt(p, 2.0f, 0.0f, 0.0f);
    EXPECT_EQ(dist, 3.0f);
    point_3d q(2, 3, 0);
    EXPECT_EQ(q.GetDistLine(point_3d(1, 0, 0), point_3d(1, 0, 0), q.x), 3.0f);
    EXPECT_EQ(q.x, 1.0f);

    const point_3d b(1, 1, 1);
    EXPECT_EQ(point_3d(0.5f, 0.5f, 0.5f).IsOnSeg(a, b), 1);
    EXPECT_EQ(b.IsOnSeg(a, b), 1);
    EXPECT_EQ(point_3d(1.5f, 1.5f, 1.5f).IsOnSeg(a, b), 0);
    EXPECT_EQ(point_3d(0.5f, 0.5f, 0.51f).IsOnSeg(a, b), 0);
    // A flat axis (y = z = 0 on both ends) still admits points on it.
    EXPECT_EQ(point_3d(0.5f, 0, 0).IsOnSeg(a, point_3d(1, 0, 0)), 1);

    // The widened box is open: at exactly the tolerance off the axis the
    // point is rejected although its detour (about 0.414) would pass.
    ToleranceGuard guard;
    gmSetAbsDistTol(0.5);
    EXPECT_EQ(point_3d(0.5f, 0.5f, 0).IsOnSeg(a, point_3d(1, 0, 0)), 0);
    EXPECT_EQ(point_3d(0.5f, 0.49f, 0).IsOnSeg(a, point_3d(1, 0, 0)), 1);
}

TEST(Point4D, HomogeneousFieldsAndDivisionGuards)
{
    point_4d p;
    EXPECT_EQ(p.w, 1.0f);
    p.Set(1, 2, 3, 4);
    EXPECT_EQ(p[7], 4.0f);
    EXPECT_EQ(p[-1], 4.0f);
    EXPECT_EQ(p[0], 1.0f);
    EXPECT_EQ((p / 2.0f).w, 2.0f);
    EXPECT_EQ((p * 2.0f).w, 8.0f);
    EXPECT_EQ((p + p).w, 8.0f);

    // point_3d follows the absolute zero; point_4d keeps its fixed 1e-7.
    const point_4d q = p / 5e-8f;
    EXPECT_EQ(q.x, 1.0f);
    EXPECT_EQ(q.w, 4.0f);
    ToleranceGuard guard;
    gmSetAbsZero(0.5);
    EXPECT_EQ((p / 0.5f).w, 8.0f);
    point_3d s(1, 2, 3);
    expectPt(s / 0.5f, 1.0f, 2.0f, 3.0f);
    s /= -0.5f;
    expectPt(s, 1.0f, 2.0f, 3.0f);
    EXPECT_EQ((s / 0.6f).x, 1.0f / 0.6f);

    p = point_2d(5, 6);
    EXPECT_EQ(p.z, 0.0f);
    EXPECT_EQ(p.w, 1.0f);
    p = point_3d(7, 8, 9);
    EXPECT_EQ(p.z, 9.0f);
    EXPECT_EQ(p.w, 1.0f);
}

} // namespace
