#pragma once

#include "core/RuntimeError.h"
#include "visual/Font.h"

#include <functional>
#include <utility>

namespace phial
{

/// The font of a control: an object that it shares with whoever set it, and the ear for its changes. Never
/// empty once it has been given a font.
class SharedFont
{
public:
    const FontPtr& pointer() const { return font_; }
    const Font* operator->() const { return font_.get(); }
    Font* operator->() { return font_.get(); }

    /// Shares that font: `changed` runs whenever one of its attributes changes. Null raises 91.
    void share(FontPtr font, std::function<void()> changed)
    {
        if (!font) {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        }
        font_ = std::move(font);
        changed_ = font_->changed.connect(std::move(changed));
    }

private:
    FontPtr font_;
    Connection changed_;
};

} // namespace phial
