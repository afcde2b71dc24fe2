// korvex-calc run as a separate process.
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#ifndef KORVEX_CALC_TOOL
#error "KORVEX_CALC_TOOL must name the korvex-calc executable"
#endif

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

std::string Quote(const std::string& arg)
{
    std::string quoted = "'";
    for (char c : arg) {
        if (c == '\'')
            quoted += "'\\''";
        else
            quoted += c;
    }
    return quoted + "'";
}

std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

Outcome RunTool(std::initializer_list<std::string> args, const std::string& input = "")
{
    const std::string base = testing::TempDir() + "korvex_calc_tool." + std::to_string(getpid()) + ".";
    const std::string in = base + "in", out = base + "out", err = base + "err";
    {
        std::ofstream file(in, std::ios::binary);
        file << input;
    }
    std::string command = Quote(KORVEX_CALC_TOOL);
    for (const std::string& arg : args)
        command += " " + Quote(arg);
    command += " <" + Quote(in) + " >" + Quote(out) + " 2>" + Quote(err);
    const int raw = std::system(command.c_str());
    Outcome o;
    o.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    o.out = ReadFile(out);
    o.err = ReadFile(err);
    std::remove(in.c_str());
    std::remove(out.c_str());
    std::remove(err.c_str());
    return o;
}

} // namespace

TEST(CalcTool, EvaluatesWithVariablesByName)
{
    Outcome o = RunTool({"2^3^2"});
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out, "512\n");
    EXPECT_EQ(o.err, "");

    o = RunTool({"a*x+b", "a=2", "b=1", "x=3"});
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out, "7\n");
    o = RunTool({"a*x+b", "X=3", "B=1", "A=2"});
    EXPECT_EQ(o.out, "7\n");

    // Rounding noise of the degree factor stays below the default digits.
    EXPECT_EQ(RunTool({"sin(30)"}).out, "0.5\n");
    EXPECT_EQ(RunTool({"--digits", "3", "1/3"}).out, "0.333\n");
    EXPECT_EQ(RunTool({"--digits=17", "0.1"}).out, "0.10000000000000001\n");
    EXPECT_EQ(RunTool({"-2^2"}).out, "4\n");
    EXPECT_EQ(RunTool({"--", "--3"}).out, "3\n");
}

TEST(CalcTool, SweepsOneVariable)
{
    Outcome o = RunTool({"--sweep", "X=0:90:15", "sin(X)^2"});
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out,
              "X               sin(X)^2\n"
              "0               0\n"
              "15              0.0669872981078\n"
              "30              0.25\n"
              "45              0.5\n"
              "60              0.75\n"
              "75              0.933012701892\n"
              "90              1\n");

    // Other variables keep their given values; a row that fails is marked
    // and the others go on.
    o = RunTool({"k/x", "--sweep=x=-1:1:1", "k=2"});
    EXPECT_EQ(o.status, 2);
    EXPECT_EQ(o.out,
              "X               k/x\n"
              "-1              -2\n"
              "0               error\n"
              "1               2\n");
    EXPECT_NE(o.err.find("devide by zero"), std::string::npos) << o.err;
    EXPECT_NE(o.err.find("420"), std::string::npos) << o.err;

    EXPECT_EQ(RunTool({"--sweep", "t=1:0:-0.5", "t"}).out, "T               t\n1               1\n0.5             0.5\n0               0\n");
}

TEST(CalcTool, ReportsErrorsWithStatus)
{
    // Expression errors: the calculator's message and site, status 2.
    Outcome o = RunTool({"2X"});
    EXPECT_EQ(o.status, 2);
    EXPECT_EQ(o.out, "");
    EXPECT_NE(o.err.find("missing operator"), std::string::npos) << o.err;
    EXPECT_NE(o.err.find("209"), std::string::npos) << o.err;
    o = RunTool({"1/0"});
    EXPECT_EQ(o.status, 2);
    EXPECT_NE(o.err.find("devide by zero"), std::string::npos) << o.err;

    // Command-line errors: status 1 and a message naming the problem.
    o = RunTool({"a+1", "b=2"});
    EXPECT_EQ(o.status, 1);
    EXPECT_NE(o.err.find("'b'"), std::string::npos) << o.err;
    o = RunTool({"a+b", "a=1"});
    EXPECT_EQ(o.status, 1);
    EXPECT_NE(o.err.find("no value for variable B"), std::string::npos) << o.err;
    o = RunTool({"a+1", "a="});
    EXPECT_EQ(o.status, 1);
    EXPECT_NE(o.err.find("not a number"), std::string::npos) << o.err;
    EXPECT_EQ(RunTool({"a+1", "a=1x"}).status, 1);
    EXPECT_EQ(RunTool({"a+1", "a=1", "a=2"}).status, 1);
    EXPECT_EQ(RunTool({"1", "2"}).status, 1);
    EXPECT_EQ(RunTool({}).status, 1);
    EXPECT_EQ(RunTool({"--bogus", "1"}).status, 1);
    EXPECT_EQ(RunTool({"--sweep", "Y=0:1:1", "x"}).status, 1);
    EXPECT_EQ(RunTool({"--sweep", "x=0:1:0", "x"}).status, 1);
    EXPECT_EQ(RunTool({"--sweep", "x=0:1:-1", "x"}).status, 1);
    EXPECT_EQ(RunTool({"--sweep", "x=0:1", "x"}).status, 1);
    EXPECT_EQ(RunTool({"--sweep", "x=0:1:1", "x", "x=3"}).status, 1);
    EXPECT_EQ(RunTool({"--digits", "18", "1"}).status, 1);
    EXPECT_EQ(RunTool({"--interactive", "1+1"}).status, 1);

    o = RunTool({"--help"});
    EXPECT_EQ(o.status, 0);
    for (const char* word : {"--sweep", "--interactive", "--digits", "NAME=VALUE", "Exit status"})
        EXPECT_NE(o.out.find(word), std::string::npos) << word;
}

TEST(CalcTool, InteractiveRunsTheDialogue)
{
    Outcome o = RunTool({"--interactive"}, "x*y\n2 3\n");
    EXPECT_EQ(o.status, 0);
    EXPECT_EQ(o.out,
              "Input a expression: \n"
              "\nThere seems to be 2 Variable(s) in your expression, please input them :\n"
              "No.1  X = No.2  Y = Answer: 6\n");
    o = RunTool({"--interactive"}, "(1\n");
    EXPECT_EQ(o.status, 2);
    EXPECT_EQ(o.out, "Input a expression: \n\nERROR : missing right paraenthesis\nNear Line 380\n");
}
