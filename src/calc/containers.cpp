// Fixed-size queue and stacks of the calculator. Running out of room (or
// reading an empty container) cannot happen for a parsed expression of at
// most 500 characters, so it is treated as a fatal fault of the program.
#include "korvex/classes.hpp"

#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void Fault(const char* message)
{
    std::fprintf(stderr, "%s\n", message);
    std::exit(1);
}

} // namespace

TokenQueue::TokenQueue() : head(0), tail(0), count(0) {}

void TokenQueue::Clear()
{
    head = 0;
    tail = 0;
    count = 0;
}

bool TokenQueue::IsEmpty() const { return count == 0; }

bool TokenQueue::IsFull() const { return count == capacity; }

int TokenQueue::Count() const { return count; }

void TokenQueue::Enqueue(const Token& token)
{
    if (count == capacity)
        Fault("Queue overflow!");
    items[tail] = token;
    tail = (tail + 1) % capacity;
    ++count;
}

Token TokenQueue::Dequeue()
{
    if (count == 0)
        Fault("Deleting from an empty queue!");
    Token token = items[head];
    head = (head + 1) % capacity;
    --count;
    return token;
}

const Token& TokenQueue::At(int k) const { return items[(head + k) % capacity]; }

TokenStack::TokenStack() : top(-1) {}

void TokenStack::Clear() { top = -1; }

bool TokenStack::IsEmpty() const { return top == -1; }

bool TokenStack::IsFull() const { return top == capacity - 1; }

void TokenStack::Push(const Token& token)
{
    if (top == capacity - 1)
        Fault("Stack overflow!");
    items[++top] = token;
}

Token TokenStack::Pop()
{
    if (top == -1)
        Fault("Attempt to pop an empty stack!");
    return items[top--];
}

const Token& TokenStack::Peek() const
{
    if (top == -1)
        Fault("Attempt to peek at an empty stack!");
    return items[top];
}

ValueStack::ValueStack() : top(-1) {}

void ValueStack::Clear() { top = -1; }

bool ValueStack::IsEmpty() const { return top == -1; }

bool ValueStack::IsFull() const { return top == capacity - 1; }

void ValueStack::Push(double value)
{
    if (top == capacity - 1)
        Fault("Stack overflow!");
    items[++top] = value;
}

double ValueStack::Pop()
{
    if (top == -1)
        Fault("Attempt to pop an empty stack!");
    return items[top--];
}

double ValueStack::Peek() const
{
    if (top == -1)
        Fault("Attempt to peek at an empty stack!");
    return items[top];
}
