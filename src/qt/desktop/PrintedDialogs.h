#pragma once

#include "core/CoreDialogs.h"

namespace phial::qt
{

/// Boxes for a run that nobody watches: each is a line on the standard error stream, questions are answered
/// with No and inputs are cancelled.
class PrintedDialogs final : public CoreDialogs
{
public:
    void Info(StringView pText, StringView pTitle, StringView pIcon) override;
    void Error(StringView pText, StringView pTitle) override;
    DialogAnswer YesNo(StringView pText, StringView pTitle) override;
    void Text(StringView pText, StringView pTitle) override;
    String SaveFile(StringView pFolder, StringView pTitle, StringView pFilter) override;
    void Done(StringView pText) override;
    String Input(StringView pPrompt, StringView pTitle, StringView pDefault) override;
};

} // namespace phial::qt
