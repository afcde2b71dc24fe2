// Transformations of homogeneous points (x, y, z, w). The weight is kept;
// a point with a usable weight is transformed through its Cartesian form,
// a point at infinity (weight near zero) has its coordinates transformed
// as they stand.
#include "korvex/capi.h"

#include <cmath>

namespace {

const double weightTol = 1e-10;

// Applies the Cartesian operation op(in, out) to the homogeneous point p.
template <typename Op>
void applyHomogeneous(const double p[4], double out[4], Op op)
{
    const double w = p[3];
    double xyz[3];
    if (std::fabs(w) < weightTol) {
        const double raw[3] = {p[0], p[1], p[2]};
        op(raw, xyz);
    } else {
        const double cart[3] = {p[0] / w, p[1] / w, p[2] / w};
        op(cart, xyz);
        xyz[0] *= w;
        xyz[1] *= w;
        xyz[2] *= w;
    }
    out[0] = xyz[0];
    out[1] = xyz[1];
    out[2] = xyz[2];
    out[3] = w;
}

} // namespace

void mathMovePnt4H(const double v[3], const double p[4], double out[4])
{
    const double d[3] = {v[0], v[1], v[2]};
    applyHomogeneous(p, out, [&d](const double in[3], double res[3]) {
        res[0] = in[0] + d[0];
        res[1] = in[1] + d[1];
        res[2] = in[2] + d[2];
    });
}

void mathRotPnt4H(const double d[3], const double q[3], double angle, const double p[4], double out[4])
{
    applyHomogeneous(p, out, [=](const double in[3], double res[3]) {
        mathRotPnt(d, q, angle, in, res);
    });
}

void mathMirPnt4H(const double q[3], const double n[3], const double p[4], double out[4])
{
    applyHomogeneous(p, out, [=](const double in[3], double res[3]) {
        mathMirPnt(q, n, in, res);
    });
}

void mathScalePnt4H(const double c[3], const double f[3], const double p[4], double out[4])
{
    applyHomogeneous(p, out, [=](const double in[3], double res[3]) {
        mathScalePnt(c, f, in, res);
    });
}
