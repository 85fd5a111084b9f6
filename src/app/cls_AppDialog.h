#pragma once

namespace phial
{

/// The root's dialogs, `QVAPP().DIALOG()`. It holds no state: each call makes a fresh form and returns when
/// that has been closed.
class cls_AppDialog
{
public:
    /// Tells about the program.
    void ABOUT() const;

    /// Shows or hides the desktop's taskbar; nothing happens where there is none.
    void TASKBARVISIBLE(bool value) const;
};

} // namespace phial
