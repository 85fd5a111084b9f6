#include "server/frm_NetMonitor.h"

#include "app/FormTexts.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Format.h"
#include "server/NetMonitorDesign.h"

#include <algorithm>

namespace phial
{

namespace monitor_design = net_monitor_design;

namespace
{

StringView sign(TrafficKind kind)
{
    switch (kind) {
    case TrafficKind::Sent:
        return u"→";
    case TrafficKind::Received:
        return u"←";
    case TrafficKind::Note:
        break;
    }
    return u"•";
}

/// The text of a line; a note is in both languages.
String textOf(const TrafficLine& line)
{
    return line.kind == TrafficKind::Note ? LNG()->TRANSLATEAUTO(line.text) : line.text;
}

/// As the list shows it, where a line end would tear it.
String listed(const TrafficLine& line)
{
    String text = formatPattern(Variant(line.time), u"hh:mm:ss") + u"  " + String(sign(line.kind)) + u"  " +
                  line.peer + u"  " + textOf(line);
    std::ranges::replace_if(
        text, [](char16_t unit) { return unit < u' '; }, u' ');
    return text;
}

} // namespace

frm_NetMonitor::frm_NetMonitor(std::shared_ptr<TrafficLog> traffic)
    : traffic_(std::move(traffic)), form_(monitor_design::Design),
      lines_(form_->control<ListBox>(u"lst_Lines"))
{
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->Resize, [this] { resize(); });
    form_.on(lines_->Click, [this] { showChosen(); });
    form_.command(u"bar_Buttons", monitor_design::Clear, [this] { traffic_->clear(); });
    form_.command(u"bar_Buttons", monitor_design::Close, [this] { form_->Unload(); });
    form_.on(traffic_->ADDED, [this](const TrafficLine& line) { add(line); });
    form_.on(traffic_->CLEARED, [this] { fill(); });
    TRANSLATE();
}

void frm_NetMonitor::Show()
{
    form_->Show();
}

void frm_NetMonitor::TRANSLATE()
{
    translateForm(form_);
    fill();
}

void frm_NetMonitor::fill()
{
    lines_->Clear();
    for (const TrafficLine& line : traffic_->lines()) {
        lines_->AddItem(listed(line));
    }
    lines_->ListIndex(lines_->ListCount() - 1);
    showChosen();
}

// The log may have dropped its oldest line for this one.
void frm_NetMonitor::add(const TrafficLine& line)
{
    const bool follows = lines_->ListIndex() == lines_->ListCount() - 1;
    lines_->AddItem(listed(line));
    while (lines_->ListCount() > static_cast<std::int32_t>(traffic_->lines().size())) {
        lines_->RemoveItem(0);
    }
    if (follows) {
        lines_->ListIndex(lines_->ListCount() - 1);
    }
    showChosen();
}

void frm_NetMonitor::showChosen()
{
    const std::int32_t chosen = lines_->ListIndex();
    const bool isLine = chosen >= 0 && chosen < static_cast<std::int32_t>(traffic_->lines().size());
    form_->control<TextBox>(u"txt_Line")
        ->Text(isLine ? textOf(traffic_->lines()[static_cast<std::size_t>(chosen)]) : String());
}

void frm_NetMonitor::resize()
{
    const PixelSize size = form_->innerSize();
    const double moreWidth = size.width - monitor_design::Width;
    const double moreHeight = size.height - monitor_design::Height;
    for (const ControlDesign& item : monitor_design::Controls) {
        const bool isTitle = item.name == u"lab_Lines";
        const bool isList = item.name == u"lst_Lines";
        form_->control<Control>(item.name)->Move(
            item.place.left, item.place.top + (isTitle || isList ? 0 : moreHeight),
            std::max(0.0, item.place.width + moreWidth),
            std::max(0.0, item.place.height + (isList ? moreHeight : 0)));
    }
}

std::function<void()> netMonitorWindow(std::shared_ptr<TrafficLog> traffic)
{
    return [window = std::make_shared<frm_NetMonitor>(std::move(traffic))] { window->Show(); };
}

} // namespace phial
