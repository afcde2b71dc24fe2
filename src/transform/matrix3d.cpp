// Spatial transformation matrices: sixteen floats, row-major, points as row
// vectors (x, y, z, 1) on the left, translation in the fourth row.
#include "korvex/classes.hpp"

#include <cmath>

void InitMatrix3D(float* m)
{
    ClearMatrix3D(m, 0.0f);
    m[0] = 1.0f;
    m[5] = 1.0f;
    m[10] = 1.0f;
    m[15] = 1.0f;
}

void ClearMatrix3D(float* m, float v)
{
    for (int i = 0; i < 16; ++i)
        m[i] = v;
}

void CopyMatrix3D(const float* in, float* out)
{
    for (int i = 0; i < 16; ++i)
        out[i] = in[i];
}

void MultiMatrix3D(const float* a, const float* b, float* out)
{
    // Computed into a local matrix first, so out may be a or b.
    float r[16];
    for (int row = 0; row < 4; ++row) {
        for (int col = 0; col < 4; ++col) {
            float sum = 0.0f;
            for (int k = 0; k < 4; ++k)
                sum += a[4 * row + k] * b[4 * k + col];
            r[4 * row + col] = sum;
        }
    }
    CopyMatrix3D(r, out);
}

void MakeMove3D(float tx, float ty, float tz, float* out)
{
    InitMatrix3D(out);
    out[12] = tx;
    out[13] = ty;
    out[14] = tz;
}

void MakeRotate3D_X(float a, float* out)
{
    const float c = std::cos(a);
    const float s = std::sin(a);
    InitMatrix3D(out);
    out[5] = c;
    out[6] = s;
    out[9] = -s;
    out[10] = c;
}

void MakeRotate3D_Y(float a, float* out)
{
    const float c = std::cos(a);
    const float s = std::sin(a);
    InitMatrix3D(out);
    out[0] = c;
    out[2] = -s;
    out[8] = s;
    out[10] = c;
}

void MakeRotate3D_Z(float a, float* out)
{
    const float c = std::cos(a);
    const float s = std::sin(a);
    InitMatrix3D(out);
    out[0] = c;
    out[1] = s;
    out[4] = -s;
    out[5] = c;
}
