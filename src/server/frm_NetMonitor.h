#pragma once

#include "server/TrafficLog.h"
#include "visual/DesignedForm.h"
#include "visual/ListBox.h"

#include <functional>
#include <memory>

namespace phial
{

/// The window that shows a network client's traffic while it goes on: one line a text, the chosen one below
/// as a whole. It follows the latest line as long as that is chosen. Escape closes.
class frm_NetMonitor
{
public:
    explicit frm_NetMonitor(std::shared_ptr<TrafficLog> traffic);

    /// Opens the window beside the others, or brings it to the front.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    void fill();
    void add(const TrafficLine& line);
    void showChosen();
    void resize();

    std::shared_ptr<TrafficLog> traffic_;
    DesignedForm form_;
    std::shared_ptr<ListBox> lines_;
};

/// For whoever has the traffic and no windows: makes the window, which opens whenever the result is called
/// and ends with it.
std::function<void()> netMonitorWindow(std::shared_ptr<TrafficLog> traffic);

} // namespace phial
