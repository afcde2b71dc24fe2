#include <korvex/capi.h>
#include <korvex/classes.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

namespace {

const float kPi = 3.14159265f;

void expectPoint(const point_3d& p, float x, float y, float z, float tol = 1e-5f)
{
    EXPECT_NEAR(p.x, x, tol);
    EXPECT_NEAR(p.y, y, tol);
    EXPECT_NEAR(p.z, z, tol);
}

void expectSame(const TRANSF_3D& a, const TRANSF_3D& b, float tol = 0.0f)
{
    float ma[16], mb[16];
    a.Get16(ma);
    b.Get16(mb);
    for (int k = 0; k < 16; ++k)
        EXPECT_NEAR(ma[k], mb[k], tol) << k;
}

} // namespace

TEST(Transf3D, StorageOrderAndExchangeWithArraysAndPlanes)
{
    // Sixteen floats in memory: three axes, projective column, origin, scale.
    static_assert(sizeof(TRANSF_3D) == 16 * sizeof(float), "sixteen floats");
    static_assert(offsetof(TRANSF_3D, pAxis) == 9 * sizeof(float), "pAxis after zAxis");
    static_assert(offsetof(TRANSF_3D, origin) == 12 * sizeof(float), "origin fourth");
    const float m[16] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    const TRANSF_3D t = m; // a plain converting constructor
    expectPoint(t.xAxis, 1, 2, 3, 0);
    expectPoint(t.yAxis, 5, 6, 7, 0);
    expectPoint(t.zAxis, 9, 10, 11, 0);
    expectPoint(t.pAxis, 4, 8, 12, 0);
    expectPoint(t.origin, 13, 14, 15, 0);
    EXPECT_EQ(t.GetScale(), 16.0f);
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c)
            EXPECT_EQ(t(r, c), m[4 * r + c]) << r << c;
    EXPECT_EQ(t(4, 0), 1.0f);
    EXPECT_EQ(t(0, -1), 1.0f);

    double d[4][4];
    t.GetDbl4X4(d);
    TRANSF_3D u;
    u.SetDbl4X4(d);
    expectSame(t, u);
    float f[4][4];
    t.Get4X4(f);
    EXPECT_EQ(f[2][3], 12.0f);
    u.Init();
    u.Set4X4(f);
    expectSame(t, u);

    const TRANSF_3D tr = t.Transpose();
    expectPoint(tr.origin, 4, 8, 12, 0);
    expectPoint(tr.pAxis, 13, 14, 15, 0);
    expectPoint(tr.xAxis, 1, 5, 9, 0);

    // From a plane transformation.
    TRANSF_2D plane;
    plane.DefMove(point_2d(1, 1));
    plane.Rotate(kPi / 2);
    TRANSF_3D kept, flattened;
    kept.Set2D(plane);
    flattened = plane;
    // Set2D lets z through; assignment flattens onto z = 0.
    expectPoint(point_3d(1, 2, 3) * kept, -3, 2, 3);
    expectPoint(point_3d(1, 2, 3) * flattened, -3, 2, 0);
}

TEST(Transf3D, InverseByElimination)
{
    TRANSF_3D t;
    t.DefRotate(0.3f, 0.5f, 0.7f);
    t.Scale(point_3d(1, 2, 3), 2.0f, 0.5f, 3.0f);
    t.Move(point_3d(-4, 5, 6));
    expectSame(t * t.Inverse(), TRANSF_3D(), 1e-5f);

    // A quarter turn has a zero first pivot; row exchange must cope.
    TRANSF_3D q;
    q.DefRotateZAxis(kPi / 2);
    q.Move(point_3d(1, 2, 3));
    expectSame(q * q.Inverse(), TRANSF_3D(), 1e-6f);

    // A singular transformation comes back as it is.
    TRANSF_3D flat;
    flat.DefScale(1.0f, 1.0f, 0.0f);
    expectSame(flat.Inverse(), flat);
    TRANSF_3D tiny;
    tiny.DefScale(1e-7f, 1e-7f, 1e-7f);
    expectSame(tiny.Inverse(), tiny);
}

TEST(Transf3D, RotationsTurnAboutTheDoubledPoint)
{
    TRANSF_3D t;
    t.DefRotateLine(point_3d(1, 0, 0), point_3d(1, 0, 1), kPi);
    expectPoint(point_3d(0, 0, 0) * t, 4, 0, 0);
    expectPoint(point_3d(2, 0, 5) * t, 2, 0, 5);

    // Through the origin the line is where one expects it.
    t.DefRotateLine(point_3d(0, 0, 0), point_3d(0, 0, 2), kPi / 2);
    expectPoint(point_3d(1, 0, 0) * t, 0, 1, 0);

    // The double overload rotates about the line through o itself.
    const double o[3] = {1, 0, 0}, d[3] = {0, 0, 1};
    t.DefRotate(o, d, 3.141592653589793);
    expectPoint(point_3d(0, 0, 0) * t, 2, 0, 0);

    // Composed after a move.
    t.DefMove(point_3d(1, 0, 0));
    t.RotateLine(point_3d(1, 0, 0), point_3d(1, 0, 1), kPi);
    expectPoint(point_3d(0, 0, 0) * t, 3, 0, 0);

    // One direction onto another.
    t.DefRotate(point_3d(0, 0, 0), point_3d(1, 0, 0), point_3d(0, 2, 0));
    expectPoint(point_3d(1, 0, 0) * t, 0, 1, 0);
    expectPoint(point_3d(0, 0, 1) * t, 0, 0, 1);
    t.DefRotate(point_3d(0, 0, 0), point_3d(1, 2, 3), point_3d(-1, -2, -3));
    expectPoint(point_3d(1, 2, 3) * t, -1, -2, -3, 1e-4f);

    // A zero u gives no axis at all: the object is left as it was.
    t.DefMove(point_3d(5, 5, 5));
    const TRANSF_3D moved = t;
    t.DefRotate(point_3d(0, 0, 0), point_3d(0, 0, 0), point_3d(1, 0, 0));
    expectSame(t, moved);
    t.DefRotate(point_3d(0, 0, 0), point_3d(1, 0, 0), point_3d(3, 0, 0));
    expectSame(t, TRANSF_3D());

    // Off the origin the axis passes through 2*p, which stays fixed.
    t.DefRotate(point_3d(1, 1, 0), point_3d(1, 0, 0), point_3d(0, 1, 0));
    expectPoint(point_3d(2, 2, 0) * t, 2, 2, 0);
    const point_3d dir = point_3d(3, 2, 0) * t - point_3d(2, 2, 0) * t;
    expectPoint(dir, 0, 1, 0);
}

TEST(Transf3D, FramesAndUnit)
{
    const point_3d dirs[4] = {point_3d(0, 0, 1), point_3d(1, 1, 1), point_3d(-3, 0, 0),
                              point_3d(0.2f, -5, 1)};
    for (const point_3d& z : dirs) {
        TRANSF_3D f;
        f.Define(point_3d(1, 2, 3), z);
        point_3d unitZ = z;
        unitZ.Unit();
        expectPoint(f.zAxis, unitZ.x, unitZ.y, unitZ.z);
        EXPECT_NEAR(f.xAxis.Length(), 1.0f, 1e-6f);
        EXPECT_NEAR(f.xAxis.Iproduct(f.zAxis), 0.0f, 1e-6f);
        const point_3d xy = f.xAxis.Xproduct(f.yAxis);
        expectPoint(xy, f.zAxis.x, f.zAxis.y, f.zAxis.z);
        expectPoint(f.origin, 1, 2, 3, 0);
    }
    // The X axis is seeded from the smallest component of the direction:
    // Z for (1, 1, 1); for (0, 0, 1) the tie between X and Y goes to Y.
    TRANSF_3D f;
    f.Define(point_3d(0, 0, 0), point_3d(1, 1, 1));
    expectPoint(f.yAxis, 0.70710678f, -0.70710678f, 0);
    f.Define(point_3d(0, 0, 0), point_3d(0, 0, 1));
    expectPoint(f.xAxis, 0, 1, 0);
    expectPoint(f.yAxis, -1, 0, 0);
    // The double form normalises through Unit.
    const double o[3] = {0, 0, 0}, z[3] = {0, 0, 5};
    f.Define(o, z);
    expectPoint(f.zAxis, 0, 0, 1);

    // Three-point frame: x is not made perpendicular to z.
    f.Define(point_3d(0, 0, 0), point_3d(0, 0, 2), point_3d(1, 0, 1));
    expectPoint(f.xAxis, 0.70710678f, 0, 0.70710678f);
    expectPoint(f.yAxis, 0, 1, 0);

    TRANSF_3D u;
    u.pAxis.Set(1, 1, 1);
    u.scale = 3;
    u.xAxis.Set(2, 0, 0);
    EXPECT_EQ(u.Unit(), 1);
    expectPoint(u.xAxis, 1, 0, 0, 0);
    expectPoint(u.pAxis, 0, 0, 0, 0);
    EXPECT_EQ(u.scale, 1.0f);
    u.zAxis.Set(0, 0, 0);
    u.origin.Set(7, 7, 7);
    EXPECT_EQ(u.Unit(), 0);
    expectSame(u, TRANSF_3D());
}

TEST(Transf3D, MirrorsStandardStepsAndPointForms)
{
    TRANSF_3D t;
    t.DefMirrorPlane(point_3d(0, 0, 1), point_3d(0, 0, 1));
    expectPoint(point_3d(3, 4, 5) * t, 3, 4, -3);
    const double p[3] = {0, 0, 0}, n[3] = {1, 1, 0};
    t.DefMirror(p, n);
    expectPoint(point_3d(1, 0, 0) * t, 0, -1, 0);

    t.DefMirror(0u);
    expectPoint(point_3d(1, 2, 3) * t, 1, 2, -3, 0);
    t.DefMirror(1u);
    expectPoint(point_3d(1, 2, 3) * t, -1, 2, 3, 0);
    t.DefMirror(2u);
    expectPoint(point_3d(1, 2, 3) * t, 1, -2, 3, 0);
    // An unknown plane code changes nothing, replacing or composing.
    t.DefMove(point_3d(1, 1, 1));
    t.DefMirror(7u);
    t.Mirror(7u);
    expectPoint(point_3d(0, 0, 0) * t, 1, 1, 1, 0);
    t.MirrorXOYPlane();
    expectPoint(point_3d(0, 0, 0) * t, 1, 1, -1, 0);

    // X acts first: (0, 1, 0) -> (0, 0, 1) -> (1, 0, 0).
    t.DefRotate(kPi / 2, kPi / 2, 0.0f);
    expectPoint(point_3d(0, 1, 0) * t, 1, 0, 0);

    t.DefScale(point_3d(1, 1, 1), 2, 3, 4);
    expectPoint(point_3d(1, 1, 1) * t, 1, 1, 1);
    expectPoint(point_3d(2, 2, 2) * t, 3, 4, 5);
    const double c[3] = {1, 1, 1}, s[3] = {2, 3, 4}, mv[3] = {1, 2, 3};
    TRANSF_3D u;
    u.DefScale(c, s);
    expectSame(t, u);
    u.DefMove(mv);
    expectPoint(point_3d(0, 0, 0) * u, 1, 2, 3, 0);

    // The homogeneous form uses the projective column and the scale.
    const float m[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 1, 10, 0, 0, 2};
    const TRANSF_3D h(m);
    const point_4d q = point_4d(1, 2, 3, 1) * h;
    EXPECT_EQ(q.x, 11.0f);
    EXPECT_EQ(q.w, 5.0f);
    const point_3d q3 = point_3d(1, 2, 3) * h;
    expectPoint(q3, 11, 2, 3, 0);
    const point_2d q2 = point_2d(1, 2) * h;
    EXPECT_EQ(q2.x, 11.0f);
    EXPECT_EQ(q2.y, 2.0f);
}

TEST(Transf3D, AngleToVector)
{
    EXPECT_NEAR(point_3d(1, 0, 0).AngleToVector(point_3d(0, 1, 0)), kPi / 2, 1e-6f);
    EXPECT_NEAR(point_3d(1, 0, 0).AngleToVector(point_3d(-1, 1, 0)), 3 * kPi / 4, 1e-6f);
    // Unsigned: the order of the vectors does not matter.
    EXPECT_NEAR(point_3d(-1, 1, 0).AngleToVector(point_3d(1, 0, 0)), 3 * kPi / 4, 1e-6f);
    EXPECT_NEAR(point_3d(0, 0, 2).AngleToVector(point_3d(1, 0, 1)), kPi / 4, 1e-6f);
    EXPECT_EQ(point_3d(1, 2, 3).AngleToVector(point_3d(2, 4, 6)), 0.0f);
    EXPECT_EQ(point_3d(1, 2, 3).AngleToVector(point_3d(-2, -4, -6)), 3.1415927f);
}
