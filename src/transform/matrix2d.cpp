// Plane transformation matrices: nine floats, row-major, points as row
// vectors (x, y, 1) on the left, translation in the third row.
#include "korvex/classes.hpp"
#include "transform/matrix_ops.hpp"

#include <cmath>

namespace transform_detail {

void rotation2D(float a, float* m)
{
    const float c = std::cos(a);
    const float s = std::sin(a);
    InitMatrix2D(m);
    m[0] = c;
    m[1] = s;
    m[3] = -s;
    m[4] = c;
}

} // namespace transform_detail

namespace {

// out = (first * core) * last, the order in which the steps act on a point.
void chain3(const float* first, const float* core, const float* last, float* out)
{
    float tmp[9];
    MultiMatrix2D(first, core, tmp);
    MultiMatrix2D(tmp, last, out);
}

} // namespace

void InitMatrix2D(float* m)
{
    ClearMatrix2D(m, 0.0f);
    m[0] = 1.0f;
    m[4] = 1.0f;
    m[8] = 1.0f;
}

void ClearMatrix2D(float* m, float v)
{
    for (int i = 0; i < 9; ++i)
        m[i] = v;
}

void CopyMatrix2D(const float* in, float* out)
{
    for (int i = 0; i < 9; ++i)
        out[i] = in[i];
}

void MultiMatrix2D(const float* a, const float* b, float* out)
{
    // Every operand is read before the first output is written, so out may
    // be the same array as a or b.
    float r[9];
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col) {
            r[3 * row + col] = a[3 * row] * b[col] + a[3 * row + 1] * b[3 + col]
                + a[3 * row + 2] * b[6 + col];
        }
    }
    CopyMatrix2D(r, out);
}

int GetInverseMatrix2D(const float* in, float* out)
{
    // Below this determinant the matrix counts as singular.
    const double minDet = 1e-6;
    const double a = in[0], b = in[1], c = in[2];
    const double d = in[3], e = in[4], f = in[5];
    const double g = in[6], h = in[7], i = in[8];
    const double det = a * e * i + b * f * g + c * d * h - c * e * g - b * d * i - a * f * h;
    if (std::fabs(det) < minDet)
        return 0;
    // The adjugate (transposed cofactors) in single precision; only the
    // determinant and the division by it are carried in double.
    out[0] = in[4] * in[8] - in[5] * in[7];
    out[1] = in[2] * in[7] - in[1] * in[8];
    out[2] = in[1] * in[5] - in[2] * in[4];
    out[3] = in[5] * in[6] - in[3] * in[8];
    out[4] = in[0] * in[8] - in[2] * in[6];
    out[5] = in[2] * in[3] - in[0] * in[5];
    out[6] = in[3] * in[7] - in[4] * in[6];
    out[7] = in[1] * in[6] - in[0] * in[7];
    out[8] = in[0] * in[4] - in[1] * in[3];
    for (int k = 0; k < 9; ++k)
        out[k] = static_cast<float>(static_cast<double>(out[k]) / det);
    return 1;
}

void MakeMoveMatrix(float tx, float ty, float* out)
{
    InitMatrix2D(out);
    out[6] = tx;
    out[7] = ty;
}

void MakeScaleMatrix(float cx, float cy, float sx, float sy, float* out)
{
    float toOrigin[9], scale[9], back[9];
    MakeMoveMatrix(-cx, -cy, toOrigin);
    InitMatrix2D(scale);
    scale[0] = sx;
    scale[4] = sy;
    MakeMoveMatrix(cx, cy, back);
    chain3(toOrigin, scale, back, out);
}

void MakeRotateMatrix(float cx, float cy, float a, float* out)
{
    float toOrigin[9], rot[9], back[9];
    MakeMoveMatrix(-cx, -cy, toOrigin);
    transform_detail::rotation2D(a, rot);
    MakeMoveMatrix(cx, cy, back);
    chain3(toOrigin, rot, back, out);
}

void MakeMirrorMatrix(float cx, float cy, float a, float* out)
{
    // Turn the mirror line onto the X axis, negate y, turn back.
    float toOrigin[9], unturn[9], flip[9], turn[9], back[9];
    MakeMoveMatrix(-cx, -cy, toOrigin);
    transform_detail::rotation2D(-a, unturn);
    InitMatrix2D(flip);
    flip[4] = -1.0f;
    transform_detail::rotation2D(a, turn);
    MakeMoveMatrix(cx, cy, back);
    float tmp[9];
    MultiMatrix2D(toOrigin, unturn, tmp);
    MultiMatrix2D(tmp, flip, tmp);
    MultiMatrix2D(tmp, turn, tmp);
    MultiMatrix2D(tmp, back, out);
}

void Matrix2DTo3D(const float* in, float* out)
{
    // The plane acts on x and y, z passes through; the translation row of
    // the plane becomes the translation row in space.
    const float r[16] = {
        in[0], in[1], 0.0f, in[2],
        in[3], in[4], 0.0f, in[5],
        0.0f, 0.0f, 1.0f, 0.0f,
        in[6], in[7], 0.0f, in[8],
    };
    for (int k = 0; k < 16; ++k)
        out[k] = r[k];
}
