#include <korvex/classes.hpp>

#include <gtest/gtest.h>

namespace {

Box3D box3(point_3d const& lo, point_3d const& hi)
{
    Box3D b;
    b.DefineBox(lo, hi);
    return b;
}

void expectBox(Box2D const& b, float x0, float y0, float x1, float y1)
{
    EXPECT_EQ(b.min.x, x0);
    EXPECT_EQ(b.min.y, y0);
    EXPECT_EQ(b.max.x, x1);
    EXPECT_EQ(b.max.y, y1);
}

void expectBox(Box3D const& b, point_3d const& lo, point_3d const& hi)
{
    EXPECT_EQ(b.min.x, lo.x);
    EXPECT_EQ(b.min.y, lo.y);
    EXPECT_EQ(b.min.z, lo.z);
    EXPECT_EQ(b.max.x, hi.x);
    EXPECT_EQ(b.max.y, hi.y);
    EXPECT_EQ(b.max.z, hi.z);
}

TEST(Box, EmptyBoxAndCorners)
{
    Box2D b;
    EXPECT_EQ(b.IsEmpty(), 1);
    EXPECT_EQ(b.GetWidth(), -2.0f);
    point_2d c2[4];
    c2[0].Set(9, 9);
    EXPECT_EQ(b.GetCorner(c2), 0);
    EXPECT_EQ(c2[0].x, 9.0f); // nothing written

    Box2D flat(2, 3, 2, 5); // zero width is not empty
    EXPECT_EQ(flat.IsEmpty(), 0);
    ASSERT_EQ(Box2D(0, 0, 1, 2).GetCorner(c2), 1);
    EXPECT_EQ(c2[1].x, 1.0f);
    EXPECT_EQ(c2[1].y, 0.0f);
    EXPECT_EQ(c2[3].x, 0.0f);
    EXPECT_EQ(c2[3].y, 2.0f);

    Box3D cube(point_2d(0, 0), point_2d(1, 2));
    cube.max.z = 3;
    point_3d c3[8];
    ASSERT_EQ(cube.GetCorner(c3), 1);
    EXPECT_EQ(c3[2].x, 1.0f); // (xmax, ymax, zmin)
    EXPECT_EQ(c3[2].y, 2.0f);
    EXPECT_EQ(c3[2].z, 0.0f);
    EXPECT_EQ(c3[4].x, 0.0f); // top face starts again at (xmin, ymin)
    EXPECT_EQ(c3[4].z, 3.0f);
    EXPECT_EQ(c3[7].y, 2.0f);
    EXPECT_EQ(Box3D().GetCorner(c3), 0);
    EXPECT_EQ(b.CheckInter(point_3d(), point_3d(), 0.0f), 1);
    EXPECT_EQ(Box3D().CheckInter(point_3d(), point_3d(), 0.0f), 1);
}

TEST(Box, DefinitionSortsButConstructorsDoNot)
{
    Box2D b;
    b.DefineBox(point_2d(2, 0), point_2d(0, 3));
    expectBox(b, 0, 0, 2, 3);
    const Box2D raw(point_2d(2, 0), point_2d(0, 3));
    expectBox(raw, 2, 0, 0, 3);
    EXPECT_EQ(raw.IsEmpty(), 1);
    b.DefineBox(4, 3, 2, 1);
    expectBox(b, 4, 3, 2, 1);
    b.Adjust();
    expectBox(b, 2, 1, 4, 3);
    b.DefineBox(point_3d(5, 1, 7), point_3d(1, 5, -7));
    expectBox(b, 1, 1, 5, 5);

    expectBox(Box3D(point_2d(2, 0), point_2d(0, 3)), point_3d(0, 0, 0), point_3d(2, 3, 0));
    Box3D d;
    d.DefineBox(Box2D(0, 1, 2, 3), 4.0f);
    expectBox(d, point_3d(0, 1, 4), point_3d(2, 3, 4));
    expectBox(Box2D(d), 0, 1, 2, 3);

    b.Grow(-1, -1);
    expectBox(b, 2, 2, 4, 4);
    b.Move(1, -2);
    expectBox(b, 3, 0, 5, 2);
}

TEST(Box, UnionRulesDifferBetweenClasses)
{
    const Box2D b2(5, 5, 6, 6);
    Box2D e2;
    e2 += b2; // no empty handling in the planar class
    expectBox(e2, 1, 1, 6, 6);
    expectBox(Box2D() + b2, 1, 1, 6, 6);
    Box2D u2;
    u2.Union(b2);
    expectBox(u2, 1, 1, 6, 6);

    const Box3D b3 = box3(point_3d(5, 5, 5), point_3d(6, 6, 6));
    Box3D e3;
    e3 += b3;
    expectBox(e3, point_3d(5, 5, 5), point_3d(6, 6, 6));
    expectBox(Box3D() + b3, point_3d(5, 5, 5), point_3d(6, 6, 6));
    expectBox(b3 + Box3D(), point_3d(5, 5, 5), point_3d(6, 6, 6));
    Box3D u3;
    u3.Union(b3);
    expectBox(u3, point_3d(1, 1, 1), point_3d(6, 6, 6));

    // AddPt is the way to grow from empty in both classes.
    Box2D p2;
    point_2d q(3, 4);
    p2.AddPt(q);
    expectBox(p2, 3, 4, 3, 4);
    nd_point_2d n;
    n.Set(-1, 8);
    p2.AddPt(n);
    expectBox(p2, -1, 4, 3, 8);

    Box2D i(0, 0, 2, 2);
    i.Intersect(Box2D(3, 3, 4, 4)); // disjoint: inverted result
    EXPECT_EQ(i.IsEmpty(), 1);
    Box3D i3 = box3(point_3d(0, 0, 0), point_3d(2, 2, 2));
    i3.Intersect(box3(point_3d(1, 1, 1), point_3d(3, 3, 3)));
    expectBox(i3, point_3d(1, 1, 1), point_3d(2, 2, 2));
}

TEST(Box, PointTestsAreHalfOpenAndAsymmetric)
{
    Box2D single;
    point_2d p(3, 4);
    single.AddPt(p);
    EXPECT_EQ(single.Contains(p), 0);
    EXPECT_EQ(single.IsIn(p), 0);
    EXPECT_EQ(single.IsIn(p, 0.0f), 0); // upper y exclusive
    const Box2D b(0, 0, 3, 5);
    EXPECT_EQ(b.IsIn(p, 0.0f), 1); // upper x inclusive
    EXPECT_EQ(b.IsIn(point_2d(0, 0)), 1);
    EXPECT_EQ(b.IsIn(point_2d(3, 1)), 0);
    EXPECT_EQ(b.IsIn(point_2d(1, 5), 0.0f), 0);
    EXPECT_EQ(b.IsIn(point_2d(-0.5f, 5.4f), 0.5f), 1);

    double dp[2] = {3.0, 4.0};
    EXPECT_EQ(b.IsIn2D(dp, 0.0), 1);
    dp[0] = 1.0;
    dp[1] = 5.0;
    EXPECT_EQ(b.IsIn2D(dp, 0.0), 0);
    // The double test does not round the point to float first.
    dp[1] = 5.0 + 1e-12;
    EXPECT_EQ(b.IsIn2D(dp, 1e-11), 1);

    const Box3D c = box3(point_3d(0, 0, 0), point_3d(1, 1, 1));
    EXPECT_EQ(c.IsIn(point_3d(1, 0.5f, 0.5f), 0.0f), 1);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 1, 0.5f), 0.0f), 0);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 0.5f, 1), 0.0f), 0); // upper z exclusive
    EXPECT_EQ(c.Contains(point_3d(0, 0, 0)), 1);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 0.5f, 1)), 0);
    EXPECT_EQ(c.IsIn(point_2d(1, 0.5f), 0.0f), 1);
    EXPECT_EQ(c.IsIn2D(dp, 0.0), 0);
}

TEST(Box, OverlapTests)
{
    const Box2D a(0, 0, 1, 1);
    const Box2D touching(1, 0, 2, 1);
    EXPECT_EQ(a.IsIntersect(touching), 0);
    EXPECT_EQ(a.CanIntersect(touching), 1);
    const Box2D gap(1.05f, 0, 2, 1);
    EXPECT_EQ(a.CanIntersect(gap), 0);
    EXPECT_EQ(a.CanIntersect(gap, 0.1f), 1);
    EXPECT_EQ(a.CanIntersect(gap, 0.01f), 0);
    // A gap of exactly tol still counts.
    EXPECT_EQ(a.CanIntersect(Box2D(1.5f, 0, 2, 1), 0.5f), 1);
    EXPECT_EQ(a.IsIntersect(Box2D(0.5f, 0.5f, 2, 2)), 1);

    // Against a Box3D only x and y count.
    const Box3D high = box3(point_3d(1.05f, 0, 50), point_3d(2, 1, 60));
    EXPECT_EQ(a.CanIntersect(high, 0.1f), 1);
    EXPECT_EQ(Box3D(a).CanIntersect(high, 0.1f), 0);
    EXPECT_EQ(high.CanIntersect(a, 0.1f), 1);

    const Box3D cube = box3(point_3d(0, 0, 0), point_3d(1, 1, 1));
    const Box3D above = box3(point_3d(0, 0, 1), point_3d(1, 1, 2));
    EXPECT_EQ(cube.IsIntersect(above), 0);
    EXPECT_EQ(cube.CanIntersect(above), 1);
    EXPECT_EQ(cube.CanInclude(cube), 1);
    EXPECT_EQ(cube.CanInclude(above), 0);

    EXPECT_EQ(a.CanInclude(Box2D(0, 0, 1, 0.5f)), 1);
    EXPECT_EQ(a.CanInclude(Box2D(0, 0, 1.01f, 0.5f)), 0);
    EXPECT_EQ(a.CanInclude(cube), 1);
    EXPECT_EQ(a == Box2D(0, 0, 1, 1), 1);
    EXPECT_EQ(cube == above, 0);
    EXPECT_EQ(cube.GetCenter().z, 0.5f);
    EXPECT_EQ(above.GetZWidth(), 1.0f);
}

} // namespace
