#pragma once

namespace phial::qt
{

/// Keeps what the toolkit's sound module writes about servers that are not there or have gone out of the
/// error stream: a computer without sound is nothing that a user of the program could mend. All other
/// messages go where they went before. Further calls do nothing.
void silenceSoundModule();

} // namespace phial::qt
