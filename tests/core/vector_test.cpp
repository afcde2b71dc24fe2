#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <cmath>

#include "core/checks.hpp"

TEST(Normalise, StrictToleranceZeroesShortVectors)
{
    double v[3] = {1e-11, 0.0, 0.0}, w[3] = {1e-11, 0.0, 0.0}, u[3] = {0.0, 3.0, 4.0};
    EXPECT_EQ(mathUniVec(v, 1e-10), 0);
    expectNear(v, {0.0, 0.0, 0.0});
    // A length equal to the tolerance normalises.
    EXPECT_EQ(mathUniVec(w, 1e-11), 1);
    EXPECT_EQ(w[0], 1.0);
    EXPECT_EQ(mathUniVec(u, 5.0), 1);
    expectNear(u, {0.0, 0.6, 0.8});

    double p[2] = {3.0, 4.0}, q[2] = {3.0, 4.0};
    EXPECT_EQ(mathUniVec2D(p, 5.0), 1);
    EXPECT_DOUBLE_EQ(p[0], 0.6);
    EXPECT_EQ(mathUniVec2D(q, 5.000001), 0);
    expectNear(q, {0.0, 0.0}, 0.0);

    const double a[2] = {1.0, 1.0}, b[2] = {1.5, 1.0};
    double out[2] = {9.0, 9.0};
    EXPECT_EQ(mathGetVecByPP2D(a, a, 1e-10, out), 0);
    expectNear(out, {0.0, 0.0}, 0.0);
    // Too short for the tolerance: the raw difference is kept.
    EXPECT_EQ(mathGetVecByPP2D(a, b, 1.0, out), 0);
    EXPECT_EQ(out[0], 0.5);
    EXPECT_EQ(mathGetVecByPP2D(b, a, 0.1, out), 1);
    EXPECT_EQ(out[0], -1.0);

    const double p0[3] = {1.0, 1.0, 1.0};
    double d[3] = {7.0, 7.0, 7.0};
    EXPECT_EQ(mathGetVecUnit(p0, p0, d), 0);
    expectNear(d, {0.0, 0.0, 0.0});
}

TEST(Products, CrossMixedAndInPlace)
{
    const double a[3] = {1.0, 2.0, 3.0}, b[3] = {4.0, 5.0, 6.0}, z[3] = {0.0, 0.0, 1.0};
    EXPECT_EQ(mathOProduct(a, b), 32.0);
    // y*y + x*z + z*x, deliberately not the dot product.
    EXPECT_EQ(mathWProduct(a, b), 28.0);
    EXPECT_EQ(mathMProduct(a, b, z), -3.0);
    double c[3] = {1.0, 2.0, 3.0};
    mathVProduct(c, b, c);
    expectNear(c, {-3.0, 6.0, -3.0});

    const double twice[3] = {2.0, 4.0, 6.0}, x[3] = {2.0, 0.0, 0.0}, y[3] = {0.0, 3.0, 0.0};
    double n[3] = {7.0, 8.0, 9.0};
    EXPECT_EQ(mathVProductUnit(a, twice, n), 0);
    expectNear(n, {7.0, 8.0, 9.0});
    EXPECT_EQ(mathVProductUnit(x, y, n), 1);
    expectNear(n, {0.0, 0.0, 1.0});
}

TEST(Rescale, GuardedDivisionsLeaveOutputsUntouched)
{
    double v[3] = {1e-21, 0.0, 0.0}, w[3] = {0.0, 3.0, 4.0};
    EXPECT_EQ(mathChnVecLen(v, 5.0), 0);
    EXPECT_EQ(v[0], 1e-21);
    EXPECT_EQ(mathChnVecLen(w, 10.0), 1);
    expectNear(w, {0.0, 6.0, 8.0});

    const double p0[3] = {0.0, 0.0, 0.0}, p1[3] = {1.0, 2.0, 3.0};
    double out[3] = {9.0, 9.0, 9.0};
    EXPECT_EQ(mathNumDer(p0, p1, 1e-21, out), 0);
    expectNear(out, {9.0, 9.0, 9.0});
    EXPECT_EQ(mathNumDer(p0, p1, -0.5, out), 1);
    expectNear(out, {-2.0, -4.0, -6.0});
}

TEST(DirectionTests, RawProductsAndOppositeFlag)
{
    const double a[3] = {1.0, 0.0, 0.0}, b[3] = {-1.0, 0.0, 0.0};
    EXPECT_EQ(mathChkAng(a, b, 1e-6, 1), 1);
    EXPECT_EQ(mathChkAng(a, b, 1e-6, 0), 0);
    EXPECT_EQ(mathChkAng(a, a, 1e-6, 0), 1);

    // The cross product is not normalised: long vectors need a larger tol.
    const double p[3] = {100.0, 0.0, 0.0}, q[3] = {100.0, 0.01, 0.0}, r[3] = {0.0, 1.0, 0.0};
    EXPECT_EQ(mathIsParallel(p, q, 0.5), 0);
    EXPECT_EQ(mathIsParallel(p, q, 1.5), 1);
    EXPECT_EQ(mathIsPerpendicular(p, r, 1e-9), 1);
    // A product or distance equal to the tolerance does not pass.
    const double h[3] = {0.5, 1.0, 0.0};
    EXPECT_EQ(mathIsPerpendicular(a, h, 0.5), 0);
    EXPECT_EQ(mathChkAng(a, h, std::sqrt(0.5 * 0.5 + 1.0), 0), 0);

    const double ties[3] = {2.0, -1.0, 1.0};
    EXPECT_EQ(mathGetVecMinComSub(3, ties), 1);
    EXPECT_EQ(mathGetVecMinComSub(1, ties), 0);
}

TEST(DirectionTests, AdjustAndBisect)
{
    const double p0[3] = {0.0, 0.0, 0.0}, p1[3] = {0.0, 0.0, 2.0};
    double dir[3] = {0.0, 0.5, -1.0}, side[3] = {1.0, 0.0, 0.0}, keep[3] = {0.0, 0.0, -1.0};
    EXPECT_EQ(mathAdjVecDir(p0, dir, p1), 1);
    expectNear(dir, {0.0, -0.5, 1.0});
    EXPECT_EQ(mathAdjVecDir(p0, side, p1), 1);
    expectNear(side, {1.0, 0.0, 0.0});
    EXPECT_EQ(mathAdjVecDir(p0, keep, p0), -4);
    expectNear(keep, {0.0, 0.0, -1.0});

    const double x[3] = {1.0, 0.0, 0.0}, y[3] = {0.0, 1.0, 0.0}, mx[3] = {-1.0, 0.0, 0.0};
    double out[3];
    EXPECT_EQ(mathAngleBisector(x, y, out), 1);
    expectNear(out, {std::sqrt(0.5), std::sqrt(0.5), 0.0});
    EXPECT_EQ(mathAngleBisector(x, mx, out), -4);
    expectNear(out, {0.0, 0.0, 0.0});
}

TEST(Angles, UnsignedAnglesAndFailureValue)
{
    const double a[2] = {1.0, 0.0}, b[2] = {-1.0, 1e-13}, zero[2] = {0.0, 0.0};
    EXPECT_EQ(mathGetAngle2D(a, b, 1e-10), kPi);
    EXPECT_EQ(mathGetAngle2D(a, zero, 1e-10), -1.0);

    // |y| = 0.5: a tolerance equal to a length still measures.
    const double x[3] = {3.0, 0.0, 0.0}, y[3] = {0.0, 0.0, 0.5};
    EXPECT_DOUBLE_EQ(mathGetAngle(x, y, 0.5), kHalfPi);
    EXPECT_EQ(mathGetAngle(x, y, 0.6), -1.0);

    const double p0[3] = {1.0, 1.0, 1.0}, p1[3] = {0.0, 1.0, 1.0}, p2[3] = {-1.0, 1.0, 1.0};
    EXPECT_EQ(mathGetAngle3P(p0, p1, p2), kPi);
    EXPECT_EQ(mathGetAngle3P(p0, p1, p1), -1.0);

    const double u[3] = {1.0, 0.0, 0.0}, v[3] = {-std::sqrt(0.5), std::sqrt(0.5), 0.0};
    EXPECT_DOUBLE_EQ(mathGetAngleUnit(u, v), 0.75 * kPi);
    EXPECT_DOUBLE_EQ(mathGetAcuteAngleUnit(u, v), 0.25 * kPi);
}

TEST(Angles, SignedAndAnticlockwise)
{
    const double x[2] = {1.0, 0.0}, y[2] = {0.0, 1.0}, mx[2] = {-1.0, 0.0};
    const double back[2] = {-std::sqrt(0.5), std::sqrt(0.5)}, zero[2] = {0.0, 0.0};
    EXPECT_DOUBLE_EQ(mathGetAngle2DUnitEx(x, y), kHalfPi);
    EXPECT_DOUBLE_EQ(mathGetAngle2DUnitEx(y, x), -kHalfPi);
    EXPECT_EQ(mathGetAngle2DUnitEx(x, mx), -kPi);
    EXPECT_DOUBLE_EQ(mathGetAngle2DUnitEx(x, back), 0.75 * kPi);
    const double same = mathGetAngle2DUnitEx(x, x);
    EXPECT_EQ(same, 0.0);
    EXPECT_TRUE(std::signbit(same));

    EXPECT_DOUBLE_EQ(mathGetACWAngle2D(x, y), 1.5 * kPi);
    EXPECT_DOUBLE_EQ(mathGetACWAngle2D(y, x), kHalfPi);
    EXPECT_EQ(mathGetACWAngle2D(zero, y), -1.0);
    // Collinear legs: on the line, so no full-turn complement.
    EXPECT_EQ(mathGetACWAngle2D(x, mx), kPi);
    const double p0[2] = {3.0, 1.0}, p1[2] = {2.0, 1.0}, p2[2] = {2.0, 0.0};
    EXPECT_DOUBLE_EQ(mathGetACWAngle3P2D(p0, p1, p2), kHalfPi);
    // Rays 1e-7 rad apart: the unsigned angle snaps to 0, so just
    // anticlockwise gives the full turn and just clockwise gives 0.
    const double above[2] = {1.0, 1e-7}, below[2] = {1.0, -1e-7};
    EXPECT_EQ(mathGetACWAngle2D(x, above), kTwoPi);
    EXPECT_EQ(mathGetACWAngle2D(x, below), 0.0);

    const double ax[3] = {1.0, 0.0, 0.0}, ay[3] = {0.0, 1.0, 0.0}, az[3] = {0.0, 0.0, 1.0};
    const double v[3] = {0.0, -4.0, 7.0}, back3[3] = {-1.0, 0.0, 0.0};
    EXPECT_DOUBLE_EQ(mathGetRAngleXY(ax, ay, v), 1.5 * kPi);
    EXPECT_DOUBLE_EQ(mathGetRAngleXZ(ax, az, v), 1.5 * kPi);
    EXPECT_EQ(mathGetRAngleXZ(ax, ax, back3), kPi);
}

TEST(Frames, PerpendicularFromOneDirection)
{
    const double z[3] = {0.0, 0.0, 1.0};
    double x[3], y[3];
    EXPECT_EQ(mathGetXYFromZ(z, x, y), 1);
    expectNear(x, {0.0, 1.0, 0.0});
    expectNear(y, {-1.0, 0.0, 0.0});

    const double tilted[3] = {0.48, 0.6, 0.64};
    EXPECT_EQ(mathGetXYFromZ(tilted, x, y), 1);
    EXPECT_NEAR(mathOProduct(x, tilted), 0.0, 1e-15);
    EXPECT_NEAR(mathVecLen(x), 1.0, 1e-15);
    EXPECT_NEAR(mathOProduct(y, x), 0.0, 1e-15);
    EXPECT_NEAR(mathMProduct(x, y, tilted), 1.0, 1e-12);

    const double tiny[3] = {1e-12, 0.0, 0.0};
    double yKeep[3] = {5.0, 5.0, 5.0};
    EXPECT_EQ(mathGetXYFromZ(tiny, x, yKeep), 0);
    expectNear(x, {0.0, 0.0, 0.0});
    expectNear(yKeep, {5.0, 5.0, 5.0});
}

TEST(Rotations, VectorsTurnMirrorAndReflect)
{
    const double v2[2] = {1.0, 0.0};
    double r2[2];
    mathRotVec2D(kHalfPi, v2, r2);
    expectNear(r2, {0.0, 1.0}, 1e-15);

    // A vector's rotation does not depend on where the axis lies.
    const double n[3] = {0.0, 0.0, 1.0}, farAway[3] = {100.0, -50.0, 3.0};
    double v[3] = {1.0, 0.0, 2.0};
    mathRotVec(n, farAway, kHalfPi, v, v);
    expectNear(v, {0.0, 1.0, 2.0});

    double m[3] = {1.0, 2.0, 3.0};
    mathMirVec(farAway, n, m, m);
    expectNear(m, {1.0, 2.0, -3.0});
    const double w[3] = {1.0, 2.0, 3.0};
    double out[3];
    mathRefVec(w, n, out);
    expectNear(out, {-1.0, -2.0, 3.0});

    // z x x is y, so turning x by a quarter about z reaches y.
    const double x[3] = {1.0, 0.0, 0.0};
    mathRotVecXZ(x, n, kHalfPi, out);
    expectNear(out, {0.0, 1.0, 0.0});
}
