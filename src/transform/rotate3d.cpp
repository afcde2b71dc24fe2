// Rotations in space about arbitrary lines, and the pair of matrices that
// turn a direction onto the Z axis and back.
#include "korvex/classes.hpp"

#include <cmath>

namespace {

// out = (T(-p) * core) * T(p): the core acts about the point p.
void aboutPoint(const point_3d& p, const float* core, float* out)
{
    float toOrigin[16], back[16], tmp[16];
    MakeMove3D(-p.x, -p.y, -p.z, toOrigin);
    MakeMove3D(p.x, p.y, p.z, back);
    MultiMatrix3D(toOrigin, core, tmp);
    MultiMatrix3D(tmp, back, out);
}

// The unit direction of p[0] -> p[1] split into what the Z alignment needs.
struct AxisParts {
    float dx, dy, dz; // unit direction
    float r;          // length of its projection on the YZ plane
};

// Returns 0 when the two points are too close to give a direction.
int axisParts(const point_3d* p, AxisParts& parts)
{
    // Shorter axes give no usable direction.
    const double minLength = 0.001;
    const point_3d d = p[1] - p[0];
    const float length = d.Length();
    if (length < minLength)
        return 0;
    parts.dx = d.x / length;
    parts.dy = d.y / length;
    parts.dz = d.z / length;
    parts.r = std::sqrt(parts.dy * parts.dy + parts.dz * parts.dz);
    return 1;
}

// Below this the direction runs along X and needs no turn about X.
const double alongXLimit = 0.001;

} // namespace

void MakeRotate3D_V(const point_3d* p, float a, float* out)
{
    // Shorter axes give no usable direction. The float length is compared
    // with the double bound, so a length of exactly 0.01f is still too short.
    const double minLength = 0.01;
    const point_3d d = p[1] - p[0];
    const float length = d.Length();
    if (length < minLength) {
        InitMatrix3D(out);
        return;
    }
    // Rotation by the unit quaternion (sin(a/2) * axis, cos(a/2)); the
    // vector part is scaled by the sine before the division by the length,
    // all in double.
    const double half = static_cast<double>(a) / 2.0;
    const double c = std::cos(half);
    const double s = std::sin(half);
    const double qx = s * d.x / length;
    const double qy = s * d.y / length;
    const double qz = s * d.z / length;
    const double w = c;
    float rot[16];
    ClearMatrix3D(rot, 0.0f);
    rot[0] = static_cast<float>(1.0 - 2.0 * qy * qy - 2.0 * qz * qz);
    rot[1] = static_cast<float>(2.0 * qx * qy + 2.0 * w * qz);
    rot[2] = static_cast<float>(2.0 * qx * qz - 2.0 * w * qy);
    rot[4] = static_cast<float>(2.0 * qx * qy - 2.0 * w * qz);
    rot[5] = static_cast<float>(1.0 - 2.0 * qx * qx - 2.0 * qz * qz);
    rot[6] = static_cast<float>(2.0 * qy * qz + 2.0 * w * qx);
    rot[8] = static_cast<float>(2.0 * qx * qz + 2.0 * w * qy);
    rot[9] = static_cast<float>(2.0 * qy * qz - 2.0 * w * qx);
    rot[10] = static_cast<float>(1.0 - 2.0 * qx * qx - 2.0 * qy * qy);
    rot[15] = 1.0f;
    aboutPoint(p[0], rot, out);
}

void MakeRotate_VToZ(const point_3d* p, float* out)
{
    AxisParts d;
    if (!axisParts(p, d)) {
        InitMatrix3D(out);
        return;
    }
    float move[16], ry[16];
    MakeMove3D(-p[0].x, -p[0].y, -p[0].z, move);
    // Turns (dx, 0, r) onto +Z.
    InitMatrix3D(ry);
    ry[0] = d.r;
    ry[2] = d.dx;
    ry[8] = -d.dx;
    ry[10] = d.r;
    if (d.r < alongXLimit) {
        MultiMatrix3D(move, ry, out);
        return;
    }
    // Turns the direction into the XZ plane.
    float rx[16];
    InitMatrix3D(rx);
    rx[5] = d.dz / d.r;
    rx[6] = d.dy / d.r;
    rx[9] = -d.dy / d.r;
    rx[10] = d.dz / d.r;
    float tmp[16];
    MultiMatrix3D(move, rx, tmp);
    MultiMatrix3D(tmp, ry, out);
}

void MakeRotate_ZToV(const point_3d* p, float* out)
{
    AxisParts d;
    if (!axisParts(p, d)) {
        InitMatrix3D(out);
        return;
    }
    float move[16], ry[16];
    MakeMove3D(p[0].x, p[0].y, p[0].z, move);
    // Turns +Z back onto (dx, 0, r).
    InitMatrix3D(ry);
    ry[0] = d.r;
    ry[2] = -d.dx;
    ry[8] = d.dx;
    ry[10] = d.r;
    if (d.r < alongXLimit) {
        MultiMatrix3D(ry, move, out);
        return;
    }
    // Turns the XZ plane back onto the direction.
    float rx[16];
    InitMatrix3D(rx);
    rx[5] = d.dz / d.r;
    rx[6] = -d.dy / d.r;
    rx[9] = d.dy / d.r;
    rx[10] = d.dz / d.r;
    float tmp[16];
    MultiMatrix3D(ry, rx, tmp);
    MultiMatrix3D(tmp, move, out);
}

void MakeRotateMat3D(point_3d c, float a, float b, float* out)
{
    // Turn the horizontal axis (cos a, sin a, 0) onto X, rotate about X by
    // -b, turn back; all about the point c.
    float toOrigin[16], unturn[16], rot[16], turn[16], back[16];
    MakeMove3D(-c.x, -c.y, -c.z, toOrigin);
    MakeRotate3D_Z(-a, unturn);
    MakeRotate3D_X(-b, rot);
    MakeRotate3D_Z(a, turn);
    MakeMove3D(c.x, c.y, c.z, back);
    float tmp[16];
    MultiMatrix3D(toOrigin, unturn, tmp);
    MultiMatrix3D(tmp, rot, tmp);
    MultiMatrix3D(tmp, turn, tmp);
    MultiMatrix3D(tmp, back, out);
}
