#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

namespace {

const double pi = 3.141592653589793;

// Orthonormal frames in general position.
MathRFrame derivedFrame(std::initializer_list<double> o, std::initializer_list<double> z,
                        std::initializer_list<double> r)
{
    MathRFrame f;
    EXPECT_EQ(mathDerivFrame(o.begin(), z.begin(), r.begin(), &f), 1);
    return f;
}

MathRFrame tiltedFrame()
{
    return derivedFrame({1.5, -2.0, 0.75}, {1.0, 2.0, 2.0}, {0.3, -1.0, 0.2});
}

MathRFrame otherFrame()
{
    return derivedFrame({-3.0, 0.5, 4.0}, {-0.2, 0.1, 1.0}, {1.0, 1.0, 0.0});
}

void expectNear(const double* a, const double* b, int n, double eps)
{
    for (int i = 0; i < n; ++i)
        EXPECT_NEAR(a[i], b[i], eps) << "component " << i;
}

void expectNear(const double* a, std::initializer_list<double> b, double eps)
{
    expectNear(a, b.begin(), static_cast<int>(b.size()), eps);
}

void expectIdentity(const MathRFrame& f, double eps)
{
    MathRFrame id;
    mathInitRFrame(&id);
    EXPECT_EQ(mathRFrameEqu(&f, &id, eps), 1);
    EXPECT_NEAR(f.scale, 1.0, eps);
}

TEST(FrameRecord, IdentityMoveScaleAndArrays)
{
    MathRFrame f;
    mathInitRFrame(&f);
    mathInitRFrame(nullptr);
    EXPECT_EQ(mathIsRFrameUnit(&f), 1);
    EXPECT_EQ(mathIsRFrameUnit(nullptr), 0);
    f.scale = 1.0 + 2e-12;
    EXPECT_EQ(mathIsRFrameUnit(&f), 0);
    f.scale = 1.0 + 5e-13;
    EXPECT_EQ(mathIsRFrameUnit(&f), 1);

    // Scaling only moves the origin.
    MathRFrame g = tiltedFrame();
    const MathRFrame before = g;
    const double v[3] = {1, 2, 3};
    mathScaleRFrame(v, 5, &g);
    expectNear(g.origin, {before.origin[0] + 1, before.origin[1] + 2, before.origin[2] + 3}, 0.0);
    expectNear(g.xAxis, before.xAxis, 3, 0.0);
    expectNear(g.zAxis, before.zAxis, 3, 0.0);
    EXPECT_EQ(g.scale, before.scale);

    // A derived frame is right-handed with z along the given direction; it
    // fails for r along z and for z shorter than 1e-8.
    EXPECT_NEAR(mathMProduct(g.xAxis, g.yAxis, g.zAxis), 1.0, 1e-15);
    EXPECT_NEAR(g.zAxis[0], 1.0 / 3.0, 1e-15);
    const double o[3] = {0, 0, 0}, z[3] = {0, 0, 2}, along[3] = {0, 0, -5}, tiny[3] = {0, 0, 1e-9};
    EXPECT_EQ(mathDerivFrame(o, z, along, &g), 0);
    EXPECT_EQ(mathDerivFrame(o, tiny, v, &g), 0);

    // Arrays of frames start as identities.
    MathRFrame** arr = mathNewRFrameStr(3);
    ASSERT_NE(arr, nullptr);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(arr[i]->scale, 1.0);
    mathFreRFrameStr(3, arr);
    mathFreRFrameStr(3, nullptr);
    EXPECT_EQ(mathNewRFrameStr(0), nullptr);
}

TEST(FrameConversion, RoundTripsFromFramesAxesAndRuns)
{
    const MathRFrame f = tiltedFrame();
    const double p[3] = {0.25, 7.0, -3.5};
    double local[3], back[3], q[3] = {p[0], p[1], p[2]};
    mathTransWorldPnt3D(&f, p, local);
    mathTransLocalPnt3D(&f, local, back);
    expectNear(back, p, 3, 1e-14);
    mathTransWorldPnt3D(&f, q, q);
    expectNear(q, local, 3, 0.0);
    mathTransWorldVec3D(&f, p, local);
    mathTransLocalVec3D(&f, local, back);
    expectNear(back, p, 3, 1e-14);

    // A point of the XY plane and back; a planar vector has no local z.
    const double p2[2] = {3.0, -1.25};
    double w2[3], back2[2];
    mathTransLocalPnt2D(&f, p2, w2);
    mathTransWorldPnt3DTo2D(&f, w2, back2);
    expectNear(back2, p2, 2, 1e-14);
    mathTransLocalVec2D(&f, p2, w2);
    mathTransWorldVec3D(&f, w2, local);
    expectNear(local, {p2[0], p2[1], 0.0}, 1e-14);

    // The same conversions from separate axes; each returns its output.
    double a[3], c[2];
    EXPECT_EQ(mathTransWorldPnt3DByOXYZ(f.origin, f.xAxis, f.yAxis, f.zAxis, p, a), a);
    EXPECT_EQ(mathTransLocalPnt3DByOXYZ(f.origin, f.xAxis, f.yAxis, f.zAxis, a, back), back);
    expectNear(back, p, 3, 1e-14);
    EXPECT_EQ(mathTransWorldPnt3DTo2DByOXY(f.origin, f.xAxis, f.yAxis, p, c), c);
    EXPECT_EQ(c[1], a[1]);
    // The output may share its storage with the y axis.
    double yq[3] = {f.yAxis[0], f.yAxis[1], f.yAxis[2]};
    mathTransWorldPnt3DTo2DByOXY(f.origin, f.xAxis, yq, p, yq);
    expectNear(yq, c, 2, 0.0);
    EXPECT_EQ(mathTransWorldVec3DByXYZ(f.xAxis, f.yAxis, f.zAxis, p, a), a);
    EXPECT_EQ(mathTransLocalVec3DByXYZ(f.xAxis, f.yAxis, f.zAxis, a, back), back);

    // The plane frame: the y axis is x turned anticlockwise.
    const double o[2] = {1, 1}, x[2] = {0.6, 0.8}, left[2] = {1 - 0.8, 1 + 0.6}, pp[2] = {-4.0, 2.5};
    double l[2], w[2];
    mathTransWorldPnt2DByOX(o, x, left, l);
    expectNear(l, {0.0, 1.0}, 1e-15);
    mathTransWorldPnt2DByOX(o, x, pp, l);
    mathTransLocalPnt2DByOX(o, x, l, w);
    expectNear(w, pp, 2, 1e-14);

    // Homogeneous points, converted in runs.
    const double pts[12] = {1, 2, 3, 1, 2, 4, 6, 2, -1, 0.5, 3, -0.5};
    double local4[12], world4[12];
    ASSERT_EQ(mathTransWorldStr4D(3, &f, pts, local4), 1);
    ASSERT_EQ(mathTransLocalStr4D(3, &f, local4, world4), 1);
    expectNear(world4, pts, 12, 1e-13);
    EXPECT_EQ(local4[11], -0.5);

    // A point at infinity stops the conversion after the earlier points.
    const double bad[8] = {1, 2, 3, 1, 1, 1, 1, 1e-11};
    double out[8] = {9, 9, 9, 9, 9, 9, 9, 9};
    EXPECT_EQ(mathTransLocalStr4D(2, &f, bad, out), 0);
    EXPECT_NE(out[0], 9.0);
    EXPECT_EQ(out[4], 9.0);
    EXPECT_EQ(mathTransLocalStr4D(0, &f, bad, out), 1);
}

TEST(FrameAlgebra, InverseProductEqualityAndRotation)
{
    const MathRFrame a = tiltedFrame(), b = otherFrame();
    MathRFrame rel, inv, prod;
    mathEvalRFrame(&a, &a, &rel);
    expectIdentity(rel, 1e-14);
    mathInvsRFrame(&a, &inv);
    mathMultRFrame(&a, &inv, &prod);
    expectIdentity(prod, 1e-14);

    // b expressed in a, placed back inside a, is b again.
    mathEvalRFrame(&a, &b, &rel);
    mathMultRFrame(&a, &rel, &prod);
    EXPECT_EQ(mathRFrameEqu(&prod, &b, 1e-12), 1);

    // Aliased outputs; a null operand leaves the output alone.
    MathRFrame c = a;
    mathInvsRFrame(&c, &c);
    EXPECT_EQ(mathRFrameEqu(&c, &inv, 0.0), 1);
    mathMultRFrame(&a, &c, &c);
    expectIdentity(c, 1e-14);
    c.scale = 42;
    mathMultRFrame(&a, nullptr, &c);
    EXPECT_EQ(c.scale, 42.0);

    // Equality: the scale is not compared; a shift of 2e-3, or a turn of
    // 2e-3 about the frame's own z axis, fails at 1e-3 and passes at 3e-3.
    c = a;
    c.scale = 3;
    EXPECT_EQ(mathRFrameEqu(&a, &c, 1e-9), 1);
    const double shift[3] = {0, 2e-3, 0};
    mathMoveRFrame(shift, &c);
    EXPECT_EQ(mathRFrameEqu(&a, &c, 1e-3), 0);
    EXPECT_EQ(mathRFrameEqu(&a, &c, 3e-3), 1);
    c = a;
    mathRotateRFrame(a.zAxis, a.origin, 2e-3, &c);
    expectNear(c.origin, a.origin, 3, 1e-15);
    EXPECT_EQ(mathRFrameEqu(&a, &c, 1e-3), 0);
    EXPECT_EQ(mathRFrameEqu(&a, &c, 3e-3), 1);

    // A quarter turn about the world z axis through (1, 0, 0).
    MathRFrame f;
    mathInitRFrame(&f);
    const double d[3] = {0, 0, 1}, q[3] = {1, 0, 0}, local[3] = {1, 2, 3};
    mathRotateRFrame(d, q, pi / 2, &f);
    expectNear(f.origin, {1, -1, 0}, 1e-15);
    expectNear(f.xAxis, {0, 1, 0}, 1e-15);
    expectNear(f.yAxis, {-1, 0, 0}, 1e-15);
    EXPECT_EQ(f.zAxis[2], 1.0);
    // Local (1, 2, 3) is origin + x + 2 y + 3 z in that frame.
    double w[3];
    mathTransLocalPnt3D(&f, local, w);
    expectNear(w, {-1, 0, 3}, 1e-15);
}

TEST(FrameMatrix, RowAndColumnForms)
{
    const MathRFrame f = tiltedFrame();
    double col[16], row[16], row2[16];
    mathGetMatrixFromRFrame(&f, col);
    mathGetMatrixFromRFrame2(&f, row);
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            EXPECT_EQ(col[4 * i + j], row[4 * j + i]);
    EXPECT_EQ(row[12], f.origin[0]);
    EXPECT_EQ(row[3], 0.0);
    mathMatxGetRFrame(&f, row2);
    expectNear(row2, row, 16, 0.0);

    MathRFrame g;
    mathGetRFrameFromMatrix(col, &g);
    EXPECT_EQ(mathRFrameEqu(&f, &g, 0.0), 1);
    EXPECT_EQ(g.scale, 1.0);

    // Null pointers are ignored where the functions check them.
    double untouched[16] = {7};
    mathMatxWorldToRFrame(nullptr, untouched);
    mathMatxGetRFrame(nullptr, untouched);
    mathGetMatrixFromRFrame(nullptr, untouched);
    mathGetMatrixFromRFrame(&f, nullptr);
    mathGetRFrameFromMatrix(untouched, nullptr);
    mathMatxRFrame(untouched, nullptr, &g);
    EXPECT_EQ(untouched[0], 7.0);

    // The row form applied to local coordinates gives world coordinates.
    const double p[3] = {1, -2, 3};
    double w1[3], w2[3];
    mathMatxPnt3D(row, p, w1);
    mathTransLocalPnt3D(&f, p, w2);
    expectNear(w1, w2, 3, 1e-14);

    // Products may overwrite an operand.
    double a[16], b[16], c[16], d[16];
    for (int i = 0; i < 16; ++i) {
        a[i] = 0.5 * i - 3;
        b[i] = (i * 7 % 5) - 1.5;
    }
    mathMatxMult4x4(a, b, c);
    EXPECT_EQ(c[6], a[4] * b[2] + a[5] * b[6] + a[6] * b[10] + a[7] * b[14]);
    mathMatxMult16(a, b, d);
    mathMatxMult4x4(a, b, a);
    expectNear(a, c, 16, 0.0);
    expectNear(d, c, 16, 0.0);
}

TEST(FrameMatrix, PointsVectorsAndMakers)
{
    const MathRFrame f = tiltedFrame();
    double m[16], a[3], b[3];
    mathMatxWorldToRFrame(&f, m);
    const double p[3] = {4, 5, -6};
    mathMatxVec3D(m, p, a);
    mathTransWorldVec3D(&f, p, b);
    expectNear(a, b, 3, 1e-14);
    mathMatxPnt3D(m, p, a);
    mathTransWorldPnt3D(&f, p, b);
    expectNear(a, b, 3, 1e-14);

    // Homogeneous points: weighted images; non-positive weights are skipped.
    const double h[4] = {8, 10, -12, 2}, neg[4] = {-4, -5, 6, -1};
    double hq[4], keep[4] = {9, 9, 9, 9};
    mathMatxPnt4D(m, h, hq);
    expectNear(hq, {2 * b[0], 2 * b[1], 2 * b[2]}, 1e-13);
    EXPECT_EQ(hq[3], 2.0);
    mathMatxPnt4D(m, neg, keep);
    expectNear(keep, {9, 9, 9, 9}, 0.0);

    // Translation does not act on vectors.
    const double v[3] = {1, 2, 3};
    mathMatxMove(v, m);
    mathMatxVec3D(m, p, a);
    expectNear(a, p, 3, 0.0);

    const double c[3] = {1, 1, 1}, s[3] = {2, 3, -1};
    mathMatxScale(c, s, m);
    mathMatxPnt3D(m, c, a);
    expectNear(a, c, 3, 0.0);
    mathMatxPnt3D(m, p, a);
    expectNear(a, {7, 13, 8}, 1e-15);

    // A quarter turn about the vertical line through (1, 1, 0).
    const double axis[3] = {0, 0, 1}, at[3] = {1, 1, 0}, r0[3] = {2, 1, 5};
    mathMatxRotate(axis, at, pi / 2, m);
    mathMatxPnt3D(m, r0, a);
    expectNear(a, {1, 2, 5}, 1e-15);

    const double n2[3] = {std::sqrt(0.5), std::sqrt(0.5), 0};
    mathMatxMirror(c, n2, m);
    mathMatxPnt3D(m, p, a);
    mathMirPnt(c, n2, p, b);
    expectNear(a, b, 3, 1e-14);
}

TEST(FrameMatrix, FramesThroughMatrices)
{
    const MathRFrame a = tiltedFrame(), b = otherFrame();
    double m[16];
    EXPECT_EQ(mathMatxRFrameToRFrame(&a, &b, m), 0);
    const double p[3] = {0.5, 1.5, -2.5};
    double viaMatrix[3], world[3], inA[3];
    mathMatxPnt3D(m, p, viaMatrix);
    mathTransLocalPnt3D(&b, p, world);
    mathTransWorldPnt3D(&a, world, inA);
    expectNear(viaMatrix, inA, 3, 1e-13);

    // A frame through its own world-to-local matrix is the identity; through
    // a rotation, the rotated frame.
    MathRFrame out, turned = b;
    mathMatxWorldToRFrame(&a, m);
    mathMatxRFrame(m, &a, &out);
    expectIdentity(out, 1e-14);
    const double axis[3] = {0, 0, 1}, at[3] = {0, 0, 0};
    mathMatxRotate(axis, at, 0.7, m);
    mathMatxRFrame(m, &b, &out);
    mathRotateRFrame(axis, at, 0.7, &turned);
    EXPECT_EQ(mathRFrameEqu(&out, &turned, 1e-12), 1);

    // A matrix that flattens y onto x leaves the z axis as it was.
    const double flat[16] = {1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    MathRFrame id;
    mathInitRFrame(&id);
    out.zAxis[0] = 42;
    mathMatxRFrame(flat, &id, &out);
    EXPECT_EQ(out.zAxis[0], 42.0);
    EXPECT_EQ(out.yAxis[0], 1.0);
}

TEST(GravityFrame, TetrahedronAndBarycentricRoundTrip)
{
    const double p0[3] = {0, 0, 0}, p1[3] = {1, 0, 0}, p2[3] = {0, 1, 0};
    MathGFrame g;
    ASSERT_EQ(mathGetGFrame3Pnt(p0, p1, p2, &g), 1);
    expectNear(g.p3, {1.0 / 3.0, 1.0 / 3.0, 1.0}, 1e-16);
    EXPECT_DOUBLE_EQ(g.volume, 1.0 / 6.0);
    double b[3];
    mathTransRectaPnt3D(&g, p0, b);
    expectNear(b, {1, 0, 0}, 1e-15);

    // A scaled, tilted base: Cartesian -> barycentric -> Cartesian.
    const double q0[3] = {1, 2, 3}, q1[3] = {4, -1, 2}, q2[3] = {0, 5, -2};
    ASSERT_EQ(mathGetGFrame3Pnt(q0, q1, q2, &g), 1);
    EXPECT_NEAR(mathCalPyramidVolume(g.p0, g.p1, g.p2, g.p3), g.volume, 1e-12);
    const double pts[8] = {7, -3, 0.5, 1, 2, 4, 6, 2};
    double bary[8], cart[8];
    ASSERT_EQ(mathTransRectaStr4D(2, &g, pts, bary), 1);
    ASSERT_EQ(mathTransGraviStr4D(2, &g, bary, cart), 1);
    expectNear(cart, pts, 8, 1e-12);
    EXPECT_EQ(mathTransGraviStr4D(-1, &g, pts, cart), 1);

    // Rebuilt from its own vertices in another order.
    MathGFrame turned;
    ASSERT_EQ(mathGetGFrame3Pnt(q1, q2, q0, &turned), 1);
    ASSERT_EQ(mathGetGFrame3Pnt(g.p1, g.p2, g.p0, &g), 1);
    expectNear(g.p0, q1, 3, 0.0);
    expectNear(g.p2, q0, 3, 0.0);
    expectNear(g.p3, turned.p3, 3, 0.0);

    // Collinear points: the base is stored, nothing else; a flat frame gives
    // the first vertex.
    const double c2[3] = {2, 0, 0};
    MathGFrame h;
    h.volume = 42;
    EXPECT_EQ(mathGetGFrame3Pnt(p0, p1, c2, &h), 0);
    EXPECT_EQ(h.p2[0], 2.0);
    EXPECT_EQ(h.volume, 42.0);
    h.volume = 0;
    mathTransRectaPnt3D(&h, q0, b);
    expectNear(b, {1, 0, 0}, 0.0);
}

} // namespace
