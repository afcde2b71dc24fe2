#include <korvex/capi.h>
#include <korvex/classes.hpp>

#include <gtest/gtest.h>

#include <cmath>

#include "classes/checks.hpp"

namespace {

const double kTwoPiF = 6.2831854820251465; // 2*pi as a float, widened
const double kPi = 3.141592653589793;

TEST(Point2D, IndexTagAndCrossClassAssignment)
{
    point_2d p(3.0f, 4.0f);
    EXPECT_EQ(p[1], 4.0f);
    EXPECT_EQ(p[2], 3.0f); // out of range falls back to x
    EXPECT_EQ(p[-1], 3.0f);
    p[7] = 9.0f;
    EXPECT_EQ(p.x, 9.0f);
    EXPECT_EQ(static_cast<float*>(p)[1], 4.0f);

    // Assigning a plain point keeps the tag.
    nd_point_2d n;
    EXPECT_EQ(n.tag, 0);
    n.tag = 7;
    n = point_2d(1.0f, 2.0f);
    EXPECT_EQ(n.tag, 7);
    expectPt(n, 1.0f, 2.0f);
    n = point_3d(5.0f, 6.0f, 7.0f);
    EXPECT_EQ(n.tag, 7);
    expectPt(n, 5.0f, 6.0f);

    point_2d q;
    q = point_3d(8.0f, 9.0f, 10.0f);
    expectPt(q, 8.0f, 9.0f);
}

TEST(Point2D, MatrixAndProducts)
{
    // Quarter turn then a shift by (5, 6); the third column must be ignored.
    float m[9] = {0.0f, 1.0f, 9.0f, -1.0f, 0.0f, 9.0f, 5.0f, 6.0f, 9.0f};
    float m33[3][3] = {{0.0f, 1.0f, 9.0f}, {-1.0f, 0.0f, 9.0f}, {5.0f, 6.0f, 9.0f}};
    const point_2d p(1.0f, 2.0f);
    for (point_2d r : {p * m, m * p, p * m33, m33 * p, point_2d(p) *= m})
        expectPt(r, 3.0f, 7.0f);

    expectPt(point_2d(1.0f, 0.0f).Xproduct(point_2d(0.0f, 1.0f), point_2d(2.0f, 3.0f)), -3.0f, 2.0f);
    EXPECT_EQ(point_2d(1.0f, 2.0f).Xproduct(point_2d(3.0f, 4.0f)), -2.0f);
    EXPECT_EQ((2.0f * p).y, 4.0f);
    EXPECT_EQ(p.Inverse().x, -1.0f);
}

TEST(Point2D, EqualityUsesTenTimesAbsoluteDistance)
{
    const point_2d o(0.0f, 0.0f);
    EXPECT_TRUE(o == point_2d(9e-6f, 0.0f));
    EXPECT_FALSE(o == point_2d(2e-5f, 0.0f));
    EXPECT_TRUE(o != point_2d(2e-5f, 0.0f));

    ToleranceGuard guard;
    gmSetAbsDistTol(0.1); // limit 1.0: a distance of exactly 1 is unequal
    EXPECT_EQ(o == point_2d(1.0f, 0.0f), 0);
    EXPECT_EQ(o != point_2d(1.0f, 0.0f), 1);
    EXPECT_EQ(o == point_2d(0.99f, 0.0f), 1);
    EXPECT_EQ(o != point_2d(0.99f, 0.0f), 0);
}

TEST(Point2D, DivisionGuardAndUnit)
{
    const point_2d p(2.0f, 4.0f);
    EXPECT_EQ((p / 0.0f).x, 2.0f);
    EXPECT_EQ((p / 2.0f).y, 2.0f);

    ToleranceGuard guard;
    gmSetAbsZero(0.5);
    point_2d q = p;
    q /= 0.5f; // not above the bound: untouched
    q /= -0.5f;
    EXPECT_EQ(q.x, 2.0f);
    EXPECT_FLOAT_EQ((p / 0.6f).x, 2.0f / 0.6f);

    point_2d tiny(1e-10f, 0.0f), v(3.0f, 4.0f);
    EXPECT_EQ(tiny.Unit(), 0.0f);
    EXPECT_EQ(tiny.x, 0.0f);
    EXPECT_FLOAT_EQ(v.Unit(), 5.0f);
    EXPECT_FLOAT_EQ(v.y, 0.8f);
}

TEST(Point2D, DirectionPredicates)
{
    const point_2d ex(1.0f, 0.0f);
    EXPECT_EQ(ex.IsSameDirection(point_2d(-2.0f, 0.0f)), 0);
    EXPECT_EQ(ex.IsParallel(point_2d(-2.0f, 0.0f)), 1);
    EXPECT_EQ(ex.IsSameDirection(point_2d(1.0f, 0.01f)), 1);  // cos ~ 0.99995
    EXPECT_EQ(ex.IsParallel(point_2d(1.0f, 0.02f)), 0);       // cos ~ 0.9998
    // Long enough for Unit() but shorter than the absolute distance tolerance.
    EXPECT_EQ(ex.IsSameDirection(point_2d(5e-7f, 0.0f)), 0);
    EXPECT_EQ(point_2d().IsParallel(ex), 0);

    // The raw dot product meets the distance tolerance.
    EXPECT_EQ(point_2d(1000.0f, 0.0f).IsPerpendicular(point_2d(0.00001f, 1.0f)), 0);
    EXPECT_EQ(ex.IsPerpendicular(point_2d(0.001f, 1.0f)), 1);
    ToleranceGuard guard;
    gmSetDistTol(0.0005);
    EXPECT_EQ(ex.IsPerpendicular(point_2d(0.001f, 1.0f)), 0);
}

TEST(Point2D, AxisAnglesSnapWithParallelismTolerance)
{
    EXPECT_EQ(point_2d(1.0f, -1e-5f).AngleToXAxis(), kTwoPiF);
    EXPECT_EQ(point_2d(1.0f, 1e-5f).AngleToXAxis(), 0.0);
    EXPECT_EQ(point_2d(1.0f, 0.0f).AngleToXAxis(), 0.0);
    EXPECT_NEAR(point_2d(-1.0f, 0.0f).AngleToXAxis(), kPi, 1e-6);

    // Measured from the y axis: just clockwise of it gives 2*pi.
    EXPECT_EQ(point_2d(0.0f, 1.0f).AngleToYAxis(), 0.0);
    EXPECT_EQ(point_2d(-1e-5f, 1.0f).AngleToYAxis(), 0.0);
    EXPECT_EQ(point_2d(1e-5f, 1.0f).AngleToYAxis(), kTwoPiF);
    EXPECT_NEAR(point_2d(1.0f, 0.0f).AngleToYAxis(), 1.5 * kPi, 1e-6);

    ToleranceGuard guard;
    gmSetParaTol(1e-7);
    EXPECT_NEAR(point_2d(1.0f, -1e-5f).AngleToXAxis(), kTwoPiF - 1e-5, 1e-7);

    // Both snaps include their bound: a tolerance equal to the distance from
    // 0 (or from 2*pi) still snaps, one a hair smaller does not.
    const double above = static_cast<double>(std::atan2(1e-5f, 1.0f));
    gmSetParaTol(above);
    EXPECT_EQ(point_2d(1.0f, 1e-5f).AngleToXAxis(), 0.0);
    gmSetParaTol(std::nextafter(above, 0.0));
    EXPECT_EQ(point_2d(1.0f, 1e-5f).AngleToXAxis(), above);
    const double below = static_cast<double>(std::atan2(-1e-5f, 1.0f)) + kTwoPiF;
    gmSetParaTol(std::fabs(below - kTwoPiF));
    EXPECT_EQ(point_2d(1.0f, -1e-5f).AngleToXAxis(), kTwoPiF);
    gmSetParaTol(std::nextafter(std::fabs(below - kTwoPiF), 0.0));
    EXPECT_EQ(point_2d(1.0f, -1e-5f).AngleToXAxis(), below);
}

TEST(Point2D, SegmentWindowAndLineDistances)
{
    // Every segment below lies on the x axis, so the foot has y = 0.
    const point_2d a(0.0f, 0.0f), b(1.0f, 0.0f);
    float t = 9.0f, dist = 9.0f;
    point_2d foot(9.0f, 9.0f);
    auto expectOut = [&](float wantT, float footX, float wantDist) {
        EXPECT_FLOAT_EQ(t, wantT);
        EXPECT_FLOAT_EQ(foot.x, footX);
        EXPECT_EQ(foot.y, 0.0f);
        EXPECT_FLOAT_EQ(dist, wantDist);
    };

    // Slightly before a, within the parallelism tolerance: projection kept.
    point_2d(-0.00005f, 1.0f).GetDistLineSeg(a, b, t, foot, dist);
    expectOut(-0.00005f, -0.00005f, 1.0f);
    point_2d(-1.0f, 1.0f).GetDistLineSeg(a, b, t, foot, dist);
    expectOut(0.0f, 0.0f, std::sqrt(2.0f));
    EXPECT_EQ(point_2d(3.0f, 1.0f).GetDistLineSeg(a, b, t, foot, dist), 1);
    expectOut(1.0f, 1.0f, std::sqrt(5.0f));
    // The infinite line does not clamp.
    EXPECT_EQ(point_2d(3.0f, 1.0f).GetProjectPoint(a, b, t, foot, dist), 1);
    expectOut(3.0f, 3.0f, 1.0f);
    // A segment shorter than the distance tolerance is the point a.
    point_2d(0.5f, 1.0f).GetDistLineSeg(a, point_2d(0.001f, 0.0f), t, foot, dist);
    expectOut(0.0f, 0.0f, std::sqrt(1.25f));

    ToleranceGuard guard;
    // Widened window (-0.5, 1.5]: open at a's end, closed at b's end.
    gmSetParaTol(0.5);
    point_2d(-0.5f, 1.0f).GetDistLineSeg(a, b, t, foot, dist);
    expectOut(0.0f, 0.0f, std::sqrt(1.25f));
    point_2d(1.5f, 1.0f).GetDistLineSeg(a, b, t, foot, dist);
    expectOut(1.5f, 1.5f, 1.0f);
    // An empty window sends every point to an end; equal distances go to b.
    gmSetParaTol(-1.0);
    point_2d(0.5f, 1.0f).GetDistLineSeg(a, b, t, foot, dist);
    expectOut(1.0f, 1.0f, std::sqrt(1.25f));

    // The line test compares the squared length: 5e-4 squared is below 1e-6.
    EXPECT_FLOAT_EQ(point_2d(1.0f, 1.0f).GetDistLine(a, point_2d(5e-4f, 0.0f)), std::sqrt(2.0f));
    EXPECT_FLOAT_EQ(point_2d(1.0f, 1.0f).GetDistLine(a, point_2d(5e-3f, 0.0f)), 1.0f);
    const float d3 = point_2d(2.0f, 3.0f).GetDistLine(point_3d(0.0f, 0.0f, 1.0f),
                                                      point_3d(1.0f, 0.0f, 0.0f), t);
    EXPECT_FLOAT_EQ(t, 2.0f);
    EXPECT_FLOAT_EQ(d3, std::sqrt(10.0f));
}

// Projecting a point in place: the foot output is the point itself or an end
// point, and the distance must still be that of the original point.
TEST(Point2D, ProjectionOutputsMayAliasInputs)
{
    const point_2d a(0.0f, 0.0f), b(4.0f, 0.0f);
    float t = 9.0f, dist = 9.0f;

    point_2d p(2.0f, 3.0f);
    p.GetDistLineSeg(a, b, t, p, dist);
    expectPt(p, 2.0f, 0.0f);
    EXPECT_EQ(dist, 3.0f);

    point_2d q(6.0f, 3.0f);
    q.GetProjectPoint(a, b, t, q, dist);
    expectPt(q, 6.0f, 0.0f);
    EXPECT_EQ(t, 1.5f);
    EXPECT_EQ(dist, 3.0f);

    // Degenerate segment: the foot is a, the distance that from the old point.
    point_2d r(3.0f, 4.0f);
    r.GetDistLineSeg(a, a, t, r, dist);
    expectPt(r, 0.0f, 0.0f);
    EXPECT_EQ(dist, 5.0f);

    // The foot written over the end point a.
    point_2d end = a;
    point_2d(2.0f, 3.0f).GetDistLineSeg(end, b, t, end, dist);
    expectPt(end, 2.0f, 0.0f);
    EXPECT_EQ(dist, 3.0f);
}

TEST(Point2D, OnLineAndCollinearity)
{
    const point_2d a(0.0f, 0.0f), b(1.0f, 0.0f);
    EXPECT_EQ(point_2d(0.5f, 5e-7f).IsOn(a, b), 1);
    EXPECT_EQ(point_2d(0.5f, 2e-6f).IsOn(a, b), 0);
    EXPECT_EQ(point_2d(2.0f, 0.0f).IsOn(a, b), 1);
    EXPECT_EQ(point_2d(2.0f, 0.0f).IsOnSeg(a, b), 0);

    EXPECT_EQ(a.IsConLine(point_2d(1.0f, 1.0f), point_2d(-2.0f, -2.0f)), 1);
    EXPECT_EQ(a.IsConLine(point_2d(1.0f, 0.0f), point_2d(0.0f, 1.0f)), 0);
    EXPECT_EQ(a.IsConLine(a, point_2d(1.0f, 1.0f)), 0); // coincident end point

    point_2d pts[3] = {point_2d(0.0f, 0.0f), point_2d(1.0f, 0.5f), point_2d(2.0f, 0.0f)};
    EXPECT_EQ(IsPtsColine(pts, 2, 0.0f), 1);
    EXPECT_EQ(IsPtsColine(pts, 3, 0.5f), 1); // a distance equal to tol passes
    EXPECT_EQ(IsPtsColine(pts, 3, 0.4999f), 0);
}

} // namespace
