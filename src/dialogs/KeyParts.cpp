#include "dialogs/KeyParts.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/KeySpeech.h"

#include <utility>

namespace phial
{

namespace
{

NamedPart buttonOf(const PixelRectangle& area, String name, PartState state)
{
    return {.area = area,
            .role = PartRole::Button,
            .name = std::move(name),
            .action = LNG()->TRANSLATE(u"Drücken", u"Press"),
            .state = state};
}

PartState stateOf(const KeyBoard& board, std::int32_t index)
{
    const KeyState state = board.state(index);
    return {.pressed = state == KeyState::Once,
            .checkable = board.modifier(index).has_value(),
            .checked = state == KeyState::Locked};
}

} // namespace

std::vector<NamedPart> keyParts(const KeyBoard& board, const KeySheet& sheet,
                                const std::optional<VariantStrip>& strip)
{
    std::vector<NamedPart> all;
    for (const KeyDesign& key : board.keys()) {
        all.push_back(
            buttonOf(sheet.areaOf(key.index), spokenKey(board, key.index), stateOf(board, key.index)));
    }
    for (std::size_t at = 0; strip && at < strip->count(); ++at) {
        all.push_back(
            buttonOf(strip->cell(at), strip->variant(at).spoken, {.pressed = at == strip->chosen()}));
    }
    return all;
}

} // namespace phial
