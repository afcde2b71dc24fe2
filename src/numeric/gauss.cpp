// Gaussian elimination: the Gauss-Jordan inverse, the complete-pivoting
// solver and the general solver with its minimum-norm fall-back.
#include "korvex/capi.h"
#include "numeric/linear_internal.h"

#include <cmath>
#include <new>

namespace {

// Entries at or below this magnitude are not used as pivots.
const double kPivotGuard = 1e-20;

// A pivot that does not change 1.0 when added to it is zero for the
// complete-pivoting solver (an absolute test, independent of the scale).
bool vanishesAgainstOne(double pivot)
{
    return pivot + 1.0 == 1.0;
}

void swapValues(double &a, double &b)
{
    const double t = a;
    a = b;
    b = t;
}

} // namespace

int mathMatxInvsByET(int n, double *A, double *Ainv)
{
    mathUnitMatx(n, Ainv);

    // Forward pass: reduce A to upper-triangular form, repeating every row
    // operation on Ainv.
    for (int k = 0; k < n; ++k) {
        int pivotRow = -1;
        for (int i = k; i < n; ++i) {
            if (std::fabs(A[i * n + k]) > kPivotGuard) {
                pivotRow = i;
                break;
            }
        }
        if (pivotRow < 0)
            return 0; // the column vanishes from the diagonal down
        mathElemnTrans_6(n, k, pivotRow, A);
        mathElemnTrans_6(n, k, pivotRow, Ainv);
        for (int r = k + 1; r < n; ++r) {
            if (std::fabs(A[r * n + k]) > kPivotGuard) {
                const double f = -A[r * n + k] / A[k * n + k];
                mathElemnTrans_5(n, k, r, A, f);
                mathElemnTrans_5(n, k, r, Ainv, f);
            }
        }
    }

    // Backward pass: solve the triangular system column by column on Ainv
    // only; A keeps its echelon form.
    for (int k = n - 1; k >= 0; --k) {
        const double p = A[k * n + k];
        if (std::fabs(p) < kPivotGuard)
            return 0;
        mathElemnTrans_4(n, k, Ainv, 1.0 / p);
        for (int r = k - 1; r >= 0; --r)
            mathElemnTrans_5(n, k, r, Ainv, -A[r * n + k]);
    }
    return 1;
}

int mathGaussEliminate(double *A, double *b, int n)
{
    if (n < 1)
        return 1; // an empty system has its empty solution
    int *perm = new (std::nothrow) int[static_cast<std::size_t>(n) + 1];
    if (!perm)
        return 0;

    for (int k = 0; k < n - 1; ++k) {
        // Largest remaining element; the first one met wins ties.
        double best = 0.0;
        int r = k;
        perm[k] = k;
        for (int i = k; i < n; ++i) {
            for (int j = k; j < n; ++j) {
                const double v = std::fabs(A[i * n + j]);
                if (v > best) {
                    best = v;
                    perm[k] = j;
                    r = i;
                }
            }
        }
        if (vanishesAgainstOne(best)) {
            delete[] perm;
            return 0;
        }
        if (perm[k] != k) {
            for (int i = 0; i < n; ++i)
                swapValues(A[i * n + k], A[i * n + perm[k]]);
        }
        if (r != k) {
            for (int j = k; j < n; ++j)
                swapValues(A[k * n + j], A[r * n + j]);
            swapValues(b[k], b[r]);
        }
        // Normalise the pivot row; the diagonal itself is taken as 1 from
        // here on and is not rewritten.
        const double p = A[k * n + k];
        for (int j = k + 1; j < n; ++j)
            A[k * n + j] /= p;
        b[k] /= p;
        for (int i = k + 1; i < n; ++i) {
            const double f = A[i * n + k];
            for (int j = k + 1; j < n; ++j)
                A[i * n + j] -= f * A[k * n + j];
            b[i] -= b[k] * f;
        }
    }

    const double last = A[(n - 1) * n + (n - 1)];
    if (vanishesAgainstOne(std::fabs(last))) {
        delete[] perm;
        return 0;
    }
    b[n - 1] /= last;

    for (int i = n - 2; i >= 0; --i) {
        double s = 0.0;
        for (int j = i + 1; j < n; ++j)
            s += A[i * n + j] * b[j];
        b[i] -= s;
    }

    // Undo the column exchanges on the unknowns, last exchange first.
    perm[n - 1] = n - 1;
    for (int k = n - 1; k >= 0; --k) {
        if (perm[k] != k)
            swapValues(b[k], b[perm[k]]);
    }
    delete[] perm;
    return 1;
}

int mathSolLineEqua(int n, const double *A, const double *b, double *x)
{
    double *work = new (std::nothrow) double[matrixCells(n, n) + 1];
    if (!work)
        return -1;
    mathMatxCopy(A, work, n, n);
    for (int i = 0; i < n; ++i)
        x[i] = b[i];

    if (mathGaussEliminate(work, x, n) != 1) {
        // Singular: fall back on the least-squares solution of minimum norm.
        if (mathMatxInvs(n, n, A, work) != 1) {
            delete[] work;
            return 0;
        }
        mathMatxMult(work, b, x, n, n, 1);
    }
    delete[] work;
    return 1;
}
