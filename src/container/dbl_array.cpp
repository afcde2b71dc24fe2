// Helpers on plain double arrays: sorting, merging of near-equal values,
// extremes and reversal.
#include "korvex/capi.h"

#include <cmath>

namespace {

void swapValues(double &a, double &b)
{
    const double t = a;
    a = b;
    b = t;
}

} // namespace

void mathSortDblArray(int n, double *a)
{
    for (int i = 0; i < n; ++i)
        for (int j = i + 1; j < n; ++j)
            if (a[j] < a[i])
                swapValues(a[i], a[j]);
}

int mathFilterDblArray(int n, double *a, double tol)
{
    const double dropped = 1e100;            // marks merged elements
    const double droppedFloor = 9.999999999e99; // anything this large goes
    if (n < 2)
        return 1;

    double kept = a[0];
    for (int i = 1; i < n; ++i) {
        if (std::fabs(a[i] - kept) < tol)
            a[i] = dropped;
        else
            kept = a[i];
    }
    int count = 0;
    for (int i = 0; i < n; ++i)
        if (a[i] < droppedFloor)
            a[count++] = a[i];
    return count;
}

int mathGetDblArrayMaxVal(int n, const double *a, double *max)
{
    int at = 0;
    *max = a[0];
    for (int i = 1; i < n; ++i) {
        if (a[i] > *max) {
            *max = a[i];
            at = i;
        }
    }
    return at;
}

int mathGetDblArrayMinVal(int n, const double *a, double *min)
{
    int at = 0;
    *min = a[0];
    for (int i = 1; i < n; ++i) {
        if (a[i] < *min) {
            *min = a[i];
            at = i;
        }
    }
    return at;
}

int mathGetDblArrayMinMax(int n, const double *a, double *min, double *max)
{
    if (n < 1)
        return 1; // an empty array has no extremes to report
    if (min)
        mathGetDblArrayMinVal(n, a, min);
    if (max)
        mathGetDblArrayMaxVal(n, a, max);
    return 1;
}

void mathRevDblArray(int n, double *a)
{
    for (int i = 0, j = n - 1; i < j; ++i, --j)
        swapValues(a[i], a[j]);
}
