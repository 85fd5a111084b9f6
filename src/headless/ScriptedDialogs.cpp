#include "headless/ScriptedDialogs.h"

#include "core/RuntimeError.h"

#include <utility>

namespace phial::headless
{

namespace
{

void raise(const String& failure)
{
    throw RuntimeError(ErrorNumber::InvalidArgument, failure);
}

String described(Box box, const String& text)
{
    return String(boxName(box)) + u" box \"" + text + u"\"";
}

} // namespace

StringView boxName(Box box)
{
    switch (box) {
    case Box::Info:
        return u"Info";
    case Box::Error:
        return u"Error";
    case Box::YesNo:
        return u"YesNo";
    case Box::Text:
        return u"Text";
    case Box::SaveFile:
        return u"SaveFile";
    case Box::Done:
        return u"Done";
    case Box::Input:
        return u"Input";
    }
    return u"unknown";
}

ScriptedDialogs::ScriptedDialogs(FailureHandler onFailure)
    : onFailure_(onFailure ? std::move(onFailure) : FailureHandler(raise))
{
}

void ScriptedDialogs::expect(Box box, String text)
{
    script_.push_back({box, std::move(text), {}, DialogAnswer::No});
}

void ScriptedDialogs::expectYesNo(DialogAnswer answer, String text)
{
    script_.push_back({Box::YesNo, std::move(text), {}, answer});
}

void ScriptedDialogs::expectInput(String answer, String prompt)
{
    script_.push_back({Box::Input, std::move(prompt), std::move(answer), DialogAnswer::No});
}

void ScriptedDialogs::expectSaveFile(String answer)
{
    script_.push_back({Box::SaveFile, {}, std::move(answer), DialogAnswer::No});
}

void ScriptedDialogs::checkDone()
{
    for (const Step& step : std::exchange(script_, {})) {
        onFailure_(u"expected but not shown: " + described(step.box, step.text));
    }
}

ScriptedDialogs::Step ScriptedDialogs::show(ShownBox box)
{
    const Box kind = box.box;
    const String text = box.text;
    shown_.push_back(std::move(box));
    const bool expected = !script_.empty() && script_.front().box == kind &&
                          (script_.front().text.empty() || script_.front().text == text);
    if (!expected) {
        const String instead =
            script_.empty() ? String(u"none") : described(script_.front().box, script_.front().text);
        onFailure_(u"unexpected " + described(kind, text) + u", expected: " + instead);
        return {};
    }
    Step step = std::move(script_.front());
    script_.pop_front();
    return step;
}

void ScriptedDialogs::Info(StringView pText, StringView pTitle, StringView pIcon)
{
    show({Box::Info, String(pText), String(pTitle), String(pIcon)});
}

void ScriptedDialogs::Error(StringView pText, StringView pTitle)
{
    show({Box::Error, String(pText), String(pTitle), {}});
}

DialogAnswer ScriptedDialogs::YesNo(StringView pText, StringView pTitle)
{
    return show({Box::YesNo, String(pText), String(pTitle), {}}).choice;
}

void ScriptedDialogs::Text(StringView pText, StringView pTitle)
{
    show({Box::Text, String(pText), String(pTitle), {}});
}

String ScriptedDialogs::SaveFile(StringView pFolder, StringView pTitle, StringView pFilter)
{
    return show({Box::SaveFile, String(pFolder), String(pTitle), String(pFilter)}).answer;
}

void ScriptedDialogs::Done(StringView pText)
{
    show({Box::Done, String(pText), {}, {}});
}

String ScriptedDialogs::Input(StringView pPrompt, StringView pTitle, StringView pDefault)
{
    return show({Box::Input, String(pPrompt), String(pTitle), String(pDefault)}).answer;
}

} // namespace phial::headless
