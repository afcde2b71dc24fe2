// Reference frame records and their algebra: initialisation, moves and
// rotations, matrices in row and column form, inverse and products,
// comparison, and arrays of frames.
#include "korvex/capi.h"

#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <cstring>

// Hosts read and write these records as plain arrays of doubles.
static_assert(sizeof(MathRFrame) == 13 * sizeof(double), "MathRFrame is thirteen doubles");
static_assert(offsetof(MathRFrame, xAxis) == 0, "MathRFrame layout");
static_assert(offsetof(MathRFrame, yAxis) == 3 * sizeof(double), "MathRFrame layout");
static_assert(offsetof(MathRFrame, zAxis) == 6 * sizeof(double), "MathRFrame layout");
static_assert(offsetof(MathRFrame, origin) == 9 * sizeof(double), "MathRFrame layout");
static_assert(offsetof(MathRFrame, scale) == 12 * sizeof(double), "MathRFrame layout");
static_assert(sizeof(MathGFrame) == 13 * sizeof(double), "MathGFrame is thirteen doubles");
static_assert(offsetof(MathGFrame, p0) == 0, "MathGFrame layout");
static_assert(offsetof(MathGFrame, p1) == 3 * sizeof(double), "MathGFrame layout");
static_assert(offsetof(MathGFrame, p2) == 6 * sizeof(double), "MathGFrame layout");
static_assert(offsetof(MathGFrame, p3) == 9 * sizeof(double), "MathGFrame layout");
static_assert(offsetof(MathGFrame, volume) == 12 * sizeof(double), "MathGFrame layout");

namespace {

// The three axes of a frame, indexable.
const double* axisOf(const MathRFrame* f, int i)
{
    return i == 0 ? f->xAxis : (i == 1 ? f->yAxis : f->zAxis);
}

double* axisOf(MathRFrame* f, int i)
{
    return i == 0 ? f->xAxis : (i == 1 ? f->yAxis : f->zAxis);
}

} // namespace

void mathInitRFrame(MathRFrame* f)
{
    if (!f)
        return;
    for (int i = 0; i < 3; ++i) {
        double* axis = axisOf(f, i);
        for (int j = 0; j < 3; ++j)
            axis[j] = i == j ? 1.0 : 0.0;
        f->origin[i] = 0.0;
    }
    f->scale = 1.0;
}

void mathMoveRFrame(const double v[3], MathRFrame* f)
{
    for (int i = 0; i < 3; ++i)
        f->origin[i] += v[i];
}

void mathScaleRFrame(const double v[3], double s, MathRFrame* f)
{
    // Only moves the frame: the factor is ignored, and hosts rely on the
    // axes and scale staying as they are.
    (void)s;
    mathMoveRFrame(v, f);
}

void mathRotateRFrame(const double a[3], const double b[3], double angle, MathRFrame* f)
{
    mathRotPnt(a, b, angle, f->origin, f->origin);
    for (int i = 0; i < 3; ++i)
        mathRotVec(a, b, angle, axisOf(f, i), axisOf(f, i));
}

void mathGetMatrixFromRFrame(const MathRFrame* f, double m[16])
{
    if (!f || !m)
        return;
    // Column form: row j holds the j components of the three axes and the
    // origin.
    for (int j = 0; j < 3; ++j) {
        m[4 * j + 0] = f->xAxis[j];
        m[4 * j + 1] = f->yAxis[j];
        m[4 * j + 2] = f->zAxis[j];
        m[4 * j + 3] = f->origin[j];
    }
    m[12] = 0.0;
    m[13] = 0.0;
    m[14] = 0.0;
    m[15] = f->scale;
}

void mathGetMatrixFromRFrame2(const MathRFrame* f, double m[16])
{
    // Row form: the axes and the origin are the rows.
    for (int j = 0; j < 3; ++j) {
        m[j] = f->xAxis[j];
        m[4 + j] = f->yAxis[j];
        m[8 + j] = f->zAxis[j];
        m[12 + j] = f->origin[j];
    }
    m[3] = 0.0;
    m[7] = 0.0;
    m[11] = 0.0;
    m[15] = f->scale;
}

void mathGetRFrameFromMatrix(const double m[16], MathRFrame* f)
{
    if (!m || !f)
        return;
    for (int j = 0; j < 3; ++j) {
        f->xAxis[j] = m[4 * j + 0];
        f->yAxis[j] = m[4 * j + 1];
        f->zAxis[j] = m[4 * j + 2];
        f->origin[j] = m[4 * j + 3];
    }
    f->scale = m[15];
}

void mathMatxGetRFrame(const MathRFrame* f, double m[16])
{
    if (!f)
        return;
    mathGetMatrixFromRFrame2(f, m);
}

void mathMatxMult4x4(const double a[16], const double b[16], double out[16])
{
    double r[16];
    for (int i = 0; i < 4; ++i) {
        for (int j = 0; j < 4; ++j) {
            double sum = 0.0;
            for (int k = 0; k < 4; ++k)
                sum += a[4 * i + k] * b[4 * k + j];
            r[4 * i + j] = sum;
        }
    }
    for (int i = 0; i < 16; ++i)
        out[i] = r[i];
}

void mathMultRFrame(const MathRFrame* a, const MathRFrame* b, MathRFrame* out)
{
    if (!a || !b || !out)
        return;
    double ma[16];
    double mb[16];
    mathGetMatrixFromRFrame(a, ma);
    mathGetMatrixFromRFrame(b, mb);
    mathMatxMult4x4(ma, mb, ma);
    mathGetRFrameFromMatrix(ma, out);
}

void mathInvsRFrame(const MathRFrame* f, MathRFrame* inv)
{
    const MathRFrame src = *f;
    for (int i = 0; i < 3; ++i) {
        double* axis = axisOf(inv, i);
        // Transposed axis block: the i-th components of the three axes.
        axis[0] = src.xAxis[i];
        axis[1] = src.yAxis[i];
        axis[2] = src.zAxis[i];
    }
    for (int i = 0; i < 3; ++i)
        inv->origin[i] = -mathOProduct(src.origin, axisOf(&src, i));
    inv->scale = 1.0;
}

void mathEvalRFrame(const MathRFrame* a, const MathRFrame* b, MathRFrame* out)
{
    MathRFrame inv;
    mathInvsRFrame(a, &inv);
    mathMultRFrame(&inv, b, out);
}

int mathDerivFrame(const double o[3], const double z[3], const double r[3], MathRFrame* f)
{
    const double zTol = 1e-8;
    mathCpyPnt(o, f->origin);
    mathCpyPnt(z, f->zAxis);
    if (!mathUniVec(f->zAxis, zTol))
        return 0;
    // r along z leaves no direction for the x axis.
    if (!mathVProductUnit(r, f->zAxis, f->xAxis))
        return 0;
    if (!mathVProductUnit(f->zAxis, f->xAxis, f->yAxis))
        return 0;
    f->scale = 1.0;
    return 1;
}

int mathRFrameEqu(const MathRFrame* a, const MathRFrame* b, double tol)
{
    // One tolerance serves as a distance for the origins and as an angle for
    // the axes.
    if (mathDist(a->origin, b->origin) > tol)
        return 0;
    for (int i = 0; i < 3; ++i) {
        if (mathGetAngle(axisOf(a, i), axisOf(b, i), tol) > tol)
            return 0;
    }
    return 1;
}

int mathIsRFrameUnit(const MathRFrame* f)
{
    if (!f)
        return 0;
    const double tol = 1e-12;
    MathRFrame unit;
    mathInitRFrame(&unit);
    double values[13];
    double expected[13];
    std::memcpy(values, f, sizeof values);
    std::memcpy(expected, &unit, sizeof expected);
    for (int i = 0; i < 13; ++i) {
        if (!(tol > std::fabs(values[i] - expected[i])))
            return 0;
    }
    return 1;
}

MathRFrame** mathNewRFrameStr(int n)
{
    if (n < 1)
        return nullptr;
    MathRFrame** arr = static_cast<MathRFrame**>(std::malloc(sizeof(MathRFrame*) * static_cast<std::size_t>(n)));
    if (!arr)
        return nullptr;
    for (int i = 0; i < n; ++i) {
        arr[i] = static_cast<MathRFrame*>(std::malloc(sizeof(MathRFrame)));
        if (!arr[i]) {
            mathFreRFrameStr(i, arr);
            return nullptr;
        }
        arr[i]->scale = 1.0;
    }
    return arr;
}

void mathFreRFrameStr(int n, MathRFrame** arr)
{
    if (!arr)
        return;
    for (int i = 0; i < n; ++i)
        std::free(arr[i]);
    std::free(arr);
}
