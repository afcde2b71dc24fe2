// ---------------------------------------------------------------------------
// Expression calculator
//
// Calculator evaluates one-line arithmetic expressions with named variables.
// Input() filters the text, splits it into tokens and stores it in postfix
// order; the host then reads the variable names, supplies their values with
// Assign() and calls Compute() as often as it likes, without parsing again:
//
//     Calculator calc;
//     char text[] = "a*sin(x)+b";
//     if (calc.Input(text)) {                 // names are now A, X, B
//         double v[3] = {2.0, 30.0, 1.0};     // in the order of GetVariableName
//         calc.Assign(v);
//         if (calc.Compute() && calc.GetErrorID() == 0)
//             use(calc.GetResult());          // 2
//     }
//
// Expressions. Numbers are decimal literals without exponent ("1.5", ".5");
// a sign directly after one of "+-*/^(" or at the start, and followed by a
// digit or ".", belongs to the literal, so "-2^2" is 4 and "2--3" is 5.
// Operators: binary + - * / (left-associative), ^ (power, right-associative,
// binding tighter than * and /), unary + and -, parentheses. Functions, which
// bind tighter than everything on their right ("SIN(30)^2" is (sin 30)^2):
//     SIN COS TAN        argument in degrees
//     COT                1/tan(x) with x in RADIANS
//     ARCSIN ARCCOS ARCTAN   result in degrees; ARCSIN gives 90 / -90 for
//                        x >= 1 / x <= -1, ARCCOS gives 0 for x >= 1 and
//                        3.141592653589793 (not 180) for x <= -1
//     SQR SQRT           square root of |x| (SQR is not the square)
//     LOG10 LOG EXP      decimal logarithm, natural logarithm, exponential
//     SINH COSH TANH ABS
//     INT                floor(x): INT(-2.5) is -3
// Any other identifier (letters, then letters or digits, up to 29 characters)
// is a variable; at most 15 distinct variables. Letters are case-insensitive:
// Input() upper-cases the caller's buffer IN PLACE. Every character outside
// letters, digits and "+-*/()^." (blanks, tabs, line ends, commas,
// underscores, ...) is dropped before parsing, so "2 3" is 23 and "SIN 30" is
// the variable SIN30.
//
// Errors. Input() and Compute() return false on an error and never throw;
// GetErrorID() gives the error id, GetErrorMessage() its text and
// GetErrorLineNo() a fixed diagnostic site number that tells which check
// fired:
//     id  message                         sites
//      0  "no errors"
//      1  "expression too long"           394 (more than 500 characters)
//      2  "missing operand"               277, 326 (also: empty expression)
//      3  "missing operator"              195, 209, 257 (parsing), 532
//      4  "missing left parenthesis"      360
//      5  "missing right paraenthesis"    380
//      6  "devide by zero"                420
//      7  "unknown operator"              167, 177 (e.g. a leading "*")
//      8  "invalid operator"              425, 428, 480, 484
//      9  "unknown error"                 537 (nothing to evaluate)
//     10  "too many variables"            214
//     11  "variable's name too long"      148 (30 characters or more)
// A division by zero does not stop Compute(): the quotient is taken as 0,
// Compute() still returns true and only GetErrorID() (6) tells. Compute()
// never resets the error fields; an error stays reported until the next
// Input() or Clear().
//
// Storage. Everything lives inside the object (about 25 KB); nothing is
// allocated. The internal queue and stacks hold 1000 entries each, which the
// 500-character input limit keeps out of reach; should one of them overflow
// or be read while empty all the same, it writes a message to standard error
// and ends the process with exit status 1. An object is used by one thread
// at a time; separate objects are independent.
// ---------------------------------------------------------------------------

// One token of an expression. Codes: 0 number, 1..15 variable (index + 1),
// 20 "(", 21 "+", 22 "-", 23 "*", 24 "/", 25 "^", 40 ")", 41 unary "-",
// 42 unary "+", 51..67 function (51 + its index in SIN, COS, TAN, SQR, LOG10,
// LOG, COT, ABS, INT, ARCSIN, ARCCOS, ARCTAN, SINH, COSH, TANH, EXP, SQRT).
struct Token {
    int code;          // token kind, see above
    int inPriority;    // priority when arriving at the operator stack
    int stackPriority; // priority while lying on the operator stack
    double value;      // the number, for code 0
};

// Circular queue of 1000 tokens. Enqueue on a full queue and Dequeue on an
// empty one print "Queue overflow!" / "Deleting from an empty queue!" to
// standard error and end the process with status 1.
class KORVEX_API TokenQueue {
public:
    static constexpr int capacity = 1000;

    TokenQueue();
    void Clear();                      // head, tail and count to 0
    bool IsEmpty() const;
    bool IsFull() const;
    int Count() const;
    void Enqueue(const Token& token);  // store at the tail
    Token Dequeue();                   // take from the head
    // The k-th token from the head, 0 <= k < Count() (not checked).
    const Token& At(int k) const;

private:
    Token items[capacity];
    int head;
    int tail;
    int count;
};

// Stack of 1000 tokens. Push on a full stack prints "Stack overflow!", Pop
// and Peek on an empty one "Attempt to pop an empty stack!" / "Attempt to
// peek at an empty stack!", to standard error, and end the process with
// status 1.
class KORVEX_API TokenStack {
public:
    static constexpr int capacity = 1000;

    TokenStack();
    void Clear();                      // top index to -1
    bool IsEmpty() const;
    bool IsFull() const;
    void Push(const Token& token);
    Token Pop();
    const Token& Peek() const;         // the top token, left in place

private:
    Token items[capacity];
    int top;                           // -1 when empty
};

// Stack of 1000 doubles, with the same faults as TokenStack.
class KORVEX_API ValueStack {
public:
    static constexpr int capacity = 1000;

    ValueStack();
    void Clear();
    bool IsEmpty() const;
    bool IsFull() const;
    void Push(double value);
    double Pop();
    double Peek() const;

private:
    double items[capacity];
    int top;                           // -1 when empty
};

class KORVEX_API Calculator {
public:
    static constexpr int maxVariables = 15;
    static constexpr int maxNameLength = 29;   // characters, without the NUL
    static constexpr int maxTextLength = 500;  // characters accepted by Input

    // An empty calculator (see Clear).
    Calculator();

    // Empties the postfix form, sets the result and every value to 0, clears
    // the error, the expression and all variable names.
    void Clear();

    // Parses text (NUL-terminated) and stores its postfix form. Upper-cases
    // the caller's buffer in place, up to its NUL. Returns true when no error
    // was found; on false, GetErrorID and GetErrorLineNo tell why. Discards
    // the previous expression, its variables and values. A null text is taken
    // as an empty one (error 2).
    bool Input(char* text);

    // Evaluates the stored postfix form with the current values and stores
    // the result. Returns false when the form does not reduce to a single
    // value (errors 3 and 9; error 9 also when a sign or function is closed
    // off before its operand, as in "(-)1", which parses without error, or
    // when the form left by a failed Input lacks an operand); an error met
    // on the way (division by zero,
    // id 6) leaves the result computed with 0 in its place and is reported
    // only through GetErrorID. Repeatable; the stored form is kept.
    bool Compute();

    // Copies GetNumberOfVariables() doubles from values into the variable
    // values, in the order of GetVariableName. A null pointer changes
    // nothing.
    void Assign(double* values);

    double GetResult();                   // the result of the last Compute
    int GetErrorID() const;               // 0 when no error
    int GetErrorLineNo() const;           // site number of the error
    // The message for an error id; "UNKNOWN ERROR ID!!!" for ids outside
    // 0..11. The text is static: never freed, never changed.
    const char* GetErrorMessage(int id) const;
    int GetNumberOfVariables();           // distinct variables found, 0..15
    // Upper-case name of variable i, 0 <= i < GetNumberOfVariables(), else
    // a null pointer. Valid until the next Input or Clear.
    const char* GetVariableName(int i);

    // Console dialogue on the standard streams: prompts "Input a
    // expression: ", reads one line, asks for each variable ("No.1  A = ")
    // and prints "Answer: " and the result, or "ERROR : " with the message
    // and "Near Line " with the site number.
    void Test();

private:
    void SetError(int id, int site);
    bool Tokenise(TokenQueue& infix);
    void ToPostfix(TokenQueue& infix);
    double ApplyBinary(int code, double left, double right);
    double ApplyUnary(int code, double x);

    TokenQueue postfix;                      // the expression in postfix order
    double result;                           // last result of Compute
    double values[maxVariables];             // variable values, by index
    char names[maxVariables][maxNameLength + 1]; // NUL-terminated names
    char expression[maxTextLength + 2];      // the filtered expression text
    int errorId;                             // 0, or an id of the table above
    int errorLine;                           // site number of the error
    int variableCount;                       // distinct variables, 0..15
};
