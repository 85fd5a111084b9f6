#include "dialogs/TargetText.h"

#include "core/RuntimeError.h"
#include "core/Variant.h"
#include "visual/Font.h"
#include "visual/RichText.h"

#include <algorithm>
#include <optional>

namespace phial
{

namespace
{

struct TargetKind {
    StringView typeName;
    StringView property;
    bool isRich = false;
    bool hasLines = true; ///< where it does not say so itself
};

constexpr TargetKind TargetKinds[] = {
    {.typeName = u"clt_TermInput", .property = u"Term", .hasLines = false},
    {.typeName = u"Label", .property = u"Caption"},
    {.typeName = u"RichTextbox", .property = u"TextRTF", .isRich = true},
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

String TargetText::read() const
{
    String text;
    if (const ObjectPtr control = target()) {
        ignoringErrors([&] {
            const TargetKind& kind = kindOf(*control);
            text = tryGet(*control, kind.property).value_or(Variant(u"")).toText();
            if (kind.isRich && isRichText(text)) {
                text = richTextToPlain(text);
            }
        });
    }
    return text;
}

void TargetText::write(const String& text) const
{
    if (const ObjectPtr control = target()) {
        ignoringErrors([&] {
            const TargetKind& kind = kindOf(*control);
            trySet(*control, kind.property, kind.isRich ? toRichText(text, fontOf(control)) : text);
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
    if (const auto said = valueOf(control, u"MultiLine"); said && lines) {
        ignoringErrors([&] { lines = said->toBoolean(); });
    }
    return lines;
}

std::int32_t TargetText::maxLength() const
{
    std::int32_t length = 0;
    ignoringErrors([&] { length = valueOf(target(), u"MaxLength").value_or(Variant(0)).toWhole(); });
    return std::max(0, length);
}

bool TargetText::locked() const
{
    bool isLocked = false;
    ignoringErrors([&] { isLocked = valueOf(target(), u"Locked").value_or(Variant(false)).toBoolean(); });
    return isLocked;
}

String TargetText::passwordChar() const
{
    String shown;
    ignoringErrors([&] { shown = valueOf(target(), u"PasswordChar").value_or(Variant(u"")).toText(); });
    return shown;
}

} // namespace phial
