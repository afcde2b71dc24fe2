#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

using Matrix = std::vector<double>;

Matrix multiply(const Matrix &A, const Matrix &B, int n, int k, int m)
{
    Matrix C(n * m);
    mathMatxMult(A.data(), B.data(), C.data(), n, k, m);
    return C;
}

void expectNear(const double *a, const Matrix &b, double tol)
{
    for (size_t i = 0; i < b.size(); ++i)
        EXPECT_NEAR(a[i], b[i], tol) << "at index " << i;
}

void expectNear(const Matrix &a, const Matrix &b, double tol)
{
    ASSERT_EQ(a.size(), b.size());
    expectNear(a.data(), b, tol);
}

// The four Moore-Penrose conditions of X (cols x rows) for A.
void expectPseudoInverse(const Matrix &A, const Matrix &X, int rows, int cols)
{
    const Matrix AX = multiply(A, X, rows, cols, rows);
    const Matrix XA = multiply(X, A, cols, rows, cols);
    expectNear(multiply(AX, A, rows, rows, cols), A, 1e-12);
    expectNear(multiply(XA, X, cols, cols, rows), X, 1e-12);
    for (int i = 0; i < rows * rows; ++i)
        EXPECT_NEAR(AX[i], AX[(i % rows) * rows + i / rows], 1e-12);
    for (int i = 0; i < cols * cols; ++i)
        EXPECT_NEAR(XA[i], XA[(i % cols) * cols + i / cols], 1e-12);
}

} // namespace

TEST(MatrixKernel, ProductTransposeCopyAndEmptyDimensions)
{
    const Matrix A = {1, 2, 3, 4, 5, 6}, B = {1, 0, 0, 1, 1, 1}; // 2 x 3 and 3 x 2
    expectNear(multiply(A, B, 2, 3, 2), {4, 5, 10, 11}, 0.0);
    Matrix At(6), dst(6);
    mathMatxTrans(2, 3, A.data(), At.data());
    expectNear(At, {1, 4, 2, 5, 3, 6}, 0.0);
    mathMatxCopy(A.data(), dst.data(), 2, 3); // the copy takes the source first
    expectNear(dst, A, 0.0);

    // Empty dimensions write nothing, also when both are negative.
    Matrix untouched(4, 7.0);
    mathMatxMult(A.data(), B.data(), untouched.data(), 0, 3, 2);
    mathMatxTrans(0, 3, A.data(), untouched.data());
    mathUnitMatx(0, untouched.data());
    mathMatxCopy(A.data(), untouched.data(), -2, -2);
    mathMatxScalar(-2, -2, A.data(), 2.0, untouched.data());
    mathMatxPlus(-1, -3, A.data(), A.data(), untouched.data());
    EXPECT_EQ(mathMatxInvs(-1, 2, A.data(), untouched.data()), 1);
    EXPECT_EQ(mathMatxInvs(2, -1, A.data(), untouched.data()), 1);
    EXPECT_EQ(mathSolLineEqua(-2, A.data(), B.data(), untouched.data()), 1);
    EXPECT_EQ(untouched, Matrix(4, 7.0));
}

TEST(PseudoInverse, ZeroAndRankDeficientMatrices)
{
    Matrix X(6, 9.0), Xw(12);
    EXPECT_EQ(mathMatxInvs(2, 3, Matrix(6, 0.0).data(), X.data()), 1);
    EXPECT_EQ(X, Matrix(6, 0.0));

    const Matrix twin = {1, 1, 2, 2, 3, 3}; // 3 x 2, equal columns
    ASSERT_EQ(mathMatxInvs(3, 2, twin.data(), X.data()), 1);
    expectPseudoInverse(twin, X, 3, 2);
    // Rank 2 in 3 x 4: a zero column first, a dependent one last.
    const Matrix wide = {0, 1, 0, 1, 0, 0, 1, 1, 0, 1, 1, 2};
    ASSERT_EQ(mathMatxInvs(3, 4, wide.data(), Xw.data()), 1);
    expectPseudoInverse(wide, Xw, 3, 4);
}

TEST(InverseByRowOperations, PivotsOnFirstUsableRow)
{
    const Matrix original = {0, 2, 1, 1, 1, 0, 2, 0, 3};
    Matrix A = original, inv(9), I(9);
    ASSERT_EQ(mathMatxInvsByET(3, A.data(), inv.data()), 1);
    mathUnitMatx(3, I.data());
    expectNear(multiply(original, inv, 3, 3, 3), I, 1e-14);
    for (int i : {3, 6, 7}) // A ends in echelon form
        EXPECT_EQ(A[i], 0.0) << "at index " << i;

    Matrix zeroColumn = {1, 0, 2, 3, 0, 4, 5, 0, 6};
    EXPECT_EQ(mathMatxInvsByET(3, zeroColumn.data(), inv.data()), 0);
}

TEST(GaussEliminate, CompletePivotingAndAbsoluteSingularityTest)
{
    Matrix swap = {0, 1, 1, 0}, singular = {1, 2, 2, 4};
    double b[2] = {3, 5};
    ASSERT_EQ(mathGaussEliminate(swap.data(), b, 2), 1);
    expectNear(b, {5, 3}, 0.0);
    EXPECT_EQ(mathGaussEliminate(singular.data(), b, 2), 0);

    // Regular, but below the absolute pivot threshold; 1e-9 is well above it.
    Matrix tiny = {1e-17, 0, 0, 1e-17}, tiny1 = {1e-17}, small = {1e-9, 0, 0, 2e-9};
    double bt[2] = {1, 1}, b1 = 1, bs[2] = {1e-9, 1e-9};
    EXPECT_EQ(mathGaussEliminate(tiny.data(), bt, 2), 0);
    EXPECT_EQ(mathGaussEliminate(tiny1.data(), &b1, 1), 0);
    ASSERT_EQ(mathGaussEliminate(small.data(), bs, 2), 1);
    EXPECT_NEAR(bs[0], 1.0, 1e-12);

    // Column exchanges are undone on the solution.
    const Matrix A = {1, 2, 3, 4, 2, 1, 9, 1, 0, 5, 1, 2, 7, 1, 1, 1}, x = {1, -2, 0.5, 3};
    Matrix rhs = multiply(A, x, 4, 4, 1), work = A;
    ASSERT_EQ(mathGaussEliminate(work.data(), rhs.data(), 4), 1);
    expectNear(rhs, x, 1e-13);
}

TEST(SolLineEqua, SingularSystemsFallBackToMinimumNorm)
{
    // x + y = 2 twice, or the inconsistent 1 and 3: (1, 1), A and b kept.
    const Matrix A = {1, 1, 1, 1};
    for (const Matrix &b : {Matrix{2, 2}, Matrix{1, 3}}) {
        const Matrix b0 = b;
        double x[2] = {0, 0};
        ASSERT_EQ(mathSolLineEqua(2, A.data(), b.data(), x), 1);
        expectNear(x, {1, 1}, 1e-14);
        EXPECT_EQ(b, b0);
    }
    EXPECT_EQ(A, Matrix(4, 1.0));

    // Tiny but regular: both the pivot and the pseudo-inverse's column test
    // are absolute, so the matrix counts as zero.
    const Matrix tiny = {1e-17, 0, 0, 2e-17}, bt = {1e-17, 1e-17};
    double x[2] = {5, 5};
    ASSERT_EQ(mathSolLineEqua(2, tiny.data(), bt.data(), x), 1);
    expectNear(x, {0, 0}, 0.0);
}

TEST(SmallSystems, CramerRulesAreStrictAndLeaveOutputsOnFailure)
{
    double v[3] = {7, 8, 9};
    ASSERT_EQ(mathSolLineEqua22(2, 1, 1, 3, 3, 5, 1e-12, &v[0], &v[1]), 1);
    expectNear(v, {0.8, 1.4}, 1e-15);
    EXPECT_EQ(mathSolLineEqua22(1, 2, 2, 4, 1, 1, 1e-12, &v[0], &v[1]), 0);
    expectNear(v, {0.8, 1.4}, 1e-15);

    // |det| = 6 is not below a tolerance of 6, but below 6.5.
    ASSERT_EQ(mathSolLineEqua33(2, 0, 1, 1, 3, 2, 1, 1, 2, 3, 6, 4, 6.0, &v[0], &v[1], &v[2]), 1);
    expectNear(v, {1, 1, 1}, 1e-15);
    v[0] = v[1] = v[2] = 4;
    EXPECT_EQ(mathSolLineEqua33(2, 0, 1, 1, 3, 2, 1, 1, 2, 3, 6, 4, 6.5, &v[0], &v[1], &v[2]), 0);
    expectNear(v, {4, 4, 4}, 0.0);
}

TEST(SmallSystems, HomogeneousTwoByTwo)
{
    // {a, b, c, d, result, v}: dependent rows give the unit normal of the
    // longer row; independent ones keep it, from the second row on a tie.
    const double cases[][7] = {{0, 0, 0, 0, 100, 0, 0},
                               {1, 2, 2, 4, 1, -4 / std::sqrt(20.0), 2 / std::sqrt(20.0)},
                               {1, 0, 0, 1, 0, -1, 0},
                               {2, 0, 0, 1, 0, 0, 1}};
    for (const auto &k : cases) {
        double v[2] = {5, 5};
        EXPECT_EQ(mathSolHomoEqua22(k[0], k[1], k[2], k[3], 1e-9, v), int(k[4])) << "a " << k[0] << " d " << k[3];
        expectNear(v, {k[5], k[6]}, 1e-15);
    }
}

TEST(TrigonometricEquations, RootsCountsAndDegenerateCases)
{
    const double twoPi = 6.283185307179586, halfPi = 1.5707963267948966;
    double t[2];
    // The root 0 seen at both ends of the period.
    ASSERT_EQ(mathSolExpoEqua(1, 0, 1, 1e-6, t), 1);
    expectNear(t, {0, twoPi}, 0.0);
    EXPECT_EQ(mathSolExpoEqua(0, 0, 0, 1e-6, t), 100);
    EXPECT_EQ(mathSolExpoEqua(0, 0, 1, 1e-6, t), 0);
    EXPECT_EQ(mathSolExpoEqua(1, 0, 2, 1e-6, t), 0);
    expectNear(t, {0, halfPi}, 0.0);

    ASSERT_EQ(mathSolExpoEqua(1, 1, 1, 1e-9, t), 2);
    EXPECT_NE(t[0], t[1]);
    for (double r : t) {
        EXPECT_NEAR(std::cos(r) + std::sin(r), 1.0, 1e-12);
        EXPECT_TRUE(r >= 0.0 && r <= twoPi);
    }
    // Tangency: the right side equals the amplitude.
    ASSERT_EQ(mathSolExpoEqua(0, 2, 2, 1e-9, t), 1);
    EXPECT_NEAR(t[0], halfPi, 1e-12);
    EXPECT_EQ(t[0], t[1]);

    // cos^2 t - sin^2 t = cos 2t = 0 on [0, pi]; cos^2 + sin^2 has no root.
    ASSERT_EQ(mathSolHomoEqua(1, 0, -1, 1e-9, t), 2);
    expectNear(Matrix{std::fmin(t[0], t[1]), std::fmax(t[0], t[1])}, {0.7853981633974483, 2.356194490192345}, 1e-12);
    EXPECT_EQ(mathSolHomoEqua(0, 0, 0, 1e-9, t), 100);
    EXPECT_EQ(mathSolHomoEqua(1, 0, 1, 1e-9, t), 0);
}

TEST(DecomposeVector, RegularAndCoplanarDirections)
{
    const double v[3] = {1, 2, 3}, e1[3] = {1, 1, 0}, e2[3] = {0, 1, 1}, e3[3] = {1, 0, 1};
    double c[3];
    ASSERT_EQ(mathDecVec(v, e1, e2, e3, &c[0], &c[1], &c[2]), 1);
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(c[0] * e1[i] + c[1] * e2[i] + c[2] * e3[i], v[i], 1e-14);
    // Two directions along x: the x part is split evenly (minimum norm).
    const double w[3] = {2, 3, 0}, x[3] = {1, 0, 0}, y[3] = {0, 1, 0};
    ASSERT_EQ(mathDecVec(w, x, x, y, &c[0], &c[1], &c[2]), 1);
    expectNear(c, {1, 1, 3}, 1e-14);
}

TEST(LeastSquares, ScalarPairAndClosestPointsOfLines)
{
    const double a[3] = {1, 0, 0}, b[3] = {3, 4, 0}, zero[3] = {0, 0, 0};
    double x = -1;
    EXPECT_EQ(mathSolLeastSquare31(a, b, &x), 1);
    EXPECT_EQ(x, 3.0);
    EXPECT_EQ(mathSolLeastSquare31(zero, b, &x), 1);
    EXPECT_EQ(x, 0.0);

    double xy[2];
    const double e2[3] = {0, 1, 0}, c[3] = {2, 5, 7}, twoA[3] = {2, 0, 0};
    ASSERT_EQ(mathSolLeastSquare32(a, e2, c, xy), 1);
    expectNear(xy, {2, 5}, 1e-15);
    // Parallel a and 2a: the fit is shared so that x0 = x1 |a| / |2a|.
    ASSERT_EQ(mathSolLeastSquare32(a, twoA, c, xy), 1);
    EXPECT_NEAR(xy[0] + 2 * xy[1], 2.0, 1e-15);
    EXPECT_NEAR(xy[0], 0.5 * xy[1], 1e-15);
    ASSERT_EQ(mathSolLeastSquare32(a, zero, c, xy), 1);
    expectNear(xy, {0, 0}, 0.0);

    // Skew lines: the x axis and a line along y through (2, 0, 3).
    const double P1[3] = {0, 0, 0}, P2[3] = {2, -1, 3}, d2[3] = {0, 2, 0};
    double t[2];
    ASSERT_EQ(mathSolLeastSquareLin(P1, a, P2, d2, t), 1);
    expectNear(t, {2, 0.5}, 1e-14);
    // Parallel unit lines: the projections of the midpoint of P1 and P2.
    const double Q1[3] = {1, 0, 0}, Q2[3] = {5, 2, 0};
    ASSERT_EQ(mathSolLeastSquareLin(Q1, a, Q2, a, t), 1);
    expectNear(t, {2, -2}, 0.0);
    // Huge, nearly parallel directions: the normal is rounding noise, and
    // only the second denominator vanishes, after t0 was written.
    const double h1[3] = {-3.0000000000000001e+157, -2e+157, 2e+157}, R1[3] = {1, 2, 3};
    const double h2[3] = {-2.9999999999999999e-41, -2e-41, 2e-41};
    double th[2] = {9, 9};
    EXPECT_EQ(mathSolLeastSquareLin(R1, h1, zero, h2, th), 0);
    EXPECT_NE(th[0], 9.0);
    EXPECT_EQ(th[1], 9.0);
}
