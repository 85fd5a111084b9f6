#include "calc/CalculatorLine.h"
#include "core/Platform.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

int main(int argumentCount, char** arguments)
{
    try {
        std::ios::sync_with_stdio(false); // so that the streams notice errors of the files below them
        const std::vector<std::string> texts(arguments + 1, arguments + argumentCount);
        const phial::Platform platform = phial::withDefaults(phial::Platform());
        phial::calcline::CalculatorLine calculator(std::cin, std::cout, std::cerr, platform.random);
        return static_cast<int>(calculator.run(texts));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "phial-calc: %s\n", error.what());
        return static_cast<int>(phial::calcline::CalculatorLine::ExitStatus::TermFailed);
    }
}
