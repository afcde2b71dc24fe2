#include <korvex/capi.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace {

// Coefficients of prod (x - r), highest degree first.
std::vector<double> fromRoots(const std::vector<double> &roots)
{
    std::vector<double> c{1.0};
    for (double r : roots) {
        c.push_back(0.0);
        for (size_t i = c.size() - 1; i > 0; --i)
            c[i] -= r * c[i - 1];
    }
    return c;
}

void expectRoots(std::vector<double> got, std::vector<double> want, double relTol)
{
    ASSERT_EQ(got.size(), want.size());
    std::sort(got.begin(), got.end());
    std::sort(want.begin(), want.end());
    for (size_t i = 0; i < got.size(); ++i)
        EXPECT_NEAR(got[i], want[i], relTol * std::max(1.0, std::fabs(want[i]))) << "root " << i;
}

void expectValues(const double *got, std::initializer_list<double> want, double tol)
{
    for (size_t i = 0; i < want.size(); ++i)
        EXPECT_NEAR(got[i], want.begin()[i], tol) << "entry " << i;
}

std::vector<double> quartic(const std::vector<double> &roots)
{
    double x[4];
    const int k = mathSolQuarEqua(fromRoots(roots).data(), 1e-12, x);
    return std::vector<double>(x, x + (k <= 4 ? k : 0));
}

} // namespace

TEST(PolyQuartic, FactorPairsAndDegenerateForms)
{
    // Each quadratic factor in turn, larger magnitude first.
    const double c1[5] = {1, 0, -5, 0, 4};
    double x[4];
    ASSERT_EQ(mathSolQuarEqua(c1, 1e-9, x), 4);
    expectValues(x, {-2, -1, 2, 1}, 1e-14);
    // (x^2 + 1)(x - 1)(x - 3): only the real factor contributes.
    const double c2[5] = {1, -4, 4, -4, 3};
    ASSERT_EQ(mathSolQuarEqua(c2, 1e-9, x), 2);
    expectRoots({x[0], x[1]}, {1, 3}, 1e-12);
    expectRoots(quartic({1, 1, 2, 3}), {1, 2, 3}, 1e-7); // a double root counts once

    // x^4 + 5x^2 + 4: the resolvent's largest root gives R = 0; it gives up.
    const double flatSplit[5] = {1, 0, 5, 0, 4};
    EXPECT_EQ(mathSolQuarEqua(flatSplit, 1e-9, x), 0);
    // A triple root makes the resolvent a pure cube with NaN roots: no split.
    EXPECT_EQ(mathSolQuarEqua(fromRoots({1, 1, 1, -3}).data(), 1e-9, x), 0);
    EXPECT_EQ(mathSolQuarEqua(fromRoots({2, 2, 2, 2}).data(), 1e-9, x), 0);

    // x^4 - x^2 - 2 = (x^2 - 2)(x^2 + 1) needs the R = 0 split, but rounding leaves
    // R near 5e-8: four spurious roots near +-sqrt(1/2) instead of +-sqrt(2).
    const double nearSplit[5] = {1, 0, -1, 0, -2};
    ASSERT_EQ(mathSolQuarEqua(nearSplit, 1e-9, x), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_NEAR(std::fabs(x[i]), 0.7071067811865476, 1e-7);

    const double cubic[5] = {0, 1, -6, 11, -6}, zero[5] = {0, 0, 0, 0, 0};
    EXPECT_EQ(mathSolQuarEqua(cubic, 1e-9, x), 3);
    EXPECT_EQ(mathSolQuarEqua(zero, 1e-9, x), 100);
}

TEST(PolyQuartic, AccuracyOnKnownRoots)
{
    expectRoots(quartic({0.1, 0.2, 5, 7}), {0.1, 0.2, 5, 7}, 1e-13);
    // Widely scaled roots: the small ones lose digits to cancellation.
    expectRoots(quartic({1e-3, 1, 10, 1e3}), {1e-3, 1, 10, 1e3}, 1e-9);
    // Clustered roots: the closed form is only good to a few 1e-7.
    expectRoots(quartic({1, 1.01, 1.02, 1.03}), {1, 1.01, 1.02, 1.03}, 2e-6);

    // Pseudo-random well-separated roots in [-10, 10].
    uint32_t seed = 12345;
    auto next = [&seed] {
        seed = seed * 1664525u + 1013904223u;
        return (seed >> 8) / double(1 << 24) * 20.0 - 10.0;
    };
    for (int trial = 0; trial < 200; ++trial) {
        std::vector<double> r{next(), next(), next(), next()};
        std::sort(r.begin(), r.end());
        if (r[1] - r[0] < 0.2 || r[2] - r[1] < 0.2 || r[3] - r[2] < 0.2)
            continue;
        expectRoots(quartic(r), r, 1e-9);
    }
}

TEST(PolyComplexFamily, CubicOrdersAndQuirks)
{
    // {a, b, c, d, count, wr[0..2], wi[0..2]}. The real root precedes a pair.
    // (x + 1)^3 + 1e-3 has no linear term when depressed, and its real root
    // comes back without the shift of -1. With a = b = 0, c x = d unflipped.
    const double s = 0.8660254037844386;
    const double cases[][11] = {{1, -6, 11, -6, 3, 3, 2, 1, 0, 0, 0},
                                {2, 0, 0, -2, 3, 1, -0.5, -0.5, 0, s, -s},
                                {1, 3, 3, 1 + 1e-3, 3, -0.1, -0.95, -0.95, 0, -0.1 * s, 0.1 * s},
                                {1, 3, 3, 1, 3, -1, -1, -1, 0, 0, 0},
                                {0, 0, 2, 4, 1, 2}};
    for (const auto &k : cases) {
        double wr[3], wi[3];
        int n = 0;
        mathSlvequ3(k[0], k[1], k[2], k[3], wr, wi, &n);
        ASSERT_EQ(n, int(k[4])) << "d " << k[3];
        for (int i = 0; i < n; ++i) {
            EXPECT_NEAR(wr[i], k[5 + i], 1e-12) << "d " << k[3] << " root " << i;
            EXPECT_NEAR(wi[i], k[8 + i], 1e-12) << "d " << k[3] << " root " << i;
        }
    }

    double roots[3];
    int n = 0;
    mathSlvequR3(2, 0, 0, -2, roots, &n);
    ASSERT_EQ(n, 1);
    EXPECT_NEAR(roots[0], 1.0, 1e-14);
    mathSlvequR3(0, 1, -3, 2, roots, &n); // degenerate: the quadratic's real roots
    EXPECT_EQ(n, 2);
}

TEST(PolyComplexFamily, QuarticPairsAndRealFilter)
{
    double wr[4], wi[4], fr[4];
    int n = 0;
    mathSlvequ4(1, 0, 0, 0, 1, wr, wi, &n); // x^4 + 1: two conjugate pairs
    ASSERT_EQ(n, 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_NEAR(std::fabs(wr[i]), 0.7071067811865476, 1e-14);
        EXPECT_NEAR(std::fabs(wi[i]), 0.7071067811865476, 1e-14);
    }
    EXPECT_EQ(wi[1], -wi[0]);
    EXPECT_EQ(wi[3], -wi[2]);

    for (const std::vector<double>& roots :
         {std::vector<double>{1, 2, 3, 4}, {-2, -1, 1, 2}, {1e-3, 1, 10, 1e3}, {0.1, 0.2, 5, 7}}) {
        const std::vector<double> c = fromRoots(roots);
        mathSlvequ4(c[0], c[1], c[2], c[3], c[4], wr, wi, &n);
        ASSERT_EQ(n, 4);
        expectRoots({wr[0], wr[1], wr[2], wr[3]}, roots, 1e-9);
    }

    // (x^2 + 1)(x^2 - 4): one real pair.
    mathSlvequR4(1, 0, -3, 0, -4, fr, &n);
    ASSERT_EQ(n, 2);
    expectRoots({fr[0], fr[1]}, {-2, 2}, 1e-14);
    mathSlvequR4(1, 0, 0, 0, 1, fr, &n);
    EXPECT_EQ(n, 0);
    // Negligible leading coefficient: the cubic's real roots.
    mathSlvequR4(0, 1, -6, 11, -6, fr, &n);
    ASSERT_EQ(n, 3);
    expectRoots({fr[0], fr[1], fr[2]}, {1, 2, 3}, 1e-12);
}

TEST(PolyCompanion, DegreeReductionAndAccuracy)
{
    // Trailing coefficients below 1e-10 lower the degree.
    const double c[6] = {-6, 11, -6, 1, 0, 1e-12};
    double wr[5], wi[5];
    int m = 0;
    ASSERT_EQ(mathSlvequN(c, 5, wr, wi, &m, 1e-15, 60), 1);
    ASSERT_EQ(m, 3);
    expectRoots({wr[0], wr[1], wr[2]}, {1, 2, 3}, 1e-13);

    // A constant has no roots; that is a success.
    const double k[2] = {5, 0};
    EXPECT_EQ(mathSlvequN(k, 1, wr, wi, &m, 1e-15, 60), 1);
    EXPECT_EQ(m, 0);

    // x^4 - 1: the companion is a cyclic permutation, on which plain shifts stall.
    const double unit[5] = {-1, 0, 0, 0, 1};
    ASSERT_EQ(mathSlvequN(unit, 4, wr, wi, &m, 1e-15, 60), 1);
    for (int i = 0; i < 4; ++i)
        EXPECT_NEAR(std::hypot(wr[i], wi[i]), 1.0, 1e-13);
    EXPECT_EQ(std::count(wi, wi + 4, 0.0), 2);

    // Many roots, and widely scaled ones (coefficients go lowest degree first).
    for (const auto &set : {std::make_pair(std::vector<double>{1, 2, 3, 4, 5, 6, 7, 8}, 1e-10),
                            std::make_pair(std::vector<double>{1e-4, 2e-4, 1e4, 2e4}, 1e-12)}) {
        std::vector<double> p = fromRoots(set.first), re(set.first.size()), im(set.first.size());
        std::reverse(p.begin(), p.end());
        ASSERT_EQ(mathSlvequN(p.data(), int(re.size()), re.data(), im.data(), &m, 1e-15, 60), 1);
        expectRoots(re, set.first, set.second);
    }
}

TEST(PolyCompanion, HessenbergEigenvalues)
{
    double wr[3], wi[3];
    EXPECT_EQ(mathHQR(nullptr, 0, wr, wi, 1e-15, 30), 1);

    // Rotation block: the pair 1 -+ 2i, negative imaginary part first.
    double rot[4] = {1, -2, 2, 1};
    ASSERT_EQ(mathHQR(rot, 2, wr, wi, 1e-15, 30), 1);
    expectValues(wr, {1, 1}, 0.0);
    expectValues(wi, {-2, 2}, 0.0);

    // A full Hessenberg matrix needs sweeps: none allowed fails.
    double h[9] = {4, 1, 2, 1, 3, 1, 0, 1, 2}, g[9] = {4, 1, 2, 1, 3, 1, 0, 1, 2};
    EXPECT_EQ(mathHQR(h, 3, wr, wi, 1e-15, 0), 0);
    ASSERT_EQ(mathHQR(g, 3, wr, wi, 1e-15, 30), 1);
    // Trace and determinant of the original matrix are preserved.
    EXPECT_NEAR(wr[0] + wr[1] + wr[2], 9.0, 1e-12);
    EXPECT_NEAR(wr[0] * wr[1] * wr[2], 4 * 3 * 2 - 4 * 1 - 1 * 2 + 2 * 1, 1e-11);
}
