#include <korvex/capi.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Item {
    Item *prev;
    Item *next;
    int id;
};

struct Node {
    Node *next;
    int id;
};

// A two-way chain of new'd items with the given ids, linked head first.
Item *makeChain(std::initializer_list<int> ids)
{
    Item *head = nullptr;
    for (int id : ids) {
        Item *item = new Item{nullptr, nullptr, id};
        head = static_cast<Item *>(mathInsBDChnsAtHead(head, item));
    }
    return head;
}

Node *makeOneWay(std::initializer_list<int> ids)
{
    Node *head = nullptr;
    for (int id : ids) {
        Node *node = new Node{nullptr, id};
        head = static_cast<Node *>(mathInsSDChnsAtHead(head, node));
    }
    return head;
}

// Ids in next order; also checks that every prev link mirrors next.
std::vector<int> idsOf(const Item *head)
{
    std::vector<int> ids;
    const Item *prev = nullptr;
    for (const Item *it = head; it; prev = it, it = it->next) {
        EXPECT_EQ(it->prev, prev) << "broken prev link at id " << it->id;
        ids.push_back(it->id);
    }
    return ids;
}

std::vector<int> idsOf(const Node *head)
{
    std::vector<int> ids;
    for (const Node *it = head; it; it = it->next)
        ids.push_back(it->id);
    return ids;
}

} // namespace

TEST(TwoWayChain, JoinInsertUnlinkReverseAndRelease)
{
    Item *a = makeChain({1, 2});
    Item *b = makeChain({3, 4});
    EXPECT_EQ(mathInsBDChnsAtHead(nullptr, b), b);
    EXPECT_EQ(mathInsBDChnsAtHead(a, nullptr), a);
    EXPECT_EQ(mathInsBDChnsAtTail(nullptr, b), b);
    EXPECT_EQ(mathInsItemInBDChns(nullptr, a), a);

    // Tail join puts the second argument first.
    Item *head = static_cast<Item *>(mathInsBDChnsAtTail(a, b));
    EXPECT_EQ(idsOf(head), (std::vector<int>{3, 4, 1, 2}));
    EXPECT_EQ(mathGetNumOfItemInBDChns(head), 4);

    Item *front = new Item{nullptr, nullptr, 0};
    head = static_cast<Item *>(mathInsItemInBDChns(front, head));
    EXPECT_EQ(idsOf(head), (std::vector<int>{0, 3, 4, 1, 2}));

    // Unlinking from the middle, the end and the head.
    Item *middle = head->next->next; // id 4
    head = static_cast<Item *>(mathDelItemInBDChns(middle, head));
    EXPECT_EQ(idsOf(head), (std::vector<int>{0, 3, 1, 2}));
    EXPECT_EQ(middle->id, 4);
    EXPECT_NE(middle->next, nullptr); // its own links are left alone
    delete middle;
    Item *last = head->next->next->next; // id 2
    head = static_cast<Item *>(mathDelItemInBDChns(last, head));
    delete last;
    Item *oldHead = head;
    head = static_cast<Item *>(mathDelItemInBDChns(head, head));
    delete oldHead;
    EXPECT_EQ(idsOf(head), (std::vector<int>{3, 1}));

    head = static_cast<Item *>(mathRevBDChns(head));
    EXPECT_EQ(idsOf(head), (std::vector<int>{1, 3}));
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
    Node *b = makeOneWay({3});
    EXPECT_EQ(mathInsSDChnsAtTail(a, nullptr), a);
    Node *head = static_cast<Node *>(mathInsSDChnsAtTail(a, b));
    EXPECT_EQ(idsOf(head), (std::vector<int>{3, 1, 2}));

    Node *front = new Node{nullptr, 0};
    head = static_cast<Node *>(mathInsItemInSDChns(front, head));
    EXPECT_EQ(mathGetNumOfItemInSDChns(head), 4);

    Node *stranger = new Node{nullptr, 7};
    EXPECT_EQ(mathDelItemInSDChns(stranger, head), head);
    delete stranger;

    Node *one = head->next->next; // id 1
    head = static_cast<Node *>(mathDelItemInSDChns(one, head));
    delete one;
    Node *oldHead = head;
    head = static_cast<Node *>(mathDelItemInSDChns(head, head));
    delete oldHead;
    EXPECT_EQ(idsOf(head), (std::vector<int>{3, 2}));

    mathFreSDChns(head);
    mathFreSDChns(nullptr);
    EXPECT_EQ(mathGetNumOfItemInSDChns(nullptr), 0);
}

TEST(StringsAndNets, SizesAndRelease)
{
    double *s = NewStr3D(4);
    ASSERT_NE(s, nullptr);
    for (int i = 0; i < (4 + 3) * 3; ++i) // the whole slack is writable
        s[i] = i;
    DelStr1D(&s);
    EXPECT_EQ(s, nullptr);
    DelStr1D(&s);
    DelStr1D(nullptr);

    double *knots = NewKntStr(5, 3);
    ASSERT_NE(knots, nullptr);
    knots[5 + 3 + 4] = 1.0;
    DelStr1D(&knots);
    EXPECT_EQ(NewStr1D(-10), nullptr);

    double **net = nullptr;
    ASSERT_EQ(NewNet2D(&net, 2, 4), net);
    ASSERT_NE(net, nullptr);
    for (int i = 0; i <= 2; ++i) {
        ASSERT_NE(net[i], nullptr);
        for (int j = 0; j < 14; ++j)
            net[i][j] = i + j;
    }
    EXPECT_EQ(net[3], nullptr);
    EXPECT_EQ(net[4], nullptr);
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
    EXPECT_EQ(std::vector<double>(a, a + 5), (std::vector<double>{-1, -1, 0, 2, 3}));

    // The third value is compared with the last kept one (0), not with the
    // dropped second one.
    double f[] = {0, 5e-11, 1e-10, 1};
    ASSERT_EQ(mathFilterDblArray(4, f, 1e-10), 3);
    EXPECT_EQ(f[0], 0.0);
    EXPECT_EQ(f[1], 1e-10);
    EXPECT_EQ(f[2], 1.0);
    double chain[] = {0, 0.6, 1.2, 1.8};
    EXPECT_EQ(mathFilterDblArray(4, chain, 1.0), 2);
    EXPECT_EQ(chain[1], 1.2);
    double reserved[] = {1, 2, 1e100};
    EXPECT_EQ(mathFilterDblArray(3, reserved, 1e-10), 2);
    EXPECT_EQ(mathFilterDblArray(0, reserved, 1e-10), 1);
    EXPECT_EQ(mathFilterDblArray(1, reserved, 1e-10), 1);

    // The first of equal extremes wins.
    const double v[] = {2, 7, -3, 7, -3};
    double mx = 0, mn = 0;
    EXPECT_EQ(mathGetDblArrayMaxVal(5, v, &mx), 1);
    EXPECT_EQ(mathGetDblArrayMinVal(5, v, &mn), 2);
    EXPECT_EQ(mn, -3.0);
    mx = 0;
    EXPECT_EQ(mathGetDblArrayMinMax(5, v, nullptr, &mx), 1);
    EXPECT_EQ(mx, 7.0);
    EXPECT_EQ(mathGetDblArrayMinMax(0, nullptr, &mn, &mx), 1); // a not read
    EXPECT_EQ(mx, 7.0);

    double r[] = {1, 2, 3, 4, 5};
    mathRevDblArray(5, r);
    EXPECT_EQ(std::vector<double>(r, r + 5), (std::vector<double>{5, 4, 3, 2, 1}));
}
