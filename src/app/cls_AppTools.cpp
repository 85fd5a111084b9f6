#include "app/cls_AppTools.h"

#include "app/Session.h"
#include "app/SisterProgram.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/screen/frm_Resource.h"
#include "app/sys_Global.h"
#include "chem/MoleculeTable.h"
#include "chem/MoleculeViewer.h"
#include "core/CoreDialogs.h"
#include "core/CoreDisplay.h"
#include "core/CoreParameters.h"
#include "core/CoreRoot.h"
#include "core/Locale.h"
#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "desk/frm_ToolCalc.h"
#include "desk/frm_ToolGroupNames.h"
#include "desk/frm_ToolOxValues.h"
#include "desk/frm_ToolPeriodensystem.h"
#include "desk/frm_ToolpHRules.h"
#include "periodic/ElementFile.h"
#include "server/cls_AppServer.h"
#include "term/TermDraw.h"
#include "term/TermHtml.h"
#include "visual/Form.h"
#include "visual/PictureBox.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace phial
{

namespace
{

constexpr double HighestPH = 14;

struct NamedSize {
    StringView parameter;
    PixelSize size;
};

/// In the order in which they are looked for.
constexpr std::array FixedSizes{
    NamedSize{u"EEE", {1024, 600}},
    NamedSize{u"-1024x768", {1024, 768}},
    NamedSize{u"-1280x800", {1280, 800}},
};

PicturePtr phScale()
{
    const auto box = Session::current().sharedForm<frm_Resource>()->part<PictureBox>(u"pic_pHScale");
    if (!box->Picture()) {
        box->Picture(LoadPicture(QVAPP()->URL()->RESOURCEGFX() + u"ph.png"));
    }
    return box->Picture();
}

Colour colourOf(std::uint32_t pixel)
{
    const auto part = [pixel](unsigned shift) { return static_cast<int>((pixel >> shift) & 0xFFU); };
    return RGB(part(16), part(8), part(0));
}

std::optional<PixelSize> wantedSize()
{
    const CoreParameters& parameters = *QVAPP()->CONFIG()->PARAMETERS();
    std::optional<PixelSize> wanted;
    for (const NamedSize& fixed : FixedSizes) {
        if (parameters.Exists(fixed.parameter)) {
            wanted = fixed.size;
        }
    }
    return wanted;
}

/// The teacher can switch the calculator off for a lesson; the pupil is told.
bool isCalculatorAllowed()
{
    const auto& server = QVAPP()->SERVER();
    if (!server->ONLINE() || server->SETTING(u"Calculator", true).toBoolean()) {
        return true;
    }
    coreRoot().CoreDialogs().Info(LNG()->TRANSLATE(u"Der Taschenrechner ist in dieser Stunde ausgeschaltet.",
                                                   u"The pocket calculator is switched off in this lesson."));
    return false;
}

/// The place at which something of that length lies in the middle of the screen, with its beginning within.
double centred(double length, double screen)
{
    return std::max(0.0, (screen - length) / 2);
}

} // namespace

String cls_AppTools::XCASE(StringView pT) const
{
    String text;
    text.reserve(pT.size());
    char16_t previous = u' ';
    for (const char16_t unit : pT) {
        text += previous == u' ' ? upperCase(unit) : lowerCase(unit);
        previous = unit;
    }
    return text;
}

void cls_AppTools::TERMPRINT(DrawDevice& pDevice, StringView pText, std::int32_t pX, std::int32_t pY,
                             TEXTALIGN pAlign) const
{
    TermDraw(pDevice, pText, pX, pY, pAlign);
}

Colour cls_AppTools::PHCOLOR(double pPH) const
{
    if (std::isnan(pPH)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const PicturePtr scale = phScale();
    const auto rows = static_cast<double>(scale->rows());
    const double row = std::floor(rows * std::clamp(pPH, 0.0, HighestPH) / HighestPH);
    return colourOf(scale->at(0, static_cast<std::size_t>(std::min(row, rows - 1))));
}

void cls_AppTools::RESOLUTION(Form& pForm, WindowState pDefaultWindowState) const
{
    const std::optional<PixelSize> size = wantedSize();
    if (!size) {
        pForm.WindowState(pDefaultWindowState);
        return;
    }
    const Screen& screen = visualHost().screen();
    const double width = size->width * screen.TwipsPerPixelX();
    const double height = size->height * screen.TwipsPerPixelY();
    pForm.WindowState(WindowState::Normal);
    pForm.Move(centred(width, screen.Width()), centred(height, screen.Height()), width, height);
}

bool cls_AppTools::RASMOL(StringView pTerm, StringView pRasName, bool pCheckOnly)
{
    const String folder = QVAPP()->URL()->APPS() + u"rasmol\\data\\";
    if (!molecules_) {
        molecules_ = std::make_shared<MoleculeTable>(readMolecules(folder));
    }
    const MoleculeModel* model = molecules_->find(pTerm, pRasName);
    if (pCheckOnly) {
        return model != nullptr;
    }
    if (!model) {
        coreRoot().CoreDialogs().Info(
            LNG()->TRANSLATE(u"Für diese Verbindung kenne ich leider keine RASMOL-Datei...",
                             u"Unfortunately I know no RASMOL file for this compound..."));
        return false;
    }
    return showMolecule(*model, folder);
}

String cls_AppTools::TERM2HTML(StringView pFormula) const
{
    return termToHtml(pFormula);
}

double cls_AppTools::CALC(const Variant& pDefault, std::int32_t pX, std::int32_t pY,
                          const CoreTokenList* pVars, bool pShowPSE, const Variant& pReturnOnAbort,
                          const String& pTitle, const CoreParameters* pFlags) const
{
    constexpr std::int32_t AtPointer = -1;
    const double preset = pDefault.toReal();
    std::optional<double> result;
    if (isCalculatorAllowed()) {
        const CoreDisplay& display = coreRoot().CoreDisplay();
        const Screen& screen = visualHost().screen();
        frm_ToolCalc form;
        if (pVars) {
            form.Variables(*pVars);
        }
        form.Corner(PixelPoint{pX == AtPointer ? display.CursorX() * screen.TwipsPerPixelX() : pX,
                               pY == AtPointer ? display.CursorY() * screen.TwipsPerPixelY() : pY});
        if (pFlags) {
            form.Parameters().CopyFrom(*pFlags);
        }
        form.ShowPSE(pShowPSE);
        form.Preset(preset);
        form.Title(pTitle);
        form.Show();
        result = form.result();
    }
    if (result) {
        return *result;
    }
    return pReturnOnAbort == Variant(u"DEFAULT") ? preset : pReturnOnAbort.toReal();
}

void cls_AppTools::PERIODICSYSTEM()
{
    if (!periodicTable_ || !periodicTable_->form().isLoaded()) {
        if (!checkElementFile()) {
            return;
        }
        periodicTable_ = std::make_shared<frm_ToolPeriodensystem>();
    }
    const auto shown = periodicTable_; // it may be modal, and then be opened anew meanwhile
    shown->Show();
}

void cls_AppTools::GROUPNAMES() const
{
    frm_ToolGroupNames().Show();
}

void cls_AppTools::OxValues() const
{
    frm_ToolOxValues().Show();
}

void cls_AppTools::pHRules() const
{
    frm_ToolpHRules().Show();
}

std::int32_t cls_AppTools::stArt(StringView pApp, StringView pParameters, bool pWait, bool pRaiseErrors) const
{
    constexpr std::int32_t NotStarted = -1;
    std::int32_t result = NotStarted;
    const auto start = [&] {
        result = pWait ? runSisterProgram(pApp, pParameters) : startSisterProgram(pApp, pParameters);
    };
    if (pRaiseErrors) {
        start();
    } else {
        ignoringErrors(start);
    }
    return result;
}

} // namespace phial
