#pragma once

#include "mascot/ctl_Bubble.h"
#include "visual/FormTest.h"

#include <memory>
#include <string>
#include <vector>

namespace phial
{

/// A balloon of 120 by 80 pixels at (20, 10) on a form that counts in twips. A letter is 4 pixels wide and a
/// line 10 high.
class BubbleTest : public test::FormTest
{
protected:
    BubbleTest()
    {
        bubble->Move(20 * 15, 10 * 15, 120 * 15, 80 * 15);
        connections += bubble->PropertyChanged.connect([this](const String& name) { told.push_back(name); });
    }

    /// The last picture.
    std::string drawn()
    {
        const std::string all = outside.visual().drawing(*bubble);
        return all.substr(all.rfind("clear"));
    }
    /// Gives each property a value that is not the default of reading, which a fresh SHADOW has.
    void changeEverything()
    {
        bubble->ZIP(false);
        bubble->ZIPSIDE(enm_BallonZipSide::ID_BallonZipSide_TopRight);
        bubble->ZIPDISTANCE(0);
        bubble->ZIPSIZE(1);
        bubble->AUTOSIZE(true);
        bubble->TEXTCOLOR(QBColor(1));
        bubble->TEXT(u"Hallo");
        bubble->TEXTALIGN(TEXTALIGN::BottomRight);
        bubble->TEXTMARGIN(6);
        bubble->BORDERROUND(0);
        bubble->BORDERCOLOR(QBColor(2));
        bubble->SHADOWCOLOR(QBColor(3));
        bubble->SHADOWOFFX(-7);
        bubble->SHADOWOFFY(8);
        bubble->SHADOWALT(true);
        bubble->FILLCOLOR(QBColor(4));
        bubble->TEXTFONT()->Size(12);
    }
    /// How often it has been painted.
    std::ptrdiff_t paintings()
    {
        const std::string all = outside.visual().drawing(*bubble);
        std::ptrdiff_t count = 0;
        for (auto at = all.find("clear"); at != std::string::npos; at = all.find("clear", at + 1)) {
            ++count;
        }
        return count;
    }
    std::shared_ptr<ctl_Label> label()
    {
        return std::dynamic_pointer_cast<ctl_Label>(bubble->container()->controls().front());
    }
    PixelSize size() { return bubble->surface().size(); }
    /// Gives the text room to fit in and lets it.
    PixelSize fitted(String text)
    {
        bubble->AUTOSIZE(true);
        bubble->TEXT(std::move(text));
        return size();
    }

    std::shared_ptr<ctl_Bubble> bubble = form->add<ctl_Bubble>(u"ctl_Bubble1");
    std::vector<String> told;
};

} // namespace phial
