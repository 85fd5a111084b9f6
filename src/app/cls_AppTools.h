#pragma once

#include "core/Colour.h"
#include "core/String.h"
#include "core/Variant.h"

#include <cstdint>
#include <memory>

namespace phial
{

class CoreParameters;
class CoreTokenList;
class DrawDevice;
class Form;
class MoleculeTable;
class frm_ToolPeriodensystem;
enum class TEXTALIGN : std::int32_t;   // see visual/Alignment.h
enum class WindowState : std::int32_t; // see visual/Form.h

/// The chemistry tools of the root, `QVAPP().TOOLS()`.
class cls_AppTools
{
public:
    /// Two colours that the apps have in common: 149, 177, 255 and 255, 204, 0.
    Colour COLORX() const { return RGB(149, 177, 255); }
    Colour COLORY() const { return RGB(255, 204, 0); }

    /// The text with capitals at its beginning and behind each blank, and small letters everywhere else.
    String XCASE(StringView pT) const;

    /// Draws a term on a device; -1 stands for the device's current position. See TermDraw.
    void TERMPRINT(DrawDevice& pDevice, StringView pText, std::int32_t pX = -1, std::int32_t pY = -1,
                   TEXTALIGN pAlign = TEXTALIGN{}) const;

    /// The colour of universal indicator at that pH; below 0 it is that of 0, above 14 that of 14. The scale
    /// is the picture `ph.png` of RESOURCEGFX, whose rows are equal steps from 0 (first row) to 14; a pH has
    /// the colour of the row that it lies in. Raises 5 for what is no number, 53 without the picture.
    Colour PHCOLOR(double pPH) const;

    /// Sizes the program's main form for the screen. With "EEE", "-1024x768" or "-1280x800" on the command
    /// line (the last of these if there are several) its window has 1024 by 600, 1024 by 768 or 1280 by 800
    /// pixels, in the middle of the screen; on a smaller one its title bar stays within. Otherwise it has
    /// that state.
    void RESOLUTION(Form& pForm, WindowState pDefaultWindowState = WindowState{2}) const;

    /// Opens a compound's model in the viewer RasMol, and tells the user when there is no model of it or no
    /// viewer. The compound is sought by its name or formula, or by a name alone; see MoleculeTable. With
    /// `pCheckOnly` nothing is opened and nothing told. Gives whether the viewer was started, or whether
    /// there is a model.
    ///
    /// The models lie in the viewer's folder, `rasmol\data` below APPS, with the table "moleküle2.txt". The
    /// first call reads the table and makes this folder the current one.
    bool RASMOL(StringView pTerm = {}, StringView pRasName = {}, bool pCheckOnly = false);

    /// A term as HTML; the result ends with a blank. See termToHtml.
    String TERM2HTML(StringView pFormula) const;

    /// Starts a program of the suite, with parameters as on a command line. `pApp` is its path below APPS,
    /// with or without ".exe", or the name of its folder where the program is called like that.
    ///
    /// Gives the number of its process. With `pWait` it returns when the program has ended, with what this
    /// gave back (-1 if it broke off); events run meanwhile. A program that is not there raises 53, one that
    /// cannot be started 75, a path that leads out of APPS 5; without `pRaiseErrors` each gives -1.
    std::int32_t stArt(StringView pApp, StringView pParameters = {}, bool pWait = false,
                       bool pRaiseErrors = true) const;

    /// Opens the pocket calculator (see desk/frm_ToolCalc.h) over the program and gives its result.
    ///
    /// `pDefault` stands on its line at first; what is no number raises 13. `pX` and `pY` are the window's
    /// upper left corner in twips, -1 the pointer's place; all of it goes onto the screen. Each of `pVars`
    /// becomes a key: a name with a value, and a unit behind it where it has one. `pShowPSE` opens the
    /// periodic table beside the keys. An empty title leaves the usual one. Of `pFlags` "TASK" is a text to
    /// stand above the keys, and "FORMULA" as False takes the key for molar masses of formulas away.
    ///
    /// Closed otherwise than by OK it gives `pDefault`, or `pReturnOnAbort` where that is not the text
    /// "DEFAULT". So it does at once, and says so, where the teacher has switched the calculator off: the
    /// classroom's setting "Calculator".
    double CALC(const Variant& pDefault = 0, std::int32_t pX = -1, std::int32_t pY = -1,
                const CoreTokenList* pVars = nullptr, bool pShowPSE = false,
                const Variant& pReturnOnAbort = u"DEFAULT", const String& pTitle = {},
                const CoreParameters* pFlags = nullptr) const;

    /// Opens the sheet of the periodic table beside the program's windows (see
    /// desk/frm_ToolPeriodensystem.h). There is one; called again it comes to the front. Without the
    /// installation's element file the user is told so, and nothing opens.
    void PERIODICSYSTEM();
    /// Open reference sheets and return when they have been closed: names of groups with their formulas, the
    /// rules for oxidation numbers, acids and the rules of pH.
    void GROUPNAMES() const;
    void OxValues() const;
    void pHRules() const;

private:
    std::shared_ptr<const MoleculeTable> molecules_; // read at first use
    std::shared_ptr<frm_ToolPeriodensystem> periodicTable_;
};

} // namespace phial
