// Complex arithmetic on double[2] (real, imaginary) and Lagrange
// interpolation of complex values at complex nodes.
#include "korvex/capi.h"

int mathCompPlus(const double a[2], const double b[2], double out[2])
{
    const double re = a[0] + b[0];
    const double im = a[1] + b[1];
    out[0] = re;
    out[1] = im;
    return 1;
}

int mathCompMinus(const double a[2], const double b[2], double out[2])
{
    const double re = a[0] - b[0];
    const double im = a[1] - b[1];
    out[0] = re;
    out[1] = im;
    return 1;
}

int mathCompMult(const double a[2], const double b[2], double out[2])
{
    const double re = a[0] * b[0] - a[1] * b[1];
    const double im = a[1] * b[0] + a[0] * b[1];
    out[0] = re;
    out[1] = im;
    return 1;
}

int mathCompDivi(const double a[2], const double b[2], double out[2])
{
    // Divisors this small are treated as zero.
    const double minNorm = 1e-20;
    const double norm = b[0] * b[0] + b[1] * b[1];
    if (norm < minNorm)
        return 0;
    const double re = (a[0] * b[0] + a[1] * b[1]) / norm;
    const double im = (a[1] * b[0] - a[0] * b[1]) / norm;
    out[0] = re;
    out[1] = im;
    return 1;
}

namespace {

// Lagrange basis polynomial of node k, evaluated at x. Returns 0 when node k
// coincides with another node.
int lagrangeBasis(int n, const double *z, int k, const double x[2], double basis[2])
{
    basis[0] = 1.0;
    basis[1] = 0.0;
    for (int j = 0; j < n; ++j) {
        if (j == k)
            continue;
        double num[2];
        double den[2];
        double q[2];
        mathCompMinus(x, z + 2 * j, num);
        mathCompMinus(z + 2 * k, z + 2 * j, den);
        if (!mathCompDivi(num, den, q))
            return 0;
        mathCompMult(q, basis, basis);
    }
    return 1;
}

} // namespace

int mathIntpComp(int n, const double *z, const double *w, const double x[2], double out[2])
{
    // The sum is built locally and out written only at the end, so out may
    // be x or one of the nodes or values.
    double sum[2] = {0.0, 0.0};
    for (int k = 0; k < n; ++k) {
        double basis[2];
        if (!lagrangeBasis(n, z, k, x, basis)) {
            // Two coincident nodes: out gets the terms summed so far.
            out[0] = sum[0];
            out[1] = sum[1];
            return 0;
        }
        double term[2];
        mathCompMult(basis, w + 2 * k, term);
        mathCompPlus(sum, term, sum);
    }
    out[0] = sum[0];
    out[1] = sum[1];
    return 1;
}
