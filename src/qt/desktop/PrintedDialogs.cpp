#include "qt/desktop/PrintedDialogs.h"

#include <cstdio>

namespace phial::qt
{

namespace
{

void print(StringView text)
{
    std::fprintf(stderr, "%s\n", toUtf8(text).c_str());
}

} // namespace

void PrintedDialogs::Info(StringView pText, StringView, StringView)
{
    print(pText);
}

void PrintedDialogs::Error(StringView pText, StringView)
{
    print(pText);
}

DialogAnswer PrintedDialogs::YesNo(StringView pText, StringView)
{
    print(pText);
    return DialogAnswer::No;
}

void PrintedDialogs::Text(StringView pText, StringView)
{
    print(pText);
}

String PrintedDialogs::SaveFile(StringView, StringView pTitle, StringView)
{
    print(pTitle);
    return {};
}

void PrintedDialogs::Done(StringView pText)
{
    print(pText);
}

String PrintedDialogs::Input(StringView pPrompt, StringView, StringView)
{
    print(pPrompt);
    return {};
}

} // namespace phial::qt
