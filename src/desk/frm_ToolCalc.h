#pragma once

#include "core/CoreParameters.h"
#include "core/CoreTokenList.h"
#include "desk/MemoryKeys.h"
#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/ListBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <memory>
#include <optional>
#include <vector>

namespace phial
{

class CalculatorDisplay;
class cls_DataElement;
class ctl_PSE;
enum class CalculatorAnswer : std::uint8_t;
struct PieceReading;

/// The pocket calculator: a line, keys, four memories, the lines of before, and where they are asked for the
/// variables of a task and the periodic table, whose molar masses are added by a tap. What its keys do is
/// told at CalculatorDisplay; below the line stands how the term reads, or what is wrong with it.
///
/// OK ends it with the value of the line; closed otherwise it has none. An object serves for one dialog,
/// which cls_AppTools::CALC opens.
class frm_ToolCalc
{
public:
    frm_ToolCalc();
    ~frm_ToolCalc();
    frm_ToolCalc(const frm_ToolCalc&) = delete;
    frm_ToolCalc& operator=(const frm_ToolCalc&) = delete;

    // Set before it is shown.
    /// Names with a value each, and a unit behind it where that has one; each becomes a key.
    void Variables(const CoreTokenList& value);
    /// "TASK" is a text that stands above the keys. With "FORMULA" as False nobody is told the molar masses
    /// of formulas.
    CoreParameters& Parameters() { return parameters_; }
    /// Whether the periodic table is open at first.
    void ShowPSE(bool value) { showsTable_ = value; }
    /// The upper left corner, in twips; all of the window goes onto the screen that shows it. None: the
    /// middle of the screen.
    void Corner(std::optional<PixelPoint> value) { corner_ = value; }
    /// The window's caption in place of the usual one.
    void Title(String value);

    /// Modal: returns when it has been closed.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();
    /// What OK has taken over; none when it was closed otherwise.
    const std::optional<double>& result() const;

    /// Puts a text onto the line (see CalculatorDisplay::show), in the largest font that has room for it.
    void hShow(StringView pText);
    const String& hGet() const;
    /// Puts a number there, with as many digits as there is room for.
    void Preset(double value);
    /// The solver and its last error text; see ExpressionSolver.
    void SOLVE(StringView pTerm, std::span<const Variant> pVars, double& rResult);
    const String& SolveError() const;
    /// Works out the line; with `pKeep` its value becomes the result, otherwise it is shown.
    CalculatorAnswer CALC(bool pKeep);

    /// A key by its text: those of CalculatorDisplay, "PSE" (the table comes or goes), "M()" (the molar mass
    /// of a formula), "DIGITS" (which digits results have).
    void strike(StringView key);

    Form& form() { return *form_; }

private:
    void connect();
    void load();
    void makeVariableKeys();
    void take(const cls_DataElement& element);
    void askForFormula();
    void addMass(double mass, CalculatorAnswer answer);
    void swapDigits();
    void togglePSE();
    bool openTable();

    void answer(CalculatorAnswer answer);
    void answerValue(const String& term, CalculatorAnswer answer);
    CalculatorAnswer work(StringView key);
    void noteLine(const String& term);
    String tapeLine(StringView term, const String& value) const;
    void recallLine();
    void say(const String& text);
    void showTerm();
    void showReading();
    void showDigits();
    double fittingSize(StringView text) const;
    void fit();
    void layOut();
    void place();
    void goOnScreen();

    void keyDown(KeyEvent& event);
    void keyPress(KeyPressEvent& event);

    CoreParameters parameters_;
    bool showsTable_ = false;
    bool isTableThere_ = false;
    bool isTableRead_ = false;
    std::optional<PixelPoint> corner_;
    std::optional<double> roomyZoom_; ///< which it has again once the screen has room for it
    String title_;
    std::unique_ptr<CalculatorDisplay> display_;
    std::vector<String> names_;          ///< of the variables
    std::vector<PieceReading> readings_; ///< of the variables, then of molar masses
    std::vector<String> lines_;          ///< terms of the tape, the latest first

    DesignedForm form_;
    std::shared_ptr<ctl_Label> term_;
    std::shared_ptr<ctl_Label> reading_;
    std::shared_ptr<ctl_PSE> table_;
    std::shared_ptr<ListBox> tape_;
    ControlArray<ctl_Button> keys_;
    ControlArray<ctl_Button> variableKeys_;
    MemoryKeys memories_;
};

} // namespace phial
