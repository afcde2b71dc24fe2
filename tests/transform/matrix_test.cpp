#include <korvex/classes.hpp>

#include <gtest/gtest.h>

#include <cmath>

namespace {

const float kPi = 3.14159265f;

void expectPoint(const point_2d& p, float x, float y, float tol = 1e-5f)
{
    EXPECT_NEAR(p.x, x, tol);
    EXPECT_NEAR(p.y, y, tol);
}

void expectPoint(const point_3d& p, float x, float y, float z, float tol = 1e-5f)
{
    EXPECT_NEAR(p.x, x, tol);
    EXPECT_NEAR(p.y, y, tol);
    EXPECT_NEAR(p.z, z, tol);
}

point_2d apply2D(const float* m, float x, float y)
{
    point_2d q;
    TransPoint2D(point_2d(x, y), &q, m);
    return q;
}

point_3d apply3D(const float* m, float x, float y, float z)
{
    point_3d q;
    TransPoint3D(point_3d(x, y, z), &q, m);
    return q;
}

void expectArray(const float* a, const float* b, int n, float tol = 0.0f)
{
    for (int k = 0; k < n; ++k)
        EXPECT_NEAR(a[k], b[k], tol) << "entry " << k;
}

void expectIdentity3D(const float* m, float tol = 0.0f)
{
    float id[16];
    InitMatrix3D(id);
    expectArray(m, id, 16, tol);
}

// The product a * b, written over either operand, equals the product into
// separate storage.
template <int N>
void expectProductAliases(void (*copy)(const float*, float*), void (*mult)(const float*, const float*, float*),
                          const float* a, const float* b)
{
    float ref[N], x[N], y[N];
    mult(a, b, ref);
    copy(a, x);
    mult(x, b, x);
    copy(b, y);
    mult(a, y, y);
    expectArray(x, ref, N);
    expectArray(y, ref, N);
}

} // namespace

TEST(MatrixArrays, ProductsActLeftFirstAndAllowAliasing)
{
    float move[9], rot[9], ref[9];
    MakeMoveMatrix(1.0f, 0.0f, move);
    MakeRotateMatrix(0.0f, 0.0f, kPi / 2, rot);
    MultiMatrix2D(move, rot, ref);
    // Move first, then rotate: the origin goes to (1, 0) and then to (0, 1).
    expectPoint(apply2D(ref, 0.0f, 0.0f), 0.0f, 1.0f);

    expectProductAliases<9>(CopyMatrix2D, MultiMatrix2D, move, rot);

    float m3[16], r3[16];
    MakeMove3D(1.0f, 2.0f, 3.0f, m3);
    MakeRotate3D_Y(0.7f, r3);
    expectProductAliases<16>(CopyMatrix3D, MultiMatrix3D, m3, r3);
}

TEST(MatrixArrays, Inverse2DRoundTripAndSingularGuard)
{
    // A general matrix, third column included, must invert as a whole.
    const float m[9] = {2.0f, 1.0f, 0.5f, -1.0f, 3.0f, 0.25f, 4.0f, -2.0f, 1.5f};
    float inv[9], prod[9], id[9];
    ASSERT_EQ(GetInverseMatrix2D(m, inv), 1);
    MultiMatrix2D(m, inv, prod);
    InitMatrix2D(id);
    expectArray(prod, id, 9, 1e-5f);

    // The cofactors are single precision: e*i and f*h below both round to
    // 1 + 2^-11, so the first entry of the inverse is exactly 0 (in double
    // it would be 2^-24 / det).
    const float e = 1.0f + std::ldexp(1.0f, -12);
    const float h = 1.0f + std::ldexp(1.0f, -11);
    const float cancelling[9] = {1, 1, 0, 0, e, 1, 1, h, e};
    ASSERT_EQ(GetInverseMatrix2D(cancelling, inv), 1);
    EXPECT_EQ(inv[0], 0.0f);

    // Determinant 5e-7 is below the guard: the output stays as it was.
    const float nearlySingular[9] = {5e-7f, 0, 0, 0, 1, 0, 0, 0, 1};
    float out[9];
    ClearMatrix2D(out, 42.0f);
    EXPECT_EQ(GetInverseMatrix2D(nearlySingular, out), 0);
    for (float v : out)
        EXPECT_EQ(v, 42.0f);
    // Just above the guard the inversion goes through.
    const float small[9] = {2e-6f, 0, 0, 0, 1, 0, 0, 0, 1};
    EXPECT_EQ(GetInverseMatrix2D(small, out), 1);
    EXPECT_NEAR(out[0], 5e5f, 1.0f);
}

TEST(MatrixArrays, MakersAboutACentre)
{
    float m[9];
    MakeRotateMatrix(1.0f, 1.0f, kPi / 2, m);
    expectPoint(apply2D(m, 2.0f, 1.0f), 1.0f, 2.0f);
    expectPoint(apply2D(m, 1.0f, 1.0f), 1.0f, 1.0f);

    MakeScaleMatrix(1.0f, 1.0f, 2.0f, 3.0f, m);
    expectPoint(apply2D(m, 2.0f, 2.0f), 3.0f, 4.0f);

    // Mirror in the horizontal line y = 1, then in the diagonal through 0.
    MakeMirrorMatrix(0.0f, 1.0f, 0.0f, m);
    expectPoint(apply2D(m, 3.0f, 0.0f), 3.0f, 2.0f);
    MakeMirrorMatrix(0.0f, 0.0f, kPi / 4, m);
    expectPoint(apply2D(m, 1.0f, 0.0f), 0.0f, 1.0f);

    const float in[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    float out[16];
    ClearMatrix3D(out, -1.0f);
    Matrix2DTo3D(in, out);
    const float expected[16] = {1, 2, 0, 3, 4, 5, 0, 6, 0, 0, 1, 0, 7, 8, 0, 9};
    expectArray(out, expected, 16);
}

TEST(MatrixArrays, ShearAngleGuardAndShearAlongALine)
{
    // Near the vertical the angle is pinned to one of two guard angles whose
    // tangents are about +102.8 and -102.8.
    const float lowTan = std::tan(static_cast<float>(1.5610697269748965));
    const float highTan = std::tan(static_cast<float>(1.5805229269748966));

    float m[9], ref[9];
    const float halfPi = static_cast<float>(1.5707963267948966);
    MakeShearMatX(0.0f, 0.0f, halfPi, m);
    EXPECT_EQ(m[3], lowTan);
    // Just past the vertical by less than 0.001: still the lower angle.
    MakeShearMatX(0.0f, 0.0f, halfPi + 0.0005f, m);
    EXPECT_EQ(m[3], lowTan);
    MakeShearMatX(0.0f, 0.0f, halfPi + 0.002f, m);
    EXPECT_EQ(m[3], highTan);
    // -pi/2 wraps to 3*pi/2 and meets the second guard.
    MakeShearMatY(0.0f, 0.0f, -halfPi, m);
    EXPECT_EQ(m[1], std::tan(static_cast<float>(4.70266238056469)));
    EXPECT_EQ(m[3], 0.0f);
    // Outside the bands the angle is used as it is.
    MakeShearMatX(0.0f, 0.0f, halfPi + 0.01f, m);
    EXPECT_NEAR(m[3], std::tan(halfPi + 0.01f), 0.05f);

    // About a centre: the centre's row stays, one unit above moves by tan.
    MakeShearMatX(2.0f, 3.0f, kPi / 4, m);
    expectPoint(apply2D(m, 2.0f, 3.0f), 2.0f, 3.0f);
    expectPoint(apply2D(m, 2.0f, 4.0f), 3.0f, 4.0f);

    // Coincident points fall back to a shear along the world X axis; the
    // bound is the double 1e-5, so points 1e-5f apart still count as one.
    const point_2d p(0.0f, 0.0f);
    MakeShearMatrix(p, point_2d(1e-5f, 0.0f), 0.3f, m);
    MakeShearMatX(0.0f, 0.0f, 0.3f, ref);
    expectArray(m, ref, 9);

    // Along the line the local y gains x * tan: a point on the line moves
    // off it, perpendicular to it.
    MakeShearMatrix(point_2d(1.0f, 1.0f), point_2d(3.0f, 1.0f), kPi / 4, m);
    expectPoint(apply2D(m, 2.0f, 1.0f), 2.0f, 2.0f);
    expectPoint(apply2D(m, 1.0f, 1.0f), 1.0f, 1.0f);
    MakeShearMatrix(point_2d(0.0f, 0.0f), point_2d(0.0f, 5.0f), kPi / 4, m);
    expectPoint(apply2D(m, 0.0f, 1.0f), -1.0f, 1.0f);
}

TEST(MatrixArrays, RotationsAboutLinesAndOntoZ)
{
    float m[16];
    point_3d axis[2] = {point_3d(1, 0, 0), point_3d(1, 0, 1)};
    MakeRotate3D_V(axis, kPi / 2, m);
    expectPoint(apply3D(m, 2, 0, 0), 1, 1, 0);
    expectPoint(apply3D(m, 1, 0, 7), 1, 0, 7);

    // The quaternion is formed in double: sin(a/2) times the float
    // direction, divided by the float length.
    point_3d tilted[2] = {point_3d(0, 0, 0), point_3d(1, 2, 2)};
    MakeRotate3D_V(tilted, 2.0f, m);
    const double qy = std::sin(1.0) * 2.0f / 3.0f;
    EXPECT_EQ(m[0], static_cast<float>(1.0 - 2.0 * qy * qy - 2.0 * qy * qy));

    // An axis of exactly 0.01f is below the double bound 0.01: identity.
    point_3d shortAxis[2] = {point_3d(0, 0, 0), point_3d(0.01f, 0, 0)};
    MakeRotate3D_V(shortAxis, 1.0f, m);
    expectIdentity3D(m);

    // Rotation by -b about the horizontal line through c along (cos a, sin a).
    MakeRotateMat3D(point_3d(0, 0, 1), 0.0f, kPi / 2, m);
    expectPoint(apply3D(m, 0, 1, 1), 0, 0, 0);
    MakeRotateMat3D(point_3d(0, 0, 0), kPi / 2, kPi / 2, m);
    expectPoint(apply3D(m, 1, 0, 0), 0, 0, 1);

    // A direction turned onto +Z, and back.
    float to[16], back[16], prod[16];
    point_3d p[2] = {point_3d(1, 2, 3), point_3d(2, 4, 5)};
    MakeRotate_VToZ(p, to);
    expectPoint(apply3D(to, 1, 2, 3), 0, 0, 0);
    expectPoint(apply3D(to, 2, 4, 5), 0, 0, 3);
    MakeRotate_ZToV(p, back);
    MultiMatrix3D(to, back, prod);
    expectIdentity3D(prod, 1e-5f);

    // Along -X the turn about X is skipped, which would otherwise divide by
    // zero.
    point_3d alongX[2] = {point_3d(0, 0, 0), point_3d(-5, 0, 0)};
    MakeRotate_VToZ(alongX, to);
    MakeRotate_ZToV(alongX, back);
    expectPoint(apply3D(to, -5, 0, 0), 0, 0, 5);
    expectPoint(apply3D(back, 0, 0, 5), -5, 0, 0);

    point_3d coincident[2] = {point_3d(1, 1, 1), point_3d(1, 1, 1.0005f)};
    MakeRotate_VToZ(coincident, to);
    expectIdentity3D(to);
}

TEST(MatrixArrays, PointAndListTransforms)
{
    float m2[9];
    MakeMoveMatrix(1.0f, 2.0f, m2);
    m2[2] = m2[5] = 100.0f; // the third column takes no part
    point_3d q3;
    TransPoint2D(point_3d(1, 1, 7), &q3, m2);
    expectPoint(q3, 2, 3, 7);

    point_2d pts[3] = {point_2d(0, 0), point_2d(1, 0), point_2d(0, 1)};
    TransPointList2D(pts, 0, pts, m2);
    expectPoint(pts[0], 0, 0);
    TransPointList2D(pts, 3, pts, m2);
    expectPoint(pts[2], 1, 3);

    TRANSF_2D t;
    t.DefMove(point_2d(1.0f, 2.0f));
    point_3d in3[2] = {point_3d(0, 0, 5), point_3d(1, 1, 6)};
    point_3d out3[2];
    TransPointList2D(in3, 2, out3, t);
    expectPoint(out3[1], 2, 3, 6);

    // The z of a spatial point takes part in its planar image.
    float m3[16];
    MakeRotate3D_Y(kPi / 2, m3);
    point_2d flat;
    TransPoint3D(point_3d(0, 0, 1), &flat, m3);
    expectPoint(flat, 1, 0);
    TransPoint3D(point_2d(1, 0), &flat, m3);
    expectPoint(flat, 0, 0);
}

TEST(MatrixArrays, DoubleMatricesOnPointsAndBoxes)
{
    const double c = std::cos(3.141592653589793 / 4);
    double m[16] = {c, c, 0, 0, -c, c, 0, 0, 99, 99, 99, 0, 0, 0, 0, 1};
    point_3d q;
    // The third row must not disturb a planar point.
    mathMatrixPt_2D(point_2d(1, 0), q, m);
    expectPoint(q, 0.70710678f, 0.70710678f, 0);
    nd_point_2d nd;
    nd.Set(0, 1);
    mathMatrixNDPt_2D(nd, q, m);
    expectPoint(q, -0.70710678f, 0.70710678f, 0);
    mathMatrixPt_3D(point_3d(0, 0, 1), q, m);
    expectPoint(q, 99, 99, 99);

    m[8] = m[9] = 0;
    m[10] = 1;
    Box3D r;
    mathMatrixBox2D(Box2D(0, 0, 1, 1), r, m);
    expectPoint(r.GetCenter(), 0, 0.70710678f, 0);
    EXPECT_NEAR(r.GetXWidth(), 1.41421356f, 1e-5f);
    EXPECT_NEAR(r.GetYWidth(), 1.41421356f, 1e-5f);
    EXPECT_EQ(r.GetZWidth(), 0.0f);

    // In place, and an empty box stays empty.
    Box3D b(Box2D(0, 0, 1, 1));
    b.DefineBox(point_3d(0, 0, 0), point_3d(1, 1, 2));
    mathMatrixBox3D(b, b, m);
    EXPECT_NEAR(b.GetXWidth(), 1.41421356f, 1e-5f);
    EXPECT_NEAR(b.GetZWidth(), 2.0f, 1e-6f);
    Box3D empty;
    mathMatrixBox3D(empty, r, m);
    EXPECT_TRUE(r.IsEmpty());
    mathMatrixBox2D(Box2D(), r, m);
    EXPECT_TRUE(r.IsEmpty());
}
