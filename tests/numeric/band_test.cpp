#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

// A band system in the solver's layout together with its dense form.
struct BandSystem {
    int n, k;
    std::vector<double> band;  // n x 4
    std::vector<double> dense; // n x n
};

// Diagonally dominant, so both the band and the dense solver are stable.
BandSystem makeSystem(int n, int k)
{
    BandSystem s{n, k, std::vector<double>(n * 4, 0.0), std::vector<double>(n * n, 0.0)};
    auto set = [&](int row, int col, double v) {
        s.dense[row * n + col] = v;
        int first = (row == 0) ? 0 : (row <= n - k ? row - 1 : n - k);
        s.band[row * 4 + (col - first)] = v;
    };
    for (int row = 0; row < n; ++row) {
        if (row == 0) {
            for (int j = 0; j < k && j < n; ++j)
                set(0, j, j == 0 ? 6.0 : 1.0 / (j + 1));
        } else if (row <= n - k) {
            for (int col = row - 1; col <= row + k - 2; ++col)
                set(row, col, col == row ? 5.0 + 0.01 * row : 0.5 + 0.1 * (col - row));
        } else {
            for (int col = n - k; col < n; ++col)
                set(row, col, col == row ? 4.0 : 0.3 * (col + 1) / n);
        }
    }
    return s;
}

std::vector<double> denseSolve(const BandSystem &s, const std::vector<double> &rhs)
{
    std::vector<double> x(s.n);
    EXPECT_EQ(mathSolLineEqua(s.n, s.dense.data(), rhs.data(), x.data()), 1);
    return x;
}

double rhsValue(int i, int c) { return 1.0 + 0.5 * c - 0.25 * i + 0.01 * i * c; }

} // namespace

TEST(BandSolver, IdentityLayoutReturnsRightSide)
{
    const int n = 6, k = 4;
    std::vector<double> A(n * 4, 0.0), B(n * 4), X(n * 4, -1.0);
    A[0] = 1.0;
    for (int i = 1; i <= n - k; ++i)
        A[i * 4 + 1] = 1.0;
    for (int j = 1; j < k; ++j)
        A[(n - k + j) * 4 + j] = 1.0;
    for (int i = 0; i < n * 4; ++i)
        B[i] = i * 0.5;
    const std::vector<double> expected = B;
    ASSERT_EQ(mathSolCurvBandMatx4D(n, k, A.data(), B.data(), X.data()), 1);
    for (int i = 0; i < n * 4; ++i)
        EXPECT_EQ(X[i], expected[i]);
}

TEST(BandSolver, CurveSolversMatchDenseSolution)
{
    const int sizes[][2] = {{4, 4}, {5, 4}, {12, 4}, {9, 3}, {7, 2}, {1, 1}};
    for (const auto &size : sizes) {
        const int n = size[0], k = size[1];
        SCOPED_TRACE(testing::Message() << "n = " << n << ", k = " << k);
        for (int width : {3, 4}) {
            BandSystem s = makeSystem(n, k);
            std::vector<double> B(n * width), X(n * width);
            for (int i = 0; i < n; ++i)
                for (int c = 0; c < width; ++c)
                    B[i * width + c] = rhsValue(i, c);
            const std::vector<double> B0 = B;
            const int result = (width == 3)
                ? mathSolCurvBandMatx(n, k, s.band.data(), B.data(), X.data())
                : mathSolCurvBandMatx4D(n, k, s.band.data(), B.data(), X.data());
            ASSERT_EQ(result, 1);
            for (int c = 0; c < width; ++c) {
                std::vector<double> rhs(n);
                for (int i = 0; i < n; ++i)
                    rhs[i] = B0[i * width + c];
                const std::vector<double> x = denseSolve(s, rhs);
                for (int i = 0; i < n; ++i)
                    EXPECT_NEAR(X[i * width + c], x[i], 1e-12) << "row " << i << " comp " << c;
            }
        }
    }
}

TEST(BandSolver, SurfaceSolverSolvesEveryColumn)
{
    const int n = 8, k = 4, m = 3;
    BandSystem s = makeSystem(n, k);
    std::vector<std::vector<double>> rowsB(n, std::vector<double>(4 * m));
    std::vector<std::vector<double>> rowsX(n, std::vector<double>(4 * m));
    std::vector<double *> B(n), X(n);
    for (int i = 0; i < n; ++i) {
        for (int c = 0; c < 4 * m; ++c)
            rowsB[i][c] = rhsValue(i, c);
        B[i] = rowsB[i].data();
        X[i] = rowsX[i].data();
    }
    ASSERT_EQ(mathSolSurfBandMatx(n, m, k, s.band.data(), B.data(), X.data()), 1);
    for (int c = 0; c < 4 * m; ++c) {
        std::vector<double> rhs(n);
        for (int i = 0; i < n; ++i)
            rhs[i] = rhsValue(i, c);
        const std::vector<double> x = denseSolve(s, rhs);
        for (int i = 0; i < n; ++i)
            EXPECT_NEAR(rowsX[i][c], x[i], 1e-12);
    }
}

TEST(BandSolver, SingularSystemsReturnZero)
{
    // Zero leading coefficient in row 0.
    BandSystem s = makeSystem(6, 4);
    s.band[0] = 0.0;
    std::vector<double> B(6 * 3, 1.0), X(6 * 3);
    EXPECT_EQ(mathSolCurvBandMatx(6, 4, s.band.data(), B.data(), X.data()), 0);

    // Singular end block: two equal end rows.
    BandSystem t = makeSystem(6, 4);
    for (int j = 0; j < 4; ++j)
        t.band[5 * 4 + j] = t.band[4 * 4 + j];
    std::vector<double> B4(6 * 4, 1.0), X4(6 * 4);
    EXPECT_EQ(mathSolCurvBandMatx4D(6, 4, t.band.data(), B4.data(), X4.data()), 0);

    // An end block larger than the fixed storage is refused, and so is a
    // system smaller than its end block; neither touches the arrays.
    std::vector<double> A5(5 * 4, 1.0), B5(5 * 4, 1.0), X5(5 * 4, 2.0);
    EXPECT_EQ(mathSolCurvBandMatx4D(5, 5, A5.data(), B5.data(), X5.data()), 0);
    EXPECT_EQ(mathSolCurvBandMatx4D(3, 4, A5.data(), B5.data(), X5.data()), 0);
    EXPECT_EQ(A5, std::vector<double>(5 * 4, 1.0));
    EXPECT_EQ(X5, std::vector<double>(5 * 4, 2.0));

    // With an end block of order 1 the shift keeps no coefficient of a band
    // row, so even the identity fails beyond a single equation.
    for (int n : {2, 3}) {
        std::vector<double> A1(n * 4, 0.0), B1(n * 3, 1.0), X1(n * 3);
        A1[0] = 1.0;
        for (int i = 1; i < n; ++i)
            A1[i * 4 + 1] = 1.0;
        EXPECT_EQ(mathSolCurvBandMatx(n, 1, A1.data(), B1.data(), X1.data()), 0) << "n = " << n;
    }
}
