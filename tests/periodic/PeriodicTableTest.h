#pragma once

#include "chem/cls_DataElement.h"
#include "core/NativePath.h"
#include "media/MediaTest.h"
#include "periodic/ctl_PSE.h"
#include "support/Places.h"
#include "visual/Form.h"

#include <string>
#include <vector>

namespace phial
{

inline constexpr double TableCell = 32; ///< pixels

/// A fresh table on a form, with the installed elements at hand.
class PeriodicTableTest : public MediaTest
{
protected:
    PeriodicTableTest()
    {
        form->ScaleMode(ScaleUnit::Pixels);
        table = form->add<ctl_PSE>(u"frm_P");
        connections += table->CLICK.connect([this](const auto& element) { tell("click", *element); });
        connections += table->CLICKAGAIN.connect([this](const auto& element) { tell("again", *element); });
        connections += table->CLICKOUTSIDE.connect([this] { log.emplace_back("outside"); });
    }

    ~PeriodicTableTest() override { form->discard(); }

    void tell(const char* what, const cls_DataElement& element)
    {
        log.push_back(what + (" " + toUtf8(element.SYMBOL())));
    }

    static String elementFile()
    {
        return systemPath(test::sourceFolder() / "resources" / "data" / "elements2.dat");
    }
    void load() { table->LOAD(elementFile()); }
    std::string drawn()
    {
        const std::string all = outside.visual().drawing(*table);
        return all.substr(all.rfind("clear"));
    }
    /// What is drawn of the cell with this text.
    std::string cell(const std::string& text)
    {
        const std::string all = drawn();
        const std::size_t at = all.find("\"" + text + "\" Calibri");
        if (at == std::string::npos) {
            return "";
        }
        const std::size_t begin = all.rfind("\nclip", at) + 1;
        const std::string end = "clip none\n";
        return all.substr(begin, all.find(end, at) + end.size() - begin);
    }
    /// The middle of an element's cell.
    static PointerEvent over(std::int32_t column, std::int32_t row)
    {
        return {PointerButton::Left, 0, (column + 1.5) * TableCell, (row + 2.5) * TableCell};
    }
    void point(std::int32_t column, std::int32_t row)
    {
        PointerEvent event = over(column, row);
        event.Button = PointerButton::None;
        static_cast<Control&>(*table).pointerMove(event);
    }
    void press(const PointerEvent& event)
    {
        Control& control = *table;
        control.pointerDown(event);
        control.pointerUp(event);
    }

    std::vector<std::string> log;
    std::shared_ptr<Form> form = std::make_shared<Form>(u"frm_Test");
    std::shared_ptr<ctl_PSE> table;
    Connections connections;
};

/// Where there is no element.
inline constexpr PointerEvent BesideTable{PointerButton::Left, 0, 8 * TableCell, 2.5 * TableCell};

} // namespace phial
