// Internal helpers of the linear-system family, shared between its sources.
#ifndef KORVEX_NUMERIC_LINEAR_INTERNAL_H
#define KORVEX_NUMERIC_LINEAR_INTERNAL_H

#include <cstddef>

// Number of elements of a rows x cols work array; empty dimensions give 0.
// Counted in size_t so that large systems cannot overflow int.
inline std::size_t matrixCells(int rows, int cols)
{
    if (rows < 1 || cols < 1)
        return 0;
    return static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
}

// Least-squares, minimum-norm solution of A x = b through the
// pseudo-inverse. A is rows x cols, b has rows elements, x receives cols.
// Returns 1, 0 when the pseudo-inverse failed, -1 when its own work array
// could not be allocated (x untouched in both failure cases).
int mathSolMatxEqua(int rows, int cols, const double *A, const double *b, double *x);

#endif
