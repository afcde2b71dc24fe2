// The console dialogue, run in this process with standard input taken from a
// file and standard output captured.
#include <korvex/classes.hpp>

#include <gtest/gtest.h>

#include <unistd.h>

#include <cstdio>
#include <fstream>
#include <string>

namespace {

std::string Dialogue(const std::string& input)
{
    const std::string path = testing::TempDir() + "korvex_calc_dialogue." + std::to_string(getpid());
    {
        std::ofstream file(path, std::ios::binary);
        file << input;
    }
    if (std::freopen(path.c_str(), "r", stdin) == nullptr)
        return "<cannot redirect stdin>";
    testing::internal::CaptureStdout();
    Calculator calc;
    calc.Test();
    std::fflush(stdout);
    std::remove(path.c_str());
    return testing::internal::GetCapturedStdout();
}

} // namespace

TEST(CalculatorDialogue, PromptsForVariablesAndPrintsTheAnswer)
{
    EXPECT_EQ(Dialogue("a+b*a\n2\n3\n"),
              "Input a expression: \n"
              "\nThere seems to be 2 Variable(s) in your expression, please input them :\n"
              "No.1  A = No.2  B = Answer: 8\n");
    EXPECT_EQ(Dialogue("(1+2)*3\n"), "Input a expression: \nAnswer: 9\n");
    // The stream's default format: six significant digits.
    EXPECT_EQ(Dialogue("1/3\n"), "Input a expression: \nAnswer: 0.333333\n");
    // A division by zero still gives an answer.
    EXPECT_EQ(Dialogue("1/0\n"), "Input a expression: \nAnswer: 0\n");
}

TEST(CalculatorDialogue, ReportsParseErrorsWithTheirSite)
{
    EXPECT_EQ(Dialogue("2*(3\n"),
              "Input a expression: \n\nERROR : missing right paraenthesis\nNear Line 380\n");
    EXPECT_EQ(Dialogue(""), "Input a expression: \n\nERROR : missing operand\nNear Line 326\n");
    // The line end read with the text counts towards the 500 characters.
    EXPECT_EQ(Dialogue(std::string(500, '1') + "\n"),
              "Input a expression: \n\nERROR : expression too long\nNear Line 394\n");
}
