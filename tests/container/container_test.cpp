#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace {

struct Item {
    Item *prev, *next;
    int id;
};
struct Node {
    Node *next;
    int id;
};

using Ids = std::vector<int>;
using Dbls = std::vector<double>;

Item *makeChain(std::initializer_list<int> ids)
{
    Item *head = nullptr;
    for (int id : ids)
        head = static_cast<Item *>(mathInsBDChnsAtHead(head, new Item{nullptr, nullptr, id}));
    return head;
}

Node *makeOneWay(std::initializer_list<int> ids)
{
    Node *head = nullptr;
    for (int id : ids)
        head = static_cast<Node *>(mathInsSDChnsAtHead(head, new Node{nullptr, id}));
    return head;
}

// Ids in next order; also checks that every prev link mirrors next.
Ids idsOf(const Item *head)
{
    Ids ids;
    for (const Item *prev = nullptr, *it = head; it; prev = it, it = it->next) {
        EXPECT_EQ(it->prev, prev) << "broken prev link at id " << it->id;
        ids.push_back(it->id);
    }
    return ids;
}

Ids idsOf(const Node *head)
{
    Ids ids;
    for (const Node *it = head; it; it = it->next)
        ids.push_back(it->id);
    return ids;
}

} // namespace

TEST(TwoWayChain, JoinInsertUnlinkReverseAndRelease)
{
    Item *a = makeChain({1, 2}), *b = makeChain({3, 4});
    EXPECT_EQ(mathInsBDChnsAtHead(nullptr, b), b);
    EXPECT_EQ(mathInsBDChnsAtHead(a, nullptr), a);
    EXPECT_EQ(mathInsItemInBDChns(nullptr, a), a);

    // The tail join puts the second argument first.
    Item *head = static_cast<Item *>(mathInsBDChnsAtTail(a, b));
    head = static_cast<Item *>(mathInsItemInBDChns(new Item{nullptr, nullptr, 0}, head));
    EXPECT_EQ(idsOf(head), (Ids{0, 3, 4, 1, 2}));
    EXPECT_EQ(mathGetNumOfItemInBDChns(head), 5);

    // Unlinking the middle, the end and the head; unlinked records keep their links.
    Item *middle = head->next->next; // id 4
    head = static_cast<Item *>(mathDelItemInBDChns(middle, head));
    EXPECT_EQ(middle->next->id, 1);
    Item *last = head->next->next->next, *oldHead = head; // ids 2 and 0
    head = static_cast<Item *>(mathDelItemInBDChns(last, head));
    head = static_cast<Item *>(mathDelItemInBDChns(head, head));
    EXPECT_EQ(idsOf(head), (Ids{3, 1}));
    for (Item *gone : {middle, last, oldHead})
        delete gone;

    head = static_cast<Item *>(mathRevBDChns(head));
    EXPECT_EQ(idsOf(head), (Ids{1, 3}));
    EXPECT_EQ(mathRevBDChns(nullptr), nullptr);
    mathFreBDChns(head);
    mathFreBDChns(nullptr);
    EXPECT_EQ(mathGetNumOfItemInBDChns(nullptr), 0);

    Item *single = makeChain({9});
    EXPECT_EQ(mathDelItemInBDChns(single, single), nullptr);
    delete single;
}

TEST(OneWayChain, JoinInsertUnlinkAndRelease)
{
    Node *a = makeOneWay({1, 2});
    EXPECT_EQ(mathInsSDChnsAtTail(a, nullptr), a);
    Node *head = static_cast<Node *>(mathInsSDChnsAtTail(a, makeOneWay({3})));
    head = static_cast<Node *>(mathInsItemInSDChns(new Node{nullptr, 0}, head));
    EXPECT_EQ(idsOf(head), (Ids{0, 3, 1, 2}));
    EXPECT_EQ(mathGetNumOfItemInSDChns(head), 4);

    Node stranger{nullptr, 7}; // not in the chain: nothing changes
    EXPECT_EQ(mathDelItemInSDChns(&stranger, head), head);
    Node *one = head->next->next, *oldHead = head;
    head = static_cast<Node *>(mathDelItemInSDChns(one, head));
    head = static_cast<Node *>(mathDelItemInSDChns(head, head));
    EXPECT_EQ(idsOf(head), (Ids{3, 2}));
    delete one;
    delete oldHead;
    mathFreSDChns(head);
    mathFreSDChns(nullptr);
    EXPECT_EQ(mathGetNumOfItemInSDChns(nullptr), 0);
}

TEST(StringsAndNets, SizesAndRelease)
{
    // The slack past the points and knots is writable (valgrind sees it).
    double *s = NewStr3D(4), *knots = NewKntStr(5, 3);
    ASSERT_TRUE(s && knots);
    s[(4 + 3) * 3 - 1] = knots[5 + 3 + 4] = 1.0;
    DelStr1D(&s);
    EXPECT_EQ(s, nullptr);
    DelStr1D(&s);
    DelStr1D(nullptr);
    DelStr1D(&knots);
    EXPECT_EQ(NewStr1D(-10), nullptr);

    // n = 2, m = 4: three rows of 14 doubles, the spare row pointers null.
    double **net = nullptr;
    ASSERT_EQ(NewNet2D(&net, 2, 4), net);
    ASSERT_NE(net, nullptr);
    for (int i = 0; i <= 4; ++i)
        ASSERT_EQ(net[i] == nullptr, i > 2) << "row " << i;
    for (int i = 0; i <= 2; ++i)
        net[i][13] = i;
    DelNet1D(2, &net);
    EXPECT_EQ(net, nullptr);
    DelNet1D(2, &net);

    // No rows: only the row array of three pointers.
    ASSERT_NE(NewNet4D(&net, -1, 3), nullptr);
    EXPECT_EQ(net[0], nullptr);
    DelNet1D(-1, &net);
}

TEST(DoubleArrays, SortFilterExtremesAndReverse)
{
    double a[] = {3, -1, 2, -1, 0};
    mathSortDblArray(5, a);
    EXPECT_EQ(Dbls(a, a + 5), (Dbls{-1, -1, 0, 2, 3}));
    mathRevDblArray(5, a);
    EXPECT_EQ(Dbls(a, a + 5), (Dbls{3, 2, 0, -1, -1}));

    // Values are compared with the last kept one, not a dropped one; the marker is reserved.
    double f[] = {0, 5e-11, 1e-10, 1}, chain[] = {0, 0.6, 1.2, 1.8}, reserved[] = {1, 2, 1e100};
    ASSERT_EQ(mathFilterDblArray(4, f, 1e-10), 3);
    EXPECT_EQ(Dbls(f, f + 3), (Dbls{0, 1e-10, 1}));
    EXPECT_EQ(mathFilterDblArray(4, chain, 1.0), 2);
    EXPECT_EQ(chain[1], 1.2);
    EXPECT_EQ(mathFilterDblArray(3, reserved, 1e-10), 2);
    EXPECT_EQ(mathFilterDblArray(0, reserved, 1e-10), 1);

    // The first of equal extremes wins; an empty array is not read.
    const double v[] = {2, 7, -3, 7, -3};
    double mx = 0, mn = 0;
    EXPECT_EQ(mathGetDblArrayMaxVal(5, v, &mx), 1);
    EXPECT_EQ(mathGetDblArrayMinVal(5, v, &mn), 2);
    EXPECT_EQ(mn, -3.0);
    mx = 0;
    EXPECT_EQ(mathGetDblArrayMinMax(5, v, nullptr, &mx), 1);
    EXPECT_EQ(mx, 7.0);
    EXPECT_EQ(mathGetDblArrayMinMax(0, nullptr, &mn, &mx), 1);
    EXPECT_EQ(mx, 7.0);
}
