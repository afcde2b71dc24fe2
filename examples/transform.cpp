// The class interface: place a point and a box with TRANSF_3D.
#include <korvex/korvex.hpp>

#include <cstdio>

int main()
{
    // A quarter turn about the z axis, then a move by (10, 0, 0).
    // In a product the left transformation acts first.
    TRANSF_3D turn;
    turn.DefRotateZAxis(1.5707963f);
    TRANSF_3D move;
    move.DefMove(point_3d(10.0f, 0.0f, 0.0f));
    const TRANSF_3D place = turn * move;

    const point_3d p = point_3d(1.0f, 2.0f, 3.0f) * place;
    std::printf("point (1, 2, 3) placed at   (%.3f, %.3f, %.3f)\n", p.x, p.y, p.z);

    // A box is carried through the same transformation as a 4x4 double
    // matrix; the result is the axis-aligned box of its moved corners.
    Box3D box;
    box.DefineBox(point_3d(0.0f, 0.0f, 0.0f), point_3d(2.0f, 1.0f, 1.0f));
    double m[16];
    place.GetDbl16(m);
    Box3D placed;
    mathMatrixBox3D(box, placed, m);
    std::printf("box (0,0,0)-(2,1,1) placed  (%.3f, %.3f, %.3f)-(%.3f, %.3f, %.3f)\n",
                placed.min.x, placed.min.y, placed.min.z,
                placed.max.x, placed.max.y, placed.max.z);

    // Undo the placement with the inverse.
    const point_3d back = p * place.Inverse();
    std::printf("and back again              (%.3f, %.3f, %.3f)\n", back.x, back.y, back.z);
    return 0;
}
