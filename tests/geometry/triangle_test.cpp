#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <cmath>

#include "geometry/checks.hpp"

namespace {

const double tol = 1e-9;
const double eps = 1e-15; // results here are exact or within a few rounding steps

TEST(OriginInPolygon, CrossingsOfTheXAxis)
{
    auto oriTri = [](P2 a, P2 b, P2 c) { return mathChkOriInTri2D(a, b, c, tol); };
    EXPECT_EQ(oriTri({-1, -1}, {2, -1}, {0, 2}), 1);
    EXPECT_EQ(oriTri({1, 1}, {3, -1}, {3, 1}), 0);
    EXPECT_EQ(oriTri({-1, -1}, {1, 1}, {1, -3}), 1); // the origin on an edge

    // A vertex at the origin counts only with the opposite edge across the
    // axis: otherwise a single value is collected.
    EXPECT_EQ(oriTri({0, 0}, {1, 1}, {1, -1}), 1);
    EXPECT_EQ(oriTri({0, 0}, {1, 1}, {-1, 1}), 0);

    // All three vertices on the axis; the box test comes first.
    EXPECT_EQ(oriTri({-1, 0}, {1, 0}, {2, 1e-12}), 800);
    EXPECT_EQ(oriTri({1, 0}, {2, 0}, {3, 0}), 0);

    // A quadrilateral pairs its sorted crossings.
    auto oriQuad = [](P2 a, P2 b, P2 c, P2 d) { return mathChkOriInQuad2D(a, b, c, d, tol); };
    EXPECT_EQ(oriQuad({-1, -1}, {1, -1}, {1, 1}, {-1, 1}), 1);
    EXPECT_EQ(oriQuad({2, -1}, {3, -1}, {3, 1}, {2, 1}), 0);

    // Every edge crosses the axis: the four crossings form two stretches and
    // the origin may lie in either one or between them.
    auto crossedQuad = [&oriQuad](double s) { return oriQuad({-2 + s, 1}, {-1 + s, -1}, {2 + s, 1}, {1 + s, -1}); };
    EXPECT_EQ(crossedQuad(-1.0), 1); // crossings -2.5 -1.5 | -0.5 0.5
    EXPECT_EQ(crossedQuad(1.0), 1);  // crossings -0.5 0.5 | 1.5 2.5
    EXPECT_EQ(crossedQuad(0.0), 0);  // crossings -1.5 -0.5 | 0.5 1.5

    // One vertex on the axis plus two crossings: the outer two bound it.
    EXPECT_EQ(oriQuad({-2, 0}, {-1, -1}, {1, 1}, {2, -1}), 1);
    EXPECT_EQ(oriQuad({-1, 0}, {1, 0}, {2, 0}, {3, 0}), 800);
}

TEST(OriginInTriangle, WeightsAtVerticesEdgesAndInside)
{
    double w[3];
    auto weights = [&w](P2 a, P2 b, P2 c) { return mathChkOriInTri2DEx(a, b, c, tol, w); };
    ASSERT_EQ(weights({-1, -1}, {1, 1}, {2, -3}), 1);
    expectNear(w, {0.5, 0.5, 0.0}, eps);
    // The origin on CB: the weight of C is |B| / (|B| + |C|).
    ASSERT_EQ(weights({-3, 1}, {1, 1}, {-3, -3}), 1);
    expectNear(w, {0.0, 0.75, 0.25}, eps);
    ASSERT_EQ(weights({1, 2}, {0, 0}, {-2, 1}), 1);
    expectNear(w, {0.0, 1.0, 0.0}, eps);

    // Inside: the weights reproduce the origin.
    const double g[2] = {-1, -1}, h[2] = {3, -0.5}, k[2] = {0.5, 2};
    ASSERT_EQ(mathChkOriInTri2DEx(g, h, k, tol, w), 1);
    for (int i = 0; i < 2; ++i)
        EXPECT_NEAR(w[0] * g[i] + w[1] * h[i] + w[2] * k[i], 0.0, 1e-14);

    // Outside but within the box: weights written, result 0.
    ASSERT_EQ(weights({-0.5, 1.5}, {1.5, 1.5}, {1.5, -0.5}), 0);
    EXPECT_LT(std::fmin(w[0], std::fmin(w[1], w[2])), 0.0);
}

TEST(Barycentric, RoundTripAndDegenerateTriangle)
{
    const double a[2] = {0.3, -1.2}, b[2] = {4.1, 0.7}, c[2] = {-0.8, 2.9};
    const double pts[][2] = {{0.5, 0.5}, {10, -3}, {0.3, -1.2}};
    double w[3], wo[3];
    for (const auto& p : pts) {
        ASSERT_EQ(mathCalTri2DGCP(a, b, c, p, w), 1);
        EXPECT_DOUBLE_EQ(w[0] + w[1] + w[2], 1.0);
        for (int i = 0; i < 2; ++i)
            EXPECT_NEAR(w[0] * a[i] + w[1] * b[i] + w[2] * c[i], p[i], 1e-12);
    }
    const double o[2] = {0, 0};
    ASSERT_EQ(mathCalTri2DGCO(a, b, c, wo), 1);
    ASSERT_EQ(mathCalTri2DGCP(a, b, c, o, w), 1);
    expectNear(wo, {w[0], w[1], w[2]}, 0.0); // the origin form agrees exactly

    const double d[2] = {1, 1}, e[2] = {2, 2}, f[2] = {3, 3};
    double untouched[3] = {7, 8, 9};
    EXPECT_EQ(mathCalTri2DGCP(d, e, f, o, untouched), 0);
    EXPECT_EQ(mathCalTri2DGCO(d, e, f, untouched), 0);
    EXPECT_EQ(untouched[0], 7.0);
}

TEST(PointInTriangle, BoundaryCodesDependOnTheEdge)
{
    auto pnt = [](P2 p, P2 a, P2 b, P2 c) { return mathChkPntTri2D(p, a, b, c, tol); };
    const P2 a = {0, 0}, b = {4, 0}, c = {0, 4};
    EXPECT_EQ(pnt({1, 1}, a, b, c), 1);
    EXPECT_EQ(pnt({3, 3}, a, b, c), 0);
    EXPECT_EQ(pnt({9, 9}, a, b, c), 0);
    EXPECT_EQ(pnt({1, 1}, a, c, b), 1); // clockwise
    EXPECT_EQ(pnt({3, 3}, a, c, b), 0);

    // On AB or BC alone: inside. On the line of CA, or at B (on both AB and
    // BC): boundary. The same holds within tol outside the edges.
    EXPECT_EQ(pnt({2, 0}, a, b, c), 1);
    EXPECT_EQ(pnt({2, 2}, a, b, c), 1);
    EXPECT_EQ(pnt({0, 2}, a, b, c), 2);
    EXPECT_EQ(pnt(b, a, b, c), 2);
    EXPECT_EQ(pnt({2, -1e-10}, a, b, c), 1);
    EXPECT_EQ(pnt({-1e-10, 2}, a, b, c), 2);
    EXPECT_EQ(pnt({2, 0}, a, b, b), 800); // a collapsed edge
}

TEST(TriangleShape, OrientationAndQuality)
{
    const double a[2] = {0, 0}, b[2] = {4, 0}, c[2] = {0, 3}, onLine[2] = {8, 1e-12};
    EXPECT_EQ(mathChkTriDir2D(a, b, c, tol), 1);
    EXPECT_EQ(mathChkTriDir2D(a, c, b, tol), 0);
    EXPECT_EQ(mathChkTriDir2D(a, b, onLine, tol), 800);
    EXPECT_EQ(mathChkTriDir2D(a, a, c, tol), 800);

    double q = -1;
    ASSERT_EQ(mathChkTriQuality2D(a, b, c, &q), 1);
    EXPECT_DOUBLE_EQ(q, (5.0 - 3.0) / 4.0);
    const double e0[3] = {0, 0, 1}, e1[3] = {1, 0, 1}, e2[3] = {0.5, std::sqrt(3.0) / 2.0, 1};
    ASSERT_EQ(mathChkTriQuality(e0, e1, e2, &q), 1);
    EXPECT_NEAR(q, 0.0, 1e-15);

    // Two coincident vertices.
    q = 42;
    EXPECT_EQ(mathChkTriQuality2D(a, a, c, &q), 0);
    EXPECT_EQ(mathChkTriQuality(e0, e1, e1, &q), -4);
    EXPECT_EQ(q, 42.0);

    ASSERT_EQ(mathChkXRatio3Edge(5, 3, 4, 3, &q), 1);
    EXPECT_DOUBLE_EQ(q, 0.5);
    EXPECT_EQ(mathChkXRatio3Edge(5, 2.999, 4, 3, &q), 0);
}

TEST(TriangleMeasures, AreaVolumeNormalAndPlaneDistance)
{
    const double a[3] = {1, 1, 2}, b[3] = {4, 1, 2}, c[3] = {1, 5, 2};
    EXPECT_DOUBLE_EQ(mathCalTriArea(a, b, c), 6.0);
    EXPECT_DOUBLE_EQ(mathCalTriAreaBy3Edge(3, 4, 5), 6.0);
    EXPECT_EQ(mathCalTriAreaBy3Edge(1, 1, 3), 0.0);

    const double up[3] = {1, 1, 5}, down[3] = {1, 1, -1};
    EXPECT_DOUBLE_EQ(mathCalPyramidVolume(a, b, c, up), 6.0);
    EXPECT_DOUBLE_EQ(mathCalPyramidVolume(a, b, c, down), -6.0);

    double n[3] = {9, 9, 9};
    ASSERT_EQ(mathGetTriNormal(a, b, c, tol, n), 1);
    expectNear(n, {0, 0, 1}, 0.0);
    // A vertex within tol of the opposite line.
    const double nearLine[3] = {2.5, 1.0 + 1e-4, 2};
    n[0] = 9;
    EXPECT_EQ(mathGetTriNormal(a, b, nearLine, 1e-3, n), 0);
    EXPECT_EQ(n[0], 9.0);
    EXPECT_EQ(mathGetTriNormal(a, b, nearLine, 1e-5, n), 1);

    // The three distances are summed, not averaged.
    EXPECT_DOUBLE_EQ(mathDistTriPln(a, b, up, P3{0, 0, 0}, P3{0, 0, 1}), 9.0);
}

TEST(TriangleMeasures, Centres)
{
    const double a[2] = {0, 0}, b[2] = {4, 0}, c[2] = {0, 3};
    double in[2];
    ASSERT_EQ(mathCalTriIncenter2D(a, b, c, in), 1);
    expectNear(in, {1.0, 1.0}, eps);
    in[0] = 7;
    EXPECT_EQ(mathCalTriIncenter2D(a, a, a, in), -4);
    EXPECT_EQ(in[0], 7.0);

    const double a3[3] = {0, 0, 0}, b3[3] = {0, 4, 0}, c3[3] = {0, 0, 3};
    double in3[3], g[3], o[3];
    ASSERT_EQ(mathCalTriIncenter(a3, b3, c3, in3), 1);
    expectNear(in3, {0.0, 1.0, 1.0}, eps);
    mathCalTriBarycenter(a3, b3, c3, g);
    expectNear(g, {0.0, 4.0 / 3.0, 1.0}, eps);

    // A general triangle in space: equidistant from the three vertices and
    // in their plane.
    const double p[3] = {1, 2, 3}, q[3] = {-2, 0.5, 4}, r[3] = {0.3, -1, -2};
    ASSERT_EQ(mathCalTriCircumcenter(p, q, r, o), 1);
    EXPECT_NEAR(mathDist(o, p), mathDist(o, q), 1e-9);
    EXPECT_NEAR(mathDist(o, p), mathDist(o, r), 1e-9);
    EXPECT_NEAR(mathCalPyramidVolume(p, q, r, o), 0.0, 1e-9);

    o[0] = 5;
    EXPECT_EQ(mathCalTriCircumcenter(a3, b3, b3, o), -4);
    EXPECT_EQ(mathCalTriCircumcenter(a3, b3, P3{0, 8, 0}, o), -4); // collinear
    EXPECT_EQ(o[0], 5.0);
}

TEST(Contours, ZeroPointOnAnEdgeAndLineOverATriangle)
{
    const double v1[3] = {0, 0, 0}, v2[3] = {4, 8, -4};
    double v[3] = {9, 9, 9};
    ASSERT_EQ(mathEvalLinContPnt(3, v1, v2, -1.0, 3.0, 1e-6, v), 1);
    expectNear(v, {1.0, 2.0, -1.0}, eps);

    // No sign change: an end with a vanishing value, first v1 then v2.
    ASSERT_EQ(mathEvalLinContPnt(3, v1, v2, 1e-9, 1e-9, 1e-6, v), 1);
    EXPECT_EQ(v[1], 0.0);
    ASSERT_EQ(mathEvalLinContPnt(3, v1, v2, 2.0, 0.0, 1e-6, v), 1);
    EXPECT_EQ(v[1], 8.0);
    v[0] = 9;
    EXPECT_EQ(mathEvalLinContPnt(3, v1, v2, 1.0, 2.0, 1e-6, v), 0);
    EXPECT_EQ(v[0], 9.0);
    // A sign change counts only when the product is below -1e-50.
    EXPECT_EQ(mathEvalLinContPnt(3, v1, v2, 1e-30, -1e-30, 0.0, v), 0);
    EXPECT_EQ(mathEvalLinContPnt(3, v1, v2, 1e-20, -1e-20, 0.0, v), 1);

    // Over a triangle: the zero line between two edge points.
    const double u1[2] = {0, 0}, u2[2] = {2, 0}, u3[2] = {0, 2};
    double ends[4]; // va, then vb
    auto line = [&](double f1, double f2, double f3, double t, double minLen = 0.0) {
        return mathEvalTriContLin(2, u1, u2, u3, f1, f2, f3, t, minLen, ends, ends + 2);
    };

    // Two vanishing vertices give their edge as it is.
    ASSERT_EQ(line(0.0, 0.0, 5.0, 1e-6), 1);
    expectNear(ends, {0, 0, 2, 0}, eps);
    ASSERT_EQ(line(0.0, 5.0, 0.0, 1e-6), 1);
    expectNear(ends, {0, 0, 0, 2}, eps);
    ASSERT_EQ(line(5.0, 0.0, 0.0, 1e-6), 1);
    expectNear(ends, {2, 0, 0, 2}, eps);
    // One vertex on each side: crossings on V1V2 and V3V1.
    ASSERT_EQ(line(-1.0, 1.0, 1.0, 1e-6), 1);
    expectNear(ends, {1, 0, 0, 1}, eps);
    // The line through a vertex: V1 and the middle of V2V3.
    ASSERT_EQ(line(0.0, -1.0, 1.0, 1e-6), 1);
    expectNear(ends, {0, 0, 1, 1}, eps);
    // Three zero points (a near-zero vertex under a coarse tolerance): the
    // two farthest apart are kept.
    ASSERT_EQ(line(0.05, -1.0, 1.0, 0.1), 1);
    expectNear(ends, {0, 0, 1, 1}, eps);

    // All on one side, and a line shorter than minLen.
    EXPECT_EQ(line(1.0, 2.0, 3.0, 1e-6), 0);
    EXPECT_EQ(line(-1.0, 1.0, 1.0, 1e-6, 1.5), 0);
    EXPECT_EQ(line(-1.0, 1.0, 1.0, 1e-6, 1.4), 1);
}

TEST(SegmentTriangle, CrossingCoplanarAndDegenerate)
{
    const double t0[3] = {0, 0, 0}, t1[3] = {4, 0, 0}, t2[3] = {0, 4, 0};
    double p[6]; // p1, then p2
    auto hit = [&](P3 a, P3 b) { return mathIntSegmTri(a, b, t0, t1, t2, tol, p, p + 3); };

    ASSERT_EQ(hit({1, 1, -1}, {1, 1, 3}), 1);
    expectNear(p, {1, 1, 0}, eps);
    EXPECT_EQ(hit({3, 3, -1}, {3, 3, 1}), 0); // through the plane, beside the triangle
    EXPECT_EQ(hit({1, 1, 1}, {1, 1, 2}), 0);  // short of the plane
    ASSERT_EQ(hit({2, 1, 0}, {2, 1, 5}), 1);  // an end on the triangle
    expectNear(p, {2, 1, 0}, 0.0);

    // In the plane: the chord clipped to the segment, in segment order.
    ASSERT_EQ(hit({5, 1, 0}, {-1, 1, 0}), 4);
    expectNear(p, {3, 1, 0, 0, 1, 0}, eps);
    ASSERT_EQ(hit({1, 1, 0}, {5, 1, 0}), 4);
    expectNear(p, {1, 1, 0, 3, 1, 0}, eps);
    // Touching a vertex, and passing beside the triangle.
    ASSERT_EQ(hit({-1, 4, 0}, {1, 4, 0}), 1);
    expectNear(p, {0, 4, 0}, eps);
    EXPECT_EQ(hit({5, 5, 0}, {6, 5, 0}), 0);
    EXPECT_EQ(hit({3, 3, 0}, {5, 5, 0}), 0);

    EXPECT_EQ(hit({1, 1, 0}, {1, 1, 1e-9}), 800);
    const double flat[3] = {8, 0, 0}, a[3] = {1, 1, -1}, b[3] = {1, 1, 1};
    EXPECT_EQ(mathIntSegmTri(a, b, t0, t1, flat, tol, p, p + 3), 800);
    // With tol 0 only the edge guard sees a vanishing edge.
    EXPECT_EQ(mathIntSegmTri(a, b, t0, P3{1e-11, 0, 0}, t2, 0.0, p, p + 3), 800);
}

} // namespace
