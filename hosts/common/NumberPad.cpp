#include "common/NumberPad.h"

#include "app/cls_App.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "media/cls_AppMedia.h"

namespace learning
{

NumberPad::NumberPad(phial::Form& form, std::shared_ptr<phial::TextBox> answer)
    : answer_(std::move(answer)), keys_(form, u"but_Key")
{
    keys_.adopt();
    keys_.connectEach([this](phial::ctl_Button& button, std::int32_t index) {
        return button.CLICK.connect([this, index] { press(index); });
    });
}

void NumberPad::Enabled(bool value)
{
    keys_.each([value](phial::ctl_Button& key, std::int32_t) { key.Enabled(value); });
}

void NumberPad::TRANSLATE()
{
    keys_.each([](phial::ctl_Button& key, std::int32_t index) {
        const phial::StringView face = Faces[index];
        key.Caption(face == u"," ? phial::String(1, decimalSign()) : phial::String(face));
    });
    keys_(keys_.UBound())
        ->frame()
        .AccessibleName(translate(u"Letztes Zeichen löschen", u"Delete last character"));
}

void NumberPad::press(std::int32_t index)
{
    if (answer_->Locked()) {
        return;
    }
    phial::QVAPP()->MEDIA()->CLICK();
    if (index == keys_.UBound()) {
        if (answer_->SelLength() == 0 && answer_->SelStart() > 0) {
            answer_->SelStart(answer_->SelStart() - 1);
            answer_->SelLength(1);
        }
        answer_->SelText({});
    } else if (static_cast<std::int32_t>(answer_->Text().size()) - answer_->SelLength() <
               answer_->MaxLength()) {
        answer_->SelText(keys_(index)->Caption());
    }
    answer_->SetFocus();
}

} // namespace learning
