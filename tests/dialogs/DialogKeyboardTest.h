#pragma once

#include "dialogs/KeyNumbers.h"
#include "dialogs/KeyboardRun.h"
#include "dialogs/frm_DialogKeyboard.h"

namespace phial::test
{

/// The keyboard for texts.
class DialogKeyboardTest : public KeyboardRun<frm_DialogKeyboard>
{
protected:
    KeyState state(Modifier modifier) { return keyPad()->board().state(modifier); }
    String face(std::int32_t index) { return keyPad()->board().face(index).text; }
};

} // namespace phial::test
