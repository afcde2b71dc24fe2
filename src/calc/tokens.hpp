// Token codes and priorities shared by the calculator's parser and evaluator.
#ifndef KORVEX_SRC_CALC_TOKENS_HPP
#define KORVEX_SRC_CALC_TOKENS_HPP

#include "korvex/classes.hpp"

namespace calc {

// Token codes. Variables take 1..15 (index + 1), functions 51 + keyword index.
enum Code {
    codeNumber = 0,
    codeFirstVariable = 1,
    codeLeftParen = 20,
    codePlus = 21,
    codeMinus = 22,
    codeTimes = 23,
    codeDivide = 24,
    codePower = 25,
    codeLastBinary = 39,
    codeRightParen = 40,
    codeNegate = 41,
    codeUnaryPlus = 42,
    codeFirstFunction = 51
};

const int keywordCount = 17;

// Upper-case function names; the position gives the code codeFirstFunction + i.
extern const char* const keywords[keywordCount];

inline Token MakeToken(int code, int inPriority, int stackPriority, double value = 0.0)
{
    Token t;
    t.code = code;
    t.inPriority = inPriority;
    t.stackPriority = stackPriority;
    t.value = value;
    return t;
}

} // namespace calc

#endif // KORVEX_SRC_CALC_TOKENS_HPP
