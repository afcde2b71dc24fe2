// TRANSF_3D: the standard transformations (Def... members), frames, and the
// members that compose a standard step after the current transformation.
#include "korvex/capi.h"
#include "korvex/classes.hpp"

#include <cmath>

namespace {

// Seed for the X axis of a frame with the Z axis along z: the coordinate
// axis along which z has its smallest component. Ties go to Z, then Y.
point_3d frameSeed(const point_3d& z)
{
    const float ax = std::fabs(z.x);
    const float ay = std::fabs(z.y);
    const float az = std::fabs(z.z);
    if (ax >= az && ay >= az)
        return point_3d(0.0f, 0.0f, 1.0f);
    if (ax >= ay && az >= ay)
        return point_3d(0.0f, 1.0f, 0.0f);
    return point_3d(1.0f, 0.0f, 0.0f);
}

point_3d toPoint(const double* v)
{
    return point_3d(static_cast<float>(v[0]), static_cast<float>(v[1]),
                    static_cast<float>(v[2]));
}

// Replaces t by (T(-c) * core) * T(c): the core acts about the point c.
void setAboutPoint(TRANSF_3D& t, const point_3d& c, const float* core)
{
    float toOrigin[16], back[16], m[16];
    MakeMove3D(-c.x, -c.y, -c.z, toOrigin);
    MakeMove3D(c.x, c.y, c.z, back);
    MultiMatrix3D(toOrigin, core, m);
    MultiMatrix3D(m, back, m);
    t.Set16(m);
}

// Replaces t by F^-1 * core * F: the core acts in the frame F.
void setInFrame(TRANSF_3D& t, const TRANSF_3D& frame, const TRANSF_3D& core)
{
    t = frame.Inverse() * core * frame;
}

} // namespace

// ---- Moves, scales, mirrors ----------------------------------------------------

void TRANSF_3D::DefMove(point_3d t)
{
    Init();
    origin = t;
}

void TRANSF_3D::DefMove(const double* t)
{
    DefMove(toPoint(t));
}

void TRANSF_3D::DefScale(float sx, float sy, float sz)
{
    Init();
    xAxis.x = sx;
    yAxis.y = sy;
    zAxis.z = sz;
}

void TRANSF_3D::DefScale(const point_3d& c, float sx, float sy, float sz)
{
    TRANSF_3D core;
    core.DefScale(sx, sy, sz);
    float m[16];
    core.Get16(m);
    setAboutPoint(*this, c, m);
}

void TRANSF_3D::DefScale(const double* c, const double* s)
{
    DefScale(toPoint(c), static_cast<float>(s[0]), static_cast<float>(s[1]),
             static_cast<float>(s[2]));
}

void TRANSF_3D::DefMirrorXOYPlane()
{
    Init();
    zAxis.z = -1.0f;
}

void TRANSF_3D::DefMirrorYOZPlane()
{
    Init();
    xAxis.x = -1.0f;
}

void TRANSF_3D::DefMirrorZOXPlane()
{
    Init();
    yAxis.y = -1.0f;
}

void TRANSF_3D::DefMirror(unsigned int code)
{
    switch (code) {
    case 0:
        DefMirrorXOYPlane();
        break;
    case 1:
        DefMirrorYOZPlane();
        break;
    case 2:
        DefMirrorZOXPlane();
        break;
    default:
        break; // unknown plane: nothing changes
    }
}

void TRANSF_3D::DefMirrorPlane(const point_3d& p, const point_3d& n)
{
    TRANSF_3D frame, flip;
    frame.Define(p, n);
    flip.DefMirrorXOYPlane();
    setInFrame(*this, frame, flip);
}

void TRANSF_3D::DefMirror(const double* p, const double* n)
{
    TRANSF_3D frame, flip;
    frame.Define(p, n);
    flip.DefMirrorXOYPlane();
    setInFrame(*this, frame, flip);
}

// ---- Rotations -------------------------------------------------------------------

void TRANSF_3D::DefRotateXAxis(float a)
{
    float m[16];
    MakeRotate3D_X(a, m);
    Set16(m);
}

void TRANSF_3D::DefRotateYAxis(float a)
{
    float m[16];
    MakeRotate3D_Y(a, m);
    Set16(m);
}

void TRANSF_3D::DefRotateZAxis(float a)
{
    float m[16];
    MakeRotate3D_Z(a, m);
    Set16(m);
}

void TRANSF_3D::DefRotate(float a, float b, float c)
{
    Init();
    Rotate(a, b, c);
}

void TRANSF_3D::DefRotateLine(const point_3d& p0, const point_3d& p1, float a)
{
    TRANSF_3D frame;
    frame.Define(p0, p1 - p0);
    TRANSF_3D rot;
    rot.DefRotateZAxis(a);
    TRANSF_3D toOrigin, back;
    toOrigin.DefMove(-p0);
    back.DefMove(p0);
    // The frame already carries p0 as its origin; the extra moves around it
    // put the axis through 2*p0. Hosts depend on that placement.
    *this = toOrigin * frame.Inverse() * rot * frame * back;
}

void TRANSF_3D::DefRotate(const double* o, const double* d, double a)
{
    TRANSF_3D frame, rot;
    frame.Define(o, d);
    rot.DefRotateZAxis(static_cast<float>(a));
    setInFrame(*this, frame, rot);
}

void TRANSF_3D::DefRotate(point_3d p, point_3d u, point_3d v)
{
    const double tol = gmGetAbsDistTol();
    point_3d n = u.Xproduct(v);
    const float ang = u.AngleToVector(v);
    if (n.Unit() < tol) {
        if (std::fabs(ang) < tol) {
            Init(); // u and v point the same way
            return;
        }
        // Opposite directions: any axis perpendicular to u serves. It is
        // used at its own length; Define normalises the line direction.
        n = u.Xproduct(frameSeed(u));
        if (n.Length() < tol)
            return; // u gives no direction: the object stays as it was
    }
    const point_3d q = p + n * 10.0f;
    DefRotateLine(p, q, -ang);
    *this = Inverse();
}

// ---- Frames ----------------------------------------------------------------------

void TRANSF_3D::Define(point_3d o, point_3d z)
{
    z.Unit();
    Init();
    origin = o;
    zAxis = z;
    yAxis = zAxis.Xproduct(frameSeed(zAxis));
    xAxis = yAxis.Xproduct(zAxis);
    Unit();
}

void TRANSF_3D::Define(const double* o, const double* z)
{
    // The direction is not normalised here; Unit() at the end does it.
    Init();
    origin = toPoint(o);
    zAxis = toPoint(z);
    yAxis = zAxis.Xproduct(frameSeed(zAxis));
    xAxis = yAxis.Xproduct(zAxis);
    Unit();
}

void TRANSF_3D::Define(point_3d o, point_3d z, point_3d x)
{
    Init();
    origin = o;
    zAxis = z;
    xAxis = x;
    yAxis = z.Xproduct(x);
    Unit();
}

// ---- Composing members -------------------------------------------------------

void TRANSF_3D::RotateXAxis(float a)
{
    TRANSF_3D step;
    step.DefRotateXAxis(a);
    *this = *this * step;
}

void TRANSF_3D::RotateYAxis(float a)
{
    TRANSF_3D step;
    step.DefRotateYAxis(a);
    *this = *this * step;
}

void TRANSF_3D::RotateZAxis(float a)
{
    TRANSF_3D step;
    step.DefRotateZAxis(a);
    *this = *this * step;
}

void TRANSF_3D::Rotate(float a, float b, float c)
{
    RotateXAxis(a);
    RotateYAxis(b);
    RotateZAxis(c);
}

void TRANSF_3D::Scale(float sx, float sy, float sz)
{
    TRANSF_3D step;
    step.DefScale(sx, sy, sz);
    *this = *this * step;
}

void TRANSF_3D::Scale(const point_3d& c, float sx, float sy, float sz)
{
    TRANSF_3D step;
    step.DefScale(c, sx, sy, sz);
    *this = *this * step;
}

void TRANSF_3D::Mirror(unsigned int code)
{
    // An unknown code leaves the step as the identity.
    TRANSF_3D step;
    step.DefMirror(code);
    *this = *this * step;
}

void TRANSF_3D::MirrorXOYPlane()
{
    Mirror(0);
}

void TRANSF_3D::MirrorYOZPlane()
{
    Mirror(1);
}

void TRANSF_3D::MirrorZOXPlane()
{
    Mirror(2);
}

void TRANSF_3D::MirrorPlane(const point_3d& p, const point_3d& n)
{
    TRANSF_3D step;
    step.DefMirrorPlane(p, n);
    *this = *this * step;
}

void TRANSF_3D::RotateLine(const point_3d& p0, const point_3d& p1, float a)
{
    TRANSF_3D step;
    step.DefRotateLine(p0, p1, a);
    *this = *this * step;
}

void TRANSF_3D::Move(point_3d t)
{
    origin += t;
}
