#pragma once

#include "qt/desktop/Theme.h"

namespace phial::qt
{

/// Held while one of the system's own boxes is shown (a message, a question, a file dialog). Such a box takes
/// the activation from the form that asked for it, which is no deactivation of that form.
class SystemBox
{
public:
    SystemBox()
    {
        ensureTheme();
        ++count();
    }
    ~SystemBox() { --count(); }
    SystemBox(const SystemBox&) = delete;
    SystemBox& operator=(const SystemBox&) = delete;

    static bool isOpen() { return count() > 0; }

private:
    static int& count()
    {
        static int open = 0;
        return open;
    }
};

} // namespace phial::qt
