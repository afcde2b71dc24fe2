// Zero points and zero lines of linear functions over edges and triangles
// whose vertices carry vectors of any dimension.
#include "korvex/capi.h"

#include <cmath>

namespace {

// Where a linear function vanishes on the edge p q: at p, at q, at the
// interpolated point (1 - s) p + s q, or nowhere. Kept symbolic so that a
// candidate point can be measured before it is written anywhere.
struct EdgeZero {
    enum Kind { none, atP, atQ, between };
    Kind kind;
    const double* p;
    const double* q;
    double s;

    double component(int i) const
    {
        switch (kind) {
        case atP:
            return p[i];
        case atQ:
            return q[i];
        default:
            return (1.0 - s) * p[i] + s * q[i];
        }
    }

    void writeTo(int n, double* out) const
    {
        for (int i = 0; i < n; ++i)
            out[i] = component(i);
    }

    // Distance to v over n components, summed in index order like mathDistXD.
    double distanceTo(int n, const double* v) const
    {
        double sum = 0.0;
        for (int i = 0; i < n; ++i) {
            const double d = component(i) - v[i];
            sum += d * d;
        }
        return std::sqrt(std::fabs(sum));
    }
};

EdgeZero findEdgeZero(const double* p, const double* q, double fp, double fq, double tol)
{
    const double oppositeSigns = -1e-50; // the product must be clearly negative
    if (!(fp * fq < oppositeSigns)) {
        // No sign change: only an end with a vanishing value qualifies.
        if (std::fabs(fp) < tol)
            return {EdgeZero::atP, p, q, 0.0};
        if (std::fabs(fq) < tol)
            return {EdgeZero::atQ, p, q, 0.0};
        return {EdgeZero::none, p, q, 0.0};
    }
    const double s = std::fabs(fp) / (std::fabs(fp) + std::fabs(fq));
    return {EdgeZero::between, p, q, s};
}

// Evaluates the edge and writes its zero to out when there is one; 1 or 0.
int edgeZeroInto(int n, const double* p, const double* q, double fp, double fq, double tol, double* out)
{
    const EdgeZero z = findEdgeZero(p, q, fp, fq, tol);
    if (z.kind == EdgeZero::none)
        return 0;
    z.writeTo(n, out);
    return 1;
}

void copyVector(int n, const double* from, double* to)
{
    for (int i = 0; i < n; ++i)
        to[i] = from[i];
}

} // namespace

int mathEvalLinContPnt(int n, const double* v1, const double* v2, double f1, double f2, double tol, double* v)
{
    return edgeZeroInto(n, v1, v2, f1, f2, tol, v);
}

int mathEvalTriContLin(int n, const double* v1, const double* v2, const double* v3, double f1, double f2,
                       double f3, double tol, double minLen, double* va, double* vb)
{
    // The whole triangle on one side of the zero level.
    if ((f1 > tol && f2 > tol && f3 > tol) || (f1 < -tol && f2 < -tol && f3 < -tol))
        return 0;

    // An edge whose two ends both vanish is the zero line itself.
    const bool zero1 = std::fabs(f1) < tol;
    const bool zero2 = std::fabs(f2) < tol;
    const bool zero3 = std::fabs(f3) < tol;
    if (zero1 && zero2) {
        copyVector(n, v1, va);
        copyVector(n, v2, vb);
        return 1;
    }
    if (zero1 && zero3) {
        copyVector(n, v1, va);
        copyVector(n, v3, vb);
        return 1;
    }
    if (zero2 && zero3) {
        copyVector(n, v2, va);
        copyVector(n, v3, vb);
        return 1;
    }

    const int r1 = edgeZeroInto(n, v1, v2, f1, f2, tol, va);
    const int r2 = edgeZeroInto(n, v2, v3, f2, f3, tol, r1 == 1 ? vb : va);
    if (r1 + r2 != 2) {
        const int r3 = edgeZeroInto(n, v3, v1, f3, f1, tol, r1 + r2 == 1 ? vb : va);
        if (r1 + r2 + r3 < 2)
            return 0;
    } else {
        // Both ends found already; a third zero on CA (the line passes
        // through a vertex) replaces whichever end makes the longer line.
        const EdgeZero w = findEdgeZero(v3, v1, f3, f1, tol);
        if (w.kind != EdgeZero::none) {
            const double ab = mathDistXD(n, va, vb);
            const double wa = w.distanceTo(n, va);
            const double wb = w.distanceTo(n, vb);
            if (wb > ab && !(wa > wb))
                w.writeTo(n, va);
            else if (wa > wb && wa > ab)
                w.writeTo(n, vb);
        }
    }
    return mathDistXD(n, va, vb) > minLen ? 1 : 0;
}
