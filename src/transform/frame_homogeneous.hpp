// Internal helper shared by the frame conversions of homogeneous points.
#ifndef KORVEX_SRC_TRANSFORM_FRAME_HOMOGENEOUS_HPP
#define KORVEX_SRC_TRANSFORM_FRAME_HOMOGENEOUS_HPP

#include "korvex/capi.h"

namespace korvex_frame {

// Applies a single-point conversion to n homogeneous points (x, y, z, w):
// each is taken to its Cartesian point, converted, and weighted again, and
// the weight is copied. Returns 1, or 0 at the first point whose weight
// vanishes, with the earlier points written. out may be in.
template <typename Convert>
int convertHomogeneous(int n, const double* in, double* out, Convert convert)
{
    for (int i = 0; i < n; ++i) {
        const double* h = in + 4 * i;
        double p[3];
        if (!mathGetPnt4(h, p))
            return 0; // a point at infinity cannot be converted
        const double w = h[3];
        double q[3];
        convert(p, q);
        double* r = out + 4 * i;
        r[0] = q[0] * w;
        r[1] = q[1] * w;
        r[2] = q[2] * w;
        r[3] = w;
    }
    return 1;
}

} // namespace korvex_frame

#endif
