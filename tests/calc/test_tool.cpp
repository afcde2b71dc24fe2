// korvex-calc run as a separate process, the console dialogue included.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#ifndef KORVEX_CALC_TOOL
#error "KORVEX_CALC_TOOL must name the korvex-calc executable"
#endif

namespace {

using Shown = std::pair<int, std::string>;  // exit status and standard output

struct Outcome {
    int status;
    std::string out, err;
    Shown shown() const { return {status, out}; }
};

std::string Quote(const std::string& arg)
{
    std::string quoted = "'";
    for (char c : arg)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

std::string Slurp(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    std::remove(path.c_str());
    return text.str();
}

Outcome RunTool(const std::vector<std::string>& args, const std::string& input = "")
{
    const std::string base = testing::TempDir() + "korvex_calc." + std::to_string(getpid()) + ".";
    const std::string in = base + "in", out = base + "out", err = base + "err";
    std::ofstream(in, std::ios::binary) << input;
    std::string command = Quote(KORVEX_CALC_TOOL);
    for (const std::string& arg : args)
        command += " " + Quote(arg);
    command += " <" + Quote(in) + " >" + Quote(out) + " 2>" + Quote(err);
    const int raw = std::system(command.c_str());
    std::remove(in.c_str());
    return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, Slurp(out), Slurp(err)};
}

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

} // namespace

TEST(CalcTool, EvaluatesWithVariablesByName)
{
    const Outcome o = RunTool({"a*x+b", "a=2", "b=1", "x=3"});
    EXPECT_EQ(o.shown(), Shown(0, "7\n"));
    EXPECT_EQ(o.err, "");
    EXPECT_EQ(RunTool({"2^3^2"}).out, "512\n");
    EXPECT_EQ(RunTool({"a*x+b_1", "X=3", "B_1=1", "A=2"}).out, "7\n");
    // Rounding noise of the degree factor stays below the default digits.
    EXPECT_EQ(RunTool({"sin(30)"}).out, "0.5\n");
    EXPECT_EQ(RunTool({"--digits", "3", "1/3"}).out, "0.333\n");
    EXPECT_EQ(RunTool({"--digits=17", "0.1"}).out, "0.10000000000000001\n");
    EXPECT_EQ(RunTool({"-2^2"}).out, "4\n");
    EXPECT_EQ(RunTool({"--", "--3"}).out, "3\n");
}

TEST(CalcTool, SweepsOneVariable)
{
    EXPECT_EQ(RunTool({"--sweep", "X=0:90:15", "sin(X)^2"}).shown(),
              Shown(0, "X               sin(X)^2\n"
                       "0               0\n"
                       "15              0.0669872981078\n"
                       "30              0.25\n"
                       "45              0.5\n"
                       "60              0.75\n"
                       "75              0.933012701892\n"
                       "90              1\n"));
    EXPECT_EQ(RunTool({"--sweep", "t=1:0:-0.5", "t"}).out,
              "T               t\n1               1\n0.5             0.5\n0               0\n");

    // Other variables keep their values; a failing row is marked and the
    // later rows start clean.
    const Outcome o = RunTool({"k/x", "--sweep=x=-1:1:1", "k=2"});
    EXPECT_EQ(o.shown(),
              Shown(2, "X               k/x\n-1              -2\n0               error\n1               2\n"));
    EXPECT_TRUE(Has(o.err, "devide by zero") && Has(o.err, "420")) << o.err;
}

TEST(CalcTool, ReportsErrorsWithStatus)
{
    // Expression errors: the calculator's message and site, status 2.
    Outcome o = RunTool({"2X"});
    EXPECT_EQ(o.shown(), Shown(2, ""));
    EXPECT_TRUE(Has(o.err, "missing operator") && Has(o.err, "209")) << o.err;
    EXPECT_EQ(RunTool({"1/0"}).status, 2);

    // Command-line errors: status 1 and a message naming the problem.
    o = RunTool({"a+1", "b=2"});
    EXPECT_TRUE(o.status == 1 && Has(o.err, "no variable 'b'")) << o.status << " " << o.err;
    o = RunTool({"a+b", "a=1"});
    EXPECT_TRUE(o.status == 1 && Has(o.err, "no value for variable B")) << o.status << " " << o.err;
    const std::vector<std::vector<std::string>> bad = {
        {}, {"a+1", "a="}, {"a+1", "a=1x"}, {"a+1", "a=1", "a=2"}, {"1", "2"},
        {"--bogus", "1"}, {"--digits", "18", "1"}, {"--interactive", "1+1"},
        {"--sweep", "Y=0:1:1", "x"}, {"--sweep", "x=0:1:0", "x"}, {"--sweep", "x=0:1:-1", "x"},
        {"--sweep", "x=0:1", "x"}, {"--sweep", "x=0:1:1", "x", "x=3"},
    };
    for (const std::vector<std::string>& args : bad)
        EXPECT_EQ(RunTool(args).status, 1) << (args.empty() ? "" : args[0]);

    o = RunTool({"--help"});
    EXPECT_EQ(o.status, 0);
    for (const char* word : {"--sweep", "--interactive", "--digits", "NAME=VALUE", "Exit status"})
        EXPECT_TRUE(Has(o.out, word)) << word;
}

TEST(CalcTool, InteractiveDialogue)
{
    const auto dialogue = [](const std::string& input) { return RunTool({"--interactive"}, input).shown(); };
    EXPECT_EQ(dialogue("a+b*a\n2\n3\n"),
              Shown(0, "Input a expression: \n"
                       "\nThere seems to be 2 Variable(s) in your expression, please input them :\n"
                       "No.1  A = No.2  B = Answer: 8\n"));
    // The stream's default format: six significant digits.
    EXPECT_EQ(dialogue("1/3\n"), Shown(0, "Input a expression: \nAnswer: 0.333333\n"));
    // A division by zero still gives an answer (the tool's status tells).
    EXPECT_EQ(dialogue("1/0\n"), Shown(2, "Input a expression: \nAnswer: 0\n"));

    EXPECT_EQ(dialogue("(1\n"),
              Shown(2, "Input a expression: \n\nERROR : missing right paraenthesis\nNear Line 380\n"));
    EXPECT_EQ(dialogue(""), Shown(2, "Input a expression: \n\nERROR : missing operand\nNear Line 326\n"));
    // The line end read with the text counts towards the 500 characters.
    EXPECT_EQ(dialogue(std::string(500, '1') + "\n"),
              Shown(2, "Input a expression: \n\nERROR : expression too long\nNear Line 394\n"));
}
