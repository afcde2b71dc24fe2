#include <korvex/classes.hpp>

#include <gtest/gtest.h>

#include "classes/checks.hpp"

namespace {

Box3D box3(point_3d const& lo, point_3d const& hi)
{
    Box3D b;
    b.DefineBox(lo, hi);
    return b;
}

void expectBox(Box2D const& b, float x0, float y0, float x1, float y1)
{
    expectPt(b.min, x0, y0);
    expectPt(b.max, x1, y1);
}

void expectBox(Box3D const& b, point_3d const& lo, point_3d const& hi)
{
    expectPt(b.min, lo.x, lo.y, lo.z);
    expectPt(b.max, hi.x, hi.y, hi.z);
}

TEST(Box, EmptyBoxAndCorners)
{
    Box2D b;
    EXPECT_EQ(b.IsEmpty(), 1);
    EXPECT_EQ(b.GetWidth(), -2.0f);
    point_2d c2[4] = {point_2d(9, 9)};
    EXPECT_EQ(b.GetCorner(c2), 0);
    EXPECT_EQ(c2[0].x, 9.0f); // nothing written
    EXPECT_EQ(Box2D(2, 3, 2, 5).IsEmpty(), 0); // zero width is not empty
    ASSERT_EQ(Box2D(0, 0, 1, 2).GetCorner(c2), 1);
    expectPt(c2[1], 1, 0);
    expectPt(c2[3], 0, 2);

    Box3D cube(point_2d(0, 0), point_2d(1, 2));
    cube.max.z = 3;
    point_3d c3[8];
    ASSERT_EQ(cube.GetCorner(c3), 1);
    expectPt(c3[2], 1, 2, 0); // (xmax, ymax, zmin)
    expectPt(c3[4], 0, 0, 3); // the top face starts again at (xmin, ymin)
    expectPt(c3[7], 0, 2, 3);
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
    // No empty handling in the planar class: the empty box's corners join in.
    const Box2D b2(5, 5, 6, 6);
    Box2D e2, u2;
    e2 += b2;
    u2.Union(b2);
    expectBox(e2, 1, 1, 6, 6);
    expectBox(u2, 1, 1, 6, 6);
    expectBox(Box2D() + b2, 1, 1, 6, 6);

    // The spatial operators skip an empty operand; Union does not.
    const point_3d lo(5, 5, 5), hi(6, 6, 6);
    const Box3D b3 = box3(lo, hi);
    Box3D e3, u3;
    e3 += b3;
    u3.Union(b3);
    expectBox(e3, lo, hi);
    expectBox(Box3D() + b3, lo, hi);
    expectBox(b3 + Box3D(), lo, hi);
    expectBox(u3, point_3d(1, 1, 1), hi);

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
    const Box2D single(3, 4, 3, 4);
    const point_2d p(3, 4);
    EXPECT_EQ(single.Contains(p), 0);
    EXPECT_EQ(single.IsIn(p), 0);
    EXPECT_EQ(single.IsIn(p, 0.0f), 0); // upper y exclusive
    const Box2D b(0, 0, 3, 5);
    EXPECT_EQ(b.IsIn(p, 0.0f), 1); // upper x inclusive
    EXPECT_EQ(b.IsIn(point_2d(0, 0)), 1);
    EXPECT_EQ(b.IsIn(point_2d(3, 1)), 0);
    EXPECT_EQ(b.IsIn(point_2d(1, 5), 0.0f), 0);
    EXPECT_EQ(b.IsIn(point_2d(-0.5f, 5.4f), 0.5f), 1);

    // The double test does not round the point to float first.
    double in[2] = {3.0, 4.0}, top[2] = {1.0, 5.0}, above[2] = {1.0, 5.0 + 1e-12};
    EXPECT_EQ(b.IsIn2D(in, 0.0), 1);
    EXPECT_EQ(b.IsIn2D(top, 0.0), 0);
    EXPECT_EQ(b.IsIn2D(above, 1e-11), 1);

    const Box3D c = box3(point_3d(0, 0, 0), point_3d(1, 1, 1));
    EXPECT_EQ(c.IsIn(point_3d(1, 0.5f, 0.5f), 0.0f), 1);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 1, 0.5f), 0.0f), 0);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 0.5f, 1), 0.0f), 0); // upper z exclusive
    EXPECT_EQ(c.Contains(point_3d(0, 0, 0)), 1);
    EXPECT_EQ(c.IsIn(point_3d(0.5f, 0.5f, 1)), 0);
    EXPECT_EQ(c.IsIn(point_2d(1, 0.5f), 0.0f), 1);
    EXPECT_EQ(c.IsIn2D(above, 0.0), 0);
}

TEST(Box, OverlapTests)
{
    const Box2D a(0, 0, 1, 1), touching(1, 0, 2, 1), gap(1.05f, 0, 2, 1);
    EXPECT_EQ(a.IsIntersect(touching), 0);
    EXPECT_EQ(a.CanIntersect(touching), 1);
    EXPECT_EQ(a.IsIntersect(Box2D(0.5f, 0.5f, 2, 2)), 1);
    EXPECT_EQ(a.CanIntersect(gap), 0);
    EXPECT_EQ(a.CanIntersect(gap, 0.1f), 1);
    EXPECT_EQ(a.CanIntersect(gap, 0.01f), 0);
    // A gap of exactly tol still counts.
    EXPECT_EQ(a.CanIntersect(Box2D(1.5f, 0, 2, 1), 0.5f), 1);

    // Against a Box3D only x and y count.
    const Box3D high = box3(point_3d(1.05f, 0, 50), point_3d(2, 1, 60));
    EXPECT_EQ(a.CanIntersect(high, 0.1f), 1);
    EXPECT_EQ(Box3D(a).CanIntersect(high, 0.1f), 0);
    EXPECT_EQ(high.CanIntersect(a, 0.1f), 1);

    const Box3D cube = box3(point_3d(0, 0, 0), point_3d(1, 1, 1)),
                above = box3(point_3d(0, 0, 1), point_3d(1, 1, 2));
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
