#pragma once

#include "core/Colour.h"
#include "core/Event.h"
#include "core/String.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace phial
{

/// A colour of the theme by its use.
enum class ThemeSlot : std::uint8_t {
    Accent,    ///< what is chosen or active
    Frame,     ///< ground of titles and command bars
    FrameText, ///< text upon it
};

/// The colours of the styled controls.
class CoreTheme
{
public:
    /// Until they are set the slots hold the desktop's colours for the same use.
    CoreTheme();

    phial::Colour Colour(ThemeSlot pSlot) const;
    void SetColour(ThemeSlot pSlot, phial::Colour pColour);
    /// From a text such as "#383838"; raises 5 for anything else.
    void SetColour(ThemeSlot pSlot, StringView pHtml);

    /// A slot got another colour.
    Event<ThemeSlot> CHANGED;

private:
    static constexpr std::size_t SlotCount = 3;
    std::array<phial::Colour, SlotCount> colours_;
};

} // namespace phial
