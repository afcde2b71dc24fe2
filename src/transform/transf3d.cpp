// TRANSF_3D: construction, array exchange, products, inversion and the
// application to points.
#include "korvex/capi.h"
#include "korvex/classes.hpp"

#include <cmath>

// ---- Construction and access ----------------------------------------------------

TRANSF_3D::TRANSF_3D()
{
    Init();
}

TRANSF_3D::TRANSF_3D(const float* m16)
{
    Set16(m16);
}

TRANSF_3D::TRANSF_3D(const TRANSF_3D& t)
    : xAxis(t.xAxis), yAxis(t.yAxis), zAxis(t.zAxis), pAxis(t.pAxis), origin(t.origin),
      scale(t.scale)
{
}

TRANSF_3D& TRANSF_3D::operator=(const TRANSF_3D& t)
{
    xAxis = t.xAxis;
    yAxis = t.yAxis;
    zAxis = t.zAxis;
    pAxis = t.pAxis;
    origin = t.origin;
    scale = t.scale;
    return *this;
}

TRANSF_3D& TRANSF_3D::operator=(const TRANSF_2D& t)
{
    Set2D(t);
    // Unlike Set2D, z does not pass through: points land on z = 0.
    zAxis.z = 0.0f;
    return *this;
}

void TRANSF_3D::Init()
{
    xAxis.Set(1.0f, 0.0f, 0.0f);
    yAxis.Set(0.0f, 1.0f, 0.0f);
    zAxis.Set(0.0f, 0.0f, 1.0f);
    pAxis.Set(0.0f, 0.0f, 0.0f);
    origin.Set(0.0f, 0.0f, 0.0f);
    scale = 1.0f;
}

int TRANSF_3D::Unit()
{
    const double minLength = gmGetAbsDistTol();
    point_3d* const axes[3] = {&xAxis, &yAxis, &zAxis};
    for (point_3d* axis : axes) {
        if (axis->Unit() < minLength) {
            Init();
            return 0;
        }
    }
    pAxis.Set(0.0f, 0.0f, 0.0f);
    scale = 1.0f;
    return 1;
}

void TRANSF_3D::Set16(const float* m)
{
    xAxis.Set(m[0], m[1], m[2]);
    pAxis.x = m[3];
    yAxis.Set(m[4], m[5], m[6]);
    pAxis.y = m[7];
    zAxis.Set(m[8], m[9], m[10]);
    pAxis.z = m[11];
    origin.Set(m[12], m[13], m[14]);
    scale = m[15];
}

void TRANSF_3D::Get16(float* m) const
{
    const point_3d* const rows[4] = {&xAxis, &yAxis, &zAxis, &origin};
    for (int r = 0; r < 4; ++r) {
        m[4 * r] = rows[r]->x;
        m[4 * r + 1] = rows[r]->y;
        m[4 * r + 2] = rows[r]->z;
    }
    m[3] = pAxis.x;
    m[7] = pAxis.y;
    m[11] = pAxis.z;
    m[15] = scale;
}

void TRANSF_3D::SetDbl16(const double* m)
{
    float f[16];
    for (int k = 0; k < 16; ++k)
        f[k] = static_cast<float>(m[k]);
    Set16(f);
}

void TRANSF_3D::GetDbl16(double* m) const
{
    float f[16];
    Get16(f);
    for (int k = 0; k < 16; ++k)
        m[k] = f[k];
}

void TRANSF_3D::Set4X4(const float (*m)[4])
{
    Set16(&m[0][0]);
}

void TRANSF_3D::Get4X4(float (*m)[4]) const
{
    Get16(&m[0][0]);
}

void TRANSF_3D::SetDbl4X4(const double (*m)[4])
{
    SetDbl16(&m[0][0]);
}

void TRANSF_3D::GetDbl4X4(double (*m)[4]) const
{
    GetDbl16(&m[0][0]);
}

void TRANSF_3D::Set2D(const float* m9)
{
    float m16[16];
    Matrix2DTo3D(m9, m16);
    Set16(m16);
}

void TRANSF_3D::Set2D(const TRANSF_2D& t)
{
    float m9[9];
    t.Get9(m9);
    Set2D(m9);
}

point_3d TRANSF_3D::GetXAxis() const { return xAxis; }
point_3d TRANSF_3D::GetYAxis() const { return yAxis; }
point_3d TRANSF_3D::GetZAxis() const { return zAxis; }
point_3d TRANSF_3D::GetOrigin() const { return origin; }
point_3d TRANSF_3D::GetPAxis() const { return pAxis; }
float TRANSF_3D::GetScale() const { return scale; }

const float& TRANSF_3D::operator()(const int& row, const int& col) const
{
    const bool rowInRange = row >= 0 && row <= 3;
    const bool colInRange = col >= 0 && col <= 3;
    if (!rowInRange || !colInRange)
        return xAxis.x; // indices outside the matrix fall back to m[0][0]
    if (col == 3)
        return row == 3 ? scale : pAxis[row];
    const point_3d* const rows[4] = {&xAxis, &yAxis, &zAxis, &origin};
    return (*rows[row])[col];
}

// ---- Products and derived transformations --------------------------------------

TRANSF_3D& TRANSF_3D::operator*=(const TRANSF_3D& b)
{
    float ma[4][4], mb[4][4];
    Get4X4(ma);
    b.Get4X4(mb);
    MultiMatrix3D(&ma[0][0], &mb[0][0], &ma[0][0]);
    Set4X4(ma);
    return *this;
}

TRANSF_3D TRANSF_3D::operator*(const TRANSF_3D& b) const
{
    TRANSF_3D r(*this);
    r *= b;
    return r;
}

TRANSF_3D TRANSF_3D::Inverse() const
{
    // Gauss-Jordan elimination on [M | I].
    float a[4][8];
    float m[4][4];
    Get4X4(m);
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            a[r][c] = m[r][c];
            a[r][4 + c] = r == c ? 1.0f : 0.0f;
        }
    }
    const double minPivot = gmGetAbsDistTol();
    for (int k = 0; k < 4; ++k) {
        // Partial pivoting: a later row wins only when strictly larger.
        int pivotRow = k;
        for (int r = k + 1; r < 4; ++r) {
            if (std::fabs(a[r][k]) > std::fabs(a[pivotRow][k]))
                pivotRow = r;
        }
        const float pivot = a[pivotRow][k];
        if (std::fabs(pivot) < minPivot)
            return *this; // singular: handed back as it is
        for (int c = k; c < 8; ++c)
            a[pivotRow][c] /= pivot;
        if (pivotRow != k) {
            for (int c = 0; c < 8; ++c) {
                const float t = a[k][c];
                a[k][c] = a[pivotRow][c];
                a[pivotRow][c] = t;
            }
        }
        for (int r = k + 1; r < 4; ++r) {
            const float f = a[r][k];
            for (int c = k; c < 8; ++c)
                a[r][c] -= f * a[k][c];
        }
    }
    for (int k = 3; k > 0; --k) {
        for (int r = 0; r < k; ++r) {
            const float f = a[r][k];
            for (int c = k; c < 8; ++c)
                a[r][c] -= f * a[k][c];
        }
    }
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c)
            m[r][c] = a[r][4 + c];
    }
    TRANSF_3D inv;
    inv.Set4X4(m);
    return inv;
}

TRANSF_3D TRANSF_3D::Transpose() const
{
    float m[16];
    Get16(m);
    for (int r = 0; r < 4; ++r) {
        for (int c = r + 1; c < 4; ++c) {
            const float t = m[4 * r + c];
            m[4 * r + c] = m[4 * c + r];
            m[4 * c + r] = t;
        }
    }
    return TRANSF_3D(m);
}

// ---- Points ----------------------------------------------------------------

point_4d operator*(const point_4d& p, const TRANSF_3D& t)
{
    return point_4d(
        p.x * t.xAxis.x + p.y * t.yAxis.x + p.z * t.zAxis.x + p.w * t.origin.x,
        p.x * t.xAxis.y + p.y * t.yAxis.y + p.z * t.zAxis.y + p.w * t.origin.y,
        p.x * t.xAxis.z + p.y * t.yAxis.z + p.z * t.zAxis.z + p.w * t.origin.z,
        p.x * t.pAxis.x + p.y * t.pAxis.y + p.z * t.pAxis.z + p.w * t.scale);
}

point_3d operator*(const point_3d& p, const TRANSF_3D& t)
{
    return point_3d(p.x * t.xAxis.x + p.y * t.yAxis.x + p.z * t.zAxis.x + t.origin.x,
                    p.x * t.xAxis.y + p.y * t.yAxis.y + p.z * t.zAxis.y + t.origin.y,
                    p.x * t.xAxis.z + p.y * t.yAxis.z + p.z * t.zAxis.z + t.origin.z);
}

point_2d operator*(const point_2d& p, const TRANSF_3D& t)
{
    const point_3d q = point_3d(p.x, p.y, 0.0f) * t;
    return point_2d(q.x, q.y);
}
