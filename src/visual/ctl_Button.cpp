#include "visual/ctl_Button.h"

#include "visual/PropertyRows.h"

namespace phial
{

struct ctl_Button::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Caption">(&ctl_Button::caption_).reports(ControlAspect::Text),
        rows::property<u"Picture">(&ctl_Button::picture_).reports(ControlAspect::Picture),
        rows::font<u"Font">(&ctl_Button::font_),
        rows::property<u"Accent">(&ctl_Button::accent_),
    };
};

ctl_Button::ctl_Button() : frame_(*this)
{
    frame_.canFocus(true);
    rows::start<Properties>(*this);
}

MemberTable ctl_Button::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_Button::Caption(String value) { rows::set<Properties, u"Caption">(*this, std::move(value)); }
void ctl_Button::Picture(PicturePtr value) { rows::set<Properties, u"Picture">(*this, std::move(value)); }
void ctl_Button::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void ctl_Button::Accent(bool value) { rows::set<Properties, u"Accent">(*this, value); }
// clang-format on

} // namespace phial
