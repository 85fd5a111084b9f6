#include "dialogs/TargetText.h"

#include "core/RuntimeError.h"
#include "core/Variant.h"
#include "visual/Container.h"
#include "visual/Control.h"
#include "visual/Font.h"
#include "visual/RichText.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace phial
{

namespace
{

struct TargetKind {
    StringView typeName;
    StringView property;
    bool isRich = false;
    bool hasLines = true; ///< where it does not say so itself
    StringView field{};   ///< within it, which has the property
    StringView settle{};  ///< the operation behind a write
};

constexpr TargetKind TargetKinds[] = {
    {.typeName = u"clt_TermInput", .property = u"Term", .hasLines = false},
    {.typeName = u"Label", .property = u"Caption"},
    {.typeName = u"RichTextbox", .property = u"TextRTF", .isRich = true},
    {.typeName = u"ctl_QVInput", .property = u"Text", .field = u"txt_Input", .settle = u"UPDATE"},
};
constexpr TargetKind AnyTarget{.typeName = {}, .property = u"TEXT"};

const TargetKind& kindOf(const Object& target)
{
    const auto* known = std::ranges::find_if(TargetKinds, [&](const TargetKind& kind) {
        return equalsIgnoringCase(kind.typeName, target.typeName());
    });
    return known == std::end(TargetKinds) ? AnyTarget : *known;
}

/// No value for a property that is missing or cannot be read.
std::optional<Variant> valueOf(const ObjectPtr& target, StringView property)
{
    std::optional<Variant> value;
    if (target) {
        ignoringErrors([&] { value = tryGet(*target, property); });
    }
    return value;
}

FontSpec fontOf(const ObjectPtr& target)
{
    const std::optional<Variant> value = valueOf(target, u"Font");
    const auto font = value ? std::dynamic_pointer_cast<Font>(value->object()) : nullptr;
    return font ? font->traits() : FontSpec();
}

} // namespace

ObjectPtr TargetText::edited() const
{
    const ObjectPtr whole = target();
    const StringView field = whole ? kindOf(*whole).field : StringView();
    if (field.empty()) {
        return whole;
    }
    auto* holder = dynamic_cast<Control*>(whole.get());
    const Container* inside = holder ? holder->container() : nullptr;
    const auto within = inside ? inside->controls() : std::vector<ControlPtr>();
    const auto found = std::ranges::find_if(
        within, [&](const ControlPtr& control) { return equalsIgnoringCase(control->NAME(), field); });
    return found == within.end() ? nullptr : *found;
}

String TargetText::read() const
{
    String text;
    if (const ObjectPtr field = edited()) {
        ignoringErrors([&] {
            const TargetKind& kind = kindOf(*target());
            text = tryGet(*field, kind.property).value_or(Variant(u"")).toText();
            if (kind.isRich && isRichText(text)) {
                text = richTextToPlain(text);
            }
        });
    }
    return text;
}

void TargetText::write(const String& text) const
{
    if (const ObjectPtr field = edited()) {
        ignoringErrors([&] {
            const ObjectPtr whole = target();
            const TargetKind& kind = kindOf(*whole);
            trySet(*field, kind.property, kind.isRich ? toRichText(text, fontOf(whole)) : text);
            if (!kind.settle.empty()) {
                tryCall(*whole, kind.settle);
            }
        });
    }
}

bool TargetText::takesLines() const
{
    const ObjectPtr control = target();
    if (!control) {
        return true;
    }
    bool lines = kindOf(*control).hasLines && passwordChar().empty();
    if (const auto said = valueOf(edited(), u"MultiLine"); said && lines) {
        ignoringErrors([&] { lines = said->toBoolean(); });
    }
    return lines;
}

std::int32_t TargetText::maxLength() const
{
    std::int32_t length = 0;
    ignoringErrors([&] { length = valueOf(edited(), u"MaxLength").value_or(Variant(0)).toWhole(); });
    return std::max(0, length);
}

bool TargetText::locked() const
{
    bool isLocked = false;
    ignoringErrors([&] { isLocked = valueOf(edited(), u"Locked").value_or(Variant(false)).toBoolean(); });
    return isLocked;
}

String TargetText::passwordChar() const
{
    String shown;
    ignoringErrors([&] { shown = valueOf(edited(), u"PasswordChar").value_or(Variant(u"")).toText(); });
    return shown;
}

} // namespace phial
