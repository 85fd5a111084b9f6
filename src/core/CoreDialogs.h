#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// What a yes/no box answers.
enum class DialogAnswer : std::int32_t { Yes = 6, No = 7 };

/// The boxes in which the system speaks to the user. All are modal: the call returns when the user has
/// answered, and events of the program run meanwhile. An empty title stands for the program's name.
class CoreDialogs
{
public:
    virtual ~CoreDialogs() = default;

    /// An information box. `pIcon` is the path of a picture, below the resources' pictures where it does not
    /// begin at a root; the usual sign stands in for one that is empty or leads to no picture.
    virtual void Info(StringView pText, StringView pTitle = {}, StringView pIcon = {}) = 0;

    virtual void Error(StringView pText, StringView pTitle = {}) = 0;

    /// Closing the box without a choice answers No.
    virtual DialogAnswer YesNo(StringView pText, StringView pTitle = {}) = 0;

    /// A box for a long text, with a way to scroll and to copy it.
    virtual void Text(StringView pText, StringView pTitle = {}) = 0;

    /// Asks for a file to write, beginning in that folder. A name behind the folder's last backslash is
    /// proposed, unless it has wildcards. The filter has pairs of name and pattern, such as
    /// "Textdatei|*.txt". Gives the chosen path as the system writes paths, or the empty text when the user
    /// cancels.
    virtual String SaveFile(StringView pFolder, StringView pTitle, StringView pFilter) = 0;

    /// A short confirmation that goes by itself or by a click, such as "Gespeichert".
    virtual void Done(StringView pText) = 0;

    /// Asks for a line of text. Gives the empty text when the user cancels.
    virtual String Input(StringView pPrompt, StringView pTitle = {}, StringView pDefault = {}) = 0;
};

} // namespace phial
