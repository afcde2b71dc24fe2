// The five process-wide tolerances read by the point and box classes and by
// picking. They are the library's only configuration; the setters store any
// value as given.
#include "korvex/capi.h"

namespace {

double distTol = 0.002;
double paraTol = 0.0001;
double absDistTol = 1e-6;
double absParaTol = 1e-6;
double absZero = 1e-10;

} // namespace

double gmGetDistTol(void) { return distTol; }
void gmSetDistTol(double tol) { distTol = tol; }

double gmGetParaTol(void) { return paraTol; }
void gmSetParaTol(double tol) { paraTol = tol; }

double gmGetAbsDistTol(void) { return absDistTol; }
void gmSetAbsDistTol(double tol) { absDistTol = tol; }

double gmGetAbsParaTol(void) { return absParaTol; }
void gmSetAbsParaTol(double tol) { absParaTol = tol; }

double gmGetAbsZero(void) { return absZero; }
void gmSetAbsZero(double tol) { absZero = tol; }
