// Eigenvalues of upper Hessenberg matrices by the Francis double-shift QR
// iteration, and polynomial roots as eigenvalues of the companion matrix.
#include "korvex/capi.h"

#include <cmath>
#include <new>

namespace {

// Row-major element access of the n x n work matrix.
struct Hess {
    double* a;
    int n;
    double& operator()(int i, int j) const { return a[i * n + j]; }
};

// Deflation point of the active block ending at row nn: the lowest row l
// above which the subdiagonal is negligible against its diagonal neighbours.
int findSplit(const Hess& H, int nn, double eps)
{
    int l = nn;
    for (; l >= 1; --l) {
        const double scale = std::fabs(H(l - 1, l - 1)) + std::fabs(H(l, l));
        if (std::fabs(H(l, l - 1)) <= eps * scale)
            break;
    }
    return l;
}

// Eigenvalues of the trailing 2 x 2 block at rows nn - 1, nn.
void solveTrailingPair(const Hess& H, int nn, double* wr, double* wi)
{
    const double p = -(H(nn - 1, nn - 1) + H(nn, nn));
    const double q = H(nn - 1, nn - 1) * H(nn, nn) - H(nn - 1, nn) * H(nn, nn - 1);
    const double delta = p * p - 4.0 * q;
    if (delta > 0.0) {
        // Larger-magnitude root first, the other from the product q.
        const double sign = p < 0.0 ? -1.0 : 1.0;
        const double z = (-p - sign * std::sqrt(delta)) / 2.0;
        wr[nn] = z;
        wr[nn - 1] = q / z;
        wi[nn] = wi[nn - 1] = 0.0;
    } else {
        wr[nn - 1] = wr[nn] = -p / 2.0;
        wi[nn] = std::sqrt(std::fabs(delta)) / 2.0;
        wi[nn - 1] = -wi[nn];
    }
}

// One implicit double-shift sweep over rows l ... nn (nn - l >= 2). The shifts
// are the eigenvalues of the trailing 2 x 2 block, given by their sum
// (x + y) and product (x y - w); an exceptional pair breaks cycles.
void doubleShiftSweep(const Hess& H, int l, int nn, bool exceptional)
{
    double x = H(nn, nn);
    double y = H(nn - 1, nn - 1);
    double w = H(nn, nn - 1) * H(nn - 1, nn);
    if (exceptional) {
        // Both shifts at H(nn, nn) + 0.75 s with product term -0.4375 s^2,
        // s measuring the last two subdiagonal elements.
        const double shiftScale = 0.75;
        const double shiftProduct = -0.4375;
        const double s = std::fabs(H(nn, nn - 1)) + std::fabs(H(nn - 1, nn - 2));
        x = y = H(nn, nn) + shiftScale * s;
        w = shiftProduct * s * s;
    }

    // First column of (H - s1)(H - s2), scaled against overflow.
    const int m = l;
    double z = H(m, m);
    double r = x - z;
    double s = y - z;
    double p = (r * s - w) / H(m + 1, m) + H(m, m + 1);
    double q = H(m + 1, m + 1) - z - r - s;
    r = H(m + 2, m + 1);
    s = std::fabs(p) + std::fabs(q) + std::fabs(r);
    p /= s;
    q /= s;
    r /= s;

    // The bulge lives on the first two sub-subdiagonals; start them clean.
    for (int i = m + 2; i <= nn; ++i) {
        H(i, i - 2) = 0.0;
        if (i != m + 2)
            H(i, i - 3) = 0.0;
    }

    for (int k = m; k <= nn - 1; ++k) {
        if (k != m) {
            // Householder vector from the bulge below column k - 1.
            p = H(k, k - 1);
            q = H(k + 1, k - 1);
            r = k != nn - 1 ? H(k + 2, k - 1) : 0.0;
            x = std::fabs(p) + std::fabs(q) + std::fabs(r);
            if (x != 0.0) {
                p /= x;
                q /= x;
                r /= x;
            }
        }
        const double norm = std::sqrt(p * p + q * q + r * r);
        s = p < 0.0 ? -norm : norm;
        if (s == 0.0)
            continue;
        if (k == m) {
            if (l != m)
                H(k, k - 1) = -H(k, k - 1);
        } else {
            H(k, k - 1) = -s * x;
        }
        p += s;
        x = p / s;
        y = q / s;
        z = r / s;
        q /= p;
        r /= p;
        // Reflection applied to the rows ...
        for (int j = k; j <= nn; ++j) {
            p = H(k, j) + q * H(k + 1, j);
            if (k != nn - 1) {
                p += r * H(k + 2, j);
                H(k + 2, j) -= p * z;
            }
            H(k + 1, j) -= p * y;
            H(k, j) -= p * x;
        }
        // ... and to the columns, down to the bulge.
        const int last = nn < k + 3 ? nn : k + 3;
        for (int i = l; i <= last; ++i) {
            p = x * H(i, k) + y * H(i, k + 1);
            if (k != nn - 1) {
                p += z * H(i, k + 2);
                H(i, k + 2) -= p * r;
            }
            H(i, k + 1) -= p * q;
            H(i, k) -= p;
        }
    }
}

} // namespace

int mathHQR(double* a, int n, double* wr, double* wi, double eps, int maxit)
{
    if (n <= 0)
        return 1;
    const Hess H{a, n};
    // Sweeps at these counts use an exceptional shift to break the cycles
    // that the standard shifts fall into (e.g. on permutation matrices).
    const int exceptionalAt1 = 10;
    const int exceptionalAt2 = 20;
    int nn = n - 1;
    int its = 0;
    while (nn >= 0) {
        const int l = findSplit(H, nn, eps);
        if (l == nn) {
            // A 1 x 1 block has split off: one real eigenvalue.
            wr[nn] = H(nn, nn);
            wi[nn] = 0.0;
            --nn;
            its = 0;
        } else if (l == nn - 1) {
            solveTrailingPair(H, nn, wr, wi);
            nn -= 2;
            its = 0;
        } else {
            if (its >= maxit)
                return 0;
            const bool exceptional = its == exceptionalAt1 || its == exceptionalAt2;
            ++its;
            doubleShiftSweep(H, l, nn, exceptional);
        }
    }
    return 1;
}

int mathSlvequN(const double* coef, int n, double* wr, double* wi, int* m, double eps, int maxit)
{
    const double negligible = 1e-10;
    int deg = n;
    while (deg > 0 && std::fabs(coef[deg]) < negligible)
        --deg;
    if (deg < 0)
        deg = 0;
    *m = deg;
    if (deg == 0)
        return mathHQR(nullptr, 0, wr, wi, eps, maxit);

    double* companion = new (std::nothrow) double[static_cast<size_t>(deg) * deg];
    if (!companion)
        return 0;
    const Hess H{companion, deg};
    for (int i = 0; i < deg * deg; ++i)
        companion[i] = 0.0;
    // Monic companion matrix: the normalised coefficients in the first row,
    // ones on the subdiagonal.
    for (int j = 0; j < deg; ++j)
        H(0, j) = -coef[deg - 1 - j] / coef[deg];
    for (int i = 1; i < deg; ++i)
        H(i, i - 1) = 1.0;
    const int ok = mathHQR(companion, deg, wr, wi, eps, maxit);
    delete[] companion;
    return ok;
}
