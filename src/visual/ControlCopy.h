#pragma once

namespace phial
{

class Control;

/// Copies the properties of a control to another one of its class, through their member table: all that can
/// be read and written but NAME, Index and what holds it. Fonts are copied, not shared; pictures are shared.
void copyControl(const Control& from, Control& to);

} // namespace phial
