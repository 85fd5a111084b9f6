#include "qt/base/DispatchGuard.h"

#include "core/RuntimeError.h"

#include <cstdio>
#include <string>

namespace phial::qt
{

namespace
{

String textOf(const std::exception& error)
{
    if (const auto* raised = dynamic_cast<const RuntimeError*>(&error)) {
        return raised->Description() + u" (" + fromUtf8(std::to_string(raised->Number())) + u")";
    }
    return fromUtf8(error.what());
}

void print(const String& text)
{
    std::fprintf(stderr, "%s\n", toUtf8(text).c_str());
}

} // namespace

DispatchGuard::DispatchGuard() : reporter_(print) {}

void DispatchGuard::report(const std::exception& error) noexcept
{
    try {
        const String text = textOf(error);
        if (reporting_) {
            print(text);
            return;
        }
        reporting_ = true;
        reporter_(text);
    } catch (...) {
        std::fputs("An error could not be reported.\n", stderr);
    }
    reporting_ = false;
}

} // namespace phial::qt
