// Shear matrices of the plane, with the guard that keeps the shear angle
// away from the vertical, where the tangent would blow up.
#include "korvex/classes.hpp"
#include "transform/matrix_ops.hpp"

#include <cmath>

namespace {

// Wraps an angle into the closed period [0, 2*pi]; angles already inside,
// both ends included, are returned as they are.
double wrapToFullTurn(double a)
{
    const double twoPi = 6.283185307179586;
    if (a >= 0.0 && a <= twoPi)
        return a;
    return a - std::floor(a / twoPi) * twoPi;
}

// Replaces angles within 0.0097266 of the vertical directions by fixed
// angles just beside them (tangent about +-102.8).
double guardShearAngle(double a)
{
    const double pi = 3.141592653589793;
    // Deliberately 1.8e-10 above pi/2: the guarded band is centred here.
    const double vertical = 1.5707963269748966;
    const double band = 0.0097266;
    // The split between the two replacements lies 0.001 above the guarded
    // angle, so an angle just past the vertical still takes the lower one.
    const double upSplit = 1.5717963269748965;
    const double upBelow = 1.5610697269748965;
    const double upAbove = 1.5805229269748966;
    const double downSplit = 4.71338898056469;
    const double downBelow = 4.70266238056469;
    const double downAbove = 4.722115580564689;

    const double w = wrapToFullTurn(a);
    if (std::fabs(w - vertical) < band)
        return w < upSplit ? upBelow : upAbove;
    if (std::fabs(w - vertical - pi) < band)
        return w < downSplit ? downBelow : downAbove;
    return w;
}

// out = (T(-c) * core) * T(c)
void aboutCentre(float cx, float cy, const float* core, float* out)
{
    float toOrigin[9], back[9], tmp[9];
    MakeMoveMatrix(-cx, -cy, toOrigin);
    MakeMoveMatrix(cx, cy, back);
    MultiMatrix2D(toOrigin, core, tmp);
    MultiMatrix2D(tmp, back, out);
}

} // namespace

namespace transform_detail {

float guardedShearTangent(float a)
{
    const float guarded = static_cast<float>(guardShearAngle(a));
    return std::tan(guarded);
}

} // namespace transform_detail

void MakeShearMatX(float cx, float cy, float a, float* out)
{
    float shear[9];
    InitMatrix2D(shear);
    shear[3] = transform_detail::guardedShearTangent(a);
    aboutCentre(cx, cy, shear, out);
}

void MakeShearMatY(float cx, float cy, float a, float* out)
{
    float shear[9];
    InitMatrix2D(shear);
    shear[1] = transform_detail::guardedShearTangent(a);
    aboutCentre(cx, cy, shear, out);
}

void MakeShearMatrix(const point_2d& p0, const point_2d& p1, float a, float* out)
{
    // Below this length p0 and p1 give no direction.
    const double minLength = 1e-5;
    point_2d u = p1 - p0;
    const float length = u.Unit();
    if (length < minLength) {
        // Coincident points: shear along X about p0 instead.
        MakeShearMatX(p0.x, p0.y, a, out);
        return;
    }
    // Frame of the line, local to world: local X along p0 -> p1.
    float frame[9] = {
        u.x, u.y, 0.0f,
        -u.y, u.x, 0.0f,
        p0.x, p0.y, 1.0f,
    };
    float toLocal[9];
    InitMatrix2D(toLocal);
    GetInverseMatrix2D(frame, toLocal);
    // In the frame of the line the local y gains x * tan.
    float shear[9];
    InitMatrix2D(shear);
    shear[1] = transform_detail::guardedShearTangent(a);
    float tmp[9];
    MultiMatrix2D(toLocal, shear, tmp);
    MultiMatrix2D(tmp, frame, out);
}
