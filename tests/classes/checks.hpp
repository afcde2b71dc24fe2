// Helpers shared by the class tests.
#ifndef KORVEX_TESTS_CLASSES_CHECKS_HPP
#define KORVEX_TESTS_CLASSES_CHECKS_HPP

#include <korvex/capi.h>
#include <korvex/classes.hpp>

#include <gtest/gtest.h>

// Saves the five global tolerances and restores them when the test ends, so
// that a test that changes one cannot leak it into the next.
class ToleranceGuard {
public:
    ToleranceGuard() = default;
    ToleranceGuard(ToleranceGuard const&) = delete;
    ToleranceGuard& operator=(ToleranceGuard const&) = delete;
    ~ToleranceGuard()
    {
        gmSetDistTol(dist_);
        gmSetParaTol(para_);
        gmSetAbsDistTol(absDist_);
        gmSetAbsParaTol(absPara_);
        gmSetAbsZero(absZero_);
    }

private:
    double dist_ = gmGetDistTol(), para_ = gmGetParaTol(), absDist_ = gmGetAbsDistTol(),
           absPara_ = gmGetAbsParaTol(), absZero_ = gmGetAbsZero();
};

// Exact coordinate comparisons.
inline void expectPt(point_2d const& p, float x, float y)
{
    EXPECT_EQ(p.x, x);
    EXPECT_EQ(p.y, y);
}

inline void expectPt(point_3d const& p, float x, float y, float z)
{
    EXPECT_EQ(p.x, x);
    EXPECT_EQ(p.y, y);
    EXPECT_EQ(p.z, z);
}

#endif
