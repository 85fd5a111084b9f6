#pragma once

namespace phial::qt
{

/// Puts the toolkit's own texts, such as those of file dialogs and of the menus of text fields, in the
/// language of the open session. Does nothing when they are already, or when the toolkit was installed
/// without that language.
void useSessionLanguage();

/// Whether the session's language is German, as it is without a session.
bool isGerman();

} // namespace phial::qt
