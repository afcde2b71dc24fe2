// Axis-aligned boxes of transformed boxes, under double matrices.
#include "korvex/classes.hpp"

void mathMatrixBox2D(const Box2D& b, Box3D& r, const double* m)
{
    point_2d corners[4];
    const int hasCorners = b.GetCorner(corners);
    r.EmptyBox();
    if (!hasCorners)
        return; // an empty box stays empty
    for (point_2d& c : corners) {
        point_3d q;
        mathMatrixPt_2D(c, q, m);
        r.AddPt(q);
    }
}

void mathMatrixBox3D(const Box3D& b, Box3D& r, const double* m)
{
    // The corners are taken before r is emptied, so r may be b itself.
    point_3d corners[8];
    const int hasCorners = b.GetCorner(corners);
    r.EmptyBox();
    if (!hasCorners)
        return; // an empty box stays empty
    for (point_3d& c : corners) {
        point_3d q;
        mathMatrixPt_3D(c, q, m);
        r.AddPt(q);
    }
}
