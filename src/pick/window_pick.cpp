// Picking of polylines with a screen window.
#include "pick/pick_points.hpp"

#include "korvex/capi.h"

#include <cmath>

namespace {

// The window is widened by this much on every side, so that a vertex
// exactly on its border counts as inside.
const double windowMargin = 1e-5;

struct Screen {
    double x;
    double y;
};

struct Window {
    double xmin;
    double ymin;
    double xmax;
    double ymax;
};

// The tolerances of the crossing test, read once per call.
struct CrossTols {
    double dist;
    double para;
    double zero;
};

template <class Point>
Screen ToScreen(const Point& p, const double m[16])
{
    const double x = p.x;
    const double y = p.y;
    const double z = pick::ZOf(p);
    Screen s;
    s.x = x * m[0] + y * m[4] + z * m[8] + m[12];
    s.y = x * m[1] + y * m[5] + z * m[9] + m[13];
    return s;
}

bool Inside(const Screen& p, const Window& w)
{
    return w.xmin - windowMargin < p.x && p.x < w.xmax + windowMargin &&
           w.ymin - windowMargin < p.y && p.y < w.ymax + windowMargin;
}

// Both ends of the segment lie beyond the same side of the window.
bool BeyondOneSide(const Screen& q, const Screen& p, const Window& w)
{
    const double left = w.xmin - windowMargin;
    const double bottom = w.ymin - windowMargin;
    const double right = w.xmax + windowMargin;
    const double top = w.ymax + windowMargin;
    return (q.x < left && p.x < left) || (q.y < bottom && p.y < bottom) ||
           (q.x > right && p.x > right) || (q.y > top && p.y > top);
}

// Whether segment p0-p1 crosses segment q0-q1.
bool Crosses(const Screen& p0, const Screen& p1, const Screen& q0, const Screen& q1,
             const CrossTols& tol)
{
    const double d = tol.dist;
    // p0-p1 lies wholly more than d to one side of q0-q1.
    if (p0.x < q0.x - d && p0.x < q1.x - d && p1.x < q0.x - d && p1.x < q1.x - d)
        return false;
    if (p0.y < q0.y - d && p0.y < q1.y - d && p1.y < q0.y - d && p1.y < q1.y - d)
        return false;
    if (p0.x > q0.x + d && p0.x > q1.x + d && p1.x > q0.x + d && p1.x > q1.x + d)
        return false;
    if (p0.y > q0.y + d && p0.y > q1.y + d && p1.y > q0.y + d && p1.y > q1.y + d)
        return false;

    const double det = (q0.y - q1.y) * (p1.x - p0.x) - (q0.x - q1.x) * (p1.y - p0.y);
    // Parallel segments never cross here, even where they overlap.
    if (std::fabs(det) < tol.zero)
        return false;
    const double t = ((q0.x - p0.x) * (q0.y - q1.y) - (q0.y - p0.y) * (q0.x - q1.x)) / det;
    const double s = ((q0.y - p0.y) * (p1.x - p0.x) - (q0.x - p0.x) * (p1.y - p0.y)) / det;
    const double p = tol.para;
    return -p <= t && t <= 1.0 + p && -p <= s && s <= 1.0 + p;
}

// Segment q-p crosses an edge of the window: left, top, right, bottom.
bool CrossesWindow(const Screen& q, const Screen& p, const Window& w, const CrossTols& tol)
{
    const Screen lowerLeft = {w.xmin, w.ymin};
    const Screen upperLeft = {w.xmin, w.ymax};
    const Screen upperRight = {w.xmax, w.ymax};
    const Screen lowerRight = {w.xmax, w.ymin};
    return Crosses(q, p, lowerLeft, upperLeft, tol) || Crosses(q, p, upperLeft, upperRight, tol) ||
           Crosses(q, p, upperRight, lowerRight, tol) || Crosses(q, p, lowerRight, lowerLeft, tol);
}

template <class Point>
int PickWindow(const Point* pts, int n, const double m[16], const double wmin[2],
               const double wmax[2])
{
    if (pts == nullptr || n < 1)
        return 0;
    const Window w = {wmin[0], wmin[1], wmax[0], wmax[1]};
    Screen q = ToScreen(pts[0], m);
    if (Inside(q, w))
        return 1;
    if (n == 1)
        return 0;

    CrossTols tol;
    tol.dist = gmGetDistTol();
    tol.para = gmGetParaTol();
    tol.zero = gmGetAbsZero();
    for (int i = 1; i < n; ++i) {
        const Screen p = ToScreen(pts[i], m);
        if (!BeyondOneSide(q, p, w) && (Inside(p, w) || CrossesWindow(q, p, w, tol)))
            return 1;
        q = p;
    }
    return 0;
}

} // namespace

int WinInterPt2D(const point_2d* pts, int n, const double m[16], const double wmin[2],
                 const double wmax[2])
{
    return PickWindow(pts, n, m, wmin, wmax);
}

int WinInterNDPt2D(const nd_point_2d* pts, int n, const double m[16], const double wmin[2],
                   const double wmax[2])
{
    return PickWindow(pts, n, m, wmin, wmax);
}

int WinInterPt3D(const point_3d* pts, int n, const double m[16], const double wmin[2],
                 const double wmax[2])
{
    return PickWindow(pts, n, m, wmin, wmax);
}
