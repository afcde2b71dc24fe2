// Internal helpers of the linear-system family, shared between its sources.
#ifndef KORVEX_NUMERIC_LINEAR_INTERNAL_H
#define KORVEX_NUMERIC_LINEAR_INTERNAL_H

// Least-squares, minimum-norm solution of A x = b through the
// pseudo-inverse. A is rows x cols, b has rows elements, x receives cols.
// Returns 1, 0 when the pseudo-inverse failed, -1 when its own work array
// could not be allocated (x untouched in both failure cases).
int mathSolMatxEqua(int rows, int cols, const double *A, const double *b, double *x);

#endif
