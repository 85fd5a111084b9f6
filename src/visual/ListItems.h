#pragma once

#include "core/Variant.h"

#include <cstdint>
#include <span>
#include <vector>

namespace phial
{

/// The lines of a list or combo box, counted from 0, with the chosen one. Keeps the choice on its line when
/// lines come and go.
class ListItems
{
public:
    std::int32_t count() const { return static_cast<std::int32_t>(lines_.size()); }
    /// Raises 9 outside.
    const String& line(std::int32_t index) const;
    void line(std::int32_t index, String value);
    std::int32_t data(std::int32_t index) const;
    void data(std::int32_t index, std::int32_t value);
    /// At the end, or before the line `index`; raises 9 for an index that is neither.
    void add(String value, std::int32_t index = -1);
    void remove(std::int32_t index);
    void clear();

    /// -1 for none.
    std::int32_t chosen() const { return chosen_; }
    /// Gives whether it differs; raises 380 outside -1 to the last line.
    bool choose(std::int32_t index);

    /// `AddItem(text)` and `AddItem(text, index)` of a list that is reached by name; raises 5 for other
    /// arguments.
    template <typename List>
    static Variant addByName(List& list, std::span<const Variant> arguments)
    {
        if (arguments.empty() || arguments.size() > 2) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
        list.AddItem(arguments[0].toText(), arguments.size() == 2 ? arguments[1].toWhole() : -1);
        return {};
    }

private:
    struct Line {
        String text;
        std::int32_t data = 0;
    };
    std::size_t checked(std::int32_t index) const;

    std::vector<Line> lines_;
    std::int32_t chosen_ = -1;
};

} // namespace phial
