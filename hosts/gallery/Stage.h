#pragma once

#include "core/Event.h"
#include "visual/Form.h"

#include <functional>
#include <memory>
#include <vector>

namespace gallery
{

/// The place in the gallery's window where one exhibit stands at a time. What an exhibit puts here goes again
/// when the next one comes.
class Stage
{
public:
    /// `place` is a container of the form; `size` is its inside in pixels.
    Stage(phial::Form& form, phial::Container& place, phial::PixelSize size);
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Puts a control up, at a place of the stage or in its middle; all in pixels. It gets its class's name
    /// with a number behind.
    template <typename Class>
    std::shared_ptr<Class> put(const phial::PixelRectangle& area)
    {
        auto control = std::make_shared<Class>();
        add(control, area);
        return control;
    }
    void put(const phial::ControlPtr& control, const phial::PixelRectangle& area) { add(control, area); }
    template <typename Class>
    std::shared_ptr<Class> putMiddle(phial::PixelSize size)
    {
        auto control = put<Class>(middle(size));
        centred_ = control;
        return control;
    }
    /// The same within a control that is up already.
    template <typename Class>
    std::shared_ptr<Class> putInto(phial::Control& holder, const phial::PixelRectangle& area)
    {
        auto control = std::make_shared<Class>();
        add(control, area, holder.container());
        return control;
    }

    /// A timer, an image list or the like, on the form while the exhibit stands.
    void addComponent(const phial::ObjectPtr& component);

    /// What is to be undone when the exhibit goes; the last thing first.
    void atEnd(std::function<void()> action) { endings_.push_back(std::move(action)); }
    /// A connection that lasts as long as the exhibit.
    void keep(phial::Connection connection) { connections_ += std::move(connection); }

    phial::Form& form() { return form_; }
    phial::PixelSize size() const { return size_; }
    phial::PixelRectangle middle(phial::PixelSize size) const;

    /// Puts the control of the middle there again, when it has changed its size.
    void centre();

    /// Takes everything away.
    void clear();

private:
    void add(const phial::ControlPtr& control, const phial::PixelRectangle& area,
             phial::Container* holder = nullptr);

    phial::Form& form_;
    phial::Container& place_;
    phial::PixelSize size_;
    std::weak_ptr<phial::Control> centred_;
    phial::Connections connections_;
    std::vector<std::function<void()>> endings_;
};

} // namespace gallery
