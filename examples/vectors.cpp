#include <korvex/korvex.hpp>

#include <cstdio>

int main()
{
    const double a[2] = {0.0, 0.0};
    const double b[2] = {4.0, 0.0};
    const double p[2] = {1.0, 2.0};
    std::printf("side of (1, 2) against (0, 0) -> (4, 0): %d (3 = left)\n",
                mathChkPntLin2D(p, a, b, 0.002));
    return 0;
}
