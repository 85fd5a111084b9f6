#pragma once

#include "core/Object.h"
#include "core/String.h"
#include "core/Variant.h"

namespace phial
{

class CoreParameters;

/// The root's dialogs, `QVAPP().DIALOG()`: the one door through which a program asks for a value on a touch
/// screen. It holds no state: each call makes a fresh form and returns when that has been closed. A form that
/// fails to load raises its error to the caller.
class cls_AppDialog
{
public:
    /// Lets the user edit the number in a control of the program's own (see dialogs/TargetText.h) on the pad
    /// for numbers (dialogs/frm_DialogNumericTouch.h); true when the user has confirmed, and the number then
    /// stands in the control as a plain text. An empty title asks in the usual words.
    ///
    /// Only in touch mode (CONFIG.TOUCHMODE). Otherwise there is no dialog and the answer is false, and a
    /// control of the exact type "TextBox" is made ready for typing (CoreTextBoxOps.Prepare).
    bool NUMBERINPUT(const ObjectPtr& pTextbox, const String& pTitle) const;

    /// The same for a number without a control, whatever the mode: the new number, or the old one, to 15
    /// digits, when the user has given up.
    double NUMBERINPUTDIRECT(double pOldValue, const String& pTitle) const;

    /// Lets the user edit the text of a control of the program's own (see dialogs/TargetText.h) on the
    /// keyboard for texts; true when the user has confirmed, and the text then stands in the control. An
    /// empty title asks in the usual words. Only in touch mode, as above.
    bool TEXTINPUT(const ObjectPtr& pTextbox, const String& pTitle) const;

    /// The same for a text without a control, whatever the mode: the new text, or the old one when the user
    /// has given up. It may have several lines, parted by CR LF.
    String TEXTINPUTDIRECT(const String& pOldValue, const String& pTitle) const;

    /// Lets the user edit the term of a control of the program's own (see dialogs/TermTarget.h) on the
    /// keyboard for terms, in each mode, since hardly any keyboard on the desk has its signs; true when the
    /// user has confirmed, and the term then stands in the control.
    bool TERMINPUT(const ObjectPtr& pTextbox, const String& pTitle) const;

    /// The same for a term without a control: the new term, or the old one when the user has given up.
    /// Another text than "PRESET" as last argument is what the caller then gets instead.
    String TERMINPUTDIRECT(const String& pPreset, const String& pTitle,
                           const String& pReturnOnAbort = u"PRESET") const;

    /// The same two with the periodic table as keyboard.
    bool PSEINPUT(const ObjectPtr& pTextbox, const String& pTitle) const;
    String PSEINPUTDIRECT(const String& pPreset, const String& pTitle,
                          const String& pReturnOnAbort = u"PRESET") const;

    /// Shows a folder of pictures as a book (see dialogs/frm_DialogHelpImages.h); an empty one is the
    /// program's own help. With the parameter "DELETE" as True the user may delete pages; "CHAPTER" names a
    /// sub-folder to begin with. Always empty.
    Variant HELPIMAGES(const String& pTitle, const String& pFolder = {},
                       const CoreParameters* pMore = nullptr) const;

    /// Lets the user write a text with markup (see visual/Markup.h), beginning with `pText`; `pDefText` says
    /// what is asked for, `pIcon` is the path of a picture. The text, or an empty variant when the user has
    /// given up: an accepted text without a letter is "".
    Variant MINIHTMLINPUT(const String& pText = {}, const String& pTitle = {}, const String& pDefText = {},
                          const String& pIcon = {}) const;

    /// Tells about the program.
    void ABOUT() const;

    /// Shows or hides the desktop's taskbar; nothing happens where there is none.
    void TASKBARVISIBLE(bool value) const;
};

} // namespace phial
