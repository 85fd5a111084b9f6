// A window of plain Qt, outside the repository, that places a painted control in a layout of its own. It
// shows itself, looks whether the term was drawn, and ends.

#include "app/Session.h"
#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/DesktopApplication.h"
#include "term/ctl_TermLabel.h"

#include <QImage>
#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

namespace
{

bool hasInk(const QImage& picture)
{
    const QRgb ground = picture.pixel(0, 0);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != ground) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Consumer");
    const phial::Session session(application.platform());

    auto term = phial::makeControl<phial::ctl_TermLabel>();
    term->Term(u"H2SO4");

    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel("Schwefelsäure"));
    auto* formula = new phial::qt::ControlWidget(term);
    layout->addWidget(formula);
    window.resize(300, 120);
    window.show();

    return hasInk(formula->grab().toImage()) ? 0 : 1;
}
