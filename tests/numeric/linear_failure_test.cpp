#include <korvex/capi.h>

#include <gtest/gtest.h>

#include "container/failing_allocation.h"

TEST(LinearAllocationFailure, EveryScratchArrayFailsCleanly)
{
    if (!arrayAllocationFailureWorks())
        GTEST_SKIP() << "the allocator is replaced by a tool";
    ArrayAllocationFailureGuard guard;
    const int live = liveArrays;

    const double regular[4] = {2, 1, 1, 3}, singular[4] = {1, 1, 1, 1}, b[2] = {3, 5};
    double x[2] = {-7, -7};

    // The copy of the matrix: nothing is written.
    failNthArrayAllocation(1);
    EXPECT_EQ(mathSolLineEqua(2, regular, b, x), -1);
    EXPECT_EQ(x[0], -7.0);

    // The permutation of the elimination: the pseudo-inverse still solves it.
    failNthArrayAllocation(2);
    ASSERT_EQ(mathSolLineEqua(2, regular, b, x), 1);
    EXPECT_NEAR(x[0], 0.8, 1e-14);
    EXPECT_NEAR(x[1], 1.4, 1e-14);

    // Either work array of the pseudo-inverse in the singular fall-back.
    for (int n : {3, 4}) {
        failNthArrayAllocation(n);
        EXPECT_EQ(mathSolLineEqua(2, singular, b, x), 0) << "allocation " << n;
    }

    double X[4] = {9, 9, 9, 9};
    failNthArrayAllocation(2);
    EXPECT_EQ(mathMatxInvs(2, 2, regular, X), 0);
    EXPECT_EQ(X[0], 9.0);

    const double v[3] = {1, 2, 3}, e1[3] = {1, 0, 0}, e2[3] = {0, 1, 0}, e3[3] = {0, 0, 1};
    double c1 = -1, c2 = -1, c3 = -1;
    for (int n : {1, 2, 3}) {
        failNthArrayAllocation(n);
        EXPECT_EQ(mathDecVec(v, e1, e2, e3, &c1, &c2, &c3), 0) << "allocation " << n;
        EXPECT_EQ(c1, -1.0);
    }
    EXPECT_EQ(liveArrays, live);
}
