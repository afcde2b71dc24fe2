// Closed-form complex roots of cubics and quartics, and the filters that keep
// their real roots.
#include "korvex/capi.h"

#include <cmath>

namespace {

const double negligible = 1e-10; // leading coefficient counts as zero below this share
const double halfSqrt3 = 0.8660254037844386;

double signedCubeRoot(double v)
{
    const double third = 0.3333333333333333;
    return v < 0.0 ? -std::pow(-v, third) : std::pow(v, third);
}

// a x^2 + b x + c. When a is negligible the linear step solves b x = c (not
// b x + c = 0) and divides by b whatever its size; both are deliberate and
// documented.
void solveQuadratic(double a, double b, double c, double* wr, double* wi, int* n)
{
    if ((std::fabs(b) + std::fabs(c)) * negligible > std::fabs(a)) {
        *n = 1;
        wr[0] = c / b;
        wi[0] = 0.0;
        return;
    }
    *n = 2;
    const double k = 1.0 / (2.0 * a);
    const double disc = b * b - 4.0 * a * c;
    if (disc >= 0.0) {
        const double s = std::sqrt(disc);
        wr[0] = (-b - s) * k;
        wr[1] = (s - b) * k;
        wi[0] = wi[1] = 0.0;
    } else {
        wr[0] = wr[1] = -b * k;
        wi[0] = std::sqrt(-disc) * k;
        wi[1] = -wi[0];
    }
}

// A root counts as real when its imaginary part is small in absolute terms
// or against the root's size.
bool isRealRoot(double re, double im)
{
    const double small = 1e-6;
    return std::fabs(im) < small || std::fabs(im) / (std::fabs(re) + std::fabs(im)) < small;
}

// Real roots among `count` roots of a degenerate (lower-degree) equation.
void keepRealRoots(const double* wr, const double* wi, int count, double* roots, int* n)
{
    *n = 0;
    for (int i = 0; i < count; ++i)
        if (isRealRoot(wr[i], wi[i]))
            roots[(*n)++] = wr[i];
}

} // namespace

void mathSlvequ3(double a, double b, double c, double d, double* wr, double* wi, int* n)
{
    if ((std::fabs(b) + std::fabs(c) + std::fabs(d)) * negligible > std::fabs(a)) {
        solveQuadratic(b, c, d, wr, wi, n);
        return;
    }
    *n = 3;
    const double third = 0.3333333333333333;
    const double ca = c / a;
    const double s = b / a * third; // shift: x = t - s
    const double q = d / a - ca * s + 2.0 * s * s * s;
    const double p = ca - 3.0 * s * s;
    const double small = 1e-10;

    if (std::fabs(p) >= small) {
        const double disc = 12.0 * p * p * p + 81.0 * q * q;
        if (disc > 0.0) {
            // One real root and a conjugate pair (Cardano). The constants are
            // 18^(-1/3) and 18^(1/3) / 3.
            const double invCbrt18 = 0.38157141418444396;
            const double cbrt18Third = 0.8735804647362989;
            const double t = std::sqrt(disc);
            const double cr = signedCubeRoot(t - 9.0 * q);
            const double A = cr * invCbrt18;
            // The second term from its own cube root while that one is small,
            // otherwise from A B = -p/3, which keeps it accurate.
            const double B = std::fabs(cr) < 1.0 ? -invCbrt18 * signedCubeRoot(9.0 * q + t)
                                                 : -cbrt18Third * p / cr;
            wr[0] = A + B - s;
            wi[0] = 0.0;
            wr[1] = wr[2] = -(A + B) / 2.0 - s;
            wi[1] = (A - B) * halfSqrt3;
            wi[2] = -wi[1];
            return;
        }
        // Three real roots (trigonometric form); the cosine argument is
        // clamped just inside [-1, 1] against rounding.
        const double threeSqrt3Half = 2.598076211353316;
        const double twoOverSqrt3 = 1.1547005383792515;
        const double piThird = 1.0471975511965976;
        const double edge = 0.9999999999;
        const double r = std::sqrt(-p);
        const double z = threeSqrt3Half * q / (r * p);
        double theta;
        if (z < -edge)
            theta = piThird;
        else if (z > edge)
            theta = 0.0;
        else
            theta = std::acos(z) / 3.0;
        const double m = twoOverSqrt3 * r;
        const double ct = std::cos(theta);
        const double sigma = halfSqrt3 * std::sqrt(1.0 - ct * ct);
        wr[0] = ct * m - s;
        wr[1] = (-ct / 2.0 + sigma) * m - s;
        wr[2] = (-ct / 2.0 - sigma) * m - s;
        wi[0] = wi[1] = wi[2] = 0.0;
        return;
    }
    if (std::fabs(q) < small) {
        // Triple root.
        wr[0] = wr[1] = wr[2] = -s;
        wi[0] = wi[1] = wi[2] = 0.0;
        return;
    }
    // t^3 = -q. The real root is deliberately returned without the shift s
    // (right only for b = 0); the pair below is shifted.
    const double y = -signedCubeRoot(q);
    wr[0] = y;
    wr[1] = wr[2] = -y / 2.0 - s;
    wi[0] = 0.0;
    wi[1] = halfSqrt3 * y;
    wi[2] = -wi[1];
}

void mathSlvequ4(double a, double b, double c, double d, double e, double* wr, double* wi,
                 int* n)
{
    if ((std::fabs(b) + std::fabs(c) + std::fabs(d) + std::fabs(e)) * negligible > std::fabs(a)) {
        mathSlvequ3(b, c, d, e, wr, wi, n);
        return;
    }
    *n = 4;
    const double B = b / a;
    const double C = c / a;
    const double D = d / a;
    const double E = e / a;

    // Resolvent cubic; a real root y = 2h splits the quartic into
    // (x^2 + (B/2 + S) x + h + R)(x^2 + (B/2 - S) x + h - R).
    double yr[3] = {0.0, 0.0, 0.0};
    double yi[3] = {0.0, 0.0, 0.0};
    int ny = 0;
    mathSlvequ3(1.0, -C, B * D - 4.0 * E, (4.0 * C - B * B) * E - D * D, yr, yi, &ny);
    double y = yr[0];
    if (std::fabs(yi[1]) < negligible) {
        // All resolvent roots real: the largest gives the best-conditioned split.
        for (int i = 1; i < ny && i < 3; ++i)
            if (yr[i] > y)
                y = yr[i];
    }
    const double h = y / 2.0;

    const double x = h * h - E;
    double R, S;
    if (x > 0.0) {
        R = std::sqrt(x);
        S = (h * B - D) / (2.0 * R);
    } else {
        R = 0.0;
        S = std::sqrt(2.0 * h + B * B / 4.0 - C);
    }
    int n2 = 0;
    solveQuadratic(1.0, B / 2.0 + S, h + R, wr, wi, &n2);
    solveQuadratic(1.0, B / 2.0 - S, h - R, wr + 2, wi + 2, &n2);
}

void mathSlvequR3(double a, double b, double c, double d, double* roots, int* n)
{
    double wr[3] = {0.0, 0.0, 0.0};
    double wi[3] = {0.0, 0.0, 0.0};
    int count = 0;
    mathSlvequ3(a, b, c, d, wr, wi, &count);
    if (count < 3) {
        keepRealRoots(wr, wi, count, roots, n);
        return;
    }
    const double small = 1e-6;
    // Relative to abs(re + im), unlike the quartic filter; kept that way.
    const bool complexPair = std::fabs(wi[1]) >= small &&
                             std::fabs(wi[1]) / std::fabs(wr[1] + wi[1]) >= small;
    roots[0] = wr[0];
    if (complexPair) {
        *n = 1;
        return;
    }
    roots[1] = wr[1];
    roots[2] = wr[2];
    *n = 3;
}

void mathSlvequR4(double a, double b, double c, double d, double e, double* roots, int* n)
{
    double wr[4] = {0.0, 0.0, 0.0, 0.0};
    double wi[4] = {0.0, 0.0, 0.0, 0.0};
    int count = 0;
    mathSlvequ4(a, b, c, d, e, wr, wi, &count);
    if (count < 4) {
        keepRealRoots(wr, wi, count, roots, n);
        return;
    }
    *n = 0;
    // Each quadratic factor gives a real pair or a complex pair.
    for (int pair = 0; pair < 4; pair += 2) {
        if (isRealRoot(wr[pair], wi[pair])) {
            roots[(*n)++] = wr[pair];
            roots[(*n)++] = wr[pair + 1];
        }
    }
}
