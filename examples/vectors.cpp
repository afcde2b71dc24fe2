// A first look at the Korvex vector and point functions: every coordinate is
// a plain double array, every result goes to an array the caller owns.
#include <korvex/korvex.hpp>

#include <cstdio>

static void show(const char *label, const double v[3])
{
    std::printf("%-34s (%.4f, %.4f, %.4f)\n", label, v[0], v[1], v[2]);
}

int main()
{
    const double pi = 3.141592653589793;

    // Two edges of a triangle and its unit normal.
    const double a[3] = {0.0, 0.0, 0.0};
    const double b[3] = {4.0, 0.0, 0.0};
    const double c[3] = {0.0, 3.0, 0.0};
    double ab[3], ac[3], normal[3];
    mathGetVec(a, b, ab);
    mathGetVec(a, c, ac);
    if (mathVProductUnit(ab, ac, normal))
        show("unit normal of triangle abc", normal);
    std::printf("%-34s %.4f\n", "length of bc", mathDist(b, c));
    std::printf("%-34s %.4f deg\n", "angle at b",
                mathGetAngle3P(a, b, c) * 180.0 / pi);

    // Normalising: a vector shorter than the tolerance becomes zero.
    double tiny[3] = {1e-12, 0.0, 0.0};
    const int ok = mathUniVec(tiny, 1e-10);
    std::printf("%-34s %d\n", "normalise a 1e-12 vector", ok);

    // Rotate b a quarter turn about the vertical axis through c.
    const double up[3] = {0.0, 0.0, 1.0};
    double turned[3];
    mathRotPnt(up, c, pi / 2.0, b, turned);
    show("b turned 90 deg about c", turned);

    // Mirror it in the plane z = 1.
    const double onPlane[3] = {0.0, 0.0, 1.0};
    double mirrored[3];
    mathMirPnt(onPlane, up, turned, mirrored);
    show("mirrored in the plane z = 1", mirrored);

    // A perpendicular frame around an arbitrary direction.
    const double z[3] = {0.48, 0.6, 0.64};
    double x[3], y[3];
    if (mathGetXYFromZ(z, x, y)) {
        show("frame x for z = (0.48, 0.6, 0.64)", x);
        show("frame y", y);
    }

    // Planar angles: anticlockwise from the second vector to the first.
    const double east[2] = {1.0, 0.0};
    const double north[2] = {0.0, 1.0};
    std::printf("%-34s %.1f deg\n", "anticlockwise north -> east",
                mathGetACWAngle2D(east, north) * 180.0 / pi);
    return 0;
}
