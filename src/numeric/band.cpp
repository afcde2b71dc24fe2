// Band solvers for curve and surface interpolation: eliminate the band from
// the top, invert the dense end block, substitute backwards. Linear in the
// number of equations; no allocation.
#include "korvex/capi.h"

#include <cmath>

namespace {

const int kBandWidth = 4;       // coefficients stored per row
const double kPivotGuard = 1e-20; // smaller pivots make the system singular

// Right-hand sides of one solver: either a flat array with a fixed number
// of components per equation, or one row pointer per equation.
struct RightSides {
    double *flat;
    double **rows;
    int width; // components per equation

    double *row(int i) const { return rows ? rows[i] : flat + i * width; }
};

// Moves the coefficients of row i one place left so that the row starts at
// its diagonal; only the first k - 1 entries survive, the rest is cleared.
void shiftRowLeft(double *row, int k)
{
    row[0] = (k < 2) ? 0.0 : row[1];
    row[1] = (k < 3) ? 0.0 : row[2];
    row[2] = (k < 4) ? 0.0 : row[3];
    row[3] = 0.0;
}

// Adds f times equation `from` to equation `to`, coefficients and right
// sides. Returns 0 when the pivot of `from` is too small.
int eliminateNext(double *A, const RightSides &B, int from)
{
    double *pivotRow = A + from * kBandWidth;
    double *nextRow = pivotRow + kBandWidth;
    if (std::fabs(pivotRow[0]) < kPivotGuard)
        return 0;
    const double f = -nextRow[0] / pivotRow[0];
    mathElemnTrans_2(kBandWidth, pivotRow, nextRow, f);
    mathElemnTrans_2(B.width, B.row(from), B.row(from + 1), f);
    return 1;
}

int solveBand(int n, int k, double *A, const RightSides &B, const RightSides &X)
{
    // The end block lives in fixed 4 x 4 storage and must fit the system.
    if (k < 1 || k > kBandWidth || n < k)
        return 0;
    // Forward elimination: afterwards row i (i <= n - k) holds the
    // coefficients of unknowns i, i + 1, ... with its pivot first, and the
    // last k rows no longer involve the unknowns before n - k.
    if (n > k) {
        if (!eliminateNext(A, B, 0))
            return 0;
        for (int i = 1; i <= n - k - 1; ++i) {
            shiftRowLeft(A + i * kBandWidth, k);
            if (!eliminateNext(A, B, i))
                return 0;
        }
        shiftRowLeft(A + (n - k) * kBandWidth, k);
    }

    // Dense end block of order k and its inverse.
    double block[kBandWidth * kBandWidth];
    double inverse[kBandWidth * kBandWidth];
    const int first = n - k;
    for (int r = 0; r < k; ++r)
        for (int c = 0; c < k; ++c)
            block[r * k + c] = A[(first + r) * kBandWidth + c];
    if (mathMatxInvsByET(k, block, inverse) != 1)
        return 0;

    for (int c = 0; c < B.width; ++c) {
        double y[kBandWidth];
        double z[kBandWidth];
        for (int j = 0; j < k; ++j)
            y[j] = B.row(first + j)[c];
        mathMatxMult(inverse, y, z, k, k, 1);
        for (int j = 0; j < k; ++j)
            X.row(first + j)[c] = z[j];

        // Back substitution through the band.
        for (int i = first - 1; i >= 0; --i) {
            const double *row = A + i * kBandWidth;
            double known = 0.0; // the unknowns after the pivot, already solved
            for (int j = 1; j <= k - 1; ++j)
                known += row[j] * X.row(i + j)[c];
            const double s = B.row(i)[c] - known;
            if (std::fabs(row[0]) < kPivotGuard)
                return 0;
            X.row(i)[c] = s / row[0];
        }
    }
    return 1;
}

} // namespace

int mathSolCurvBandMatx4D(int n, int k, double *A, double *B, double *X)
{
    const RightSides rhs = {B, nullptr, 4};
    const RightSides sol = {X, nullptr, 4};
    return solveBand(n, k, A, rhs, sol);
}

int mathSolCurvBandMatx(int n, int k, double *A, double *B, double *X)
{
    const RightSides rhs = {B, nullptr, 3};
    const RightSides sol = {X, nullptr, 3};
    return solveBand(n, k, A, rhs, sol);
}

int mathSolSurfBandMatx(int n, int m, int k, double *A, double **B, double **X)
{
    const RightSides rhs = {nullptr, B, 4 * m};
    const RightSides sol = {nullptr, X, 4 * m};
    return solveBand(n, k, A, rhs, sol);
}
