// The calculator's console dialogue on the standard streams.
#include "korvex/classes.hpp"

#include <cstdio>

namespace {

void PrintError(const Calculator& calc)
{
    std::printf("\nERROR : %s\nNear Line %d\n", calc.GetErrorMessage(calc.GetErrorID()),
                calc.GetErrorLineNo());
}

} // namespace

void Calculator::Test()
{
    const int lineSize = 1000;
    char line[lineSize];

    std::printf("Input a expression: \n");
    std::fflush(stdout);
    // At the end of the input the line is empty, which parses as an error.
    if (std::fgets(line, lineSize, stdin) == nullptr)
        line[0] = '\0';
    if (!Input(line)) {
        PrintError(*this);
        std::fflush(stdout);
        return;
    }

    if (variableCount > 0) {
        std::printf("\nThere seems to be %d Variable(s) in your expression, please input them :\n",
                    variableCount);
        double entered[maxVariables];
        for (int i = 0; i < variableCount; ++i) {
            std::printf("No.%d  %s = ", i + 1, names[i]);
            std::fflush(stdout);
            entered[i] = 0.0;
            if (std::scanf("%lf", &entered[i]) != 1)
                entered[i] = 0.0;
        }
        Assign(entered);
    }

    if (Compute())
        std::printf("Answer: %g\n", result);
    else
        PrintError(*this);
    std::fflush(stdout);
}
