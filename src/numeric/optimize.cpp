// One-dimensional minimisation of unimodal functions.
#include "korvex/capi.h"

#include <cmath>

double mathOptMonoMoun(double (*f)(double), double u, double v, double tol, double* x)
{
    const int maxSteps = 32;
    double lo = u < v ? u : v;
    double hi = u < v ? v : u;
    double mid = (lo + hi) / 2.0;
    double fMid = f(mid);

    // Each step compares the quarter points with the centre and keeps the
    // half-length interval centred on the smallest of the three; the kept
    // interval's centre is always one of them, so two new values per step.
    for (int step = 0; step < maxSteps && !(hi - lo < tol); ++step) {
        const double quarter = (hi - lo) / 4.0;
        const double left = lo + quarter;
        const double right = hi - quarter;
        const double fLeft = f(left);
        const double fRight = f(right);
        if (fLeft < fMid && fLeft <= fRight) {
            hi = mid;
            mid = left;
            fMid = fLeft;
        } else if (fRight < fMid) {
            lo = mid;
            mid = right;
            fMid = fRight;
        } else {
            lo = left;
            hi = right;
        }
    }

    // The minimum may sit on an end of the original interval (a monotonic
    // function), which the quarter points only approach.
    double best = fMid;
    double at = mid;
    const double fLo = f(lo);
    if (fLo < best) {
        best = fLo;
        at = lo;
    }
    const double fHi = f(hi);
    if (fHi < best) {
        best = fHi;
        at = hi;
    }
    if (x)
        *x = at;
    return best;
}
