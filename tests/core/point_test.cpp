#include <korvex/capi.h>

#include <gtest/gtest.h>

namespace {

const double kPi = 3.141592653589793;
const double kHalfPi = 1.5707963267948966;

void expectPnt(const double *p, const double *expected, int n)
{
    for (int i = 0; i < n; ++i)
        EXPECT_NEAR(p[i], expected[i], 1e-12) << "coordinate " << i;
}

} // namespace

TEST(Points, InitCopyAndCombine)
{
    double p2[2] = {4.0, 5.0};
    EXPECT_EQ(mathInitPnt2D(p2), 0);
    EXPECT_EQ(p2[0], 0.0);
    double p3[3] = {1.0, 2.0, 3.0};
    const double src2[2] = {7.0, 8.0};
    mathCpyPnt2DTo3D(src2, p3);
    const double widened[3] = {7.0, 8.0, 0.0};
    expectPnt(p3, widened, 3);

    double p[3] = {1.0, 2.0, 3.0};
    const double q[3] = {3.0, 4.0, 5.0};
    EXPECT_EQ(mathMixPnt(p, q, 0.5, 2.0, p), p);
    const double mixed[3] = {6.5, 9.0, 11.5};
    expectPnt(p, mixed, 3);

    // The weights lead for the four-coordinate form.
    const double a4[4] = {1.0, 0.0, 0.0, 1.0};
    const double b4[4] = {0.0, 2.0, 0.0, 3.0};
    double m4[4];
    EXPECT_EQ(mathMixP4D(2.0, 1.0, a4, b4, m4), m4);
    const double mixed4[4] = {2.0, 2.0, 0.0, 5.0};
    expectPnt(m4, mixed4, 4);
}

TEST(Points, Distances)
{
    const double p[3] = {1.0, 2.0, 3.0};
    const double q[3] = {4.0, 6.0, 3.0};
    EXPECT_EQ(mathDist(p, q), 5.0);
    EXPECT_EQ(mathDistXD(0, p, q), 0.0);
    EXPECT_EQ(mathDistXD(-1, p, q), 0.0);
    EXPECT_EQ(mathDistXD(1, p, q), 3.0);

    const double h1[4] = {2.0, 0.0, 0.0, 2.0};
    const double h2[4] = {0.0, 0.0, 0.0, 1.0};
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
    const double untouched[3] = {9.0, 9.0, 9.0};
    expectPnt(out, untouched, 3);
    // A weight of exactly 1e-10 is usable.
    const double edge[4] = {1e-10, 2e-10, 3e-10, 1e-10};
    EXPECT_EQ(mathGetPnt4(edge, out), 1);
    EXPECT_DOUBLE_EQ(out[2], 3.0);
    // Negative weights are fine: only the magnitude is tested.
    const double g[4] = {2.0, 4.0, 6.0, -2.0};
    EXPECT_EQ(mathGetPnt4(g, out), 1);
    const double cart[3] = {-1.0, -2.0, -3.0};
    expectPnt(out, cart, 3);

    const double flat[3] = {3.0, 6.0, -5e-11};
    double o2[2] = {9.0, 9.0};
    EXPECT_EQ(mathGetPnt3(flat, o2), 0);
    EXPECT_EQ(o2[0], 9.0);
}

TEST(Points, CartesianTransformations)
{
    const double c[2] = {1.0, 1.0};
    const double p2[2] = {2.0, 1.0};
    double r2[2];
    mathRotPnt2D(c, kHalfPi, p2, r2);
    const double turned2[2] = {1.0, 2.0};
    expectPnt(r2, turned2, 2);

    const double d[3] = {0.0, 0.0, 1.0};
    const double origin[3] = {0.0, 0.0, 0.0};
    double p[3] = {1.0, 0.0, 5.0};
    mathRotPnt(d, origin, kHalfPi, p, p);
    const double turned[3] = {0.0, 1.0, 5.0};
    expectPnt(p, turned, 3);
    // An axis off the origin along x: right-handed about +x.
    const double dx[3] = {1.0, 0.0, 0.0};
    const double q[3] = {7.0, 1.0, 0.0};
    const double p1[3] = {2.0, 2.0, 0.0};
    double r[3];
    mathRotPnt(dx, q, kPi, p1, r);
    const double halfTurn[3] = {2.0, 0.0, 0.0};
    expectPnt(r, halfTurn, 3);

    // Every coordinate is mirrored about the centre's x.
    const double centre[3] = {1.0, 2.0, 3.0};
    double s[3] = {0.0, 0.0, 0.0};
    mathSymPnt(centre, s, s);
    const double sym[3] = {2.0, 2.0, 2.0};
    expectPnt(s, sym, 3);

    const double f[3] = {2.0, 3.0, -1.0};
    double sc[3];
    mathScalePnt(centre, f, origin, sc);
    const double scaled[3] = {-1.0, -4.0, 6.0};
    expectPnt(sc, scaled, 3);
}

TEST(Points, HomogeneousTransformationsKeepTheWeight)
{
    const double v[3] = {1.0, 0.0, 0.0};
    double p[4] = {2.0, 0.0, 0.0, 2.0};
    double out[4];
    mathMovePnt4H(v, p, out);
    const double moved[4] = {4.0, 0.0, 0.0, 2.0};
    expectPnt(out, moved, 4);
    const double infinite[4] = {2.0, 0.0, 0.0, 0.0};
    mathMovePnt4H(v, infinite, out);
    const double movedRaw[4] = {3.0, 0.0, 0.0, 0.0};
    expectPnt(out, movedRaw, 4);

    const double d[3] = {0.0, 0.0, 1.0};
    const double origin[3] = {0.0, 0.0, 0.0};
    double r[4] = {2.0, 0.0, 10.0, 2.0};
    mathRotPnt4H(d, origin, kHalfPi, r, r);
    const double turned[4] = {0.0, 2.0, 10.0, 2.0};
    expectPnt(r, turned, 4);

    const double planePoint[3] = {0.0, 0.0, 1.0};
    const double m[4] = {2.0, 2.0, 0.0, 2.0};
    mathMirPnt4H(planePoint, d, m, out);
    const double mirrored[4] = {2.0, 2.0, 4.0, 2.0};
    expectPnt(out, mirrored, 4);

    const double c[3] = {1.0, 1.0, 1.0};
    const double f[3] = {2.0, 2.0, 2.0};
    const double s[4] = {1.0, 0.0, 0.0, 0.0};
    mathScalePnt4H(c, f, s, out);
    const double scaledRaw[4] = {1.0, -1.0, -1.0, 0.0};
    expectPnt(out, scaledRaw, 4);
    const double sw[4] = {4.0, 2.0, 2.0, 2.0};
    mathScalePnt4H(c, f, sw, out);
    const double scaled[4] = {6.0, 2.0, 2.0, 2.0};
    expectPnt(out, scaled, 4);
}
