#pragma once

#include "term/clt_TermInput.h"
#include "visual/FormTest.h"

#include <cstdio>
#include <optional>

namespace phial::test
{

/// A term field of 200 by 40 pixels in Tahoma 20 on an open form, so that a character is 10 pixels wide, and
/// another control that can have the focus.
class TermFieldTest : public FormTest
{
protected:
    TermFieldTest()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        field->Move(10, 20, 200, 40);
        field->TEXTFONT()->Size(20);
        logs(field->CHANGED, "changed");
        logs(field->ENTER, "enter");
        logs(field->Cancel, "cancel");
        logs(field->CLICK, "click");
        logs(field->DBLCLICK, "double");
        form->Show();
        other->SetFocus();
    }

    /// The term is set, the caret stands there, and the field has the focus.
    void edit(StringView term, std::int32_t caret)
    {
        field->Term(String(term));
        field->SetFocus();
        field->CARET(caret);
    }

    /// The term with "|" at the caret's index.
    String shown() { return field->Term().insert(static_cast<std::size_t>(field->CARET()), u"|"); }

    /// What was drawn last.
    std::string drawn()
    {
        const std::string all = outside.visual().drawing(*field);
        return all.substr(all.rfind("clear"));
    }

    /// X of the drawn caret, a line over the field's height but 3 pixels above and below.
    std::optional<double> caretX()
    {
        const std::string lines = drawn();
        double x = 0;
        for (std::size_t at = lines.find("line "); at != std::string::npos;
             at = lines.find("line ", at + 1)) {
            double endX = 0;
            if (std::sscanf(lines.c_str() + at, "line %lf,3 - %lf,36 ", &x, &endX) == 2 && x == endX) {
                return x;
            }
        }
        return std::nullopt;
    }

    PointerEvent at(double x) const { return {PointerButton::Left, 0, x, 20}; }

    std::shared_ptr<clt_TermInput> field = form->add<clt_TermInput>(u"trm_Input");
    std::shared_ptr<TextBox> other = form->add<TextBox>(u"txt_Other");
};

} // namespace phial::test
