// Moore-Penrose pseudo-inverse by Greville's column recursion, and the
// minimum-norm solver built on it.
#include "korvex/capi.h"
#include "numeric/linear_internal.h"

#include <new>

namespace {

// Squared-norm guard of the recursion: a first column needs a squared norm
// above it to count as non-zero, and a later column whose residual falls
// below it depends on the earlier ones (a residual of exactly 1e-20 does
// not).
const double kSquaredNormGuard = 1e-20;

double dot(int n, const double *a, const double *b)
{
    double s = 0.0;
    for (int i = 0; i < n; ++i)
        s += a[i] * b[i];
    return s;
}

void scaleRow(int n, double *row, double divisor)
{
    for (int i = 0; i < n; ++i)
        row[i] /= divisor;
}

} // namespace

int mathMatxInvs(int rows, int cols, const double *A, double *X)
{
    // An empty matrix has an empty pseudo-inverse.
    if (rows < 1 || cols < 1)
        return 1;
    // At holds the columns of A as rows; d is Greville's projection vector.
    double *At = new (std::nothrow) double[matrixCells(cols, rows) + 1];
    if (!At)
        return 0;
    double *d = new (std::nothrow) double[static_cast<std::size_t>(cols) + 1];
    if (!d) {
        delete[] At;
        return 0;
    }
    mathMatxTrans(rows, cols, A, At);

    // First column: its pseudo-inverse is a0^T / |a0|^2, or zero for a
    // zero column.
    const double s = dot(rows, At, At);
    for (int i = 0; i < rows; ++i)
        X[i] = (s > kSquaredNormGuard) ? At[i] / s : 0.0;

    for (int k = 1; k < cols; ++k) {
        const double *ak = At + k * rows;
        double *bk = X + k * rows;

        // d = X_k a_k: coordinates of a_k on the columns seen so far.
        mathMatxMult(X, ak, d, k, rows, 1);

        // c = a_k - A_k d: the part of a_k outside their span.
        for (int i = 0; i < rows; ++i) {
            double projected = 0.0;
            for (int j = 0; j < k; ++j)
                projected += At[j * rows + i] * d[j];
            bk[i] = ak[i] - projected;
        }

        double q = dot(rows, bk, bk);
        if (q < kSquaredNormGuard) {
            // a_k lies in the span of the earlier columns.
            q = dot(k, d, d) + 1.0;
            mathMatxMult(d, X, bk, 1, k, rows);
        }
        scaleRow(rows, bk, q);

        // The earlier rows lose their share of the new column.
        for (int j = 0; j < k; ++j)
            mathElemnTrans_2(rows, bk, X + j * rows, -d[j]);
    }

    delete[] d;
    delete[] At;
    return 1;
}

int mathSolMatxEqua(int rows, int cols, const double *A, const double *b, double *x)
{
    double *pinv = new (std::nothrow) double[matrixCells(cols, rows) + 1]();
    if (!pinv)
        return -1;
    if (mathMatxInvs(rows, cols, A, pinv) != 1) {
        delete[] pinv;
        return 0;
    }
    mathMatxMult(pinv, b, x, cols, rows, 1);
    delete[] pinv;
    return 1;
}
