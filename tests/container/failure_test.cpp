#include <korvex/capi.h>

#include <gtest/gtest.h>

#include "container/failing_allocation.h"

TEST(AllocationFailure, StringsAndNetsReturnNullWithoutLeaking)
{
    if (!arrayAllocationFailureWorks())
        GTEST_SKIP() << "the allocator is replaced by a tool";
    ArrayAllocationFailureGuard guard;
    const int live = liveArrays;

    failNthArrayAllocation(1);
    EXPECT_EQ(NewStr2D(10), nullptr);
    failNthArrayAllocation(1);
    EXPECT_EQ(NewKntStr(10, 3), nullptr);

    double **net = reinterpret_cast<double **>(&net); // anything but null
    failNthArrayAllocation(1);
    EXPECT_EQ(NewNet3D(&net, 4, 4), nullptr);
    EXPECT_EQ(net, nullptr);
    EXPECT_EQ(liveArrays, live);

    // The third row fails: rows 0 and 1 exist, the rest stay null, and
    // DelNet1D releases exactly what was made.
    failNthArrayAllocation(4);
    ASSERT_NE(NewNet3D(&net, 4, 4), nullptr);
    for (int i = 0; i < 4 + 3; ++i)
        EXPECT_EQ(net[i] == nullptr, i >= 2) << "row " << i;
    EXPECT_EQ(liveArrays, live + 3);
    DelNet1D(4, &net);
    EXPECT_EQ(net, nullptr);
    EXPECT_EQ(liveArrays, live);
}
