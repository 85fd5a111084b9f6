#include "molmasse/TrainerData.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "chem/ElementFileReader.h"
#include "chem/FormulaAnalysis.h"
#include "common/TermFit.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "molmasse/TrainerDesign.h"

namespace molmasse
{

using phial::String;

namespace
{

std::shared_ptr<phial::cls_DataElements> readElements(const String& file)
{
    auto elements = std::make_shared<phial::cls_DataElements>();
    phial::ignoringErrors([&] { elements->IMPORT2(file); });
    return elements->COUNT() > 0 ? elements : nullptr;
}

learning::TaskFile readTasks(const String& file, const phial::cls_DataElements& elements)
{
    learning::TaskFile tasks;
    phial::ignoringErrors([&] {
        tasks = learning::readTaskFile(phial::coreRoot().CoreFiles().ReadText(file),
                                       [&](const String& formula) { return faultOf(elements, formula); });
    });
    return tasks;
}

} // namespace

std::map<String, double> readExactMasses(phial::StringView text)
{
    std::map<String, double> masses;
    phial::ElementFileReader reader(phial::ElementFileReader::Format::FiveLines);
    for (phial::StringView line : phial::split(text, u"\n")) {
        if (line.ends_with(u'\r')) {
            line.remove_suffix(1);
        }
        if (const auto record = reader.take(line)) {
            masses[record->symbol] = record->exactMass;
        }
    }
    return masses;
}

std::optional<double> exactMass(const std::map<String, double>& masses, phial::StringView formula)
{
    double sum = 0;
    for (const phial::AtomCount& atoms : phial::AtomCounts(formula)) {
        const auto mass = masses.find(String(atoms.symbol));
        if (mass == masses.end()) {
            return std::nullopt;
        }
        sum += mass->second * atoms.count;
    }
    return sum;
}

std::optional<learning::TaskFault> faultOf(const phial::cls_DataElements& elements, const String& formula)
{
    std::size_t position = 0;
    phial::StringView symbol = phial::nextSymbol(formula, position);
    if (symbol.empty()) {
        return learning::TaskFault::NoTask;
    }
    for (; !symbol.empty(); symbol = phial::nextSymbol(formula, position)) {
        if (!elements.EXISTS(String(symbol))) {
            return learning::TaskFault::UnknownElement;
        }
    }
    const bool fits = learning::fittingTermSize(formula, trainer_design::FormulaWidth).has_value();
    return fits ? std::nullopt : std::optional(learning::TaskFault::TooLong);
}

TrainerData loadTrainerData()
{
    TrainerData data;
    const auto& folders = phial::QVAPP()->URL();
    const String elementFile = folders->DATASHARED() + u"elements2.dat";
    data.elements = readElements(elementFile);
    if (!data.elements) {
        data.missingFile = elementFile;
        return data;
    }
    phial::ignoringErrors(
        [&] { data.exactMasses = readExactMasses(phial::coreRoot().CoreFiles().ReadText(elementFile)); });
    const String taskFile = folders->DATAAPP() + String(TaskFileName);
    data.tasks = readTasks(taskFile, *data.elements);
    if (data.tasks.levels.empty()) {
        data.missingFile = taskFile;
    }
    return data;
}

} // namespace molmasse
