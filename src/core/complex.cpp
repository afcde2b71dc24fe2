// Complex arithmetic on double[2] (real, imaginary) and Lagrange
// interpolation of complex values at complex nodes.
#include "korvex/capi.h"

void mathCompPlus(const double a[2], const double b[2], double out[2])
{
    const double re = a[0] + b[0];
    const double im = a[1] + b[1];
    out[0] = re;
    out[1] = im;
}

void mathCompMinus(const double a[2], const double b[2], double out[2])
{
    const double re = a[0] - b[0];
    const double im = a[1] - b[1];
    out[0] = re;
    out[1] = im;
}

void mathCompMult(const double a[2], const double b[2], double out[2])
{
    const double re = a[0] * b[0] - a[1] * b[1];
    const double im = a[1] * b[0] + a[0] * b[1];
    out[0] = re;
    out[1] = im;
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

int mathIntpComp(int n, const double *z, const double *w, const double x[2], double out[2])
{
    out[0] = 0.0;
    out[1] = 0.0;
    for (int k = 0; k < n; ++k) {
        double basis[2] = {1.0, 0.0};
        for (int j = 0; j < n; ++j) {
            if (j == k)
                continue;
            double num[2];
            double den[2];
            double q[2];
            mathCompMinus(x, z + 2 * j, num);
            mathCompMinus(z + 2 * k, z + 2 * j, den);
            // Two coincident nodes: out keeps the terms summed so far.
            if (!mathCompDivi(num, den, q))
                return 0;
            mathCompMult(q, basis, basis);
        }
        double term[2];
        mathCompMult(basis, w + 2 * k, term);
        mathCompPlus(out, term, out);
    }
    return 1;
}
