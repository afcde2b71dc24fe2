// Saves the five global tolerances and restores them when the test ends, so
// that a test that changes one cannot leak it into the next.
#ifndef KORVEX_TESTS_CLASSES_TOLERANCE_GUARD_HPP
#define KORVEX_TESTS_CLASSES_TOLERANCE_GUARD_HPP

#include <korvex/capi.h>

class ToleranceGuard {
public:
    ToleranceGuard()
        : dist_(gmGetDistTol()), para_(gmGetParaTol()), absDist_(gmGetAbsDistTol()),
          absPara_(gmGetAbsParaTol()), absZero_(gmGetAbsZero())
    {
    }
    ~ToleranceGuard()
    {
        gmSetDistTol(dist_);
        gmSetParaTol(para_);
        gmSetAbsDistTol(absDist_);
        gmSetAbsParaTol(absPara_);
        gmSetAbsZero(absZero_);
    }
    ToleranceGuard(ToleranceGuard const&) = delete;
    ToleranceGuard& operator=(ToleranceGuard const&) = delete;

private:
    double dist_, para_, absDist_, absPara_, absZero_;
};

#endif
