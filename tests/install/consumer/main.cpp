// Smallest useful host: links the installed library and calls into it.
#include <korvex/korvex.hpp>

#include <cstdio>

int main()
{
    gmSetDistTol(0.01);
    const double a[2] = {0.0, 0.0};
    const double b[2] = {1.0, 0.0};
    const double p[2] = {0.5, 1.0};
    const int side = mathChkPntLin2D(p, a, b, gmGetDistTol());
    if (side != 3) {
        std::printf("unexpected side %d\n", side);
        return 1;
    }
    std::printf("korvex consumer ok\n");
    return 0;
}
