#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <cmath>

#include "core/checks.hpp"

TEST(Tolerances, DefaultsAndUncheckedSetters)
{
    struct Tolerance {
        double (*get)(void);
        void (*set)(double);
        double initial, odd;
    };
    // Zero and negative values are stored as given; distinct odd values show
    // that each setter only touches its own tolerance.
    const Tolerance tols[] = {{gmGetDistTol, gmSetDistTol, 0.002, -1.0},
                              {gmGetParaTol, gmSetParaTol, 0.0001, 0.0},
                              {gmGetAbsDistTol, gmSetAbsDistTol, 1e-6, 3.0},
                              {gmGetAbsParaTol, gmSetAbsParaTol, 1e-6, 4.0},
                              {gmGetAbsZero, gmSetAbsZero, 1e-10, -5.0}};
    for (const Tolerance &t : tols) {
        EXPECT_EQ(t.get(), t.initial);
        t.set(t.odd);
    }
    for (const Tolerance &t : tols) {
        EXPECT_EQ(t.get(), t.odd);
        t.set(t.initial);
    }
}

TEST(Packing, HalvesAreKeptAndReplaced)
{
    EXPECT_EQ(mathSetLow16(0x12345678u, 0xABCDu), 0x1234ABCDu);
    EXPECT_EQ(mathSetHigh16(0x12345678u, 0xABCDu), 0xABCD5678u);
    EXPECT_EQ(mathSetLow16(0x12345678u, 0xFFFFABCDu), 0x1234ABCDu);
    EXPECT_EQ(mathMerge16(0x1u, 0x10002u), 0x00010002u);
    EXPECT_EQ(mathMerge16(0xABCDu, 0x1234u), 0xABCD1234u);
}

TEST(Clamping, BoundsPeriodsAndArgumentOrder)
{
    EXPECT_EQ(mathClamp(0.0, 1.0, 0.5), 0.5);
    EXPECT_EQ(mathClamp(0.0, 1.0, 3.0), 1.0);
    // An inverted range: the lower bound is tested first.
    EXPECT_EQ(mathClamp(2.0, 1.0, 1.5), 2.0);

    EXPECT_EQ(mathClamp0PI2(kTwoPi), kTwoPi);
    EXPECT_DOUBLE_EQ(mathClamp0PI2(-0.5), kTwoPi - 0.5);
    EXPECT_DOUBLE_EQ(mathClamp0PI2(7.0), 7.0 - kTwoPi);
    EXPECT_NEAR(mathClamp0PI2(-3.0 * kTwoPi - 1.0), kTwoPi - 1.0, 1e-12);

    EXPECT_EQ(mathClampPeriodic(1.0, 1.0, 5.0), 1.0);
    EXPECT_EQ(mathClampPeriodic(2.0, 1.0, 5.0), 1.5);
    EXPECT_EQ(mathClampPeriodic(0.0, 10.0, 10.0), 10.0);
    EXPECT_EQ(mathClampPeriodic(0.0, 10.0, -3.0), 7.0);
    EXPECT_EQ(mathClampPeriodic(0.0, 10.0, 23.0), 3.0);
    // The upper end reached from outside wraps to the lower end.
    EXPECT_EQ(mathClampPeriodic(0.0, 10.0, 20.0), 0.0);
}

TEST(Random, StepsOfOneTenThousandthBelowOne)
{
    for (int i = 0; i < 1000; ++i) {
        const double r = mathRand01();
        ASSERT_GE(r, 0.0);
        ASSERT_LE(r, 0.9999);
        const double steps = r * 10000.0;
        ASSERT_NEAR(steps, std::round(steps), 1e-6);
    }
}

TEST(Swaps, ExchangeExactlyTheGivenCount)
{
    double a[3] = {1.0, 2.0, 3.0}, b[3] = {4.0, 5.0, 6.0};
    mathSwapDblN(a, b, 0);
    mathSwapDblN(a, b, -2);
    expectNear(a, {1.0, 2.0, 3.0}, 0.0);
    mathSwapPnt2D(a, b);
    expectNear(a, {4.0, 5.0, 3.0}, 0.0);
    expectNear(b, {1.0, 2.0, 6.0}, 0.0);
}

TEST(GuardedTrig, EndValuesNearPlusMinusOne)
{
    EXPECT_EQ(mathACos(1.0000000000001), 0.0);
    EXPECT_EQ(mathACos(-1.0000000000001), kPi);
    // Inside [-1, 1] but above the guard: exactly 0, not acos of it.
    EXPECT_EQ(mathACos(0.9999999999995), 0.0);
    EXPECT_EQ(mathASin(1.0000000000001), kHalfPi);
    EXPECT_EQ(mathASin(-0.9999999999995), -kHalfPi);
    EXPECT_TRUE(std::isnan(mathACos(NAN)));

    EXPECT_EQ(mathSolAngleByCS(0.0, 0.0), 0.0);
    EXPECT_EQ(mathSolAngleByCS(1.0, 0.0), 0.0);
    EXPECT_EQ(mathSolAngleByCS(1.0, -1e-30), kTwoPi);
    EXPECT_EQ(mathSolAngleByCS(-1.0, 0.0), kPi);
    EXPECT_DOUBLE_EQ(mathSolAngleByCS(0.0, -2.0), 1.5 * kPi);
    EXPECT_DOUBLE_EQ(mathSolAngleByCS(3.0, 3.0), 0.25 * kPi);
}
