#include <korvex/capi.h>

#include <gtest/gtest.h>

#include "core/checks.hpp"

TEST(Points, InitCopyAndCombine)
{
    double p2[2] = {4.0, 5.0};
    EXPECT_EQ(mathInitPnt2D(p2), 0);
    expectNear(p2, {0.0, 0.0}, 0.0);
    double p3[3] = {1.0, 2.0, 3.0};
    const double src2[2] = {7.0, 8.0};
    mathCpyPnt2DTo3D(src2, p3);
    expectNear(p3, {7.0, 8.0, 0.0});

    double p[3] = {1.0, 2.0, 3.0};
    const double q[3] = {3.0, 4.0, 5.0};
    EXPECT_EQ(mathMixPnt(p, q, 0.5, 2.0, p), p);
    expectNear(p, {6.5, 9.0, 11.5});

    // The weights lead for the four-coordinate form.
    const double a4[4] = {1.0, 0.0, 0.0, 1.0}, b4[4] = {0.0, 2.0, 0.0, 3.0};
    double m4[4];
    EXPECT_EQ(mathMixP4D(2.0, 1.0, a4, b4, m4), m4);
    expectNear(m4, {2.0, 2.0, 0.0, 5.0});
}

TEST(Points, Distances)
{
    const double p[3] = {1.0, 2.0, 3.0}, q[3] = {4.0, 6.0, 3.0};
    EXPECT_EQ(mathDist(p, q), 5.0);
    EXPECT_EQ(mathDistXD(0, p, q), 0.0);
    EXPECT_EQ(mathDistXD(-1, p, q), 0.0);
    EXPECT_EQ(mathDistXD(1, p, q), 3.0);

    const double h1[4] = {2.0, 0.0, 0.0, 2.0}, h2[4] = {0.0, 0.0, 0.0, 1.0};
    const double hNeg[4] = {2.0, 0.0, 0.0, -2.0};
    EXPECT_EQ(mathDist3H(h1, h2), 1.0);
    // The weight test is signed: a negative weight gives 0.
    EXPECT_EQ(mathDist3H(hNeg, h2), 0.0);
    EXPECT_EQ(mathDist3H(h2, hNeg), 0.0);
}

TEST(Points, HomogeneousToCartesian)
{
    const double h[4] = {1.0, 2.0, 3.0, 1e-11};
    double out[3] = {9.0, 9.0, 9.0};
    EXPECT_EQ(mathGetPnt4(h, out), 0);
    expectNear(out, {9.0, 9.0, 9.0});
    // A weight of exactly 1e-10 is usable.
    const double edge[4] = {1e-10, 2e-10, 3e-10, 1e-10};
    EXPECT_EQ(mathGetPnt4(edge, out), 1);
    EXPECT_DOUBLE_EQ(out[2], 3.0);
    // Negative weights are fine: only the magnitude is tested.
    const double g[4] = {2.0, 4.0, 6.0, -2.0};
    EXPECT_EQ(mathGetPnt4(g, out), 1);
    expectNear(out, {-1.0, -2.0, -3.0});

    const double flat[3] = {3.0, 6.0, -5e-11};
    double o2[2] = {9.0, 9.0};
    EXPECT_EQ(mathGetPnt3(flat, o2), 0);
    EXPECT_EQ(o2[0], 9.0);
}

TEST(Points, CartesianTransformations)
{
    const double c[2] = {1.0, 1.0}, p2[2] = {2.0, 1.0};
    double r2[2];
    mathRotPnt2D(c, kHalfPi, p2, r2);
    expectNear(r2, {1.0, 2.0});

    const double d[3] = {0.0, 0.0, 1.0}, origin[3] = {0.0, 0.0, 0.0};
    double p[3] = {1.0, 0.0, 5.0};
    mathRotPnt(d, origin, kHalfPi, p, p);
    expectNear(p, {0.0, 1.0, 5.0});
    // An axis off the origin along x: right-handed about +x.
    const double dx[3] = {1.0, 0.0, 0.0}, q[3] = {7.0, 1.0, 0.0}, p1[3] = {2.0, 2.0, 0.0};
    double r[3];
    mathRotPnt(dx, q, kPi, p1, r);
    expectNear(r, {2.0, 0.0, 0.0});

    // Every coordinate is mirrored about the centre's x.
    const double centre[3] = {1.0, 2.0, 3.0};
    double s[3] = {0.0, 0.0, 0.0};
    mathSymPnt(centre, s, s);
    expectNear(s, {2.0, 2.0, 2.0});

    const double f[3] = {2.0, 3.0, -1.0};
    mathScalePnt(centre, f, origin, r);
    expectNear(r, {-1.0, -4.0, 6.0});
}

TEST(Points, HomogeneousTransformationsKeepTheWeight)
{
    const double v[3] = {1.0, 0.0, 0.0}, p[4] = {2.0, 0.0, 0.0, 2.0};
    double out[4];
    mathMovePnt4H(v, p, out);
    expectNear(out, {4.0, 0.0, 0.0, 2.0});
    const double infinite[4] = {2.0, 0.0, 0.0, 0.0};
    mathMovePnt4H(v, infinite, out);
    expectNear(out, {3.0, 0.0, 0.0, 0.0});

    const double d[3] = {0.0, 0.0, 1.0}, origin[3] = {0.0, 0.0, 0.0};
    double r[4] = {2.0, 0.0, 10.0, 2.0};
    mathRotPnt4H(d, origin, kHalfPi, r, r);
    expectNear(r, {0.0, 2.0, 10.0, 2.0});

    const double planePoint[3] = {0.0, 0.0, 1.0}, m[4] = {2.0, 2.0, 0.0, 2.0};
    mathMirPnt4H(planePoint, d, m, out);
    expectNear(out, {2.0, 2.0, 4.0, 2.0});

    const double c[3] = {1.0, 1.0, 1.0}, f[3] = {2.0, 2.0, 2.0}, s[4] = {1.0, 0.0, 0.0, 0.0};
    mathScalePnt4H(c, f, s, out);
    expectNear(out, {1.0, -1.0, -1.0, 0.0});
    const double sw[4] = {4.0, 2.0, 2.0, 2.0};
    mathScalePnt4H(c, f, sw, out);
    expectNear(out, {6.0, 2.0, 2.0, 2.0});
}
