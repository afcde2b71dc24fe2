// korvex-calc: evaluates an arithmetic expression with the Korvex Calculator.
//
//   korvex-calc "2^3^2"                    -> 512
//   korvex-calc "a*x+b" a=2 b=1 x=3        -> 7
//   korvex-calc --sweep X=0:90:15 "sin(X)^2"
//   korvex-calc --interactive
#include <korvex/classes.hpp>

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

const int exitOk = 0;
const int exitUsage = 1;
const int exitExpression = 2;

const char* const usageText =
    "usage: korvex-calc [--digits N] EXPRESSION [NAME=VALUE ...]\n"
    "       korvex-calc [--digits N] --sweep NAME=START:END:STEP EXPRESSION [NAME=VALUE ...]\n"
    "       korvex-calc --interactive\n"
    "       korvex-calc --help\n"
    "\n"
    "Evaluates EXPRESSION and prints the result.\n"
    "\n"
    "Expressions: numbers (1.5, .5; no exponent notation), + - * / ^ (power, right-\n"
    "associative: 2^3^2 is 512), unary signs, parentheses, and the functions SIN COS\n"
    "TAN (degrees), COT (radians), ARCSIN ARCCOS ARCTAN (results in degrees), SQR and\n"
    "SQRT (both the square root of |x|), LOG10 LOG EXP SINH COSH TANH ABS and INT\n"
    "(floor). Any other name is a variable (up to 15 of them, names up to 29\n"
    "characters). Letters are case-insensitive; blanks are ignored, so quote the\n"
    "expression for the shell. A sign right after an operator or '(' belongs to the\n"
    "number: -2^2 is 4.\n"
    "\n"
    "Options:\n"
    "  NAME=VALUE      value of a variable of the expression (case-insensitive);\n"
    "                  every variable needs one\n"
    "  --sweep NAME=START:END:STEP\n"
    "                  evaluate once for each value START, START+STEP, ... up to END\n"
    "                  (the expression is parsed only once) and print a two-column\n"
    "                  table: the value of NAME and the result\n"
    "  --digits N      significant digits of the printed numbers, 1 to 17\n"
    "                  (default 12; 17 shows every bit of a double)\n"
    "  --interactive   run the calculator's console dialogue: read an expression\n"
    "                  and the values of its variables from standard input\n"
    "  --help          show this text\n"
    "  --              end of options (for an expression that begins with --)\n"
    "\n"
    "Exit status: 0 success; 1 command-line error (unknown option, unknown variable,\n"
    "missing or malformed value); 2 the expression could not be parsed or evaluated\n"
    "(the calculator's message and site number go to standard error).\n";

struct Options {
    bool help = false;
    bool interactive = false;
    bool sweep = false;
    std::string sweepSpec;
    int digits = 12;
    std::string expression;
    bool haveExpression = false;
    std::vector<std::string> assignments;
};

struct Sweep {
    std::string name;
    double start = 0.0;
    double end = 0.0;
    double step = 0.0;
    long count = 0;
};

int UsageError(const std::string& message)
{
    std::fprintf(stderr, "korvex-calc: %s\n", message.c_str());
    std::fprintf(stderr, "Try 'korvex-calc --help'.\n");
    return exitUsage;
}

// A variable name as the calculator stores it: upper case, with everything
// but letters and digits dropped ("a_1" is A1).
std::string VariableName(const std::string& s)
{
    std::string name;
    for (char c : s)
        if (std::isalnum(static_cast<unsigned char>(c)))
            name += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return name;
}

// A whole argument as a number: no trailing characters, nothing empty.
bool ParseNumber(const std::string& text, double& value)
{
    if (text.empty())
        return false;
    errno = 0;
    char* end = nullptr;
    value = std::strtod(text.c_str(), &end);
    return *end == '\0' && errno != ERANGE;
}

std::string Format(double value, int digits)
{
    if (value == 0.0)
        value = 0.0; // print -0 as 0
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.*g", digits, value);
    return buffer;
}

// Reads the value of an option given as "--name VALUE" or "--name=VALUE".
bool OptionValue(int argc, char** argv, int& i, const char* name, std::string& value)
{
    const size_t length = std::strlen(name);
    const char* arg = argv[i];
    if (std::strncmp(arg, name, length) != 0)
        return false;
    if (arg[length] == '=') {
        value = arg + length + 1;
        return true;
    }
    if (arg[length] != '\0')
        return false;
    if (i + 1 >= argc) {
        value.clear();
        return true;
    }
    value = argv[++i];
    return true;
}

// Returns an exit status other than exitOk on a command-line error.
int ParseArguments(int argc, char** argv, Options& options)
{
    bool optionsEnded = false;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (!optionsEnded && arg.size() >= 2 && arg.compare(0, 2, "--") == 0) {
            std::string value;
            if (arg == "--") {
                optionsEnded = true;
            } else if (arg == "--help") {
                options.help = true;
            } else if (arg == "--interactive") {
                options.interactive = true;
            } else if (OptionValue(argc, argv, i, "--sweep", value)) {
                if (value.empty())
                    return UsageError("--sweep needs NAME=START:END:STEP");
                if (options.sweep)
                    return UsageError("--sweep may be given only once");
                options.sweep = true;
                options.sweepSpec = value;
            } else if (OptionValue(argc, argv, i, "--digits", value)) {
                double digits = 0.0;
                if (!ParseNumber(value, digits) || digits != std::floor(digits) || digits < 1 ||
                    digits > 17)
                    return UsageError("--digits needs a whole number from 1 to 17");
                options.digits = static_cast<int>(digits);
            } else {
                return UsageError("unknown option '" + arg + "'");
            }
            continue;
        }
        if (!options.haveExpression) {
            options.expression = arg;
            options.haveExpression = true;
        } else {
            options.assignments.push_back(arg);
        }
    }
    return exitOk;
}

int ParseSweep(const std::string& text, Sweep& sweep)
{
    const size_t equals = text.find('=');
    if (equals == std::string::npos || equals == 0)
        return UsageError("--sweep needs NAME=START:END:STEP, got '" + text + "'");
    sweep.name = text.substr(0, equals);
    const std::string range = text.substr(equals + 1);
    const size_t colon1 = range.find(':');
    const size_t colon2 = colon1 == std::string::npos ? colon1 : range.find(':', colon1 + 1);
    if (colon2 == std::string::npos ||
        !ParseNumber(range.substr(0, colon1), sweep.start) ||
        !ParseNumber(range.substr(colon1 + 1, colon2 - colon1 - 1), sweep.end) ||
        !ParseNumber(range.substr(colon2 + 1), sweep.step))
        return UsageError("--sweep needs NAME=START:END:STEP with three numbers, got '" + text +
                          "'");
    const long maxRows = 1000000;
    // A step that falls a hair short of END still reaches it.
    const double steps = (sweep.end - sweep.start) / sweep.step;
    if (sweep.step == 0.0 || !std::isfinite(steps) || steps < -1e-9)
        return UsageError("the --sweep step must be non-zero and lead from START to END");
    if (steps > maxRows)
        return UsageError("--sweep would give more than a million values");
    sweep.count = static_cast<long>(std::floor(steps + 1e-9)) + 1;
    return exitOk;
}

int ReportCalcError(const Calculator& calc, const char* prefix)
{
    std::fprintf(stderr, "korvex-calc: %s%s (error %d, near line %d)\n", prefix,
                 calc.GetErrorMessage(calc.GetErrorID()), calc.GetErrorID(), calc.GetErrorLineNo());
    return exitExpression;
}

int FindVariable(Calculator& calc, const std::string& name)
{
    const std::string wanted = VariableName(name);
    for (int i = 0; i < calc.GetNumberOfVariables(); ++i)
        if (wanted == calc.GetVariableName(i))
            return i;
    return -1;
}

int RunInteractive()
{
    Calculator calc;
    calc.Test();
    return calc.GetErrorID() == 0 ? exitOk : exitExpression;
}

int Run(const Options& options)
{
    Sweep sweep;
    if (options.sweep) {
        const int status = ParseSweep(options.sweepSpec, sweep);
        if (status != exitOk)
            return status;
    }

    // Input upper-cases its argument in place, so it gets a copy.
    std::vector<char> text(options.expression.begin(), options.expression.end());
    text.push_back('\0');
    Calculator calc;
    if (!calc.Input(text.data()))
        return ReportCalcError(calc, "");

    const int count = calc.GetNumberOfVariables();
    double values[Calculator::maxVariables] = {};
    bool given[Calculator::maxVariables] = {};
    for (const std::string& assignment : options.assignments) {
        const size_t equals = assignment.find('=');
        if (equals == std::string::npos || equals == 0)
            return UsageError("expected NAME=VALUE after the expression, got '" + assignment + "'");
        const std::string name = assignment.substr(0, equals);
        const int index = FindVariable(calc, name);
        if (index < 0)
            return UsageError("the expression has no variable '" + name + "'");
        if (given[index])
            return UsageError(std::string("variable ") + calc.GetVariableName(index) +
                              " is given more than once");
        if (!ParseNumber(assignment.substr(equals + 1), values[index]))
            return UsageError("'" + assignment.substr(equals + 1) + "' is not a number (for " +
                              calc.GetVariableName(index) + ")");
        given[index] = true;
    }

    int sweepIndex = -1;
    if (options.sweep) {
        sweepIndex = FindVariable(calc, sweep.name);
        if (sweepIndex < 0)
            return UsageError("the expression has no variable '" + sweep.name + "' to sweep");
        if (given[sweepIndex])
            return UsageError(std::string("variable ") + calc.GetVariableName(sweepIndex) +
                              " is both swept and given a value");
        given[sweepIndex] = true;
    }
    for (int i = 0; i < count; ++i)
        if (!given[i])
            return UsageError(std::string("no value for variable ") + calc.GetVariableName(i) +
                              " (give " + calc.GetVariableName(i) + "=VALUE)");

    if (!options.sweep) {
        calc.Assign(values);
        if (!calc.Compute() || calc.GetErrorID() != 0)
            return ReportCalcError(calc, "");
        std::printf("%s\n", Format(calc.GetResult(), options.digits).c_str());
        return exitOk;
    }

    // An error found while evaluating stays recorded in the calculator; a
    // copy of the parsed state lets each row start clean without parsing
    // again.
    const Calculator parsed = calc;
    const std::string sweepName = calc.GetVariableName(sweepIndex);
    const int width = sweepName.size() > 14 ? static_cast<int>(sweepName.size()) : 14;
    std::printf("%-*s  %s\n", width, sweepName.c_str(), options.expression.c_str());
    int status = exitOk;
    for (long k = 0; k < sweep.count; ++k) {
        values[sweepIndex] = k + 1 == sweep.count && sweep.count > 1 &&
                                     std::fabs(sweep.start + k * sweep.step - sweep.end) <
                                         1e-9 * std::fabs(sweep.step)
                                 ? sweep.end
                                 : sweep.start + k * sweep.step;
        calc.Assign(values);
        const std::string x = Format(values[sweepIndex], options.digits);
        if (calc.Compute() && calc.GetErrorID() == 0) {
            std::printf("%-*s  %s\n", width, x.c_str(), Format(calc.GetResult(), options.digits).c_str());
        } else {
            std::printf("%-*s  %s\n", width, x.c_str(), "error");
            std::fflush(stdout);
            const std::string where = sweepName + "=" + x + ": ";
            status = ReportCalcError(calc, where.c_str());
            calc = parsed;
        }
    }
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    const int status = ParseArguments(argc, argv, options);
    if (status != exitOk)
        return status;
    if (options.help) {
        std::fputs(usageText, stdout);
        return exitOk;
    }
    if (options.interactive) {
        if (options.haveExpression || options.sweep)
            return UsageError("--interactive takes no expression; it reads one from standard input");
        return RunInteractive();
    }
    if (!options.haveExpression)
        return UsageError("no expression given");
    return Run(options);
}
