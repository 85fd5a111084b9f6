#include "server/frm_NetMonitor.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Format.h"
#include "server/NetMonitorLayout.h"
#include "visual/Form.h"

#include <algorithm>

namespace phial
{

namespace layout = net_monitor_layout;

namespace
{

constexpr StringView Clear = u"MONITOR.CLEAR();";
constexpr StringView Close = u"DIALOG.OK();";

constexpr Colour Paper = RGB(246, 249, 252);
constexpr Colour Dark = RGB(28, 40, 54);

FontPtr font(StringView name, double size, bool bold = false)
{
    return std::make_shared<Font>(FontSpec{.name = String(name), .size = size, .bold = bold});
}

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
    : traffic_(std::move(traffic)), form_(std::make_shared<Form>(u"frm_NetMonitor"))
{
    build();
    style();
    connect();
    TRANSLATE();
}

frm_NetMonitor::~frm_NetMonitor()
{
    form_->discard();
}

void frm_NetMonitor::Show()
{
    form_->Show();
}

void frm_NetMonitor::build()
{
    form_->ScaleMode(ScaleUnit::Pixels);
    form_->innerSize({layout::Width, layout::Height});
    form_->centred(true);
    form_->KeyPreview(true);
    applyLayout(*form_, layout::Items);
    const auto text = form_->control<TextBox>(u"txt_Line");
    text->MultiLine(true);
    text->Locked(true);
    const auto buttons = form_->control<ctl_CmdBar>(u"bar_Buttons")->BUTTONS();
    buttons->Add(String(Clear), u"Leeren|Clear");
    buttons->Add(String(Close), u"Schließen|Close");
}

void frm_NetMonitor::style()
{
    form_->BackColor(Paper);
    const auto title = form_->control<ctl_Label>(u"lab_Lines");
    title->Font(font(u"Tahoma", 11));
    title->ForeColor(Dark);
    form_->control<ListBox>(u"lst_Lines")->Font(font(u"Courier New", 9));
    form_->control<TextBox>(u"txt_Line")->Font(font(u"Courier New", 9));
}

void frm_NetMonitor::connect()
{
    connections_ += form_->TRANSLATE.connect([this] { TRANSLATE(); });
    connections_ += form_->KeyDown.connect([this](KeyEvent& event) { keyDown(event); });
    connections_ += form_->Resize.connect([this] { resize(); });
    connections_ += form_->control<ListBox>(u"lst_Lines")->Click.connect([this] { showChosen(); });
    connections_ +=
        form_->control<ctl_CmdBar>(u"bar_Buttons")->BUTTON.connect([this](std::int32_t, const String& key) {
            command(key);
        });
    connections_ += traffic_->ADDED.connect([this](const TrafficLine& line) { add(line); });
    connections_ += traffic_->CLEARED.connect([this] { fill(); });
}

void frm_NetMonitor::TRANSLATE()
{
    LNG()->Form(*form_, texts_);
    form_->Caption(LNG()->TRANSLATE(u"Netzwerk-Monitor", u"Network monitor"));
    form_->control<ListBox>(u"lst_Lines")
        ->frame()
        .AccessibleName(LNG()->TRANSLATE(u"Verkehr mit dem Master", u"Traffic with the master"));
    form_->control<TextBox>(u"txt_Line")
        ->frame()
        .AccessibleName(LNG()->TRANSLATE(u"Gewählte Zeile", u"Chosen line"));
    fill();
}

void frm_NetMonitor::fill()
{
    const auto list = form_->control<ListBox>(u"lst_Lines");
    list->Clear();
    for (const TrafficLine& line : traffic_->lines()) {
        list->AddItem(listed(line));
    }
    list->ListIndex(list->ListCount() - 1);
    showChosen();
}

// The log may have dropped its oldest line for this one.
void frm_NetMonitor::add(const TrafficLine& line)
{
    const auto list = form_->control<ListBox>(u"lst_Lines");
    const bool follows = list->ListIndex() == list->ListCount() - 1;
    list->AddItem(listed(line));
    while (list->ListCount() > static_cast<std::int32_t>(traffic_->lines().size())) {
        list->RemoveItem(0);
    }
    if (follows) {
        list->ListIndex(list->ListCount() - 1);
    }
    showChosen();
}

void frm_NetMonitor::showChosen()
{
    const std::int32_t chosen = form_->control<ListBox>(u"lst_Lines")->ListIndex();
    const bool isLine = chosen >= 0 && chosen < static_cast<std::int32_t>(traffic_->lines().size());
    form_->control<TextBox>(u"txt_Line")
        ->Text(isLine ? textOf(traffic_->lines()[static_cast<std::size_t>(chosen)]) : String());
}

void frm_NetMonitor::command(const String& key)
{
    if (key == Clear) {
        traffic_->clear();
    } else if (key == Close) {
        form_->Unload();
    }
}

void frm_NetMonitor::keyDown(KeyEvent& event)
{
    if (event.is(Key::Escape)) {
        event.KeyCode = 0;
        form_->Unload();
    }
}

void frm_NetMonitor::resize()
{
    const PixelSize size = form_->innerSize();
    const double moreWidth = size.width - layout::Width;
    const double moreHeight = size.height - layout::Height;
    for (const LayoutItem& item : layout::Items) {
        const bool isTitle = item.name == u"lab_Lines";
        const bool isList = item.name == u"lst_Lines";
        form_->control<Control>(item.name)->Move(
            item.place.left, item.place.top + (isTitle || isList ? 0 : moreHeight),
            std::max(0.0, item.place.width + moreWidth),
            std::max(0.0, item.place.height + (isList ? moreHeight : 0)));
    }
}

} // namespace phial
