// Roots of polynomials and rational functions on an interval, and Newton
// iteration on a caller's function.
#include "korvex/capi.h"

#include <cmath>

namespace {

const int identity = 100;      // every x solves
const double merge = 1e-10;    // roots closer than this are one root
const double margin = 1e-10;   // roots this far outside [lo, hi] still count

// Keeps the values strictly inside (lo - margin, hi + margin); returns the
// new count.
int keepInInterval(double* v, int count, double lo, double hi)
{
    int kept = 0;
    for (int i = 0; i < count; ++i)
        if (v[i] > lo - margin && v[i] < hi + margin)
            v[kept++] = v[i];
    return kept;
}

// Removes entry `at`, moving the rest down one place.
int removeAt(double* v, int count, int at)
{
    for (int i = at; i + 1 < count; ++i)
        v[i] = v[i + 1];
    return count - 1;
}

// The rational function that mathSolRatiEqua is working on, for the
// one-argument callback of the minimiser. This makes mathSolRatiEqua
// non-reentrant.
int ratDegree = 0;
const double* ratNum = nullptr;
const double* ratDen = nullptr;

double absRatio(double x)
{
    return std::fabs(mathEvalRPoly(ratDegree, ratNum, ratDen, x));
}

// Appends to roots[] the minima of abs(N/D) that dip below tol between the
// consecutive roots of N + sign * tol * D.
int addNearRoots(int n, double sign, double lo, double hi, double tol, double* roots, int count)
{
    double shifted[5];
    for (int i = 0; i <= n; ++i)
        shifted[i] = ratNum[i] + sign * tol * ratDen[i];
    double ends[4];
    const int ne = mathSolUniNEqua(n, shifted, lo, hi, tol, ends);
    if (ne == identity)
        return count; // N/D is tol in magnitude everywhere: no dip below tol
    const double stepShare = 1e-10;
    for (int i = 0; i + 1 < ne; ++i) {
        if (absRatio((ends[i] + ends[i + 1]) / 2.0) < tol) {
            double at = ends[i];
            const double value = mathOptMonoMoun(absRatio, ends[i], ends[i + 1], (hi - lo) * stepShare, &at);
            if (value < tol)
                roots[count++] = at;
        }
    }
    return count;
}

} // namespace

int mathSolUniNEqua(int n, const double* coef, double lo, double hi, double tol, double* roots)
{
    const double negligible = 1e-20;
    double cand[6]; // up to four roots, then lo and hi
    int count = 0;
    switch (n) {
    case 1:
        if (std::fabs(coef[0]) < negligible) {
            if (std::fabs(coef[1]) < tol)
                return identity;
        } else {
            cand[count++] = -coef[1] / coef[0];
        }
        break;
    case 2:
        count = mathSolQuadEqua(coef[0], coef[1], coef[2], tol, cand);
        break;
    case 3:
        count = mathSolTriaEqua(coef, tol, cand);
        break;
    case 4:
        count = mathSolQuarEqua(coef, tol, cand);
        break;
    default:
        return 0;
    }
    if (count == identity)
        return identity;

    if (std::fabs(mathEvalPoly(n, coef, lo)) < tol)
        cand[count++] = lo;
    if (std::fabs(mathEvalPoly(n, coef, hi)) < tol)
        cand[count++] = hi;
    if (count == 0)
        return 0;

    count = keepInInterval(cand, count, lo, hi);
    if (count > 1) {
        mathSortDblArray(count, cand);
        count = mathFilterDblArray(count, cand, merge);
    }
    // Two roots with the polynomial still small between them are one flat
    // root: the first pair keeps its lower end, the last pair its upper end.
    if (count > 1 && std::fabs(mathEvalPoly(n, coef, (cand[0] + cand[1]) / 2.0)) < tol)
        count = removeAt(cand, count, 1);
    if (count > 1 &&
        std::fabs(mathEvalPoly(n, coef, (cand[count - 2] + cand[count - 1]) / 2.0)) < tol) {
        cand[count - 2] = cand[count - 1];
        --count;
    }

    if (count > n)
        count = n;
    for (int i = 0; i < count; ++i)
        roots[i] = cand[i];
    return count;
}

int mathSolRatiEqua(int n, const double* num, const double* den, double lo, double hi,
                    double tol, double* roots)
{
    const int maxDegree = 4;
    if (n < 1 || n > maxDegree)
        return 0;
    ratDegree = n;
    ratNum = num;
    ratDen = den;

    // Roots of N, then minima of abs(N/D) that come within tol of zero, then
    // the interval ends: at most n + 2 (n - 1) + 2 values.
    double found[3 * maxDegree];
    int count = 0;

    const double numeratorTol = 1e-10;
    double nroots[maxDegree];
    const int nn = mathSolUniNEqua(n, num, lo, hi, numeratorTol, nroots);
    if (nn == identity)
        return identity;
    for (int i = 0; i < nn; ++i)
        if (!(absRatio(nroots[i]) > tol))
            found[count++] = nroots[i];

    count = addNearRoots(n, -1.0, lo, hi, tol, found, count);
    count = addNearRoots(n, 1.0, lo, hi, tol, found, count);

    if (absRatio(lo) < tol)
        found[count++] = lo;
    if (absRatio(hi) < tol)
        found[count++] = hi;
    if (count == 0)
        return 0;

    count = keepInInterval(found, count, lo, hi);
    if (count > 1) {
        mathSortDblArray(count, found);
        count = mathFilterDblArray(count, found, merge);
    }

    // Neighbours with abs(N/D) still below tol between them bound one flat
    // root: keep the left one, or the right one when it sits on hi.
    const double atEnd = 1e-20;
    bool merged = true;
    while (merged) {
        merged = false;
        for (int i = 0; i + 1 < count; ++i) {
            if (absRatio((found[i] + found[i + 1]) / 2.0) < tol) {
                if (std::fabs(hi - found[i + 1]) < atEnd)
                    found[i] = found[i + 1];
                count = removeAt(found, count, i + 1);
                merged = true;
                break;
            }
        }
    }

    for (int i = 0; i < count; ++i)
        roots[i] = found[i];
    return count;
}

int mathSolUnivEqua(double (*f)(double), double (*df)(double), double c, double x0, double tol,
                    double* x)
{
    const int maxSteps = 32;
    const double flat = 1e-20;
    double xi = x0;
    int result = 0;
    for (int step = 0; step < maxSteps; ++step) {
        const double r = c - f(xi);
        if (std::fabs(r) < tol) {
            result = 1;
            break;
        }
        const double d = df(xi);
        if (std::fabs(d) < flat) {
            result = 800; // horizontal tangent: Newton cannot go on
            break;
        }
        xi += r / d;
    }
    *x = xi;
    return result;
}
