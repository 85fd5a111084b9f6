#include "qt/desktop/WindowHandles.h"

#include <QPointer>
#include <QWidget>

#include <map>

namespace phial::qt
{

namespace
{

std::map<WindowHandle, QPointer<QWidget>>& handles()
{
    static std::map<WindowHandle, QPointer<QWidget>> map;
    return map;
}

} // namespace

void registerWindow(WindowHandle handle, QWidget& widget)
{
    handles()[handle] = &widget;
    QObject::connect(&widget, &QObject::destroyed, [handle] {
        const auto known = handles().find(handle);
        if (known != handles().end() && !known->second) {
            handles().erase(known);
        }
    });
}

QWidget* widgetOf(WindowHandle handle)
{
    const auto known = handles().find(handle);
    return known == handles().end() ? nullptr : known->second.data();
}

} // namespace phial::qt
