// Picking of points and polylines with a pick ray and a radius around it.
#include "pick/pick_points.hpp"

#include "korvex/capi.h"

#include <cmath>

namespace {

// The ray's frame: X and Y span the view plane, dir points into the view.
struct ViewFrame {
    double eye[3];
    double dir[3];
    double x[3];
    double y[3];
};

// X is dir with its smallest component dropped and the other two swapped
// (one negated), the best-conditioned perpendicular; it is normalised
// without a length check, so a very short dir still gives a proper frame
// (and a zero dir a meaningless one). Y = dir x X.
void BuildFrame(const double eye[3], const double dir[3], ViewFrame& frame)
{
    for (int k = 0; k < 3; ++k) {
        frame.eye[k] = eye[k];
        frame.dir[k] = dir[k];
        frame.x[k] = 0.0;
    }
    switch (mathGetVecMinComSub(3, dir)) {
    case 0:
        frame.x[1] = dir[2];
        frame.x[2] = -dir[1];
        break;
    case 1:
        frame.x[0] = -dir[2];
        frame.x[2] = dir[0];
        break;
    default:
        frame.x[0] = dir[1];
        frame.x[1] = -dir[0];
        break;
    }
    const double length = mathVecLen(frame.x);
    for (int k = 0; k < 3; ++k)
        frame.x[k] /= length;
    mathVProduct(frame.dir, frame.x, frame.y);
}

// Local coordinates of a model point: (u, v) across the ray, w along it.
struct Local {
    double u;
    double v;
    double w;
};

Local ToLocal(const ViewFrame& f, double qx, double qy, double qz)
{
    const double dx = qx - f.eye[0];
    const double dy = qy - f.eye[1];
    const double dz = qz - f.eye[2];
    Local l;
    l.u = dx * f.x[0] + dy * f.x[1] + dz * f.x[2];
    l.v = dx * f.y[0] + dy * f.y[1] + dz * f.y[2];
    l.w = dx * f.dir[0] + dy * f.dir[1] + dz * f.dir[2];
    return l;
}

template <class Point>
Local ToLocal(const ViewFrame& f, const Point& p)
{
    return ToLocal(f, p.x, p.y, pick::ZOf(p));
}

// Fraction t along the segment a-b (in the view plane) of a hit, tested in
// the order start vertex, end vertex, interior. la and lb are the distances
// of a and b from the ray.
bool HitSegment(const Local& a, double la, const Local& b, double lb, double radius, double& t)
{
    const double minLength2 = 1e-10; // shorter projected segments have no interior
    const double lowerFoot = -1e-10;        // the foot may lie a hair outside [0, 1]
    const double upperFoot = 1.0000000001;
    if (la < radius) {
        t = 0.0;
        return true;
    }
    if (lb < radius) {
        t = 1.0;
        return true;
    }
    const double du = b.u - a.u;
    const double dv = b.v - a.v;
    const double length2 = du * du + dv * dv;
    if (!(length2 > minLength2))
        return false;
    const double along = a.u * du + a.v * dv;
    const double lineDist = std::sqrt(std::fabs(a.u * a.u + a.v * a.v - along * along / length2));
    if (!(lineDist < radius))
        return false;
    const double foot = -along / length2;
    if (lowerFoot < foot && foot < upperFoot) {
        t = foot;
        return true;
    }
    return false;
}

template <class Point>
int PickPolyline(const Point* pts, int n, const double eye[3], const double dir[3],
                 double radius, double& depth, double& param)
{
    // A lone vertex is left to PntPickPt.
    if (pts == nullptr || n < 2)
        return 0;
    ViewFrame frame;
    BuildFrame(eye, dir, frame);

    const Local first = ToLocal(frame, pts[0]);
    Local a = first;
    double la = std::sqrt(a.u * a.u + a.v * a.v);
    for (int i = 1; i < n; ++i) {
        const Local b = ToLocal(frame, pts[i]);
        const double lb = std::sqrt(b.u * b.u + b.v * b.v);
        double t = 0.0;
        if (HitSegment(a, la, b, lb, radius, t)) {
            // The depth runs from the polyline's first vertex, not the
            // segment's: hosts rely on this for polylines seen along their
            // plane's normal, where every depth is the same anyway.
            param = static_cast<float>((i - 1) + t);
            depth = static_cast<float>((1.0 - t) * first.w + t * b.w);
            return 1;
        }
        a = b;
        la = lb;
    }
    return 0;
}

} // namespace

int PntPickPt(point_2d p, const double eye[3], const double dir[3], double radius, double& depth)
{
    ViewFrame frame;
    BuildFrame(eye, dir, frame);
    const Local l = ToLocal(frame, p);
    if (!(std::sqrt(l.u * l.u + l.v * l.v) < radius))
        return 0;
    depth = l.w;
    return 1;
}

int PntPickPT2D(const point_2d* pts, int n, const double eye[3], const double dir[3],
                double radius, double& depth, double& param)
{
    return PickPolyline(pts, n, eye, dir, radius, depth, param);
}

int PntPickNDPT2D(const nd_point_2d* pts, int n, const double eye[3], const double dir[3],
                  double radius, double& depth, double& param)
{
    return PickPolyline(pts, n, eye, dir, radius, depth, param);
}

int PntPickPT3D(const point_3d* pts, int n, const double eye[3], const double dir[3],
                double radius, double& depth, double& param)
{
    return PickPolyline(pts, n, eye, dir, radius, depth, param);
}
