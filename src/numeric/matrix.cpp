// Dense matrix kernel: determinants, products, element-wise operations and
// the elementary row transformations used by the elimination routines.
#include "korvex/capi.h"

#include <cmath>

namespace {

// Elements of an n x m matrix; an empty dimension makes the matrix empty
// (two negative dimensions must not multiply to a positive count).
int elementCount(int n, int m)
{
    return (n < 1 || m < 1) ? 0 : n * m;
}

} // namespace

double mathCalDeterm22(double a11, double a12, double a21, double a22)
{
    return a11 * a22 - a12 * a21;
}

double mathCalDeterm33(double a11, double a12, double a13,
                       double a21, double a22, double a23,
                       double a31, double a32, double a33)
{
    // The order of the six terms is part of the result's rounding.
    return a12 * a23 * a31 + a11 * a22 * a33 + a13 * a21 * a32
         - a13 * a22 * a31 - a11 * a23 * a32 - a12 * a21 * a33;
}

void mathMatxMult(const double *A, const double *B, double *C, int n, int k, int m)
{
    if (n < 1)
        return;
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < m; ++j) {
            double *c = &C[i * m + j];
            *c = 0.0;
            for (int l = 0; l < k; ++l)
                *c += A[i * k + l] * B[l * m + j];
        }
    }
}

void mathMatxTrans(int n, int m, const double *A, double *At)
{
    if (n < 1)
        return;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < m; ++j)
            At[j * n + i] = A[i * m + j];
}

void mathUnitMatx(int n, double *I)
{
    if (n < 1)
        return;
    for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
            I[i * n + j] = (i == j) ? 1.0 : 0.0;
}

void mathMatxScalar(int n, int m, const double *A, double s, double *B)
{
    const int count = elementCount(n, m);
    for (int i = 0; i < count; ++i)
        B[i] = s * A[i];
}

void mathMatxPlus(int n, int m, const double *A, const double *B, double *C)
{
    const int count = elementCount(n, m);
    for (int i = 0; i < count; ++i)
        C[i] = A[i] + B[i];
}

void mathMatxMinus(int n, int m, const double *A, const double *B, double *C)
{
    const int count = elementCount(n, m);
    for (int i = 0; i < count; ++i)
        C[i] = A[i] - B[i];
}

void mathMatxCopy(const double *src, double *dst, int n, int m)
{
    const int count = elementCount(n, m);
    for (int i = 0; i < count; ++i)
        dst[i] = src[i];
}

void mathElemnTrans_2(int n, const double *a, double *b, double c)
{
    for (int i = 0; i < n; ++i)
        b[i] += c * a[i];
}

void mathElemnTrans_3(int n, double *a, double *b)
{
    for (int i = 0; i < n; ++i) {
        const double t = a[i];
        a[i] = b[i];
        b[i] = t;
    }
}

void mathElemnTrans_4(int n, int i, double *M, double c)
{
    const double unitGuard = 1e-20; // a factor this close to 1 changes nothing
    if (std::fabs(1.0 - c) < unitGuard)
        return;
    double *row = M + i * n;
    for (int j = 0; j < n; ++j)
        row[j] *= c;
}

void mathElemnTrans_5(int n, int i, int j, double *M, double c)
{
    const double *src = M + i * n;
    double *dst = M + j * n;
    for (int l = 0; l < n; ++l)
        dst[l] += c * src[l];
}

void mathElemnTrans_6(int n, int i, int j, double *M)
{
    if (i == j)
        return;
    mathElemnTrans_3(n, M + i * n, M + j * n);
}
