#pragma once

#include "visual/Forms.h"

#include <QObject>

class QWidget;

namespace phial::qt
{

/// Keeps the user's input away from windows that a modal form blocks. A press on such a window deactivates
/// the modal form; if it stays, its window comes to the front again.
class ModalGate final : public QObject
{
    Q_OBJECT

public:
    /// Stands in front of all windows of the program from now on.
    explicit ModalGate(Forms& forms);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void pressedOutside();

    Forms& forms_;
    bool telling_ = false;
};

/// Whether a modal form keeps the user's input away from the widget.
bool isBlockedByDialog(const QWidget& widget);

} // namespace phial::qt
