#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

namespace {

const double tol = 1e-9;

TEST(OriginInTriangle, CrossingsOfTheXAxis)
{
    const double a[2] = {-1, -1}, b[2] = {2, -1}, c[2] = {0, 2};
    EXPECT_EQ(mathChkOriInTri2D(a, b, c, tol), 1);

    // Origin beyond an edge, and a triangle whose box misses it.
    const double d[2] = {1, 1}, e[2] = {3, -1}, f[2] = {3, 1};
    EXPECT_EQ(mathChkOriInTri2D(d, e, f, tol), 0);

    // A vertex at the origin with the opposite edge across the axis.
    const double o[2] = {0, 0}, p[2] = {1, 1}, q[2] = {1, -1};
    EXPECT_EQ(mathChkOriInTri2D(o, p, q, tol), 1);
    // A vertex at the origin with the rest above the axis yields a single
    // crossing and so counts as outside.
    const double r[2] = {-1, 1};
    EXPECT_EQ(mathChkOriInTri2D(o, p, r, tol), 0);

    // The origin on an edge.
    const double s[2] = {-1, -1}, t[2] = {1, 1}, u[2] = {1, -3};
    EXPECT_EQ(mathChkOriInTri2D(s, t, u, tol), 1);

    // All three vertices on the axis.
    const double x0[2] = {-1, 0}, x1[2] = {1, 0}, x2[2] = {2, 1e-12};
    EXPECT_EQ(mathChkOriInTri2D(x0, x1, x2, tol), 800);
}

TEST(OriginInTriangle, QuadrilateralPairsTheSortedCrossings)
{
    const double a[2] = {-1, -1}, b[2] = {1, -1}, c[2] = {1, 1}, d[2] = {-1, 1};
    EXPECT_EQ(mathChkOriInQuad2D(a, b, c, d, tol), 1);
    const double e[2] = {2, -1}, f[2] = {3, -1}, g[2] = {3, 1}, h[2] = {2, 1};
    EXPECT_EQ(mathChkOriInQuad2D(e, f, g, h, tol), 0);

    // Every edge crosses the axis: the four crossings form two stretches and
    // the origin may lie in either one or between them.
    auto crossedQuad = [](double shift) {
        const double p[2] = {-2 + shift, 1}, q[2] = {-1 + shift, -1}, r[2] = {2 + shift, 1},
                     s[2] = {1 + shift, -1};
        return mathChkOriInQuad2D(p, q, r, s, tol);
    };
    EXPECT_EQ(crossedQuad(-1.0), 1); // crossings -2.5 -1.5 | -0.5 0.5
    EXPECT_EQ(crossedQuad(1.0), 1);  // crossings -0.5 0.5 | 1.5 2.5
    EXPECT_EQ(crossedQuad(0.0), 0);  // crossings -1.5 -0.5 | 0.5 1.5

    // One vertex on the axis plus two crossings: the outer two bound it.
    const double k[2] = {-2, 0}, l[2] = {-1, -1}, m[2] = {1, 1}, n[2] = {2, -1};
    EXPECT_EQ(mathChkOriInQuad2D(k, l, m, n, tol), 1);

    const double x0[2] = {-1, 0}, x1[2] = {1, 0}, x2[2] = {2, 0}, x3[2] = {3, 0};
    EXPECT_EQ(mathChkOriInQuad2D(x0, x1, x2, x3, tol), 800);
}

TEST(OriginInTriangle, WeightsAtVerticesEdgesAndInside)
{
    double w[3];
    const double a[2] = {-1, -1}, b[2] = {1, 1}, c[2] = {2, -3};
    ASSERT_EQ(mathChkOriInTri2DEx(a, b, c, tol, w), 1);
    EXPECT_DOUBLE_EQ(w[0], 0.5);
    EXPECT_DOUBLE_EQ(w[1], 0.5);
    EXPECT_EQ(w[2], 0.0);

    // The origin on CB: the weight of C is |B| / (|B| + |C|).
    const double d[2] = {-3, 1}, e[2] = {1, 1}, f[2] = {-3, -3};
    ASSERT_EQ(mathChkOriInTri2DEx(d, e, f, tol, w), 1);
    EXPECT_EQ(w[0], 0.0);
    EXPECT_NEAR(w[1], 0.75, 1e-15);
    EXPECT_NEAR(w[2], 0.25, 1e-15);

    const double o[2] = {0, 0}, p[2] = {1, 2}, q[2] = {-2, 1};
    ASSERT_EQ(mathChkOriInTri2DEx(p, o, q, tol, w), 1);
    EXPECT_EQ(w[0], 0.0);
    EXPECT_EQ(w[1], 1.0);
    EXPECT_EQ(w[2], 0.0);

    // Inside: the weights reproduce the origin.
    const double g[2] = {-1, -1}, h[2] = {3, -0.5}, k[2] = {0.5, 2};
    ASSERT_EQ(mathChkOriInTri2DEx(g, h, k, tol, w), 1);
    EXPECT_NEAR(w[0] + w[1] + w[2], 1.0, 1e-15);
    EXPECT_NEAR(w[0] * g[0] + w[1] * h[0] + w[2] * k[0], 0.0, 1e-14);
    EXPECT_NEAR(w[0] * g[1] + w[1] * h[1] + w[2] * k[1], 0.0, 1e-14);

    // Outside but within the box: weights written, result 0.
    const double l[2] = {-0.5, 1.5}, m[2] = {1.5, 1.5}, n[2] = {1.5, -0.5};
    EXPECT_EQ(mathChkOriInTri2DEx(l, m, n, tol, w), 0);
    EXPECT_LT(std::fmin(w[0], std::fmin(w[1], w[2])), 0.0);
}

TEST(Barycentric, RoundTripAndDegenerateTriangle)
{
    const double a[2] = {0.3, -1.2}, b[2] = {4.1, 0.7}, c[2] = {-0.8, 2.9};
    const double pts[][2] = {{0.5, 0.5}, {10, -3}, {0.3, -1.2}, {-7.5, 4.25}};
    for (const auto& p : pts) {
        double w[3];
        ASSERT_EQ(mathCalTri2DGCP(a, b, c, p, w), 1);
        EXPECT_DOUBLE_EQ(w[0] + w[1] + w[2], 1.0);
        EXPECT_NEAR(w[0] * a[0] + w[1] * b[0] + w[2] * c[0], p[0], 1e-12);
        EXPECT_NEAR(w[0] * a[1] + w[1] * b[1] + w[2] * c[1], p[1], 1e-12);
    }
    // The origin form agrees with the general one.
    double w[3], wo[3];
    const double o[2] = {0, 0};
    ASSERT_EQ(mathCalTri2DGCO(a, b, c, wo), 1);
    ASSERT_EQ(mathCalTri2DGCP(a, b, c, o, w), 1);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(wo[i], w[i]);

    const double d[2] = {1, 1}, e[2] = {2, 2}, f[2] = {3, 3};
    double untouched[3] = {7, 8, 9};
    EXPECT_EQ(mathCalTri2DGCP(d, e, f, o, untouched), 0);
    EXPECT_EQ(mathCalTri2DGCO(d, e, f, untouched), 0);
    EXPECT_EQ(untouched[0], 7.0);
    EXPECT_EQ(untouched[2], 9.0);
}

TEST(PointInTriangle, BoundaryCodesDependOnTheEdge)
{
    const double a[2] = {0, 0}, b[2] = {4, 0}, c[2] = {0, 4};
    const double inside[2] = {1, 1}, outside[2] = {3, 3}, farAway[2] = {9, 9};
    EXPECT_EQ(mathChkPntTri2D(inside, a, b, c, tol), 1);
    EXPECT_EQ(mathChkPntTri2D(outside, a, b, c, tol), 0);
    EXPECT_EQ(mathChkPntTri2D(farAway, a, b, c, tol), 0);

    // On AB or BC alone: inside. On the line of CA: boundary. At B (on both
    // AB and BC): boundary.
    const double onAB[2] = {2, 0}, onBC[2] = {2, 2}, onCA[2] = {0, 2};
    EXPECT_EQ(mathChkPntTri2D(onAB, a, b, c, tol), 1);
    EXPECT_EQ(mathChkPntTri2D(onBC, a, b, c, tol), 1);
    EXPECT_EQ(mathChkPntTri2D(onCA, a, b, c, tol), 2);
    EXPECT_EQ(mathChkPntTri2D(b, a, b, c, tol), 2);
    // Just outside AB but within tol counts as inside; just outside CA as
    // boundary.
    const double belowAB[2] = {2, -1e-10}, leftOfCA[2] = {-1e-10, 2};
    EXPECT_EQ(mathChkPntTri2D(belowAB, a, b, c, tol), 1);
    EXPECT_EQ(mathChkPntTri2D(leftOfCA, a, b, c, tol), 2);

    // A clockwise triangle gives the same answers for interior points.
    EXPECT_EQ(mathChkPntTri2D(inside, a, c, b, tol), 1);
    EXPECT_EQ(mathChkPntTri2D(outside, a, c, b, tol), 0);

    // A collapsed edge.
    EXPECT_EQ(mathChkPntTri2D(onAB, a, b, b, tol), 800);
}

TEST(TriangleShape, OrientationAndQuality)
{
    const double a[2] = {0, 0}, b[2] = {4, 0}, c[2] = {0, 3};
    EXPECT_EQ(mathChkTriDir2D(a, b, c, tol), 1);
    EXPECT_EQ(mathChkTriDir2D(a, c, b, tol), 0);
    const double onLine[2] = {8, 1e-12};
    EXPECT_EQ(mathChkTriDir2D(a, b, onLine, tol), 800);
    EXPECT_EQ(mathChkTriDir2D(a, a, c, tol), 800);

    double q = -1;
    ASSERT_EQ(mathChkTriQuality2D(a, b, c, &q), 1);
    EXPECT_DOUBLE_EQ(q, (5.0 - 3.0) / 4.0);
    const double h = std::sqrt(3.0) / 2.0;
    const double e0[3] = {0, 0, 1}, e1[3] = {1, 0, 1}, e2[3] = {0.5, h, 1};
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
    EXPECT_EQ(n[0], 0.0);
    EXPECT_EQ(n[1], 0.0);
    EXPECT_EQ(n[2], 1.0);
    ASSERT_EQ(mathGetTriNormal(a, c, b, tol, n), 1);
    EXPECT_EQ(n[2], -1.0);
    // A vertex within tol of the opposite line.
    const double nearLine[3] = {2.5, 1.0 + 1e-4, 2};
    n[0] = 9;
    EXPECT_EQ(mathGetTriNormal(a, b, nearLine, 1e-3, n), 0);
    EXPECT_EQ(n[0], 9.0);
    EXPECT_EQ(mathGetTriNormal(a, b, nearLine, 1e-5, n), 1);

    // The three distances are summed, not averaged.
    const double p0[3] = {0, 0, 0}, nz[3] = {0, 0, 1};
    EXPECT_DOUBLE_EQ(mathDistTriPln(a, b, c, p0, nz), 6.0);
    const double tilted[3] = {1, 1, 5};
    EXPECT_DOUBLE_EQ(mathDistTriPln(a, b, tilted, p0, nz), 9.0);
}

TEST(TriangleMeasures, Centres)
{
    const double a[2] = {0, 0}, b[2] = {4, 0}, c[2] = {0, 3};
    double in[2];
    ASSERT_EQ(mathCalTriIncenter2D(a, b, c, in), 1);
    EXPECT_DOUBLE_EQ(in[0], 1.0);
    EXPECT_DOUBLE_EQ(in[1], 1.0);
    in[0] = 7;
    EXPECT_EQ(mathCalTriIncenter2D(a, a, a, in), -4);
    EXPECT_EQ(in[0], 7.0);

    const double a3[3] = {0, 0, 0}, b3[3] = {0, 4, 0}, c3[3] = {0, 0, 3};
    double in3[3];
    ASSERT_EQ(mathCalTriIncenter(a3, b3, c3, in3), 1);
    EXPECT_EQ(in3[0], 0.0);
    EXPECT_DOUBLE_EQ(in3[1], 1.0);
    EXPECT_DOUBLE_EQ(in3[2], 1.0);

    double g[3];
    mathCalTriBarycenter(a3, b3, c3, g);
    EXPECT_DOUBLE_EQ(g[1], 4.0 / 3.0);
    EXPECT_DOUBLE_EQ(g[2], 1.0);

    // A right triangle: the circumcentre is the middle of the hypotenuse.
    double o[3];
    ASSERT_EQ(mathCalTriCircumcenter(a3, b3, c3, o), 1);
    EXPECT_NEAR(o[0], 0.0, 1e-12);
    EXPECT_NEAR(o[1], 2.0, 1e-12);
    EXPECT_NEAR(o[2], 1.5, 1e-12);

    // A general triangle in space: equidistant from the three vertices and
    // in their plane.
    const double p[3] = {1, 2, 3}, q[3] = {-2, 0.5, 4}, r[3] = {0.3, -1, -2};
    ASSERT_EQ(mathCalTriCircumcenter(p, q, r, o), 1);
    EXPECT_NEAR(mathDist(o, p), mathDist(o, q), 1e-9);
    EXPECT_NEAR(mathDist(o, p), mathDist(o, r), 1e-9);
    EXPECT_NEAR(mathCalPyramidVolume(p, q, r, o), 0.0, 1e-9);

    o[0] = 5;
    EXPECT_EQ(mathCalTriCircumcenter(a3, b3, b3, o), -4);
    const double line[3] = {0, 8, 0};
    o[0] = 5;
    EXPECT_EQ(mathCalTriCircumcenter(a3, b3, line, o), -4);
    EXPECT_EQ(o[0], 5.0);
}

TEST(Contours, ZeroPointOnAnEdge)
{
    const double v1[3] = {0, 0, 0}, v2[3] = {4, 8, -4};
    double v[3] = {9, 9, 9};
    ASSERT_EQ(mathEvalLinContPnt(3, v1, v2, -1.0, 3.0, 1e-6, v), 1);
    EXPECT_DOUBLE_EQ(v[0], 1.0);
    EXPECT_DOUBLE_EQ(v[1], 2.0);
    EXPECT_DOUBLE_EQ(v[2], -1.0);

    // No sign change: an end with a vanishing value, first v1 then v2.
    ASSERT_EQ(mathEvalLinContPnt(3, v1, v2, 1e-9, 1e-9, 1e-6, v), 1);
    EXPECT_EQ(v[1], 0.0);
    ASSERT_EQ(mathEvalLinContPnt(3, v1, v2, 2.0, 0.0, 1e-6, v), 1);
    EXPECT_EQ(v[1], 8.0);
    v[0] = 9;
    EXPECT_EQ(mathEvalLinContPnt(3, v1, v2, 1.0, 2.0, 1e-6, v), 0);
    EXPECT_EQ(v[0], 9.0);
    // Both values zero: the first end.
    ASSERT_EQ(mathEvalLinContPnt(3, v2, v1, 0.0, 0.0, 1e-6, v), 1);
    EXPECT_EQ(v[0], 4.0);
}

TEST(Contours, ZeroLineOverATriangle)
{
    const double v1[2] = {0, 0}, v2[2] = {2, 0}, v3[2] = {0, 2};
    double va[2], vb[2];

    // Two vanishing vertices give their edge as it is.
    ASSERT_EQ(mathEvalTriContLin(2, v1, v2, v3, 0.0, 0.0, 5.0, 1e-6, 0.0, va, vb), 1);
    EXPECT_EQ(va[0], 0.0);
    EXPECT_EQ(vb[0], 2.0);
    ASSERT_EQ(mathEvalTriContLin(2, v1, v2, v3, 0.0, 5.0, 0.0, 1e-6, 0.0, va, vb), 1);
    EXPECT_EQ(vb[1], 2.0);
    ASSERT_EQ(mathEvalTriContLin(2, v1, v2, v3, 5.0, 0.0, 0.0, 1e-6, 0.0, va, vb), 1);
    EXPECT_EQ(va[0], 2.0);
    EXPECT_EQ(vb[1], 2.0);

    // One vertex on each side: crossings on V1V2 and V3V1.
    ASSERT_EQ(mathEvalTriContLin(2, v1, v2, v3, -1.0, 1.0, 1.0, 1e-6, 0.0, va, vb), 1);
    EXPECT_DOUBLE_EQ(va[0], 1.0);
    EXPECT_EQ(va[1], 0.0);
    EXPECT_EQ(vb[0], 0.0);
    EXPECT_DOUBLE_EQ(vb[1], 1.0);

    // The line through a vertex: V1 and the middle of V2V3.
    ASSERT_EQ(mathEvalTriContLin(2, v1, v2, v3, 0.0, -1.0, 1.0, 1e-6, 0.0, va, vb), 1);
    EXPECT_EQ(va[0], 0.0);
    EXPECT_EQ(va[1], 0.0);
    EXPECT_DOUBLE_EQ(vb[0], 1.0);
    EXPECT_DOUBLE_EQ(vb[1], 1.0);

    // Three zero points (a near-zero vertex under a coarse tolerance): the
    // two farthest apart are kept.
    ASSERT_EQ(mathEvalTriContLin(2, v1, v2, v3, 0.05, -1.0, 1.0, 0.1, 0.0, va, vb), 1);
    EXPECT_EQ(va[0], 0.0);
    EXPECT_EQ(va[1], 0.0);
    EXPECT_DOUBLE_EQ(vb[0], 1.0);

    // All on one side, and a line shorter than minLen.
    EXPECT_EQ(mathEvalTriContLin(2, v1, v2, v3, 1.0, 2.0, 3.0, 1e-6, 0.0, va, vb), 0);
    EXPECT_EQ(mathEvalTriContLin(2, v1, v2, v3, -1.0, 1.0, 1.0, 1e-6, 1.5, va, vb), 0);
    EXPECT_EQ(mathEvalTriContLin(2, v1, v2, v3, -1.0, 1.0, 1.0, 1e-6, 1.4, va, vb), 1);
}

TEST(SegmentTriangle, CrossingCoplanarAndDegenerate)
{
    const double t0[3] = {0, 0, 0}, t1[3] = {4, 0, 0}, t2[3] = {0, 4, 0};
    double p1[3], p2[3];
    auto hit = [&](std::initializer_list<double> a, std::initializer_list<double> b) {
        return mathIntSegmTri(a.begin(), b.begin(), t0, t1, t2, tol, p1, p2);
    };

    ASSERT_EQ(hit({1, 1, -1}, {1, 1, 3}), 1);
    const double cross[3] = {1, 1, 0};
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(p1[i], cross[i], 1e-15);
    EXPECT_EQ(hit({3, 3, -1}, {3, 3, 1}), 0); // through the plane, beside the triangle
    EXPECT_EQ(hit({1, 1, 1}, {1, 1, 2}), 0);  // short of the plane
    ASSERT_EQ(hit({2, 1, 0}, {2, 1, 5}), 1);  // an end on the triangle
    EXPECT_EQ(p1[2], 0.0);

    // In the plane: the chord clipped to the segment, in segment order.
    ASSERT_EQ(hit({5, 1, 0}, {-1, 1, 0}), 4);
    EXPECT_NEAR(p1[0], 3.0, 1e-15);
    EXPECT_NEAR(p2[0], 0.0, 1e-15);
    EXPECT_NEAR(p2[1], 1.0, 1e-15);
    ASSERT_EQ(hit({1, 1, 0}, {5, 1, 0}), 4);
    EXPECT_NEAR(p1[0], 1.0, 1e-15);
    EXPECT_NEAR(p2[0], 3.0, 1e-15);
    // Touching a vertex, and passing beside the triangle.
    ASSERT_EQ(hit({-1, 4, 0}, {1, 4, 0}), 1);
    EXPECT_NEAR(p1[0], 0.0, 1e-15);
    EXPECT_NEAR(p1[1], 4.0, 1e-15);
    EXPECT_EQ(hit({5, 5, 0}, {6, 5, 0}), 0);
    EXPECT_EQ(hit({3, 3, 0}, {5, 5, 0}), 0);

    EXPECT_EQ(hit({1, 1, 0}, {1, 1, 1e-9}), 800);
    const double flat[3] = {8, 0, 0};
    const double a[3] = {1, 1, -1}, b[3] = {1, 1, 1};
    EXPECT_EQ(mathIntSegmTri(a, b, t0, t1, flat, tol, p1, p2), 800);
    // With tol 0 only the edge guard sees a vanishing edge.
    const double close[3] = {1e-11, 0, 0};
    EXPECT_EQ(mathIntSegmTri(a, b, t0, close, t2, 0.0, p1, p2), 800);
}

} // namespace
