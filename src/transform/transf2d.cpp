// TRANSF_2D: a plane transformation kept as axes, projective column, origin
// and scale.
#include "korvex/capi.h"
#include "korvex/classes.hpp"

#include <cmath>

// ---- Construction and access ----------------------------------------------------

TRANSF_2D::TRANSF_2D()
{
    Init();
}

TRANSF_2D::TRANSF_2D(const float* m9)
{
    Set9(m9);
}

TRANSF_2D::TRANSF_2D(const TRANSF_2D& t)
    : xAxis(t.xAxis), yAxis(t.yAxis), pAxis(t.pAxis), origin(t.origin), scale(t.scale)
{
}

TRANSF_2D& TRANSF_2D::operator=(const TRANSF_2D& t)
{
    xAxis = t.xAxis;
    yAxis = t.yAxis;
    pAxis = t.pAxis;
    origin = t.origin;
    scale = t.scale;
    return *this;
}

void TRANSF_2D::Init()
{
    xAxis.Set(1.0f, 0.0f);
    yAxis.Set(0.0f, 1.0f);
    pAxis.Set(0.0f, 0.0f);
    origin.Set(0.0f, 0.0f);
    scale = 1.0f;
}

void TRANSF_2D::Unit()
{
    const double minLength = gmGetAbsDistTol();
    if (minLength > xAxis.Unit()) {
        Init();
        return;
    }
    if (minLength > yAxis.Unit()) {
        Init();
        return;
    }
    pAxis.Set(0.0f, 0.0f);
    scale = 1.0f;
}

void TRANSF_2D::Set9(const float* m)
{
    xAxis.Set(m[0], m[1]);
    pAxis.x = m[2];
    yAxis.Set(m[3], m[4]);
    pAxis.y = m[5];
    origin.Set(m[6], m[7]);
    scale = m[8];
}

void TRANSF_2D::Set3X3(const float (*m)[3])
{
    Set9(&m[0][0]);
}

void TRANSF_2D::Get9(float* m) const
{
    m[0] = xAxis.x;
    m[1] = xAxis.y;
    m[2] = pAxis.x;
    m[3] = yAxis.x;
    m[4] = yAxis.y;
    m[5] = pAxis.y;
    m[6] = origin.x;
    m[7] = origin.y;
    m[8] = scale;
}

void TRANSF_2D::Get3X3(float (*m)[3]) const
{
    Get9(&m[0][0]);
}

void TRANSF_2D::Get16(float* m) const
{
    float m9[9];
    Get9(m9);
    Matrix2DTo3D(m9, m);
}

void TRANSF_2D::GetDbl16(double* m) const
{
    float m16[16];
    Get16(m16);
    for (int k = 0; k < 16; ++k)
        m[k] = m16[k];
}

point_2d TRANSF_2D::GetXAxis() const { return xAxis; }
point_2d TRANSF_2D::GetYAxis() const { return yAxis; }
point_2d TRANSF_2D::GetOrigin() const { return origin; }
point_2d TRANSF_2D::GetPAxis() const { return pAxis; }
float TRANSF_2D::GetScale() const { return scale; }

const float& TRANSF_2D::operator()(const int& row, const int& col) const
{
    const bool rowInRange = row >= 0 && row <= 2;
    if (rowInRange && (col == 0 || col == 1)) {
        const point_2d& r = row == 0 ? xAxis : (row == 1 ? yAxis : origin);
        return col == 0 ? r.x : r.y;
    }
    if (rowInRange && col == 2) {
        if (row == 2)
            return scale;
        return row == 0 ? pAxis.x : pAxis.y;
    }
    // Indices outside the matrix fall back to the first entry.
    return xAxis.x;
}

// ---- Replacing members -------------------------------------------------------

void TRANSF_2D::Define(point_2d o, point_2d xdir)
{
    Init();
    xdir.Unit();
    xAxis = xdir;
    yAxis.Set(-xdir.y, xdir.x);
    origin = o;
}

void TRANSF_2D::Define(point_2d o, point_2d x, point_2d y)
{
    Init();
    origin = o;
    xAxis = x;
    yAxis = y;
    Unit();
}

void TRANSF_2D::DefMove(point_2d t)
{
    Init();
    origin = t;
}

void TRANSF_2D::DefScale(float sx, float sy)
{
    Init();
    xAxis.Set(sx, 0.0f);
    yAxis.Set(0.0f, sy);
}

void TRANSF_2D::DefScale(const point_2d& c, float sx, float sy)
{
    // c may be this object's own origin: read it before the reset.
    const point_2d centre = c;
    DefScale(sx, sy);
    origin.Set((1.0f - sx) * centre.x, (1.0f - sy) * centre.y);
}

void TRANSF_2D::DefShear(float a, float b)
{
    Init();
    xAxis.Set(1.0f, b);
    yAxis.Set(a, 1.0f);
}

void TRANSF_2D::DefMirrorXAxis()
{
    DefScale(1.0f, -1.0f);
}

void TRANSF_2D::DefMirrorYAxis()
{
    DefScale(-1.0f, 1.0f);
}

void TRANSF_2D::DefMirrorOrigin()
{
    DefScale(-1.0f, -1.0f);
}

void TRANSF_2D::DefRotate(float a)
{
    const float c = std::cos(a);
    const float s = std::sin(a);
    Init();
    xAxis.Set(c, s);
    yAxis.Set(-s, c);
}

void TRANSF_2D::DefRotate(const point_2d& c, float a)
{
    // c may be this object's own origin: read it before the reset.
    const point_2d centre = c;
    DefRotate(a);
    const float cs = xAxis.x;
    const float sn = xAxis.y;
    // The centre minus its image under the bare rotation.
    origin.Set((1.0f - cs) * centre.x + sn * centre.y, (1.0f - cs) * centre.y - sn * centre.x);
}

void TRANSF_2D::DefMirror(const point_2d& p0, const point_2d& p1)
{
    // Into the frame of the line, negate the local y, back out.
    TRANSF_2D toWorld;
    toWorld.Define(p0, p1 - p0);
    const TRANSF_2D toLocal = toWorld.Inverse();
    TRANSF_2D flip;
    flip.DefMirrorXAxis();
    *this = (toLocal * flip) * toWorld;
}

// ---- Composing members -------------------------------------------------------

void TRANSF_2D::Rotate(float a)
{
    TRANSF_2D step;
    step.DefRotate(a);
    *this *= step;
}

void TRANSF_2D::Rotate(const point_2d& c, float a)
{
    TRANSF_2D step;
    step.DefRotate(c, a);
    *this *= step;
}

void TRANSF_2D::Scale(float sx, float sy)
{
    TRANSF_2D step;
    step.DefScale(sx, sy);
    *this *= step;
}

void TRANSF_2D::Scale(const point_2d& c, float sx, float sy)
{
    TRANSF_2D step;
    step.DefScale(c, sx, sy);
    *this *= step;
}

void TRANSF_2D::Shear(float a, float b)
{
    TRANSF_2D step;
    step.DefShear(a, b);
    *this *= step;
}

void TRANSF_2D::MirrorXAxis()
{
    TRANSF_2D step;
    step.DefMirrorXAxis();
    *this *= step;
}

void TRANSF_2D::MirrorYAxis()
{
    TRANSF_2D step;
    step.DefMirrorYAxis();
    *this *= step;
}

void TRANSF_2D::MirrorOrigin()
{
    TRANSF_2D step;
    step.DefMirrorOrigin();
    *this *= step;
}

void TRANSF_2D::Mirror(const point_2d& p0, const point_2d& p1)
{
    TRANSF_2D step;
    step.DefMirror(p0, p1);
    *this *= step;
}

void TRANSF_2D::Move(const point_2d& t)
{
    origin += t;
}

// ---- Products and derived transformations --------------------------------------

TRANSF_2D& TRANSF_2D::operator*=(const TRANSF_2D& b)
{
    float ma[9], mb[9];
    Get9(ma);
    b.Get9(mb);
    MultiMatrix2D(ma, mb, ma);
    Set9(ma);
    return *this;
}

TRANSF_2D TRANSF_2D::operator*(const TRANSF_2D& b) const
{
    TRANSF_2D r(*this);
    r *= b;
    return r;
}

TRANSF_2D TRANSF_2D::Inverse() const
{
    float m[9], inv[9];
    Get9(m);
    // A singular matrix leaves inv untouched, so it comes back as the
    // identity.
    InitMatrix2D(inv);
    GetInverseMatrix2D(m, inv);
    return TRANSF_2D(inv);
}

TRANSF_2D TRANSF_2D::Transpose() const
{
    float m[9];
    Get9(m);
    const float t[9] = {
        m[0], m[3], m[6],
        m[1], m[4], m[7],
        m[2], m[5], m[8],
    };
    return TRANSF_2D(t);
}

// ---- Points ----------------------------------------------------------------

point_2d operator*(const point_2d& p, const TRANSF_2D& t)
{
    return point_2d(p.x * t.xAxis.x + p.y * t.yAxis.x + t.origin.x,
                    p.x * t.xAxis.y + p.y * t.yAxis.y + t.origin.y);
}

point_3d operator*(const point_3d& p, const TRANSF_2D& t)
{
    const point_2d q = point_2d(p.x, p.y) * t;
    return point_3d(q.x, q.y, p.z);
}

// ---- Point lists through a TRANSF_2D ---------------------------------------------

void TransPointList2D(const point_2d* in, unsigned short n, point_2d* out, const TRANSF_2D& t)
{
    for (unsigned int i = 0; i < n; ++i)
        out[i] = in[i] * t;
}

void TransPointList2D(const point_3d* in, unsigned short n, point_2d* out, const TRANSF_2D& t)
{
    for (unsigned int i = 0; i < n; ++i)
        out[i] = in[i] * t;
}

void TransPointList2D(const point_3d* in, unsigned short n, point_3d* out, const TRANSF_2D& t)
{
    for (unsigned int i = 0; i < n; ++i)
        out[i] = in[i] * t;
}
