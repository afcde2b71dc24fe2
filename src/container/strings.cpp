// Padded coefficient arrays (strings) and arrays of them (nets). Every
// string carries three points of slack beyond the n + 1 it is made for.
#include "korvex/capi.h"

#include <cstddef>
#include <new>

namespace {

const int kSlackPoints = 3;

// A double array of `count` elements, or null when it cannot be made.
double *newDoubles(long long count)
{
    if (count < 0)
        return nullptr;
    return new (std::nothrow) double[static_cast<std::size_t>(count)];
}

double *newString(int n, int dim)
{
    return newDoubles((static_cast<long long>(n) + kSlackPoints) * dim);
}

double **newNet(double ***net, int n, int m, int dim)
{
    const long long rowCount = static_cast<long long>(n) + kSlackPoints;
    *net = (rowCount < 0) ? nullptr
                          : new (std::nothrow) double *[static_cast<std::size_t>(rowCount)]();
    if (!*net)
        return nullptr;
    for (int i = 0; i <= n; ++i) {
        (*net)[i] = newString(m, dim);
        if (!(*net)[i])
            break; // the host finds the first missing row null
    }
    return *net;
}

} // namespace

double *NewStr1D(int n) { return newString(n, 1); }
double *NewStr2D(int n) { return newString(n, 2); }
double *NewStr3D(int n) { return newString(n, 3); }
double *NewStr4D(int n) { return newString(n, 4); }
double *NewStr5D(int n) { return newString(n, 5); }

double *NewKntStr(int n, int p)
{
    // n + 1 control points of degree p need n + p + 2 knots; three spare.
    return newDoubles(static_cast<long long>(n) + p + 5);
}

void DelStr1D(double **s)
{
    if (!s || !*s)
        return;
    delete[] *s;
    *s = nullptr;
}

double **NewNet1D(double ***net, int n, int m) { return newNet(net, n, m, 1); }
double **NewNet2D(double ***net, int n, int m) { return newNet(net, n, m, 2); }
double **NewNet3D(double ***net, int n, int m) { return newNet(net, n, m, 3); }
double **NewNet4D(double ***net, int n, int m) { return newNet(net, n, m, 4); }

void DelNet1D(int n, double ***net)
{
    if (!net)
        return;
    if (*net) {
        for (int i = 0; i <= n && (*net)[i]; ++i)
            delete[] (*net)[i];
        delete[] *net;
    }
    *net = nullptr;
}
