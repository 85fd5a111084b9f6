#pragma once

#include "qt/desktop/DesktopDialogs.h"
#include "qt/desktop/PrintedDialogs.h"
#include "qt/desktop/ShotBook.h"

namespace phial::qt
{

/// The boxes of a run that takes pictures: shown while a book takes a modal window and will close it, printed
/// at all other times, since nobody is there to close them.
class ShotDialogs final : public CoreDialogs
{
public:
    void Info(StringView pText, StringView pTitle, StringView pIcon) override
    {
        now().Info(pText, pTitle, pIcon);
    }
    void Error(StringView pText, StringView pTitle) override { now().Error(pText, pTitle); }
    DialogAnswer YesNo(StringView pText, StringView pTitle) override { return now().YesNo(pText, pTitle); }
    void Text(StringView pText, StringView pTitle) override { now().Text(pText, pTitle); }
    String SaveFile(StringView pFolder, StringView pTitle, StringView pFilter) override
    {
        return now().SaveFile(pFolder, pTitle, pFilter);
    }
    void Done(StringView pText) override { now().Done(pText); }
    String Input(StringView pPrompt, StringView pTitle, StringView pDefault) override
    {
        return now().Input(pPrompt, pTitle, pDefault);
    }

private:
    CoreDialogs& now()
    {
        if (ShotBook::isTakingModal()) {
            return shown_;
        }
        return printed_;
    }

    DesktopDialogs shown_;
    PrintedDialogs printed_;
};

} // namespace phial::qt
