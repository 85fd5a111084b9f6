#pragma once

#include "core/CoreDialogs.h"

namespace phial::qt
{

/// The system's boxes as the toolkit's own, with buttons in the language of the session.
class DesktopDialogs final : public CoreDialogs
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

/// The filters of a file dialog as the toolkit writes them: pairs of name and pattern parted by "|" become
/// "name (pattern)" parted by ";;". A name without a pattern falls away.
String toolkitFilter(StringView pairs);

} // namespace phial::qt
