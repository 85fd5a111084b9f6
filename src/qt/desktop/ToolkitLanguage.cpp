#include "qt/desktop/ToolkitLanguage.h"

#include "core/SessionState.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

namespace phial::qt
{

namespace
{

constexpr int German = 7;

/// The texts of one language; the toolkit's own are English.
std::unique_ptr<QTranslator> germanTexts()
{
    auto texts = std::make_unique<QTranslator>();
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    return texts->load(QStringLiteral("qtbase_de"), folder) ? std::move(texts) : nullptr;
}

} // namespace

bool isGerman()
{
    return !SessionState::isOpen() || SessionState::current().locale().language == German;
}

void useSessionLanguage()
{
    static std::unique_ptr<QTranslator> texts;
    static bool inGerman = false;
    const bool german = isGerman();
    if (german == inGerman) {
        return;
    }
    inGerman = german;
    if (german) {
        texts = germanTexts();
        if (texts) {
            QCoreApplication::installTranslator(texts.get());
        }
    } else if (texts) {
        QCoreApplication::removeTranslator(texts.get());
        texts.reset();
    }
}

} // namespace phial::qt
