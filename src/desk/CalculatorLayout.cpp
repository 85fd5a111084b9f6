#include "desk/CalculatorLayout.h"

#include "calc/CalculatorDisplay.h"
#include "desk/CalculatorDesign.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace phial
{

namespace calc_design = tool_calc_design;

namespace
{

constexpr double SideLeft = calc_design::CalcWidth;

void place(const Form& form, StringView name, const PixelRectangle& area)
{
    form.control<Control>(name)->frame().pixelRectangle(area);
}

/// The task's text over the whole width; gives the bar's height, 0 without a task.
double layOutTask(const Form& form, double width)
{
    const auto label = form.control<ctl_Label>(u"lab_Task");
    const bool isThere = !trimmed(label->Caption()).empty();
    form.control<Control>(u"bar_Task")->Visible(isThere);
    if (!isThere) {
        return 0;
    }
    label->frame().pixelRectangle({calc_design::Margin, calc_design::Gap, width - 2 * calc_design::Margin,
                                   label->frame().pixelRectangle().height});
    const double height = label->frame().pixelRectangle().height + 2 * calc_design::Gap;
    place(form, u"bar_Task", {0, 0, width, height});
    return height;
}

/// Each memory's two keys side by side, in so many columns.
void layOutMemories(const Form& form, PixelPoint corner, double width, std::int32_t columns)
{
    using namespace calc_design;
    const double step = (width + Gap) / columns;
    for (std::int32_t memory = 0; memory < CalculatorDisplay::Memories; ++memory) {
        const std::int32_t row = memory / columns;
        const double left = corner.x + (memory % columns) * step;
        const double top = corner.y + row * (MemoryHeight + Gap);
        form.control<Control>(u"but_Key", FirstStoreKey + memory)
            ->frame()
            .pixelRectangle({left, top, StoreWidth, MemoryHeight});
        const double recallLeft = left + StoreWidth + Gap / 2;
        form.control<Control>(u"but_Recall", memory)
            ->frame()
            .pixelRectangle({recallLeft, top, left + step - Gap - recallLeft, MemoryHeight});
    }
}

void layOutSide(const Form& form, double top, CalculatorSide side)
{
    using namespace calc_design;
    const bool isTable = side == CalculatorSide::Table;
    const double width = isTable ? TableWidth : TapeWidth;
    const std::int32_t columns = isTable ? CalculatorDisplay::Memories : 1;
    const std::int32_t rows = CalculatorDisplay::Memories / columns;
    const double memoriesHeight = rows * (MemoryHeight + Gap) - Gap;
    const double memoriesTop = top + CalcHeight - Margin - memoriesHeight;
    layOutMemories(form, {SideLeft, memoriesTop}, width, columns);
    const double listTop = top + Margin + TapeTitleHeight;
    place(form, u"lab_Tape", {SideLeft, top + Margin, TapeWidth, TapeTitleHeight});
    place(form, u"lst_Tape", {SideLeft, listTop, TapeWidth, memoriesTop - Gap - listTop});
    place(form, u"ctl_PSE", {SideLeft, top + Margin, TableWidth, memoriesTop - Gap - top - Margin});
    form.control<Control>(u"lab_Tape")->Visible(!isTable);
    form.control<Control>(u"lst_Tape")->Visible(!isTable);
    form.control<Control>(u"ctl_PSE")->Visible(isTable);
}

std::vector<std::shared_ptr<ctl_Button>> variableKeys(const Form& form)
{
    std::vector<std::shared_ptr<ctl_Button>> keys;
    for (;;) {
        auto key = std::dynamic_pointer_cast<ctl_Button>(
            form.find(u"but_Var", static_cast<std::int32_t>(keys.size())));
        if (!key) {
            return keys;
        }
        keys.push_back(std::move(key));
    }
}

/// As wide as the longest of them needs, as many in a row as have room. Gives the bar's height, 0 without
/// variables.
double layOutVariables(const Form& form, double top, double width)
{
    using namespace calc_design;
    const auto keys = variableKeys(form);
    form.control<Control>(u"bar_Var")->Visible(!keys.empty());
    if (keys.empty()) {
        return 0;
    }
    const double room = width - 2 * Margin;
    double widest = LeastVariableWidth;
    for (const auto& key : keys) {
        const double text = visualHost().metrics().face(key->Font()->traits())->width(key->Caption());
        widest = std::max(widest, std::ceil(text) + 2 * Margin);
    }
    const auto columns =
        std::max(1, static_cast<std::int32_t>((room + Gap) / (std::min(widest, room) + Gap)));
    const double step = (room + Gap) / columns;
    for (std::size_t at = 0; at < keys.size(); ++at) {
        const auto index = static_cast<std::int32_t>(at);
        const std::int32_t row = index / columns;
        keys[at]->frame().pixelRectangle({Margin + (index % columns) * step,
                                          Gap + row * (VariableHeight + Gap), step - Gap, VariableHeight});
    }
    const auto rows = (static_cast<std::int32_t>(keys.size()) + columns - 1) / columns;
    const double height = Gap + rows * (VariableHeight + Gap);
    place(form, u"bar_Var", {0, top, width, height});
    return height;
}

} // namespace

void layOutCalculator(Form& form, CalculatorSide side)
{
    using namespace calc_design;
    const double width = SideLeft + (side == CalculatorSide::Table ? TableWidth : TapeWidth) + Margin;
    const double top = layOutTask(form, width);
    place(form, u"bar_Calc", {0, top, CalcWidth, CalcHeight});
    layOutSide(form, top, side);
    const double bottom = top + CalcHeight;
    form.innerSize({width, bottom + layOutVariables(form, bottom, width)});
}

} // namespace phial
