#include <korvex/classes.hpp>

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

const double degree = 0.01745329251994333;
const double toDegrees = 57.29577951308232;

// Everything an evaluation reports, compared as a whole.
struct Parsed {
    bool inputOk, computeOk;
    double result;
    int error, site;
    bool operator==(const Parsed& o) const
    {
        return inputOk == o.inputOk && computeOk == o.computeOk && result == o.result && error == o.error &&
               site == o.site;
    }
};

void PrintTo(const Parsed& p, std::ostream* os)
{
    *os << "{" << p.inputOk << ", " << p.computeOk << ", " << p.result << ", " << p.error << ", " << p.site
        << "}";
}

// Parses the text and, when that succeeds or alwaysCompute is set, evaluates it.
Parsed Evaluate(Calculator& calc, std::string text, bool alwaysCompute = false)
{
    const bool inputOk = calc.Input(text.data());
    const bool computeOk = (inputOk || alwaysCompute) && calc.Compute();
    return {inputOk, computeOk, calc.GetResult(), calc.GetErrorID(), calc.GetErrorLineNo()};
}

Parsed Evaluate(std::string text, bool alwaysCompute = false)
{
    Calculator calc;
    return Evaluate(calc, text, alwaysCompute);
}

// Assigns the values and evaluates; NaN when Compute fails.
double ComputeWith(Calculator& calc, std::vector<double> values)
{
    calc.Assign(values.data());
    return calc.Compute() ? calc.GetResult() : std::nan("");
}

} // namespace

TEST(Calculator, EvaluatesOperatorsAndFunctions)
{
    const std::pair<const char*, double> cases[] = {
        {"2^3^2", 512.0},  // power is right-associative
        {"2*3+4", 10.0}, {"(1+2)*3", 9.0}, {"2*3^2", 18.0},
        {"2-3-4", -5.0}, {"24/4/2", 3.0},  // minus and divide are left-associative
        {"-2^2", 4.0},                     // the sign belongs to the literal
        {"-(2)^2", 4.0},                   // a unary sign binds tighter than "^" on its right
        {"2^-1", 0.5}, {"2--3", 5.0}, {"2*-3", -6.0},
        {"1.2.3", 1.2},                    // the conversion stops at the second point
        {"2 3", 23.0}, {"1,5 + 1", 16.0},  // blanks and commas are dropped before parsing
        {"sin(30)", std::sin(30 * degree)}, {"cos(60)", std::cos(60 * degree)},
        {"tan(45)", std::tan(45 * degree)}, {"-sin(30)", -std::sin(30 * degree)},
        {"SIN(30)^2", std::pow(std::sin(30 * degree), 2)},
        {"cot(1)", 1.0 / std::tan(1.0)},       // radians
        {"sqr(-9)", 3.0}, {"sqrt(-16)", 4.0},  // the root of |x|, not the square
        {"log10(1000)", 3.0}, {"int(-2.5)", -3.0},
        {"arcsin(0.5)", std::asin(0.5) * toDegrees}, {"arcsin(2)", 90.0}, {"arcsin(-1)", -90.0},
        {"arccos(0.5)", std::acos(0.5) * toDegrees}, {"arccos(1)", 0.0},
        {"arccos(-2)", 3.141592653589793},  // radians, not 180
        {"arctan(1)", std::atan(1.0) * toDegrees},
        {"sinh(1)+cosh(1)+tanh(1)", std::sinh(1.0) + std::cosh(1.0) + std::tanh(1.0)},
        {"log(exp(2))", std::log(std::exp(2.0))},
    };
    for (const auto& c : cases) {
        const Parsed p = Evaluate(c.first);
        EXPECT_TRUE(p.inputOk && p.computeOk && p.error == 0) << c.first;
        EXPECT_DOUBLE_EQ(p.result, c.second) << c.first;
    }
    // The degree factor is the calculator's own, slightly above pi/180.
    EXPECT_NE(Evaluate("sin(30)").result, 0.5);
}

TEST(Calculator, VariablesAreCollectedAndReassigned)
{
    Calculator calc;
    char text[] = "a+b*a";
    ASSERT_TRUE(calc.Input(text));
    EXPECT_STREQ(text, "A+B*A");  // the caller's buffer is upper-cased
    ASSERT_EQ(calc.GetNumberOfVariables(), 2);
    EXPECT_STREQ(calc.GetVariableName(0), "A");
    EXPECT_STREQ(calc.GetVariableName(1), "B");
    EXPECT_EQ(calc.GetVariableName(2), nullptr);
    EXPECT_EQ(calc.GetVariableName(-1), nullptr);
    EXPECT_EQ(ComputeWith(calc, {1, 2}), 3.0);
    EXPECT_EQ(ComputeWith(calc, {5, 5}), 30.0);
    EXPECT_TRUE(calc.Compute());  // the postfix form survives evaluation
    EXPECT_EQ(calc.GetResult(), 30.0);

    // Names are upper-cased, may hold digits, and a function name followed
    // by digits is a variable.
    EXPECT_TRUE(Evaluate(calc, "Ab_1 + aB1 + sin30 + -x^2").inputOk);
    ASSERT_EQ(calc.GetNumberOfVariables(), 3);
    EXPECT_STREQ(calc.GetVariableName(0), "AB1");
    EXPECT_STREQ(calc.GetVariableName(1), "SIN30");
    EXPECT_STREQ(calc.GetVariableName(2), "X");
    EXPECT_EQ(ComputeWith(calc, {1, 10, 3}), 1 + 1 + 10 + 9);  // -X^2 is (-X)^2

    // A new Input discards the variables and their values.
    EXPECT_TRUE(Evaluate(calc, "4").inputOk);
    EXPECT_EQ(calc.GetNumberOfVariables(), 0);

    // Longest name and most variables accepted.
    const std::string name29(29, 'Q');
    EXPECT_TRUE(Evaluate(calc, name29).inputOk);
    EXPECT_STREQ(calc.GetVariableName(0), name29.c_str());
    EXPECT_TRUE(Evaluate(calc, "A+B+C+D+E+F+G+H+I+J+K+L+M+N+O").inputOk);
    EXPECT_EQ(calc.GetNumberOfVariables(), 15);
}

TEST(Calculator, ParseErrorsCarryTheirIdAndSite)
{
    const struct {
        std::string text;
        int error;
        int site;
    } cases[] = {
        {"", 2, 326}, {" \t\n", 2, 326},  // nothing left after filtering
        {"1+", 2, 326}, {"()", 2, 326},
        {"2X", 3, 209},    // a new variable right after an operand
        {"A*2A", 3, 195},  // a known one
        {"(1)2", 3, 257},  // a number right after an operand
        {"X(2)", 3, 257},
        {"*2", 7, 177}, {"2*/3", 7, 177}, {"^2", 7, 177},
        {"1+2)", 4, 360}, {"(1+2", 5, 380}, {"2*(3", 5, 380},
        {std::string(30, 'Q'), 11, 148}, {"A+B+C+D+E+F+G+H+I+J+K+L+M+N+O+P", 10, 214},
    };
    for (const auto& c : cases) {
        Calculator calc;
        EXPECT_EQ(Evaluate(calc, c.text), (Parsed{false, false, 0.0, c.error, c.site})) << c.text;
        EXPECT_STREQ(calc.GetErrorMessage(calc.GetErrorID()), calc.GetErrorMessage(c.error));
    }
}

TEST(Calculator, LengthLimitCountsTheRawText)
{
    // 249 times "1+" and "11": 500 characters, accepted.
    std::string text;
    for (int i = 0; i < 249; ++i)
        text += "1+";
    text += "11";
    ASSERT_EQ(text.size(), 500u);
    EXPECT_EQ(Evaluate(text), (Parsed{true, true, 260.0, 0, 0}));
    EXPECT_EQ(Evaluate(text + "1"), (Parsed{false, false, 0.0, 1, 394}));

    // Characters that filtering would drop still count.
    EXPECT_EQ(Evaluate(std::string(500, ' ') + "1").error, 1);
    EXPECT_TRUE(Evaluate(std::string(499, ' ') + "1").inputOk);

    // A null text reads as an empty one.
    Calculator calc;
    EXPECT_FALSE(calc.Input(nullptr));
    EXPECT_EQ(calc.GetErrorID(), 2);
}

TEST(Calculator, EvaluationErrors)
{
    // Division by zero does not stop the evaluation: the quotient is 0.
    EXPECT_EQ(Evaluate("1/0"), (Parsed{true, true, 0.0, 6, 420}));
    EXPECT_EQ(Evaluate("1/0+5"), (Parsed{true, true, 5.0, 6, 420}));

    // The error stays until the next Input or Clear.
    Calculator calc;
    ASSERT_TRUE(Evaluate(calc, "1/x").inputOk);
    EXPECT_EQ(ComputeWith(calc, {0}), 0.0);
    EXPECT_EQ(calc.GetErrorID(), 6);
    EXPECT_EQ(ComputeWith(calc, {1}), 1.0);
    EXPECT_EQ(calc.GetErrorID(), 6);
    calc.Clear();
    EXPECT_EQ(calc.GetErrorID(), 0);
    EXPECT_EQ(calc.GetResult(), 0.0);
    EXPECT_EQ(calc.GetNumberOfVariables(), 0);

    // Nothing to evaluate: no Input yet, a failed one, one cut short at the
    // ")" after the "+", or an operator left without an operand (which
    // parses without error). The process goes on.
    Calculator empty;
    EXPECT_FALSE(empty.Compute());
    EXPECT_EQ(empty.GetErrorID(), 9);
    EXPECT_EQ(empty.GetErrorLineNo(), 537);
    for (const char* text : {"2X", "1+)2", "(-)1", "(sin)2"}) {
        const Parsed p = Evaluate(text, true);
        EXPECT_TRUE(!p.computeOk && p.error == 9 && p.site == 537) << text;
    }

    // An unclosed parenthesis is reported but does not cut the postfix form
    // short: the operators below it are still emitted, and Compute keeps the
    // parse error.
    EXPECT_EQ(Evaluate("1+(2+3", true), (Parsed{false, true, 6.0, 5, 380}));
}

TEST(Calculator, StrayClosingParenthesisWithNothingOpenIsCarriedThrough)
{
    // A ")" that meets an empty operator stack is stacked like any operator
    // and does nothing when evaluated; only one that has to pop an operator
    // first reports the missing "(".
    EXPECT_EQ(Evaluate("(1+2))"), (Parsed{true, true, 3.0, 0, 0}));
    EXPECT_EQ(Evaluate("2)").result, 2.0);
    EXPECT_EQ(Evaluate("1*2)").site, 360);
}

// Hosts link against these exact member signatures: only the error
// accessors are const.
static_assert(std::is_same<decltype(&Calculator::GetResult), double (Calculator::*)()>::value, "");
static_assert(std::is_same<decltype(&Calculator::GetNumberOfVariables), int (Calculator::*)()>::value, "");
static_assert(std::is_same<decltype(&Calculator::GetVariableName), const char* (Calculator::*)(int)>::value, "");
static_assert(std::is_same<decltype(&Calculator::GetErrorLineNo), int (Calculator::*)() const>::value, "");

TEST(Calculator, ErrorMessages)
{
    const Calculator calc;
    const char* const expected[] = {
        "no errors", "expression too long", "missing operand", "missing operator",
        "missing left parenthesis", "missing right paraenthesis", "devide by zero",
        "unknown operator", "invalid operator", "unknown error", "too many variables",
        "variable's name too long",
    };
    for (int id = 0; id < 12; ++id)
        EXPECT_STREQ(calc.GetErrorMessage(id), expected[id]);
    EXPECT_STREQ(calc.GetErrorMessage(-1), "UNKNOWN ERROR ID!!!");
    EXPECT_STREQ(calc.GetErrorMessage(12), "UNKNOWN ERROR ID!!!");
}

namespace {

const Token number = {0, 0, 0, 1.0};

// Adds one item more than the container holds.
template <class Container, class Arg, class Item>
void Overfill(void (Container::*add)(Arg), Item item)
{
    Container c;
    for (int i = 0; i <= Container::capacity; ++i)
        (c.*add)(item);
}

} // namespace

TEST(CalculatorDeathTest, ContainerFaultsEndTheProcess)
{
    using testing::ExitedWithCode;
    EXPECT_EXIT(Overfill(&TokenQueue::Enqueue, number), ExitedWithCode(1), "^Queue overflow!\n$");
    EXPECT_EXIT(TokenQueue().Dequeue(), ExitedWithCode(1), "^Deleting from an empty queue!\n$");
    EXPECT_EXIT(Overfill(&TokenStack::Push, number), ExitedWithCode(1), "^Stack overflow!\n$");
    EXPECT_EXIT(Overfill(&ValueStack::Push, 1.0), ExitedWithCode(1), "^Stack overflow!\n$");
    EXPECT_EXIT(TokenStack().Pop(), ExitedWithCode(1), "^Attempt to pop an empty stack!\n$");
    EXPECT_EXIT(ValueStack().Pop(), ExitedWithCode(1), "^Attempt to pop an empty stack!\n$");
    EXPECT_EXIT(TokenStack().Peek(), ExitedWithCode(1), "^Attempt to peek at an empty stack!\n$");
    EXPECT_EXIT(ValueStack().Peek(), ExitedWithCode(1), "^Attempt to peek at an empty stack!\n$");
}
