#pragma once

#include "core/Colour.h"
#include "core/Event.h"
#include "core/String.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace phial
{

/// A colour of the theme by its use.
enum class ThemeSlot : std::uint8_t {
    Accent,    ///< what is chosen or active
    Frame,     ///< ground of titles and command bars
    FrameText, ///< text upon it
};

/// The colours of the styled controls, and the set in which all is shown.
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

    /// The set in which the palette's roles and the desktop's slots are shown: the chosen one, or else the
    /// desktop's.
    ColourSet Colours() const { return chosen_.value_or(desktop_); }
    /// None, as at first: the desktop's choice is followed.
    std::optional<ColourSet> chosenColours() const { return chosen_; }
    void SetColours(std::optional<ColourSet> pChosen);
    /// For the adapter: what the desktop's own windows are like; by daylight until it is told.
    void desktopColours(ColourSet pSet);
    /// Another set is shown. What is open is painted anew by itself; a handler is for pictures that were made
    /// of symbolic colours.
    Event<ColourSet> COLOURSCHANGED;

    /// Counts both kinds of change, so that what has been painted can tell whether it still holds.
    std::uint32_t changes() const { return changes_; }

private:
    void tellFrom(ColourSet before);

    static constexpr std::size_t SlotCount = 3;
    std::array<phial::Colour, SlotCount> colours_;
    std::optional<ColourSet> chosen_;
    ColourSet desktop_ = ColourSet::Light;
    std::uint32_t changes_ = 0;
};

} // namespace phial
