#include <korvex/capi.h>
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>

namespace {

void expectValues(const double *got, std::initializer_list<double> want, double tol)
{
    for (size_t i = 0; i < want.size(); ++i)
        EXPECT_NEAR(got[i], want.begin()[i], tol) << "entry " << i;
}

const double pi = 3.141592653589793;

double square(double x) { return x * x; }
double twice(double x) { return 2.0 * x; }
double cycling(double x) { return x * x * x - 2.0 * x + 2.0; }
double cyclingSlope(double x) { return 3.0 * x * x - 2.0; }
double bowl(double x) { return (x - 0.3) * (x - 0.3) + 1.0; }
double rising(double x) { return std::exp(x); }
double identityMap(double x) { return x; }
double wrongSlope(double) { return 2.0; } // each Newton step halves x

} // namespace

TEST(PolyQuadratic, CountsOrdersAndDegenerateForms)
{
    // {a, b, c, count, x}: two roots larger magnitude first (sign of b); else
    // x holds the one root twice, or with no real root the vertex abscissa.
    const double cases[][6] = {
        {1, -2, 1, 1, 1, 1},         {1, -3, 2, 2, 2, 1},  {1, 3, 2, 2, -2, -1},
        {-1, 0, 1, 2, -1, 1},        {1, -4, 5, 0, 2, 2},  {0, 2, -4, 1, 2, 2},
        {1, -2, 1 + 1e-10, 1, 1, 1}, // vertex just above the axis, within tolerance
    };
    for (const auto &k : cases) {
        double x[2] = {0.0, 0.0};
        EXPECT_EQ(mathSolQuadEqua(k[0], k[1], k[2], 1e-9, x), int(k[3])) << "b " << k[1] << " c " << k[2];
        expectValues(x, {k[4], k[5]}, 1e-15);
    }
    double x[2];
    EXPECT_EQ(mathSolQuadEqua(0, 0, 5, 1e-9, x), 0);
    EXPECT_EQ(mathSolQuadEqua(0, 0, 0, 1e-9, x), 100);
}

TEST(PolyCubic, RootOrderQuirksAndFallbacks)
{
    double x[3];
    const double c1[4] = {1, -6, 11, -6};
    ASSERT_EQ(mathSolTriaEqua(c1, 1e-9, x), 3);
    expectValues(x, {3, 1, 2}, 1e-12); // largest, smallest, middle
    // Double root: the simple one first, the double one twice.
    const double c2[4] = {1, 0, -3, 2};
    ASSERT_EQ(mathSolTriaEqua(c2, 1e-9, x), 3);
    expectValues(x, {-2, 1, 1}, 1e-12);

    // One real root, via the cube-root exponent 0.33333333333333: just under 2.
    const double c3[4] = {1, 0, 0, -8};
    ASSERT_EQ(mathSolTriaEqua(c3, 1e-9, x), 1);
    EXPECT_DOUBLE_EQ(x[0], std::pow(8.0, 0.33333333333333));

    // A pure cube ends in 0/0.
    const double c4[4] = {2, 0, 0, 0};
    ASSERT_EQ(mathSolTriaEqua(c4, 1e-9, x), 3);
    EXPECT_TRUE(std::isnan(x[0]));
    // Negligible leading coefficient: the quadratic, down to the identity.
    const double c5[4] = {1e-25, 1, -3, 2};
    EXPECT_EQ(mathSolTriaEqua(c5, 1e-9, x), 2);
}

TEST(PolyInterval, CandidatesEndsAndMerging)
{
    double r[4];
    const double p2[3] = {1, 0, -1};
    ASSERT_EQ(mathSolUniNEqua(2, p2, 0, 2, 1e-9, r), 1);
    EXPECT_DOUBLE_EQ(r[0], 1.0);
    // Roots on both ends are found once each, sorted.
    const double p3[3] = {1, -1, 0};
    ASSERT_EQ(mathSolUniNEqua(2, p3, 0, 1, 1e-9, r), 2);
    expectValues(r, {0, 1}, 0.0);

    // x^3 - 1e-6 x stays below tol around its 3 roots: merged, the first pair
    // keeps its lower root, then the last pair its upper one.
    const double p4[4] = {1, 0, -1e-6, 0};
    ASSERT_EQ(mathSolUniNEqua(3, p4, -1, 1, 1e-6, r), 1);
    EXPECT_NEAR(r[0], 1e-3, 1e-15);

    const double p5[5] = {1, -10, 35, -50, 24}; // roots 1, 2, 3, 4
    ASSERT_EQ(mathSolUniNEqua(4, p5, 1.5, 3.5, 1e-9, r), 2);
    expectValues(r, {2, 3}, 1e-12);
    EXPECT_EQ(mathSolUniNEqua(5, p5, 0, 1, 1e-9, r), 0);
    const double lin0[2] = {0, 0}, lin1[2] = {0, 1};
    EXPECT_EQ(mathSolUniNEqua(1, lin0, 0, 1, 1e-9, r), 100);
    EXPECT_EQ(mathSolUniNEqua(1, lin1, 0, 1, 1e-9, r), 0);
}

TEST(PolyRational, RootsNearRootsAndPoles)
{
    double r[12];
    // (x - 0.5)(x + 3) / (x^2 + 1): one root in [0, 1].
    const double num[3] = {1, 2.5, -1.5}, den[3] = {1, 0, 1};
    ASSERT_EQ(mathSolRatiEqua(2, num, den, 0, 1, 1e-9, r), 1);
    EXPECT_NEAR(r[0], 0.5, 1e-12);

    // ((x - 0.5)^2 + 5e-7) / 1000 dips to 5e-10 without vanishing: the
    // minimiser finds it between the roots of N - tol D.
    const double dip[3] = {1, -1, 0.25 + 5e-7}, thousand[3] = {0, 0, 1000};
    ASSERT_EQ(mathSolRatiEqua(2, dip, thousand, 0, 1, 1e-9, r), 1);
    EXPECT_NEAR(r[0], 0.5, 1e-8);
    EXPECT_EQ(mathSolRatiEqua(2, dip, thousand, 0, 1, 1e-10, r), 0);

    // A negative denominator counts as a pole where N/D reads 0: the whole
    // interval merges into one root, kept at hi because it sits on hi.
    const double n1[2] = {1, -0.5}, d1[2] = {1, -2};
    ASSERT_EQ(mathSolRatiEqua(1, n1, d1, 0, 1, 1e-9, r), 1);
    EXPECT_EQ(r[0], 1.0);

    const double zero[3] = {0, 0, 0};
    EXPECT_EQ(mathSolRatiEqua(2, zero, den, 0, 1, 1e-9, r), 100);
    EXPECT_EQ(mathSolRatiEqua(5, num, den, 0, 1, 1e-9, r), 0);
}

TEST(PolyNewton, ConvergesStopsOnFlatSlopeAndGivesUp)
{
    double x = 0.0;
    EXPECT_EQ(mathSolUnivEqua(square, twice, 2.0, 1.0, 1e-12, &x), 1);
    EXPECT_NEAR(x, std::sqrt(2.0), 1e-12);
    EXPECT_EQ(mathSolUnivEqua(square, twice, 2.0, 0.0, 1e-12, &x), 800);
    // Newton cycles between 0 and 1 on x^3 - 2x + 2.
    EXPECT_EQ(mathSolUnivEqua(cycling, cyclingSlope, 0.0, 0.0, 1e-12, &x), 0);

    // 32 steps at most, and the iterate after the last step is not tested:
    // x reaches 2^-31 after 31 steps and 2^-32 after 32.
    const double two31 = std::ldexp(1.0, -31), two32 = std::ldexp(1.0, -32);
    EXPECT_EQ(mathSolUnivEqua(identityMap, wrongSlope, 0.0, 1.0, 1.5 * two31, &x), 1);
    EXPECT_EQ(x, two31);
    EXPECT_EQ(mathSolUnivEqua(identityMap, wrongSlope, 0.0, 1.0, 1.5 * two32, &x), 0);
    EXPECT_EQ(x, two32);
}

TEST(PolyAngle, CosSinEquation)
{
    double t[4];
    // cos t (1 + sin t / 2) = 0: both ends of the tan(t/2) range, nothing else.
    ASSERT_EQ(mathSolAngleByCCSS(1, 0.5, 0, 1e-10, t), 2);
    expectValues(t, {pi / 2, 3 * pi / 2}, 1e-12);

    // Elsewhere the sign changes on a fine grid are the reference.
    const double cases[][3] = {{0.3, 2.0, 0.5}, {1.0, -0.5, 2.0}, {-2.0, 1.0, 0.7}};
    for (const auto &k : cases) {
        auto g = [&](double a) { return k[0] * std::cos(a) + k[1] * std::cos(a) * std::sin(a) + k[2] * std::sin(a); };
        int changes = 0;
        for (int i = 0, steps = 20000; i < steps; ++i)
            changes += g(2 * pi * i / steps) * g(2 * pi * (i + 1) / steps) < 0;
        const int n = mathSolAngleByCCSS(k[0], k[1], k[2], 1e-12, t);
        ASSERT_EQ(n, changes);
        for (int i = 0; i < n; ++i) {
            EXPECT_TRUE(t[i] >= 0.0 && t[i] < 2 * pi) << t[i];
            EXPECT_NEAR(g(t[i]), 0.0, 1e-9);
        }
    }
    EXPECT_EQ(mathSolAngleByCCSS(0, 0, 0, 1e-9, t), 100);
    EXPECT_EQ(t[0], 0.0);
}

TEST(PolyArithmetic, EvaluationProductsDerivativesIntegrals)
{
    const double p[4] = {2, -3, 0, 5}; // 2x^3 - 3x^2 + 5
    EXPECT_DOUBLE_EQ(mathEvalPoly(3, p, 2.0), 9.0);
    EXPECT_EQ(mathEvalPoly(0, p, 7.0), 2.0);
    const double den[4] = {0, 0, 1, -3}; // x - 3: negative below 3
    EXPECT_EQ(mathEvalRPoly(3, p, den, 2.0), 0.0);
    EXPECT_DOUBLE_EQ(mathEvalRPoly(3, p, den, 4.0), 85.0);

    double r[7];
    const double a[3] = {1, 2, 3}, b[2] = {4, 5};
    mathPolyMult(2, 1, a, b, r);
    expectValues(r, {4, 13, 22, 15}, 0.0);
    // A negative degree still clears np + nq + 1 entries and adds nothing.
    r[0] = r[1] = r[2] = 99.0;
    mathPolyMult(-1, 2, a, a, r);
    expectValues(r, {0, 0, 99}, 0.0);

    // 1 + x + x^2 + x^3 (constant first): separate output gives the first
    // derivative whatever k, in place the true k-th derivative.
    const double c[4] = {1, 1, 1, 1};
    double d[4] = {0, 0, 0, 0}, e[4] = {1, 1, 1, 1};
    mathPolyDeri(2, 3, c, d);
    expectValues(d, {1, 2, 3}, 0.0);
    mathPolyDeri(2, 3, e, e);
    expectValues(e, {2, 6}, 0.0);
    mathPolyDeri(4, 3, c, d);
    EXPECT_EQ(d[0], 0.0);

    EXPECT_DOUBLE_EQ(mathPolyIntg(3, 0, 2, c), 2 + 2 + 8.0 / 3 + 4);
    EXPECT_EQ(mathPolyIntg(3, 2, 0, c), 0.0);
    EXPECT_EQ(mathPolyIntg(3, 1, 1 + 5e-11, c), 0.0);

    // p = 1 + x + x^2, q = x^2 on [0, 1]; with degree 2 they read 1 + x and 0.
    const double pp[3] = {1, 1, 1}, qq[3] = {0, 0, 1};
    double out[3] = {-1, -1, -1}, out2[3] = {-1, -1, -1};
    EXPECT_EQ(mathIntgPolyMult(3, pp, qq, 0, 1, out), 0);
    expectValues(out, {1.0 / 3 + 1.0 / 4 + 1.0 / 5, 1.0 + 4.0 / 3, 4.0}, 1e-15);
    mathIntgPolyMult(2, pp, qq, 0, 1, out2);
    expectValues(out2 + 1, {0, -1}, 0.0);
}

TEST(PolyMinimiser, UnimodalAndMonotonic)
{
    for (double from : {0.0, 1.0}) { // either direction of the interval
        double at = -1.0;
        EXPECT_NEAR(mathOptMonoMoun(bowl, from, 1.0 - from, 1e-12, &at), 1.0, 1e-15);
        EXPECT_NEAR(at, 0.3, 1e-8);
    }
    // A coarse threshold stops early but still returns a real sample.
    double at = -1.0;
    const double v = mathOptMonoMoun(bowl, 0.0, 1.0, 0.2, &at);
    EXPECT_EQ(v, bowl(at));
    EXPECT_NEAR(at, 0.3, 0.2);
    // Monotonic: the minimum is the interval end.
    EXPECT_EQ(mathOptMonoMoun(rising, -1.0, 2.0, 1e-12, &at), std::exp(-1.0));
    EXPECT_EQ(at, -1.0);
    EXPECT_EQ(mathOptMonoMoun(rising, -1.0, 2.0, 1e-12, nullptr), std::exp(-1.0));
}
