// Row-form double 4x4 matrices: applying them to points, vectors and frames,
// and building them from moves, scalings, rotations, mirrors and frames.
#include "korvex/capi.h"

namespace {

void setIdentity(double m[16])
{
    for (int i = 0; i < 16; ++i)
        m[i] = i % 5 == 0 ? 1.0 : 0.0;
}

} // namespace

void mathMatxPnt3D(const double m[16], const double p[3], double q[3])
{
    double r[3];
    for (int j = 0; j < 3; ++j)
        r[j] = p[0] * m[j] + p[1] * m[4 + j] + p[2] * m[8 + j] + m[12 + j];
    mathCpyPnt(r, q);
}

void mathMatxPnt4D(const double m[16], const double p[4], double q[4])
{
    const double minWeight = 1e-10;
    const double w = p[3];
    // Points at infinity and negative weights are left alone.
    if (w < minWeight)
        return;
    double c[3] = {p[0] / w, p[1] / w, p[2] / w};
    mathMatxPnt3D(m, c, c);
    q[0] = c[0] * w;
    q[1] = c[1] * w;
    q[2] = c[2] * w;
    q[3] = w;
}

void mathMatxVec3D(const double m[16], const double v[3], double w[3])
{
    const double origin[3] = {0.0, 0.0, 0.0};
    double o[3];
    double tip[3];
    mathMatxPnt3D(m, origin, o);
    mathMatxPnt3D(m, v, tip);
    mathGetVec(o, tip, w);
}

void mathMatxRFrame(const double m[16], const MathRFrame* f, MathRFrame* out)
{
    if (!f || !out)
        return;
    const MathRFrame src = *f;
    out->scale = 1.0;
    mathMatxPnt3D(m, src.origin, out->origin);
    mathMatxVec3D(m, src.xAxis, out->xAxis);
    mathMatxVec3D(m, src.yAxis, out->yAxis);
    // A degenerate image (parallel X and Y) keeps the previous Z axis.
    mathVProductUnit(out->xAxis, out->yAxis, out->zAxis);
}

void mathMatxMult16(const double a[16], const double b[16], double out[16])
{
    mathMatxMult4x4(a, b, out);
}

void mathMatxMove(const double v[3], double m[16])
{
    setIdentity(m);
    m[12] = v[0];
    m[13] = v[1];
    m[14] = v[2];
}

void mathMatxScale(const double c[3], const double s[3], double m[16])
{
    setIdentity(m);
    for (int i = 0; i < 3; ++i) {
        m[5 * i] = s[i];
        // Keeps c fixed: p' = c + (p - c) s.
        m[12 + i] = (1.0 - s[i]) * c[i];
    }
}

void mathMatxRotate(const double a[3], const double b[3], double angle, double m[16])
{
    // Local coordinates in a frame turned by -angle are the world
    // coordinates of the point turned by +angle.
    MathRFrame f;
    mathInitRFrame(&f);
    mathRotateRFrame(a, b, -angle, &f);
    mathMatxWorldToRFrame(&f, m);
}

void mathMatxMirror(const double p[3], const double n[3], double m[16])
{
    // The mirrored identity frame is its own inverse, so its world-to-local
    // matrix is the reflection.
    MathRFrame f;
    mathInitRFrame(&f);
    mathMirPnt(p, n, f.origin, f.origin);
    mathMirVec(p, n, f.xAxis, f.xAxis);
    mathMirVec(p, n, f.yAxis, f.yAxis);
    mathMirVec(p, n, f.zAxis, f.zAxis);
    mathMatxWorldToRFrame(&f, m);
}

void mathMatxWorldToRFrame(const MathRFrame* f, double m[16])
{
    if (!f)
        return;
    MathRFrame inv;
    mathInvsRFrame(f, &inv);
    mathMatxGetRFrame(&inv, m);
}

int mathMatxRFrameToRFrame(const MathRFrame* a, const MathRFrame* b, double m[16])
{
    MathRFrame rel;
    mathEvalRFrame(a, b, &rel);
    mathMatxGetRFrame(&rel, m);
    return 0;
}
