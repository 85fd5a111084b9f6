#pragma once

#include "core/CoreTokenList.h"
#include "core/Event.h"
#include "core/String.h"
#include "server/TrafficLog.h"

#include <memory>

namespace phial
{

class Form;
struct KeyEvent;

/// The window that shows a network client's traffic while it goes on: one line a text, the chosen one below
/// as a whole. It follows the latest line as long as that is chosen. Escape closes.
class frm_NetMonitor
{
public:
    explicit frm_NetMonitor(std::shared_ptr<TrafficLog> traffic);
    ~frm_NetMonitor();
    frm_NetMonitor(const frm_NetMonitor&) = delete;
    frm_NetMonitor& operator=(const frm_NetMonitor&) = delete;

    /// Opens the window beside the others, or brings it to the front.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    void build();
    void style();
    void connect();
    void fill();
    void add(const TrafficLine& line);
    void showChosen();
    void command(const String& key);
    void keyDown(KeyEvent& event);
    void resize();

    std::shared_ptr<TrafficLog> traffic_;
    std::shared_ptr<Form> form_;
    CoreTokenList texts_;
    Connections connections_;
};

} // namespace phial
