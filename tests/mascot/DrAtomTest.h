#pragma once

#include "app/AppTest.h"
#include "headless/Hand.h"
#include "mascot/ctl_Bubble.h"
#include "mascot/ctl_DrAtom.h"
#include "support/Raises.h"
#include "visual/Form.h"

#include <gmock/gmock-more-matchers.h>
#include <string>
#include <vector>

namespace phial
{

/// A mascot at (10, 20) pixels and its balloon, on a form that is not shown yet. Random numbers are 0.5, with
/// which nothing blinks.
class DrAtomTest : public AppTest
{
protected:
    DrAtomTest()
    {
        start();
        const String gfx = QVAPP()->URL()->RESOURCEGFX();
        outside.visual().addPicture(nativePath(gfx + u"atom_head.png"), disc(100, 36));
        outside.visual().addPicture(nativePath(gfx + u"atom_electron.png"), disc(11, 5));
        form = std::make_shared<Form>(u"frm_Test");
        form->ScaleMode(ScaleUnit::Pixels);
        atom = form->add<ctl_DrAtom>(u"dra_Host");
        atom->Move(10, 20, 30, 40);
        bubble = form->add<ctl_Bubble>(u"bub_Host");
        bubble->Visible(false);
        atom->BUBBLE(u"bub_Host");
        connections += atom->PropertyChanged.connect([this](const String& name) { told.push_back(name); });
    }
    void TearDown() override
    {
        form->discard();
        AppTest::TearDown();
    }

    /// A picture that is see-through around a black square in its middle.
    static PicturePtr disc(double edge, double half)
    {
        auto picture = std::make_shared<Picture>(PixelSize{edge, edge});
        const auto first = static_cast<std::size_t>(edge / 2 - half);
        const auto last = static_cast<std::size_t>(edge / 2 + half);
        for (std::size_t row = first; row < last; ++row) {
            for (std::size_t column = first; column < last; ++column) {
                picture->pixels()[row * picture->columns() + column] = 0xFF000000;
            }
        }
        return picture;
    }

    void ticks(int count = 1)
    {
        for (int tick = 0; tick < count; ++tick) {
            outside.advance(0.05);
        }
    }
    /// What is painted now.
    std::string drawn()
    {
        const std::string all = outside.visual().drawing(*atom);
        outside.visual().recording(atom->surface().image(1))->forget();
        if (const auto last = all.rfind("clear"); last != std::string::npos) {
            picture_ = all.substr(last);
        }
        return picture_;
    }
    /// The radius of the eyes in the picture; 0 where they are closed.
    int eyesShown()
    {
        const std::string picture = drawn();
        const auto eye = picture.find("arc ");
        return picture.find("line 31,31 - 37,31") != std::string::npos
                   ? 0
                   : std::stoi(picture.substr(picture.find(" r", eye) + 2));
    }
    PropertyBag bag()
    {
        PropertyBag all;
        atom->writeProperties(all);
        return all;
    }
    std::shared_ptr<Form> form;
    std::shared_ptr<ctl_DrAtom> atom;
    std::shared_ptr<ctl_Bubble> bubble;
    std::vector<String> told;
    Connections connections;

private:
    std::string picture_;
};

} // namespace phial
