// Internal helpers shared by the matrix and transformation sources.
// Not part of the public interface: nothing here is exported.
#ifndef KORVEX_SRC_TRANSFORM_MATRIX_OPS_HPP
#define KORVEX_SRC_TRANSFORM_MATRIX_OPS_HPP

namespace transform_detail {

// The tangent used by the shear makers: the angle is wrapped into [0, 2*pi]
// and kept away from the vertical before tanf is taken.
float guardedShearTangent(float a);

// Writes the 3x3 rotation R(a) (counter-clockwise) into m.
void rotation2D(float a, float* m);

} // namespace transform_detail

#endif // KORVEX_SRC_TRANSFORM_MATRIX_OPS_HPP
