#include "common/FrameTexts.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/NumberText.h"
#include "visual/Form.h"
#include "visual/ctl_Label.h"

namespace learning
{

using phial::String;
using phial::StringView;

String translate(StringView german, StringView english, const phial::Variant::Array& values)
{
    return phial::LNG()->TRANSLATE(german, english, values);
}

String translate(StringView both, const phial::Variant::Array& values)
{
    const String text = phial::LNG()->TRANSLATEAUTO(both);
    return phial::LNG()->TRANSLATE(text, text, values);
}

String number(int value)
{
    return phial::plainText(static_cast<std::int32_t>(value));
}

char16_t decimalSign()
{
    return phial::LNG()->EFFECTIVE() == phial::ID_Language_German ? u',' : u'.';
}

void caption(const phial::Form& form, StringView label, String text)
{
    form.control<phial::ctl_Label>(label)->Caption(std::move(text));
}

} // namespace learning
