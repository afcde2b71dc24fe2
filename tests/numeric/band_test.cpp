#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

using Vec = std::vector<double>;

// A diagonally dominant band system in the solver's layout and dense: band
// rows carry unknowns i-1 ... i+k-2, the last k rows the end block.
struct BandSystem {
    int n, k;
    Vec band;  // n x 4
    Vec dense; // n x n

    BandSystem(int n_, int k_) : n(n_), k(k_), band(n_ * 4, 0.0), dense(n_ * n_, 0.0)
    {
        for (int row = 0; row < n; ++row) {
            const int first = (row == 0) ? 0 : (row <= n - k ? row - 1 : n - k);
            const int last = (row == 0) ? k - 1 : (row <= n - k ? row + k - 2 : n - 1);
            for (int col = first; col <= last; ++col) {
                const double v = (col == row) ? 5.0 + 0.01 * row : 0.3 + 0.1 * (col - row);
                dense[row * n + col] = v;
                band[row * 4 + col - first] = v;
            }
        }
    }

    // Compares X (n x width) with the dense solution of B, column by column.
    void expectSolves(const Vec &B, const double *X, int width) const
    {
        for (int c = 0; c < width; ++c) {
            Vec rhs(n), x(n);
            for (int i = 0; i < n; ++i)
                rhs[i] = B[i * width + c];
            ASSERT_EQ(mathSolLineEqua(n, dense.data(), rhs.data(), x.data()), 1);
            for (int i = 0; i < n; ++i)
                EXPECT_NEAR(X[i * width + c], x[i], 1e-12) << "row " << i << " comp " << c;
        }
    }
};

Vec rightSides(int n, int width)
{
    Vec B(n * width);
    for (int i = 0; i < n * width; ++i)
        B[i] = 1.0 + 0.5 * (i % width) - 0.25 * (i / width) + 0.01 * (i / width) * (i % width);
    return B;
}

} // namespace

TEST(BandSolver, IdentityLayoutReturnsRightSide)
{
    const int n = 6, k = 4;
    Vec A(n * 4, 0.0), B = rightSides(n, 4), X(n * 4, -1.0);
    A[0] = 1.0;
    for (int i = 1; i < n; ++i) // band rows, then the end block's diagonal
        A[i * 4 + (i <= n - k ? 1 : i - (n - k))] = 1.0;
    ASSERT_EQ(mathSolCurvBandMatx4D(n, k, A.data(), Vec(B).data(), X.data()), 1);
    EXPECT_EQ(X, B);
}

TEST(BandSolver, CurveAndSurfaceSolversMatchDenseSolution)
{
    const int sizes[][2] = {{4, 4}, {5, 4}, {12, 4}, {9, 3}, {7, 2}, {1, 1}};
    for (const auto &size : sizes) {
        for (int width : {3, 4}) {
            const int n = size[0], k = size[1];
            SCOPED_TRACE(testing::Message() << "n " << n << " k " << k << " width " << width);
            BandSystem s(n, k);
            const Vec B0 = rightSides(n, width);
            Vec B = B0, X(n * width);
            ASSERT_EQ(width == 3 ? mathSolCurvBandMatx(n, k, s.band.data(), B.data(), X.data())
                                 : mathSolCurvBandMatx4D(n, k, s.band.data(), B.data(), X.data()),
                      1);
            s.expectSolves(B0, X.data(), width);
        }
    }

    // The surface solver takes rows of 4 m columns through row pointers.
    const int n = 8, m = 3, width = 4 * m;
    BandSystem s(n, 4);
    const Vec B0 = rightSides(n, width);
    Vec flatB = B0, flatX(n * width);
    std::vector<double *> B(n), X(n);
    for (int i = 0; i < n; ++i) {
        B[i] = &flatB[i * width];
        X[i] = &flatX[i * width];
    }
    ASSERT_EQ(mathSolSurfBandMatx(n, m, 4, s.band.data(), B.data(), X.data()), 1);
    s.expectSolves(B0, flatX.data(), width);
}

TEST(BandSolver, SingularAndRefusedSystemsReturnZero)
{
    // Zero leading coefficient in row 0; two equal rows in the end block.
    BandSystem s(6, 4), t(6, 4);
    s.band[0] = 0.0;
    std::copy(&t.band[4 * 4], &t.band[5 * 4], &t.band[5 * 4]);
    Vec B(6 * 4, 1.0), X(6 * 4);
    EXPECT_EQ(mathSolCurvBandMatx(6, 4, s.band.data(), B.data(), X.data()), 0);
    EXPECT_EQ(mathSolCurvBandMatx4D(6, 4, t.band.data(), B.data(), X.data()), 0);

    // End block beyond the fixed storage, or larger than the system: refused, arrays untouched.
    Vec A5(5 * 4, 1.0), B5(5 * 4, 1.0), X5(5 * 4, 2.0);
    EXPECT_EQ(mathSolCurvBandMatx4D(5, 5, A5.data(), B5.data(), X5.data()), 0);
    EXPECT_EQ(mathSolCurvBandMatx4D(3, 4, A5.data(), B5.data(), X5.data()), 0);
    EXPECT_EQ(A5, Vec(5 * 4, 1.0));
    EXPECT_EQ(X5, Vec(5 * 4, 2.0));

    // With an end block of order 1 the shift keeps no coefficient of a band
    // row, so even the identity fails beyond a single equation.
    for (int n : {2, 3}) {
        Vec A1(n * 4, 0.0), B1(n * 3, 1.0), X1(n * 3);
        A1[0] = 1.0;
        for (int i = 1; i < n; ++i)
            A1[i * 4 + 1] = 1.0;
        EXPECT_EQ(mathSolCurvBandMatx(n, 1, A1.data(), B1.data(), X1.data()), 0) << "n = " << n;
    }
}
