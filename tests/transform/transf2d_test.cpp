#include <korvex/classes.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

namespace {

const float kPi = 3.14159265f;

void expectPoint(const point_2d& p, float x, float y, float tol = 1e-5f)
{
    EXPECT_NEAR(p.x, x, tol);
    EXPECT_NEAR(p.y, y, tol);
}

void expectMatrix(const TRANSF_2D& t, const float* expected, float tol = 0.0f)
{
    float m[9];
    t.Get9(m);
    for (int k = 0; k < 9; ++k)
        EXPECT_NEAR(m[k], expected[k], tol) << k;
}

void expectIdentity(const TRANSF_2D& t, float tol = 0.0f)
{
    float id[9];
    InitMatrix2D(id);
    expectMatrix(t, id, tol);
}

} // namespace

TEST(Transf2D, StorageOrderAndArrayExchange)
{
    // Nine floats in memory, the projective column right after the Y axis.
    static_assert(sizeof(TRANSF_2D) == 9 * sizeof(float), "nine floats");
    static_assert(offsetof(TRANSF_2D, pAxis) == 4 * sizeof(float), "pAxis after yAxis");
    static_assert(offsetof(TRANSF_2D, scale) == 8 * sizeof(float), "scale last");
    const float m[9] = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    TRANSF_2D t = m; // a plain converting constructor
    // The projective column sits apart from the rows it belongs to.
    expectPoint(t.xAxis, 1, 2, 0);
    expectPoint(t.yAxis, 4, 5, 0);
    expectPoint(t.pAxis, 3, 6, 0);
    expectPoint(t.origin, 7, 8, 0);
    EXPECT_EQ(t.scale, 9.0f);

    float back[3][3];
    t.Get3X3(back);
    for (int r = 0; r < 3; ++r)
        for (int c = 0; c < 3; ++c) {
            EXPECT_EQ(back[r][c], m[3 * r + c]);
            EXPECT_EQ(t(r, c), m[3 * r + c]);
        }
    // Indices outside the matrix read m[0][0].
    EXPECT_EQ(t(3, 0), 1.0f);
    EXPECT_EQ(t(-1, 2), 1.0f);
    EXPECT_EQ(t(1, 3), 1.0f);

    TRANSF_2D u;
    u.Set3X3(back);
    expectMatrix(u, m);

    // The 4x4 forms: the projective column becomes the fourth column.
    float f16[16];
    double d16[16];
    t.Get16(f16);
    t.GetDbl16(d16);
    EXPECT_EQ(f16[7], 6.0f);
    EXPECT_EQ(f16[10], 1.0f);
    EXPECT_EQ(d16[12], 7.0);
    EXPECT_EQ(d16[15], 9.0);

    // Transposing a pure move trades the translation for the projective
    // column.
    TRANSF_2D move;
    move.DefMove(point_2d(5, 6));
    const TRANSF_2D tr = move.Transpose();
    expectPoint(tr.origin, 0, 0, 0);
    expectPoint(tr.pAxis, 5, 6, 0);
}

TEST(Transf2D, ComposedStepsActAfterTheCurrentOne)
{
    TRANSF_2D t;
    t.DefMove(point_2d(1, 0));
    t.Rotate(kPi / 2);
    expectPoint(point_2d(0, 0) * t, 0, 1);

    // Scale about a point, then a mirror, then a move added to the origin.
    TRANSF_2D s;
    s.DefScale(point_2d(1, 1), 2, 3);
    expectPoint(point_2d(1, 1) * s, 1, 1);
    expectPoint(point_2d(2, 2) * s, 3, 4);
    s.MirrorXAxis();
    s.Move(point_2d(0, 10));
    expectPoint(point_2d(2, 2) * s, 3, 6);

    // The standard steps themselves.
    TRANSF_2D b;
    b.DefShear(0.5f, 0.25f);
    expectPoint(point_2d(1, 1) * b, 1.5f, 1.25f);
    TRANSF_2D r;
    r.DefRotate(point_2d(2, 1), kPi / 2);
    expectPoint(point_2d(2, 1) * r, 2, 1);
    expectPoint(point_2d(3, 1) * r, 2, 2);
    // The centre may be the object's own origin: the old value is used.
    r.DefRotate(r.origin, kPi / 2);
    expectPoint(point_2d(3, -1) * r, 3, -1);
    expectPoint(point_2d(4, -1) * r, 3, 0);
    s.DefScale(s.origin, 2, 2);
    expectPoint(point_2d(-1, 12) * s, -1, 12);
    expectPoint(point_2d(0, 12) * s, 1, 12);
    TRANSF_2D m;
    m.DefMirrorXAxis();
    m.MirrorYAxis();
    expectPoint(point_2d(2, 3) * m, -2, -3);

    // Mirror in a line: the diagonal, then a line away from the origin,
    // composed after a move.
    t.DefMirror(point_2d(0, 0), point_2d(1, 1));
    expectPoint(point_2d(1, 0) * t, 0, 1);
    expectPoint(point_2d(3, 3) * t, 3, 3);
    t.DefMove(point_2d(0, 1));
    t.Mirror(point_2d(0, 2), point_2d(5, 2));
    expectPoint(point_2d(4, 0) * t, 4, 3);
}

TEST(Transf2D, UnitAndFrames)
{
    // A zero Y axis sends the whole object back to the identity, even
    // though the X axis could have been normalised.
    TRANSF_2D t;
    t.xAxis.Set(3, 4);
    t.yAxis.Set(0, 0);
    t.origin.Set(5, 5);
    t.Unit();
    expectIdentity(t);

    // A sheared pair stays sheared; each axis becomes unit, origin stays.
    TRANSF_2D f;
    f.pAxis.Set(1, 1);
    f.Define(point_2d(5, 6), point_2d(2, 0), point_2d(1, 1));
    expectPoint(f.xAxis, 1, 0);
    expectPoint(f.yAxis, 0.70710678f, 0.70710678f);
    expectPoint(f.origin, 5, 6, 0);
    expectPoint(f.pAxis, 0, 0, 0);
    EXPECT_EQ(f.scale, 1.0f);

    TRANSF_2D g;
    g.Define(point_2d(1, 2), point_2d(0, 3));
    expectPoint(g.xAxis, 0, 1);
    expectPoint(g.yAxis, -1, 0);
    expectPoint(point_2d(1, 0) * g, 1, 3);
    // A zero direction is not caught: the axes come out zero.
    g.Define(point_2d(1, 2), point_2d(0, 0));
    expectPoint(g.xAxis, 0, 0, 0);
    expectPoint(g.yAxis, 0, 0, 0);
}

TEST(Transf2D, InverseRoundTrip)
{
    TRANSF_2D t;
    t.DefRotate(point_2d(3, -1), 0.7f);
    t.Scale(2.0f, 0.5f);
    t.Shear(0.3f, -0.2f);
    t.Move(point_2d(10, 20));
    expectIdentity(t * t.Inverse(), 1e-5f);
    expectIdentity(t.Inverse() * t, 1e-5f);

    // A singular transformation has no inverse; the identity comes back.
    TRANSF_2D flat;
    flat.DefScale(0.0f, 1.0f);
    expectIdentity(flat.Inverse());
}

TEST(Transf2D, AngleToVector)
{
    const float twoPi = 6.2831853f;
    EXPECT_NEAR(point_2d(1, 0).AngleToVector(point_2d(0, 1)), kPi / 2, 1e-6f);
    EXPECT_NEAR(point_2d(0, 1).AngleToVector(point_2d(1, 0)), 3 * kPi / 2, 1e-5f);
    EXPECT_EQ(point_2d(1, 0).AngleToVector(point_2d(-1, 0)), 3.1415927f);
    EXPECT_EQ(point_2d(2, 2).AngleToVector(point_2d(5, 5)), 0.0f);
    // Lengths do not matter, and the result never reaches 2*pi.
    const float a = point_2d(3, 0).AngleToVector(point_2d(10, -0.001f));
    EXPECT_GT(a, twoPi - 0.001f);
    EXPECT_LT(a, twoPi);
}
