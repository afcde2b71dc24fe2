// Applying float matrices to points and point lists, and double matrices to
// single-precision points.
#include "korvex/classes.hpp"

// ---- Plane matrices -----------------------------------------------------------

void TransPoint2D(const point_2d& p, point_2d* q, const float* m)
{
    // Both results are formed before q is written: q may be &p.
    const float x = p.x * m[0] + p.y * m[3] + m[6];
    const float y = p.x * m[1] + p.y * m[4] + m[7];
    q->x = x;
    q->y = y;
}

void TransPoint2D(const point_3d& p, point_2d* q, const float* m)
{
    TransPoint2D(point_2d(p.x, p.y), q, m);
}

void TransPoint2D(const point_3d& p, point_3d* q, const float* m)
{
    point_2d r;
    TransPoint2D(point_2d(p.x, p.y), &r, m);
    q->x = r.x;
    q->y = r.y;
    q->z = p.z;
}

void TransPointList2D(const point_2d* in, unsigned short n, point_2d* out, const float* m)
{
    for (unsigned int i = 0; i < n; ++i)
        TransPoint2D(in[i], &out[i], m);
}

void TransPointList2D(const point_3d* in, unsigned short n, point_2d* out, const float* m)
{
    for (unsigned int i = 0; i < n; ++i)
        TransPoint2D(in[i], &out[i], m);
}

void TransPointList2D(const point_3d* in, unsigned short n, point_3d* out, const float* m)
{
    for (unsigned int i = 0; i < n; ++i)
        TransPoint2D(in[i], &out[i], m);
}

// ---- Spatial matrices ---------------------------------------------------------

void TransPoint3D(const point_3d& p, point_3d* q, const float* m)
{
    // All three results are formed before q is written: q may be &p.
    const float x = p.x * m[0] + p.y * m[4] + p.z * m[8] + m[12];
    const float y = p.x * m[1] + p.y * m[5] + p.z * m[9] + m[13];
    const float z = p.x * m[2] + p.y * m[6] + p.z * m[10] + m[14];
    q->x = x;
    q->y = y;
    q->z = z;
}

void TransPoint3D(const point_3d& p, point_2d* q, const float* m)
{
    point_3d r;
    TransPoint3D(p, &r, m);
    q->x = r.x;
    q->y = r.y;
}

void TransPoint3D(const point_2d& p, point_2d* q, const float* m)
{
    TransPoint3D(point_3d(p.x, p.y, 0.0f), q, m);
}

// ---- Double matrices ----------------------------------------------------------

namespace {

// (x, y, z, 1) times the double 4x4 m, rounded to float on the way out.
void transformByDouble16(double x, double y, double z, point_3d& q, const double* m)
{
    const double rx = x * m[0] + y * m[4] + z * m[8] + m[12];
    const double ry = x * m[1] + y * m[5] + z * m[9] + m[13];
    const double rz = x * m[2] + y * m[6] + z * m[10] + m[14];
    q.x = static_cast<float>(rx);
    q.y = static_cast<float>(ry);
    q.z = static_cast<float>(rz);
}

} // namespace

void mathMatrixPt_2D(const point_2d& p, point_3d& q, const double* m)
{
    // The point lies in z = 0: the third row is weighted by zero.
    transformByDouble16(p.x, p.y, 0.0, q, m);
}

void mathMatrixNDPt_2D(const nd_point_2d& p, point_3d& q, const double* m)
{
    mathMatrixPt_2D(p, q, m);
}

void mathMatrixPt_3D(const point_3d& p, point_3d& q, const double* m)
{
    transformByDouble16(p.x, p.y, p.z, q, m);
}
