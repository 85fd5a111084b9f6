#pragma once

#include "qt/desktop/NativePeer.h"
#include "visual/ScrollBar.h"

class QScrollBar;

namespace phial::qt
{

/// A scroll bar as the toolkit's own. A range that runs downward is shown turned round.
class ScrollBarPeer final : public NativePeer
{
public:
    static QWidget* make(std::shared_ptr<ScrollBar> model, QWidget& holder);

private:
    ScrollBarPeer(std::shared_ptr<ScrollBar> model, QScrollBar& bar);
    void showStyle() override;
    void showRange() override;
    std::int32_t turned(std::int32_t value) const;

    std::shared_ptr<ScrollBar> model_;
    QScrollBar& bar_;
};

} // namespace phial::qt
