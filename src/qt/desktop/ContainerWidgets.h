#pragma once

#include "visual/Container.h"

#include <QPointer>
#include <QWidget>

#include <map>

namespace phial::qt
{

/// The widgets of the controls that stand in a container: made, ended and put in order as the container says.
class ContainerWidgets
{
public:
    /// Makes the widgets of the controls that are there. Container and holder must outlive this.
    ContainerWidgets(Container& container, QWidget& holder);
    ~ContainerWidgets();
    ContainerWidgets(const ContainerWidgets&) = delete;
    ContainerWidgets& operator=(const ContainerWidgets&) = delete;

    /// The controls or their order have changed.
    void synchronise();

private:
    void endMissing();
    void makeNew();
    void putInOrder();

    Container& container_;
    QWidget& holder_;
    std::map<const Control*, QPointer<QWidget>> widgets_;
};

} // namespace phial::qt
