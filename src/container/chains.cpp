// Intrusive chains. The records are the host's own; the only thing known
// about them is that their first members are the links, so they are viewed
// through the two link layouts below.
#include "korvex/capi.h"

#include <new>

namespace {

struct TwoWayLinks {
    TwoWayLinks *prev;
    TwoWayLinks *next;
};

struct OneWayLinks {
    OneWayLinks *next;
};

TwoWayLinks *asTwoWay(void *record)
{
    return static_cast<TwoWayLinks *>(record);
}

OneWayLinks *asOneWay(void *record)
{
    return static_cast<OneWayLinks *>(record);
}

TwoWayLinks *lastTwoWay(TwoWayLinks *head)
{
    while (head->next)
        head = head->next;
    return head;
}

OneWayLinks *lastOneWay(OneWayLinks *head)
{
    while (head->next)
        head = head->next;
    return head;
}

// Records were made with a single-object new of the host's plain record
// type; releasing the storage is all that delete would do for them.
void releaseRecord(void *record)
{
    ::operator delete(record);
}

} // namespace

void *mathInsBDChnsAtHead(void *a, void *b)
{
    if (!a)
        return b;
    if (!b)
        return a;
    TwoWayLinks *last = lastTwoWay(asTwoWay(a));
    last->next = asTwoWay(b);
    asTwoWay(b)->prev = last;
    return a;
}

void *mathInsBDChnsAtTail(void *a, void *b)
{
    return mathInsBDChnsAtHead(b, a);
}

void *mathInsItemInBDChns(void *item, void *head)
{
    if (!item)
        return head;
    TwoWayLinks *it = asTwoWay(item);
    it->prev = nullptr;
    it->next = asTwoWay(head);
    if (head)
        asTwoWay(head)->prev = it;
    return item;
}

void *mathDelItemInBDChns(void *item, void *head)
{
    if (!item || !head)
        return head;
    TwoWayLinks *it = asTwoWay(item);
    if (item == head) {
        TwoWayLinks *next = it->next;
        if (next)
            next->prev = nullptr;
        return next;
    }
    if (it->prev)
        it->prev->next = it->next;
    if (it->next)
        it->next->prev = it->prev;
    return head;
}

void mathFreBDChns(void *head)
{
    TwoWayLinks *it = asTwoWay(head);
    while (it) {
        TwoWayLinks *next = it->next;
        releaseRecord(it);
        it = next;
    }
}

int mathGetNumOfItemInBDChns(const void *head)
{
    int count = 0;
    for (const TwoWayLinks *it = static_cast<const TwoWayLinks *>(head); it; it = it->next)
        ++count;
    return count;
}

void *mathRevBDChns(void *head)
{
    TwoWayLinks *last = nullptr;
    TwoWayLinks *it = asTwoWay(head);
    while (it) {
        TwoWayLinks *next = it->next;
        it->next = it->prev;
        it->prev = next;
        last = it;
        it = next;
    }
    return last;
}

void *mathInsSDChnsAtHead(void *a, void *b)
{
    if (!a)
        return b;
    if (!b)
        return a;
    lastOneWay(asOneWay(a))->next = asOneWay(b);
    return a;
}

void *mathInsSDChnsAtTail(void *a, void *b)
{
    return mathInsSDChnsAtHead(b, a);
}

void *mathInsItemInSDChns(void *item, void *head)
{
    if (!item)
        return head;
    asOneWay(item)->next = asOneWay(head);
    return item;
}

void *mathDelItemInSDChns(void *item, void *head)
{
    if (!item || !head)
        return head;
    if (item == head)
        return asOneWay(head)->next;
    for (OneWayLinks *it = asOneWay(head); it->next; it = it->next) {
        if (it->next == item) {
            it->next = asOneWay(item)->next;
            break;
        }
    }
    return head;
}

void mathFreSDChns(void *head)
{
    OneWayLinks *it = asOneWay(head);
    while (it) {
        OneWayLinks *next = it->next;
        releaseRecord(it);
        it = next;
    }
}

int mathGetNumOfItemInSDChns(const void *head)
{
    int count = 0;
    for (const OneWayLinks *it = static_cast<const OneWayLinks *>(head); it; it = it->next)
        ++count;
    return count;
}
