// Conversions of points and vectors between world coordinates and the local
// coordinates of a frame, given as a record or as separate axes.
#include "korvex/capi.h"
#include "transform/frame_homogeneous.hpp"

using korvex_frame::convertHomogeneous;

// ---- Separate axes --------------------------------------------------------

void mathTransWorldPnt2DByOX(const double o[2], const double x[2], const double p[2], double q[2])
{
    const double dx = p[0] - o[0];
    const double dy = p[1] - o[1];
    // The local y axis is x turned a quarter turn anticlockwise.
    const double along = dx * x[0] + dy * x[1];
    const double across = dy * x[0] - dx * x[1];
    q[0] = along;
    q[1] = across;
}

void mathTransLocalPnt2DByOX(const double o[2], const double x[2], const double p[2], double q[2])
{
    const double wx = o[0] + p[0] * x[0] - p[1] * x[1];
    const double wy = o[1] + p[0] * x[1] + p[1] * x[0];
    q[0] = wx;
    q[1] = wy;
}

double* mathTransWorldPnt3DTo2DByOXY(const double o[3], const double x[3], const double y[3], const double p[3],
                                     double q[2])
{
    double d[3];
    mathGetVec(o, p, d);
    // Both coordinates are taken before q is written: q may share its
    // storage with one of the axes.
    const double lx = mathOProduct(d, x);
    const double ly = mathOProduct(d, y);
    q[0] = lx;
    q[1] = ly;
    return q;
}

double* mathTransWorldPnt3DByOXYZ(const double o[3], const double x[3], const double y[3], const double z[3],
                                  const double p[3], double q[3])
{
    double d[3];
    mathGetVec(o, p, d);
    return mathTransWorldVec3DByXYZ(x, y, z, d, q);
}

double* mathTransLocalPnt3DByOXYZ(const double o[3], const double x[3], const double y[3], const double z[3],
                                  const double p[3], double q[3])
{
    double r[3];
    for (int i = 0; i < 3; ++i)
        r[i] = o[i] + p[0] * x[i] + p[1] * y[i] + p[2] * z[i];
    mathCpyPnt(r, q);
    return q;
}

double* mathTransWorldVec3DByXYZ(const double x[3], const double y[3], const double z[3], const double v[3],
                                 double w[3])
{
    const double lx = mathOProduct(v, x);
    const double ly = mathOProduct(v, y);
    const double lz = mathOProduct(v, z);
    w[0] = lx;
    w[1] = ly;
    w[2] = lz;
    return w;
}

double* mathTransLocalVec3DByXYZ(const double x[3], const double y[3], const double z[3], const double v[3],
                                 double w[3])
{
    double r[3];
    for (int i = 0; i < 3; ++i)
        r[i] = v[0] * x[i] + v[1] * y[i] + v[2] * z[i];
    mathCpyPnt(r, w);
    return w;
}

// ---- Frame records ----------------------------------------------------------

void mathTransLocalPnt3D(const MathRFrame* f, const double p[3], double q[3])
{
    mathTransLocalPnt3DByOXYZ(f->origin, f->xAxis, f->yAxis, f->zAxis, p, q);
}

void mathTransWorldPnt3D(const MathRFrame* f, const double p[3], double q[3])
{
    mathTransWorldPnt3DByOXYZ(f->origin, f->xAxis, f->yAxis, f->zAxis, p, q);
}

void mathTransLocalPnt2D(const MathRFrame* f, const double p[2], double q[3])
{
    double r[3];
    for (int i = 0; i < 3; ++i)
        r[i] = f->origin[i] + p[0] * f->xAxis[i] + p[1] * f->yAxis[i];
    mathCpyPnt(r, q);
}

void mathTransWorldPnt3DTo2D(const MathRFrame* f, const double p[3], double q[2])
{
    mathTransWorldPnt3DTo2DByOXY(f->origin, f->xAxis, f->yAxis, p, q);
}

void mathTransLocalVec3D(const MathRFrame* f, const double v[3], double w[3])
{
    mathTransLocalVec3DByXYZ(f->xAxis, f->yAxis, f->zAxis, v, w);
}

void mathTransWorldVec3D(const MathRFrame* f, const double v[3], double w[3])
{
    mathTransWorldVec3DByXYZ(f->xAxis, f->yAxis, f->zAxis, v, w);
}

void mathTransLocalVec2D(const MathRFrame* f, const double v[2], double w[3])
{
    double r[3];
    for (int i = 0; i < 3; ++i)
        r[i] = v[0] * f->xAxis[i] + v[1] * f->yAxis[i];
    mathCpyPnt(r, w);
}

int mathTransLocalStr4D(int n, const MathRFrame* f, const double* in, double* out)
{
    return convertHomogeneous(n, in, out, [f](const double* p, double* q) { mathTransLocalPnt3D(f, p, q); });
}

int mathTransWorldStr4D(int n, const MathRFrame* f, const double* in, double* out)
{
    return convertHomogeneous(n, in, out, [f](const double* p, double* q) { mathTransWorldPnt3D(f, p, q); });
}
