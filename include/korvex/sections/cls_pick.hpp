// ---------------------------------------------------------------------------
// Picking: points and polylines under a pick ray or a pick window
// ---------------------------------------------------------------------------
//
// Ray picking. The cursor is a ray through eye[3] with direction dir[3]
// (model coordinates), and a pick radius measured perpendicular to it. dir
// should be a unit vector: it is not normalised, and depths are measured in
// units of its length; a zero dir gives a meaningless result. A view frame
// (X, Y, dir) is built from dir as mathGetXYFromZ does, except that X is
// normalised without a length check (a dir shorter than 1e-10 still gets a
// unit X): X is dir with its smallest component dropped and the other two
// swapped, one negated, and Y = dir x X. A model point q then has the local
// coordinates u = (q - eye).X, v = (q - eye).Y and the depth
// w = (q - eye).dir, and lies sqrt(u*u + v*v) from the ray.
//
// Window picking. The cursor is a screen rectangle from wmin[2] (lower left)
// to wmax[2] (upper right), together with the 4x4 view matrix m[16]
// (row-major, the point as the row vector (x, y, z, 1)):
//     screen x = x*m[0] + y*m[4] + z*m[8] + m[12]
//     screen y = x*m[1] + y*m[5] + z*m[9] + m[13]
// (the other columns are ignored). The window counts as open with a margin
// of 1e-5 on every side.
//
// A polyline is pts[0..n-1] with segments between consecutive vertices (not
// closed). Planar points are taken at z = 0; the tag of nd_point_2d is not
// read. Arithmetic is double. The functions allocate nothing, write their
// outputs only on a hit and return 1 (hit) or 0 (no hit, null pts, too few
// points). They are re-entrant; the window functions read the global
// tolerances gmGetDistTol, gmGetParaTol and gmGetAbsZero.
// ---------------------------------------------------------------------------

// Single point p under the ray: 1 when its distance from the ray is below
// radius, with depth = w; else 0 and depth untouched.
KORVEX_API int PntPickPt(point_2d p, const double eye[3], const double dir[3], double radius,
                         double& depth);

// Polyline under the ray. Segments are tried in order; within a segment its
// start vertex, then its end vertex, then its interior (the point of the
// segment's line nearest the ray, accepted for a segment fraction t within
// (-1e-10, 1.0000000001)). The first hit wins and gives
//     param = (index of the segment's start vertex) + t
//     depth = (1 - t)*w0 + t*w_end
// where w0 is the depth of vertex 0 OF THE POLYLINE (not of the segment)
// and w_end that of the segment's end vertex: exact when all vertices share
// one depth, as a planar polyline seen along its normal does. Both outputs
// are rounded to float precision. A polyline of fewer than two vertices is
// never hit (use PntPickPt for a single point); null pts gives 0.
KORVEX_API int PntPickPT2D(const point_2d* pts, int n, const double eye[3], const double dir[3],
                           double radius, double& depth, double& param);
KORVEX_API int PntPickNDPT2D(const nd_point_2d* pts, int n, const double eye[3],
                             const double dir[3], double radius, double& depth, double& param);
KORVEX_API int PntPickPT3D(const point_3d* pts, int n, const double eye[3], const double dir[3],
                           double radius, double& depth, double& param);

// Polyline in the window: 1 when a vertex lies inside the window, or a
// segment crosses one of its edges (a segment is first rejected when both
// its ends lie beyond the same side, margin 1e-5). The crossing test uses
// gmGetDistTol as the margin of its own quick rejection, gmGetAbsZero to
// declare a segment parallel to an edge (parallel segments never cross, even
// overlapping ones: such a segment is found only through its vertices) and
// gmGetParaTol as the slack on both segment parameters. Null pts or n < 1
// gives 0.
KORVEX_API int WinInterPt2D(const point_2d* pts, int n, const double m[16], const double wmin[2],
                            const double wmax[2]);
KORVEX_API int WinInterNDPt2D(const nd_point_2d* pts, int n, const double m[16],
                              const double wmin[2], const double wmax[2]);
KORVEX_API int WinInterPt3D(const point_3d* pts, int n, const double m[16], const double wmin[2],
                            const double wmax[2]);
