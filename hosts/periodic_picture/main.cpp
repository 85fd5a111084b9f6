// The periodic table with its rows of electron states as picture files: `periodic_picture ELEMENTS FOLDER`
// writes periodensystem.png, and periodensystem@2x.png with twice as many pixels.

#include "app/Session.h"
#include "core/NativePath.h"
#include "periodic/ctl_PSE.h"
#include "qt/desktop/DesktopApplication.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/ShotBook.h"
#include "visual/Form.h"

#include <QDir>

#include <filesystem>
#include <iostream>

namespace
{

constexpr phial::PixelSize Size{722, 475};

bool write(const phial::Form& form, double scale, const QString& file)
{
    return phial::qt::imageOf(*phial::qt::grabForm(form, scale)).save(file);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const phial::qt::DesktopApplication application(argc, argv, u"QV Phial");
    if (argc != 3) {
        std::cerr << "periodic_picture ELEMENTS FOLDER\n";
        return 2;
    }
    const phial::Session session(application.platform());
    const auto form = std::make_shared<phial::Form>(u"frm_Picture");
    form->BorderStyle(phial::BorderStyle::None);
    form->ScaleMode(phial::ScaleUnit::Pixels);
    form->innerSize(Size);
    const auto table = form->add<phial::ctl_PSE>(u"ctl_PSE");
    table->FIXEDSIZE(true);
    table->ELEKTRONENZUSTAND(true);
    table->frame().pixelRectangle({0, 0, Size.width, Size.height});
    table->LOAD(phial::systemPath(std::filesystem::absolute(argv[1])));
    form->Show();
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    const bool isWritten = write(*form, 1, folder.filePath(QStringLiteral("periodensystem.png"))) &&
                           write(*form, 2, folder.filePath(QStringLiteral("periodensystem@2x.png")));
    form->discard();
    if (!isWritten) {
        std::cerr << "periodic_picture: cannot write to " << argv[2] << '\n';
        return 1;
    }
    return 0;
}
