// Parsing of calculator expressions: filtering, tokenising and conversion to
// postfix order with an operator stack and two priorities per token.
#include "calc/tokens.hpp"

#include <cctype>
#include <cstdlib>
#include <cstring>

const char* const calc::keywords[calc::keywordCount] = {
    "SIN", "COS", "TAN", "SQR", "LOG10", "LOG", "COT", "ABS", "INT",
    "ARCSIN", "ARCCOS", "ARCTAN", "SINH", "COSH", "TANH", "EXP", "SQRT",
};

namespace {

const char* const acceptedCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789+-*/()^.";
const char* const operatorCharacters = "+-*/^";
// A sign after one of these (or at the start) may open a number literal.
const char* const signContext = "+-*/^(";

const int errorTooLong = 1;
const int errorMissingOperand = 2;
const int errorMissingOperator = 3;
const int errorMissingLeft = 4;
const int errorMissingRight = 5;
const int errorUnknownOperator = 7;
const int errorTooManyVariables = 10;
const int errorNameTooLong = 11;

// Priorities: a token arriving at the operator stack pops every token whose
// stack priority is at least its own arriving priority. "^" arrives higher
// than it lies (right-associative), "(" arrives highest and lies lowest.
const int parenIn = 6, parenStack = -1;
const int additiveIn = 1, additiveStack = 1;
const int multiplicativeIn = 2, multiplicativeStack = 2;
const int powerIn = 4, powerStack = 3;
const int prefixIn = 5, prefixStack = 4; // unary signs and functions

bool IsIn(char c, const char* set) { return c != '\0' && std::strchr(set, c) != nullptr; }

bool IsDigitOrPoint(char c) { return (c >= '0' && c <= '9') || c == '.'; }

bool IsLetter(char c) { return c >= 'A' && c <= 'Z'; }

// Whether the character at pos belongs to a number literal: a digit or a
// point, or a sign in front of one that cannot be a binary operator (at the
// start of the text the sign is its own predecessor).
bool IsNumberChar(const char* text, int pos)
{
    const char c = text[pos];
    if (IsDigitOrPoint(c))
        return true;
    if (c != '-' && c != '+')
        return false;
    const char before = pos == 0 ? c : text[pos - 1];
    return IsIn(before, signContext) && IsDigitOrPoint(text[pos + 1]);
}

int FindKeyword(const char* name)
{
    for (int i = 0; i < calc::keywordCount; ++i)
        if (std::strcmp(name, calc::keywords[i]) == 0)
            return i;
    return -1;
}

} // namespace

bool Calculator::Input(char* text)
{
    Clear();
    if (text == nullptr) {
        SetError(errorMissingOperand, 326);
        return false;
    }
    if (std::strlen(text) > static_cast<size_t>(maxTextLength)) {
        SetError(errorTooLong, 394);
        return false;
    }

    int length = 0;
    for (char* p = text; *p != '\0'; ++p) {
        *p = static_cast<char>(std::toupper(static_cast<unsigned char>(*p)));
        if (IsIn(*p, acceptedCharacters))
            expression[length++] = *p;
    }
    expression[length] = '\0';

    TokenQueue infix;
    if (Tokenise(infix))
        ToPostfix(infix);
    return errorId == 0;
}

bool Calculator::Tokenise(TokenQueue& infix)
{
    const char* const text = expression;
    if (text[0] == '\0') {
        SetError(errorMissingOperand, 326);
        return false;
    }

    int balance = 0; // operands minus binary operators so far
    int pos = 0;
    while (text[pos] != '\0') {
        const char c = text[pos];

        if (IsNumberChar(text, pos)) {
            char literal[maxTextLength + 2];
            int n = 0;
            while (text[pos] != '\0' && IsNumberChar(text, pos))
                literal[n++] = text[pos++];
            literal[n] = '\0';
            // The standard conversion stops where the number ends: 1.2.3 is 1.2.
            infix.Enqueue(calc::MakeToken(calc::codeNumber, 0, 0, std::strtod(literal, nullptr)));
            if (++balance >= 2) {
                SetError(errorMissingOperator, 257);
                return false;
            }
            continue;
        }

        if (c == '(' || c == ')') {
            if (c == '(')
                infix.Enqueue(calc::MakeToken(calc::codeLeftParen, parenIn, parenStack));
            else
                infix.Enqueue(calc::MakeToken(calc::codeRightParen, 0, 0));
            ++pos;
            continue;
        }

        // An operator character on its own, or an identifier.
        char word[maxNameLength + 2];
        int n = 0;
        if (IsIn(c, operatorCharacters)) {
            word[n++] = text[pos++];
        } else {
            while (IsLetter(text[pos]) || (text[pos] >= '0' && text[pos] <= '9')) {
                word[n++] = text[pos++];
                if (n > maxNameLength) {
                    SetError(errorNameTooLong, 148);
                    return false;
                }
            }
        }
        word[n] = '\0';

        if (n == 1 && !IsLetter(word[0])) {
            Token token;
            if (balance == 1) {
                switch (word[0]) {
                case '+': token = calc::MakeToken(calc::codePlus, additiveIn, additiveStack); break;
                case '-': token = calc::MakeToken(calc::codeMinus, additiveIn, additiveStack); break;
                case '*': token = calc::MakeToken(calc::codeTimes, multiplicativeIn, multiplicativeStack); break;
                case '/': token = calc::MakeToken(calc::codeDivide, multiplicativeIn, multiplicativeStack); break;
                case '^': token = calc::MakeToken(calc::codePower, powerIn, powerStack); break;
                default:
                    SetError(errorUnknownOperator, 167);
                    return false;
                }
            } else {
                // No operand before it: only a sign can stand here.
                if (word[0] == '-') {
                    token = calc::MakeToken(calc::codeNegate, prefixIn, prefixStack);
                } else if (word[0] == '+') {
                    token = calc::MakeToken(calc::codeUnaryPlus, prefixIn, prefixStack);
                } else {
                    SetError(errorUnknownOperator, 177);
                    return false;
                }
            }
            infix.Enqueue(token);
            if (token.code >= calc::codePlus && token.code <= calc::codeLastBinary && --balance < 0) {
                SetError(errorMissingOperand, 277);
                return false;
            }
            continue;
        }

        const int keyword = FindKeyword(word);
        if (keyword >= 0) {
            infix.Enqueue(calc::MakeToken(calc::codeFirstFunction + keyword, prefixIn, prefixStack));
            continue;
        }

        int index = -1;
        for (int i = 0; i < variableCount; ++i)
            if (std::strcmp(names[i], word) == 0)
                index = i;
        const bool known = index >= 0;
        if (!known) {
            if (variableCount >= maxVariables) {
                SetError(errorTooManyVariables, 214);
                return false;
            }
            index = variableCount++;
            std::strcpy(names[index], word);
        }
        infix.Enqueue(calc::MakeToken(calc::codeFirstVariable + index, 0, 0));
        if (++balance >= 2) {
            SetError(errorMissingOperator, known ? 195 : 209);
            return false;
        }
    }

    if (balance != 1) {
        SetError(errorMissingOperand, 326);
        return false;
    }
    return true;
}

void Calculator::ToPostfix(TokenQueue& infix)
{
    postfix.Clear();
    TokenStack stack;
    while (!infix.IsEmpty()) {
        const Token token = infix.Dequeue();
        if (token.code < calc::codeLeftParen) {
            postfix.Enqueue(token);
        } else if (stack.IsEmpty()) {
            // Even a ")" is simply pushed when nothing is open; it is then
            // carried to the postfix form, where it does nothing.
            stack.Push(token);
        } else if (token.code == calc::codeRightParen) {
            for (;;) {
                if (stack.IsEmpty()) {
                    SetError(errorMissingLeft, 360);
                    return;
                }
                if (stack.Peek().code == calc::codeLeftParen)
                    break;
                postfix.Enqueue(stack.Pop());
            }
            stack.Pop();
        } else {
            while (!stack.IsEmpty() && stack.Peek().stackPriority >= token.inPriority)
                postfix.Enqueue(stack.Pop());
            stack.Push(token);
        }
    }
    // Everything left goes to the postfix form; an unclosed "(" is reported
    // but carried along like the rest (evaluation skips it), so every
    // operator still follows its operands.
    while (!stack.IsEmpty()) {
        if (stack.Peek().code == calc::codeLeftParen)
            SetError(errorMissingRight, 380);
        postfix.Enqueue(stack.Pop());
    }
}
